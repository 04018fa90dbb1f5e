#pragma once

#include <initializer_list>

#include "core/instrumented.h"
#include "host/com/com_object.h"
#include "host/com/connection_point.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The events of the source interface `__Callback`, by their numbers there.
enum class CallbackEvent : DISPID {
    Terminate = 1,
    DefaultOutputTemplate = 2,
    getPersistentValue = 3,
    setPersistentValue = 4,
    setParentWidgetsValue = 5,
    TooltipShow = 6,
    TooltipHide = 7,
    WebsiteAddress = 8,
    ReturnFocus = 9,
};

/// The object through which a form talks to the host: each member raises the event of its name. Arguments go
/// to the listeners by reference; the last one of an event with an answer is the place for it, which stays
/// empty when nobody puts anything there.
///
/// Every listener is called, whatever the others do: one that fails is reported, one that does not know the event
/// is none of it. A listener that refuses variables of a declared type, as scripting engines do, gets them as
/// variants.
class Callback final : public ComObject<_Callback, IConnectionPointContainer, IProvideClassInfo2>, public Instrumented {
public:
    /// Also as IProvideClassInfo, which the other includes.
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;

    STDMETHODIMP Terminate(short* theOutputTemplate) override;
    STDMETHODIMP WebsiteAddress(BSTR* fileName, BSTR* result) override;
    STDMETHODIMP getPersistentValue(BSTR* key, BSTR* result) override;
    STDMETHODIMP setPersistentValue(BSTR* key, BSTR* value) override;
    STDMETHODIMP get_DefaultOutputTemplate(short* whichType, IDispatch** result) override;
    STDMETHODIMP ReturnFocus() override;
    STDMETHODIMP TooltipShow(BSTR* str) override;
    STDMETHODIMP TooltipHide() override;
    STDMETHODIMP setParentWidgetsValue(BSTR* parentVal, BSTR* secondaryVal) override;

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override { return mEvents.enumerate(points); }
    STDMETHODIMP FindConnectionPoint(REFIID source, IConnectionPoint** point) override {
        return mEvents.find(source, point);
    }
    STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* id) override;

    TextView className() const override { return u"Callback"; }
    /// The class has no variables.
    void dumpVariables(VBWPROTECTOR& /*report*/) const override {}

private:
    ~Callback() override = default;

    /// A procedure that raises an event and does nothing else.
    void raise(const Name& name, const ParameterList& parameters, CallbackEvent event,
               std::initializer_list<VARIANT> arguments);

    ConnectionPoint mEvents{this, __uuidof(__Callback)};
};

}  // namespace quorvel::host

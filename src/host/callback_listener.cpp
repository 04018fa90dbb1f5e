#include "host/callback_listener.h"

#include <utility>

#include "core/run_time_error.h"
#include "host/callback.h"
#include "host/com/com_object.h"

namespace quorvel::host {

namespace {

/// The arguments of an event as `Callback` passes them. Others can call a listener too: what is not as it should
/// be is error 13.
class EventArguments {
public:
    explicit EventArguments(const DISPPARAMS& parameters) : mParameters(parameters) {}

    std::int16_t number(UINT position) const { return *at(position, VT_I2).piVal; }
    TextView text(UINT position) const { return view(*at(position, VT_BSTR).pbstrVal); }

    void answer(UINT position, const Text& value) const {
        BSTR answer = newBstr(value);
        std::swap(*at(position, VT_BSTR).pbstrVal, answer);
        SysFreeString(answer);
    }
    void answer(UINT position, ComPtr<IDispatch> value) const {
        const ComPtr<IDispatch> before = ComPtr<IDispatch>::adopt(*at(position, VT_DISPATCH).ppdispVal);
        *at(position, VT_DISPATCH).ppdispVal = value.detach();
    }

private:
    /// In their natural order.
    const VARIANTARG& at(UINT position, VARTYPE type) const {
        const VARIANTARG* argument =
            position < mParameters.cArgs ? &mParameters.rgvarg[mParameters.cArgs - 1 - position] : nullptr;
        if (argument == nullptr || argument->vt != (VT_BYREF | type) || argument->byref == nullptr) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        return *argument;
    }

    const DISPPARAMS& mParameters;
};

}  // namespace

STDMETHODIMP CallbackListener::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    const bool isOurs = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(__Callback);
    *object = isOurs ? this : nullptr;
    if (!isOurs) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) CallbackListener::Release() {
    const ULONG left = --mReferences;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP CallbackListener::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP CallbackListener::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP CallbackListener::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/,
                                             DISPID* /*ids*/) {
    return E_NOTIMPL;  // Events come by their numbers.
}

STDMETHODIMP CallbackListener::Invoke(DISPID id, REFIID /*iid*/, LCID /*locale*/, WORD /*flags*/,
                                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* /*exception*/,
                                      UINT* /*badArgument*/) {
    if (result != nullptr) {
        VariantInit(result);
    }
    if (parameters == nullptr || (parameters->cArgs > 0 && parameters->rgvarg == nullptr)) {
        return E_POINTER;
    }
    if (*mHandlers == nullptr) {
        return S_OK;
    }
    CallbackHandlers& handlers = **mHandlers;
    // The handlers may let go of the form, and the form of the callback that holds this.
    const ComPtr<IUnknown> keepAlive(this);
    const HostCall bracket(handlers.owner());
    if (bracket.isRefused()) {
        return S_OK;
    }
    const EventArguments arguments(*parameters);
    try {
        switch (static_cast<CallbackEvent>(id)) {
            case CallbackEvent::Terminate: handlers.mCallbackToMe_Terminate(mTicket, arguments.number(0)); return S_OK;
            case CallbackEvent::DefaultOutputTemplate:
                arguments.answer(1, handlers.mCallbackToMe_DefaultOutputTemplate(arguments.number(0)));
                return S_OK;
            case CallbackEvent::getPersistentValue:
                arguments.answer(1, handlers.mCallbackToMe_getPersistentValue(arguments.text(0)));
                return S_OK;
            case CallbackEvent::setPersistentValue:
                handlers.mCallbackToMe_setPersistentValue(arguments.text(0), arguments.text(1));
                return S_OK;
            case CallbackEvent::setParentWidgetsValue:
                handlers.mCallbackToMe_setParentWidgetsValue(arguments.text(0), arguments.text(1));
                return S_OK;
            case CallbackEvent::TooltipShow: handlers.mCallbackToMe_TooltipShow(arguments.text(0)); return S_OK;
            case CallbackEvent::TooltipHide: handlers.mCallbackToMe_TooltipHide(); return S_OK;
            case CallbackEvent::WebsiteAddress:
                arguments.answer(1, handlers.mCallbackToMe_WebsiteAddress(arguments.text(0)));
                return S_OK;
            case CallbackEvent::ReturnFocus: handlers.mCallbackToMe_ReturnFocus(); return S_OK;
        }
    } catch (const RuntimeError&) {
        return DISP_E_TYPEMISMATCH;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
    return DISP_E_MEMBERNOTFOUND;
}

}  // namespace quorvel::host

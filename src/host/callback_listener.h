#pragma once

#include "host/com/automation.h"

#include <atomic>
#include <cstdint>
#include <memory>

#include "core/text.h"
#include "host/com/com_ptr.h"
#include "host/com/module.h"

namespace quorvel::host {

/// A form as its own events know it, from its making to its last word, shown or not.
struct FormTicket {
    /// Whether it said that it is going away.
    bool isCompleted = false;
};
using FormTicketRef = std::shared_ptr<FormTicket>;

/// Who answers the events of forms.
class CallbackHandlers {
public:
    /// @param ticket of the form that is going away
    virtual void mCallbackToMe_Terminate(const FormTicketRef& ticket, std::int16_t theOutputTemplate) = 0;
    virtual ComPtr<IDispatch> mCallbackToMe_DefaultOutputTemplate(std::int16_t whichType) = 0;
    virtual Text mCallbackToMe_getPersistentValue(TextView key) = 0;
    virtual void mCallbackToMe_setPersistentValue(TextView key, TextView value) = 0;
    virtual void mCallbackToMe_setParentWidgetsValue(TextView parentVal, TextView secondaryVal) = 0;
    virtual void mCallbackToMe_TooltipShow(TextView str) = 0;
    virtual void mCallbackToMe_TooltipHide() = 0;
    virtual Text mCallbackToMe_WebsiteAddress(TextView fileName) = 0;
    virtual void mCallbackToMe_ReturnFocus() = 0;
    /// The object that must live while it answers.
    virtual IUnknown* owner() = 0;

protected:
    ~CallbackHandlers() = default;
};

/// Listens to the events of a `Callback` for handlers that may go before it.
class CallbackListener final : public IDispatch {
public:
    /// Shared by all listeners of the same handlers; null when the handlers are gone.
    using HandlersRef = std::shared_ptr<CallbackHandlers*>;

    CallbackListener(HandlersRef handlers, FormTicketRef ticket)
        : mHandlers(std::move(handlers)), mTicket(std::move(ticket)) {}
    CallbackListener(const CallbackListener&) = delete;
    CallbackListener& operator=(const CallbackListener&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

private:
    ~CallbackListener() = default;

    HandlersRef mHandlers;
    FormTicketRef mTicket;
    ModuleReference mReference;
    std::atomic<ULONG> mReferences = 0;
};

}  // namespace quorvel::host

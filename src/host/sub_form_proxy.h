#pragma once

#include <cstdint>
#include <memory>

#include "core/instrumented.h"
#include "host/callback.h"
#include "host/callback_listener.h"
#include "host/com/com_object.h"
#include "host/com/held_object.h"
#include "host/interfaces.h"
#include "host/shown_form.h"
#include "host/window/deferred_event.h"
#include "host/window/message_hook.h"

namespace quorvel::host {

/// Shows one editor form at a time beside the host's window, keeps it placed while either window moves, passes the
/// form's requests on to the host, and unloads the form safely when the host or the user closes it. It also stands
/// for the search form of the host's search component, so that the host has one object for all.
///
/// It is without a form, shows one, or has an unload pending, which `HideForm` posts since it is commonly called from
/// the form's own handlers. Any call to the host may show, hide or close a form or release the proxy: what was true
/// before such a call is asked again after it. What fails is reported, and the rest is done all the same.
class SubFormProxy final : public ComObject<_SubFormProxy>, public Instrumented, private CallbackHandlers {
public:
    SubFormProxy();

    STDMETHODIMP Initialize(IDispatch* callbackToSubForm, FLOAT parentFormHeight) override;
    STDMETHODIMP get_hwnd(INT_PTR* result) override;
    STDMETHODIMP ShowForm(SHORT targetOutputTemplateInt, BSTR productName, IDispatch* icon, IDispatch* parentForm,
                          IDispatch* DefaultOutputTemplate, IDispatch* modelOutputTemplate, BSTR parentText,
                          BSTR secondaryText, VARIANT_BOOL* result) override;
    STDMETHODIMP removeKeywordFromSearchBox(BSTR keyword) override;
    STDMETHODIMP get_SearchController(IDispatch** result) override;
    STDMETHODIMP HideForm(SHORT command) override;

    TextView className() const override { return u"SubFormProxy"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    using FormRef = std::shared_ptr<ShownForm>;

    ~SubFormProxy() override;

    // The procedures of the class.
    bool show(const FormRequest& request);
    FormRef initForm(const FormRequest& request);
    FormRef buildForm(std::int16_t whichType);
    HeldObjectRef SearchFormProxy();
    void SetFormPosition(const FormRef& theForm, bool subFormMoved);
    void hide(std::int16_t command);
    void HideFormImpl();
    void AfterMessageImpl(std::int32_t uMsg, LPARAM lParam, bool isPopupForm);
    void afterMessage(const Name& procedureName, std::int32_t uMsg, WPARAM wParam, LPARAM lParam, bool isPopupForm);
    void mBackgroundEvent_PostReturned();

    void mCallbackToMe_Terminate(const FormTicketRef& ticket, std::int16_t theOutputTemplate) override;
    ComPtr<IDispatch> mCallbackToMe_DefaultOutputTemplate(std::int16_t whichType) override;
    Text mCallbackToMe_getPersistentValue(TextView key) override;
    void mCallbackToMe_setPersistentValue(TextView key, TextView value) override;
    void mCallbackToMe_setParentWidgetsValue(TextView parentVal, TextView secondaryVal) override;
    void mCallbackToMe_TooltipShow(TextView str) override;
    void mCallbackToMe_TooltipHide() override;
    Text mCallbackToMe_WebsiteAddress(TextView fileName) override;
    void mCallbackToMe_ReturnFocus() override;
    IUnknown* owner() override { return this; }

    // Their steps.
    ComPtr<Callback> listenedCallback(FormTicketRef ticket);
    void passThroughSearchComponent();
    bool isSearchForm(const FormRef& form, const Name& procedureName) const;
    bool serves(const FormRef& form, std::int16_t whichType, const Name& procedureName) const;
    void attachHooks(const FormRef& form, IDispatch* parentForm);
    void fill(const FormRequest& request);
    bool hideSearchForm(std::int16_t command);
    FormRef forgetForm();
    void forgetIfGone(const FormRef& form);
    void unload(const FormRef& form, const Name& procedureName) const;

    /// A step that does not keep the next ones from being done.
    template <class Body>
    void attempt(const Name& procedureName, Body&& body) const noexcept;

    float mParentFormHeight = 0;
    bool mDelayUnloading = false;
    HeldObjectRef mCallbackToSubForm;
    HeldObjectRef mSearchFormProxy;
    FormRef mForm;
    std::unique_ptr<MessageHook> mParentHook;
    std::unique_ptr<MessageHook> mPopupHook;
    ComPtr<Callback> mCallbackToMe;
    DeferredEvent mBackgroundEvent{[this] { mBackgroundEvent_PostReturned(); }};

    // What the class keeps for itself, in no report.
    CallbackListener::HandlersRef mHandlers;
    bool mIsHiding = false;
    bool mIsPlacing = false;
    bool mIsSearchComponentTried = false;
    // Of the last search form: whose way out the search component's own `Callback` tells.
    FormTicketRef mSearchTicket = std::make_shared<FormTicket>(FormTicket{true});
};

}  // namespace quorvel::host

#include "host/sub_form_proxy.h"

#include <utility>

#include "core/procedure.h"
#include "host/com/answers.h"
#include "host/com/late_bound_object.h"
#include "host/forms/form_factory.h"

namespace quorvel::host {

namespace {

constexpr wchar_t kSearchComponent[] = L"QuorvelHunt.Main2";
constexpr TextView kNameOfSearchForms = u"SearchForm";

/// The command of `HideForm` that hides the search form whichever form is shown.
constexpr std::int16_t kHideSearchFormToo = 2;
/// What a form says when it goes.
constexpr std::int16_t kFormCloses = 1;

bool isFormCode(std::int16_t code) {
    return code >= 0 && code <= kSearchForm;
}

/// A flag that is up for the length of a step.
class Raised {
public:
    explicit Raised(bool& flag) : mFlag(flag), mBefore(std::exchange(flag, true)) {}
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { mFlag = mBefore; }

private:
    bool& mFlag;
    bool mBefore;
};

std::shared_ptr<HostReference> reported(IDispatch* object) {
    return object != nullptr ? std::make_shared<HostReference>(object) : nullptr;
}

ComPtr<IDispatch> createObject(const wchar_t* className) {
    CLSID clsid = {};
    void* object = nullptr;
    if (FAILED(CLSIDFromProgID(className, &clsid)) ||
        FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, &object))) {
        throw RuntimeError(ErrorNumber::CannotCreateObject);
    }
    return ComPtr<IDispatch>::adopt(static_cast<IDispatch*>(object));
}

}  // namespace

template <class Body>
void SubFormProxy::attempt(const Name& procedureName, Body&& body) const noexcept {
    try {
        body();
    } catch (...) {
        reportCurrentException(*this, procedureName);
    }
}

SubFormProxy::SubFormProxy() : mHandlers(std::make_shared<CallbackHandlers*>(static_cast<CallbackHandlers*>(this))) {
    mCallbackToMe = listenedCallback(nullptr);
}

SubFormProxy::~SubFormProxy() {
    if (const FormRef form = forgetForm()) {
        unload(form, u"Class_Terminate");
        mCallbackToMe_Terminate(form->ticket(), kFormCloses);
    }
    *mHandlers = nullptr;
}

void SubFormProxy::dumpVariables(VBWPROTECTOR& report) const {
    const TraceValue::Object hidden = nullptr;
    report.vbwReportVariable(u"mParentFormHeight", mParentFormHeight);
    report.vbwReportVariable(u"mDelayUnloading", mDelayUnloading);
    report.vbwReportVariable(u"mCallbackToSubForm", mCallbackToSubForm);
    report.vbwReportVariable(u"mSearchFormProxy", mSearchFormProxy);
    report.vbwReportVariable(u"mForm", mForm ? mForm->object() : nullptr);
    report.vbwReportVariable(u"mParentHook", hidden);
    report.vbwReportVariable(u"mPopupHook", hidden);
    report.vbwReportVariable(u"mCallbackToMe", reported(mCallbackToMe.get()));
    report.vbwReportVariable(u"mBackgroundEvent", hidden);
}

STDMETHODIMP SubFormProxy::Initialize(IDispatch* callbackToSubForm, FLOAT parentFormHeight) {
    return call([&] {
        procedure(*this, u"Initialize",
                  {{u"callbackToSubForm", reported(callbackToSubForm)}, {u"parentFormHeight", parentFormHeight}}, [&] {
                      replace(mCallbackToSubForm, HeldObject::of(callbackToSubForm));
                      mParentFormHeight = parentFormHeight;
                  });
    });
}

STDMETHODIMP SubFormProxy::get_hwnd(INT_PTR* result) {
    return call(result,
                [&] { return procedure(*this, u"hwnd[Get]", kNoParameters, [&] { return held(mForm)->hwnd(); }); });
}

STDMETHODIMP SubFormProxy::ShowForm(SHORT targetOutputTemplateInt, BSTR productName, IDispatch* icon,
                                    IDispatch* parentForm, IDispatch* DefaultOutputTemplate,
                                    IDispatch* modelOutputTemplate, BSTR parentText, BSTR secondaryText,
                                    VARIANT_BOOL* result) {
    return call(result, [&] {
        const FormRequest request = {
            targetOutputTemplateInt, view(productName),  icon, parentForm, DefaultOutputTemplate, modelOutputTemplate,
            view(parentText),        view(secondaryText)};
        return procedure(*this, u"ShowForm",
                         {{u"targetOutputTemplateInt", request.type},
                          {u"productName", request.productName},
                          {u"icon", reported(icon)},
                          {u"parentForm", reported(parentForm)},
                          {u"DefaultOutputTemplate", reported(DefaultOutputTemplate)},
                          {u"modelOutputTemplate", reported(modelOutputTemplate)},
                          {u"parentText", request.parentText},
                          {u"secondaryText", request.secondaryText}},
                         [&] { return show(request); });
    });
}

STDMETHODIMP SubFormProxy::removeKeywordFromSearchBox(BSTR keyword) {
    return call([&] {
        procedure(*this, u"removeKeywordFromSearchBox", {{u"keyword", view(keyword)}}, [&] {
            const FormRef form = mForm;
            if (isSearchForm(form, u"removeKeywordFromSearchBox")) {
                form->removeKeywordFromSearchBox(view(keyword));
            }
        });
    });
}

STDMETHODIMP SubFormProxy::get_SearchController(IDispatch** result) {
    return call(result, [&] {
        return procedure(*this, u"SearchController[Get]", kNoParameters, [&]() -> ComPtr<IDispatch> {
            const HeldObjectRef component = SearchFormProxy();
            return component ? objectAnswer(component->get(L"SearchController")) : nullptr;
        });
    });
}

STDMETHODIMP SubFormProxy::HideForm(SHORT command) {
    return call([&] {
        procedure(*this, u"HideForm", {{u"command", static_cast<std::int16_t>(command)}}, [&] {
            if (!mIsHiding) {
                const Raised guard(mIsHiding);
                hide(command);
            }
        });
    });
}

bool SubFormProxy::show(const FormRequest& request) {
    constexpr Name kProcedure = u"ShowForm";
    // Nobody is asked about a code that there is not: it fails below, on the form that is not made.
    if (isFormCode(request.type)) {
        if (request.type != kSearchForm) {
            passThroughSearchComponent();
            if (isSearchForm(mForm, kProcedure)) {
                forgetForm();
            }
        }
        if (mForm && (mDelayUnloading || !serves(mForm, request.type, kProcedure))) {
            HideFormImpl();
            // What the host shows in the middle of that came later, and stays.
            if (mForm && !serves(mForm, request.type, kProcedure)) {
                return false;
            }
        }
        if (mForm) {
            fill(request);
            return true;
        }
    }
    const FormRef made = initForm(request);
    if (object(made).isCompleted() || made != mForm) {
        return false;
    }
    fill(request);
    return false;
}

SubFormProxy::FormRef SubFormProxy::initForm(const FormRequest& request) {
    constexpr Name kProcedure = u"initForm";
    return procedure(*this, kProcedure,
                     {{u"targetOutputTemplate", request.type},
                      {u"productName", request.productName},
                      {u"icon", reported(request.icon)},
                      {u"parentForm", reported(request.parentForm)}},
                     [&]() -> FormRef {
                         FormRef form = buildForm(request.type);
                         if (!form) {
                             return nullptr;
                         }
                         SetFormPosition(form, false);
                         // Unless the host shows another one meanwhile.
                         if (!mForm) {
                             attempt(kProcedure, [&] { form->Initialize(request); });
                         }
                         if (!mForm) {
                             attempt(kProcedure, [&] { form->Show(request.parentForm); });
                         }
                         attachHooks(form, request.parentForm);
                         return form;
                     });
}

SubFormProxy::FormRef SubFormProxy::buildForm(std::int16_t whichType) {
    return procedure(*this, u"buildForm", {{u"whichType", whichType}}, [&]() -> FormRef {
        ComPtr<IDispatch> object;
        if (whichType != kSearchForm) {
            object = makeForm(whichType);
        } else if (const HeldObjectRef component = SearchFormProxy()) {
            object = objectAnswer(component->call(L"getSearchForm"));
        }
        if (!object) {
            return nullptr;
        }
        const auto ticket = std::make_shared<FormTicket>();
        auto form = std::make_shared<ShownForm>(whichType, object.get(), ticket, listenedCallback(ticket));
        if (form->isForeign()) {
            mSearchTicket = ticket;
        }
        return form;
    });
}

HeldObjectRef SubFormProxy::SearchFormProxy() {
    return procedure(*this, u"SearchFormProxy[Get]", kNoParameters, [&] {
        if (!std::exchange(mIsSearchComponentTried, true)) {
            mSearchFormProxy = HeldObject::of(createObject(kSearchComponent).get());
            attempt(u"SearchFormProxy[Get]", [&] {
                const HeldObjectRef component = mSearchFormProxy;
                component->call(L"Initialize", static_cast<IDispatch*>(mCallbackToMe.get()),
                                dispatchOf(mCallbackToSubForm.get()), mParentFormHeight);
            });
        }
        return mSearchFormProxy;
    });
}

void SubFormProxy::SetFormPosition(const FormRef& theForm, bool subFormMoved) {
    procedure(*this, u"SetFormPosition", {{u"theForm", theForm->object()}, {u"subFormMoved", subFormMoved}}, [&] {
        if (!mCallbackToSubForm) {
            return;
        }
        const Raised placing(mIsPlacing);
        Variant reference(theForm->dispatch());
        held(mCallbackToSubForm)->call(L"SetFormPosition", ByReference(reference), subFormMoved);
        theForm->takeBack(reference);
    });
}

void SubFormProxy::hide(std::int16_t command) {
    const bool isSearchHidden = command == kHideSearchFormToo && hideSearchForm(command);
    if (!mForm) {
        return;
    }
    if (!isSearchForm(mForm, u"HideForm")) {
        if (!mDelayUnloading) {
            mBackgroundEvent.post();
            mDelayUnloading = true;
        }
    } else if (isSearchHidden || (command != kHideSearchFormToo && hideSearchForm(command))) {
        held(mCallbackToSubForm)->call(L"HideFormPostProcessing");
    }
}

void SubFormProxy::HideFormImpl() {
    procedure(*this, u"HideFormImpl", kNoParameters, [&] {
        if (const FormRef form = forgetForm()) {
            unload(form, u"HideFormImpl");
        }
        held(mCallbackToSubForm)->call(L"HideFormPostProcessing");
    });
}

void SubFormProxy::AfterMessageImpl(std::int32_t uMsg, LPARAM lParam, bool isPopupForm) {
    constexpr Name kProcedure = u"AfterMessageImpl";
    procedure(*this, kProcedure, {{u"uMsg", uMsg}, {u"lParam", std::intptr_t{lParam}}, {u"isPopupForm", isPopupForm}},
              [&] {
                  if (uMsg == WM_MOVE) {
                      const FormRef form = mForm;
                      SetFormPosition(form, isPopupForm);
                      forgetIfGone(form);
                  } else if (uMsg == WM_GETMINMAXINFO && isPopupForm && isSearchForm(mForm, kProcedure)) {
                      if (const HeldObjectRef component = SearchFormProxy()) {
                          component->call(L"EnforceMinimumFormSize", std::intptr_t{lParam});
                      }
                  }
              });
}

void SubFormProxy::afterMessage(const Name& procedureName, std::int32_t uMsg, WPARAM wParam, LPARAM lParam,
                                bool isPopupForm) {
    // The host places the form itself: it need not be told of that.
    if (uMsg == WM_MOVE && mIsPlacing) {
        return;
    }
    const HostCall bracket(this);
    if (bracket.isRefused()) {
        return;
    }
    procedure(*this, procedureName,
              {{u"uMsg", uMsg}, {u"wParam", static_cast<std::intptr_t>(wParam)}, {u"lParam", std::intptr_t{lParam}}},
              [&] {
                  if (mForm) {
                      AfterMessageImpl(uMsg, lParam, isPopupForm);
                  }
              });
}

void SubFormProxy::mBackgroundEvent_PostReturned() {
    const HostCall bracket(this);
    procedure(*this, u"mBackgroundEvent_PostReturned", {{u"param", TraceValue::Object(nullptr)}}, [&] {
        if (mDelayUnloading) {
            HideFormImpl();
        }
    });
}

void SubFormProxy::mCallbackToMe_Terminate(const FormTicketRef& ticket, std::int16_t theOutputTemplate) {
    // The search component's own callback speaks for the last search form.
    const FormTicketRef leaving = ticket ? ticket : mSearchTicket;
    if (std::exchange(leaving->isCompleted, true)) {
        return;
    }
    procedure(*this, u"mCallbackToMe_Terminate", {{u"theOutputTemplate", theOutputTemplate}}, [&] {
        if (mForm && mForm->ticket() == leaving) {
            mParentHook.reset();
            mPopupHook.reset();
            if (!mDelayUnloading) {
                forgetForm();
            }
        }
        if (mCallbackToSubForm) {
            held(mCallbackToSubForm)->call(L"ProcessSubformWorkCompleted", theOutputTemplate);
        }
    });
}

ComPtr<Callback> SubFormProxy::listenedCallback(FormTicketRef ticket) {
    ComPtr<Callback> callback(new Callback());
    const ComPtr<CallbackListener> listener(new CallbackListener(mHandlers, std::move(ticket)));
    ComPtr<IConnectionPoint> events;
    DWORD cookie = 0;
    if (FAILED(callback->FindConnectionPoint(__uuidof(__Callback), events.receive())) ||
        FAILED(events->Advise(listener.get(), &cookie))) {
        throw RuntimeError(ErrorNumber::OutOfMemory);
    }
    return callback;
}

/// The search component sees each editor form before it is shown, and may leave another one in its place.
void SubFormProxy::passThroughSearchComponent() {
    const HeldObjectRef component = SearchFormProxy();
    if (!component) {
        return;
    }
    attempt(u"ShowForm", [&] {
        const FormRef form = mForm;
        Variant reference(form ? form->dispatch() : nullptr);
        component->call(L"ShowForm", ByReference(reference));
        if (form) {
            form->takeBack(reference);
            forgetIfGone(form);
        } else if (const ComPtr<IDispatch> object = objectAnswer(reference); object && !mForm) {
            mForm = std::make_shared<ShownForm>(kSearchForm, object.get(), mSearchTicket, nullptr);
        }
    });
}

/// A form in whose place the host put Nothing is not shown any more.
void SubFormProxy::forgetIfGone(const FormRef& form) {
    if (form == mForm && !form->object()) {
        forgetForm();
    }
}

/// By its name. A form that came from the search component and does not tell its name is taken for one: it is
/// not ours to unload.
bool SubFormProxy::isSearchForm(const FormRef& form, const Name& procedureName) const {
    // It may be the class' own variable, which the answer may change.
    const FormRef asked = form;  // NOLINT(performance-unnecessary-copy-initialization)
    if (!asked || !asked->isForeign()) {
        return false;
    }
    try {
        return asked->Name() == kNameOfSearchForms;
    } catch (...) {
        reportCurrentException(*this, procedureName);
    }
    return true;
}

/// Whether a form can be used again for a type code.
bool SubFormProxy::serves(const FormRef& form, std::int16_t whichType, const Name& procedureName) const {
    return form->isOfClass(whichType) && (!form->isForeign() || isSearchForm(form, procedureName));
}

/// The form becomes the one that is shown, unless the host has shown another meanwhile: then that one stays and this
/// one goes.
void SubFormProxy::attachHooks(const FormRef& form, IDispatch* parentForm) {
    constexpr Name kProcedure = u"initForm";
    HWND parent = nullptr;
    if (!mForm && parentForm != nullptr) {
        attempt(kProcedure, [&] { parent = windowOf(LateBoundObject(parentForm), L"hWnd"); });
    }
    if (!mForm) {
        attempt(kProcedure, [&] { form->window = reinterpret_cast<HWND>(form->hwnd()); });
    }
    if (mForm) {
        unload(form, kProcedure);
        return;
    }
    if (form->isCompleted() || !form->object()) {
        return;
    }
    mForm = form;
    attempt(kProcedure, [&] {
        const auto hook = [this](const Name& procedureName, bool isPopupForm) {
            return std::make_unique<MessageHook>(
                [=, this](std::int32_t uMsg, WPARAM wParam, LPARAM lParam, LRESULT& /*retValue*/) {
                    afterMessage(procedureName, uMsg, wParam, lParam, isPopupForm);
                });
        };
        mParentHook = hook(u"mParentHook_AfterMessage", false);
        mPopupHook = hook(u"mPopupHook_AfterMessage", true);
        const auto isWatched = [](MessageHook& watching, HWND window) {
            return window == nullptr || watching.attach(window, {WM_MOVE, WM_GETMINMAXINFO});
        };
        const bool isParentWatched = isWatched(*mParentHook, parent);
        if (!isWatched(*mPopupHook, form->window) || !isParentWatched) {
            throw RuntimeError(ErrorNumber::AutomationError);
        }
    });
}

void SubFormProxy::fill(const FormRequest& request) {
    constexpr Name kProcedure = u"ShowForm";
    const FormRef form = mForm;
    const SIZE before = form->size();
    attempt(kProcedure, [&] { form->ParentWidgetChanged(request); });
    const auto isShown = [&] { return !form->isForeign() && form == mForm && !mDelayUnloading; };
    if (!isShown()) {
        return;
    }
    const SIZE after = form->size();
    if (after.cx != before.cx || after.cy != before.cy) {
        SetFormPosition(form, false);
    }
    if (isShown()) {
        attempt(kProcedure, [&] { form->reveal(); });
    }
}

/// @return whether the search component says that its form is hidden
bool SubFormProxy::hideSearchForm(std::int16_t command) {
    bool isHidden = false;
    if (const HeldObjectRef component = SearchFormProxy()) {
        attempt(u"HideForm", [&] { isHidden = flagAnswer(component->call(L"HideForm", command)); });
    }
    return isHidden;
}

/// The proxy is without a form, hooks and pending unload afterwards.
/// @return the form that it had
SubFormProxy::FormRef SubFormProxy::forgetForm() {
    mDelayUnloading = false;
    mBackgroundEvent.cancel();
    mParentHook.reset();
    mPopupHook.reset();
    return std::exchange(mForm, nullptr);
}

/// Closes a form as its close box does. One that said already that it goes does so by itself, and the search form is
/// the search component's.
void SubFormProxy::unload(const FormRef& form, const Name& procedureName) const {
    if (!form->isCompleted() && !isSearchForm(form, procedureName)) {
        attempt(procedureName, [&] { form->Unload(); });
    }
}

}  // namespace quorvel::host

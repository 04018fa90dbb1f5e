#include "editing.h"

namespace sample {

namespace {

constexpr const wchar_t* kProduct = L"Workbench";
constexpr int kTwipsPerInch = 1440;
// Between the window and a form beside it, in pixels.
constexpr int kGap = 8;

int screenDensity() {
    const HDC screen = GetDC(nullptr);
    const int density = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return density;
}

Variant twips(int pixels) {
    return Variant(static_cast<std::int32_t>(MulDiv(pixels, kTwipsPerInch, screenDensity())));
}

int pixels(const Variant& twips) {
    return MulDiv(numberOf(twips), screenDensity(), kTwipsPerInch);
}

RECT workAreaOf(HWND window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

HRESULT doNothing(const Arguments& /*arguments*/, VARIANT& /*result*/) {
    return S_OK;
}

}  // namespace

Editing::Editing(const LateBoundObject& main, HWND window, std::function<void(const std::wstring&)> showHelp)
    : mWindow(window), mProxy(objectOf(main.call(L"buildSubformProxy"))) {
    mOwner->addMethod(L"hWnd", [window](const Arguments& /*arguments*/, VARIANT& result) {
        result = Variant(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window))).release();
        return S_OK;
    });
    mCallback->addMethod(L"SetFormPosition", [this](const Arguments& arguments, VARIANT& /*result*/) {
        place(LateBoundObject(arguments.object(0)), arguments.boolean(1));
        return S_OK;
    });
    mCallback->addMethod(L"setParentWidgetsValue", [this](const Arguments& arguments, VARIANT& /*result*/) {
        // A copy: what it does may show another form.
        const auto accepted = mAccepted;
        if (accepted) accepted({arguments.text(0), arguments.text(1)});
        return S_OK;
    });
    mCallback->addMethod(L"TooltipShow", [showHelp](const Arguments& arguments, VARIANT& /*result*/) {
        showHelp(arguments.text(0));
        return S_OK;
    });
    mCallback->addMethod(L"TooltipHide", [showHelp](const Arguments& /*arguments*/, VARIANT& /*result*/) {
        showHelp(L"");
        return S_OK;
    });
    mCallback->addMethod(L"ReturnFocus", [window](const Arguments& /*arguments*/, VARIANT& /*result*/) {
        SetFocus(window);
        return S_OK;
    });
    mCallback->addMethod(L"ProcessSubformWorkCompleted", [this](const Arguments& /*arguments*/, VARIANT& /*result*/) {
        mIsShown = false;
        return S_OK;
    });
    for (const wchar_t* const member : {L"HideFormPostProcessing", L"DefaultOutputTemplate", L"getPersistentValue",
                                        L"setPersistentValue", L"WebsiteAddress"}) {
        mCallback->addMethod(member, doNothing);
    }
    if (!mProxy) throw ComError{E_NOTIMPL, L"The library is too old: it has no forms."};
    RECT bounds = {};
    GetWindowRect(window, &bounds);
    mProxy.call(L"Initialize", {mCallback.get(), twips(bounds.bottom - bounds.top)});
}

Editing::~Editing() {
    // The library may call while it lets go; what it calls belongs to this object.
    hide();
    mProxy = LateBoundObject();
}

void Editing::show(std::int16_t type, const LateBoundObject& element, const EditedText& text,
                   std::function<void(const EditedText&)> accepted) {
    mAccepted = std::move(accepted);
    mIsShown = true;
    const Variant nothing(static_cast<IDispatch*>(nullptr));
    mProxy.call(L"ShowForm",
                {type, kProduct, nothing, mOwner.get(), element.dispatch(), nothing, text.text, text.secondary});
}

void Editing::hide() {
    constexpr std::int16_t kFormAlone = 1;
    if (mIsShown) mProxy.tryCall(L"HideForm", DISPATCH_METHOD, {kFormAlone});
}

HWND Editing::form() const {
    if (!mIsShown) return nullptr;
    const CallResult handle = mProxy.tryCall(L"hwnd", DISPATCH_PROPERTYGET, {});
    return handle.ok() ? reinterpret_cast<HWND>(static_cast<std::intptr_t>(numberOf(handle.value))) : nullptr;
}

void Editing::place(const LateBoundObject& form, bool isMovedByUser) {
    RECT window = {};
    GetWindowRect(mWindow, &window);
    if (isMovedByUser) {
        mHasPlace = true;
        mPlace = {pixels(form.get(L"Left")) - window.left, pixels(form.get(L"Top")) - window.top};
        return;
    }
    const RECT area = workAreaOf(mWindow);
    const LONG width = pixels(form.get(L"Width"));
    const LONG height = pixels(form.get(L"Height"));
    LONG left = mHasPlace ? window.left + mPlace.x : window.right + kGap;
    LONG top = mHasPlace ? window.top + mPlace.y : window.top;
    // Where there is no room beside the window, the form covers its right edge.
    left = std::max(area.left, std::min(left, area.right - width));
    top = std::max(area.top, std::min(top, area.bottom - height));
    form.call(L"Move", {twips(left), twips(top)});
}

}  // namespace sample

#include "forms/win/form_window.h"

#include <algorithm>
#include <atomic>
#include <mutex>

#include "forms/win/libraries.h"
#include "forms/win/navigation.h"
#include "forms/win/wide.h"

namespace quorvel::forms::win {

namespace {

constexpr wchar_t kClassName[] = L"QuorvelTemplate.Form";
constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;
constexpr UINT kKeepOrder = SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE;

constexpr ControlName kOkButton = u"OkButton";

/// The class of the windows, as long as the library is in use.
struct RegisteredClass {
    std::mutex mutex;
    /// Read by every key and message.
    std::atomic<ATOM> atom = 0;
};

RegisteredClass& registered() {
    static RegisteredClass windowClass;
    return windowClass;
}

HWND toWindow(std::intptr_t handle) {
    return reinterpret_cast<HWND>(handle);
}

std::intptr_t toNumber(HWND window) {
    return reinterpret_cast<std::intptr_t>(window);
}

}  // namespace

bool FormWindow::registerClass() {
    RegisteredClass& known = registered();
    const std::scoped_lock lock(known.mutex);
    if (known.atom == 0) {
        WNDCLASSEXW description = {};
        description.cbSize = sizeof(description);
        description.lpfnWndProc = windowProcedure;
        description.hInstance = thisModule();
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        description.lpszClassName = kClassName;
        known.atom = RegisterClassExW(&description);
    }
    return known.atom != 0;
}

bool FormWindow::unregisterClass() {
    RegisteredClass& known = registered();
    const std::scoped_lock lock(known.mutex);
    if (known.atom != 0 && UnregisterClassW(kClassName, thisModule()) != FALSE) {
        known.atom = 0;
    }
    return known.atom == 0;
}

FormWindow* FormWindow::of(HWND window) {
    // Another thread's window may be gone at any time, but keys and messages are those of this one.
    const ATOM atom = registered().atom;
    return atom != 0 && GetClassLongPtrW(window, GCW_ATOM) == atom
               ? reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA))
               : nullptr;
}

void FormWindow::open() {
    const std::shared_ptr<Form> form = mForm.lock();
    if (!form || !registerClass()) {
        return;
    }
    const VisualStyles styled;
    mHandle = CreateWindowExW(kExtendedStyle, kClassName, wide(form->Caption()), kStyle, 0, 0, 0, 0, nullptr, nullptr,
                              thisModule(), this);
    if (mHandle == nullptr) {
        return;
    }
    mDensity = Density::of(mHandle);
    mFont = Font::of(mDensity);
    mAccessibility.emplace();
    SendMessageW(mHandle, WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
}

void FormWindow::makeChildren() {
    const std::shared_ptr<Form> form = mForm.lock();
    if (!form || mHandle == nullptr) {
        return;
    }
    const VisualStyles styled;
    const Listener listener = {childProcedure, reinterpret_cast<DWORD_PTR>(this)};
    for (Control& control : form->controls()) {
        ChildWindow& child = mChildren.emplace_back(control);
        child.create(mHandle, static_cast<int>(mChildren.size()), *mFont, mDensity, listener);
        if (!control.row().accessibleName.empty()) {
            mAccessibility->setName(child.box(), control.row().accessibleName);
        }
        aspectChanged(control, Aspect::ToolTip);
    }
    emphasizeOk();
}

void FormWindow::close() {
    if (mIsClosed) {
        return;
    }
    mIsClosed = true;
    mKeyboard.reset();
    if (mAccessibility) {
        for (const ChildWindow& child : mChildren) {
            mAccessibility->forget(child.box());
        }
        mAccessibility.reset();
    }
    if (mHandle != nullptr && !mIsBeingDestroyed) {
        giveBackToOwner();
        DestroyWindow(mHandle);
    }
}

DialogUnits FormWindow::dialogUnits() const {
    const SIZE average = mFont ? mFont->average() : SIZE{6, 13};
    return {mDensity.twips(average.cx) / 4, mDensity.twips(average.cy) / 8};
}

Rectangle FormWindow::borders() const {
    // Those that the window has: what the system draws for a density depends on what the host's process knows of it.
    RECT client = {};
    RECT whole = {};
    if (GetClientRect(mHandle, &client) != FALSE && GetWindowRect(mHandle, &whole) != FALSE && client.right > 0 &&
        client.bottom > 0) {
        POINT origin = {};
        ClientToScreen(mHandle, &origin);
        return {mDensity.twips(static_cast<int>(origin.x - whole.left)),
                mDensity.twips(static_cast<int>(origin.y - whole.top)),
                mDensity.twips(static_cast<int>(whole.right - whole.left - client.right)),
                mDensity.twips(static_cast<int>(whole.bottom - whole.top - client.bottom))};
    }
    const RECT frame = mDensity.borders(kStyle, kExtendedStyle);
    return {mDensity.twips(-frame.left), mDensity.twips(-frame.top), mDensity.twips(frame.right - frame.left),
            mDensity.twips(frame.bottom - frame.top)};
}

void FormWindow::aspectChanged(const Control& control, Aspect aspect) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    ChildWindow* const child = find(control);
    if (child == nullptr || mIsClosed) {
        return;
    }
    switch (aspect) {
        case Aspect::Place:
        case Aspect::Visible:
            if (mLayouts == 0) {
                arrange(*child);
            }
            break;
        case Aspect::ToolTip:
            if (mAccessibility && !control.toolTip().empty()) {
                mAccessibility->setHelp(child->box(), control.toolTip());
            }
            break;
        case Aspect::Enabled:
            if (!control.isEnabled()) {
                leave(*child);
            }
            child->show(aspect);
            break;
        case Aspect::Caption:
            child->show(aspect);
            arrange(*child);
            break;
        default: child->show(aspect); break;
    }
}

void FormWindow::arrange(ChildWindow& child) {
    if (child.needsArranging(mDensity)) {
        if (!child.shallBeSeen()) {
            leave(child);
        }
        child.arrange(mDensity, nullptr);
    }
}

void FormWindow::endLayout() {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    if (--mLayouts > 0 || mIsClosed) {
        return;
    }
    if (mChildren.empty()) {
        makeChildren();
        return;
    }
    std::vector<ChildWindow*> moved;
    bool isFrameMoved = false;
    for (ChildWindow& child : mChildren) {
        if (child.needsArranging(mDensity)) {
            moved.push_back(&child);
            isFrameMoved = isFrameMoved || child.control().kind() == ControlKind::Frame;
        }
    }
    for (const ChildWindow* child : moved) {
        if (!child->shallBeSeen()) {
            leave(*child);
        }
    }
    if (mIsClosed || moved.empty()) {
        return;
    }
    HDWP batch = BeginDeferWindowPos(static_cast<int>(moved.size()));
    for (ChildWindow* const child : moved) {
        batch = child->arrange(mDensity, batch);
    }
    if (batch != nullptr) {
        EndDeferWindowPos(batch);
    }
    if (isFrameMoved) {
        // A border leaves nothing behind where it stood.
        InvalidateRect(mHandle, nullptr, TRUE);
    }
}

Rectangle FormWindow::place() const {
    RECT place = {};
    GetWindowRect(mHandle, &place);
    return mDensity.twips(place);
}

void FormWindow::setPlace(const Rectangle& place) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    const RECT pixels = mDensity.pixels(place);
    SetWindowPos(mHandle, nullptr, pixels.left, pixels.top, pixels.right - pixels.left, pixels.bottom - pixels.top,
                 kKeepOrder);
}

void FormWindow::setCaption(TextView caption) {
    const Text text(caption);
    SetWindowTextW(mHandle, wide(text));
}

void FormWindow::setIcon(std::intptr_t icon) {
    // The host's, which keeps it.
    SendMessageW(mHandle, WM_SETICON, ICON_SMALL, icon);
    SendMessageW(mHandle, WM_SETICON, ICON_BIG, icon);
}

void FormWindow::setEnabled(bool isEnabled) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    EnableWindow(mHandle, isEnabled ? TRUE : FALSE);
}

std::intptr_t FormWindow::handle() const {
    return toNumber(mHandle);
}

std::intptr_t FormWindow::handle(const Control& control) const {
    const ChildWindow* const child = find(control);
    return child != nullptr ? toNumber(child->handle()) : 0;
}

void FormWindow::show(std::intptr_t owner) {
    const HWND given = toWindow(owner);
    const HWND root = given != nullptr && IsWindow(given) != FALSE ? GetAncestor(given, GA_ROOT) : nullptr;
    if (mHandle != nullptr && root != mHandle) {
        // For a window without a parent this is its owner.
        SetWindowLongPtrW(mHandle, GWLP_HWNDPARENT, toNumber(root));
    }
}

void FormWindow::reveal(const Control* focus) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    mLastFocused = focus != nullptr ? find(*focus) : nullptr;
    ShowWindow(mHandle, SW_SHOW);
    if (!mIsClosed && isActive() && focused() == nullptr) {
        focusSomewhere();
    }
    // As in any dialog: what is typed now replaces the text.
    if (const ChildWindow* const child = mIsClosed ? nullptr : focused(); child != nullptr) {
        child->markText();
    }
}

void FormWindow::hide() {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    giveBackToOwner();
    ShowWindow(mHandle, SW_HIDE);
}

bool FormWindow::isRevealed() const {
    return mKeyboard.has_value();
}

bool FormWindow::setFocus(const Control& control) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    const ChildWindow* const child = find(control);
    if (child == nullptr || !child->canFocus() || !isRevealed()) {
        return false;
    }
    SetFocus(child->handle());
    return !mIsClosed && child->owns(GetFocus());
}

bool FormWindow::setFocus() {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    if (!isRevealed()) {
        return false;
    }
    SetActiveWindow(mHandle);
    if (!mIsClosed && focused() == nullptr) {
        focusSomewhere();
    }
    return !mIsClosed && isActive();
}

Selection FormWindow::selection(const Control& control) const {
    const ChildWindow* const child = find(control);
    return child != nullptr ? child->selection() : Selection();
}

void FormWindow::setSelection(const Control& control, const Selection& selection) {
    if (const ChildWindow* const child = find(control); child != nullptr) {
        child->setSelection(selection);
    }
}

Text FormWindow::plainText(const Control& control) const {
    const ChildWindow* const child = find(control);
    return child != nullptr ? child->text() : Text();
}

std::intptr_t FormWindow::sendAndKeepCursor(const Control& control, EditMessage message) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    const ChildWindow* const child = find(control);
    if (child == nullptr) {
        return 0;
    }
    const HWND box = child->box();
    const HCURSOR before = GetCursor();
    const LRESULT answer = SendMessageA(box, static_cast<UINT>(message), 0, 0);
    SetCursor(before);
    return answer;
}

bool FormWindow::clipboardHolds(ClipboardFormat format) const {
    return IsClipboardFormatAvailable(static_cast<UINT>(format)) != FALSE;
}

void FormWindow::showMessage(TextView caption, TextView text) {
    const std::shared_ptr<FormWindow> alive = shared_from_this();
    const Text title(caption);
    const Text message(text);
    const VisualStyles styled;
    MessageBoxW(mHandle, wide(message), wide(title), MB_OK | MB_ICONWARNING);
}

// --- Helpers

ChildWindow* FormWindow::find(const Control& control) {
    return const_cast<ChildWindow*>(std::as_const(*this).find(control));
}

const ChildWindow* FormWindow::find(const Control& control) const {
    const auto found = std::find_if(mChildren.begin(), mChildren.end(),
                                    [&](const ChildWindow& child) { return &child.control() == &control; });
    return found != mChildren.end() ? &*found : nullptr;
}

const ChildWindow* FormWindow::find(HWND window) const {
    const auto found = std::find_if(mChildren.begin(), mChildren.end(),
                                    [window](const ChildWindow& child) { return child.owns(window); });
    return found != mChildren.end() ? &*found : nullptr;
}

const ChildWindow* FormWindow::focused() const {
    return find(GetFocus());
}

bool FormWindow::canFocus(const Control& control) const {
    const ChildWindow* const child = find(control);
    return child != nullptr && child->canFocus();
}

bool FormWindow::isActive() const {
    return mHandle != nullptr && GetActiveWindow() == mHandle;
}

std::deque<Control>* FormWindow::controls() const {
    const std::shared_ptr<Form> form = mForm.lock();
    return form ? &form->controls() : nullptr;
}

/// Else the system may activate another program's window when an active one goes.
void FormWindow::giveBackToOwner() const {
    const HWND owner = isActive() ? GetWindow(mHandle, GW_OWNER) : nullptr;
    if (owner != nullptr && IsWindowEnabled(owner) != FALSE) {
        SetActiveWindow(owner);
    }
}

void FormWindow::focusSomewhere() {
    const ChildWindow* target = mLastFocused != nullptr && mLastFocused->canFocus() ? mLastFocused : nullptr;
    if (std::deque<Control>* const all = controls(); target == nullptr && all != nullptr) {
        const Control* const first = nextStop(*all, nullptr, true, [this](const Control& c) { return canFocus(c); });
        target = first != nullptr ? find(*first) : nullptr;
    }
    if (target != nullptr) {
        SetFocus(target->handle());
    }
}

/// The keyboard would be dead in a control that can be typed into no more.
void FormWindow::leave(const ChildWindow& child) {
    std::deque<Control>* const all = controls();
    if (all == nullptr || !child.owns(GetFocus())) {
        return;
    }
    const Control* const next =
        nextStop(*all, &child.control(), true, [this](const Control& control) { return canFocus(control); });
    const ChildWindow* const target = next != nullptr ? find(*next) : nullptr;
    SetFocus(target != nullptr && target != &child ? target->handle() : mHandle);
}

void FormWindow::emphasize(const ChildWindow* button) {
    if (button == mEmphasized) {
        return;
    }
    if (mEmphasized != nullptr) {
        SendMessageW(mEmphasized->handle(), BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    }
    mEmphasized = button;
    if (mEmphasized != nullptr) {
        SendMessageW(mEmphasized->handle(), BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    }
}

void FormWindow::emphasizeOk() {
    const std::shared_ptr<Form> form = mForm.lock();
    const Control* const ok = form ? form->find(kOkButton) : nullptr;
    emphasize(ok != nullptr ? find(*ok) : nullptr);
}

}  // namespace quorvel::forms::win

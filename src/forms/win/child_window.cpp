#include "forms/win/child_window.h"

#include <algorithm>
#include <array>

#include "forms/win/libraries.h"
#include "forms/win/navigation.h"
#include "forms/win/painting.h"
#include "forms/win/rich_text.h"
#include "forms/win/wide.h"

namespace quorvel::forms::win {

namespace {

/// How the window of a kind is made. Options and check boxes do not turn by themselves: the form decides.
struct WindowKind {
    /// Null for rich text, whose class depends on the system.
    const wchar_t* windowClass = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
};

constexpr DWORD kBoxStyle = WS_TABSTOP;

// In the order of the kinds.
constexpr std::array<WindowKind, 10> kKinds = {{
    {L"STATIC", SS_LEFT},
    {L"BUTTON", BS_GROUPBOX | WS_GROUP},
    {L"EDIT", kBoxStyle, WS_EX_CLIENTEDGE},
    {nullptr, ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL, WS_EX_CLIENTEDGE},
    {L"BUTTON", BS_RADIOBUTTON | kBoxStyle},
    {L"BUTTON", BS_CHECKBOX | kBoxStyle},
    {L"BUTTON", BS_PUSHBUTTON | kBoxStyle},
    {L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | kBoxStyle, WS_EX_CLIENTEDGE},
    {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | kBoxStyle},
    {UPDOWN_CLASSW, 0},
}};

// Entries that a combo box shows when it is dropped down.
constexpr int kDroppedEntries = 8;

DWORD styleOf(const ControlRow& row) {
    DWORD style = WS_CHILD | kKinds.at(static_cast<std::size_t>(row.kind)).style;
    switch (row.kind) {
        case ControlKind::TextBox:
            style |= row.isMultiLine ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL : ES_AUTOHSCROLL;
            [[fallthrough]];
        case ControlKind::RichText: style |= row.isReadOnly ? ES_READONLY : kBoxStyle; break;
        case ControlKind::OptionButton:
        case ControlKind::CheckBox: style |= row.isMultiLine ? BS_MULTILINE : 0; break;
        default: break;
    }
    return style;
}

/// A lone line break would be shown as a strange character.
Text withBothLineBreaks(TextView text) {
    Text lines;
    lines.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n') {
            ++at;
        } else if (text[at] != u'\r' && text[at] != u'\n') {
            lines += text[at];
            continue;
        }
        lines += u"\r\n";
    }
    return lines;
}

Text windowText(HWND window) {
    Text text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    const int length = GetWindowTextW(window, buffer(text), static_cast<int>(text.size()));
    text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return text;
}

}  // namespace

class ChildWindow::Writing {
public:
    explicit Writing(ChildWindow& window) : mWindow(window), mBefore(window.mIsBeingWritten) {
        window.mIsBeingWritten = true;
    }
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;
    ~Writing() { mWindow.mIsBeingWritten = mBefore; }

private:
    ChildWindow& mWindow;
    bool mBefore;
};

void ChildWindow::create(HWND form, int number, const Font& font, const Density& density, const Listener& listener) {
    const Writing writing(*this);
    const ControlKind kind = mControl.kind();
    const WindowKind& made = kKinds.at(static_cast<std::size_t>(kind));
    const wchar_t* const windowClass = made.windowClass != nullptr ? made.windowClass : richTextClass();
    if (windowClass == nullptr) {
        return;
    }
    mArrangement = {rectangle(density), shallBeSeen()};
    const RECT& place = mArrangement.place;
    mHandle = CreateWindowExW(
        made.extendedStyle, windowClass, wide(mControl.caption()),
        styleOf(mControl.row()) | (mArrangement.isSeen ? WS_VISIBLE : 0U) | (mControl.isEnabled() ? 0U : WS_DISABLED),
        place.left, place.top, place.right - place.left, place.bottom - place.top, form,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)), thisModule(), nullptr);
    if (mHandle == nullptr) {
        return;
    }
    SetWindowSubclass(mHandle, listener.procedure, static_cast<UINT_PTR>(number), listener.data);
    constexpr LPARAM kLongest = 0;
    switch (kind) {
        case ControlKind::TextBox: SendMessageW(mHandle, EM_SETLIMITTEXT, static_cast<WPARAM>(kLongest), 0); break;
        case ControlKind::RichText: rich_text::prepare(mHandle); break;
        // Else the focus alone would be a click.
        case ControlKind::OptionButton: SendMessageW(mHandle, BM_SETDONTCLICK, TRUE, 0); break;
        case ControlKind::ComboBox: {
            COMBOBOXINFO parts = {};
            parts.cbSize = sizeof(parts);
            if (GetComboBoxInfo(mHandle, &parts) != FALSE && parts.hwndItem != nullptr) {
                mBox = parts.hwndItem;
                SetWindowSubclass(mBox, listener.procedure, static_cast<UINT_PTR>(number), listener.data);
            }
            SendMessageW(mHandle, CB_LIMITTEXT, 0, 0);
            break;
        }
        case ControlKind::UpDown: {
            // A range of its own, so that up is up; the form counts, one step a click.
            UDACCEL steps = {0, 1};
            SendMessageW(mHandle, UDM_SETRANGE32, static_cast<WPARAM>(-1), 1);
            SendMessageW(mHandle, UDM_SETACCEL, 1, reinterpret_cast<LPARAM>(&steps));
            break;
        }
        default: break;
    }
    setFont(font, density);
    for (const Aspect aspect : {Aspect::Items, Aspect::Text, Aspect::Value}) {
        show(aspect);
    }
    if (kind == ControlKind::ComboBox) {
        fitToLine(density);
    }
}

void ChildWindow::forget(HWND window) {
    if (window == mHandle) {
        mHandle = nullptr;
        mBox = nullptr;
    } else if (window == mBox) {
        mBox = nullptr;
    }
}

bool ChildWindow::canFocus() const {
    return mHandle != nullptr && takesFocus(mControl) && mControl.isShown() && mControl.isEnabled();
}

bool ChildWindow::isDroppedDown() const {
    return mControl.kind() == ControlKind::ComboBox && SendMessageW(mHandle, CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

void ChildWindow::show(Aspect aspect) {
    if (mHandle == nullptr) {
        return;
    }
    const Writing writing(*this);
    const ControlKind kind = mControl.kind();
    switch (aspect) {
        case Aspect::Caption:
            if (kind == ControlKind::Label || kind == ControlKind::Frame || kind == ControlKind::OptionButton ||
                kind == ControlKind::CheckBox || kind == ControlKind::Button) {
                SetWindowTextW(mHandle, wide(mControl.caption()));
            }
            break;
        case Aspect::Text: showText(); break;
        case Aspect::Value:
            if ((kind == ControlKind::OptionButton || kind == ControlKind::CheckBox) &&
                mControl.value() != (SendMessageW(mHandle, BM_GETCHECK, 0, 0) == BST_CHECKED)) {
                SendMessageW(mHandle, BM_SETCHECK, mControl.value() ? BST_CHECKED : BST_UNCHECKED, 0);
            }
            break;
        case Aspect::Enabled: EnableWindow(mHandle, mControl.isEnabled() ? TRUE : FALSE); break;
        case Aspect::ForeColor: InvalidateRect(mHandle, nullptr, TRUE); break;
        case Aspect::Items: showItems(); break;
        case Aspect::Visible:
        case Aspect::Place:
        case Aspect::ToolTip: break;
    }
}

void ChildWindow::showText() {
    switch (mControl.kind()) {
        case ControlKind::RichText: {
            const bool isDocument = !mControl.rtf().empty();
            const Text plain = isDocument ? Text() : mControl.text();
            if (isDocument || plain != rich_text::plainText(mHandle)) {
                rich_text::show(mHandle, isDocument ? mControl.rtf() : plain, mControl.row().isReadOnly);
            }
            break;
        }
        case ControlKind::TextBox:
        case ControlKind::ComboBox: {
            const Text text = mControl.row().isMultiLine ? withBothLineBreaks(mControl.text()) : Text(mControl.text());
            if (text != windowText(mHandle)) {
                // Where the user types, the caret stays; elsewhere a text is shown from its beginning.
                const Selection before = selection();
                SetWindowTextW(mHandle, wide(text));
                if (GetFocus() == box()) {
                    const auto end = static_cast<std::int32_t>(text.size());
                    setSelection({std::min(before.start + before.length, end), 0});
                }
            }
            break;
        }
        default: break;
    }
}

void ChildWindow::showItems() {
    const bool isCombo = mControl.kind() == ControlKind::ComboBox;
    if (!isCombo && mControl.kind() != ControlKind::ListBox) {
        return;
    }
    const std::vector<Text>& wanted = mControl.items();
    const auto same = static_cast<std::size_t>(
        std::mismatch(mEntries.begin(), mEntries.end(), wanted.begin(), wanted.end()).first - mEntries.begin());
    const bool isChanged = same != mEntries.size() || same != wanted.size();
    if (isChanged) {
        const WithoutPainting unpainted(mHandle);
        for (std::size_t last = mEntries.size(); last > same; --last) {
            SendMessageW(mHandle, isCombo ? CB_DELETESTRING : LB_DELETESTRING, last - 1, 0);
        }
        for (std::size_t next = same; next < wanted.size(); ++next) {
            SendMessageW(mHandle, isCombo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                         reinterpret_cast<LPARAM>(wide(wanted[next])));
        }
        mEntries = wanted;
    }
    const auto selected = static_cast<LRESULT>(mControl.listIndex());
    if (SendMessageW(mHandle, isCombo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0) != selected) {
        SendMessageW(mHandle, isCombo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
    }
    if (isCombo) {
        showText();
    }
}

Text ChildWindow::text() const {
    if (mHandle == nullptr) {
        return {};
    }
    return mControl.kind() == ControlKind::RichText ? rich_text::plainText(mHandle) : windowText(mHandle);
}

RECT ChildWindow::rectangle(const Density& density) const {
    RECT place = density.pixels(mControl.place());
    if (mControl.kind() == ControlKind::ComboBox) {
        // Its height is that of the list when it is dropped down.
        place.bottom += kDroppedEntries * static_cast<LONG>(SendMessageW(mHandle, CB_GETITEMHEIGHT, 0, 0));
    }
    return place;
}

bool ChildWindow::shallBeSeen() const {
    // A frame without a caption has no border.
    return mControl.isShown() && (mControl.kind() != ControlKind::Frame || !mControl.caption().empty());
}

/// A combo box is as high as its font, unless it is told a height for its field; what it adds to that is seen by
/// trying.
void ChildWindow::fitToLine(const Density& density) const {
    constexpr auto kField = static_cast<WPARAM>(-1);
    const RECT line = density.pixels(mControl.place());
    const LONG wanted = line.bottom - line.top;
    SendMessageW(mHandle, CB_SETITEMHEIGHT, kField, wanted);
    RECT closed = {};
    GetWindowRect(mHandle, &closed);
    const LONG added = closed.bottom - closed.top - wanted;
    if (added < wanted) {
        SendMessageW(mHandle, CB_SETITEMHEIGHT, kField, wanted - added);
    }
}

bool ChildWindow::needsArranging(const Density& density) const {
    const RECT place = rectangle(density);
    return mHandle != nullptr &&
           (EqualRect(&place, &mArrangement.place) == FALSE || shallBeSeen() != mArrangement.isSeen);
}

HDWP ChildWindow::arrange(const Density& density, HDWP batch) {
    if (mControl.kind() == ControlKind::ComboBox) {
        fitToLine(density);
    }
    mArrangement = {rectangle(density), shallBeSeen()};
    const RECT& place = mArrangement.place;
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const UINT flags =
        SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE | (mArrangement.isSeen ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    if (batch != nullptr) {
        // Without memory for it the batch is lost, and each window goes alone.
        if (const HDWP next = DeferWindowPos(batch, mHandle, nullptr, place.left, place.top, width, height, flags);
            next != nullptr) {
            return next;
        }
    }
    SetWindowPos(mHandle, nullptr, place.left, place.top, width, height, flags);
    return nullptr;
}

void ChildWindow::setFont(const Font& font, const Density& density) {
    if (mHandle == nullptr) {
        return;
    }
    const Writing writing(*this);
    if (mControl.kind() != ControlKind::RichText) {
        SendMessageW(mHandle, WM_SETFONT, reinterpret_cast<WPARAM>(font.handle()), FALSE);
        return;
    }
    rich_text::setDensity(mHandle, density);
    if (!mControl.rtf().empty()) {
        // What was measured before does not change with the density everywhere.
        rich_text::show(mHandle, mControl.rtf(), mControl.row().isReadOnly);
    }
}

Selection ChildWindow::selection() const {
    DWORD start = 0;
    DWORD end = 0;
    switch (mControl.kind()) {
        case ControlKind::RichText: return rich_text::selection(mHandle);
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
            SendMessageW(mHandle, mControl.kind() == ControlKind::TextBox ? EM_GETSEL : CB_GETEDITSEL,
                         reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
            return {static_cast<std::int32_t>(start), static_cast<std::int32_t>(end - start)};
        default: return {};
    }
}

void ChildWindow::setSelection(const Selection& selection) const {
    switch (mControl.kind()) {
        case ControlKind::RichText: rich_text::setSelection(mHandle, selection); break;
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
            SendMessageW(box(), EM_SETSEL, static_cast<WPARAM>(selection.start), selection.start + selection.length);
            break;
        default: break;
    }
}

void ChildWindow::selectAll() const {
    if (mControl.kind() == ControlKind::TextBox || mControl.kind() == ControlKind::ComboBox) {
        SendMessageW(box(), EM_SETSEL, 0, -1);
    }
}

void ChildWindow::markText() const {
    if (!mControl.row().isMultiLine) {
        selectAll();
    }
}

}  // namespace quorvel::forms::win

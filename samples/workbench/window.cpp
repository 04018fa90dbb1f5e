#include "window.h"

#include <commctrl.h>
#include <commdlg.h>
#include <richedit.h>

#include <algorithm>
#include <iterator>

#include "commands.h"
#include "data/data_file.h"
#include "text/rtf.h"
#include "text/text_io.h"

namespace sample {

namespace {

constexpr const wchar_t* kClass = L"QuorvelTemplateWorkbench";
constexpr const wchar_t* kName = L"Workbench";
constexpr const wchar_t* kListings[] = {L"Reference list", L"Notes", L"Citations"};

constexpr int kGap = 6;
constexpr int kBarHeight = 26;
constexpr int kDefaultWidth = 900;
constexpr int kDefaultHeight = 680;
// Of 100: the upper half's share of the height, the references' of the width, the trace's of the lower half.
constexpr int kUpperShare = 46;
constexpr int kLeftShare = 58;
constexpr int kTraceShare = 45;

struct Column {
    const wchar_t* caption;
    int width;
};
constexpr Column kReferenceColumns[] = {{L"Author", 170}, {L"Title", 250}, {L"Year", 70}};
constexpr Column kFieldColumns[] = {{L"Field", 110}, {L"Text", 250}};

constexpr const wchar_t* kFileFilter = L"References (*.txt)\0*.txt\0All files\0*.*\0";

/// The field in which a person's second text puts a name.
struct RoleField {
    const wchar_t* type;
    const wchar_t* field;
};
constexpr RoleField kRoleFields[] = {
    {L"Editor", L"editor"}, {L"Translator", L"translator"}, {L"Compiler", L"compiler"}};

// The notes form edits whatever has no element of its own.
constexpr std::int16_t kNotesForm = 18;
constexpr std::int16_t kEditors = 9;

void setCell(HWND list, int row, int column, const std::wstring& text) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    if (column == 0) {
        SendMessageW(list, row < ListView_GetItemCount(list) ? LVM_SETITEMW : LVM_INSERTITEMW, 0,
                     reinterpret_cast<LPARAM>(&item));
    } else {
        SendMessageW(list, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

template <std::size_t N>
void makeColumns(HWND list, const Column (&columns)[N], int density) {
    for (std::size_t i = 0; i < N; ++i) {
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = const_cast<wchar_t*>(columns[i].caption);
        column.cx = MulDiv(columns[i].width, density, USER_DEFAULT_SCREEN_DPI);
        SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT);
}

std::wstring askForFile(HWND owner, const std::filesystem::path& file, bool isSaving) {
    std::wstring buffer = file.wstring();
    buffer.resize(std::max<std::size_t>(buffer.size() + 1, 4096));
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = kFileFilter;
    dialog.lpstrFile = buffer.data();
    dialog.nMaxFile = static_cast<DWORD>(buffer.size());
    dialog.lpstrDefExt = L"txt";
    dialog.Flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | (isSaving ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const bool isChosen = (isSaving ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog)) != FALSE;
    return isChosen ? std::wstring(buffer.c_str()) : std::wstring();
}

void putOnClipboard(UINT format, const void* data, std::size_t size) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr) return;
    std::copy_n(static_cast<const char*>(data), size, static_cast<char*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    if (SetClipboardData(format, memory) == nullptr) GlobalFree(memory);
}

std::wstring onOneLine(std::wstring text) {
    std::replace_if(
        text.begin(), text.end(), [](wchar_t unit) { return unit == L'\r' || unit == L'\n'; }, L' ');
    return std::wstring(trimmed(text));
}

}  // namespace

WorkbenchWindow::WorkbenchWindow(const LateBoundObject& main, Document& document) : mDocument(document) {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&controls);
    // It registers the class of rich-text controls.
    LoadLibraryW(L"msftedit.dll");
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = kClass;
    RegisterClassExW(&description);
    CreateWindowExW(WS_EX_CONTROLPARENT, kClass, kName, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                    CW_USEDEFAULT, kDefaultWidth, kDefaultHeight, nullptr, nullptr, description.hInstance, this);
    if (mWindow == nullptr) throw ComError{HRESULT_FROM_WIN32(GetLastError()), L"The window cannot be made."};
    mEditing = std::make_unique<Editing>(main, mWindow, [this](const std::wstring& text) { say(text); });
    mTracePane = std::make_unique<TracePane>(part(kTrace));
    mKeys = CreateAcceleratorTableW(const_cast<ACCEL*>(kKeys), static_cast<int>(std::size(kKeys)));
    chooseStyle(static_cast<std::size_t>(std::clamp(mSettings.number(L"Style", 0), 0, 3)));
    chooseListing(static_cast<Listing>(std::clamp(mSettings.number(L"Listing", 0), 0, 2)));
    showTrace(mSettings.number(L"Trace", 0) != 0);
    showReferences();
}

WorkbenchWindow::~WorkbenchWindow() {
    mTracePane.reset();
    mEditing.reset();
    if (mWindow != nullptr) DestroyWindow(mWindow);
    if (mKeys != nullptr) DestroyAcceleratorTable(mKeys);
    if (mFont != nullptr) DeleteObject(mFont);
    UnregisterClassW(kClass, GetModuleHandleW(nullptr));
}

void WorkbenchWindow::run() {
    restorePlace();
    mLastFocus = part(kReferences);
    SetFocus(mLastFocus);
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        const bool isOurs = message.hwnd == mWindow || IsChild(mWindow, message.hwnd) != FALSE;
        if (isOurs && mWindow != nullptr &&
            (TranslateAcceleratorW(mWindow, mKeys, &message) != 0 || IsDialogMessageW(mWindow, &message) != FALSE)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

LRESULT CALLBACK WorkbenchWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const self =
            static_cast<WorkbenchWindow*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        self->mWindow = window;
    }
    auto* const self = reinterpret_cast<WorkbenchWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self != nullptr) {
        if (const std::optional<LRESULT> answer = self->handle(message, wParam, lParam); answer) return *answer;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> WorkbenchWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr int kLeastWidth = 520;
    constexpr int kLeastHeight = 360;
    switch (message) {
        case WM_CREATE:
            makeMenu();
            makeParts();
            useFont();
            return 0;
        case WM_SIZE: arrange(); return 0;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {scaled(kLeastWidth), scaled(kLeastHeight)};
            return 0;
        case WM_DPICHANGED: {
            mDensity = HIWORD(wParam);
            useFont();
            const auto* const place = reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(mWindow, nullptr, place->left, place->top, place->right - place->left,
                         place->bottom - place->top, SWP_NOZORDER | SWP_NOACTIVATE);
            return 0;
        }
        case WM_NOTIFY: return notified(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_COMMAND:
            if (lParam == 0) {
                carryOut(LOWORD(wParam));
            } else if (HIWORD(wParam) == CBN_SELCHANGE) {
                const auto chosen = SendMessageW(reinterpret_cast<HWND>(lParam), CB_GETCURSEL, 0, 0);
                if (reinterpret_cast<HWND>(lParam) == part(kStyle)) chooseStyle(static_cast<std::size_t>(chosen));
                if (reinterpret_cast<HWND>(lParam) == part(kListing)) chooseListing(static_cast<Listing>(chosen));
            }
            return 0;
        case WM_ACTIVATE:
            // Back from a form, the keys go on where they were.
            if (LOWORD(wParam) == WA_INACTIVE) mLastFocus = GetFocus();
            return std::nullopt;
        case WM_SETFOCUS:
            if (IsChild(mWindow, mLastFocus) != FALSE) SetFocus(mLastFocus);
            return 0;
        case WM_TIMER: mTracePane->refresh(); return 0;
        case WM_CLOSE:
            if (mayClose()) {
                saveSettings();
                mEditing->hide();
                DestroyWindow(mWindow);
            }
            return 0;
        case WM_DESTROY:
            mWindow = nullptr;
            PostQuitMessage(0);
            return 0;
        default: return std::nullopt;
    }
}

LRESULT WorkbenchWindow::notified(const NMHDR& header) {
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    if (header.hwndFrom == part(kReferences) && header.code == static_cast<UINT>(LVN_ITEMCHANGED) && !mIsFilling &&
        (change.uNewState & LVIS_SELECTED) != 0) {
        mReference = static_cast<std::size_t>(change.iItem);
        showFields();
    }
    const bool isChosen = header.code == static_cast<UINT>(NM_CLICK) || header.code == static_cast<UINT>(NM_RETURN);
    if (header.hwndFrom == part(kFields) && isChosen) editField();
    return 0;
}

void WorkbenchWindow::makeMenu() {
    mMenu = CreateMenu();
    HMENU menu = nullptr;
    for (const MenuEntry& entry : kMenu) {
        if (entry.command == 0 && *entry.caption != L'\0') {
            menu = CreatePopupMenu();
            AppendMenuW(mMenu, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), entry.caption);
        } else {
            AppendMenuW(menu, entry.command == 0 ? MF_SEPARATOR : MF_STRING, entry.command, entry.caption);
        }
    }
    for (std::size_t i = 0; i < mDocument.styles().size(); ++i) {
        const std::wstring caption = mDocument.styles()[i].manual + L"\tCtrl+" + std::to_wstring(i + 1);
        AppendMenuW(menu, MF_STRING, kFirstStyle + i, caption.c_str());
    }
    SetMenu(mWindow, mMenu);
}

void WorkbenchWindow::makeParts() {
    struct Row {
        Part part;
        const wchar_t* className;
        const wchar_t* caption;
        DWORD style;
        DWORD edge;
    };
    constexpr DWORD kCombo = CBS_DROPDOWNLIST | WS_TABSTOP | WS_VSCROLL;
    constexpr DWORD kList = LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP;
    constexpr DWORD kText = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP;
    constexpr Row kRows[] = {
        {kStyleLabel, L"STATIC", L"St&yle:", SS_CENTERIMAGE, 0},
        {kStyle, L"COMBOBOX", L"", kCombo, 0},
        {kListingLabel, L"STATIC", L"S&how:", SS_CENTERIMAGE, 0},
        {kListing, L"COMBOBOX", L"", kCombo, 0},
        {kReferences, WC_LISTVIEWW, L"References", kList, WS_EX_CLIENTEDGE},
        {kFields, WC_LISTVIEWW, L"Fields", kList, WS_EX_CLIENTEDGE},
        {kPreview, L"RICHEDIT50W", L"Preview", kText, WS_EX_CLIENTEDGE},
        {kTrace, L"EDIT", L"", kText, WS_EX_CLIENTEDGE},
        {kStatus, STATUSCLASSNAMEW, L"", SBARS_SIZEGRIP, 0},
    };
    for (const Row& row : kRows) {
        const DWORD visible = row.part == kTrace ? 0 : WS_VISIBLE;
        mParts[row.part] = CreateWindowExW(row.edge, row.className, row.caption, WS_CHILD | visible | row.style, 0, 0,
                                           0, 0, mWindow, nullptr, GetModuleHandleW(nullptr), nullptr);
    }
    makeColumns(part(kReferences), kReferenceColumns, mDensity);
    makeColumns(part(kFields), kFieldColumns, mDensity);
    for (const Style& style : mDocument.styles()) {
        SendMessageW(part(kStyle), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(style.manual.c_str()));
    }
    for (const wchar_t* const listing : kListings) {
        SendMessageW(part(kListing), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(listing));
    }
    constexpr LPARAM kNoLimit = 0x7FFFFFFE;
    SendMessageW(part(kPreview), EM_EXLIMITTEXT, 0, kNoLimit);
    SendMessageW(part(kTrace), EM_SETLIMITTEXT, kNoLimit, 0);
}

void WorkbenchWindow::useFont() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HDC screen = GetDC(nullptr);
    metrics.lfMessageFont.lfHeight =
        MulDiv(metrics.lfMessageFont.lfHeight, mDensity, GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    const HFONT old = mFont;
    mFont = CreateFontIndirectW(&metrics.lfMessageFont);
    for (const HWND child : mParts) SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(mFont), TRUE);
    if (old != nullptr) DeleteObject(old);
}

void WorkbenchWindow::arrange() {
    RECT client = {};
    GetClientRect(mWindow, &client);
    SendMessageW(part(kStatus), WM_SIZE, 0, 0);
    RECT status = {};
    GetWindowRect(part(kStatus), &status);
    const int gap = scaled(kGap);
    const int bar = scaled(kBarHeight);
    const int width = client.right - 2 * gap;
    const int top = gap + bar + gap;
    const int height = client.bottom - (status.bottom - status.top) - top;
    const int upper = height * kUpperShare / 100;
    const int left = width * kLeftShare / 100;
    const bool hasTrace = IsWindowVisible(part(kTrace)) != FALSE;
    const int lower = height - upper - 2 * gap;
    const int trace = hasTrace ? lower * kTraceShare / 100 : 0;
    const auto place = [&](Part which, int x, int y, int w, int h) { MoveWindow(part(which), x, y, w, h, TRUE); };
    constexpr int kLabel = 40;
    constexpr int kStyleBox = 300;
    constexpr int kListingBox = 130;
    constexpr int kDropDown = 200;
    int x = gap;
    place(kStyleLabel, x, gap, scaled(kLabel), bar);
    place(kStyle, x += scaled(kLabel), gap, scaled(kStyleBox), scaled(kDropDown));
    place(kListingLabel, x += scaled(kStyleBox) + 2 * gap, gap, scaled(kLabel), bar);
    place(kListing, x += scaled(kLabel), gap, scaled(kListingBox), scaled(kDropDown));
    place(kReferences, gap, top, left, upper);
    place(kFields, gap + left + gap, top, width - left - gap, upper);
    place(kPreview, gap, top + upper + gap, width, lower - trace - (hasTrace ? gap : 0));
    place(kTrace, gap, top + upper + gap + lower - trace, width, trace);
}

void WorkbenchWindow::restorePlace() {
    const int width = mSettings.number(L"Width", kDefaultWidth);
    const int height = mSettings.number(L"Height", kDefaultHeight);
    constexpr int kNone = -32000;
    const int left = mSettings.number(L"Left", kNone);
    const UINT moving = left == kNone ? SWP_NOMOVE : 0;
    SetWindowPos(mWindow, nullptr, left, mSettings.number(L"Top", 0), width, height, SWP_NOZORDER | moving);
    ShowWindow(mWindow, mSettings.number(L"Maximized", 0) != 0 ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
}

void WorkbenchWindow::saveSettings() {
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    GetWindowPlacement(mWindow, &place);
    const RECT& window = place.rcNormalPosition;
    mSettings.set(L"Left", window.left);
    mSettings.set(L"Top", window.top);
    mSettings.set(L"Width", window.right - window.left);
    mSettings.set(L"Height", window.bottom - window.top);
    mSettings.set(L"Maximized", place.showCmd == SW_SHOWMAXIMIZED ? 1 : 0);
    mSettings.set(L"Style", static_cast<int>(mDocument.style()));
    mSettings.set(L"Listing", static_cast<int>(mDocument.listing()));
    mSettings.set(L"Trace", IsWindowVisible(part(kTrace)) != FALSE ? 1 : 0);
}

void WorkbenchWindow::tried(const std::function<void()>& action) {
    try {
        action();
    } catch (const ComError& error) {
        MessageBoxW(mWindow, error.message.c_str(), kName, MB_OK | MB_ICONWARNING);
    }
}

void WorkbenchWindow::carryOut(WORD command) {
    switch (command) {
        case kOpen:
            if (mayClose()) open(askForFile(mWindow, mDocument.file(), false));
            break;
        case kSave: save(false); break;
        case kSaveAs: save(true); break;
        case kExit: SendMessageW(mWindow, WM_CLOSE, 0, 0); break;
        case kUndo: undo(); break;
        case kEditField: editField(); break;
        case kCopyRtf: copyAsRtf(); break;
        case kShowTrace: showTrace(IsWindowVisible(part(kTrace)) == FALSE); break;
        case kShowList: chooseListing(Listing::kList); break;
        case kShowNotes: chooseListing(Listing::kNotes); break;
        case kShowCitations: chooseListing(Listing::kCitations); break;
        default:
            if (command >= kFirstStyle) chooseStyle(static_cast<std::size_t>(command - kFirstStyle));
            break;
    }
}

void WorkbenchWindow::open(const std::wstring& file) {
    if (file.empty()) return;
    mEditing->hide();
    tried([&] { mDocument.open(file); });
    mReference = 0;
    showReferences();
    showPreview();
}

bool WorkbenchWindow::save(bool isAs) {
    const std::wstring file = isAs ? askForFile(mWindow, mDocument.file(), true) : mDocument.file().wstring();
    if (!file.empty()) tried([&] { mDocument.save(file); });
    showTitle();
    return !mDocument.isChanged();
}

bool WorkbenchWindow::mayClose() {
    if (!mDocument.isChanged()) return true;
    const int answer =
        MessageBoxW(mWindow, L"The references have changed. Save them?", kName, MB_YESNOCANCEL | MB_ICONQUESTION);
    return answer == IDNO || (answer == IDYES && save(false));
}

void WorkbenchWindow::chooseStyle(std::size_t style) {
    mEditing->hide();
    tried([&] { mDocument.setStyle(style); });
    SendMessageW(part(kStyle), CB_SETCURSEL, style, 0);
    CheckMenuRadioItem(mMenu, kFirstStyle, static_cast<UINT>(kFirstStyle + mDocument.styles().size() - 1),
                       static_cast<UINT>(kFirstStyle + style), MF_BYCOMMAND);
    showPreview();
}

void WorkbenchWindow::chooseListing(Listing listing) {
    mDocument.setListing(listing);
    SendMessageW(part(kListing), CB_SETCURSEL, static_cast<WPARAM>(listing), 0);
    CheckMenuRadioItem(mMenu, kShowList, kShowCitations, static_cast<UINT>(kShowList + static_cast<int>(listing)),
                       MF_BYCOMMAND);
    showPreview();
}

void WorkbenchWindow::undo() {
    if (!mDocument.canUndo()) return;
    mReference = mDocument.undo();
    showReferences();
    showPreview();
}

void WorkbenchWindow::editField() {
    const int row = ListView_GetNextItem(part(kFields), -1, LVNI_SELECTED);
    if (row < 0 || mDocument.references().empty()) return;
    const std::size_t reference = mReference;
    const Field& field = *mDocument.fieldsOf(reference)[static_cast<std::size_t>(row)];
    tried([&] {
        const LateBoundObject element = mDocument.element(field);
        EditedText text = {mDocument.references()[reference].text(field), L""};
        for (const RoleField& role : kRoleFields) {
            if (std::wstring_view(role.field) == field.name) text.secondary = role.type;
        }
        mEditing->show(element ? field.elementCode : kNotesForm, element, text,
                       [this, reference, &field](const EditedText& accepted) { accept(reference, field, accepted); });
    });
}

void WorkbenchWindow::accept(std::size_t reference, const Field& field, const EditedText& text) {
    const Field* target = &field;
    for (const RoleField& role : kRoleFields) {
        // Editors that are translators now stand in another field.
        if (field.elementCode == kEditors && text.secondary == role.type) target = findField(role.field);
    }
    if (target != &field) mDocument.change(reference, field, L"");
    mDocument.change(reference, *target, onOneLine(text.text));
    showReference(reference);
    if (reference == mReference) showFields();
    showPreview();
}

void WorkbenchWindow::copyAsRtf() {
    if (OpenClipboard(mWindow) == FALSE) return;
    EmptyClipboard();
    putOnClipboard(RegisterClipboardFormatW(L"Rich Text Format"), mRtf.c_str(), mRtf.size() + 1);
    std::wstring plain;
    tried([&] { plain = plainText(mDocument.written()); });
    putOnClipboard(CF_UNICODETEXT, plain.c_str(), (plain.size() + 1) * sizeof(wchar_t));
    CloseClipboard();
    say(L"The references are on the clipboard, as rich and as plain text.");
}

void WorkbenchWindow::showTrace(bool isShown) {
    ShowWindow(part(kTrace), isShown ? SW_SHOW : SW_HIDE);
    tried([&] { mTracePane->listen(isShown); });
    constexpr UINT kRefreshEvery = 300;
    if (isShown)
        SetTimer(mWindow, 1, kRefreshEvery, nullptr);
    else
        KillTimer(mWindow, 1);
    CheckMenuItem(mMenu, kShowTrace, MF_BYCOMMAND | (isShown ? MF_CHECKED : MF_UNCHECKED));
    arrange();
}

void WorkbenchWindow::showReferences() {
    const HWND list = part(kReferences);
    mIsFilling = true;
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(list);
    for (std::size_t i = 0; i < mDocument.references().size(); ++i) showReference(i);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    ListView_SetItemState(list, static_cast<int>(mReference), LVIS_SELECTED | LVIS_FOCUSED,
                          LVIS_SELECTED | LVIS_FOCUSED);
    ListView_EnsureVisible(list, static_cast<int>(mReference), FALSE);
    mIsFilling = false;
    showFields();
}

void WorkbenchWindow::showReference(std::size_t row) {
    const std::wstring cells[] = {mDocument.author(row), mDocument.title(row), mDocument.year(row)};
    int column = 0;
    for (const std::wstring& cell : cells) setCell(part(kReferences), static_cast<int>(row), column++, cell);
}

void WorkbenchWindow::showFields() {
    const HWND list = part(kFields);
    const int selected = ListView_GetNextItem(list, -1, LVNI_SELECTED);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    ListView_DeleteAllItems(list);
    if (mReference < mDocument.references().size()) {
        int row = 0;
        for (const Field* const field : mDocument.fieldsOf(mReference)) {
            setCell(list, row, 0, field->name);
            setCell(list, row++, 1, mDocument.references()[mReference].text(*field));
        }
    }
    ListView_SetItemState(list, std::max(selected, 0), LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void WorkbenchWindow::showPreview() {
    tried([&] {
        mRtf = rtfDocument(rtfParagraphs(mDocument.styles()[mDocument.style()].manual, mDocument.written()));
        SETTEXTEX how = {ST_DEFAULT, CP_ACP};
        SendMessageW(part(kPreview), EM_SETTEXTEX, reinterpret_cast<WPARAM>(&how),
                     reinterpret_cast<LPARAM>(mRtf.c_str()));
    });
    showTitle();
}

void WorkbenchWindow::showTitle() {
    const std::wstring title =
        (mDocument.isChanged() ? L"*" : L"") + mDocument.file().filename().wstring() + L" - " + kName;
    SetWindowTextW(mWindow, title.c_str());
}

void WorkbenchWindow::say(const std::wstring& text) {
    SetWindowTextW(part(kStatus), text.c_str());
}

}  // namespace sample

// A writer's session in the workbench, with real keys and clicks: fields are opened in their forms, changed, written in
// another style, taken back and saved. What came of it is read from the clipboard and from the file.

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

namespace {

constexpr DWORD kPatience = 20000;

constexpr const char* kReferences =
    "id: franke\nkind: book\nauthor: Franke, Damon\ntitle: Modernist Heresies: British Literary History\n"
    "edition: 2nd ed.\nyear: 2008\nplace: Columbus\npublisher: Ohio State University Press\nmedium: Print\n\n"
    "id: gold\nkind: journal\nauthor: Gold, Anna\ntitle: Some Letters\ncontainer: Modern Prose\nvolume: 12\n"
    "issue: 3\nyear: 1999\npage: 12-25\nmedium: Print\n";

bool eventually(const std::function<bool()>& condition) {
    for (DWORD waited = 0; waited < kPatience; waited += 20) {
        if (condition()) return true;
        Sleep(20);
    }
    return condition();
}

void send(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
    Sleep(30);
}

void press(WORD key, std::initializer_list<WORD> held = {}) {
    for (const WORD modifier : held) send(modifier, 0);
    send(key, 0);
    send(key, KEYEVENTF_KEYUP);
    for (const WORD modifier : held) send(modifier, KEYEVENTF_KEYUP);
}

void type(const wchar_t* text) {
    for (; *text != L'\0'; ++text) {
        const SHORT key = VkKeyScanW(*text);
        if ((HIBYTE(key) & 1) != 0)
            press(LOBYTE(key), {VK_SHIFT});
        else
            press(LOBYTE(key));
    }
}

void clickAt(POINT point) {
    SetCursorPos(point.x, point.y);
    for (const DWORD flags : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof input);
        Sleep(30);
    }
}

HWND windowNamed(const std::wstring& caption) {
    const HWND found = FindWindowW(nullptr, caption.c_str());
    return found != nullptr && IsWindowVisible(found) != FALSE ? found : nullptr;
}

std::wstring clipboardText() {
    std::wstring text;
    if (eventually([] { return OpenClipboard(nullptr) != FALSE; })) {
        if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
            text = static_cast<const wchar_t*>(GlobalLock(memory));
            GlobalUnlock(memory);
        }
        CloseClipboard();
    }
    return text;
}

class WorkbenchSession : public ::testing::Test {
protected:
    void SetUp() override {
        mFile = std::filesystem::temp_directory_path() / "session.txt";
        std::ofstream(mFile, std::ios::binary) << kReferences;
        wchar_t program[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, program, MAX_PATH);
        const auto workbench = std::filesystem::path(program).parent_path() / "Workbench.exe";
        // A session of its own begins with the first style.
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuorvelTemplate\\Workbench");
        std::wstring command = L"\"" + workbench.wstring() + L"\" \"" + mFile.wstring() + L"\"";
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        ASSERT_TRUE(
            CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &mProcess));
        ASSERT_TRUE(eventually([&] { return (mWindow = windowNamed(L"session.txt - Workbench")) != nullptr; }));
        ASSERT_TRUE(
            eventually([&] { return GetForegroundWindow() == mWindow || SetForegroundWindow(mWindow) != FALSE; }));
        Sleep(300);
    }
    void TearDown() override {
        if (WaitForSingleObject(mProcess.hProcess, 0) == WAIT_TIMEOUT) TerminateProcess(mProcess.hProcess, 1);
        CloseHandle(mProcess.hProcess);
        CloseHandle(mProcess.hThread);
    }

    /// Opens the form of the field that is selected, and waits for it.
    void openForm(const std::wstring& name) {
        press(VK_F2);
        ASSERT_TRUE(eventually([&] { return windowNamed(name + L" - Workbench") != nullptr; }))
            << "no form of that name";
        Sleep(100);
    }
    void acceptForm(const std::wstring& name) {
        press(VK_RETURN);
        ASSERT_TRUE(eventually([&] { return windowNamed(name + L" - Workbench") == nullptr; })) << "the form stays";
        Sleep(100);
    }
    std::wstring copied() {
        press('C', {VK_CONTROL, VK_SHIFT});
        Sleep(300);
        return clipboardText();
    }
    std::string saved() {
        press('S', {VK_CONTROL});
        Sleep(300);
        std::ifstream stream(mFile, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::filesystem::path mFile;
    PROCESS_INFORMATION mProcess{};
    HWND mWindow = nullptr;
};

TEST_F(WorkbenchSession, EditsEachFieldSwitchesTheStyleAndTakesItBack) {
    // The forms of all fields of the first reference, in the order of the host's fields; the kind is the first.
    press(VK_TAB);
    press(VK_HOME);
    struct Step {
        const wchar_t* form;
        const wchar_t* typed;
    };
    constexpr Step kSteps[] = {
        {L"Authors", L"Aaron, Dan"},
        {L"Title", nullptr},
        {L"Edition", nullptr},
        {L"Year", L"2009"},
        {L"Place of publication", nullptr},
        {L"Publisher", nullptr},
        {L"Publication medium", nullptr},
    };
    for (const Step& step : kSteps) {
        SCOPED_TRACE(std::string(step.form, step.form + std::wcslen(step.form)));
        press(VK_DOWN);
        ASSERT_NO_FATAL_FAILURE(openForm(step.form));
        if (step.typed != nullptr) type(step.typed);
        ASSERT_NO_FATAL_FAILURE(acceptForm(step.form));
    }
    EXPECT_NE(
        copied().find(L"Aaron, Dan. Modernist Heresies: British Literary History. 2nd ed. Columbus: Ohio State UP, "
                      L"2009. Print."),
        std::wstring::npos)
        << std::string(clipboardText().begin(), clipboardText().end());
    press('2', {VK_CONTROL});
    EXPECT_TRUE(
        eventually([&] { return copied().find(L"Aaron, D. (2009). Modernist heresies") != std::wstring::npos; }));
    EXPECT_NE(saved().find("author: Aaron, Dan\n"), std::string::npos);
    // The publisher came back shortened, as the style writes it: the third change.
    for (int change = 1; change <= 3; ++change) press('Z', {VK_CONTROL});
    EXPECT_TRUE(eventually([&] { return copied().find(L"Franke, D. (2008).") != std::wstring::npos; }));
    EXPECT_NE(saved().find("author: Franke, Damon\n"), std::string::npos);
    press(VK_F4, {VK_MENU});
    EXPECT_EQ(WaitForSingleObject(mProcess.hProcess, kPatience), DWORD{WAIT_OBJECT_0});
}

TEST_F(WorkbenchSession, WithTheMouseAlone) {
    // The second list is the fields'; its second row is the author.
    const HWND references = FindWindowExW(mWindow, nullptr, WC_LISTVIEWW, nullptr);
    const HWND fields = FindWindowExW(mWindow, references, WC_LISTVIEWW, nullptr);
    ASSERT_NE(fields, nullptr);
    const auto heightOf = [&](WPARAM rows) {
        return static_cast<LONG>(HIWORD(SendMessageW(fields, LVM_APPROXIMATEVIEWRECT, rows, MAKELPARAM(-1, -1))));
    };
    const LONG row = heightOf(2) - heightOf(1);
    RECT header = {};
    GetWindowRect(reinterpret_cast<HWND>(SendMessageW(fields, LVM_GETHEADER, 0, 0)), &header);
    POINT point = {20, header.bottom - header.top + row + row / 2};
    ClientToScreen(fields, &point);
    clickAt(point);
    HWND form = nullptr;
    ASSERT_TRUE(eventually([&] { return (form = windowNamed(L"Authors - Workbench")) != nullptr; }));
    Sleep(200);
    const HWND cancel = FindWindowExW(form, nullptr, nullptr, L"Cancel");
    ASSERT_NE(cancel, nullptr);
    RECT bounds = {};
    GetWindowRect(cancel, &bounds);
    clickAt({(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
    EXPECT_TRUE(eventually([&] { return windowNamed(L"Authors - Workbench") == nullptr; }));
    EXPECT_TRUE(eventually([&] { return copied().find(L"Franke, Damon.") != std::wstring::npos; }))
        << "Cancel writes nothing back";
    SendMessageW(mWindow, WM_CLOSE, 0, 0);
    EXPECT_EQ(WaitForSingleObject(mProcess.hProcess, kPatience), DWORD{WAIT_OBJECT_0});
}

}  // namespace

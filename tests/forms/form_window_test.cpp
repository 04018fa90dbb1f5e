// The windows of a form, driven as a user and a host drive them: keys and clicks through a message loop that knows
// nothing of dialogs.

#include "forms/win/window.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <functional>

#include "forms/handles.h"
#include "forms/trial_form.h"
#include "forms/win/density.h"

namespace quorvel::forms::test {

namespace {

HWND window(std::intptr_t handle) {
    return reinterpret_cast<HWND>(handle);
}

/// A host's loop: whatever is waiting.
void runMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void press(WPARAM key, LPARAM flags = 1) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, flags);
    PostMessageW(GetFocus(), WM_KEYUP, key, 1);
    runMessages();
}

void hold(int key, bool isDown) {
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    keys[key] = isDown ? 0x80 : 0;
    SetKeyboardState(keys);
}

void pressWith(int modifier, WPARAM key) {
    runMessages();
    hold(modifier, true);
    press(key);
    hold(modifier, false);
}

void pressAlt(wchar_t letter) {
    PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), 1 << 29);
    runMessages();
}

void type(const wchar_t* text) {
    for (; *text != L'\0'; ++text) {
        PostMessageW(GetFocus(), WM_CHAR, static_cast<WPARAM>(*text), 1);
    }
    runMessages();
}

Text textOf(HWND of) {
    Text text(300, u'\0');
    const int length = GetWindowTextW(of, reinterpret_cast<wchar_t*>(text.data()), 300);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

class FormWindowTest : public testing::Test {
protected:
    void SetUp() override {
        owner = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 900, 700, nullptr,
                                nullptr, nullptr, nullptr);
        field =
            CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, owner, nullptr, nullptr, nullptr);
        open();
    }

    void TearDown() override {
        form.reset();
        EXPECT_EQ(TrialForm::alive, 0);
        DestroyWindow(owner);
        runMessages();
        win::letGo();
    }

    void open() {
        element->answers[u"toString"] = Value(TextView(u"Bill"));
        form = std::make_shared<TrialForm>();
        form->attach(win::makeView(*form));
        form->Initialize(callback, u"Quorvel", nullptr);
        form->Show(reinterpret_cast<std::intptr_t>(field));
        form->ParentWidgetChanged(element, nullptr, u"Bill, Joe", u"Notes");
        form->reveal();
        runMessages();
    }

    Control& at(const ControlName& name) { return form->control(name); }
    HWND of(const ControlName& name) { return window(form->view().handle(at(name))); }
    std::string focus() const {
        const Control* const focused = form->focused();
        return focused == nullptr
                   ? ""
                   : std::string(focused->name().begin(), focused->name().end()) +
                         (focused->index() != kNoIndex ? std::to_string(focused->index()) : std::string());
    }
    void focusOn(const ControlName& name) { ASSERT_TRUE(form->view().setFocus(at(name))); }
    bool isClosedAsByCloseBox() const { return form->isClosed() && callback->count(u"Terminate") == 1; }

    HWND owner = nullptr;
    HWND field = nullptr;
    std::shared_ptr<TrialObject> callback = std::make_shared<TrialObject>();
    std::shared_ptr<TrialObject> element = std::make_shared<TrialObject>();
    std::shared_ptr<TrialForm> form;
};

TEST_F(FormWindowTest, IsOwnedAndOpensInItsFirstBox) {
    EXPECT_EQ(GetWindow(window(form->hwnd()), GW_OWNER), owner);
    EXPECT_TRUE(IsWindowVisible(window(form->hwnd())));
    EXPECT_EQ(focus(), "Name");
    EXPECT_TRUE(form->has("activated"));
    EXPECT_EQ(textOf(window(form->hwnd())), u"Trial - Quorvel");
}

TEST_F(FormWindowTest, ShowsWhatTheControlsHold) {
    EXPECT_EQ(textOf(of(u"Name")), u"Bill, Joe");
    EXPECT_EQ(at(u"Title").text(), u"Life \u2013 a history");
    EXPECT_EQ(at(u"Output").text(), u"Bill");
    EXPECT_EQ(SendMessageW(of({u"Kind", 1}), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_FALSE(IsWindowEnabled(of(u"Extra")));
    EXPECT_EQ(SendMessageW(of(u"Words"), LB_GETCOUNT, 0, 0), 3);

    at(u"Notes").setText(u"one\ntwo");
    EXPECT_EQ(textOf(of(u"Notes")), u"one\r\ntwo");
    at({u"Kind", 2}).setValue(true);
    EXPECT_EQ(SendMessageW(of({u"Kind", 1}), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(SendMessageW(of({u"Kind", 2}), BM_GETCHECK, 0, 0), BST_CHECKED);
    at(u"Words").addItem(u"zeal");
    at(u"Words").setListIndex(3);
    EXPECT_EQ(SendMessageW(of(u"Words"), LB_GETCURSEL, 0, 0), 3);
    at(u"Words").removeItem(0);
    EXPECT_EQ(SendMessageW(of(u"Words"), LB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(SendMessageW(of(u"Words"), LB_GETCURSEL, 0, 0), LB_ERR);
    at(u"Edition").setText(u"Revised");
    EXPECT_EQ(textOf(of(u"Edition")), u"Revised");
    at(u"Edition").setListIndex(1);
    EXPECT_EQ(textOf(of(u"Edition")), u"Enlarged");
    at(u"AddButton").setCaption(u"More");
    EXPECT_EQ(textOf(of(u"AddButton")), u"More");
    EXPECT_EQ(callback->count(u"TooltipShow"), 0);
}

TEST_F(FormWindowTest, ColorsAreTheSystemsOrTheControls) {
    const HDC canvas = GetDC(nullptr);
    const auto colorOf = [&](const ControlName& name) {
        SendMessageW(window(form->hwnd()), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(canvas),
                     reinterpret_cast<LPARAM>(of(name)));
        return GetTextColor(canvas);
    };
    EXPECT_EQ(colorOf(u"NameLabel"), GetSysColor(COLOR_BTNTEXT));
    at(u"NameLabel").setForeColor(kRed);
    EXPECT_EQ(colorOf(u"NameLabel"), RGB(255, 0, 0));
    at(u"NameLabel").setForeColor(kGreyText);
    EXPECT_EQ(colorOf(u"NameLabel"), GetSysColor(COLOR_GRAYTEXT));
    EXPECT_EQ(GetBkColor(canvas), GetSysColor(COLOR_BTNFACE));
    ReleaseDC(nullptr, canvas);
}

TEST_F(FormWindowTest, TabStopsAreTheRowsInTheirOrder) {
    std::vector<std::string> forward;
    std::vector<std::string> back;
    do {
        forward.push_back(focus());
        press(VK_TAB);
    } while (focus() != "Name" && forward.size() < 30);
    // An option group is one stop, at what is selected; what is disabled or only shows is none.
    EXPECT_EQ(forward, (std::vector<std::string>{"Name", "Notes", "Title", "Count", "Edition", "Kind1", "EtAl", "Words",
                                                 "AddButton", "OkButton", "CancelButton"}));
    do {
        back.push_back(focus());
        pressWith(VK_SHIFT, VK_TAB);
    } while (focus() != "Name" && back.size() < 30);
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, forward);
}

TEST_F(FormWindowTest, ArrowsSelectWithinAGroup) {
    focusOn({u"Kind", 1});
    EXPECT_FALSE(form->has("clicked Kind0"));
    press(VK_DOWN);
    EXPECT_EQ(focus(), "Kind2");
    EXPECT_TRUE(at({u"Kind", 2}).value());
    press(VK_RIGHT);
    EXPECT_EQ(focus(), "Kind0");
    at({u"Kind", 2}).setEnabled(false);
    press(VK_UP);
    EXPECT_EQ(focus(), "Kind1");
    EXPECT_TRUE(at({u"Kind", 1}).value());
    focusOn(u"OkButton");
    press(VK_LEFT);
    EXPECT_EQ(focus(), "CancelButton");
    EXPECT_FALSE(form->isClosed());
}

TEST_F(FormWindowTest, MnemonicsLeadToWhatTheyName) {
    struct Case {
        wchar_t letter;
        const char* focus;
    };
    for (const Case& one : {Case{L'o', "Notes"}, Case{L'U', "Count"}, Case{L't', "Title"}, Case{L'f', "Kind0"},
                            Case{L'h', "Kind2"}, Case{L'e', "EtAl"}, Case{L'd', "AddButton"}, Case{L'n', "Name"}}) {
        pressAlt(one.letter);
        EXPECT_EQ(focus(), one.focus) << static_cast<char>(one.letter);
    }
    EXPECT_TRUE(at({u"Kind", 2}).value());
    EXPECT_TRUE(at(u"EtAl").value());
    EXPECT_TRUE(form->has("clicked AddButton"));
    // One that is disabled, of a label that is, and one that nobody has.
    at(u"CountLabel").setEnabled(false);
    pressAlt(L'x');
    pressAlt(L'u');
    pressAlt(L'q');
    EXPECT_EQ(focus(), "Name");
    // Where nothing is written, the letter alone does.
    focusOn(u"EtAl");
    type(L"s");
    EXPECT_EQ(focus(), "Kind1");
}

TEST_F(FormWindowTest, EnterIsOkAndEscapeIsCancel) {
    focusOn(u"Notes");
    press(VK_RETURN);
    EXPECT_FALSE(form->isClosed());
    focusOn(u"AddButton");
    press(VK_RETURN);
    EXPECT_TRUE(form->has("clicked AddButton"));
    EXPECT_FALSE(form->isClosed());
    focusOn(u"Name");
    // A key that was down before the form came.
    press(VK_RETURN, 1 << 30);
    EXPECT_FALSE(form->isClosed());
    press(VK_RETURN);
    EXPECT_TRUE(isClosedAsByCloseBox());
    EXPECT_EQ(callback->count(u"setParentWidgetsValue"), 1);
    open();
    press(VK_ESCAPE);
    EXPECT_TRUE(form->isClosed());
    // Back where the user came from.
    EXPECT_EQ(GetActiveWindow(), owner);
    EXPECT_EQ(callback->count(u"setParentWidgetsValue"), 1);
}

TEST_F(FormWindowTest, TypingChangesAndTheProgramsWritingDoesNot) {
    at(u"Name").setText(u"Ann");
    form->events.clear();
    const HWND box = of(u"Name");
    SendMessageW(box, EM_SETSEL, 3, 3);
    type(L"a");
    EXPECT_EQ(at(u"Name").text(), u"Anna");
    EXPECT_EQ(form->events.front(), "changed Name");
    EXPECT_EQ(std::count(form->events.begin(), form->events.end(), "changed Name"), 1);
    // A form that writes into the box while it is typed into: the caret stays, and it is no change of the user's.
    form->onEvent = [&](const std::string& event) {
        if (event == "changed Name" && at(u"Name").text() == u"Annax") {
            at(u"Name").setText(u"Anna");
        }
    };
    type(L"x");
    EXPECT_EQ(textOf(box), u"Anna");
    EXPECT_EQ(form->view().selection(at(u"Name")).start, 4);
    pressWith(VK_CONTROL, 'A');
    EXPECT_EQ(form->view().selection(at(u"Name")).length, 4);
    form->view().setSelection(at(u"Name"), {1, 2});
    form->view().sendAndKeepCursor(at(u"Name"), EditMessage::Cut);
    EXPECT_EQ(at(u"Name").text(), u"Aa");
    EXPECT_TRUE(form->view().clipboardHolds(ClipboardFormat::UnicodeText));
    EXPECT_NE(form->view().sendAndKeepCursor(at(u"Name"), EditMessage::CanUndo), 0);
}

void strike(WORD key, DWORD flags = 0) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki = {key, 0, flags, 0, 0};
    SendInput(1, &input, sizeof(input));
    runMessages();
}

TEST_F(FormWindowTest, RealKeysTakeTheSameWay) {
    const auto pressed = [](WORD key) {
        strike(key);
        strike(key, KEYEVENTF_KEYUP);
    };
    pressed('A');
    // What was there was marked when the form opened.
    EXPECT_EQ(at(u"Name").text(), u"a");
    pressed(VK_TAB);
    EXPECT_EQ(focus(), "Notes");
    EXPECT_EQ(textOf(of(u"Name")), u"a");
    EXPECT_EQ(textOf(of(u"Notes")), u"Notes");
    strike(VK_MENU);
    pressed('H');
    strike(VK_MENU, KEYEVENTF_KEYUP);
    EXPECT_EQ(focus(), "Kind2");
    EXPECT_TRUE(at({u"Kind", 2}).value());
    strike(VK_SHIFT);
    pressed(VK_TAB);
    strike(VK_SHIFT, KEYEVENTF_KEYUP);
    EXPECT_EQ(focus(), "Edition");
    strike(VK_MENU);
    pressed(VK_F4);
    strike(VK_MENU, KEYEVENTF_KEYUP);
    EXPECT_TRUE(isClosedAsByCloseBox());
}

TEST_F(FormWindowTest, RichTextKeepsItsCaret) {
    focusOn(u"Title");
    const HWND box = of(u"Title");
    form->view().setSelection(at(u"Title"), {4, 0});
    type(L"!");
    EXPECT_TRUE(form->has("changed Title"));
    EXPECT_EQ(at(u"Title").text(), u"Life! \u2013 a history");
    at(u"Title").setRtf(u"{\\rtf1 \u00c9 {\\i Life}!\\par x}");
    EXPECT_EQ(at(u"Title").text(), u"\u00c9 Life!\r\nx");
    EXPECT_EQ(form->view().selection(at(u"Title")).start, 5);
    // What only shows is not typed into.
    SendMessageW(of(u"Output"), WM_CHAR, L'z', 1);
    EXPECT_EQ(at(u"Output").text(), u"Bill");
    EXPECT_NE(GetWindowLongW(box, GWL_STYLE) & WS_VISIBLE, 0);
}

TEST_F(FormWindowTest, ClicksSelectionsAndSpins) {
    SendMessageW(of({u"Kind", 0}), BM_CLICK, 0, 0);
    EXPECT_TRUE(at({u"Kind", 0}).value());
    EXPECT_EQ(SendMessageW(of({u"Kind", 1}), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    SendMessageW(of(u"EtAl"), BM_CLICK, 0, 0);
    SendMessageW(of(u"EtAl"), BM_CLICK, 0, 0);
    EXPECT_FALSE(at(u"EtAl").value());
    EXPECT_EQ(std::count(form->events.begin(), form->events.end(), "clicked EtAl"), 2);

    focusOn(u"Words");
    press(VK_DOWN);
    EXPECT_EQ(at(u"Words").text(), u"biography");
    focusOn(u"Edition");
    type(L"N");
    EXPECT_EQ(at(u"Edition").text(), u"N");
    press(VK_DOWN);
    EXPECT_EQ(at(u"Edition").listIndex(), 0);

    focusOn(u"Count");
    press(VK_UP);
    EXPECT_TRUE(form->has("up Count"));
    RECT arrows = {};
    GetClientRect(of(u"UpDown"), &arrows);
    for (const int y : {arrows.bottom / 4, arrows.bottom * 3 / 4, arrows.bottom * 3 / 4}) {
        SendMessageW(of(u"UpDown"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(arrows.right / 2, y));
        SendMessageW(of(u"UpDown"), WM_LBUTTONUP, 0, MAKELPARAM(arrows.right / 2, y));
    }
    EXPECT_EQ(std::count(form->events.begin(), form->events.end(), "up Count"), 2);
    EXPECT_EQ(std::count(form->events.begin(), form->events.end(), "down Count"), 2);
    EXPECT_EQ(textOf(of(u"Count")), u"2");
}

TEST_F(FormWindowTest, TellsOfThePointerOnce) {
    for (int move = 0; move < 3; ++move) {
        SendMessageW(of(u"Name"), WM_MOUSEMOVE, 0, MAKELPARAM(5 + move, 5));
    }
    EXPECT_EQ(callback->count(u"TooltipShow"), 1);
    for (int move = 0; move < 3; ++move) {
        SendMessageW(window(form->hwnd()), WM_MOUSEMOVE, 0, MAKELPARAM(1, 1 + move));
    }
    EXPECT_EQ(callback->count(u"TooltipHide"), 1);
}

TEST_F(FormWindowTest, TheFocusLeavesWhatIsGone) {
    at(u"Name").setEnabled(false);
    EXPECT_EQ(focus(), "Notes");
    EXPECT_TRUE(form->has("left Name"));
    focusOn({u"Kind", 1});
    at(u"KindFrame").setVisible(false);
    form->densityChanged();
    EXPECT_FALSE(IsWindowVisible(of({u"Kind", 1})));
    EXPECT_EQ(focus(), "EtAl");
    EXPECT_FALSE(form->view().setFocus(at({u"Kind", 1})));
    // It is where it was when the form is active again.
    SetActiveWindow(owner);
    SetFocus(field);
    EXPECT_EQ(focus(), "");
    SetActiveWindow(window(form->hwnd()));
    EXPECT_EQ(focus(), "EtAl");
}

TEST_F(FormWindowTest, FollowsTheDensity) {
    const HWND box = of(u"Name");
    RECT before = {};
    GetClientRect(box, &before);
    const Twips width = form->place().width;
    RECT suggested = {10, 20, 400, 300};
    SendMessageW(window(form->hwnd()), win::kDensityChanged, MAKEWPARAM(192, 192),
                 reinterpret_cast<LPARAM>(&suggested));
    RECT after = {};
    GetClientRect(box, &after);
    EXPECT_NEAR(static_cast<double>(after.right) / before.right, 2.0, 0.15);
    EXPECT_NEAR(form->place().width / width, 1.0F, 0.1F);
    EXPECT_EQ(form->place().left, 10 * 1440 / 192.0F);
    RECT combo = {};
    GetWindowRect(of(u"Edition"), &combo);
    RECT count = {};
    GetWindowRect(of(u"Count"), &count);
    EXPECT_EQ(combo.bottom - combo.top, count.bottom - count.top);
    // Every control lies inside the form, beside its neighbours.
    RECT client = {};
    GetClientRect(window(form->hwnd()), &client);
    for (const Control& control : form->controls()) {
        RECT place = {};
        GetWindowRect(window(form->view().handle(control)), &place);
        MapWindowPoints(nullptr, window(form->hwnd()), reinterpret_cast<POINT*>(&place), 2);
        EXPECT_LE(place.right, client.right);
        EXPECT_LE(place.bottom, client.bottom);
    }
}

TEST_F(FormWindowTest, ClosesWithItsOwner) {
    const HWND handle = window(form->hwnd());
    DestroyWindow(owner);
    EXPECT_TRUE(isClosedAsByCloseBox());
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_EQ(form->hwnd(), 0);
    EXPECT_EQ(callback->count(u"setParentWidgetsValue"), 0);
}

TEST_F(FormWindowTest, IsClosedAndReleasedInsideItsOwnEvents) {
    // What the user does, and the event in which the form goes.
    struct Case {
        std::function<void()> act;
        std::string event;
    };
    const Case cases[] = {
        {[&] { type(L"x"); }, "changed Name"},
        {[&] { press(VK_TAB); }, "left Name"},
        {[&] { press(VK_TAB); }, "entered Notes"},
        {[&] {
             SendMessageW(of({u"Kind", 0}), BM_CLICK, 0, 0);
         },
         "clicked Kind0"},
        {[&] { pressAlt(L'h'); }, "clicked Kind2"},
        {[&] { SendMessageW(of(u"AddButton"), BM_CLICK, 0, 0); }, "clicked AddButton"},
        {[&] { SendMessageW(of(u"EtAl"), WM_KEYDOWN, VK_SPACE, 1), SendMessageW(of(u"EtAl"), WM_KEYUP, VK_SPACE, 1); },
         "clicked EtAl"},
        {[&] { SendMessageW(of(u"Name"), WM_KEYUP, 'X', 1); }, "selected Name"},
        {[&] { pressAlt(L'u'), press(VK_UP); }, "up Count"},
        {[&] { DestroyWindow(owner); }, "left Name"},
        {[&] { at(u"Name").setEnabled(false); }, "left Name"},
    };
    for (const Case& one : cases) {
        if (!form) {
            SetUp();
        }
        callback->calls.clear();
        bool isNested = false;
        form->onEvent = [&](const std::string& event) {
            if (event == one.event && form) {
                // A message box of the host's, and then the last reference.
                isNested = true;
                runMessages();
                form->Unload();
                form.reset();
            }
        };
        one.act();
        runMessages();
        EXPECT_TRUE(isNested) << one.event;
        EXPECT_EQ(TrialForm::alive, 0) << one.event;
        EXPECT_EQ(callback->count(u"Terminate"), 1) << one.event;
        DestroyWindow(owner);
    }
}

TEST_F(FormWindowTest, LeavesOtherWindowsKeysAlone) {
    SetFocus(field);
    PostMessageW(field, WM_KEYDOWN, VK_ESCAPE, 1);
    PostMessageW(field, WM_CHAR, L'n', 1);
    runMessages();
    EXPECT_FALSE(form->isClosed());
    EXPECT_EQ(textOf(field), u"n");
    EXPECT_EQ(GetFocus(), field);
    // Shown to what another text is: the focus stays with the host.
    form->ParentWidgetChanged(element, nullptr, u"Ann", u"");
    form->reveal();
    EXPECT_EQ(GetFocus(), field);
    SetActiveWindow(window(form->hwnd()));
    form->Hide();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(GetActiveWindow(), owner);
    form->reveal();
    EXPECT_TRUE(form->isVisible());
}

int cycles() {
    const std::wstring commandLine = GetCommandLineW();
    return commandLine.find(L"--soak") != std::wstring::npos ? 10'000 : 200;
}

TEST_F(FormWindowTest, CyclesLeaveNothingBehind) {
    const auto cycle = [&](int number) {
        if (number % 3 == 0) {
            press(VK_ESCAPE);
        } else if (number % 3 == 1) {
            form->Unload();
        }
        form.reset();
        open();
        runMessages();
    };
    for (int warm = 0; warm < 5; ++warm) {
        cycle(warm);
    }
    const Handles before = Handles::now();
    const int count = cycles();
    for (int number = 0; number < count; ++number) {
        cycle(number);
    }
    const Handles after = Handles::now();
    EXPECT_LE(after.kernel, before.kernel);
    EXPECT_LE(after.drawing, before.drawing);
    EXPECT_LE(after.user, before.user);
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    const HINSTANCE module = GetModuleHandleW(nullptr);
    EXPECT_TRUE(GetClassInfoExW(module, L"QuorvelTemplate.Form", &description));
    form.reset();
    win::letGo();
    EXPECT_FALSE(GetClassInfoExW(module, L"QuorvelTemplate.Form", &description));
}

}  // namespace

}  // namespace quorvel::forms::test

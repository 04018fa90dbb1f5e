// Pictures of forms, for the documents and for looking at them: FormPictures FOLDER. Each form is drawn by the system
// at two densities, into FOLDER/<name>-<per cent>.bmp.

#include <windows.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "forms/trial_form.h"
#include "forms/win/density.h"
#include "forms/win/window.h"

namespace {

using namespace quorvel;
using namespace quorvel::forms;

void runMessages() {
    const DWORD end = GetTickCount() + 1000;
    while (GetTickCount() < end) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        Sleep(10);
    }
}

/// What is on the screen where the window is.
void save(HWND window, const std::string& path) {
    RECT place = {};
    GetWindowRect(window, &place);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO description = {};
    description.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &description, DIB_RGB_COLORS, &pixels, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    GdiFlush();
    const DWORD size = static_cast<DWORD>(width * height * 4);
    constexpr WORD kBitmapFile = 0x4D42;
    const DWORD offset = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    const BITMAPFILEHEADER header = {kBitmapFile, offset + size, 0, 0, offset};
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(&header), sizeof(header));
    file.write(reinterpret_cast<const char*>(&description.bmiHeader), sizeof(description.bmiHeader));
    file.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(size));
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

/// What the stand-in for an element answers, whatever form asks.
void answerFilled(test::TrialObject& element) {
    const auto yes = Value(true);
    element.answers = {
        {u"toString",
         Value(TextView(
             u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}}\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 "
             u"Bill, Joe, and Ann Smith. \u201cA \u2018quoted\u2019 word.\u201d {\\i Life in the North}. 2nd ed. "
             u"1990. Print.}"))},
        {u"authors", Value(std::vector<Text>{u"Bill, Joe", u"Smith, Ann, Jr.", u"Institute of Arctic Studies"})},
        {u"Year", Value(TextView(u"1990"))},
        {u"Supports", yes},
        {u"SupportAnonAndPseudoAuthors", yes},
        {u"hasDiscussant", yes},
        {u"supportsCompilerAndEditor", yes},
    };
}

void picture(const std::string& folder, const std::shared_ptr<Form>& form, bool isFilled) {
    const auto element = std::make_shared<test::TrialObject>();
    if (isFilled) {
        answerFilled(*element);
    }
    form->attach(win::makeView(*form));
    form->Initialize(std::make_shared<test::TrialObject>(), u"Quorvel", nullptr);
    form->ParentWidgetChanged(element, nullptr, isFilled ? u"Bill, Joe, and Ann Smith" : u"", u"");
    form->Show(0);
    form->setPlace({0, 0, form->place().width, form->place().height});
    form->reveal();
    const TextView className = form->className();
    const std::string name = std::string(className.begin(), className.end()) + (isFilled ? "-filled-" : "-empty-");
    const auto window = reinterpret_cast<HWND>(form->hwnd());
    for (const int percent : {100, 200}) {
        const UINT density = static_cast<UINT>(USER_DEFAULT_SCREEN_DPI * percent / 100);
        if (percent != 100) {
            RECT place = {};
            SendMessageW(window, win::kDensityChanged, MAKEWPARAM(density, density), reinterpret_cast<LPARAM>(&place));
        }
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        runMessages();
        save(window, folder + "/" + name + std::to_string(percent) + ".bmp");
    }
    form->Unload();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::puts("usage: FormPictures FOLDER");
        return 2;
    }
    constexpr std::int16_t kTypes = 19;
    for (const bool isFilled : {true, false}) {
        picture(arguments[1], std::make_shared<test::TrialForm>(), isFilled);
        for (std::int16_t type = 0; type < kTypes; ++type) {
            if (const std::shared_ptr<Form> form = classOf(type) == type ? make(type) : nullptr; form) {
                picture(arguments[1], form, isFilled);
            }
        }
    }
    win::letGo();
    return 0;
}

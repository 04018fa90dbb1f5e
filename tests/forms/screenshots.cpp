// Pictures of forms, for the documents and for looking at them: FormPictures FOLDER. Each form is drawn by the system
// at two densities, into FOLDER/<name>-<per cent>.bmp.

#include <windows.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "forms/trial_form.h"
#include "forms/win/density.h"
#include "forms/win/window.h"

namespace {

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

void picture(const std::string& folder, const std::string& name, const std::shared_ptr<Form>& form) {
    form->Show(0);
    form->setPlace({0, 0, form->place().width, form->place().height});
    form->reveal();
    const auto window = reinterpret_cast<HWND>(form->hwnd());
    for (const int percent : {100, 200}) {
        const UINT density = static_cast<UINT>(USER_DEFAULT_SCREEN_DPI * percent / 100);
        if (percent != 100) {
            RECT place = {};
            SendMessageW(window, win::kDensityChanged, MAKEWPARAM(density, density), reinterpret_cast<LPARAM>(&place));
        }
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        runMessages();
        save(window, folder + "/" + name + "-" + std::to_string(percent) + ".bmp");
    }
    form->Unload();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::puts("usage: FormPictures FOLDER");
        return 2;
    }
    const auto element = std::make_shared<test::TrialObject>();
    element->output =
        u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}}\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 "
        u"Bill, Joe. \u201cA \u2018quoted\u2019 word.\u201d {\\i Life in the North}. 2nd ed. 1990. Print.}";
    const auto form = std::make_shared<test::TrialForm>();
    form->attach(win::makeView(*form));
    form->Initialize(std::make_shared<test::TrialObject>(), u"Quorvel", nullptr);
    form->ParentWidgetChanged(element, nullptr, u"Bill, Joe", u"First line\nSecond line");
    picture(arguments[1], "trial", form);
    win::letGo();
    return 0;
}

// What a writer waits for: a form with fifty authors to be there, filled and painted, and its preview at each key. The
// least of many times, in milliseconds, since a machine does other things too. The library must be registered.

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>

#include "com/late_bound.h"
#include "data/data_file.h"
#include "data/fields.h"
#include "editing.h"
#include "writing/styled_elements.h"

namespace {

using namespace sample;

constexpr int kForms = 20;
constexpr int kKeys = 20;
constexpr int kAuthors = 50;

template <class Body>
double millisecondsOf(Body&& body) {
    const auto start = std::chrono::steady_clock::now();
    body();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void runMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

std::wstring manyAuthors() {
    std::wstring authors;
    for (int i = 0; i < kAuthors; ++i) {
        authors += (i == 0 ? L"" : i + 1 < kAuthors ? L", " : L", & ") + std::wstring(L"Smith");
        authors += static_cast<wchar_t>(L'a' + i % 26);
        authors += L", J. A.";
    }
    return authors;
}

void measure() {
    const LateBoundObject main = LateBoundObject::create(L"QuorvelTemplate.Main2");
    const Style style = readStyle(dataFile(L"styles/apa.style"));
    StyledElements elements(main, style);
    const LateBoundObject author = elements.element(L"author", findField(L"author")->elementCode)->object;
    const HWND owner =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
    Editing editing(main, owner, [](const std::wstring&) {});
    const EditedText text = {manyAuthors(), L""};
    double shown = std::numeric_limits<double>::max();
    double keystroke = shown;
    double closed = shown;
    for (int round = 0; round < kForms; ++round) {
        shown = std::min(shown, millisecondsOf([&] {
                             editing.show(findField(L"author")->elementCode, author, text, [](const EditedText&) {});
                             UpdateWindow(editing.form());
                             runMessages();
                         }));
        for (int key = 0; key < kKeys; ++key) {
            keystroke = std::min(keystroke, millisecondsOf([] {
                                     PostMessageW(GetFocus(), WM_CHAR, L'x', 1);
                                     runMessages();
                                 }));
        }
        closed = std::min(closed, millisecondsOf([&] {
                              editing.hide();
                              runMessages();
                          }));
    }
    std::printf("form/shownAndFilled %.3g ms\nform/keystroke %.3g ms\nform/closed %.3g ms\n", shown, keystroke, closed);
    DestroyWindow(owner);
}

}  // namespace

int main() {
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    int status = 0;
    try {
        measure();
    } catch (const ComError& error) {
        std::printf("%ls\n", error.message.c_str());
        status = 1;
    }
    CoUninitialize();
    return status;
}

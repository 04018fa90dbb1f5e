// What the windows of a form cost: to be there, filled and painted, and to answer a key. The least of many times, in
// milliseconds, since a machine does other things too.

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>

#include "forms/trial_form.h"
#include "forms/win/window.h"

namespace {

using namespace quorvel;
using namespace quorvel::forms;

class Least {
public:
    explicit Least(const char* name) : mName(name) {}
    Least(const Least&) = delete;
    Least& operator=(const Least&) = delete;
    ~Least() { std::printf("form/%s %.2f ms\n", mName, mLeast); }

    template <class Body>
    void measure(Body&& body) {
        const auto start = std::chrono::steady_clock::now();
        body();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        mLeast = std::min(mLeast, time.count());
    }

private:
    const char* mName;
    double mLeast = std::numeric_limits<double>::max();
};

void runMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace

int main() {
    const auto callback = std::make_shared<test::TrialObject>();
    const auto element = std::make_shared<test::TrialObject>();
    Text output = u"Bill, Joe. Life.";
    element->answers[u"toString"] = Value(output);
    Least windows("windows");
    Least filled("filled");
    Least revealed("revealed");
    Least all("shown_and_filled");
    Least keystroke("keystroke");
    Least closed("closed");
    for (int round = 0; round < 30; ++round) {
        std::shared_ptr<test::TrialForm> form;
        all.measure([&] {
            form = std::make_shared<test::TrialForm>();
            windows.measure([&] { form->attach(win::makeView(*form)); });
            filled.measure([&] {
                form->Initialize(callback, u"Quorvel", nullptr);
                form->Show(0);
                form->ParentWidgetChanged(element, nullptr, u"Bill, Joe", u"Notes");
            });
            revealed.measure([&] {
                form->reveal();
                UpdateWindow(reinterpret_cast<HWND>(form->hwnd()));
                runMessages();
            });
        });
        for (int key = 0; key < 10; ++key) {
            keystroke.measure([&] {
                output += u'x';
                element->answers[u"toString"] = Value(output);
                PostMessageW(GetFocus(), WM_CHAR, L'x', 1);
                runMessages();
            });
        }
        closed.measure([&] {
            form->Unload();
            form.reset();
            runMessages();
        });
    }
    return 0;
}

#include "host/window/window_class.h"

#include <mutex>
#include <set>

#include "host/com/module.h"

namespace quorvel::host {

namespace {

struct WindowClasses {
    std::mutex mutex;
    std::set<const wchar_t*> names;
};

WindowClasses& windowClasses() {
    static WindowClasses instance;
    return instance;
}

}  // namespace

bool registerWindowClass(const wchar_t* name, WNDPROC procedure) {
    WindowClasses& classes = windowClasses();
    const std::scoped_lock lock(classes.mutex);
    const auto [entry, isNew] = classes.names.insert(name);
    if (!isNew) {
        return true;
    }
    WNDCLASSEXW description = {};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = procedure;
    description.hInstance = Module::handle();
    description.lpszClassName = name;
    const bool isRegistered = RegisterClassExW(&description) != 0;
    if (!isRegistered) {
        classes.names.erase(entry);
    }
    return isRegistered;
}

void unregisterWindowClasses() noexcept {
    WindowClasses& classes = windowClasses();
    const std::scoped_lock lock(classes.mutex);
    for (const wchar_t* name : classes.names) {
        UnregisterClassW(name, Module::handle());
    }
    classes.names.clear();
}

}  // namespace quorvel::host

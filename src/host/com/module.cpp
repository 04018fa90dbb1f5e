#include "host/com/module.h"

#include <atomic>
#include <cstdlib>
#include <exception>

#include "core/vbwprotector.h"
#include "host/com/element_access.h"

namespace quorvel::host {

namespace {

HINSTANCE theHandle = nullptr;
std::atomic<long> theReferences = 0;
std::atomic<bool> isKept = false;

// More than the variables of one thread take.
constexpr std::size_t kRoomForAThread = 8192;

}  // namespace

void Module::setHandle(HINSTANCE handle) {
    theHandle = handle;
}

HINSTANCE Module::handle() {
    return theHandle;
}

std::wstring Module::path() {
    std::wstring buffer(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(theHandle, buffer.data(), static_cast<DWORD>(buffer.size()));
    while (length == buffer.size()) {
        buffer.resize(buffer.size() * 2);
        length = GetModuleFileNameW(theHandle, buffer.data(), static_cast<DWORD>(buffer.size()));
    }
    buffer.resize(length);
    return buffer;
}

void Module::keepLoaded() {
    isKept = true;
    HMODULE module = nullptr;
    // Where this fails the DLL is loaded and freed as any other is.
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(theHandle), &module);
}

bool Module::isKeptLoaded() {
    return isKept;
}

bool Module::prepareThread() noexcept {
    // By hand, since what a failure throws is what there must be room for; volatile, so that the compiler does not take
    // success for granted.
    void* volatile room = std::malloc(kRoomForAThread);  // NOLINT(cppcoreguidelines-no-malloc)
    if (room == nullptr) {
        return false;
    }
    std::free(room);  // NOLINT(cppcoreguidelines-no-malloc)
    try {
        // The compiler would leave out a call whose result nobody takes.
        [[maybe_unused]] const volatile int none = std::uncaught_exceptions();
        VBWPROTECTOR::ofThisApartment();
        ElementAccess::prepareThread();
    } catch (...) {
        return false;
    }
    return true;
}

void Module::addReference() {
    ++theReferences;
}

void Module::releaseReference() {
    --theReferences;
}

bool Module::isInUse() {
    return theReferences != 0;
}

void ObjectLife::lastOfThreadEnds() noexcept {
    VBWPROTECTOR::ofThisApartment().releaseService();
}

}  // namespace quorvel::host

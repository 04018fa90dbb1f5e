#include "host/com/module.h"

#include <atomic>
#include <vector>

#include "core/vbwprotector.h"

namespace quorvel::host {

namespace {

HINSTANCE theHandle = nullptr;
std::atomic<long> theReferences = 0;
thread_local long theObjectsOfThisThread = 0;

}  // namespace

void Module::setHandle(HINSTANCE handle) {
    theHandle = handle;
}

HINSTANCE Module::handle() {
    return theHandle;
}

Text Module::path() {
    std::vector<wchar_t> buffer(MAX_PATH);
    DWORD length = GetModuleFileNameW(theHandle, buffer.data(), static_cast<DWORD>(buffer.size()));
    while (length == buffer.size()) {
        buffer.resize(buffer.size() * 2);
        length = GetModuleFileNameW(theHandle, buffer.data(), static_cast<DWORD>(buffer.size()));
    }
    return Text(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(length));
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

void Module::objectBegins() {
    addReference();
    ++theObjectsOfThisThread;
}

void Module::objectEnds() {
    if (--theObjectsOfThisThread == 0) {
        VBWPROTECTOR::ofThisApartment().releaseService();
    }
    releaseReference();
}

}  // namespace quorvel::host

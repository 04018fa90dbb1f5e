// The entry points of the component server.

#include <windows.h>

#include <string_view>

#include "forms/win/window.h"
#include "host/classes.h"
#include "host/com/class_factory.h"
#include "host/com/dispatch_table.h"
#include "host/com/module.h"
#include "host/com/registration.h"
#include "host/interfaces.h"
#include "host/main2.h"
#include "host/start_up.h"
#include "host/window/window_class.h"

using namespace quorvel::host;

namespace {

/// An entry point lets no exception out; only memory can run out in one.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        return body();
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH) {
        Module::setHandle(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID clsid, REFIID iid, LPVOID* object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    return guarded([&]() -> HRESULT {
        Module::keepLoaded();
        if (!Module::prepareThread()) {
            return E_OUTOFMEMORY;
        }
        startUp();
        if (const ClassFactory::Create create = creatorOf(clsid); create != nullptr) {
            const ComPtr<IClassFactory> factory(new ClassFactory(create));
            return factory->QueryInterface(iid, object);
        }
        return CLASS_E_CLASSNOTAVAILABLE;
    });
}

STDAPI DllCanUnloadNow() {
    if (Module::isInUse()) {
        return S_FALSE;
    }
    // What a load would make anew is given up, although the DLL stays where it is. Before its first use nothing
    // was made, and nothing may be, since the DLL goes.
    if (Module::isKeptLoaded()) {
        shutDown();
        DispatchTable::releaseAll();
        unregisterWindowClasses();
        quorvel::forms::win::letGo();
    }
    return S_OK;
}

STDAPI DllRegisterServer() {
    return guarded([] { return registerClasses(RegistrationScope::Machine); });
}

STDAPI DllUnregisterServer() {
    return guarded([] { return unregisterClasses(RegistrationScope::Machine); });
}

/// `regsvr32 /n /i:user` registers for the current user, `regsvr32 /n /i` for the machine.
STDAPI DllInstall(BOOL install, LPCWSTR commandLine) {
    const std::wstring_view whom = commandLine != nullptr ? commandLine : L"";
    if (!whom.empty() && whom != L"user") {
        return E_INVALIDARG;
    }
    const RegistrationScope scope = whom.empty() ? RegistrationScope::Machine : RegistrationScope::CurrentUser;
    return guarded([&] { return install != FALSE ? registerClasses(scope) : unregisterClasses(scope); });
}

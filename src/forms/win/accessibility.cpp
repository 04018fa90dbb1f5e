// The identifiers of the service are defined here, where no library of the platform has them.
#include <initguid.h>
//
#include <objbase.h>
#include <oleacc.h>

#include <iterator>

#include "forms/win/accessibility.h"
#include "forms/win/wide.h"

namespace quorvel::forms::win {

namespace {

constexpr DWORD kItself = 0;

}  // namespace

Accessibility::Accessibility() {
    void* service = nullptr;
    if (SUCCEEDED(
            CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, &service))) {
        mService = static_cast<IAccPropServices*>(service);
    }
}

Accessibility::~Accessibility() {
    if (mService != nullptr) {
        mService->Release();
    }
}

void Accessibility::setName(HWND window, TextView name) const {
    set(window, PROPID_ACC_NAME, name);
}

void Accessibility::setHelp(HWND window, TextView help) const {
    set(window, PROPID_ACC_HELP, help);
}

void Accessibility::set(HWND window, const GUID& property, TextView value) const {
    if (mService != nullptr && window != nullptr) {
        const Text text(value);
        mService->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), kItself, property, wide(text));
    }
}

void Accessibility::forget(HWND window) const {
    if (mService != nullptr && window != nullptr) {
        const MSAAPROPID properties[] = {PROPID_ACC_NAME, PROPID_ACC_HELP};
        mService->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), kItself, properties,
                                 static_cast<int>(std::size(properties)));
    }
}

}  // namespace quorvel::forms::win

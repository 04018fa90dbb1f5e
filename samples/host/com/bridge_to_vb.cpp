#include "com/bridge_to_vb.h"

#include <vector>

#include "com/late_bound.h"

namespace sample {

namespace {

// The class of this host's bridge object.
constexpr CLSID kBridgeClass = {0x8c4b7d16, 0x51f2, 0x4f0e, {0xa9, 0x3d, 0x06, 0x7e, 0x2b, 0x94, 0xc8, 0x5a}};

std::wstring textOfGuid(const GUID& id) {
    wchar_t text[40];
    return std::wstring(text, static_cast<std::size_t>(StringFromGUID2(id, text, 40)) - 1);
}

std::wstring classNameKey() {
    return std::wstring(L"Software\\Classes\\") + RunningBridgeToVB::kClassName;
}

std::wstring classIdKey() {
    return L"Software\\Classes\\CLSID\\" + textOfGuid(kBridgeClass);
}

/// Whether a host like this one was ended before it could take its class name back.
bool isLeftBehind(const CLSID& classId) {
    ComPointer<IUnknown> running;
    return classId == kBridgeClass && FAILED(GetActiveObject(classId, nullptr, running.put()));
}

bool writeKey(HKEY root, const std::wstring& path, const std::wstring& value) {
    HKEY key = nullptr;
    if (RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS) {
        return false;
    }
    // With its terminator and not a byte more: what follows would be read as part of a class id.
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LSTATUS status = RegSetValueExW(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS;
}

}  // namespace

RunningBridgeToVB::RunningBridgeToVB(IDispatch* errorReportService)
    : RunningBridgeToVB([service = ComPointer<IDispatch>(errorReportService)] { return service; }) {}

RunningBridgeToVB::RunningBridgeToVB(const GiveService& giveService) : mBridge(makeObject<DispatchObject>()) {
    mBridge->addMethod(L"ErrorParams", [giveService](const Arguments&, VARIANT& result) {
        result = Variant(giveService().get()).release();
        return S_OK;
    });
    // The name may belong to an installed host already; then its class id serves.
    if (FAILED(CLSIDFromProgID(kClassName, &mClassId)) || isLeftBehind(mClassId)) registerClassName();
    const HRESULT code = RegisterActiveObject(mBridge.get(), mClassId, ACTIVEOBJECT_STRONG, &mRunning);
    if (FAILED(code)) {
        deleteClassName();
        throw ComError{code, std::wstring(kClassName) + L" cannot be registered as running: " + describe(code)};
    }
}

RunningBridgeToVB::~RunningBridgeToVB() {
    RevokeActiveObject(mRunning, nullptr);
    CoDisconnectObject(mBridge.get(), 0);
    deleteClassName();
}

void RunningBridgeToVB::registerClassName() {
    const std::wstring classId = textOfGuid(kBridgeClass);
    const std::wstring nameKey = classNameKey();
    const std::wstring idKey = classIdKey();
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        mClassesRoot = root;
        if (writeKey(root, nameKey, L"Host bridge object") && writeKey(root, nameKey + L"\\CLSID", classId) &&
            writeKey(root, idKey, L"Host bridge object") && writeKey(root, idKey + L"\\ProgID", kClassName)) {
            mClassId = kBridgeClass;
            return;
        }
        deleteClassName();
    }
    throw ComError{E_ACCESSDENIED, std::wstring(kClassName) + L" cannot be written to the registry."};
}

void RunningBridgeToVB::deleteClassName() {
    if (mClassesRoot == nullptr) return;
    RegDeleteTreeW(mClassesRoot, classNameKey().c_str());
    RegDeleteTreeW(mClassesRoot, classIdKey().c_str());
    mClassesRoot = nullptr;
}

}  // namespace sample

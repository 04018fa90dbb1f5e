#include "host/com/registration.h"

#include "host/com/automation.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/com/com_ptr.h"
#include "host/com/module.h"
#include "host/com/type_library.h"
#include "host/com/variant.h"

// In the platform's import library, but in no header of MinGW.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* helpFolder);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID locale,
                                                   SYSKIND system);

namespace quorvel::host {

namespace {

constexpr wchar_t kClasses[] = L"Software\\Classes\\";
constexpr wchar_t kLibraryName[] = L"QuorvelTemplate";
constexpr wchar_t kVersionSuffix[] = L".1";

HKEY rootOf(RegistrationScope scope) {
    return scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::wstring wide(BSTR text) {
    return text != nullptr ? std::wstring(text, SysStringLen(text)) : std::wstring();
}

std::wstring wide(REFGUID guid) {
    constexpr int kLength = 39;
    wchar_t buffer[kLength] = {};
    StringFromGUID2(guid, buffer, kLength);
    return buffer;
}

/// A creatable class as the type library describes it.
struct CreatableClass {
    std::wstring name;
    std::wstring description;
    CLSID clsid;

    std::wstring clsidKey() const { return L"CLSID\\" + wide(clsid); }
    std::wstring progId() const { return std::wstring(kLibraryName) + L"." + name; }
    std::wstring versionedProgId() const { return progId() + kVersionSuffix; }
};

struct Library {
    ComPtr<ITypeLib> info;
    TLIBATTR attributes = {};
    std::vector<CreatableClass> classes;
};

CreatableClass describe(ITypeInfo* info, REFCLSID clsid) {
    BSTR name = nullptr;
    BSTR description = nullptr;
    info->GetDocumentation(MEMBERID_NIL, &name, &description, nullptr, nullptr);
    CreatableClass result = {wide(name), wide(description), clsid};
    SysFreeString(name);
    SysFreeString(description);
    return result;
}

HRESULT read(Library& library) {
    HRESULT outcome = loadEmbeddedTypeLibrary(library.info);
    TLIBATTR* libraryAttributes = nullptr;
    if (FAILED(outcome) || FAILED(outcome = library.info->GetLibAttr(&libraryAttributes))) {
        return outcome;
    }
    library.attributes = *libraryAttributes;
    library.info->ReleaseTLibAttr(libraryAttributes);
    for (UINT i = 0; i < library.info->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> info;
        TYPEATTR* attributes = nullptr;
        if (FAILED(outcome = library.info->GetTypeInfo(i, info.receive())) ||
            FAILED(outcome = info->GetTypeAttr(&attributes))) {
            return outcome;
        }
        const bool isCreatable =
            attributes->typekind == TKIND_COCLASS && (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0;
        const CLSID clsid = attributes->guid;
        info->ReleaseTypeAttr(attributes);
        if (isCreatable) {
            library.classes.push_back(describe(info.get(), clsid));
        }
    }
    return S_OK;
}

/// Writes default and named values below the classes of one scope; remembers the first failure.
class Writer {
public:
    explicit Writer(RegistrationScope scope) : mRoot(rootOf(scope)) {}

    void write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
        if (mStatus == ERROR_SUCCESS) {
            const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
            mStatus = RegSetKeyValueW(mRoot, (kClasses + key).c_str(), name, REG_SZ, value.c_str(), size);
        }
    }
    HRESULT outcome() const { return HRESULT_FROM_WIN32(static_cast<DWORD>(mStatus)); }

private:
    HKEY mRoot;
    LSTATUS mStatus = ERROR_SUCCESS;
};

void write(Writer& writer, const CreatableClass& creatable, const Library& library, const std::wstring& path) {
    const std::wstring clsid = wide(creatable.clsid);
    const std::wstring key = creatable.clsidKey();
    const std::wstring version =
        std::to_wstring(library.attributes.wMajorVerNum) + L"." + std::to_wstring(library.attributes.wMinorVerNum);
    writer.write(key, nullptr, creatable.description);
    writer.write(key + L"\\InprocServer32", nullptr, path);
    writer.write(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    writer.write(key + L"\\ProgID", nullptr, creatable.versionedProgId());
    writer.write(key + L"\\VersionIndependentProgID", nullptr, creatable.progId());
    writer.write(key + L"\\Programmable", nullptr, L"");
    writer.write(key + L"\\TypeLib", nullptr, wide(library.attributes.guid));
    writer.write(key + L"\\Version", nullptr, version);
    writer.write(creatable.progId(), nullptr, creatable.description);
    writer.write(creatable.progId() + L"\\CLSID", nullptr, clsid);
    writer.write(creatable.progId() + L"\\CurVer", nullptr, creatable.versionedProgId());
    writer.write(creatable.versionedProgId(), nullptr, creatable.description);
    writer.write(creatable.versionedProgId() + L"\\CLSID", nullptr, clsid);
}

HRESULT registerTypeLibrary(RegistrationScope scope, const Library& library, std::wstring path) {
    return scope == RegistrationScope::Machine ? RegisterTypeLib(library.info.get(), path.data(), nullptr)
                                               : RegisterTypeLibForUser(library.info.get(), path.data(), nullptr);
}

void unregisterTypeLibrary(RegistrationScope scope, const TLIBATTR& attributes) {
    const auto unregister = scope == RegistrationScope::Machine ? UnRegisterTypeLib : UnRegisterTypeLibForUser;
    unregister(attributes.guid, attributes.wMajorVerNum, attributes.wMinorVerNum, attributes.lcid, attributes.syskind);
}

void removeTree(RegistrationScope scope, const std::wstring& key) {
    RegDeleteTreeW(rootOf(scope), (kClasses + key).c_str());
}

/// Whether a key is there for the 64-bit programs of the machine or for its 32-bit ones. Each have classes of
/// their own, and share the names of the classes.
bool isInEitherView(RegistrationScope scope, const std::wstring& key) {
    constexpr REGSAM kViews[] = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};
    return std::any_of(std::begin(kViews), std::end(kViews), [&](REGSAM view) {
        HKEY found = nullptr;
        const LSTATUS status =
            RegOpenKeyExW(rootOf(scope), (kClasses + key).c_str(), 0, KEY_QUERY_VALUE | view, &found);
        if (status == ERROR_SUCCESS) {
            RegCloseKey(found);
        }
        return status == ERROR_SUCCESS;
    });
}

/// Removes a key unless somebody else has put something below it.
void removeIfEmpty(RegistrationScope scope, const std::wstring& key) {
    RegDeleteKeyW(rootOf(scope), (kClasses + key).c_str());
}

}  // namespace

HRESULT registerClasses(RegistrationScope scope) {
    Library library;
    HRESULT outcome = read(library);
    if (FAILED(outcome)) {
        return outcome;
    }
    const std::wstring path = Module::path();
    Writer writer(scope);
    for (const CreatableClass& creatable : library.classes) {
        write(writer, creatable, library, path);
    }
    outcome = writer.outcome();
    if (SUCCEEDED(outcome)) {
        outcome = registerTypeLibrary(scope, library, path);
    }
    if (FAILED(outcome)) {
        unregisterClasses(scope);
    }
    return outcome;
}

HRESULT unregisterClasses(RegistrationScope scope) {
    Library library;
    const HRESULT outcome = read(library);
    if (FAILED(outcome)) {
        return outcome;
    }
    for (const CreatableClass& creatable : library.classes) {
        removeTree(scope, creatable.clsidKey());
        if (!isInEitherView(scope, creatable.clsidKey())) {
            removeTree(scope, creatable.progId());
            removeTree(scope, creatable.versionedProgId());
        }
    }
    unregisterTypeLibrary(scope, library.attributes);
    removeIfEmpty(scope, L"TypeLib\\" + wide(library.attributes.guid));
    // A user may have had no classes of his own before.
    for (const wchar_t* folder : {L"CLSID", L"Interface", L"TypeLib"}) {
        removeIfEmpty(scope, folder);
    }
    return S_OK;
}

}  // namespace quorvel::host

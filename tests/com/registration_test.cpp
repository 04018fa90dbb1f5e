#include <algorithm>
#include <set>

#include "library.h"

namespace comtests {
namespace {

/// The keys below the classes of a root that a registration may add, down to the second level.
std::set<std::wstring> classKeys(HKEY root) {
    std::set<std::wstring> keys;
    const auto enumerate = [&](const std::wstring& parent) {
        HKEY key = nullptr;
        const std::wstring path = L"Software\\Classes" + parent;
        if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) return;
        wchar_t name[256];
        DWORD length = 256;
        for (DWORD i = 0; RegEnumKeyExW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
             ++i) {
            keys.insert(parent + L"\\" + name);
            length = 256;
        }
        RegCloseKey(key);
    };
    for (const std::wstring width : {L"", L"\\Wow6432Node"}) {
        for (const std::wstring folder : {L"", L"\\CLSID", L"\\Interface", L"\\TypeLib"}) enumerate(width + folder);
    }
    return keys;
}

std::wstring value(HKEY root, const std::wstring& key, const wchar_t* name = nullptr) {
    wchar_t text[512] = {};
    DWORD size = sizeof(text);
    const std::wstring path = L"Software\\Classes\\" + key;
    return RegGetValueW(root, path.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) == ERROR_SUCCESS ? text
                                                                                                        : L"missing";
}

/// The type library is registered for programs of this width.
constexpr const wchar_t* kSystem = sizeof(void*) == sizeof(std::int64_t) ? L"win64" : L"win32";

DWORD run(std::wstring command) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    DWORD status = ~0U;
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &status);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    return status;
}

DWORD regsvr32(const std::wstring& switches) {
    return run(L"regsvr32 /s " + switches + L" \"" + Library::path() + L"\"");
}

std::wstring progId(const CreatableClass& creatable) {
    return std::wstring(L"QuorvelTemplate.") + creatable.name;
}

/// Begins without the library in the registry, and leaves it there as it was.
class Registration : public testing::Test {
protected:
    Registration() {
        CLSID clsid;
        mWasRegistered = SUCCEEDED(CLSIDFromProgID(L"QuorvelTemplate.Main2", &clsid));
        EXPECT_EQ(regsvr32(L"/u"), 0u);
    }
    ~Registration() override { EXPECT_EQ(mWasRegistered ? regsvr32(L"") : 0, 0u); }

private:
    bool mWasRegistered;
};

/// What the registration of one scope writes, as a client looks it up.
void expectRegistered(HKEY root) {
    for (const CreatableClass& creatable : kClasses) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(creatable.name)));
        wchar_t text[40];
        StringFromGUID2(creatable.clsid, text, 40);
        const std::wstring clsid = text;
        const std::wstring key = L"CLSID\\" + clsid;
        EXPECT_EQ(value(root, key + L"\\InprocServer32"), Library::path());
        EXPECT_EQ(value(root, key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
        EXPECT_EQ(value(root, key + L"\\ProgID"), progId(creatable) + L".1");
        EXPECT_EQ(value(root, key + L"\\VersionIndependentProgID"), progId(creatable));
        EXPECT_EQ(value(root, key + L"\\Programmable"), L"");
        EXPECT_EQ(value(root, progId(creatable) + L"\\CurVer"), progId(creatable) + L".1");
        EXPECT_EQ(value(root, progId(creatable) + L"\\CLSID"), clsid);
        EXPECT_EQ(value(root, progId(creatable) + L".1\\CLSID"), clsid);
        const std::wstring folder = L"TypeLib\\" + value(root, key + L"\\TypeLib");
        // Wine registers no type libraries for one user.
        if (root == HKEY_LOCAL_MACHINE) {
            EXPECT_EQ(value(root, folder + L"\\" + value(root, key + L"\\Version") + L"\\0\\" + kSystem),
                      Library::path());
        }
    }
}

TEST_F(Registration, IsCompleteMayBeRepeatedAndLeavesNothing) {
    struct Scope {
        HKEY root;
        // Said in two ways, each of them once.
        const wchar_t* on[2];
        const wchar_t* off[2];
    };
    const Scope scopes[] = {{HKEY_LOCAL_MACHINE, {L"", L"/n /i"}, {L"/u", L"/u /n /i"}},
                            {HKEY_CURRENT_USER, {L"/n /i:user", L"/n /i:user"}, {L"/u /n /i:user", L"/u /n /i:user"}}};
    for (const Scope& scope : scopes) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(scope.on[1])));
        const auto machine = classKeys(HKEY_LOCAL_MACHINE);
        const auto user = classKeys(HKEY_CURRENT_USER);
        for (const wchar_t* on : scope.on) {
            EXPECT_EQ(regsvr32(on), 0u);
            expectRegistered(scope.root);
        }
        EXPECT_NE(classKeys(scope.root), scope.root == HKEY_LOCAL_MACHINE ? machine : user);
        for (const wchar_t* off : scope.off) {
            EXPECT_EQ(regsvr32(off), 0u);
            EXPECT_EQ(classKeys(HKEY_LOCAL_MACHINE), machine);
            EXPECT_EQ(classKeys(HKEY_CURRENT_USER), user);
        }
    }
    EXPECT_NE(regsvr32(L"/n /i:nobody"), 0u);
    EXPECT_EQ(value(HKEY_LOCAL_MACHINE, L"QuorvelTemplate.Main2"), L"missing");
}

TEST_F(Registration, NamesStayWhileTheLibraryOfTheOtherWidthIsRegistered) {
    constexpr REGSAM kOtherWidth = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    BOOL isOn64Bits = sizeof(void*) == 8;
    if (isOn64Bits == FALSE) IsWow64Process(GetCurrentProcess(), &isOn64Bits);
    if (isOn64Bits == FALSE) GTEST_SKIP() << "there is one width here";
    wchar_t clsid[40];
    StringFromGUID2(kClasses[0].clsid, clsid, 40);
    const std::wstring otherKey = std::wstring(L"Software\\Classes\\CLSID\\") + clsid;
    HKEY other = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, otherKey.c_str(), 0, nullptr, 0, KEY_WRITE | kOtherWidth, nullptr,
                              &other, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(other);
    EXPECT_EQ(regsvr32(L""), 0u);
    EXPECT_EQ(regsvr32(L"/u"), 0u);
    for (const wchar_t* version : {L"", L".1"}) {
        EXPECT_EQ(value(HKEY_LOCAL_MACHINE, progId(kClasses[0]) + version + L"\\CLSID"), clsid);
        EXPECT_EQ(value(HKEY_LOCAL_MACHINE, progId(kClasses[1]) + version + L"\\CLSID"), L"missing");
    }
    EXPECT_EQ(RegDeleteKeyExW(HKEY_LOCAL_MACHINE, otherKey.c_str(), kOtherWidth, 0), ERROR_SUCCESS);
    EXPECT_EQ(regsvr32(L"/u"), 0u);
    EXPECT_EQ(value(HKEY_LOCAL_MACHINE, progId(kClasses[0]) + L"\\CLSID"), L"missing");
}

TEST_F(Registration, MakesEveryClassByItsName) {
    EXPECT_THROW(LateBoundObject::create(L"QuorvelTemplate.Main2"), ComError);
    ASSERT_EQ(regsvr32(L""), 0u);
    for (const CreatableClass& creatable : kClasses) {
        for (const wchar_t* version : {L"", L".1"}) {
            EXPECT_TRUE(LateBoundObject::create(progId(creatable) + version)) << creatable.name;
        }
    }
    // As a script does it: everything by name, the element without a factory too.
    const LateBoundObject main = LateBoundObject::create(L"QuorvelTemplate.Main2");
    EXPECT_EQ(textOf(LateBoundObject(objectOf(main.call(L"build", {6, Variant()}))).call(L"formatStr", {L"[1990]"})),
              L"[1990]");
    const LateBoundObject place = LateBoundObject::create(L"QuorvelTemplate.OutputTemplatePlace");
    place.call(L"Initialize", {Variant()});
    EXPECT_EQ(textOf(place.call(L"formatStr", {L"Paris"})), L"Paris");
}

TEST_F(Registration, IsNotNeededWithTheManifest) {
    CLSID clsid;
    EXPECT_TRUE(FAILED(CLSIDFromProgID(L"QuorvelTemplate.Main2", &clsid)));
    std::wstring manifest = Library::path();
    manifest.replace(manifest.rfind(L'\\') + 1, std::wstring::npos, L"QuorvelTemplate.X.manifest");
    ACTCTXW description = {};
    description.cbSize = sizeof(description);
    description.lpSource = manifest.c_str();
    const HANDLE context = CreateActCtxW(&description);
    ASSERT_NE(context, INVALID_HANDLE_VALUE) << GetLastError();
    for (const CreatableClass& creatable : kClasses) {
        ComPointer<IDispatch> object;
        EXPECT_EQ(CoCreateInstance(creatable.clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid()),
                  REGDB_E_CLASSNOTREG);
        ULONG_PTR cookie = 0;
        ASSERT_TRUE(ActivateActCtx(context, &cookie));
        EXPECT_EQ(CoCreateInstance(creatable.clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.putVoid()),
                  S_OK);
        // By its name it has another class id, which is good in the context only.
        EXPECT_TRUE(LateBoundObject::create(progId(creatable)));
        DeactivateActCtx(0, cookie);
        if (!object) continue;
        // Outside the context too: the type library is the library's own.
        EXPECT_FALSE(membersOf(LateBoundObject(object)).empty()) << creatable.name;
    }
    ReleaseActCtx(context);
    CoFreeUnusedLibraries();
}

}  // namespace
}  // namespace comtests

#include <algorithm>
#include <fstream>
#include <sstream>

#include "library.h"
#include "text/text_io.h"

namespace comtests {
namespace {

/// A text that the platform gives away.
struct Bstr {
    BSTR text = nullptr;
    Bstr() = default;
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    ~Bstr() { SysFreeString(text); }
    std::wstring get() const { return {text, SysStringLen(text)}; }
};

std::wstring textOfGuid(const GUID& id) {
    wchar_t text[40];
    return std::wstring(text, static_cast<std::size_t>(StringFromGUID2(id, text, 40)) - 1);
}

struct Documentation {
    std::wstring name;
    std::wstring help;
};

Documentation documentation(ITypeInfo* info, MEMBERID id = MEMBERID_NIL) {
    Bstr name;
    Bstr help;
    EXPECT_EQ(info->GetDocumentation(id, &name.text, &help.text, nullptr, nullptr), S_OK);
    return {name.get(), help.get()};
}

/// A window handle, or the parameter of a message: an integer as wide as a pointer, which is a VT_I4 in 32 bits
/// and a VT_I8 in 64.
bool isNameOfPointerSized(std::wstring name) {
    CharLowerBuffW(name.data(), static_cast<DWORD>(name.size()));
    const std::wstring_view endings[] = {L"hwnd", L"handle", L"wparam", L"lparam"};
    return std::any_of(std::begin(endings), std::end(endings),
                       [&](std::wstring_view ending) { return name.ends_with(ending); });
}

std::wstring typeName(const TYPEDESC& type, const std::wstring& name) {
    if (isNameOfPointerSized(name)) {
        const TYPEDESC& integer = type.vt == VT_PTR ? *type.lptdesc : type;
        EXPECT_EQ(integer.vt, kPointerSized) << testing::PrintToString(name);
        if (integer.vt == kPointerSized) return type.vt == VT_PTR ? L"pointer-sized&" : L"pointer-sized";
    }
    switch (type.vt) {
        // A pointer to an interface is the object itself.
        case VT_PTR: return type.lptdesc->vt == VT_USERDEFINED ? L"object" : typeName(*type.lptdesc, {}) + L"&";
        case VT_I2: return L"integer";
        case VT_I4: return L"long";
        case VT_R4: return L"single";
        case VT_BSTR: return L"text";
        case VT_BOOL: return L"boolean";
        case VT_VARIANT: return L"variant";
        case VT_DISPATCH: return L"object";
        case VT_SAFEARRAY: return L"array of " + typeName(*type.lptdesc, {});
        case VT_USERDEFINED: return L"object";
        default: return L"type " + std::to_wstring(type.vt);
    }
}

/// "10: 4 build(whichType integer&, formattedString object&) object": place in the vtable, id, and the
/// rest as it is declared; [get] and [let] mark properties, [...] a parameter that may be left out.
std::wstring described(ITypeInfo* info, const FUNCDESC& function) {
    std::vector<BSTR> names(static_cast<std::size_t>(function.cParams) + 1);
    UINT found = 0;
    EXPECT_EQ(info->GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &found), S_OK);
    std::vector<std::wstring> parameters;
    std::wstring result;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& element = function.lprgelemdescParam[i];
        const PARAMDESC& description = element.paramdesc;
        const bool isResult = (description.wParamFlags & PARAMFLAG_FRETVAL) != 0;
        // The names are those of the property that is read: its new value has none, nor has a result.
        const bool isNewValue = function.invkind == INVOKE_PROPERTYPUT && i + 1 == function.cParams;
        const std::wstring name = names[isResult || isNewValue ? 0 : static_cast<std::size_t>(i) + 1];
        std::wstring type = typeName(element.tdesc, name);
        if (isResult) {
            type.pop_back();
            result = L" " + type;
            continue;
        }
        std::wstring parameter = isNewValue ? type : name + L" " + type;
        if ((description.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0) {
            parameter = L"[" + parameter + L" = " + shown(description.pparamdescex->varDefaultValue) + L"]";
        }
        parameters.push_back(parameter);
    }
    const std::wstring member = names[0];
    for (UINT i = 0; i < found; ++i) SysFreeString(names[i]);
    const wchar_t* kind = function.invkind == INVOKE_PROPERTYGET   ? L"[get]"
                          : function.invkind == INVOKE_PROPERTYPUT ? L"[let]"
                                                                   : L"";
    return std::to_wstring(static_cast<std::size_t>(function.oVft) / sizeof(void*)) + L": " +
           std::to_wstring(function.memid) + L" " + member + kind + L"(" + joined(parameters, L", ") + L")" + result;
}

class TypeLibrary : public testing::Test {
protected:
    TypeLibrary() {
        EXPECT_EQ(LoadTypeLibEx(Library::path().c_str(), REGKIND_NONE, mLibrary.put()), S_OK);
        for (UINT i = 0; i < mLibrary->GetTypeInfoCount(); ++i) {
            ComPointer<ITypeInfo> info;
            TYPEATTR* attributes = nullptr;
            EXPECT_EQ(mLibrary->GetTypeInfo(i, info.put()), S_OK);
            EXPECT_EQ(info->GetTypeAttr(&attributes), S_OK);
            switch (attributes->typekind) {
                case TKIND_COCLASS: addClass(info.get(), *attributes); break;
                case TKIND_ENUM: addEnumeration(info.get(), *attributes); break;
                case TKIND_ALIAS: break;
                default: addInterface(info.get(), *attributes);
            }
            info->ReleaseTypeAttr(attributes);
        }
    }

    std::vector<std::wstring> mLines;

private:
    void addClass(ITypeInfo* info, const TYPEATTR& attributes) {
        const Documentation documented = documentation(info);
        HREFTYPE reference = 0;
        ComPointer<ITypeInfo> face;
        EXPECT_EQ(info->GetRefTypeOfImplType(0, &reference), S_OK);
        EXPECT_EQ(info->GetRefTypeInfo(reference, face.put()), S_OK);
        EXPECT_NE(documented.help, L"");
        const bool isCreatable = (attributes.wTypeFlags & TYPEFLAG_FCANCREATE) != 0;
        std::wstring line = (isCreatable ? L"class " : L"class of build ") + documented.name + L" " +
                            textOfGuid(attributes.guid) + L" " + documentation(face.get()).name;
        for (UINT i = 1; i < attributes.cImplTypes; ++i) {
            INT flags = 0;
            EXPECT_EQ(info->GetImplTypeFlags(i, &flags), S_OK);
            EXPECT_EQ(flags, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);
            EXPECT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
            EXPECT_EQ(info->GetRefTypeInfo(reference, face.put()), S_OK);
            line += L" raises " + documentation(face.get()).name;
        }
        mLines.push_back(line);
    }
    void addEnumeration(ITypeInfo* info, const TYPEATTR& attributes) {
        std::wstring line = L"codes " + documentation(info).name;
        for (UINT i = 0; i < attributes.cVars; ++i) {
            VARDESC* constant = nullptr;
            ASSERT_EQ(info->GetVarDesc(i, &constant), S_OK);
            line += L" " + documentation(info, constant->memid).name + L"=" + shown(*constant->lpvarValue);
            info->ReleaseVarDesc(constant);
        }
        EXPECT_NE(documentation(info).help, L"");
        mLines.push_back(line);
    }
    void addInterface(ITypeInfo* info, const TYPEATTR& attributes) {
        const Documentation documented = documentation(info);
        EXPECT_NE(documented.help, L"");
        // Events have no vtable.
        const bool isDual = (attributes.wTypeFlags & TYPEFLAG_FDUAL) != 0;
        mLines.push_back((isDual ? L"interface " : L"events ") + documented.name + L" " + textOfGuid(attributes.guid));
        ComPointer<ITypeInfo> vtable(info);
        if (isDual) {
            HREFTYPE reference = 0;
            EXPECT_EQ(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
            EXPECT_EQ(info->GetRefTypeInfo(reference, vtable.put()), S_OK);
        }
        FUNCDESC* function = nullptr;
        for (UINT i = 0; SUCCEEDED(vtable->GetFuncDesc(i, &function)); ++i) {
            if (function->memid < 0x60000000) {
                mLines.push_back(L"  " + described(vtable.get(), *function));
                EXPECT_NE(documentation(vtable.get(), function->memid).help, L"");
            }
            vtable->ReleaseFuncDesc(function);
        }
    }

    ComPointer<ITypeLib> mLibrary;
};

// Compiled clients hold these identifiers and places: a line may be added, none may change.
TEST_F(TypeLibrary, IsTheOneThatClientsWereBuiltWith) {
    std::ifstream file(COM_TEST_DATA "/interfaces.txt");
    std::stringstream expected;
    expected << file.rdbuf();
    const std::string lines = toUtf8(joined(mLines, L"\n")) + "\n";
    EXPECT_EQ(lines, expected.str()) << "what there is now is in bin/interfaces.txt";
    if (lines != expected.str()) {
        std::ofstream(std::filesystem::path(Library::path()).parent_path() / "interfaces.txt", std::ios::binary)
            << lines;
    }
}

TEST_F(TypeLibrary, ManifestAndVersionResourceSayTheSame) {
    std::ifstream file(std::filesystem::path(Library::path()).parent_path() / "QuorvelTemplate.X.manifest");
    std::stringstream content;
    content << file.rdbuf();
    const std::wstring manifest = fromUtf8(content.str());
    EXPECT_NE(manifest.find(L"version=\"" COM_TEST_VERSION L".0\""), std::wstring::npos);
    std::size_t classes = 0;
    for (std::size_t at = 0; (at = manifest.find(L"<comClass ", at)) != std::wstring::npos; ++at) ++classes;
    EXPECT_EQ(classes, kClasses.size());
    std::size_t inLibrary = 0;
    for (const std::wstring& line : mLines) inLibrary += line.starts_with(L"class ") ? 1 : 0;
    EXPECT_EQ(inLibrary, allClasses().size());
    for (const CreatableClass& built : kClassesOfBuild) {
        EXPECT_EQ(manifest.find(textOfGuid(built.clsid)), std::wstring::npos) << built.name;
    }
    for (const CreatableClass& creatable : kClasses) {
        const std::wstring progId = std::wstring(L"QuorvelTemplate.") + creatable.name;
        const std::size_t at = manifest.find(L"clsid=\"" + textOfGuid(creatable.clsid));
        ASSERT_NE(at, std::wstring::npos) << creatable.name;
        const std::wstring entry = manifest.substr(at, manifest.find(L"</comClass>", at) - at);
        EXPECT_NE(entry.find(L"progid=\"" + progId + L".1\""), std::wstring::npos);
        EXPECT_NE(entry.find(L"<progid>" + progId + L"</progid>"), std::wstring::npos);
        EXPECT_NE(entry.find(L"threadingModel=\"Apartment\""), std::wstring::npos);
    }

    DWORD handle = 0;
    std::vector<char> resource(GetFileVersionInfoSizeW(Library::path().c_str(), &handle));
    ASSERT_FALSE(resource.empty());
    ASSERT_TRUE(GetFileVersionInfoW(Library::path().c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()));
    VS_FIXEDFILEINFO* version = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(resource.data(), L"\\", reinterpret_cast<void**>(&version), &size));
    for (const auto& [high, low] : {std::pair(version->dwFileVersionMS, version->dwFileVersionLS),
                                    std::pair(version->dwProductVersionMS, version->dwProductVersionLS)}) {
        EXPECT_EQ(
            std::to_wstring(HIWORD(high)) + L"." + std::to_wstring(LOWORD(high)) + L"." + std::to_wstring(HIWORD(low)),
            COM_TEST_VERSION);
        EXPECT_EQ(LOWORD(low), 0);
    }
}

}  // namespace
}  // namespace comtests

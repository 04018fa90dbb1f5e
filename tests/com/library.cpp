#include "library.h"

namespace comtests {

namespace {

constexpr DISPID kFirstIdOfTheBase = 0x60000000;
constexpr wchar_t kDll[] = L"QuorvelTemplate.dll";

template <class Function>
Function entryPoint(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace

const std::vector<CreatableClass> kClasses = {
    {L"Main2", __uuidof(::Main2), __uuidof(_Main2), {}},
    {L"SubFormProxy", __uuidof(::SubFormProxy), __uuidof(_SubFormProxy), {}},
    {L"Callback", __uuidof(::Callback), __uuidof(_Callback), {}},
    {L"OutputTemplateModel", __uuidof(::OutputTemplateModel), __uuidof(_OutputTemplateModel), {}},
    {L"OutputTemplateCitation", __uuidof(::OutputTemplateCitation), __uuidof(_OutputTemplateCitation), {}},
    {L"OutputTemplateAuthor", __uuidof(::OutputTemplateAuthor), __uuidof(_OutputTemplateAuthor), {0, 9}},
    {L"OutputTemplateTitle", __uuidof(::OutputTemplateTitle), __uuidof(_OutputTemplateTitle), {1, 2, 3}},
    {L"OutputTemplateNewspaper", __uuidof(::OutputTemplateNewspaper), __uuidof(_OutputTemplateNewspaper), {4}},
    {L"OutputTemplatePublisher", __uuidof(::OutputTemplatePublisher), __uuidof(_OutputTemplatePublisher), {5}},
    {L"OutputTemplateYear", __uuidof(::OutputTemplateYear), __uuidof(_OutputTemplateYear), {kYear}},
    {L"OutputTemplatePage", __uuidof(::OutputTemplatePage), __uuidof(_OutputTemplatePage), {7}},
    {L"OutputTemplateEdition", __uuidof(::OutputTemplateEdition), __uuidof(_OutputTemplateEdition), {8}},
    {L"OutputTemplateRefersTo", __uuidof(::OutputTemplateRefersTo), __uuidof(_OutputTemplateRefersTo), {12}},
    {L"OutputTemplateOnline", __uuidof(::OutputTemplateOnline), __uuidof(_OutputTemplateOnline), {13}},
    {L"OutputTemplateKeywords", __uuidof(::OutputTemplateKeywords), __uuidof(_OutputTemplateKeywords), {14}},
    {L"OutputTemplateMultiVol", __uuidof(::OutputTemplateMultiVol), __uuidof(_OutputTemplateMultiVol), {10}},
    {L"OutputTemplateMedium", __uuidof(::OutputTemplateMedium), __uuidof(_OutputTemplateMedium), {16}},
    {L"OutputTemplatePlace", __uuidof(::OutputTemplatePlace), __uuidof(_OutputTemplatePlace), {kPlace}},
    {L"OutputTemplateDateTime", __uuidof(::OutputTemplateDateTime), __uuidof(_OutputTemplateDateTime), {kDateTime}},
};

const std::vector<CreatableClass> kClassesOfBuild = {
    {L"OutputTemplateIssue", __uuidof(::OutputTemplateIssue), __uuidof(_OutputTemplateIssue), {11}},
};

std::vector<CreatableClass> allClasses() {
    std::vector<CreatableClass> all = kClasses;
    all.insert(all.end(), kClassesOfBuild.begin(), kClassesOfBuild.end());
    return all;
}

std::wstring Library::path() {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    return program.substr(0, program.find_last_of(L'\\') + 1) + kDll;
}

Library::Library() : mModule(LoadLibraryW(path().c_str())) {
    if (mModule == nullptr) throw ComError{E_FAIL, L"QuorvelTemplate.dll cannot be loaded."};
}

Library::~Library() {
    EXPECT_EQ(canUnloadNow(), S_OK) << "something of the library is still alive";
    if (canUnloadNow() != S_OK) return;
    // The first object pinned it: it stays, with nothing in it that a new load would not have.
    FreeLibrary(mModule);
    EXPECT_EQ(DispatchObject::liveObjects(), mLiveObjects) << "an object of the host was not released";
}

HRESULT Library::getClassObject(REFCLSID clsid, REFIID iid, void** object) const {
    return entryPoint<LPFNGETCLASSOBJECT>(mModule, "DllGetClassObject")(clsid, iid, object);
}

HRESULT Library::canUnloadNow() const {
    return entryPoint<LPFNCANUNLOADNOW>(mModule, "DllCanUnloadNow")();
}

LateBoundObject Library::create(REFCLSID clsid) const {
    ComPointer<IClassFactory> factory;
    EXPECT_EQ(getClassObject(clsid, IID_IClassFactory, factory.putVoid()), S_OK);
    ComPointer<IDispatch> object;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.putVoid()), S_OK);
    return LateBoundObject(object);
}

LateBoundObject Library::create(const CreatableClass& creatable) const {
    if (creatable.codes.empty()) return create(creatable.clsid);
    return build(creatable.codes.front(), makeObject<FormattedText>().get());
}

LateBoundObject Library::build(std::int32_t whichType, IDispatch* formattedStr) const {
    return LateBoundObject(objectOf(main2().call(L"build", {whichType, formattedStr})));
}

std::vector<Member> membersOf(const LateBoundObject& object) {
    std::vector<Member> members;
    ComPointer<ITypeInfo> info;
    EXPECT_EQ(object.dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, info.put()), S_OK);
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &function)); ++i) {
        BSTR name = nullptr;
        UINT count = 0;
        EXPECT_EQ(info->GetNames(function->memid, &name, 1, &count), S_OK);
        // The members of IDispatch itself have ids of their own.
        if (function->memid < kFirstIdOfTheBase) {
            members.push_back({name, function->memid, static_cast<WORD>(function->invkind),
                               static_cast<std::size_t>(function->cParams)});
        }
        SysFreeString(name);
        info->ReleaseFuncDesc(function);
    }
    return members;
}

std::wstring shown(const VARIANT& value) {
    const Variant direct = Variant::copyOf(value);
    const VARTYPE type = direct.get().vt;
    if ((type & VT_ARRAY) != 0) {
        std::vector<std::wstring> elements;
        for (const Variant& element : elementsOf(direct)) elements.push_back(shown(element));
        return L"{" + joined(elements, L", ") + L"}";
    }
    if (type == VT_DISPATCH || type == VT_UNKNOWN) return direct.get().punkVal != nullptr ? L"object" : L"Nothing";
    return type == VT_NULL ? L"Null" : type == VT_ERROR ? L"missing" : textOf(direct);
}

std::wstring joined(const std::vector<std::wstring>& lines, const wchar_t* separator) {
    std::wstring text;
    for (const std::wstring& line : lines) text += (&line == lines.data() ? L"" : separator) + line;
    return text;
}

Variant referenceTo(VARTYPE type, void* variable) {
    Variant reference;
    reference.get().vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.get().byref = variable;
    return reference;
}

HRESULT invoke(IDispatch* object, DISPID id, int kinds, const std::vector<VARIANT>& arguments, VARIANT* result) {
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = (kinds & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters = {reversed.data(), isPut ? &put : nullptr, static_cast<UINT>(reversed.size()),
                             isPut ? 1U : 0U};
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, static_cast<WORD>(kinds), &parameters, result, nullptr,
                          nullptr);
}

DISPID idOf(IDispatch* object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* spelling = const_cast<wchar_t*>(name);
    object->GetIDsOfNames(IID_NULL, &spelling, 1, LOCALE_USER_DEFAULT, &id);
    return id;
}

}  // namespace comtests

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int status = RUN_ALL_TESTS();
    CoUninitialize();
    return status;
}

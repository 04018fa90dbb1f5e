#include <algorithm>

#include "import_patch.h"
#include "recording_service.h"

namespace comtests {
namespace {

using Factory = ServiceTest;

std::wstring interfaceOf(const LateBoundObject& object) {
    ComPointer<ITypeInfo> info;
    BSTR name = nullptr;
    if (!object || FAILED(object.dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, info.put()))) return L"Nothing";
    info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    const std::wstring text(name);
    SysFreeString(name);
    return text;
}

TEST_F(Factory, BuildMakesTheElementOfACodeOrReportsAnEmptyReference) {
    std::vector<std::int32_t> codes = {INT16_MIN, INT16_MAX};
    for (std::int32_t code = -1; code <= 20; ++code) codes.push_back(code);
    const LateBoundObject main = library.main2();
    const auto sink = makeObject<FormattedText>();
    for (const std::int32_t code : codes) {
        std::wstring expected = L"Nothing";
        for (const CreatableClass& creatable : allClasses()) {
            if (std::count(creatable.codes.begin(), creatable.codes.end(), code) > 0) {
                expected = std::wstring(L"_") + creatable.name;
            }
        }
        const LateBoundObject built(objectOf(main.call(L"build", {code, sink.get()})));
        EXPECT_EQ(interfaceOf(built), expected) << code;
        EXPECT_EQ(service.takenErrors(), built ? L"" : L"91 Main2.build") << code;
        // Initialised: the plain variant is there without a Reset. Media are a list.
        constexpr std::int32_t kMedium = 16;
        if (built && code != kMedium && idOf(built.dispatch(), L"Supports") != DISPID_UNKNOWN) {
            EXPECT_TRUE(booleanOf(built.get(L"Supports", {0}))) << code;
        }
    }
}

HRESULT WINAPI loadNothing(LPCOLESTR, REGKIND, ITypeLib**) {
    return TYPE_E_CANTLOADLIBRARY;
}
HRESULT WINAPI loadNothingRegistered(REFGUID, WORD, WORD, LCID, ITypeLib**) {
    return TYPE_E_LIBNOTREGISTERED;
}

TEST_F(Factory, BuildWithoutTypeInformationReportsAnEmptyReference) {
    const LateBoundObject main = library.main2();
    const auto sink = makeObject<FormattedText>();
    {
        const ImportPatch patches[] = {{library.module(), "LoadTypeLibEx", loadNothing},
                                       {library.module(), "LoadRegTypeLib", loadNothingRegistered}};
        ASSERT_TRUE(patches[0] && patches[1]);
        for (const CreatableClass& creatable : allClasses()) {
            if (creatable.codes.empty()) continue;
            EXPECT_FALSE(objectOf(main.call(L"build", {creatable.codes.front(), sink.get()}))) << creatable.name;
            EXPECT_EQ(service.takenErrors(), L"429 Main2.build") << creatable.name;
        }
    }
    EXPECT_TRUE(objectOf(main.call(L"build", {kYear, sink.get()})));
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Factory, BuildTakesItsCodeInAnyForm) {
    std::int16_t integer = kYear;
    std::int32_t wide = kYear;
    Variant variable(L"6");
    Variant real;
    real.get().vt = VT_R8;
    real.get().dblVal = 5.5;
    const auto sink = makeObject<FormattedText>();
    Variant object(sink.get());
    Variant nothing;
    const Variant codes[] = {6,
                             referenceTo(VT_I2, &integer),
                             referenceTo(VT_I4, &wide),
                             L"6",
                             real,
                             referenceTo(VT_VARIANT, &variable.get())};
    const Variant sinks[] = {sink.get(),
                             static_cast<IDispatch*>(nullptr),
                             Variant(),
                             referenceTo(VT_DISPATCH, &object.get().pdispVal),
                             referenceTo(VT_VARIANT, &object.get()),
                             referenceTo(VT_VARIANT, &nothing.get())};
    const LateBoundObject main = library.main2();
    for (const Variant& code : codes) {
        for (const Variant& formatted : sinks) {
            const LateBoundObject built(objectOf(main.call(L"build", {code, formatted})));
            EXPECT_EQ(interfaceOf(built), L"_OutputTemplateYear");
        }
    }
    // What build does not change keeps its type in the caller's variables.
    EXPECT_EQ(variable.get().vt, VT_BSTR);
    EXPECT_EQ(nothing.get().vt, VT_EMPTY);
    EXPECT_EQ(object.get().pdispVal, sink.get());
    EXPECT_EQ(service.takenErrors(), L"");
    for (const Variant& code : {Variant(70000), Variant(L"year"), object}) {
        EXPECT_FALSE(objectOf(main.call(L"build", {code, sink.get()})));
    }
    EXPECT_EQ(service.takenErrors(), L"6 Main2.build; 13 Main2.build; 13 Main2.build");
    EXPECT_TRUE(objectOf(main.call(L"build", {+kYear})));
    EXPECT_EQ(service.takenErrors(), L"449 Main2.build");
}

}  // namespace
}  // namespace comtests

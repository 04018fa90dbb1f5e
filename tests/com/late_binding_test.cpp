#include "recording_service.h"

namespace comtests {
namespace {

using LateBinding = ServiceTest;

std::wstring formatted(const LateBoundObject& element, const Variant& text) {
    return textOf(element.call(L"formatStr", {text}));
}

TEST_F(LateBinding, ParseGivesTheCallersVariableWhatItLeft) {
    const LateBoundObject year = library.build(kYear);
    const auto parse = [&](const Variant& argument) { year.call(L"Parse", {argument}); };
    struct Case {
        const wchar_t* text;
        const wchar_t* left;
    };
    constexpr Case kCases[] = {{L"[1990?]", L"1990"}, {L"n.d.", L""}, {L" 1990 . ", L"1990 "}, {L"1990", L"1990"}};
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::Message() << c.text);
        Variant text(c.text);
        parse(referenceTo(VT_BSTR, &text.get().bstrVal));
        EXPECT_EQ(textOf(text), c.left);
        text = c.text;
        parse(referenceTo(VT_VARIANT, &text.get()));
        EXPECT_EQ(textOf(text), c.left);
        text = c.text;
        // A variable of a script that itself refers to a variable.
        Variant outer = referenceTo(VT_BSTR, &text.get().bstrVal);
        parse(referenceTo(VT_VARIANT, &outer.get()));
        EXPECT_EQ(textOf(text), c.left);
        text = c.text;
        parse(text);
        EXPECT_EQ(textOf(text), c.text);
    }
    BSTR null = nullptr;
    parse(referenceTo(VT_BSTR, &null));
    EXPECT_EQ(null, nullptr);
    // A variable that Parse has nothing to say about stays what it was.
    for (const Variant& value : {Variant(1990), Variant(), Variant(L"")}) {
        Variant variable = value;
        parse(referenceTo(VT_VARIANT, &variable.get()));
        EXPECT_EQ(variable.get().vt, value.get().vt);
    }
}

TEST_F(LateBinding, AMemberFillsEmptyVariables) {
    const LateBoundObject author = library.build(0, makeObject<FormattedText>().get());
    author.call(L"Parse", {L"Smith, John & Lee, Ann"});
    Variant form1;
    Variant form2;
    BSTR typed = nullptr;
    author.call(L"toCitationFormat", {referenceTo(VT_VARIANT, &form1.get()), referenceTo(VT_BSTR, &typed)});
    form2.get().vt = VT_BSTR;
    form2.get().bstrVal = typed;
    EXPECT_NE(textOf(form1).find(L"Smith"), std::wstring::npos);
    EXPECT_EQ(textOf(form2), textOf(author.call(L"toString", {false, true})));
}

TEST_F(LateBinding, ArgumentsByNameMissingAndInSurplus) {
    const LateBoundObject place = library.build(kPlace);
    const LateBoundObject year = library.build(kYear);
    const LateBoundObject dateTime = library.build(kDateTime, makeObject<FormattedText>().get());
    year.callNamed(L"Reset", {{L"noDateString", L"date unknown"},
                              {L"useEnDashForYearRange", true},
                              {L"supportYearForSure", false},
                              {L"CIRCA", L"about"},
                              {L"supportYearGuess", false},
                              {L"supportInPress", true},
                              {L"supportForthcoming", false}});
    EXPECT_EQ(formatted(year, L"n.d."), L"date unknown");
    EXPECT_EQ(formatted(year, L"[c.1990-91]"), L"[about 1990\u201391]");
    EXPECT_EQ(formatted(year, L"forthcoming"), L"In press");
    Variant text(L"[1990]");
    year.callNamed(L"Parse", {{L"previousStr", L"x"}, {L"text", referenceTo(VT_VARIANT, &text.get())}});
    EXPECT_EQ(textOf(text), L"1990");
    EXPECT_EQ(year.tryCall(L"Parse", DISPATCH_METHOD, {}, {{L"texts", L"1990"}}).code, DISP_E_UNKNOWNNAME);

    struct Case {
        std::vector<Variant> arguments;
        std::vector<NamedArgument> named;
        const wchar_t* expected;
        const wchar_t* errors;
    };
    const Variant missing = Variant::missing();
    const Variant press(L"University of Nebraska Press");
    const Case places[] = {
        {{}, {}, L"Lincoln, Nebraska", L""},
        {{missing, missing, press}, {}, L"Lincoln", L""},
        {{Variant(), L"True", press}, {}, L"Lincoln", L""},
        {{false}, {{L"publisherStr", press}}, L"Lincoln", L""},
        {{}, {{L"publisherStr", press}, {L"isFootnote", true}}, L"Lincoln", L""},
        {{false, false, press, L"surplus", 5}, {}, L"Lincoln", L"450 OutputTemplatePlace.toString"},
        // The first argument again, by name.
        {{true}, {{L"isFootnote", false}}, L"Lincoln, Nebraska", L"450 OutputTemplatePlace.toString"},
        {{false, false, library.main2().dispatch()}, {}, L"", L"13 OutputTemplatePlace.toString"},
        {{L"", false, press}, {}, L"", L"13 OutputTemplatePlace.toString"},
    };
    place.call(L"Parse", {L"Lincoln, Nebraska"});
    for (const Case& c : places) {
        service.taken();
        const CallResult result = place.tryCall(L"toString", DISPATCH_METHOD, c.arguments, c.named);
        EXPECT_EQ(result.code, S_OK);
        EXPECT_EQ(textOf(result.value), c.expected) << &c - places;
        EXPECT_EQ(service.takenErrors(), c.errors) << &c - places;
    }
    const Case dates[] = {
        {{}, {}, L"May 5, 2011, 9:15 a.m.", L""},
        {{missing, true}, {}, L"May 5, 2011 (9:15 a.m.)", L""},
        {{Variant(), missing, true}, {}, L"May 5, 2011, 9:15 a.m.", L""},
        {{}, {{L"parenthesize", true}, {L"dateFormat", L"d mmm yyyy"}}, L"5 May 2011 (9:15 a.m.)", L""},
    };
    for (const Case& c : dates) {
        EXPECT_TRUE(dateTime.tryCall(L"Reset", DISPATCH_METHOD, c.arguments, c.named).ok());
        EXPECT_EQ(formatted(dateTime, L"May 5, 2011, 9:15am"), c.expected) << &c - dates;
    }
}

TEST_F(LateBinding, ValuesOfOtherTypesReadAsTextsInUsEnglish) {
    const LateBoundObject year = library.build(kYear);
    Variant real;
    real.get().vt = VT_R8;
    real.get().dblVal = 1990.5;
    Variant date = real;
    date.get().vt = VT_DATE;
    date.get().date = 33000;
    EXPECT_EQ(formatted(year, 1990), L"1990");
    EXPECT_EQ(formatted(year, true), L"True");
    EXPECT_EQ(formatted(year, real), L"1990.5");
    EXPECT_EQ(formatted(year, date), L"1990");
    EXPECT_TRUE(booleanOf(year.get(L"Supports", {L"1"})));
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(LateBinding, PropertiesAndMethodsMixAsScriptsDo) {
    const LateBoundObject year = library.build(kYear);
    const LateBoundObject dateTime = library.build(kDateTime);
    IDispatch* const object = year.dispatch();
    const DISPID id = idOf(object, L"Year");
    const Variant text(L"1990");
    const Variant surplus(5);
    service.taken();
    for (const int kinds : {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF, DISPATCH_PROPERTYPUT | 8}) {
        year.put(L"Year", L"");
        EXPECT_EQ(invoke(object, id, kinds, {text.get()}, nullptr), S_OK);
        EXPECT_EQ(textOf(year.get(L"Year")), L"1990");
    }
    // An index too many is left out, and not the new value.
    year.put(L"Year", L"");
    EXPECT_EQ(invoke(object, id, DISPATCH_PROPERTYPUT, {surplus.get(), text.get()}, nullptr), S_OK);
    EXPECT_EQ(service.takenErrors(), L"450 OutputTemplateYear.Year[Let]");
    for (const wchar_t* member : {L"Year", L"toString"}) {
        for (const int kinds : {DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_METHOD | DISPATCH_PROPERTYGET}) {
            Variant value;
            // A method is called, not read.
            const bool isRead = kinds == DISPATCH_PROPERTYGET && std::wstring_view(member) == L"toString";
            const HRESULT expected = isRead ? DISP_E_MEMBERNOTFOUND : S_OK;
            EXPECT_EQ(invoke(object, idOf(object, member), kinds, {}, &value.get()), expected);
            EXPECT_EQ(textOf(value), isRead ? L"" : L"1990");
            EXPECT_EQ(invoke(object, idOf(object, member), kinds, {}, nullptr), expected);
        }
    }
    dateTime.put(L"value", L"noon", {1});
    EXPECT_EQ(textOf(dateTime.call(L"value", {1})), L"noon");
    EXPECT_EQ(shown(dateTime.get(L"value", {3})), L"");
    EXPECT_EQ(service.takenErrors(), L"9 OutputTemplateDateTime.value[Get]");

    EXPECT_EQ(invoke(object, idOf(object, L"toString"), DISPATCH_PROPERTYPUT, {text.get()}, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(object, id, 0, {}, nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(object, 4711, DISPATCH_METHOD, {}, nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    DISPPARAMS hollow = {nullptr, nullptr, 1, 1};
    EXPECT_EQ(object->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &hollow, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
    for (const wchar_t* name : {L"YEAR", L"year", L"yEAR"}) EXPECT_EQ(idOf(object, name), id);
    EXPECT_EQ(idOf(object, L"years"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(object, L""), DISPID_UNKNOWN);
    EXPECT_EQ(object->GetIDsOfNames(IID_NULL, nullptr, 1, 0, nullptr), E_POINTER);
    EXPECT_EQ(object->GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(object->GetTypeInfo(0, 0, nullptr), E_POINTER);
    ComPointer<ITypeInfo> info;
    EXPECT_EQ(object->GetTypeInfo(1, 0, info.put()), DISP_E_BADINDEX);
}

/// An array of empty elements with any lower bound.
Variant arrayOf(VARTYPE type, LONG lower, ULONG count) {
    SAFEARRAYBOUND bound = {count, lower};
    Variant array;
    array.get().parray = SafeArrayCreate(type, 1, &bound);
    array.get().vt = static_cast<VARTYPE>(VT_ARRAY | type);
    return array;
}

std::wstring shownFromZero(Variant& array) {
    array.get().parray->rgsabound[0].lLbound = 0;
    return shown(array);
}

TEST_F(LateBinding, ArraysInAndOut) {
    const LateBoundObject place = library.build(kPlace);
    const Variant states = place.get(L"States");
    EXPECT_EQ(states.get().vt, VT_ARRAY | VT_VARIANT);
    LONG lower = -1;
    SafeArrayGetLBound(states.get().parray, 1, &lower);
    EXPECT_EQ(lower, 0);
    ASSERT_EQ(elementsOf(states).size(), 56u);
    EXPECT_EQ(textOf(elementsOf(states)[7]), L"Colorodo");
    EXPECT_EQ(textOf(elementsOf(place.call(L"DefaultAbbreviations"))[55]), L"WY");

    const LateBoundObject dateTime = library.build(kDateTime, makeObject<FormattedText>().get());
    dateTime.call(L"Parse", {L"2011-09-01 23:59 -05:00"});
    const auto fill = [&](const Variant& items, const Variant& fragments) {
        return booleanOf(dateTime.call(L"ToFormattedStringImpl", {false, items, fragments, false}));
    };
    const Variant noFragments(static_cast<IDispatch*>(nullptr));
    for (const VARTYPE type : {VARTYPE{VT_BSTR}, VARTYPE{VT_VARIANT}}) {
        for (const LONG first : {0L, 1L, -3L, LONG_MIN, LONG_MAX - 3}) {
            Variant items = arrayOf(type, first, 4);
            Variant fragments = arrayOf(VT_DISPATCH, 0, 3);
            assignElement(fragments.get(), 0, makeObject<FormattedText>().get());
            fragments.get().parray->rgsabound[0].lLbound = first;
            EXPECT_FALSE(fill(referenceTo(items.get().vt, &items.get().parray),
                              referenceTo(fragments.get().vt, &fragments.get().parray)));
            EXPECT_EQ(shownFromZero(fragments), L"{object, Nothing, Nothing}");
            EXPECT_EQ(shownFromZero(items), L"{September 1, 2011, 23:59, -05:00, }");
            items = arrayOf(type, first, 3);
            EXPECT_FALSE(fill(referenceTo(VT_VARIANT, &items.get()), noFragments));
            EXPECT_EQ(shownFromZero(items), L"{September 1, 2011, 23:59, -05:00}");
            items = arrayOf(type, first, 3);
            EXPECT_FALSE(fill(items, noFragments));
            EXPECT_EQ(shownFromZero(items), L"{, , }") << "passed by value";
        }
    }
    EXPECT_EQ(service.takenErrors(), L"");

    const auto script = makeObject<DispatchObject>();
    script->addMethod(L"length", [](const Arguments&, VARIANT& result) {
        result = Variant(INT32_MAX).release();
        return S_OK;
    });
    constexpr const wchar_t* kTooShort = L"9 OutputTemplateDateTime.ToFormattedStringImpl";
    struct Case {
        Variant items;
        const wchar_t* errors;
    };
    SAFEARRAYBOUND square[] = {{3, 0}, {3, 0}};
    Variant twoDimensions;
    twoDimensions.get().vt = VT_ARRAY | VT_VARIANT;
    twoDimensions.get().parray = SafeArrayCreate(VT_VARIANT, 2, square);
    Variant null;
    null.get().vt = VT_ARRAY | VT_BSTR;
    const Case unusable[] = {
        {arrayOf(VT_BSTR, 0, 2), kTooShort},
        {arrayOf(VT_VARIANT, 0, 0), kTooShort},
        {null, kTooShort},
        {Variant(), kTooShort},
        {Variant::missing(),
         L"449 OutputTemplateDateTime.ToFormattedStringImpl; 9 OutputTemplateDateTime.ToFormattedStringImpl"},
        {arrayOf(VT_I2, 0, 3), L"13 OutputTemplate.ToFormattedStringImpl"},
        {arrayOf(VT_DECIMAL, 0, 3), L"13 OutputTemplate.ToFormattedStringImpl"},
        {twoDimensions, L"9 OutputTemplate.ToFormattedStringImpl"},
        {L"text", L"13 OutputTemplate.ToFormattedStringImpl"},
        // As long as it says, it would take for ever.
        {script.get(), L"6 OutputTemplate.ToFormattedStringImpl"},
    };
    for (const Case& c : unusable) {
        Variant items = c.items;
        fill(referenceTo(VT_VARIANT, &items.get()), noFragments);
        EXPECT_EQ(service.takenErrors(), c.errors) << &c - unusable;
        EXPECT_EQ(items.get().vt, c.items.get().vt) << &c - unusable;
    }
}

TEST_F(LateBinding, ARecordReachesItsElementAndOutlivesIt) {
    constexpr std::int32_t kPage = 7;
    constexpr std::int32_t kEdition = 8;
    Variant record;
    {
        const LateBoundObject page = library.build(kPage);
        const auto sink = makeObject<FormattedText>();
        const LateBoundObject edition = library.build(kEdition);
        edition.call(L"Initialize", {sink.get()});
        // Of the build without a sink.
        service.takenErrors();
        edition.call(L"Reset", {1, page.dispatch()});
        edition.call(L"Parse", {L"(Original work published 1925)"});
        record = edition.get(L"EditionBookChapterYear");
        const LateBoundObject values(objectOf(record));
        EXPECT_EQ(textOf(values.get(L"Year")), L"1925");
        values.put(L"Title", L"Manual");
        values.put(L"Page", L"12-14");
        // Another one is the same record.
        const LateBoundObject again(objectOf(edition.get(L"EditionBookChapterYear")));
        EXPECT_EQ(textOf(again.get(L"Title")), L"Manual");
        EXPECT_EQ(textOf(edition.call(L"toString")), L"(Reprinted from Manual, pp. 12-14, 1925)");
        // Any other object is no page element.
        edition.call(L"Reset", {2, edition.dispatch()});
        EXPECT_EQ(textOf(edition.call(L"toString")), L"Rpt. of Manual (1925): 12-14");
    }
    EXPECT_EQ(textOf(LateBoundObject(objectOf(record)).get(L"Page")), L"12-14");
    EXPECT_EQ(service.takenErrors(), L"");
}

}  // namespace
}  // namespace comtests

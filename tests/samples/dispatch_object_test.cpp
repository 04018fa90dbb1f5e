#include "com/dispatch_object.h"

#include <gtest/gtest.h>

#include "com/late_bound.h"
#include "text/formatted_text.h"
#include "writing/reference_model.h"

namespace sample {
namespace {

// A host object that can be told to do anything, as a test of the library would use it.
ComPointer<DispatchObject> objectWith(const wchar_t* name, DispatchObject::Function function) {
    ComPointer<DispatchObject> object = makeObject<DispatchObject>();
    object->addMethod(name, std::move(function));
    return object;
}

LateBoundObject caller(const ComPointer<DispatchObject>& object) {
    return LateBoundObject(object.get());
}

TEST(DispatchObject, NamesAreFoundInAnyLetterCaseAndArgumentsComeInNaturalOrder) {
    std::wstring seen;
    const auto object = objectWith(L"toString", [&](const Arguments& arguments, VARIANT& result) {
        seen = arguments.text(0) + L"," + std::to_wstring(arguments.number(1)) + L"," +
               (arguments.boolean(2) ? L"yes" : L"no");
        result = Variant(L"answer").release();
        return S_OK;
    });
    for (const wchar_t* name : {L"toString", L"TOSTRING", L"tostring"}) {
        EXPECT_EQ(textOf(caller(object).call(name, {L"first", 2, true})), L"answer");
        EXPECT_EQ(seen, L"first,2,yes");
        seen.clear();
    }
    EXPECT_EQ(caller(object).tryCall(L"toStrings", DISPATCH_METHOD, {}).code, DISP_E_UNKNOWNNAME);
}

TEST(DispatchObject, ArgumentsByReferenceAreWrittenInTheCallersType) {
    const auto object = objectWith(L"fill", [](const Arguments& arguments, VARIANT&) {
        assign(arguments[0], Variant(42));
        return S_OK;
    });
    Variant text(L"before");
    Variant untyped(L"before");
    std::int16_t number = 0;
    VARIANT numberByReference{};
    numberByReference.vt = VT_BYREF | VT_I2;
    numberByReference.piVal = &number;
    Variant integer;
    integer.get() = numberByReference;

    caller(object).call(L"fill", {Variant::byReference(text.get().bstrVal)});
    EXPECT_EQ(textOf(text), L"42");
    caller(object).call(L"fill", {Variant::byReference(untyped.get())});
    EXPECT_EQ(untyped.get().vt, VT_I4);
    EXPECT_EQ(numberOf(untyped), 42);
    caller(object).call(L"fill", {integer});
    EXPECT_EQ(number, 42);
    const CallResult byValue = caller(object).tryCall(L"fill", DISPATCH_METHOD, {Variant(1)});
    EXPECT_FALSE(byValue.ok());
    EXPECT_NE(byValue.error.find(L"not passed by reference"), std::wstring::npos);
}

TEST(DispatchObject, ArraysOfEveryTypeAreReadAndFilled) {
    const auto object = objectWith(L"fill", [](const Arguments& arguments, VARIANT& result) {
        const std::vector<Variant> before = elementsOf(arguments[0]);
        assignElement(arguments[0], static_cast<LONG>(before.size()) - 1, Variant(L"-1"));
        result = Variant::array(before).release();
        return S_OK;
    });
    for (const VARTYPE type : {VARTYPE{VT_BSTR}, VARTYPE{VT_BOOL}, VARTYPE{VT_I2}, VARTYPE{VT_VARIANT}}) {
        SAFEARRAY* array = SafeArrayCreateVector(type, 0, 3);
        const Variant answer = caller(object).call(L"fill", {Variant::byReference(array, type)});
        EXPECT_EQ(elementsOf(answer).size(), 3u) << type;
        Variant filled;
        filled.get().vt = static_cast<VARTYPE>(VT_ARRAY | type);
        filled.get().parray = array;
        EXPECT_EQ(numberOf(elementsOf(filled)[2]), -1) << type;
    }
}

TEST(DispatchObject, PropertiesAreReadAndSetWithAnIndexBeforeTheValue) {
    const auto model = makeObject<ReferenceModel>();
    const LateBoundObject late(model.get());
    late.put(L"value", L"a note", {4});
    late.put(L"Value", true, {std::int16_t{7}});
    EXPECT_EQ(textOf(late.get(L"value", {4})), L"a note");
    EXPECT_EQ(textOf(late.get(L"value", {7})), L"True");
    EXPECT_EQ(textOf(late.get(L"value", {99})), L"");
    const CallResult noIndex = late.tryCall(L"value", DISPATCH_PROPERTYGET, {});
    EXPECT_NE(noIndex.error.find(L"An argument is missing."), std::wstring::npos);
}

TEST(DispatchObject, AnythingThatAMemberThrowsIsAFailureOfTheCall) {
    const auto object = objectWith(L"break", [](const Arguments& arguments, VARIANT&) -> HRESULT {
        if (arguments.size() == 0) return E_ABORT;
        if (arguments.boolean(0)) throw ComError{DISP_E_OVERFLOW, L"Too much."};
        throw std::string("anything");
    });
    EXPECT_EQ(caller(object).tryCall(L"break", DISPATCH_METHOD, {}).code, E_ABORT);
    EXPECT_EQ(caller(object).tryCall(L"break", DISPATCH_METHOD, {true}).error, L"break: Too much.");
    EXPECT_EQ(caller(object).tryCall(L"break", DISPATCH_METHOD, {false}).error, L"break: The host failed.");
    EXPECT_EQ(caller(object).tryCall(L"break", DISPATCH_PROPERTYPUT, {1}).code, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(LateBoundObject().tryCall(L"break", DISPATCH_METHOD, {}).code, E_POINTER);
}

TEST(DispatchObject, AMemberMayReleaseOrExtendItsOwnObject) {
    const long before = DispatchObject::liveObjects();
    ComPointer<DispatchObject> held = makeObject<DispatchObject>();
    IDispatch* raw = held.get();
    held->addMethod(L"replace", [&](const Arguments&, VARIANT& result) {
        for (int i = 0; i < 50; ++i) {
            held->addMethod(L"more" + std::to_wstring(i), [](const Arguments&, VARIANT&) { return S_OK; });
        }
        held.reset();
        result = Variant(L"still here").release();
        return S_OK;
    });
    DISPID id = 0;
    wchar_t name[] = L"replace";
    LPOLESTR names[] = {name};
    ASSERT_EQ(raw->GetIDsOfNames(IID_NULL, names, 1, 0, &id), S_OK);
    DISPPARAMS none{};
    Variant result;
    EXPECT_EQ(raw->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &none, &result.get(), nullptr, nullptr), S_OK);
    EXPECT_EQ(textOf(result), L"still here");
    EXPECT_EQ(DispatchObject::liveObjects(), before);
}

TEST(DispatchObject, OnlyOwnObjectsAreRecognised) {
    const auto own = makeObject<FormattedText>();
    EXPECT_EQ(DispatchObject::behind(own.get()), own.get());
    EXPECT_EQ(DispatchObject::behind(nullptr), nullptr);
    ComPointer<IUnknown> foreign;
    ASSERT_EQ(CoInitialize(nullptr), S_OK);
    CreateBindCtx(0, reinterpret_cast<IBindCtx**>(foreign.put()));
    ASSERT_TRUE(foreign);
    EXPECT_EQ(DispatchObject::behind(foreign.get()), nullptr);
    foreign.reset();
    CoUninitialize();
}

TEST(Variant, ReadsAsVisualBasicDoesInEnglish) {
    EXPECT_EQ(textOf(Variant(true)), L"True");
    EXPECT_EQ(textOf(Variant()), L"");
    EXPECT_EQ(booleanOf(Variant(L"False")), false);
    EXPECT_EQ(numberOf(Variant(L"12")), 12);
    EXPECT_FALSE(objectOf(Variant()));
    EXPECT_THROW(numberOf(Variant(L"n.d.")), ComError);
    EXPECT_THROW(objectOf(Variant(L"text")), ComError);
}

}  // namespace
}  // namespace sample

#include <limits>

#include "recording_service.h"

namespace comtests {
namespace {

using HostileCall = LibraryTest;

std::wstring lowerCase(std::wstring text) {
    CharLowerW(text.data());
    return text;
}

/// An object still does what it is for.
void expectWorking(const LateBoundObject& object, const std::wstring& after) {
    if (idOf(object.dispatch(), L"build") != DISPID_UNKNOWN) {
        EXPECT_TRUE(objectOf(object.call(L"build", {kYear, static_cast<IDispatch*>(nullptr)})));
    } else if (idOf(object.dispatch(), L"ShowForm") != DISPID_UNKNOWN) {
        EXPECT_FALSE(booleanOf(object.call(L"ShowForm", {77}))) << after;
    } else if (idOf(object.dispatch(), L"TooltipShow") != DISPID_UNKNOWN) {
        EXPECT_EQ(textOf(object.call(L"WebsiteAddress", {L"spring"})), L"") << after;
    } else if (idOf(object.dispatch(), L"MergeFieldsWithModel") != DISPID_UNKNOWN) {
        const auto sink = makeObject<FormattedText>();
        const auto none = static_cast<IDispatch*>(nullptr);
        object.call(L"Initialize", {sink.get(), false, none, none, none, none});
        object.call(L"Reset", {L", ", true, L"", false, false, false, true, false, false, true, false, false, L" ",
                               L", ", L": "});
        object.call(L"Parse", {L"spring, 1990"});
        object.call(L"ToFormattedString", {sink.get(), none, 0, false, false});
        EXPECT_EQ(sink->toString(), L"(spring, 1990)") << after;
    } else if (idOf(object.dispatch(), L"Parse") == DISPID_UNKNOWN) {
        const auto sink = makeObject<FormattedText>();
        object.call(L"Initialize", {sink.get(), static_cast<IDispatch*>(nullptr)});
        object.call(L"Reset", {0});
        object.call(L"Add", {0, false, L"", Variant::array({L"", L""})});
    } else {
        const auto sink = makeObject<FormattedText>();
        object.call(L"Initialize", {sink.get()});
        object.call(L"Parse", {L"spring"});
        object.call(L"ToFormattedString", {sink.get()});
        EXPECT_EQ(lowerCase(sink->toString()), L"spring") << after;
    }
}

/// Arguments that no declaration asks for, with what they refer to: made anew for each call.
class OddArguments {
public:
    OddArguments() {
        SAFEARRAYBOUND square[] = {{2, 0}, {2, 0}};
        mArray.get().vt = VT_ARRAY | VT_VARIANT;
        mArray.get().parray = SafeArrayCreate(VT_VARIANT, 2, square);
        mForeign.get().vt = VT_UNKNOWN;
        CreateBindCtx(0, reinterpret_cast<IBindCtx**>(&mForeign.get().punkVal));
        mSelf.get() = referenceTo(VT_VARIANT, &mSelf.get()).release();
        mOuter.get() = referenceTo(VT_BSTR, &mText.get().bstrVal).release();
        for (const int type : {VT_I2, VT_I4, VT_UI8, VT_BOOL, VT_DATE, VT_R8, VT_ERROR}) {
            add(type, std::numeric_limits<std::int64_t>::max());
            add(VT_BYREF | type, reinterpret_cast<std::int64_t>(&mNumber));
        }
        // With nothing in them, or referring to nothing; some of these types there are not.
        constexpr int kHollow[] = {
            VT_EMPTY,           VT_NULL,   VT_BSTR, VT_DISPATCH, VT_UNKNOWN,           VT_DECIMAL,
            VT_ARRAY | VT_BSTR, VT_RECORD, VT_PTR,  VT_CLSID,    VT_ARRAY | VT_RECORD, VT_VARIANT,
            VT_VECTOR | VT_I2,  0x0FFF,    77,      VT_I2,       VT_ARRAY | VT_VARIANT};
        for (const int type : kHollow) {
            add(type, 0);
            add(VT_BYREF | type, 0);
        }
        add(VT_ERROR, DISP_E_PARAMNOTFOUND);
        for (Variant* variable : {&mText, &mObject, &mForeign, &mArray, &mSelf, &mOuter}) {
            mAll.push_back(variable->get());
            mAll.push_back(referenceTo(VT_VARIANT, &variable->get()).get());
            if ((variable->get().vt & VT_BYREF) == 0) {
                mAll.push_back(referenceTo(variable->get().vt, &variable->get().byref).get());
            }
        }
    }

    const std::vector<VARIANT>& all() const { return mAll; }

private:
    void add(int type, std::int64_t content) {
        mAll.emplace_back().vt = static_cast<VARTYPE>(type);
        mAll.back().llVal = content;
    }

    std::int64_t mNumber = -1;
    Variant mText = std::wstring(L"te\0xt", 5);
    Variant mObject{makeObject<DispatchObject>().get()};
    Variant mForeign;
    Variant mArray;
    Variant mSelf;
    Variant mOuter;
    // Owned by the variables above.
    std::vector<VARIANT> mAll;
};

TEST_F(HostileCall, NoArgumentMakesAMemberFail) {
    const std::size_t oddCount = OddArguments().all().size();
    for (const CreatableClass& creatable : allClasses()) {
        const LateBoundObject object = library.create(creatable);
        for (const Member& member : membersOf(object)) {
            for (std::size_t position = 0; position < member.parameters; ++position) {
                for (std::size_t odd = 0; odd < oddCount; ++odd) {
                    const OddArguments arguments;
                    std::vector<VARIANT> passed(member.parameters);
                    passed[position] = arguments.all()[odd];
                    Variant result;
                    ASSERT_EQ(invoke(object.dispatch(), member.id, member.kinds, passed, &result.get()), S_OK)
                        << testing::PrintToString(creatable.name + (L"." + member.name)) << " argument " << position
                        << " odd " << odd;
                }
            }
            expectWorking(object, creatable.name + (L"." + member.name));
        }
    }
}

TEST_F(HostileCall, TheVtableTakesNullPointersAndZeros) {
    for (const CreatableClass& creatable : allClasses()) {
        const LateBoundObject object = library.create(creatable);
        ComPointer<ITypeInfo> dispatch;
        ComPointer<ITypeInfo> vtable;
        HREFTYPE reference = 0;
        ASSERT_EQ(object.dispatch()->GetTypeInfo(0, LOCALE_NEUTRAL, dispatch.put()), S_OK);
        ASSERT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
        ASSERT_EQ(dispatch->GetRefTypeInfo(reference, vtable.put()), S_OK);
        FUNCDESC* function = nullptr;
        for (UINT i = 0; SUCCEEDED(vtable->GetFuncDesc(i, &function)); ++i) {
            // Every parameter but a variant is a number of at most a pointer's width, or a pointer: all of them
            // travel alike.
            const auto count = static_cast<std::size_t>(function->cParams);
            std::vector<VARTYPE> types(count, kPointerSized);
            VARIANT zero = {};
            for (std::size_t p = 0; p < count; ++p) {
                if (function->lprgelemdescParam[p].tdesc.vt == VT_VARIANT) types[p] = VT_VARIANT;
            }
            std::vector<VARIANT*> arguments(count, &zero);
            Variant returned;
            const bool isOfTheBase = function->memid >= 0x60000000;
            EXPECT_EQ(isOfTheBase ? S_OK
                                  : DispCallFunc(object.dispatch(), static_cast<ULONG_PTR>(function->oVft), CC_STDCALL,
                                                 VT_ERROR, static_cast<UINT>(count), types.data(), arguments.data(),
                                                 &returned.get()),
                      S_OK);
            EXPECT_EQ(isOfTheBase ? S_OK : returned.get().scode, S_OK) << creatable.name << " member " << i;
            vtable->ReleaseFuncDesc(function);
        }
        expectWorking(object, creatable.name);
    }
}

TEST_F(HostileCall, ANewObjectWithoutInitializeWorksAsFarAsItGoes) {
    for (const CreatableClass& creatable : kClasses) {
        const LateBoundObject object = library.create(creatable.clsid);
        for (const Member& member : membersOf(object)) {
            if (member.name == L"Initialize") continue;
            Variant result;
            EXPECT_EQ(invoke(object.dispatch(), member.id, member.kinds, std::vector<VARIANT>(member.parameters),
                             &result.get()),
                      S_OK);
        }
    }
}

/// An object with a default value.
class Valued final : public DispatchObject {
public:
    std::function<Variant()> value;

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD kinds, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override {
        if (id != DISPID_VALUE) {
            return DispatchObject::Invoke(id, iid, locale, kinds, parameters, result, exception, badArgument);
        }
        const ComPointer<IDispatch> alive(this);
        *result = value().release();
        return S_OK;
    }
};

using HostileHost = ServiceTest;

TEST_F(HostileHost, ADefaultValueIsFollowedAFewSteps) {
    const LateBoundObject year = library.build(kYear);
    const auto inner = makeObject<Valued>();
    const auto outer = makeObject<Valued>();
    inner->value = [] { return Variant(1990); };
    outer->value = [&] { return Variant(inner.get()); };
    EXPECT_EQ(textOf(year.call(L"formatStr", {outer.get()})), L"1990");
    EXPECT_EQ(service.takenErrors(), L"");
    outer->value = [&] { return Variant(outer.get()); };
    EXPECT_EQ(textOf(year.call(L"formatStr", {outer.get()})), L"");
    inner->value = [&] { return Variant(outer.get()); };
    outer->value = [&] { return Variant(inner.get()); };
    EXPECT_EQ(textOf(year.call(L"formatStr", {outer.get()})), L"");
    EXPECT_EQ(service.takenErrors(), L"13 OutputTemplateYear.formatStr; 13 OutputTemplateYear.formatStr");
    inner->value = outer->value = [] { return Variant(); };
}

/// The errors of which all are "out of stack space"; how many there are.
std::size_t errorsOfNesting(RecordingService& service) {
    const std::wstring errors = service.takenErrors() + L"; ";
    std::size_t count = 0;
    for (std::size_t from = 0; errors.size() > 2 && from < errors.size(); from = errors.find(L"; ", from) + 2) {
        EXPECT_EQ(errors.substr(from, 3), L"28 ") << testing::PrintToString(errors.substr(from, 60));
        ++count;
    }
    return count;
}

TEST_F(HostileHost, CallsThatNestWithoutEndAreErrors) {
    // An element that is its own sink: each Clone of it asks it for another one.
    LateBoundObject dateTime = library.build(kDateTime);
    service.taken();
    dateTime.call(L"Initialize", {dateTime.dispatch()});
    EXPECT_GT(errorsOfNesting(service), 0U);
    dateTime.call(L"Initialize", {makeObject<FormattedText>().get()});

    // A sink, a value and an array that answer each call with another one.
    int depth = 0;
    int deepest = 0;
    const auto nested = [&](const std::function<void()>& call) {
        deepest = std::max(deepest, ++depth);
        call();
        --depth;
    };
    for (const CreatableClass& creatable : kClasses) {
        if (creatable.codes.empty()) continue;
        const LateBoundObject element = library.create(creatable);
        const auto sink = makeObject<DispatchObject>();
        sink->addMethod(L"Add", [&](const Arguments&, VARIANT&) {
            nested([&] { element.call(L"ToFormattedString", {sink.get()}); });
            return S_OK;
        });
        sink->addMethod(L"addFormattedString", [](const Arguments&, VARIANT&) { return S_OK; });
        element.call(L"Parse", {L"Smith, John, 1990"});
        service.taken();
        element.call(L"ToFormattedString", {sink.get()});
        EXPECT_EQ(deepest, 100) << creatable.name;
        EXPECT_GT(errorsOfNesting(service), 0U) << creatable.name;
        deepest = 0;
        sink->addMethod(L"Add", nullptr);
        expectWorking(element, creatable.name);
    }
    const LateBoundObject year = library.build(kYear);
    const auto value = makeObject<Valued>();
    value->value = [&] {
        nested([&] { year.call(L"Parse", {value.get()}); });
        return Variant(L"1990");
    };
    EXPECT_EQ(textOf(year.call(L"formatStr", {value.get()})), L"1990");
    EXPECT_GE(deepest, 100);
    EXPECT_GT(errorsOfNesting(service), 0U);
    value->value = [] { return Variant(); };
    // Through the vtable, where nothing is known of the member.
    ComPointer<_OutputTemplateModel> model;
    const LateBoundObject held(objectOf(library.main2().call(L"buildModelTemplate")));
    ASSERT_EQ(held.dispatch()->QueryInterface(__uuidof(_OutputTemplateModel), model.putVoid()), S_OK);
    const auto script = makeObject<DispatchObject>();
    script->addMethod(L"length", [&](const Arguments&, VARIANT& result) {
        nested([&] { model->Add(0, VARIANT_FALSE, nullptr, Variant(script.get()).get()); });
        result = Variant(0).release();
        return S_OK;
    });
    deepest = 0;
    model->Initialize(makeObject<FormattedText>().get(), nullptr);
    model->Reset(0, nullptr, 0);
    service.taken();
    EXPECT_EQ(model->Add(0, VARIANT_FALSE, nullptr, Variant(script.get()).get()), S_OK);
    EXPECT_EQ(deepest, 200);
    // Arrays that got through are too short, too.
    EXPECT_NE(service.takenErrors().find(L"28 "), std::wstring::npos);
    script->addMethod(L"length", nullptr);
}

#ifdef _WIN64
// With 32 bits no exception finds its way through two libraries.
TEST_F(HostileHost, AnExceptionIsAnErrorOfTheCall) {
    /// What no host should be.
    class Throwing final : public DispatchObject {
    public:
        HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { throw 1; }
    };
    const auto sink = makeObject<Throwing>();
    const auto text = makeObject<FormattedText>();
    for (const CreatableClass& creatable : kClasses) {
        if (creatable.codes.empty()) continue;
        const LateBoundObject element = library.create(creatable);
        element.call(L"Parse", {L"Smith, John, 1990"});
        service.taken();
        for (int i = 0; i < 300; ++i) element.call(L"ToFormattedString", {sink.get()});
        EXPECT_TRUE(service.takenErrors().starts_with(L"51 OutputTemplate")) << creatable.name;
        expectWorking(element, creatable.name);
        EXPECT_EQ(service.takenErrors(), L"") << creatable.name;
    }
}
#endif

}  // namespace
}  // namespace comtests

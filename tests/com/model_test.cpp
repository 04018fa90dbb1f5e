#include <functional>

#include "recording_service.h"
#include "writing/reference_model.h"

namespace comtests {
namespace {

constexpr std::int32_t kMedium = 3;

/// A host's implementor: slot 0 plain, slot 1 a fragment, slot 2 plain.
class Reference final : public DispatchObject {
public:
    /// Runs in the middle of `ToFormattedStringImpl`, when it has filled its slots.
    std::function<void(const Arguments&)> meanwhile = [](const Arguments&) {};
    HRESULT outcome = S_OK;
    std::wstring types;
    VARTYPE flagType = VT_EMPTY;
    std::size_t flags = 0;

    Reference() {
        addMethod(L"ToFormattedStringImpl", [this](const Arguments& arguments, VARIANT& result) {
            types = std::to_wstring(arguments[1].vt) + L" " + std::to_wstring(arguments[2].vt);
            assignElement(arguments[1], 0, L"Kuhn");
            assignElement(arguments[1], 2, arguments.boolean(0) ? L"12" : L"1970");
            const std::vector<Variant> fragments = elementsOf(arguments[2]);
            LateBoundObject(objectOf(fragments[1])).call(L"Add", {L"Structure", 1});
            // A copy, since it may set another one.
            const auto action = meanwhile;
            action(arguments);
            result = Variant(false).release();
            return outcome;
        });
        addMethod(L"initChecking", [this](const Arguments& arguments, VARIANT&) {
            flagType = arguments[0].vt;
            flags = elementsOf(arguments[0]).size();
            assignElement(arguments[0], 1, true);
            return S_OK;
        });
    }
};

/// A fragment of the host's own that does something when it goes.
class LastWords final : public DispatchObject {
public:
    explicit LastWords(std::function<void()> words) : mWords(std::move(words)) {
        for (const wchar_t* member : {L"Reset", L"Add"}) {
            addMethod(member, [](const Arguments&, VARIANT&) { return S_OK; });
        }
        addMethod(L"IsEmpty", [](const Arguments&, VARIANT& result) {
            result = Variant(true).release();
            return S_OK;
        });
    }

private:
    ~LastWords() override { mWords(); }

    std::function<void()> mWords;
};

class Model : public ServiceTest {
protected:
    Model() {
        LateBoundObject keys = LateBoundObject::create(L"Scripting.Dictionary");
        keys.call(L"Add", {L"medium", kMedium});
        model.call(L"Initialize", {sink.get(), keys.dispatch()});
        layOut(L"medium=Web||DVD");
    }
    ~Model() override {
        reference->meanwhile = [](const Arguments&) {};
    }

    void layOut(const wchar_t* checkingKey) {
        model.call(L"Reset", {2, L"", 4});
        // Texts in an array of variants, of texts, and of a caller who left the last one out.
        model.call(L"Add", {0, false, L"", Variant::array({L"", L". ", L" ", L"."})});
        SAFEARRAY* separators = SafeArrayCreateVector(VT_BSTR, 1, 6);
        const wchar_t* const kSeparators[] = {L"", L", ", L".", L"", L" on ", L"!"};
        for (LONG i = 0; i < 6; ++i) {
            LONG index = i + 1;
            SafeArrayPutElement(separators, &index, Variant(kSeparators[i]).get().bstrVal);
        }
        model.call(L"Add", {1, true, checkingKey, Variant::byReference(separators, VT_BSTR)});
        SafeArrayDestroy(separators);
        model.call(L"Add", {2, false, L"", Variant::array({L"", L"."})});
    }
    std::wstring output(bool isFootnote = false) {
        sink->reset();
        model.call(L"ToFormattedString", {sink.get(), reference.get(), fields.get(), false, isFootnote});
        return sink->toString();
    }

    LateBoundObject model = LateBoundObject(objectOf(library.main2().call(L"buildModelTemplate")));
    ComPointer<FormattedText> sink = makeObject<FormattedText>();
    ComPointer<Reference> reference = makeObject<Reference>();
    ComPointer<ReferenceModel> fields = makeObject<ReferenceModel>();
};

TEST_F(Model, WritesAReferenceOfTheHostsImplementor) {
    EXPECT_EQ(output(), L"Kuhn. Structure, 1970.");
    ASSERT_EQ(sink->phrases().size(), 3u);
    EXPECT_EQ(sink->phrases()[1].font, 1);
    EXPECT_EQ(sink->pageIndex(), 8);
    EXPECT_EQ(reference->types, std::to_wstring(VT_BYREF | VT_ARRAY | VT_BSTR) + L" " +
                                    std::to_wstring(VT_BYREF | VT_ARRAY | VT_DISPATCH));
    fields->set(kMedium, L"DVD");
    EXPECT_EQ(output(), L"Kuhn. Structure on 1970.");
    fields->set(7, L"True");
    fields->set(4, L"See Laudan");
    EXPECT_EQ(output(true), L"Kuhn. Structure on 12.  See Laudan.");

    layOut(L"medium=__CALLBACK_FOR_CHECKING__");
    fields->set(7, L"");
    EXPECT_EQ(output(), L"Kuhn. Structure on 1970.");
    EXPECT_EQ(reference->flagType, VT_BYREF | VT_ARRAY | VT_BOOL);
    EXPECT_EQ(reference->flags, 4u);
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Model, TakesWhatTheImplementorMakesOfItsArrays) {
    // A fragment of the host's own in the place of the one it was given.
    reference->meanwhile = [](const Arguments& arguments) {
        const auto own = makeObject<FormattedText>();
        own->add(L"Own", 2);
        assignElement(arguments[2], 1, own.get());
    };
    EXPECT_EQ(output(), L"Kuhn. Own, 1970.");
    // Longer and shorter arrays: what is there is written, a slot that is not is an error.
    reference->meanwhile = [](const Arguments& arguments) {
        SAFEARRAYBOUND bounds = {7, 0};
        SafeArrayRedim(*arguments[1].pparray, &bounds);
    };
    EXPECT_EQ(output(), L"Kuhn. Structure, 1970.");
    EXPECT_EQ(service.takenErrors(), L"");
    reference->meanwhile = [](const Arguments& arguments) {
        SAFEARRAYBOUND bounds = {1, 0};
        SafeArrayRedim(*arguments[1].pparray, &bounds);
    };
    EXPECT_EQ(output().substr(0, 4), L"Kuhn");
    EXPECT_EQ(service.takenErrors(),
              L"9 OutputTemplate.isBlank; 9 OutputTemplate.buildReferenceString; 9 OutputTemplate.getSeparator");
    reference->meanwhile = [](const Arguments&) {};
    EXPECT_EQ(output(), L"Kuhn. Structure, 1970.");
}

/// Puts an array of the host's own in the place of the one that it was given.
void putArray(VARIANT& argument, VARTYPE type, const std::vector<Variant>& values) {
    ASSERT_NE(argument.vt & VT_BYREF, 0);
    Variant array;
    array.get().vt = static_cast<VARTYPE>(VT_ARRAY | type);
    array.get().parray = SafeArrayCreateVector(type, 0, static_cast<ULONG>(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) assignElement(array.get(), static_cast<LONG>(i), values[i]);
    SafeArrayDestroy(*argument.pparray);
    *argument.pparray = array.release().parray;
}

TEST_F(Model, TakesArraysOfOtherTypesAsItTakesAnswers) {
    layOut(L"medium=__CALLBACK_FOR_CHECKING__");
    const auto own = makeObject<FormattedText>();
    Variant unknown;
    unknown.get().vt = VT_UNKNOWN;
    own->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&unknown.get().punkVal));
    Variant foreign;
    foreign.get().vt = VT_UNKNOWN;
    CreateBindCtx(0, reinterpret_cast<IBindCtx**>(&foreign.get().punkVal));
    Variant null;
    null.get().vt = VT_NULL;
    Variant nothing;
    nothing.get().vt = VT_UNKNOWN;
    constexpr const wchar_t* kNoObject = L"13 OutputTemplate.ToFormattedString";
    struct Case {
        std::size_t argument;
        VARTYPE type;
        std::vector<Variant> values;
        const wchar_t* output;
        const wchar_t* errors;
    };
    const Case cases[] = {
        {1, VT_VARIANT, {L"Lee", Variant(), 1971}, L"Lee. Structure on 1971.", L""},
        {1, VT_VARIANT, {L"Lee", null, null}, L"Lee. Structure!", L""},
        {1, VT_I4, {5, 6, 7}, L"5. Structure on 7.", L""},
        {1, VT_DISPATCH, {own.get(), own.get(), own.get()}, L"", kNoObject},
        {2, VT_UNKNOWN, {nothing, unknown, nothing}, L"Kuhn. Own on 1970.", L""},
        {2, VT_UNKNOWN, {nothing, foreign, nothing}, L"", kNoObject},
        {2, VT_VARIANT, {Variant(), own.get(), null}, L"Kuhn. Own on 1970.", L""},
        {2, VT_VARIANT, {Variant(), L"Own", Variant()}, L"", kNoObject},
        {2, VT_VARIANT, {1, 2, 3}, L"", kNoObject},
        {2, VT_BSTR, {L"", L"Own", L""}, L"", kNoObject},
        {2, VT_I4, {1, 2, 3}, L"", kNoObject},
        {2, VT_R8, {1, 2, 3}, L"", kNoObject},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        reference->meanwhile = [&](const Arguments& arguments) {
            own->reset();
            own->add(L"Own", 2);
            putArray(arguments[c.argument], c.type, c.values);
        };
        EXPECT_EQ(output(), c.output);
        EXPECT_EQ(service.takenErrors(), c.errors);
        reference->meanwhile = [](const Arguments&) {};
        EXPECT_EQ(output(), L"Kuhn. Structure on 1970.") << "and the next output is what it was";
    }
    // An object of a caller's array is taken the same way.
    const LateBoundObject dateTime = library.build(kDateTime, sink.get());
    Variant items = Variant::array({L"", L"", L""});
    Variant fragments = Variant::array({foreign, L"text", null});
    dateTime.call(L"ToFormattedStringImpl", {false, referenceTo(VT_VARIANT, &items.get()), fragments, false});
    EXPECT_EQ(service.takenErrors(), L"13 OutputTemplate.ToFormattedStringImpl");
}

TEST_F(Model, AFragmentsEndMayCallItBack) {
    const std::function<void()> kWords[] = {
        [&] { output(); },
        [&] { layOut(L""); },
        [&] {
            model.call(L"Reset", {9, L"", 0});
        },
        [&] {
            model.call(L"Initialize", {sink.get(), static_cast<IDispatch*>(nullptr)});
        },
        [&] { model = LateBoundObject(objectOf(library.main2().call(L"buildModelTemplate"))); },
    };
    // Each of the next outputs lets some of the fragments go: others take their place, or none.
    const std::function<void(const Arguments&)> kNext[] = {
        [](const Arguments& arguments) { assignElement(arguments[2], 1, makeObject<FormattedText>().get()); },
        [](const Arguments& arguments) { putArray(arguments[2], VT_DISPATCH, {}); },
        [](const Arguments& arguments) {
            putArray(arguments[2], VT_I4, {1, 2, 3});
        },
        [this](const Arguments&) { layOut(L""); },
    };
    for (const auto& words : kWords) {
        for (const auto& next : kNext) {
            SCOPED_TRACE(testing::Message() << &words - kWords << ", then " << &next - kNext);
            bool isOver = false;
            const auto once = [&] {
                if (!std::exchange(isOver, true)) words();
            };
            const auto without = [&](const std::function<void(const Arguments&)>& action) {
                return [action, this](const Arguments& arguments) {
                    reference->meanwhile = [](const Arguments&) {};
                    action(arguments);
                };
            };
            reference->meanwhile = without([&](const Arguments& arguments) {
                std::vector<Variant> fragments;
                for (int i = 0; i < 40; ++i) fragments.emplace_back(makeObject<LastWords>(once).get());
                putArray(arguments[2], VT_DISPATCH, fragments);
            });
            const LateBoundObject held = model;
            output();
            reference->meanwhile = without(next);
            output();
            model = LateBoundObject(objectOf(library.main2().call(L"buildModelTemplate")));
            LateBoundObject keys = LateBoundObject::create(L"Scripting.Dictionary");
            model.call(L"Initialize", {sink.get(), keys.dispatch()});
            layOut(L"");
            EXPECT_EQ(output(), L"Kuhn. Structure, 1970.");
        }
    }
}

TEST_F(Model, SurvivesAHostThatFailsOrLetsItGo) {
    reference->outcome = E_FAIL;
    EXPECT_EQ(output(), L"");
    reference->outcome = S_OK;
    // Objects that are missing, and members of them.
    const auto empty = makeObject<DispatchObject>();
    for (IDispatch* none : {static_cast<IDispatch*>(nullptr), static_cast<IDispatch*>(empty.get())}) {
        sink->reset();
        EXPECT_EQ(model.tryCall(L"ToFormattedString", DISPATCH_METHOD, {sink.get(), none, fields.get()}).code, S_OK);
        EXPECT_EQ(model.tryCall(L"ToFormattedString", DISPATCH_METHOD, {sink.get(), reference.get(), none}).code, S_OK);
        EXPECT_EQ(model.tryCall(L"ToFormattedString", DISPATCH_METHOD, {none, reference.get(), fields.get()}).code,
                  S_OK);
        EXPECT_EQ(sink->toString(), L"");
    }
    EXPECT_EQ(service.takenErrors(),
              L"440 OutputTemplate.ToFormattedString; "
              L"91 OutputTemplateModel.ToFormattedString; 91 OutputTemplateModel.ToFormattedString; "
              L"91 OutputTemplateModel.ToFormattedString; 438 OutputTemplate.ToFormattedString; "
              L"438 OutputTemplateModel.ToFormattedString; 438 OutputTemplate.buildReferenceStringFirst; "
              L"438 OutputTemplate.addSeparator; 438 OutputTemplate.buildReferenceString; "
              L"438 OutputTemplate.addSeparator; 438 OutputTemplate.buildReferenceString; "
              L"438 OutputTemplate.addSeparator; 438 OutputTemplateModel.ToFormattedString");
    // The last reference goes in the middle of the call that it is in.
    sink->reset();
    reference->meanwhile = [this](const Arguments&) { model = LateBoundObject(); };
    IDispatch* last = model.dispatch();
    const DISPID id = idOf(last, L"ToFormattedString");
    EXPECT_EQ(invoke(last, id, DISPATCH_METHOD,
                     {Variant(sink.get()).get(), Variant(reference.get()).get(), Variant(fields.get()).get()}, nullptr),
              S_OK);
    EXPECT_EQ(sink->toString(), L"Kuhn. Structure, 1970.");
    EXPECT_EQ(service.takenErrors(), L"");
}

}  // namespace
}  // namespace comtests

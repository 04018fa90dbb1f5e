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
            meanwhile(arguments);
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

#include <memory>

#include "recording_service.h"

namespace comtests {
namespace {

/// What a sink does besides what it is asked for.
struct Trouble {
    /// Which of its calls, and those of its clones, fails; counted from 1.
    int failAt = 0;
    HRESULT failure = E_FAIL;
    /// Whether it raises the failure as an error of its own, or only returns it.
    bool isRaised = false;
    int calls = 0;
    /// What it held when it failed.
    std::wstring before;
    /// Runs in the middle of that call.
    int interruptAt = 0;
    std::function<void()> meanwhile;
};

/// A formatted text of the sample host behind members that make trouble, as its clones do.
class TroubledText final : public DispatchObject {
public:
    TroubledText(ComPointer<FormattedText> text, std::shared_ptr<Trouble> trouble)
        : mText(std::move(text)), mTrouble(std::move(trouble)) {
        for (const std::wstring member :
             {L"Add", L"Clone", L"BuildNewFormattedString", L"Reset", L"IsEmpty", L"toString", L"toRTFString",
              L"addFormattedString", L"removeQuoteFromLastPhrase"}) {
            addMethod(member, [this, member](const Arguments& arguments, VARIANT& result) {
                return call(member, arguments, result);
            });
        }
        addSetter(L"PageIndex", [this](const Arguments&, VARIANT&) {
            return ++mTrouble->calls == mTrouble->failAt ? mTrouble->failure : S_OK;
        });
    }

private:
    HRESULT call(const std::wstring& member, const Arguments& arguments, VARIANT& result) {
        if (++mTrouble->calls == mTrouble->failAt) {
            mTrouble->before = mText->toString();
            if (mTrouble->isRaised) throw ComError{mTrouble->failure, L"mine"};
            return mTrouble->failure;
        }
        if (mTrouble->calls == mTrouble->interruptAt) mTrouble->meanwhile();
        std::vector<Variant> passed;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            Variant argument = Variant::copyOf(arguments[i]);
            if (const auto* fragment = dynamic_cast<TroubledText*>(objectIn(argument)))
                argument = fragment->mText.get();
            passed.push_back(argument);
        }
        Variant answer = LateBoundObject(mText.get()).call(member, passed);
        if (auto* made = dynamic_cast<FormattedText*>(objectIn(answer))) {
            answer = makeObject<TroubledText>(ComPointer<FormattedText>(made), mTrouble).get();
        }
        result = answer.release();
        return S_OK;
    }
    static DispatchObject* objectIn(const Variant& value) {
        return value.get().vt == VT_DISPATCH ? DispatchObject::behind(value.get().pdispVal) : nullptr;
    }

    ComPointer<FormattedText> mText;
    std::shared_ptr<Trouble> mTrouble;
};

class Sink : public ServiceTest {
protected:
    ComPointer<FormattedText> text = makeObject<FormattedText>();
    std::shared_ptr<Trouble> trouble = std::make_shared<Trouble>();
    ComPointer<DispatchObject> sink = makeObject<TroubledText>(text, trouble);
};

constexpr const wchar_t* kInput = L"May 5, 2011, 9:15 a.m. PDT";

TEST_F(Sink, TakesTheOutputOfEveryElement) {
    struct Case {
        std::int32_t code;
        const wchar_t* input;
        const wchar_t* output;
    };
    constexpr Case kCases[] = {
        {kYear, L"[1990?]", L"[1990?]"},
        {kPlace, L"Paris", L"Paris"},
        {kDateTime, kInput, kInput},
        {kDateTime, L"", L""},
    };
    for (const Case& c : kCases) {
        const LateBoundObject element = library.build(c.code, sink.get());
        element.call(L"Parse", {c.input});
        element.call(L"ToFormattedString", {sink.get(), true, true});
        EXPECT_EQ(text->toString(), c.output);
        EXPECT_EQ(text->lastPhraseFont(), 0);
        text->reset();
    }
    const LateBoundObject dateTime = library.build(kDateTime, sink.get());
    dateTime.call(L"Parse", {kInput});
    EXPECT_NE(textOf(dateTime.call(L"toString", {false, false, true})).find(L"{\\rtf1"), std::wstring::npos);
    EXPECT_EQ(text->toString(), L"") << "toString has a sink of its own";
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Sink, WhateverCallOfItFailsIsReportedAndTheRestIsWritten) {
    struct Case {
        HRESULT failure;
        bool isRaised;
        std::wstring number;
    };
    const Case cases[] = {
        {E_FAIL, false, L"440"},
        {E_FAIL, true, L"440"},
        {DISP_E_MEMBERNOTFOUND, false, L"438"},
        {DISP_E_TYPEMISMATCH, false, L"13"},
        {E_OUTOFMEMORY, false, L"7"},
        {RPC_E_DISCONNECTED, false, L"462"},
        {MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 424), true, L"424"},
    };
    // A clone; seven pieces to the sink itself; the clone reset, seven pieces and its text.
    constexpr int kCalls = 1 + 7 + 9;
    for (const Case& c : cases) {
        for (int failAt = 0; failAt <= kCalls; ++failAt) {
            SCOPED_TRACE(testing::Message() << std::hex << c.failure << " at call " << std::dec << failAt);
            *trouble = Trouble{failAt, c.failure, c.isRaised, 0, L"", 0, nullptr};
            text->reset();
            const LateBoundObject dateTime = library.build(kDateTime, sink.get());
            dateTime.call(L"Parse", {kInput});
            dateTime.call(L"ToFormattedString", {sink.get()});
            const std::wstring written = text->toString();
            const std::wstring plain = textOf(dateTime.call(L"toString"));
            const std::wstring errors = service.takenErrors();
            if (failAt == 0) {
                EXPECT_EQ(trouble->calls, kCalls);
                EXPECT_EQ(written + plain + errors, std::wstring(kInput) + kInput);
            } else if (failAt == 1) {
                // Without a clone toString has nothing to write to.
                EXPECT_EQ(errors, c.number + L" OutputTemplate.Initialize; 91 OutputTemplate.toString");
                EXPECT_EQ(written + plain, kInput);
            } else {
                // One failure is one report, and what came before is there.
                EXPECT_TRUE(errors.starts_with(c.number + L" OutputTemplate.")) << testing::PrintToString(errors);
                EXPECT_EQ(errors.find(L';'), std::wstring::npos);
                const bool isPlain = failAt > 8;
                EXPECT_EQ(isPlain ? written : plain, kInput);
                const std::wstring& rest = isPlain ? plain : written;
                const bool isReset = failAt == 9;
                const bool isLast = failAt == kCalls;
                EXPECT_TRUE(rest.starts_with(trouble->before) || isLast) << testing::PrintToString(rest);
                EXPECT_EQ(rest.ends_with(L"PDT"), !isReset && !isLast && failAt != 7 && failAt != 15);
            }
        }
    }
}

TEST_F(Sink, WithoutWhatItShouldHave) {
    struct Case {
        const wchar_t* what;
        std::function<HRESULT(const Arguments&, VARIANT&)> clone;
        const wchar_t* errors;
    };
    const auto answers = [](Variant value) {
        return [value](const Arguments&, VARIANT& result) {
            result = Variant(value).release();
            return S_OK;
        };
    };
    const Case cases[] = {
        {L"no Clone", nullptr, L"438 OutputTemplate.Initialize"},
        {L"Nothing", answers(static_cast<IDispatch*>(nullptr)), L""},
        {L"no answer", answers(Variant()), L""},
        {L"a text", answers(L"text"), L"13 OutputTemplate.Initialize"},
        {L"a number", answers(5), L"13 OutputTemplate.Initialize"},
        {L"an object without members", answers(makeObject<DispatchObject>().get()), L""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.what)));
        const auto poor = makeObject<DispatchObject>();
        if (c.clone) poor->addMethod(L"Clone", c.clone);
        const LateBoundObject dateTime = library.build(kDateTime, poor.get());
        EXPECT_EQ(service.takenErrors(), c.errors);
        dateTime.call(L"Parse", {L"June 2010"});
        EXPECT_EQ(textOf(dateTime.call(L"toString")), L"");
        EXPECT_NE(service.takenErrors(), L"");
        // Nothing is lost for a sink that works, nor written to one that does not.
        dateTime.call(L"ToFormattedString", {poor.get()});
        EXPECT_NE(service.takenErrors(), L"");
        dateTime.call(L"ToFormattedString", {text.get()});
        EXPECT_EQ(text->toString(), L"June 2010");
        EXPECT_EQ(service.takenErrors(), L"");
        text->reset();
    }
    for (const std::int32_t code : {kYear, kPlace, kDateTime}) {
        const LateBoundObject element = library.build(code);
        EXPECT_EQ(service.takenErrors(), code == kDateTime ? L"91 OutputTemplate.Initialize" : L"");
        element.call(L"Parse", {L"1990"});
        element.call(L"ToFormattedString", {static_cast<IDispatch*>(nullptr)});
        const std::wstring errors = service.takenErrors();
        EXPECT_TRUE(errors.starts_with(L"91 OutputTemplate")) << testing::PrintToString(errors);
        element.call(L"ToFormattedString", {text.get()});
        EXPECT_EQ(text->toString(), L"1990");
        text->reset();
    }
}

TEST_F(Sink, NoFailureInAModelGoesUnreported) {
    const LateBoundObject model(objectOf(library.main2().call(L"buildModelTemplate")));
    const auto fields = makeObject<DispatchObject>();
    fields->addMethod(L"value", [](const Arguments& arguments, VARIANT& result) {
        result = Variant(arguments.number(0) == 7 ? L"True" : L"See Laudan").release();
        return S_OK;
    });
    const auto implementor = makeObject<DispatchObject>();
    implementor->addMethod(L"ToFormattedStringImpl", [&](const Arguments& arguments, VARIANT& result) {
        assignElement(arguments[1], 0, L"Kuhn");
        assignElement(arguments[1], 2, L"1970");
        LateBoundObject(objectOf(elementsOf(arguments[2])[1])).call(L"Add", {L"\u201CWhat \u2018Is\u2019\u201D", 1});
        return result = Variant(false).release(), S_OK;
    });
    for (const bool isFootnote : {false, true}) {
        for (int n = 0; n == 0 || trouble->calls >= n; ++n) {
            *trouble = Trouble{n, E_FAIL, false, 0, L"", 0, nullptr};
            model.call(L"Initialize", {sink.get(), LateBoundObject::create(L"Scripting.Dictionary").dispatch()});
            model.call(L"Reset", {2, L"x"});
            model.call(L"Add", {0, false, L"", Variant::array({L"", L". ", L" ", L"."})});
            model.call(L"Add", {1, true, L"", Variant::array({L"", L", ", L"."})});
            model.call(L"Add", {2, false, L"", Variant::array({L"", L"."})});
            model.call(L"ToFormattedString", {sink.get(), implementor.get(), fields.get(), false, isFootnote});
            EXPECT_EQ(service.takenErrors().empty(), n == 0 || trouble->calls < n) << n << " " << isFootnote;
        }
        EXPECT_GT(trouble->calls, 15);
    }
}

/// A host's object as a compiled language makes it: the interface of the type library is not its own first one.
class EarlyBound final : public DispatchObject, public IFormattedText {
public:
    std::wstring written;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (id != __uuidof(IFormattedText)) return DispatchObject::QueryInterface(id, object);
        *object = static_cast<IFormattedText*>(this);
        return DispatchObject::AddRef(), S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return DispatchObject::AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return DispatchObject::Release(); }
    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return DispGetIDsOfNames(type().get(), names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD kinds, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* error,
                        UINT* argument) override {
        return DispInvoke(static_cast<IFormattedText*>(this), type().get(), id, kinds, parameters, result, error,
                          argument);
    }
    STDMETHODIMP Add(BSTR text, LONG font) override { return written += text + std::to_wstring(font), S_OK; }
    STDMETHODIMP addFormattedString(IDispatch*) override { return E_NOTIMPL; }
    STDMETHODIMP Clone(IDispatch** result) override {
        return QueryInterface(IID_IDispatch, reinterpret_cast<void**>(result));
    }
    STDMETHODIMP BuildNewFormattedString(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP Reset() override { return written.clear(), S_OK; }
    STDMETHODIMP IsEmpty(VARIANT_BOOL*) override { return E_NOTIMPL; }
    STDMETHODIMP toString(BSTR* result) override { return *result = SysAllocString(written.c_str()), S_OK; }
    STDMETHODIMP toRTFString(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP removeQuoteFromLastPhrase(short*) override { return E_NOTIMPL; }
    STDMETHODIMP put_PageIndex(LONG) override { return E_NOTIMPL; }

private:
    static ComPointer<ITypeInfo> type() {
        ComPointer<ITypeLib> library;
        ComPointer<ITypeInfo> info;
        EXPECT_EQ(LoadTypeLibEx(Library::path().c_str(), REGKIND_NONE, library.put()), S_OK);
        EXPECT_EQ(library->GetTypeInfoOfGuid(__uuidof(IFormattedText), info.put()), S_OK);
        return info;
    }
};

TEST_F(Sink, MayImplementTheInterfaceOfTheTypeLibrary) {
    const auto early = makeObject<EarlyBound>();
    auto* const object = static_cast<DispatchObject*>(early.get());
    const LateBoundObject author = library.build(0, object);
    author.call(L"Parse", {L"A, and B"});
    author.call(L"ToFormattedString", {object});
    EXPECT_EQ(early->written, L"0A0, 0B00");
    EXPECT_EQ(textOf(author.call(L"toString")), L"0A0, 0B00");
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Sink, IsCalledWithTheNumberOfArgumentsThatItTakes) {
    constexpr HRESULT kOwn = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 450);
    // How many arguments each call had: the other number once, and nothing again that failed while it ran.
    struct Case {
        std::size_t taken;
        HRESULT refusal;
        const wchar_t* counts;
        const wchar_t* text;
    };
    for (const Case& c : {Case{1, DISP_E_BADPARAMCOUNT, L"112111", L"A, B"},
                          {2, DISP_E_PARAMNOTOPTIONAL, L"122222", L"A, B"},
                          {2, kOwn, L"1212", L", "},
                          {3, DISP_E_BADPARAMCOUNT, L"12211221", L""}}) {
        std::wstring counts, written;
        const auto strict = makeObject<DispatchObject>();
        strict->addMethod(L"Add", [&](const Arguments& arguments, VARIANT&) -> HRESULT {
            counts += std::to_wstring(arguments.size());
            if (arguments.size() != c.taken && c.refusal == kOwn) throw ComError{kOwn, L"mine"};
            if (arguments.size() != c.taken) return c.refusal;
            written += arguments.text(0);
            return S_OK;
        });
        const LateBoundObject author = library.build(0, text.get());
        author.call(L"Parse", {L"A, and B"});
        author.call(L"ToFormattedString", {strict.get()});
        EXPECT_EQ(counts + written, std::wstring(c.counts) + c.text);
    }
}

struct Text {
    std::int32_t code;
    const wchar_t* text;
};

/// A text for every element that makes it call its sink as much as it can without options.
constexpr Text kTexts[] = {
    {0, L"Smith, John, and Ann Lee, eds."},
    {1, L"\u201CThe \u2018Other\u2019 Question\u201D [Die andere Frage]"},
    {5, L"Vintage-Knopf; London: Random"},
    {kYear, L"[1990?]"},
    {7, L"pp. 12-15"},
    {14, L"cat, dog"},
    {kPlace, L"[Paris?]"},
    {kDateTime, kInput},
};

TEST_F(Sink, MayLetGoOfTheElementInAnyCall) {
    for (const Text& each : kTexts) {
        for (int n = 1; trouble->calls >= trouble->interruptAt; ++n) {
            SCOPED_TRACE(testing::Message() << "element " << each.code << " call " << n);
            text->reset();
            LateBoundObject held = library.build(each.code, sink.get());
            IDispatch* const element = held.dispatch();
            held.call(L"Parse", {each.text});
            const DISPID id = idOf(element, L"ToFormattedString");
            *trouble = Trouble{0, S_OK, false, 0, L"", n, [&] { held = LateBoundObject(); }};
            EXPECT_EQ(invoke(element, id, DISPATCH_METHOD, {Variant(sink.get()).get()}, nullptr), S_OK);
            EXPECT_EQ(static_cast<bool>(held), trouble->calls < n);
            EXPECT_NE(text->toString(), L"");
        }
        *trouble = Trouble{};
    }
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Sink, MayFailOrCallBackInAnyCallAndTheElementStillWorks) {
    host.reset();
    LateBoundObject element;
    const auto other = makeObject<FormattedText>();
    const auto call = [&](const wchar_t* member, const std::vector<Variant>& arguments) {
        return [&element, member, arguments] { element.call(member, arguments); };
    };
    // The first is no call back: there the sink fails.
    const std::function<void()> kMeanwhile[] = {
        nullptr,
        call(L"Initialize", {other.get()}),
        call(L"Initialize", {static_cast<IDispatch*>(nullptr)}),
        call(L"Reset", {}),
        call(L"Parse", {L"n.d."}),
        call(L"toString", {}),
        call(L"ToFormattedString", {other.get()}),
        call(L"Clone", {other.get()}),
    };
    for (const Text& each : kTexts) {
        for (const std::function<void()>& meanwhile : kMeanwhile) {
            if (each.code == 14 && &meanwhile == &kMeanwhile[7]) continue;  // The one without Clone.
            for (int n = 1; trouble->calls >= n - 1; ++n) {
                SCOPED_TRACE(testing::Message() << "element " << each.code << " call " << n);
                *trouble = Trouble{meanwhile ? 0 : n, E_FAIL, false, 0, L"", meanwhile ? n : 0, meanwhile};
                element = library.build(each.code);
                element.call(L"Initialize", {sink.get()});
                element.call(L"Parse", {each.text});
                element.call(L"ToFormattedString", {sink.get()});
                element.call(L"toString");
                const int calls = trouble->calls;
                *trouble = Trouble{};
                text->reset();
                element.call(L"Initialize", {sink.get()});
                element.call(L"Parse", {L"spring"});
                element.call(L"ToFormattedString", {sink.get()});
                EXPECT_EQ(text->toString().substr(text->isEmpty() ? 0 : 1), L"pring");
                trouble->calls = calls;
            }
            *trouble = Trouble{};
        }
    }
}

TEST_F(Sink, MayCallTheElementThatWritesToIt) {
    const LateBoundObject dateTime = library.build(kDateTime, sink.get());
    struct Case {
        const wchar_t* what;
        std::function<void()> meanwhile;
        /// A slot that is being written is finished in its own layout.
        const wchar_t* output;
    };
    const Case cases[] = {
        {L"another layout",
         [&] {
             dateTime.call(L"Reset", {L"yyyy", true});
         },
         L"May 5, 2011, 9:15 a.m. PDT)"},
        {L"another text", [&] { dateTime.call(L"Parse", {L"1 May 2012"}); }, kInput},
        {L"the same output", [&] { dateTime.call(L"ToFormattedString", {text.get()}); }, nullptr},
        {L"a plain text", [&] { EXPECT_EQ(textOf(dateTime.call(L"toString")), kInput); }, kInput},
        {L"a clone", [&] { dateTime.call(L"Clone"); }, kInput},
        {L"a new beginning", [&] { dateTime.call(L"Initialize", {static_cast<IDispatch*>(nullptr)}); }, kInput},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.what)));
        text->reset();
        dateTime.call(L"Initialize", {sink.get()});
        dateTime.call(L"Parse", {kInput});
        *trouble = Trouble{0, S_OK, false, 0, L"", 1, c.meanwhile};
        dateTime.call(L"ToFormattedString", {sink.get()});
        EXPECT_EQ(text->toString(), c.output != nullptr ? c.output : std::wstring(kInput) + kInput);
    }
}

}  // namespace
}  // namespace comtests

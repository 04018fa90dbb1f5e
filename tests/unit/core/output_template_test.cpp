#include "core/output_template.h"

#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using Checks = std::vector<bool>;
using Fonts = std::vector<std::int16_t>;

/// An element that fills its slots with fixed texts.
class Element final : public Implementor {
public:
    outputTemplate assembly;
    /// The text of each slot; of a formatted slot, in this font.
    std::vector<Text> texts;
    std::int16_t font = 1;
    Checks checks;
    bool hasNothing = false;

    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override {
        assembly.ResetReferenceItems();
        assembly.ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote, checks);
    }
    bool ToFormattedStringImpl(bool, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool) override {
        const std::vector<Text> current = texts;
        for (std::size_t i = 0; i < current.size(); ++i) {
            if (current[i].empty()) {
                continue;
            }
            if (formattedItems.at(i) != nullptr) {
                formattedItems[i]->Add(current[i], font);
            } else {
                items.at(i) = current[i];
            }
        }
        return hasNothing;
    }
};

/// The phrases between bars, each that is not plain with its font code behind.
Text written(const RecordingSink& sink) {
    Text text;
    for (const RecordingSink::Phrase& phrase : sink.phrases()) {
        const std::string font = phrase.font == OutputSink::kPlain ? "" : "/" + std::to_string(phrase.font);
        text += (text.empty() ? u"" : u"|") + phrase.text + Text(font.begin(), font.end());
    }
    return text;
}

/// The separator lists of slot i, one for each variant: "b01" stands in variant b between slots 0 and 1,
/// "b00" before slot 0, "b0." behind it.
std::vector<Text> lists(TextView variants, std::int16_t max, std::int16_t i) {
    std::vector<Text> separators;
    for (const char16_t variant : variants) {
        for (int j = i; j <= max + 1; ++j) {
            const auto digit = [](int number) { return static_cast<char16_t>(u'0' + number); };
            separators.push_back({variant, digit(i), j > max ? u'.' : digit(j)});
        }
    }
    return separators;
}

class OutputTemplate : public ReportingTest {
protected:
    OutputTemplate() { element.assembly.Initialize(maker); }

    /// Lays the element's slots out; the formatted ones are named.
    void layOut(std::int16_t max, TextView variants, bool isChecking, const std::vector<int>& formatted = {},
                const Fonts& fonts = {}) {
        element.assembly.Reset(max, fonts);
        for (std::int16_t i = 0; i <= max; ++i) {
            const bool isFormatted = std::find(formatted.begin(), formatted.end(), i) != formatted.end();
            element.assembly.Add(i, isFormatted, isChecking, lists(variants, max, i));
        }
    }
    Text output(bool isFootnote = false) {
        const auto sink = std::make_shared<RecordingSink>();
        element.ToFormattedString(sink, isFootnote, false);
        return written(*sink);
    }
    std::vector<Text> errors() {
        std::vector<Text> lines = service().errors();
        service().forget();
        return lines;
    }

    /// Of the family of the element's own sink and of the fragments.
    std::shared_ptr<RecordingSink> maker = std::make_shared<RecordingSink>();
    Element element;
};

TEST_F(OutputTemplate, TheNextFilledSlotAndTheVariantChooseTheSeparator) {
    struct Case {
        TextView variants;  // b reference list, n note, k and m the same with checking
        bool isChecking;
        Checks checks;
        std::vector<Text> texts;
        TextView reference, note;
    };
    const Case kCases[] = {
        {u"b", false, {}, {u"A", u"B", u"C"}, u"b00|A|b01|B|b12|C|b2.", u"b00|A|b01|B|b12|C|b2."},
        {u"bn", false, {}, {u"A", u"", u"C"}, u"b00|A|b02|C|b2.", u"n00|A|n02|C|n2."},
        {u"bn", false, {}, {u"", u"", u""}, u"", u""},
        // Two lists with checking are no note list; one list serves all variants.
        {u"bk", true, {false, true}, {u"A", u"B", u"C"}, u"b00|A|b01|B|k12|C|b2.", u"b00|A|b01|B|k12|C|b2."},
        {u"b", true, {true}, {u"A", u"", u"C"}, u"b00|A|b02|C|b2.", u"b00|A|b02|C|b2."},
        {u"bnkm", true, {true, false, true}, {u"A", u"B", u"C"}, u"k00|A|k01|B|b12|C|k2.", u"m00|A|m01|B|n12|C|m2."},
        // Without checking, four lists are split in halves.
        {u"bnkm", false, {}, {u"A", u"B", u"C"}, u"b00|A|b01|B|b12|C|b2.", u"k00|A|k01|B|k12|C|k2."},
    };
    for (const Case& c : kCases) {
        layOut(2, c.variants, c.isChecking);
        element.checks = c.checks;
        element.texts = c.texts;
        EXPECT_EQ(output(false), c.reference) << shown(c.variants);
        EXPECT_EQ(output(true), c.note) << shown(c.variants);
        EXPECT_EQ(errors(), std::vector<Text>());
    }
    layOut(5, u"b", false);
    element.texts = {u"A", u"", u"", u"D", u"", u""};
    EXPECT_EQ(output(), u"b00|A|b03|D|b3.");
    element.hasNothing = true;
    EXPECT_EQ(output(), u"");
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplate, FragmentsKeepTheirFontsAndSeparatorsTheirs) {
    layOut(2, u"b", false, {0, 2}, {8, 2, 4, 1});
    element.texts = {u"A", u"B", u"C"};
    EXPECT_EQ(output(), u"b00|A/1|b01/2|B|b12/4|C/1|b2./1");
    element.texts = {u"", u"B", u""};
    EXPECT_EQ(output(), u"b11|B|b1./1") << "nothing is left in the fragments, and an empty one is blank";
    // The next layouts have fragments and fonts of their own.
    element.texts = {u"A", u"B"};
    layOut(1, u"b", false, {1});
    EXPECT_EQ(output(), u"b00|A|b01|B/1|b1.");
    layOut(1, u"b", false);
    EXPECT_EQ(output(), u"b00|A|b01|B|b1.");
    element.assembly.Add(1, true, false, lists(u"b", 1, 1));
    EXPECT_EQ(output(), u"b00|A|b01|B/1|b1.") << "the first formatted slot, registered late";
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplate, SeparatorsLookAtTheEndOfTheirPhrase) {
    struct Case {
        Text phrase;
        bool isFormatted;
        Text separator;
        TextView output;
    };
    const Case kCases[] = {
        {u"Doe", false, u". ", u"<|Doe|. |Z|>"},
        {u"Doe, J.", false, u". ", u"<|Doe, J.| |Z|>"},
        {u"\u201CTale\u201D", false, u". ", u"<|\u201CTale|.\u201D |Z|>"},
        // The mark keeps the font of its phrase, the rest of the separator stays plain.
        {u"\u201CTale\u201D", true, u", in ", u"<|\u201CTale/1|,\u201D/1| in |Z|>"},
        {u"\"Tale\"", true, u".", u"<|\"Tale/1|.\u201D/1||Z|>"},
        {u"\u201CA \u2018B\u2019\u201D", true, u",\u201D ", u"<|\u201CA \u2018B/1|,\u2019\u201D/1|\u201D |Z|>"},
        {u"\u201CThe Smiths\u2019\u201D", true, u". ", u"<|\u201CThe Smiths\u2019/1|.\u201D/1| |Z|>"},
    };
    for (const Case& c : kCases) {
        element.assembly.Reset(1);
        element.assembly.Add(0, c.isFormatted, false, {u"<", c.separator, u""});
        element.assembly.Add(1, false, false, {u"", u">"});
        element.texts = {c.phrase, u"Z"};
        EXPECT_EQ(output(), c.output);
    }
    // The opening text looks at the end of the slot that it opens, deliberately, but at no quotation.
    for (const auto& [phrase, output] : std::vector<std::pair<Text, TextView>>{
             {u"Inc.", u"(|Inc.|"}, {u"Inc", u".(|Inc|"}, {u"\u201CTale\u201D", u".(|\u201CTale\u201D|"}}) {
        element.assembly.Reset(0);
        element.assembly.Add(0, false, false, {u".(", u""});
        element.texts = {phrase};
        EXPECT_EQ(this->output(), output);
    }
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplate, AFaultyLayoutIsReportedAndTheRestIsWritten) {
    const Text missing = u"9: Subscript out of range in QuorvelTemplate.OutputTemplate.getSeparator";
    element.texts = {u"A", u"B", u"C"};
    element.assembly.Reset(2);
    element.assembly.Add(0, false, false, lists(u"b", 2, 0));
    element.assembly.Add(2, false, false, lists(u"b", 2, 2));
    EXPECT_EQ(output(), u"b00|A|b01|B||C|b2.");
    EXPECT_EQ(errors(), std::vector<Text>{missing}) << "slot 1 was never registered";

    element.assembly.Add(1, false, false, {u"<", u"-"});
    EXPECT_EQ(output(), u"b00|A|b01|B||C|b2.");
    EXPECT_EQ(output(), u"b00|A|b01|B||C|b2.");
    const Text add = u" in QuorvelTemplate.OutputTemplate.Add";
    EXPECT_EQ(errors(),
              std::vector<Text>{u"9: Subscript out of range: slot 1 has 2 separators; a list of it is 3" + add})
        << "two entries are two lists of one, which is said once";

    layOut(2, u"b", false);
    element.checks = {false, true};
    EXPECT_EQ(output(), u"b00|A|b01|B||C|b2.");
    EXPECT_EQ(errors(), std::vector<Text>{missing}) << "slot 1 has no checking list";

    const auto reports = [&](TextView error, const std::function<void()>& call) {
        call();
        EXPECT_EQ(errors(), std::vector<Text>{replaceAll(error, u" in ", u" in QuorvelTemplate.OutputTemplate.")});
    };
    reports(u"9: Subscript out of range: slot 3 is beyond the last, 2 in Add",
            [&] { element.assembly.Add(3, false, false, {}); });
    reports(u"9: Subscript out of range: slot -1 is beyond the last, 2 in Add",
            [&] { element.assembly.Add(-1, false, false, {}); });
    reports(u"9: Subscript out of range in Reset", [&] { element.assembly.Reset(-1); });
    reports(u"9: Subscript out of range in Reset", [&] { element.assembly.Reset(0, {1, 2, 3}); });
    reports(u"9: Subscript out of range in isBlank", [&] { element.assembly.isBlank(-1); });
    reports(u"91: Object variable not set in Initialize", [&] { element.assembly.Initialize(nullptr); });
    reports(u"91: Object variable not set in toString",
            [&] { outputTemplate().toString(element, false, false, true); });
}

TEST_F(OutputTemplate, TheElementsOwnSinkGivesPlainTextAndRTF) {
    layOut(1, u"bn", false, {1});
    element.texts = {u"A", u"B"};
    for (int repetition = 0; repetition < 2; ++repetition) {
        EXPECT_EQ(element.assembly.toString(element, false, false, false), u"b00Ab01Bb1.");
        EXPECT_EQ(element.assembly.toString(element, false, true, true),
                  u"{\\f0 n00}{\\f0 A}{\\f0 n01}{\\f1 B}{\\f0 n1.}");
    }
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplate, ASinkThatFailsAtAnyCallLosesThatCallAlone) {
    layOut(2, u"b", false, {1});
    element.texts = {u"A", u"B", u"C"};
    const auto object = std::make_shared<RecordingSink>();
    element.ToFormattedString(object, false, false);
    const std::vector<RecordingSink::Phrase> undisturbed = object->phrases();
    const int calls = object->calls();
    ASSERT_EQ(calls, 7);
    for (int n = 1; n <= calls; ++n) {
        const auto sink = std::make_shared<RecordingSink>();
        sink->failAt(n);
        element.ToFormattedString(sink, false, false);
        std::vector<RecordingSink::Phrase> expected = undisturbed;
        // With the opening text goes the slot that it opens: they are one procedure.
        const auto failed = expected.begin() + n - 1;
        expected.erase(failed, failed + (n == 1 ? 2 : 1));
        EXPECT_EQ(sink->phrases(), expected) << "call " << n;
        EXPECT_EQ(errors().size(), 1U);
    }
}

TEST_F(OutputTemplate, FragmentsThatFailAtAnyCallAreReportedAndReplaced) {
    constexpr TextView kWhole = u"b00|\u201CA\u201D/1|b01|B|b12|C/1|b2.";
    element.texts = {u"\u201CA\u201D", u"B", u"C"};
    const auto run = [&] {
        layOut(2, u"b", false, {0, 2});
        return output();
    };
    const int before = maker->calls();
    EXPECT_EQ(run(), kWhole);
    const int calls = maker->calls() - before;
    for (int n = 1; n <= calls; ++n) {
        maker->failAt(n);
        run();
        EXPECT_NE(errors(), std::vector<Text>()) << "call " << n;
        EXPECT_EQ(run(), kWhole) << "call " << n;
    }
    EXPECT_GT(calls, 6);
}

TEST_F(OutputTemplate, AStyleThatChangesInTheMiddleOfAnOutputHoldsForTheNext) {
    // From a layout of another size, and from one of the same size with other formatted slots.
    for (const std::int16_t max : std::vector<std::int16_t>{3, 1}) {
        int calls = 1;
        for (int n = 1; n <= calls; ++n) {
            layOut(max, u"b", false, {0, 2, 3});
            element.texts = {u"A", u"B"};
            int call = 0;
            maker->onCall([&] {
                if (++call == n) {
                    layOut(1, u"b", false, {1});
                }
            });
            element.ToFormattedString(maker, false, false);
            maker->onCall(nullptr);
            calls = call;
            EXPECT_EQ(output(), u"b00|A|b01|B/1|b1.") << "call " << n << " of " << calls;
        }
        EXPECT_GT(calls, 8);
    }
}

TEST_F(OutputTemplate, TheHostMayChangeTheAssemblyInTheMiddleOfAnyCall) {
    protector().switches() = {.vbwTraceProc = true, .vbwTraceParameters = true, .vbwTraceVariables = true};
    const Text kLong(40, u'x');
    const auto run = [&](const std::shared_ptr<RecordingSink>& sink) {
        layOut(3, u"bnkm", true, {0, 2});
        // This list is too short and slot -1 is none: both have the variables dumped.
        element.assembly.Add(1, false, false, {kLong});
        element.texts = {u"\u201CA\u201D", kLong, u"C", kLong};
        element.checks = {true};
        element.ToFormattedString(sink, true, false);
        element.assembly.toString(element, false, false, false);
        element.assembly.Add(-1, false, false, {});
    };
    const std::function<void()> actions[] = {
        [&] { element.assembly.Reset(0); },
        [&] { element.assembly.Reset(9, Fonts(11, 1)); },
        [&] { element.assembly.Add(3, true, true, {}); },
        [&] {
            element.assembly.Reset(1);
            element.assembly.Add(1, true, true, {});
            element.assembly.ResetReferenceItems();
        },
        [&] { element.assembly.Initialize(std::make_shared<RecordingSink>()); },
        [&] { element.ToFormattedString(std::make_shared<RecordingSink>(), false, false); },
    };
    for (const std::function<void()>& action : actions) {
        int calls = 1;
        for (int n = 1; n <= calls; ++n) {
            int call = 0;
            const auto actOnce = [&] {
                if (++call == n) {
                    action();
                }
            };
            element.assembly.Initialize(maker);
            maker->onCall(actOnce);
            service().onCall(actOnce);
            run(maker);
            calls = call;
            maker->onCall(nullptr);
            service().onCall(nullptr);
            maker->Reset();
            service().forget();
        }
        ASSERT_GT(calls, 100);
        element.assembly.Initialize(maker);
        layOut(1, u"b", false, {1});
        element.texts = {u"A", u"B"};
        element.checks = {};
        EXPECT_EQ(output(), u"b00|A|b01|B/1|b1.");
    }
}

}  // namespace
}  // namespace quorvel

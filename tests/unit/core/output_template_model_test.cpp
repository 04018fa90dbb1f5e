#include "core/output_template_model.h"

#include "support/recording_model.h"
#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/shown.h"

namespace quorvel {
namespace {

/// The host's implementor: fixed texts, and the flags that a callback condition gets from it.
class Reference final : public Implementor {
public:
    std::vector<Text> texts;
    std::vector<std::size_t> checked;
    std::vector<bool> received;
    std::function<void()> onFill;

    void ToFormattedString(const OutputSinkRef&, bool, bool) override {
        ADD_FAILURE() << "only fragments are asked for";
    }
    bool ToFormattedStringImpl(bool, std::vector<Text>& items, std::vector<OutputSinkRef>&, bool) override {
        if (onFill) {
            onFill();
        }
        items = texts;
        return false;
    }
    void initChecking(std::vector<bool>& checkingArray, bool isFootnote) override {
        received = checkingArray;
        for (const std::size_t slot : checked) {
            checkingArray.at(slot) = isFootnote;
        }
    }
};

class OutputTemplateModelTest : public ReportingTest {
protected:
    OutputTemplateModelTest() {
        model.Initialize(sink, std::make_shared<NumberedKeys>(std::vector<Text>{u"medium", u"kind"}));
    }

    /// Two slots; plain separators are ", ", those of the first slot's checking variants are as given.
    void layOut(TextView checkingKey, TextView blankStrings = {}) {
        model.Reset(1, blankStrings, 12);
        std::vector<Text> separators = {u"", u", ", u".", u"N ", u", ", u"."};
        if (!checkingKey.empty()) {
            separators.insert(separators.end(), {u"", u"; ", u"", u"N ", u": ", u""});
        }
        model.Add(0, false, checkingKey, separators);
        model.Add(1, false, u"", {u"", u"."});
    }
    Text output(bool isFootnote = false) {
        sink->Reset();
        sink->PageIndex(-1);
        model.ToFormattedString(sink, reference, fields, false, isFootnote);
        return sink->plain();
    }
    std::vector<Text> errors() {
        std::vector<Text> lines = service().errors();
        service().forget();
        return lines;
    }

    OutputTemplateModel model;
    std::shared_ptr<RecordingSink> sink = std::make_shared<RecordingSink>();
    std::shared_ptr<Reference> reference = std::make_shared<Reference>();
    std::shared_ptr<RecordingModel> fields = std::make_shared<RecordingModel>();
};

TEST_F(OutputTemplateModelTest, AConditionChoosesTheSeparators) {
    reference->texts = {u"A", u"B"};
    struct Case {
        TextView checkingKey;
        std::map<std::int16_t, Text> fields;
        TextView list, note;
    };
    const Case kCases[] = {
        {u"medium=Web", {{1, u"Web"}}, u"A; B.", u"N A: B."},
        {u"medium=Print||Web", {{1, u"Web"}}, u"A; B.", u"N A: B."},
        {u"medium=Print||Web", {{1, u"web"}}, u"A, B.", u"N A, B."},
        {u"medium=Print||Web", {{1, u"Print||Web"}}, u"A, B.", u"N A, B."},
        // A field that the dictionary does not know is number 0.
        {u"colour=red", {{0, u"red"}}, u"A; B.", u"N A: B."},
        // What stands behind a second "=" does not count, and without one there is no condition.
        {u"kind=a=b", {{2, u"a"}}, u"A; B.", u"N A: B."},
        {u"kind", {}, u"A, B.", u"N A, B."},
        {u"kind=", {{2, u""}}, u"A, B.", u"N A, B."},
    };
    for (const Case& c : kCases) {
        layOut(c.checkingKey);
        fields->fields = c.fields;
        fields->fields[OutputTemplateModel::kHasNoteField] = u"False";
        EXPECT_EQ(output(false), c.list) << shown(c.checkingKey);
        EXPECT_EQ(output(true), c.note) << shown(c.checkingKey);
        EXPECT_EQ(errors(), std::vector<Text>()) << shown(c.checkingKey);
    }
}

TEST_F(OutputTemplateModelTest, TheImplementorDecidesACallbackCondition) {
    reference->texts = {u"A", u"B"};
    reference->checked = {0};
    fields->fields = {{7, u""}};
    layOut(u"kind=__CALLBACK_FOR_CHECKING__");
    EXPECT_EQ(output(true), u"N A: B.");
    EXPECT_EQ(output(false), u"A, B.");
    // One entry a slot and one more; a layout without such a condition asks nobody.
    EXPECT_EQ(reference->received, std::vector<bool>(3));
    reference->received.clear();
    layOut(u"");
    output();
    EXPECT_TRUE(reference->received.empty());
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplateModelTest, NotesAndBlankOutputs) {
    struct Case {
        TextView blankStrings, hasNote, note;
        TextView written, writtenAsNote;
    };
    const Case kCases[] = {
        {u"", u"True", u"See p. 4", u"A.", u"N A.  See p. 4."},
        {u"", u"True", u"See p. 4.", u"A.", u"N A.  See p. 4."},
        {u"", u"true", u"See p. 4", u"A.", u"N A."},
        {u"", u"True", u"", u"A.", u"N A."},
        // "." is no note, and an output that counts as empty goes; one with a note stays.
        {u"B.||A.||N A.", u"True", u".", u"", u""},
        {u"A.||N A.", u"True", u"See", u"", u"N A.  See."},
        {u"A.x", u"False", u"See", u"A.", u"N A."},
    };
    reference->texts = {u"A", u""};
    for (const Case& c : kCases) {
        layOut(u"", c.blankStrings);
        fields->fields = {{7, Text(c.hasNote)}, {4, Text(c.note)}};
        EXPECT_EQ(output(false), c.written) << shown(c.blankStrings) << shown(c.note);
        EXPECT_EQ(sink->pageIndex(), 24);
        EXPECT_EQ(output(true), c.writtenAsNote) << shown(c.blankStrings) << shown(c.note);
        EXPECT_EQ(sink->pageIndex(), 24);
    }
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplateModelTest, MoreThanThirtyOneSlotsAreAnErrorAndTheOthersStay) {
    fields->fields = {{7, u""}};
    model.Reset(31, u"", 0);
    for (std::int16_t i = 0; i <= 31; ++i) {
        model.Add(i, false, u"", std::vector<Text>(static_cast<std::size_t>(33 - i), u"-"));
        reference->texts.push_back(i == 30 ? u"thirtieth" : u"");
    }
    EXPECT_EQ(errors(), std::vector<Text>{u"9: Subscript out of range in QuorvelTemplate.OutputTemplateModel.Add"});
    EXPECT_EQ(output(), u"-thirtieth-");
    EXPECT_EQ(errors(), std::vector<Text>());
}

TEST_F(OutputTemplateModelTest, WhatIsMissingIsReported) {
    reference->texts = {u"A", u"B"};
    layOut(u"kind=x");
    // A model without the field, then without a model, an implementor and a sink; nothing is written.
    EXPECT_EQ(output(), u"");
    model.ToFormattedString(sink, reference, nullptr, false, false);
    model.ToFormattedString(sink, nullptr, fields, false, false);
    model.ToFormattedString(nullptr, reference, fields, false, false);
    OutputTemplateModel().ToFormattedString(sink, reference, fields, false, false);
    OutputTemplateModel().Reset(3, u"", 1);
    EXPECT_EQ(sink->plain(), u"");
    EXPECT_EQ(sink->pageIndex(), -1);
    const Text notSet = u"91: Object variable not set in QuorvelTemplate.OutputTemplateModel.";
    const Text write = notSet + u"ToFormattedString";
    std::vector<Text> reported = errors();
    ASSERT_EQ(reported.size(), 6u);
    EXPECT_TRUE(startsWith(reported[0], u"438: ")) << shown(reported[0]);
    EXPECT_EQ(std::vector<Text>(reported.begin() + 1, reported.end()),
              (std::vector<Text>{write, write, write, write, notSet + u"Reset"}));

    // The note is a procedure of its own: what was written before it failed stays, and so does the number.
    layOut(u"");
    EXPECT_EQ(output(true), u"N A, B.");
    EXPECT_EQ(sink->pageIndex(), 24);
    EXPECT_EQ(errors().size(), 1u);
}

TEST_F(OutputTemplateModelTest, TheHostMayLayOutAnewInTheMiddleOfACall) {
    reference->texts = {u"A", u"B"};
    fields->fields = {{2, u"x"}, {7, u""}};
    layOut(u"kind=x");
    const auto anew = [this] {
        model.Initialize(std::make_shared<RecordingSink>(), nullptr);
        model.Reset(0, u"A", 1);
    };
    reference->onFill = anew;
    output();
    reference->onFill = nullptr;
    layOut(u"");
    EXPECT_EQ(output(), u"A, B.");
    fields->onRead = anew;
    output(true);
    sink->onCall(anew);
    layOut(u"kind=x");
    output();
    sink->onCall(nullptr);
    fields->onRead = nullptr;
    model.Initialize(sink, std::make_shared<NumberedKeys>(std::vector<Text>{u"medium", u"kind"}));
    layOut(u"kind=x");
    EXPECT_EQ(output(), u"A; B.");
}

}  // namespace
}  // namespace quorvel

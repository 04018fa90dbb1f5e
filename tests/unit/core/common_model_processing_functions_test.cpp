#include "core/common_model_processing_functions.h"

#include "support/recording_model.h"
#include "support/recording_service.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using namespace CommonModelProcessingFunctions;

/// A reference with a few fields.
std::shared_ptr<RecordingModel> fewFields() {
    return std::make_shared<RecordingModel>(
        std::map<std::int16_t, Text>{{-1, u"x"}, {5, u"Book"}, {7, u"True"}, {32767, u""}});
}

class KeyInstructions : public ReportingTest {};

TEST_F(KeyInstructions, AreTriggeredByAFieldOrTheOutputType) {
    constexpr std::int16_t kUntouched = -9;
    struct Case {
        TextView instructions;
        std::int16_t result, reason;
        std::vector<std::int16_t> read;
        TextView error = u"";
    };
    const Case kCases[] = {
        {u"", kNotTriggered, kUntouched, {}},
        {u"5=Book", kTriggeredByField, 0, {5}},
        {u"5=book", kNotTriggered, kUntouched, {5}},
        {u"5=Film||7=True||5=Book", kTriggeredByField, 1, {5, 7}},
        {u"||5=Book", kTriggeredByField, 1, {5}},
        {u"5=Book&&7=True", kTriggeredByField, kUntouched, {5, 7}},
        {u"5=Book&&7=False&&-1=x", kNotTriggered, kUntouched, {5, 7}},
        {u"7=&&", kNotTriggered, kUntouched, {7}},
        {u"32767=", kTriggeredByField, 0, {32767}},
        {u"outputType=Note", kTriggeredByOutputType, 0, {}},
        {u"5=Film||outputType=Note", kTriggeredByOutputType, 1, {5}},
        {u"5=Book&&outputType=Note", kTriggeredByOutputType, 1, {5}},
        // A failing output type ends the search in both modes.
        {u"outputType=Entry||5=Book", kNotTriggered, kUntouched, {}},
        {u"outputType=note&&5=Book", kNotTriggered, kUntouched, {}},
        {u"5", kNotTriggered, kUntouched, {}, u"9: Subscript out of range"},
        {u"kind=Book", kNotTriggered, kUntouched, {}, u"13: Type mismatch"},
        {u"=Book", kNotTriggered, kUntouched, {}, u"13: Type mismatch"},
        {u"\u0135=Book", kNotTriggered, kUntouched, {}, u"13: Type mismatch"},
        {u"32768=x", kNotTriggered, kUntouched, {}, u"6: Overflow"},
        {u"6=x||5=Book", kNotTriggered, kUntouched, {6}, u"438: Object doesn't support this property or method"},
    };
    for (const Case& c : kCases) {
        const auto model = fewFields();
        std::int16_t reason = kUntouched;
        service().forget();
        EXPECT_EQ(KeyInstructionsIsTriggered(c.instructions, model, u"Note", reason), c.result)
            << shown(c.instructions);
        EXPECT_EQ(reason, c.reason) << shown(c.instructions);
        EXPECT_EQ(model->read, c.read) << shown(c.instructions);
        std::vector<Text> errors;
        if (!c.error.empty()) {
            errors.push_back(Text(c.error) +
                             u" in QuorvelTemplate.CommonModelProcessingFunctions.KeyInstructionsIsTriggered");
        }
        EXPECT_EQ(service().errors(), errors) << shown(c.instructions);
    }
    std::int16_t reason = kUntouched;
    EXPECT_EQ(KeyInstructionsIsTriggered(u"5=Book", nullptr, u"", reason), kNotTriggered);
    EXPECT_EQ(service().errors().size(), 2U) << "no model is an error, too";
}

TEST(CommonModelProcessingFunctions, PunctuationIsNotDoubled) {
    struct Case {
        TextView phrase, separator, result;
        bool removesQuote = false;
    };
    constexpr Case kCases[] = {
        {u"Doe", u". ", u". "},
        {u"", u". ", u". "},
        {u"J.", u"). ", u"). "},
        {u"J.", u". ", u" "},
        {u"Who?", u".", u""},
        {u"Stop!", u".) ", u") "},
        {u"J.", u", ", u", "},
        {u"And so . . .", u". ", u" . "},
        {u"And so...", u". ", u" "},
        // Full stop and comma go inside a quotation, with the mark that closes it.
        {u"\u201CTale\u201D", u". ", u".\u201D ", true},
        {u"\u201CTale\u201D", u", ", u",\u201D ", true},
        {u"\"Tale\"", u".", u".\u201D", true},
        {u"\"", u",", u",\u201D", true},
        // Nothing else does.
        {u"\u201CTale\u201D", u": ", u": "},
        {u"\u201CTale\u201D", u" (", u" ("},
        {u"\u201CTale\u201D", u" ", u" "},
        {u"\u2018Tale\u2019", u". ", u". "},
        {u"\u201CTale", u". ", u". "},
        {u"de'", u". ", u". "},
        {u"\u201COn \u2018Is\u2019\u201D", u". ", u".\u201D ", true},
        {u"\u201COn \u2018Is?\u2019\u201D", u". ", u" "},
        // A quotation that has its own end loses the separator's full stop, not its comma.
        {u"\u201CWhy?\u201D", u". ", u" "},
        {u"\"Inc.\"", u". ", u" "},
        {u"\u201CWhy?\u201D", u", ", u",\u201D ", true},
    };
    for (const Case& c : kCases) {
        for (const bool before : {false, true}) {
            bool removesQuote = before;
            EXPECT_EQ(removeDoublePeriods(c.phrase, c.separator, removesQuote), c.result)
                << shown(c.phrase) << " and " << shown(c.separator);
            EXPECT_EQ(removesQuote, c.removesQuote) << shown(c.phrase) << " and " << shown(c.separator);
        }
    }
}

TEST(CommonModelProcessingFunctions, SpinnersCountInOrdinals) {
    constexpr TextView kCases[][2] = {
        {u"", u""},       {u"1", u"1st"},   {u"2", u"2nd"},   {u"3", u"3rd"},     {u"4", u"4th"},     {u"11", u"11th"},
        {u"12", u"12th"}, {u"13", u"13th"}, {u"21", u"21st"}, {u"101", u"101st"}, {u"112", u"112th"},
    };
    for (const auto& [number, ordinal] : kCases) {
        EXPECT_EQ(spinNumToStr(number), ordinal);
        EXPECT_EQ(strToSpinNum(ordinal), number);
    }
    for (const TextView noOrdinal : {u"first", u"1st3", u"th", u"2ndth", u"second", u"2nd.", u"\u0662nd"}) {
        EXPECT_EQ(strToSpinNum(noOrdinal), u"") << shown(noOrdinal);
    }
    EXPECT_EQ(strToSpinNum(u"7"), u"7");
}

}  // namespace
}  // namespace quorvel

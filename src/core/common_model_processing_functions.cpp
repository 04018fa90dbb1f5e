#include "core/common_model_processing_functions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "core/procedure.h"

namespace quorvel::CommonModelProcessingFunctions {

namespace {

constexpr StandardModule kModule{u"CommonModelProcessingFunctions"};

constexpr TextView kOmissionPoints = u". . .";
constexpr TextView kOutputTypeKey = u"outputType";

struct OrdinalSuffix {
    TextView digit;
    TextView exception;
    TextView suffix;
};

constexpr OrdinalSuffix kOrdinalSuffixes[] = {
    {u"1", u"11", u"st"},
    {u"2", u"12", u"nd"},
    {u"3", u"13", u"rd"},
};

// In the order in which they are tried.
constexpr TextView kSuffixesOfOrdinals[] = {u"th", u"rd", u"nd", u"st"};

/// The number of a field, which a model counts in 16 bits.
std::int16_t toFieldNumber(TextView key) {
    std::string digits;
    for (const char16_t unit : key) {
        digits.push_back(unit < u'\u0080' ? static_cast<char>(unit) : '?');
    }
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::invalid_argument || (error == std::errc() && end != digits.data() + digits.size())) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (error == std::errc::result_out_of_range || number < INT16_MIN || number > INT16_MAX) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<std::int16_t>(number);
}

bool isClosingQuotationMark(char16_t unit) {
    return unit == kRightDoubleQuotationMark || unit == u'"';
}

bool endsWithSentencePunctuation(TextView phrase) {
    return !phrase.empty() && isPunctuation(phrase.substr(phrase.size() - 1));
}

std::int16_t isTriggered(TextView keyInstructions, const std::shared_ptr<ReferenceModel>& model, TextView outputType,
                         std::int16_t& disableReasonIndex) {
    std::vector<Text> conditions = split(keyInstructions, u"||");
    bool all = false;
    if (conditions.size() == 1) {
        conditions = split(keyInstructions, u"&&");
        all = conditions.size() >= 2;
    }
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        if (conditions[i].empty()) {
            continue;
        }
        const std::vector<Text> condition = split(conditions[i], u"=");
        const Text& key = condition[0];
        const Text& value = condition.at(1);
        if (key == kOutputTypeKey) {
            if (outputType != value) {
                // Deliberate in both modes: the conditions behind a failing output type are not looked at.
                return kNotTriggered;
            }
            disableReasonIndex = static_cast<std::int16_t>(i);
            return kTriggeredByOutputType;
        }
        const bool equal = object(model).value(toFieldNumber(key)) == value;
        if (equal && !all) {
            disableReasonIndex = static_cast<std::int16_t>(i);
            return kTriggeredByField;
        }
        if (!equal && all) {
            return kNotTriggered;
        }
    }
    return all ? kTriggeredByField : kNotTriggered;
}

}  // namespace

std::int16_t KeyInstructionsIsTriggered(TextView keyInstructions, const std::shared_ptr<ReferenceModel>& model,
                                        TextView outputType, std::int16_t& disableReasonIndex) {
    std::int16_t result = kNotTriggered;
    procedure(kModule, u"KeyInstructionsIsTriggered",
              {{u"keyInstructions", keyInstructions},
               {u"model", model},
               {u"outputType", outputType},
               {u"disableReasonIndex", disableReasonIndex}},
              [&] {
                  if (!keyInstructions.empty()) {
                      result = isTriggered(keyInstructions, model, outputType, disableReasonIndex);
                  }
              });
    return result;
}

Text removeDoublePeriodsOnly(TextView phrase, TextView separator) {
    if (separator.starts_with(u'.') && endsWithSentencePunctuation(phrase)) {
        return endsWith(phrase, kOmissionPoints) ? concatenate({u" ", separator}) : Text(separator.substr(1));
    }
    return Text(separator);
}

Text removeDoublePeriods(TextView phrase, TextView separator, bool& removeQuoteFromPreviousPhrase) {
    const auto parameters = [&] {
        return std::array{Parameter{u"phrase", phrase}, Parameter{u"separator", separator},
                          Parameter{u"removeQuoteFromPreviousPhrase", removeQuoteFromPreviousPhrase}};
    };
    return procedure(kModule, u"removeDoublePeriods", parameters, [&]() -> Text {
        removeQuoteFromPreviousPhrase = false;
        const bool movesIntoQuotation = separator.starts_with(u'.') || separator.starts_with(u',');
        if (!movesIntoQuotation || phrase.empty() || !isClosingQuotationMark(phrase.back())) {
            // Nothing moves in front of a blank either, where moving the mark would change nothing.
            return removeDoublePeriodsOnly(phrase, separator);
        }
        const std::size_t marks = closesTwoQuotations(phrase) ? 2 : 1;
        const bool quotationHasItsOwnEnd = endsWithSentencePunctuation(phrase.substr(0, phrase.size() - marks));
        if (quotationHasItsOwnEnd && separator.starts_with(u'.')) {
            return Text(separator.substr(1));
        }
        removeQuoteFromPreviousPhrase = true;
        return concatenate({separator.substr(0, 1), TextView(&kRightDoubleQuotationMark, 1), separator.substr(1)});
    });
}

bool closesTwoQuotations(TextView phrase) {
    if (phrase.size() < 2 || !isClosingQuotationMark(phrase.back())) {
        return false;
    }
    const TextView inside = phrase.substr(0, phrase.size() - 1);
    if (inside.back() != kRightSingleQuotationMark) {
        return false;
    }
    // The last single mark but one opens, or the last is an apostrophe.
    const std::size_t mark = inside.substr(0, inside.size() - 1).find_last_of(u"\u2018\u2019");
    return mark != TextView::npos && inside[mark] == kLeftSingleQuotationMark;
}

bool isPunctuation(TextView text) {
    return procedure(
        kModule, u"isPunctuation",
        [&] {
            return std::array{Parameter{u"text", text}};
        },
        [&] { return !text.empty() && (text[0] == u'!' || text[0] == u'.' || text[0] == u'?'); });
}

Text spinNumToStr(TextView spin) {
    return procedure(kModule, u"spinNumToStr", {{u"spin", spin}}, [&]() -> Text {
        if (spin.empty()) {
            return {};
        }
        for (const OrdinalSuffix& ordinal : kOrdinalSuffixes) {
            if (endsWith(spin, ordinal.digit) && !endsWith(spin, ordinal.exception)) {
                return concatenate({spin, ordinal.suffix});
            }
        }
        return concatenate({spin, u"th"});
    });
}

Text strToSpinNum(TextView text) {
    return procedure(kModule, u"strToSpinNum", {{u"text", text}}, [&]() -> Text {
        Text number(text);
        // Only the first suffix that is there goes.
        static_cast<void>(std::any_of(std::begin(kSuffixesOfOrdinals), std::end(kSuffixesOfOrdinals),
                                      [&](TextView suffix) { return removeSuffix(number, suffix); }));
        return isDigits(number) ? number : Text();
    });
}

}  // namespace quorvel::CommonModelProcessingFunctions

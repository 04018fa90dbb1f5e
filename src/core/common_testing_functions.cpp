#include "core/common_testing_functions.h"

#include <algorithm>
#include <cstddef>

#include "core/dates.h"
#include "core/letter_case.h"
#include "core/months.h"
#include "core/procedure.h"

namespace quorvel::CommonTestingFunctions {

namespace {

constexpr StandardModule kModule{u"CommonTestingFunctions"};

constexpr std::size_t kLongestAbbreviation = 4;

constexpr TextView kRomanDigits = u"IVXLCDMivxlcdm";

/// "mmmm d, yyyy" without its day: "mmmm, yyyy".
Text withoutDay(TextView pattern) {
    Text result = replaceAll(replaceAll(pattern, u"d", u""), u"D", u"");
    result = replaceAll(result, u" ,", u",");
    return Text(trim(result));
}

bool isAbbreviation(TextView word, const Month& month) {
    for (TextView rest = month.abbreviations; !rest.empty();) {
        const TextView abbreviation = before(rest, u" ");
        if (equalsIgnoringCase(abbreviation, word)) {
            return true;
        }
        rest.remove_prefix(std::min(abbreviation.size() + 1, rest.size()));
    }
    return false;
}

}  // namespace

bool isInitial(TextView text) {
    return procedure(kModule, u"isInitial", {{u"text", text}}, [&] {
        if (text.empty()) {
            return false;
        }
        if (endsWith(text, u".")) {
            const std::vector<Text> pieces = split(text, u".");
            return std::all_of(pieces.begin(), pieces.end(),
                               [](const Text& piece) { return piece.size() <= 1 || startsWith(piece, u"-"); });
        }
        const bool isShort = text.size() < 3 || (text.size() == 3 && text[1] == u'-');
        return isShort && text == toUpper(text);
    });
}

bool isRomanNumeral(TextView roman) {
    return procedure(kModule, u"isRomanNumeral", {{u"roman", roman}},
                     [&] { return !roman.empty() && roman.find_first_not_of(kRomanDigits) == TextView::npos; });
}

bool isCapitalized(TextView text) {
    return procedure(kModule, u"isCapitalized", {{u"text", text}}, [&] { return !text.empty() && text[0] < u'a'; });
}

Text FormatDate(TextView text, Text& formatString) {
    Text result(text);
    procedure(kModule, u"FormatDate", {{u"Text", text}, {u"formatString", formatString}}, [&] {
        if (text.empty()) {
            return;
        }
        std::vector<Text> words = split(text, u" ");
        if (words.size() == 2 && !contains(words[1], u":")) {
            formatString = withoutDay(formatString);
        }
        for (Text& word : words) {
            word = convertToLongMonthNameIfNecessary(word);
        }
        result = join(words, u" ");
        if (const std::optional<DateValue> date = dates().parse(result)) {
            result = dates().format(*date, formatString);
            FormatForMLA(result, formatString);
        }
    });
    return result;
}

Text convertToLongMonthNameIfNecessary(TextView word) {
    return procedure(kModule, u"convertToLongMonthNameIfNecessary", {{u"word", word}}, [&] {
        if (!word.empty() && word.size() <= kLongestAbbreviation) {
            for (const Month& month : kMonths) {
                if (isAbbreviation(word, month)) {
                    return Text(month.name);
                }
            }
        }
        return Text(word);
    });
}

void FormatForMLA(Text& formatted, TextView formatString) {
    procedure(kModule, u"FormatForMLA", {{u"formatted", formatted}, {u"formatString", formatString}}, [&] {
        if (containsIgnoringCase(formatString, u"mmmm") || !containsIgnoringCase(formatString, u"mmm")) {
            return;
        }
        for (const Month& month : kMonths) {
            formatted = replaceAll(formatted, month.shortName(), month.mla);
        }
    });
}

}  // namespace quorvel::CommonTestingFunctions

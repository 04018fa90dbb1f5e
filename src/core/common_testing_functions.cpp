#include "core/common_testing_functions.h"

#include <algorithm>
#include <cstddef>

#include "core/dates.h"
#include "core/letter_case.h"
#include "core/procedure.h"

namespace quorvel::CommonTestingFunctions {

namespace {

constexpr StandardModule kModule{u"CommonTestingFunctions"};

struct MonthKey {
    TextView key;
    TextView month;
};

// The single letters, and "ju" for July rather than June, are on purpose.
constexpr MonthKey kMonthKeys[] = {
    {u"ja", u"January"},     {u"jan", u"January"},  {u"fe", u"February"}, {u"feb", u"February"}, {u"ma", u"March"},
    {u"mar", u"March"},      {u"a", u"April"},      {u"ap", u"April"},    {u"apr", u"April"},    {u"m", u"May"},
    {u"j", u"June"},         {u"jn", u"June"},      {u"jun", u"June"},    {u"jl", u"July"},      {u"ju", u"July"},
    {u"jul", u"July"},       {u"au", u"August"},    {u"aug", u"August"},  {u"se", u"September"}, {u"sep", u"September"},
    {u"sept", u"September"}, {u"o", u"October"},    {u"oc", u"October"},  {u"oct", u"October"},  {u"n", u"November"},
    {u"no", u"November"},    {u"nov", u"November"}, {u"d", u"December"},  {u"de", u"December"},  {u"dec", u"December"},
};
constexpr std::size_t kLongestMonthKey = 4;

struct ShortMonth {
    TextView platform;
    TextView mla;
};

constexpr ShortMonth kShortMonths[] = {
    {u"Jan", u"Jan."}, {u"Feb", u"Feb."},  {u"Mar", u"Mar."}, {u"Apr", u"Apr."}, {u"Jun", u"June"}, {u"Jul", u"July"},
    {u"Aug", u"Aug."}, {u"Sep", u"Sept."}, {u"Oct", u"Oct."}, {u"Nov", u"Nov."}, {u"Dec", u"Dec."},
};

constexpr TextView kRomanDigits = u"IVXLCDMivxlcdm";

/// "mmmm d, yyyy" without its day: "mmmm, yyyy".
Text withoutDay(TextView pattern) {
    Text result = replaceAll(replaceAll(pattern, u"d", u""), u"D", u"");
    result = replaceAll(result, u" ,", u",");
    return Text(trim(result));
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
        if (word.size() <= kLongestMonthKey) {
            const Text key = toLower(word);
            for (const MonthKey& month : kMonthKeys) {
                if (month.key == key) {
                    return Text(month.month);
                }
            }
        }
        return Text(word);
    });
}

void FormatForMLA(Text& formatted, TextView formatString) {
    procedure(kModule, u"FormatForMLA", {{u"formatted", formatted}, {u"formatString", formatString}}, [&] {
        const Text pattern = toLower(formatString);
        if (contains(pattern, u"mmmm") || !contains(pattern, u"mmm")) {
            return;
        }
        for (const ShortMonth& month : kShortMonths) {
            formatted = replaceAll(formatted, month.platform, month.mla);
        }
    });
}

}  // namespace quorvel::CommonTestingFunctions

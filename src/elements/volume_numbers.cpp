#include "elements/volume_numbers.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"

namespace quorvel::volumenumbers {

namespace {

constexpr TextView kWord = u"vol";
constexpr TextView kSigns = u"0123456789IVXLC";

struct RomanDigit {
    char16_t letter;
    std::int32_t value;
};

constexpr RomanDigit kRomanDigits[] = {{u'I', 1},   {u'V', 5},   {u'X', 10},  {u'L', 50},
                                       {u'C', 100}, {u'D', 500}, {u'M', 1000}};
constexpr TextView kNoNumerals[] = {u"C", u"D"};
// Far more than any volume needs, and far from the limit of the result.
constexpr std::size_t kLongestNumeral = 1000;

}  // namespace

TextView withoutWord(TextView volume) {
    if (!startsWithIgnoringCase(volume, kWord)) {
        return volume;
    }
    const std::size_t number = volume.find_first_of(kSigns, kWord.size());
    return number == TextView::npos ? volume : volume.substr(number);
}

bool isNumber(TextView text) {
    return !text.empty() && consistsOf(text, kSigns);
}

std::int32_t romanToArabic(TextView numeral) {
    if (numeral.size() > kLongestNumeral || isOneOfIgnoringCase(numeral, kNoNumerals)) {
        return 0;
    }
    std::int32_t sum = 0;
    std::int32_t previous = kRomanDigits[std::size(kRomanDigits) - 1].value;
    for (const char16_t letter : numeral) {
        const auto* const digit = std::find_if(std::begin(kRomanDigits), std::end(kRomanDigits),
                                               [&](const RomanDigit& row) { return row.letter == toUpper(letter); });
        if (digit == std::end(kRomanDigits)) {
            return 0;
        }
        sum += digit->value - (digit->value > previous ? 2 * previous : 0);
        previous = digit->value;
    }
    return sum;
}

}  // namespace quorvel::volumenumbers

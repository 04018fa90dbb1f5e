#include "elements/title/quotes.h"

#include "core/letter_case.h"

namespace quorvel::titlequotes {

namespace {

bool isLetterOrDigitAt(TextView text, std::size_t at) {
    return at < text.size() && (isCasedLetter(text[at]) || isDigit(text[at]));
}

}  // namespace

Text withSingleQuotationMarks(TextView text) {
    Text result(text);
    bool isOpen = false;
    for (char16_t& unit : result) {
        if (unit == kLeftDoubleQuotationMark || (unit == u'"' && !isOpen)) {
            unit = kLeftSingleQuotationMark;
            isOpen = true;
        } else if (unit == kRightDoubleQuotationMark || unit == u'"') {
            unit = kRightSingleQuotationMark;
            isOpen = false;
        }
    }
    return result;
}

Text withDoubleQuotationMarks(TextView text) {
    Text result(text);
    std::size_t opening = result.find(kLeftSingleQuotationMark);
    while (opening != Text::npos) {
        std::size_t closing = result.find(kRightSingleQuotationMark, opening + 1);
        while (closing != Text::npos && isLetterOrDigitAt(result, closing + 1)) {
            closing = result.find(kRightSingleQuotationMark, closing + 1);
        }
        if (closing == Text::npos) {
            return result;
        }
        result[opening] = kLeftDoubleQuotationMark;
        result[closing] = kRightDoubleQuotationMark;
        opening = result.find(kLeftSingleQuotationMark, closing + 1);
    }
    return result;
}

Text quoted(TextView title) {
    return concatenate({TextView(&kLeftDoubleQuotationMark, 1), withSingleQuotationMarks(title),
                        TextView(&kRightDoubleQuotationMark, 1)});
}

}  // namespace quorvel::titlequotes

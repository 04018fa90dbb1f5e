#include "elements/issue/issue_text.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "elements/sentences.h"
#include "elements/title/quotes.h"
#include "elements/volume_numbers.h"

namespace quorvel::issuetext {

namespace {

constexpr TextView kBlank = u" ";
// Signs between the parts of a text, and around them.
constexpr TextView kSigns = u" .,;:";
constexpr TextView kSignsAndBrackets = u" .,;:()[]";
// A word stands on its own behind one of these.
constexpr TextView kOpeningSigns = u" ([,.;";

constexpr TextView kNumberWords[] = {u"no. ", u"nos. ", u"no ", u"nr. ", u"issue "};

// What may stand between a number and a second one, and before that. The longer ones first.
constexpr TextView kNumberJoints[] = {u" and ", u" & ", u", ", u" "};
constexpr TextView kPartWords[] = {u"pt. ", u"pt ", u"part "};

// The longer ones first.
constexpr TextView kSupplementWords[] = {
    u"supplemental material", u"supplement", u"suppl.", u"suppl", u"supp.", u"supp"};
constexpr TextView kEditionWords[] = {u"ed.", u"ed", u"edition"};
constexpr TextView kSpecialWords[] = {u"special issue", u"spec. issue", u"spec issue", u"theme issue"};
constexpr TextView kOf = u" of ";
// Each stands behind a blank or at the front.
constexpr TextView kEditorWords[] = {u"ed. ", u"eds. ", u"edited by "};

constexpr char16_t kQuotes[] = {kLeftDoubleQuotationMark, kRightDoubleQuotationMark, u'"'};

bool isQuote(char16_t unit) {
    return std::find(std::begin(kQuotes), std::end(kQuotes), unit) != std::end(kQuotes);
}

bool isInParentheses(TextView text) {
    return text.size() > 2 && text.front() == u'(' && text.find(u')') == text.size() - 1;
}

/// A title without the comma or full stop that joins it to what follows; an ellipsis and "U.S." stay.
TextView withoutJoint(TextView title) {
    title = trim(title);
    const TextView lastWord = title.substr(title.rfind(u' ') + 1);
    const bool isJoined = title.ends_with(u',') || (!title.empty() && lastWord.find(u'.') + 1 == lastWord.size());
    return isJoined ? title.substr(0, title.size() - 1) : title;
}

/// "“Identities,”" without its marks; those inside become double.
Text withoutQuotes(TextView title) {
    title = withoutJoint(title);
    if (title.size() < 2 || !isQuote(title.front()) || !isQuote(title.back())) {
        return Text(title);
    }
    return titlequotes::withDoubleQuotationMarks(withoutJoint(title.substr(1, title.size() - 2)));
}

/// A word of the table where it first stands on its own.
struct FoundWord {
    std::size_t at;
    std::size_t length;
};

template <std::size_t N>
std::optional<FoundWord> findWord(TextView text, const TextView (&words)[N]) {
    for (std::size_t at = 0; at != TextView::npos && at < text.size();) {
        for (const TextView word : words) {
            if (startsWithIgnoringCase(text.substr(at), word)) {
                return FoundWord{at, word.size()};
            }
        }
        at = text.find_first_of(kOpeningSigns, at);
        at = at == TextView::npos ? at : at + 1;
    }
    return std::nullopt;
}

/// "4", "3 and 4", "3, pt. 1"
bool areNumbers(TextView text) {
    const TextView first = text.substr(0, text.find_first_of(u" ,"));
    TextView rest = text.substr(first.size());
    if (rest.empty() || first.empty() || !isDigit(first.front())) {
        return isNumber(text);
    }
    const auto* const joint = std::find_if(std::begin(kNumberJoints), std::end(kNumberJoints),
                                           [&](TextView entry) { return startsWith(rest, entry); });
    if (joint == std::end(kNumberJoints)) {
        return false;
    }
    rest.remove_prefix(joint->size());
    const auto* const part = std::find_if(std::begin(kPartWords), std::end(kPartWords),
                                          [&](TextView word) { return startsWithIgnoringCase(rest, word); });
    const bool isPart = part != std::end(kPartWords);
    rest.remove_prefix(isPart ? part->size() : 0);
    // "4 2001" is no pair.
    return isNumber(rest) && (isPart || *joint != kBlank);
}

}  // namespace

TextView withoutWord(TextView text) {
    const TextView inside = isInParentheses(text) ? trim(text.substr(1, text.size() - 2)) : text;
    for (const TextView word : kNumberWords) {
        if (startsWithIgnoringCase(inside, word) && areNumbers(trim(inside.substr(word.size())))) {
            return trim(inside.substr(word.size()));
        }
    }
    return areNumbers(inside) ? inside : text;
}

bool isNumber(TextView text) {
    const bool isOpen = contains(text, u"(") && !contains(text, u")");
    return !contains(text, kBlank) && !isOpen &&
           (text.find_first_of(kDigits) != TextView::npos || volumenumbers::isNumber(text));
}

std::optional<Supplement> supplement(TextView text) {
    const std::optional<FoundWord> word = findWord(text, kSupplementWords);
    if (!word) {
        return std::nullopt;
    }
    const TextView issue = withoutWord(trim(text.substr(0, word->at), kSignsAndBrackets));
    const TextView number = withoutWord(trim(text.substr(word->at + word->length), kSignsAndBrackets));
    // "Supplement A"
    const bool isNumbered = number.size() <= 1 || isNumber(number);
    const bool isOne = (issue.empty() || isNumber(issue)) && isNumbered;
    return isOne ? std::optional<Supplement>({issue, number}) : std::nullopt;
}

bool isEdition(TextView text) {
    const TextView inside = isInParentheses(text) ? text.substr(1, text.size() - 2) : text;
    // "late ed., sec. A"
    const TextView edition = before(inside, u",");
    const std::size_t blank = edition.rfind(u' ');
    return blank != TextView::npos && isOneOfIgnoringCase(edition.substr(blank + 1), kEditionWords);
}

std::optional<Special> special(TextView text) {
    const std::optional<FoundWord> words = findWord(text, kSpecialWords);
    if (!words) {
        return std::nullopt;
    }
    const TextView front = text.substr(0, words->at);
    const TextView behind = text.substr(words->at + words->length);
    if (startsWithIgnoringCase(behind, kOf)) {
        return Special{front, trim(behind.substr(kOf.size()))};
    }
    // Turabian 7 17.3.6
    if (behind.size() > 1 && behind.front() == u',') {
        return Special{front, trim(behind, u" ,")};
    }
    // The bracket that opened before the words.
    const TextView rest = trim(behind, kSignsAndBrackets);
    // APA 6 7.01
    const bool endsBrackets = behind.starts_with(u"].") || behind.starts_with(u"],");
    if (endsBrackets && !rest.empty()) {
        return Special{trim(front, u" ,;:(["), trim(behind.substr(2))};
    }
    if (rest.empty()) {
        return Special{trim(front, u" ,;:(["), {}};
    }
    const bool isInFront = trim(front, kSignsAndBrackets).empty() && behind.starts_with(u':');
    return isInFront ? std::optional<Special>({trim(behind, u" .,;:)]"), {}}) : std::nullopt;
}

SpecialParts specialParts(TextView text) {
    SpecialParts parts;
    text = trim(text);
    if (const TextView all = withoutWord(trim(text, kSigns)); areNumbers(all)) {
        parts.number = all;
        return parts;
    }
    const std::size_t comma = text.find(u',');
    if (const TextView number = withoutWord(text.substr(0, comma)); comma != TextView::npos && isNumber(number)) {
        parts.number = number;
        text = trim(text.substr(comma + 1));
    }
    if (const std::optional<FoundWord> word = findWord(text, kEditorWords)) {
        parts.editor = withoutStopOfSentence(trim(text.substr(word->at + word->length), u" ,;"));
        text = text.substr(0, word->at);
    }
    parts.title = withoutQuotes(text);
    return parts;
}

}  // namespace quorvel::issuetext

#include "elements/edition/reprint_text.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "elements/edition/record.h"
#include "elements/page_words.h"
#include "elements/volume_numbers.h"

namespace quorvel::reprinttext {

namespace {

constexpr TextView kSentenceEnd = u". ";
// Their full stop ends no sentence.
constexpr TextView kAbbreviations[] = {
    u"St", u"Ste", u"Mt", u"Ft",  u"Dr",    u"Mr",   u"Mrs",  u"Univ", u"vol",    u"vols",   u"no",    u"nos", u"pp",
    u"p",  u"ed",  u"Ed", u"eds", u"trans", u"spec", u"Spec", u"vs",   u"Introd", u"introd", u"Trans", u"ca",  u"c"};

constexpr std::size_t kDigitsOfYear = 4;
constexpr std::size_t kLongestYear = 14;
constexpr TextView kSignsOfYear = u"0123456789-\u2013[]?/";
constexpr TextView kCirca[] = {u"ca. ", u"c. ", u"[ca. ", u"[c. "};
// Without the last full stop.
constexpr TextView kEras[] = {u" B.C.E", u" BCE", u" B.C", u" BC", u" C.E", u" CE"};
constexpr std::size_t kLongestMonth = 16;
constexpr std::size_t kLongestPages = 40;
constexpr TextView kNumberWord = u"no. ";
constexpr TextView kWordsBeforeVolumes[] = {u"Vol", u"vol", u"Vols", u"vols", u"No", u"no", u"Pt", u"pt", u"Bk", u"bk"};

// A volume has no more letters than a numeral, a number no more than "S2".
constexpr std::size_t kLongestVolume = 8;

struct ContributorMark {
    TextView mark;
    TextView type;
};

// The longer ones first.
constexpr ContributorMark kContributorMarks[] = {
    {u"introd. and notes by ", EditionBookChapterYear::kIntroducerWithNotes},
    {u"introd. and notes ", EditionBookChapterYear::kIntroducerWithNotes},
    {u"introd. & notes by ", EditionBookChapterYear::kIntroducerWithNotes},
    {u"introd. by ", EditionBookChapterYear::kIntroducer},
    {u"introd. ", EditionBookChapterYear::kIntroducer},
    {u"edited by ", EditionBookChapterYear::kEditor},
    {u"eds. ", EditionBookChapterYear::kEditor},
    {u"ed. by ", EditionBookChapterYear::kEditor},
    {u"ed. ", EditionBookChapterYear::kEditor},
    {u"by ", EditionBookChapterYear::kAuthor},
};
// What stands before the sentence of a contributor.
constexpr TextView kBeforeContributor[] = {u". ", u".\u201D ", u"\u201D ", u".\" ", u"? ", u"! "};

TextView withoutCirca(TextView year) {
    for (const TextView circa : kCirca) {
        if (year.starts_with(circa)) {
            return year.substr(circa.size());
        }
    }
    return year;
}

bool isInitialOrAbbreviation(TextView word) {
    const std::size_t hyphen = word.rfind(u'-');
    const TextView last = hyphen == TextView::npos ? word : word.substr(hyphen + 1);
    const bool isInitial = last.size() == 1 && isCapital(last[0]);
    // "U.S", "D.C"
    return isInitial || contains(word, u".") || isOneOf(word, kAbbreviations);
}

bool endsSentence(TextView text, std::size_t stop) {
    const TextView inFront = text.substr(0, stop);
    if (inFront.ends_with(u')')) {
        // "The Mind (2nd ed.). Boston: Beacon"
        return true;
    }
    const std::size_t blank = inFront.find_last_of(u" (\u201C");
    const TextView word = blank == TextView::npos ? inFront : inFront.substr(blank + 1);
    return !isInitialOrAbbreviation(word);
}

bool isVolume(TextView text) {
    return !text.empty() && text.size() <= kLongestVolume && (isDigits(text) || volumenumbers::isNumber(text));
}

bool isNumberOfIssue(TextView text) {
    return !text.empty() && text.size() <= kLongestVolume && isDigit(text[0]) &&
           consistsOf(text, u"0123456789-\u2013/");
}

/// "1992", "Summer 1992"
bool isDate(TextView text) {
    const std::size_t blank = text.find(u' ');
    return looksLikeYear(text) || (blank <= kLongestMonth && looksLikeYear(text.substr(blank + 1)));
}

std::size_t beginOfWord(TextView text) {
    const std::size_t blank = text.rfind(u' ');
    return blank == TextView::npos ? 0 : blank + 1;
}

}  // namespace

std::size_t lastSentence(TextView text) {
    std::size_t stop = text.size();
    while (stop > 0 && (stop = text.rfind(kSentenceEnd, stop - 1)) != TextView::npos) {
        if (endsSentence(text, stop)) {
            return stop + kSentenceEnd.size();
        }
    }
    return 0;
}

std::size_t endOfSentence(TextView text, std::size_t from) {
    std::size_t stop = from;
    while ((stop = text.find(kSentenceEnd, stop)) != TextView::npos) {
        if (endsSentence(text, stop)) {
            return stop;
        }
        ++stop;
    }
    return text.size() - (text.size() > from && text.back() == u'.' && endsSentence(text, text.size() - 1) ? 1 : 0);
}

bool endsWithFullStop(TextView text) {
    return text.ends_with(u'.') && endsSentence(text, text.size() - 1);
}

bool looksLikeYear(TextView text) {
    text = withoutCirca(text);
    if (text.size() < kDigitsOfYear || text.size() > kLongestYear) {
        return false;
    }
    if (isAsciiLetter(text.back())) {
        text.remove_suffix(1);
    }
    const std::size_t digits = text.find_first_of(kDigits);
    return consistsOf(text, kSignsOfYear) && digits <= 1 && text.size() >= digits + kDigitsOfYear &&
           isDigits(text.substr(digits, kDigitsOfYear)) &&
           (text.size() == digits + kDigitsOfYear || !isDigit(text[digits + kDigitsOfYear]));
}

bool isYearOfEra(TextView text) {
    const TextView stopped = trim(text, u" .");
    for (const TextView era : kEras) {
        if (stopped.ends_with(era)) {
            const TextView year = withoutCirca(stopped.substr(0, stopped.size() - era.size()));
            return year.size() <= 2 * kDigitsOfYear + 1 && isDigit(year.empty() ? u' ' : year[0]) &&
                   consistsOf(year, kSignsOfYear);
        }
    }
    return false;
}

std::optional<Range> yearAtEnd(TextView text) {
    std::size_t begin = beginOfWord(text);
    if (!looksLikeYear(text.substr(begin))) {
        return std::nullopt;
    }
    for (const TextView circa : kCirca) {
        if (begin >= circa.size() && text.substr(begin - circa.size(), circa.size()) == circa &&
            (begin == circa.size() || text[begin - circa.size() - 1] == u' ')) {
            begin -= circa.size();
            break;
        }
    }
    return Range{begin, text.size()};
}

std::size_t yearBehindComma(TextView text, std::size_t from) {
    std::size_t end = text.size();
    while (end > from) {
        const std::size_t comma = text.substr(0, end).rfind(u", ");
        if (comma == TextView::npos || comma < from) {
            break;
        }
        if (isDate(trim(text.substr(comma + 2, end - comma - 2), u" ."))) {
            return comma;
        }
        end = comma;
    }
    return text.size();
}

std::optional<JournalTail> journalTail(TextView text) {
    const std::size_t close = text.rfind(u')');
    if (close == TextView::npos) {
        return std::nullopt;
    }
    const TextView behind = text.substr(close + 1);
    const std::size_t open = text.rfind(u'(', close);
    const bool isTail = behind.empty() || behind == u"." || behind.starts_with(u':') || behind.starts_with(u',');
    if (!isTail || open == TextView::npos || open == 0 || !isDate(text.substr(open + 1, close - open - 1))) {
        return std::nullopt;
    }
    JournalTail tail = {{open, open}, {open, open}, {open, close + 1}};
    const std::size_t end = text[open - 1] == u' ' ? open - 1 : open;
    const TextView inFront = text.substr(0, end);
    std::size_t begin = beginOfWord(inFront);
    const TextView last = inFront.substr(begin);
    const std::size_t stop = last.find_first_of(u".(");
    if (stop != TextView::npos && isVolume(last.substr(0, stop))) {
        // "18.4" and "18(4)"
        const TextView number = last.substr(stop + 1, last.size() - stop - (last.back() == u')' ? 2 : 1));
        if (isNumberOfIssue(number)) {
            tail.volume = {begin, begin + stop};
            tail.number = {begin + stop + 1, begin + stop + 1 + number.size()};
        }
        return tail;
    }
    if (isNumberOfIssue(last) && inFront.substr(0, begin).ends_with(kNumberWord)) {
        // "18, no. 4"
        tail.number = {begin, end};
        const TextView rest = trim(inFront.substr(0, begin - kNumberWord.size()), u" ,");
        const std::size_t from = rest.empty() ? 0 : static_cast<std::size_t>(rest.data() - text.data());
        const std::size_t volume = beginOfWord(rest);
        if (isVolume(rest.substr(volume))) {
            tail.volume = {from + volume, from + rest.size()};
        }
        return tail;
    }
    if (isVolume(last)) {
        tail.volume = {begin, end};
    }
    return tail;
}

VolumeAndNumber volumeAtEnd(TextView text) {
    const std::size_t begin = beginOfWord(text);
    const TextView last = text.substr(begin);
    const std::size_t open = last.find(u'(');
    const TextView volume = last.substr(0, open);
    const Range none = {text.size(), text.size()};
    const bool isBehindComma = begin >= 2 && text[begin - 2] == u',';
    if (!isVolume(volume) || !isBehindComma) {
        return {none, none};
    }
    const Range whole = {begin, begin + volume.size()};
    if (open == TextView::npos) {
        return {whole, none};
    }
    const TextView number = last.substr(open + 1, last.size() - open - 2);
    return last.ends_with(u')') && isNumberOfIssue(number)
               ? VolumeAndNumber{whole, {begin + open + 1, begin + open + 1 + number.size()}}
               : VolumeAndNumber{none, none};
}

std::size_t beginOfPages(TextView text) {
    const std::size_t from = text.size() - std::min(text.size(), kLongestPages);
    const TextView tail = text.substr(from);
    std::size_t sign = tail.size();
    while (sign > 0 && (sign = tail.substr(0, sign).find_last_of(u",:.")) != TextView::npos) {
        const TextView behind = tail.substr(sign + 1);
        const TextView pages = trim(behind);
        const std::size_t begin = beginOfWord(tail.substr(0, sign));
        const TextView word = tail.substr(begin, sign - begin);
        // "Studies. Vol. 2" has no page, "45, n. 3" and "12-14, 20" go on in front.
        const bool isVolume = tail[sign] == u'.' && isOneOf(word, kWordsBeforeVolumes);
        const bool goesOn = isVolume || word == u"n" || word == u"nn" || pages.starts_with(u'n') ||
                            (tail[sign] == u',' && sign > 0 && isDigit(tail[sign - 1]));
        if (!behind.starts_with(u' ') || goesOn) {
            continue;
        }
        if (tail[sign] == u'.' && pagewords::locatorWord(tail.substr(begin))) {
            return from + begin;
        }
        const bool isShort = contains(pages, u" ") || pages.find_first_of(u"0123456789ivxlcIVXLC") == 0;
        return isShort ? from + sign + 2 : text.size();
    }
    return from == 0 ? 0 : text.size();
}

std::optional<Quotation> quotation(TextView text) {
    if (text.empty() || (text[0] != kLeftDoubleQuotationMark && text[0] != u'"')) {
        return std::nullopt;
    }
    const std::size_t close = text.find(text[0] == u'"' ? u'"' : kRightDoubleQuotationMark, 1);
    if (close == TextView::npos) {
        return std::nullopt;
    }
    TextView title = text.substr(1, close - 1);
    if (title.ends_with(u'.') || title.ends_with(u',')) {
        title.remove_suffix(1);
    }
    return Quotation{title, std::min(text.find_first_not_of(u" .,", close + 1), text.size())};
}

PlaceAndPublisher placeAndPublisher(TextView text) {
    const std::size_t colon = text.rfind(u": ");
    return colon == TextView::npos ? PlaceAndPublisher{{}, trim(text)}
                                   : PlaceAndPublisher{trim(text.substr(0, colon)), trim(text.substr(colon + 2))};
}

std::optional<Contributor> contributor(TextView text) {
    // A capital letter begins the sentence: in the middle of one "by" is no more than a word.
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isBeginOfWord = text[at] >= u'A' && text[at] <= u'Z' && (at == 0 || text[at - 1] == u' ');
        if (!isBeginOfWord || (at > 0 && !endsWithOneOf(text.substr(0, at), kBeforeContributor))) {
            continue;
        }
        for (const ContributorMark& row : kContributorMarks) {
            if (startsWithIgnoringCase(text.substr(at), row.mark)) {
                const std::size_t begin = at + row.mark.size();
                const std::size_t end = endOfSentence(text, begin);
                return Contributor{text.substr(begin, end - begin), row.type, {at, end}};
            }
        }
    }
    return std::nullopt;
}

TextView authorInFront(TextView text) {
    const auto beginsWithInitial = [](TextView name) {
        for (const TextView andWord : {TextView(u"& "), TextView(u"and ")}) {
            name.remove_prefix(name.starts_with(andWord) ? andWord.size() : 0);
        }
        return name.size() > 3 && isCapital(name[0]) && name[1] == u'.';
    };
    std::size_t comma = text.find(u", ");
    if (comma == TextView::npos || contains(text.substr(0, comma), u"\u201C")) {
        return {};
    }
    const auto isBeforeQuotation = [&] {
        const char16_t next = comma + 2 < text.size() ? text[comma + 2] : u' ';
        return next == kLeftDoubleQuotationMark || next == u'"';
    };
    if (!beginsWithInitial(text)) {
        return isBeforeQuotation() ? text.substr(0, comma) : TextView();
    }
    while (beginsWithInitial(text.substr(comma + 2))) {
        const std::size_t next = text.find(u", ", comma + 2);
        if (next == TextView::npos) {
            break;
        }
        comma = next;
    }
    return text.substr(0, comma);
}

bool removeLeadIn(Text& text, TextView leadIn) {
    if (!startsWithIgnoringCase(text, leadIn)) {
        return false;
    }
    text.erase(0, leadIn.size());
    return true;
}

Text titleOf(TextView text) {
    TextView title = trim(text, u" ,;:");
    if (endsWithFullStop(title) && !title.ends_with(u"..")) {
        title.remove_suffix(1);
    }
    return Text(trim(title));
}

TextView withoutParentheses(TextView text) {
    TextView inside = text.ends_with(u").") ? text.substr(0, text.size() - 1) : text;
    if (inside.size() < 2 || inside.front() != u'(' || inside.back() != u')') {
        return text;
    }
    inside = inside.substr(1, inside.size() - 2);
    // "(a) and (b)" has none.
    std::size_t depth = 0;
    for (const char16_t unit : inside) {
        if (unit == u')' && depth == 0) {
            return text;
        }
        depth += unit == u'(' ? 1U : 0U;
        depth -= unit == u')' ? 1U : 0U;
    }
    return depth == 0 ? trim(inside) : text;
}

}  // namespace quorvel::reprinttext

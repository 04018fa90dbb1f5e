#include "elements/refers_to/text.h"

#include <algorithm>
#include <iterator>

#include "core/common_model_processing_functions.h"
#include "core/letter_case.h"
#include "core/months.h"
#include "elements/date/date_text.h"

namespace quorvel::referstotext {

namespace {

constexpr TextView kJoints = u" .,;:";
constexpr TextView kSentenceEnds = u".?!";
constexpr TextView kDoi = u"doi:";
constexpr TextView kPagePrefixes[] = {u"pp. ", u"p. "};
constexpr TextView kSignsOfRange = u"0123456789-\u2013";

// Behind a full stop, where a year would stand.
constexpr TextView kWordsForYears[] = {u"In press",    u"In Press", u"in press",    u"Forthcoming",
                                       u"forthcoming", u"n.d.",     u"date unknown"};
constexpr TextView kSeasons[] = {u"Spring", u"Summer", u"Fall", u"Autumn", u"Winter"};
// What may belong to a date in front of its year: "12 Jan.", "January 3,", "July/August".
constexpr int kMostWordsOfDate = 3;

constexpr TextView kNumberWords[] = {u", no. ", u", publ. nr. ", u"publ. nr. "};
constexpr TextView kVolumeWords[] = {u" vol.", u" Vol.", u" volume"};
constexpr TextView kRomanDigits = u"IVXLC";
constexpr std::size_t kLongestBareVolume = 4;

constexpr TextView kAbstractWord = u"abstract ";
// "n. pag." and "pp. 399-402" have full stops of their own.
constexpr std::size_t kLongestPage = 24;
constexpr TextView kWordsBeforeNumbers[] = {u"Vol", u"Vols", u"No", u"no", u"Pt", u"p", u"pp", u"P", u"Pp"};

constexpr TextView kNewSeries[] = {u"n.s.", u"ns", u"n.s", u"new ser.", u"new series", u"new"};
constexpr TextView kOldSeries[] = {u"o.s.", u"os", u"o.s", u"old ser.", u"old series", u"old"};
constexpr TextView kSeriesWords[] = {u" ser.", u" series", u" ser"};
constexpr TextView kSeriesFirst[] = {u"ser. ", u"series "};
constexpr TextView kOrdinalWords[] = {u"first", u"second", u"third", u"fourth", u"fifth", u"sixth"};

// Their full stop ends no sentence; neither does an initial's.
constexpr TextView kAbbreviations[] = {u"St",  u"Mt",  u"Ft",   u"Dr",  u"vs",  u"Jan", u"Feb", u"Mar",
                                       u"Apr", u"Aug", u"Sept", u"Oct", u"Nov", u"Dec", u"no",  u"nr"};
constexpr TextView kLeadsOfParts[] = {u"Vol. ", u"Ed. "};

constexpr TextView kFirstYear = u"1400";
constexpr TextView kLastYear = u"2099";
constexpr std::size_t kDigitsOfYear = 4;

bool hasDigit(TextView text) {
    return text.find_first_of(kDigits) != TextView::npos;
}

/// "Jan", "January", "July/August".
bool beginsWithMonth(TextView word) {
    // Hardly a word does, and the whole test is long.
    const bool mayBe = std::any_of(std::begin(kMonths), std::end(kMonths),
                                   [&](const Month& month) { return startsWithIgnoringCase(word, month.shortName()); });
    return mayBe && isMonth(before(before(word, u"/"), u"-"));
}

/// Where the last word begins.
std::size_t lastWord(TextView text) {
    const std::size_t blank = text.rfind(u' ');
    return blank == TextView::npos ? 0 : blank + 1;
}

bool endsASentence(TextView text) {
    return !text.empty() && kSentenceEnds.find(text.back()) != TextView::npos;
}

bool beginsWithYear(TextView text) {
    const TextView year = text.substr(0, kDigitsOfYear);
    return isDigits(year) && year.size() == kDigitsOfYear && year >= kFirstYear && year <= kLastYear;
}

/// A number of one volume: "291", "XII", "B12".
bool isVolume(TextView text) {
    return !text.empty() && text.size() <= kLongestBareVolume && (hasDigit(text) || consistsOf(text, kRomanDigits)) &&
           std::all_of(text.begin(), text.end(), [](char16_t unit) { return isDigit(unit) || isAsciiLetter(unit); }) &&
           !isYear(text);
}

bool isInitial(TextView wordWithoutStop) {
    return wordWithoutStop.size() == 1 && isCapital(wordWithoutStop[0]);
}

/// The word in front of the mark at `at`, without what joins it to others by a hyphen or a stop: "P" of "J.-P."
TextView wordBefore(TextView text, std::size_t at) {
    const TextView front = text.substr(0, at);
    const std::size_t sign = front.find_last_of(u" .-[(");
    return front.substr(sign == TextView::npos ? 0 : sign + 1);
}

/// A full stop, question or exclamation mark with a blank behind that ends a sentence.
bool isBoundary(TextView text, std::size_t at, InitialsStop initials) {
    if (kSentenceEnds.find(text[at]) == TextView::npos || at + 1 >= text.size() || text[at + 1] != u' ') {
        return false;
    }
    const TextView word = wordBefore(text, at);
    return text[at] != u'.' || !(isOneOf(word, kAbbreviations) || (isInitial(word) && initials == kEndsNothing));
}

/// "Hwang, W. S., & Roh, S. I. Title", "Lee K. Title": behind a last name the last initial ends the authors, when no
/// other initial and no sign follows.
bool isLastInitial(TextView text, std::size_t at) {
    const TextView next = text.substr(at + 2);
    const bool isInitialNext = next.size() > 1 && isCapital(next[0]) && (next[1] == u'.' || next[1] == u'-');
    return text[at] == u'.' && !isInitialNext && !next.empty() && isCapital(next[0]);
}

/// "2" of "ser. 2"; empty for any other text.
TextView numberOfSeries(TextView text) {
    for (const TextView word : kSeriesFirst) {
        if (startsWithIgnoringCase(text, word) && isDigits(text.substr(word.size()))) {
            return text.substr(word.size());
        }
    }
    return {};
}

/// The first person stands last name first with initials: "Hwang, W."
bool beginsWithReversedName(TextView text) {
    const std::size_t comma = text.find(u", ");
    return comma != TextView::npos && comma + 3 < text.size() && isCapital(text[comma + 2]) &&
           text[comma + 3] == u'.' && text.find(u". ") > comma;
}

/// "Hwang WS, Roh SI", "Smith, John", "Lee BC, et al": a name with initials or with a comma, rather than a title.
bool looksLikeAuthors(TextView text) {
    if (contains(text, u"et al")) {
        return true;
    }
    const TextView first = before(text, u",");
    const TextView last = first.substr(lastWord(first));
    constexpr std::size_t kMostInitials = 3;
    const bool isCompact = last.size() < first.size() && last.size() <= kMostInitials &&
                           std::all_of(last.begin(), last.end(), [](char16_t unit) { return isCapital(unit); });
    return isCompact || beginsWithReversedName(text);
}

}  // namespace

TextView withoutJoint(TextView text) {
    const std::size_t last = text.find_last_not_of(kJoints);
    return text.substr(0, last == TextView::npos ? 0 : last + 1);
}

TextView withoutFullStop(TextView text) {
    const TextView words = withoutJoint(text);
    const std::size_t at = lastWord(words);
    const bool isStopped = words.size() < text.size() && text[words.size()] == u'.';
    const bool isBehindName = at > 1 && (words[at - 2] == u',' || words[at - 2] == u'.');
    return isStopped && isBehindName && isInitial(words.substr(at)) ? text.substr(0, words.size() + 1) : words;
}

bool isYear(TextView text) {
    text = trim(text, u"[]?");
    if (!beginsWithYear(text)) {
        return false;
    }
    const TextView rest = text.substr(kDigitsOfYear);
    return rest.empty() || (rest.size() == 1 && isAsciiLetter(rest[0])) ||
           (rest.size() > 1 && rest.size() <= kDigitsOfYear + 1 && (rest[0] == u'-' || rest[0] == kEnDash) &&
            isDigits(rest.substr(1)));
}

std::optional<Cut> page(TextView text) {
    if (const std::size_t doi = findIgnoringCase(text, kDoi); doi != TextView::npos && doi > 0) {
        return Cut{withoutJoint(text.substr(0, doi)), text.substr(doi)};
    }
    if (const std::size_t colon = text.rfind(u':'); colon != TextView::npos && colon > 0) {
        const TextView rest = text.substr(0, colon);
        const TextView part = trim(text.substr(colon + 1));
        TextView number = part;
        for (const TextView prefix : kPagePrefixes) {
            number.remove_prefix(number.starts_with(prefix) ? prefix.size() : 0);
        }
        const bool isBehindNumber = rest.back() == u')' || isDigit(rest.back());
        const bool isJoined = isAsciiLetter(rest.back()) && text[colon + 1 < text.size() ? colon + 1 : colon] != u' ';
        if ((isBehindNumber || isJoined || consistsOf(number, kSignsOfRange)) && hasDigit(number) &&
            !contains(number, u". ") && !contains(number, u";")) {
            return Cut{rest, part};
        }
    }
    // APA: "375(9713), 445".
    if (const std::size_t comma = text.rfind(u", "); comma != TextView::npos && comma > 0) {
        const TextView rest = text.substr(0, comma);
        const TextView part = text.substr(comma + 2);
        const bool isBehindNumber = rest.back() == u')' || (isDigit(rest.back()) && !isYear(part));
        if (isBehindNumber && !part.empty() && isDigit(part.back()) && !contains(part, u" ")) {
            return Cut{rest, part};
        }
    }
    return std::nullopt;
}

std::optional<Cut> yearInParentheses(TextView text) {
    if (!text.ends_with(u')')) {
        return std::nullopt;
    }
    const std::size_t open = text.rfind(u'(');
    if (open == TextView::npos || (open > 0 && text[open - 1] != u' ')) {
        return std::nullopt;
    }
    const TextView inside = text.substr(open + 1, text.size() - open - 2);
    if (!isYear(inside.substr(lastWord(inside))) && !isOneOf(inside, kWordsForYears)) {
        return std::nullopt;
    }
    return Cut{trim(text.substr(0, open)), inside};
}

bool isShortDate(TextView text) {
    const TextView day = before(text, u" ");
    const TextView year = text.substr(lastWord(text));
    if (!isDigits(day) || day.size() > 2 || day[0] == u'0' || day.size() + year.size() + 2 >= text.size()) {
        return false;
    }
    const TextView month = text.substr(day.size() + 1, text.size() - day.size() - year.size() - 2);
    return isDigits(year) && isYear(year) &&
           std::any_of(std::begin(kMonths), std::end(kMonths), [&](const Month& row) { return row.mla == month; });
}

std::optional<Cut> date(TextView text, bool bareYear) {
    for (const TextView word : kWordsForYears) {
        if (text.ends_with(word)) {
            const TextView rest = trim(text.substr(0, text.size() - word.size()));
            if (rest.empty() || endsASentence(rest)) {
                return Cut{rest, text.substr(text.size() - word.size())};
            }
        }
    }
    std::size_t start = lastWord(text);
    if (!isYear(text.substr(start))) {
        return std::nullopt;
    }
    const std::size_t year = start;
    for (int words = 0; words < kMostWordsOfDate && start > 1; ++words) {
        const TextView front = text.substr(0, start - 1);
        const std::size_t at = lastWord(front);
        const TextView word = trim(front.substr(at), u".,");
        const bool isDay = !word.empty() && word.size() <= 2 && isDigits(word);
        if (!isDay && !beginsWithMonth(word) && !isOneOf(word, kSeasons)) {
            break;
        }
        start = at;
    }
    // A number in front of the year alone is no day: "Channel 4 2004".
    if (start < year && isDigits(trim(text.substr(start, year - start), u" .,"))) {
        start = year;
    }
    const TextView rest = trim(text.substr(0, start));
    if (rest.empty() || bareYear || endsASentence(rest) || start < year) {
        return Cut{rest, text.substr(start)};
    }
    return std::nullopt;
}

std::optional<VolumeAndNumber> volumeAndNumber(TextView text, bool bareVolume) {
    if (text.ends_with(u')')) {
        const std::size_t open = text.rfind(u'(');
        if (open == TextView::npos || open + 2 >= text.size()) {
            return std::nullopt;
        }
        const TextView number = text.substr(open + 1, text.size() - open - 2);
        const TextView front = text.substr(0, open);
        if (front.empty() || front.ends_with(u';') || front.ends_with(u". ")) {
            return VolumeAndNumber{withoutJoint(front), {}, number};
        }
        const std::size_t sign = front.find_last_of(u" ;");
        const std::size_t at = sign == TextView::npos ? 0 : sign + 1;
        const TextView volume = front.substr(at);
        if (volume.empty() || !(hasDigit(volume) || consistsOf(volume, kRomanDigits))) {
            return std::nullopt;
        }
        return VolumeAndNumber{trim(front.substr(0, at), u" ;"), volume, number};
    }
    for (const TextView word : kNumberWords) {
        const std::size_t at = word.starts_with(u',') ? text.rfind(word) : text.starts_with(word) ? 0 : TextView::npos;
        if (at == TextView::npos || contains(text.substr(at + word.size()), u". ")) {
            continue;
        }
        const TextView number = text.substr(at + word.size());
        TextView front = text.substr(0, at);
        const std::size_t volumeAt = lastWord(front);
        const TextView volume = front.substr(volumeAt);
        if (!isVolume(volume)) {
            return VolumeAndNumber{front, {}, number};
        }
        front = trim(front.substr(0, volumeAt));
        for (const TextView volumeWord : kVolumeWords) {
            if (front.ends_with(volumeWord)) {
                front.remove_suffix(volumeWord.size());
            }
        }
        return VolumeAndNumber{withoutJoint(front), volume, number};
    }
    // AMA: "2004;291", also "2004;19 suppl 1".
    if (const std::size_t sign = text.rfind(u';'); sign != TextView::npos && sign + 1 < text.size()) {
        const TextView front = text.substr(0, sign);
        const TextView volume = trim(text.substr(sign + 1));
        if (isYear(front.substr(lastWord(front))) && !contains(volume, u". ")) {
            return VolumeAndNumber{front, volume, {}};
        }
    }
    const std::size_t at = lastWord(text);
    const TextView word = text.substr(at);
    const TextView front = trim(text.substr(0, at));
    const std::size_t dot = word.find(u'.');
    // "19.suppl 1"
    const std::size_t wordInFront = lastWord(front);
    const std::size_t dotInFront = front.find(u'.', wordInFront);
    if (dotInFront != TextView::npos && dotInFront + 1 < front.size() && hasDigit(word) &&
        isDigits(front.substr(wordInFront, dotInFront - wordInFront))) {
        return VolumeAndNumber{trim(front.substr(0, wordInFront)), front.substr(wordInFront, dotInFront - wordInFront),
                               text.substr(dotInFront + 1)};
    }
    if (dot != TextView::npos && dot > 0 && dot + 1 < word.size() && hasDigit(word.substr(0, dot)) &&
        hasDigit(word.substr(dot + 1))) {
        return VolumeAndNumber{front, word.substr(0, dot), word.substr(dot + 1)};
    }
    if (bareVolume && isVolume(word) && hasDigit(word)) {
        return VolumeAndNumber{front, word, {}};
    }
    return std::nullopt;
}

Issue issue(TextView text) {
    Issue parts;
    parts.rest = trim(text);
    if (const std::optional<Cut> found = page(parts.rest)) {
        parts.page = found->part;
        parts.rest = found->rest;
    }
    if (const std::optional<Cut> found = yearInParentheses(parts.rest)) {
        parts.year = found->part;
        parts.rest = found->rest;
    }
    if (const std::optional<VolumeAndNumber> found = volumeAndNumber(parts.rest, true)) {
        parts.volume = found->volume;
        parts.number = found->number;
        parts.rest = found->rest;
    }
    return parts;
}

bool isSerialArticle(TextView text) {
    const std::size_t between = text.find(u"; ");
    if (between == TextView::npos || text.find(u'(') > between) {
        return false;
    }
    const TextView behind = text.substr(between + 2);
    const Issue first = issue(text.substr(0, between));
    const Issue second = issue(before(behind, u"; "));
    return !first.year.empty() && !second.year.empty() && first.rest.empty() && second.rest.empty();
}

bool isMeetingAbstract(TextView text) {
    const std::optional<Cut> parts = meetingAbstract(text);
    return parts && std::all_of(parts->rest.begin(), parts->rest.end(), [](char16_t unit) { return isCapital(unit); });
}

std::optional<Cut> meetingAbstract(TextView text) {
    const std::size_t at = findIgnoringCase(text, kAbstractWord);
    if (at == TextView::npos || (at > 0 && text[at - 1] != u' ')) {
        return std::nullopt;
    }
    const TextView number = text.substr(at + kAbstractWord.size());
    if (!hasDigit(number) || contains(number, u" ")) {
        return std::nullopt;
    }
    return Cut{trim(text.substr(0, at)), number};
}

bool isSeries(TextView text) {
    if (isOneOfIgnoringCase(text, kNewSeries) || isOneOfIgnoringCase(text, kOldSeries)) {
        // "New" and "old" alone are words of other texts.
        return text.find_first_of(u". ") != TextView::npos || text.size() == 2;
    }
    const TextView word = before(text, u" ");
    return !numberOfSeries(text).empty() || (isOneOfIgnoringCase(text.substr(word.size()), kSeriesWords) &&
                                             (hasDigit(word) || isOneOfIgnoringCase(word, kOrdinalWords)));
}

Text seriesName(TextView text) {
    if (const TextView number = numberOfSeries(text); !number.empty()) {
        text = number;
    }
    if (isOneOfIgnoringCase(text, kNewSeries)) {
        return Text(kNewSeries[0]);
    }
    if (isOneOfIgnoringCase(text, kOldSeries)) {
        return Text(kOldSeries[0]);
    }
    for (const TextView word : kSeriesWords) {
        if (text.size() > word.size() && text.ends_with(word)) {
            text.remove_suffix(word.size());
        }
    }
    return isDigits(text) ? CommonModelProcessingFunctions::spinNumToStr(text) : Text(text);
}

std::size_t lastSentence(TextView text, InitialsStop initials) {
    for (std::size_t at = text.size(); at-- > 0;) {
        if (text[at] == u' ' && at > 0 && isBoundary(text, at - 1, initials)) {
            return at + 1;
        }
    }
    return 0;
}

std::size_t authors(TextView text) {
    const std::size_t last = lastSentence(text);
    if (last < 2) {
        return 0;
    }
    // "J. K. Lee. Title": initials in front of a last name end nothing.
    const bool isReversed = !isInitial(before(before(text, u"."), u" "));
    std::size_t end = 0;
    for (std::size_t at = text.find(u". "); at != TextView::npos; at = text.find(u". ", at + 1)) {
        if (isBoundary(text, at, kEndsNothing) || (isReversed && isLastInitial(text, at))) {
            end = at;
            break;
        }
    }
    if (end == 0) {
        return 0;
    }
    // One sentence in front of the journal is the title when it names nobody.
    const bool isTitleBehind = end + 2 < last;
    const std::size_t length = withoutFullStop(text.substr(0, end + 1)).size();
    return isTitleBehind || looksLikeAuthors(text.substr(0, end)) ? length : 0;
}

std::optional<Quotation> quotation(TextView text) {
    const std::size_t open = text.find(kLeftDoubleQuotationMark);
    const std::size_t close = text.rfind(kRightDoubleQuotationMark);
    if (open == TextView::npos || close == TextView::npos || close < open) {
        return std::nullopt;
    }
    TextView title = text.substr(open + 1, close - open - 1);
    if (title.ends_with(u'.') || title.ends_with(u',')) {
        title.remove_suffix(1);
    }
    const TextView behind = text.substr(close + 1);
    return Quotation{withoutJoint(text.substr(0, open)), title,
                     behind.substr(std::min(behind.find_first_not_of(kJoints), behind.size()))};
}

std::optional<Publication> publication(TextView text) {
    Publication parts;
    TextView body = text;
    if (const std::size_t comma = text.rfind(u", "); comma != TextView::npos) {
        const TextView year = text.substr(comma + 2);
        if ((isYear(year) && year.find_first_of(u"-\u2013") == TextView::npos) || isOneOf(year, kWordsForYears)) {
            parts.year = year;
            body = text.substr(0, comma);
        }
    }
    const std::size_t colon = body.rfind(u": ");
    const bool hasPlace = colon != TextView::npos;
    const std::size_t start = lastSentence(body.substr(0, colon), hasPlace ? kEndsSentence : kEndsNothing);
    if (start == 0 && parts.year.empty()) {
        return std::nullopt;
    }
    const TextView statement = body.substr(start);
    const std::size_t sign = hasPlace ? statement.find(u": ") : TextView::npos;
    // "Vol. 2, 1998" and "Ed. A. Lee, 1998" have no publisher.
    const bool isOtherPart = endsWithOneOf(body.substr(0, start), kLeadsOfParts);
    if (sign == TextView::npos && (parts.year.empty() || start == 0 || isOtherPart)) {
        return std::nullopt;
    }
    parts.rest = trim(text.substr(0, start));
    parts.place = sign == TextView::npos ? TextView() : statement.substr(0, sign);
    parts.publisher = sign == TextView::npos ? statement : statement.substr(sign + 2);
    return parts;
}

std::optional<Cut> pageAtEnd(TextView text) {
    for (std::size_t at = text.rfind(u". "); at != TextView::npos && at > 0; at = text.rfind(u". ", at - 1)) {
        const TextView front = text.substr(0, at);
        const TextView part = text.substr(at + 2);
        if (part.size() > kLongestPage) {
            break;
        }
        const TextView word = front.substr(lastWord(front));
        const bool isNumber = consistsOf(part, kSignsOfRange) && !isOneOf(word, kWordsBeforeNumbers);
        if (isNumber || isYear(word)) {
            return Cut{front, part};
        }
    }
    return std::nullopt;
}

}  // namespace quorvel::referstotext

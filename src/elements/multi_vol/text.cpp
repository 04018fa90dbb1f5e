#include "elements/multi_vol/text.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "elements/sentences.h"
#include "elements/volume_numbers.h"

namespace quorvel::volumetext {

namespace {

struct VolumeWord {
    TextView word;
    bool isPlural;
};

// Longer words first: the first that fits is taken.
constexpr VolumeWord kVolumeWords[] = {
    {u"volumes", true}, {u"volume", false}, {u"vols.", true}, {u"vols", true}, {u"vol.", false}, {u"vol", false},
};

struct NumberWord {
    TextView spelling;
    /// As it is written; without one the statement has its own.
    TextView word;
};

constexpr NumberWord kNumberWords[] = {
    {u"bk.", u"bk. "}, {u"bk", u"bk. "}, {u"book", u"bk. "},  {u"bks.", u"bks. "},  {u"books", u"bks. "},
    {u"pt.", u"pt. "}, {u"pt", u"pt. "}, {u"part", u"pt. "},  {u"pts.", u"pts. "},  {u"parts", u"pts. "},
    {u"no.", u"no. "}, {u"no", u"no. "}, {u"nos.", u"nos. "}, {u"number", u"no. "},
};

constexpr TextView kCountWords[] = {u"vols.", u"vols", u"volumes"};
constexpr TextView kShortSeries = u"Ser.";
constexpr TextView kSeries = u"Series";
constexpr TextView kDashes = u"-\u2013";

// What stands before an editor's name. "Ed." as a word of its own is asked for behind a comma or a sentence only, so
// that "3rd ed." and "rev. ed." stay in a title.
constexpr TextView kEditorMarks[] = {u", edited by ", u". Edited by ", u", ed. ",  u", Ed. ",  u". Ed. ",
                                     u". ed. ",       u", eds. ",      u", Eds. ", u". Eds. ", u". eds. "};
constexpr TextView kFirstUnitsOfMarks = u",.";
constexpr TextView kLeadingEditorMarks[] = {u"edited by ", u"ed. ", u"eds. "};
// Before a mark it makes a general editor: "Gen. ed. David Bevington".
constexpr TextView kGeneral = u"gen";
constexpr TextView kGeneralEditorMarks[] = {u", gen. ed.", u", gen. ed", u", general editor", u", general ed."};

struct SeriesTypeWords {
    TextView words;
    TextView type;
};

constexpr SeriesTypeWords kSeriesTypes[] = {
    {u"o.s.", u"o.s."}, {u"old ser.", u"o.s."}, {u"old series", u"o.s."},
    {u"n.s.", u"n.s."}, {u"new ser.", u"n.s."}, {u"new series", u"n.s."},
};
constexpr TextView kSeriesWords[] = {u" ser.", u" series"};

constexpr TextView kJointSigns = u",;:.";
constexpr TextView kOf = u" of ";
// Behind a book: "Vol. 2, bk. 1, of The History of Cartography".
constexpr TextView kCommaOf = u", of ";
constexpr TextView kRomanDigits = u"IVXLCDMivxlcdm";

bool isLetterOrDigit(char16_t unit) {
    return isDigit(unit) || isCasedLetter(unit);
}

TextView firstUnits(TextView text, TextView units) {
    return text.substr(0, std::min(text.find_first_not_of(units), text.size()));
}

/// The number of one volume at the beginning: digits and a letter, a Roman numeral, a single capital.
TextView oneNumber(TextView text) {
    std::size_t length = firstUnits(text, kDigits).size();
    if (length > 0) {
        length += length < text.size() && isAsciiLetter(text[length]) ? 1 : 0;
    } else {
        length = firstUnits(text, kRomanDigits).size();
        length = length == 0 && !text.empty() && isCapital(text.front()) ? 1 : length;
    }
    const bool ends = length == text.size() || !isLetterOrDigit(text[length]);
    return ends ? text.substr(0, length) : TextView();
}

/// What joins the numbers of several volumes at the beginning. A comma does so between digits only.
TextView numberJoint(TextView text, bool isPlural) {
    constexpr TextView kJoints[] = {u"-", u"\u2013", u" and ", u" & ", u", and ", u", "};
    for (const TextView joint : kJoints) {
        if (startsWith(text, joint)) {
            const TextView next = text.substr(joint.size());
            const bool joins = joint.front() != u',' || (isPlural && !next.empty() && isDigit(next.front())) ||
                               (isPlural && joint.size() > 2);
            return joins && !oneNumber(next).empty() ? joint : TextView();
        }
    }
    return {};
}

/// The number of one or several volumes at the beginning.
TextView numbers(TextView text, bool isPlural) {
    std::size_t length = oneNumber(text).size();
    while (length > 0) {
        const std::size_t joint = numberJoint(text.substr(length), isPlural).size();
        if (joint == 0) {
            break;
        }
        length += joint + oneNumber(text.substr(length + joint)).size();
    }
    return text.substr(0, length);
}

std::size_t withoutBlanks(TextView text, std::size_t from) {
    return std::min(text.find_first_not_of(u' ', from), text.size());
}

/// Where the sign and the blanks before a position begin.
std::size_t joinedAt(TextView text, std::size_t start, TextView signs = kJointSigns) {
    while (start > 0 && text[start - 1] == u' ') {
        --start;
    }
    return start > 0 && signs.find(text[start - 1]) != TextView::npos ? start - 1 : start;
}

/// Whether a sign stands before what begins at a position, or nothing does.
bool isApart(TextView text, std::size_t start) {
    return start == 0 || joinedAt(text, start) + 1 < start;
}

/// The beginning of the last word before a position.
std::size_t lastWord(TextView text, std::size_t end) {
    const std::size_t blank = end == 0 ? TextView::npos : text.rfind(u' ', end - 1);
    return blank == TextView::npos ? 0 : blank + 1;
}

/// Whether a number behind a position is told by the word before it: "Vital and Health Statistics; series 10".
bool isNumberOfWord(TextView text, std::size_t end) {
    const std::size_t word = lastWord(text, end);
    return word > 0 && word < end && isAsciiLetter(text[word]) && !isCapital(text[word]) && text[end] == u' ' &&
           isApart(text, word);
}

/// The end of a text without the full stop of its sentence.
TextView withoutStop(TextView text) {
    return text.ends_with(u'.') ? text.substr(0, text.size() - 1) : text;
}

}  // namespace

Text withFullSeries(TextView title) {
    return replaceAll(title, kShortSeries, kSeries);
}

Text withShortSeries(TextView title) {
    Text result;
    for (std::size_t from = 0;;) {
        const std::size_t at = title.find(kSeries, from);
        if (at == TextView::npos) {
            return result.append(title.substr(from));
        }
        const std::size_t end = at + kSeries.size();
        const bool isWord =
            (at == 0 || !isCasedLetter(title[at - 1])) && (end == title.size() || !isCasedLetter(title[end]));
        result.append(title.substr(from, at - from)).append(isWord ? kShortSeries : kSeries);
        from = end;
    }
}

std::optional<Volumes> volumesAtStart(TextView text) {
    for (const VolumeWord& word : kVolumeWords) {
        if (!startsWithIgnoringCase(text, word.word)) {
            continue;
        }
        const std::size_t from = withoutBlanks(text, word.word.size());
        const bool endsWord =
            from > word.word.size() || word.word.ends_with(u'.') || (from < text.size() && isDigit(text[from]));
        const TextView number = numbers(text.substr(from), word.isPlural);
        if (endsWord && !number.empty()) {
            return Volumes{number, word.isPlural, from + number.size()};
        }
    }
    return std::nullopt;
}

bool tellsOfVolumes(TextView text) {
    const TextView word = text.substr(std::min(text.find_first_not_of(kDigits), text.size()));
    const TextView stem = trim(word);
    return std::any_of(std::begin(kVolumeWords), std::end(kVolumeWords), [&](const VolumeWord& row) {
        // "1 vol." is no count of several.
        const bool endsWord = stem.size() == row.word.size()
                                  ? stem.size() < text.size()
                                  : stem.size() > row.word.size() && stem[row.word.size()] == u' ';
        return endsWord && startsWithIgnoringCase(stem, row.word);
    });
}

bool areSeveral(TextView number) {
    return oneNumber(number).size() < number.size() && numbers(number, true).size() == number.size();
}

std::optional<Numbered> numberAtStart(TextView text) {
    for (const NumberWord& word : kNumberWords) {
        if (!startsWithIgnoringCase(text, word.spelling)) {
            continue;
        }
        const std::size_t from = withoutBlanks(text, word.spelling.size());
        const TextView number = numbers(text.substr(from), false);
        if (!number.empty() && (from > word.spelling.size() || word.spelling.ends_with(u'.'))) {
            return Numbered{word.word, number, 0, from + number.size()};
        }
    }
    return std::nullopt;
}

std::optional<Numbered> numberAtEnd(TextView text) {
    const TextView statement = withoutStop(text);
    const std::size_t number = lastWord(statement, statement.size());
    const std::size_t word = number == 0 ? 0 : lastWord(statement, number - 1);
    std::optional<Numbered> found = numberAtStart(statement.substr(word));
    if (!found || found->length < statement.size() - word) {
        return std::nullopt;
    }
    found->start = joinedAt(text, word);
    found->length = text.size() - found->start;
    return found;
}

Text withWord(TextView number, TextView word) {
    return number.empty() || numberAtStart(number) ? Text(number) : concatenate({word, number});
}

std::optional<Count> countAtEnd(TextView text) {
    TextView rest = withoutStop(text);
    const std::size_t last = lastWord(rest, rest.size());
    const std::size_t word = last == 0 ? 0 : lastWord(rest, last - 1);
    const std::optional<Volumes> prefixed = volumesAtStart(rest.substr(word));
    if (prefixed && prefixed->isPlural && isDigits(prefixed->number) && isApart(text, word)) {
        return Count{prefixed->number, false, joinedAt(text, word)};
    }
    const bool isToDate = endsWithIgnoringCase(rest, kToDate);
    rest = isToDate ? rest.substr(0, rest.size() - kToDate.size()) : text;
    for (const TextView word : kCountWords) {
        if (!endsWithIgnoringCase(rest, word)) {
            continue;
        }
        const TextView before = rest.substr(0, rest.size() - word.size());
        const TextView counted = trim(before);
        const std::size_t start = lastWord(counted, counted.size());
        const TextView number = counted.substr(start);
        if (counted.size() < before.size() && isDigits(number) && isApart(text, start)) {
            return Count{number, isToDate, joinedAt(text, start)};
        }
    }
    return std::nullopt;
}

std::optional<Years> yearsAtEnd(TextView text) {
    constexpr std::size_t kYear = 4;
    TextView statement = withoutStop(text);
    const std::size_t start = lastWord(statement, statement.size());
    TextView years = statement.substr(start);
    if (years.starts_with(u'(') && years.ends_with(u')')) {
        years = years.substr(1, years.size() - 2);
    }
    const TextView first = years.substr(0, kYear);
    const TextView last = years.substr(first.size());
    const bool isRange = !last.empty() && contains(kDashes, last.substr(0, 1)) && consistsOf(last.substr(1), kDigits) &&
                         last.size() <= kYear + 1;
    if (first.size() < kYear || !isDigits(first) || !(last.empty() || isRange) || start < 2) {
        return std::nullopt;
    }
    const TextView rest = trim(statement.substr(0, start));
    const TextView counted = rest.ends_with(u',') ? rest.substr(0, rest.size() - 1) : rest;
    if (countAtEnd(counted)) {
        return Years{years, counted.size()};
    }
    return rest.ends_with(u'.') ? std::optional(Years{years, rest.size() - 1}) : std::nullopt;
}

std::optional<Editor> generalEditorAtEnd(TextView text) {
    for (const TextView mark : kGeneralEditorMarks) {
        if (endsWithIgnoringCase(text, mark)) {
            const TextView rest = text.substr(0, text.size() - mark.size());
            const std::size_t start = lastSentence(rest);
            return Editor{rest.substr(start), true, joinedAt(text, start)};
        }
    }
    return std::nullopt;
}

std::optional<Editor> editorAtEnd(TextView text) {
    if (std::optional<Editor> general = generalEditorAtEnd(text)) {
        return general;
    }
    for (std::size_t at = text.find_last_of(kFirstUnitsOfMarks); at != TextView::npos;
         at = at == 0 ? TextView::npos : text.find_last_of(kFirstUnitsOfMarks, at - 1)) {
        const auto* const mark = std::find_if(std::begin(kEditorMarks), std::end(kEditorMarks),
                                              [&](TextView entry) { return startsWith(text.substr(at), entry); });
        if (mark == std::end(kEditorMarks) || at + mark->size() == text.size()) {
            continue;
        }
        const TextView name = withoutStopOfSentence(text.substr(at + mark->size()));
        const std::size_t general = at < kGeneral.size() ? at : at - kGeneral.size();
        const bool isGeneral =
            equalsIgnoringCase(text.substr(general, at - general), kGeneral) && isApart(text, general);
        return isGeneral ? Editor{name, true, joinedAt(text, general)} : Editor{name, false, at};
    }
    for (const TextView mark : kLeadingEditorMarks) {
        if (startsWithIgnoringCase(text, mark) && text.size() > mark.size()) {
            return Editor{withoutStopOfSentence(text.substr(mark.size())), false, 0};
        }
    }
    return std::nullopt;
}

std::optional<SeriesVolume> volumeWithWordAtEnd(TextView text) {
    const TextView statement = withoutStop(text);
    const std::size_t last = lastWord(statement, statement.size());
    const std::size_t word = last == 0 ? 0 : lastWord(statement, last - 1);
    const std::optional<Volumes> found = volumesAtStart(statement.substr(word));
    const bool isWhole = found && found->length == statement.size() - word;
    return isWhole ? std::optional(SeriesVolume{found->number, joinedAt(text, word)}) : std::nullopt;
}

std::optional<SeriesVolume> seriesVolumeAtEnd(TextView text) {
    if (std::optional<SeriesVolume> withWord = volumeWithWordAtEnd(text)) {
        return withWord;
    }
    const TextView statement = withoutStop(text);
    const std::size_t last = lastWord(statement, statement.size());
    const TextView number = statement.substr(last);
    // Without its word only what can be nothing else: a single letter may be a part of the title, and so is "1960s".
    const bool isRoman = number.size() > 1 && volumenumbers::isNumber(number);
    const bool isArabic =
        !number.empty() && isDigit(number.front()) && !number.ends_with(u's') && numbers(number, false) == number;
    // A full stop before it is an abbreviation's: "Approaches to Teaching World Lit. 34".
    const std::size_t start = joinedAt(text, last, u",;:");
    return (isRoman || isArabic) && !isNumberOfWord(text, start) ? std::optional(SeriesVolume{number, start})
                                                                 : std::nullopt;
}

Text seriesType(TextView words) {
    const auto* const known =
        std::find_if(std::begin(kSeriesTypes), std::end(kSeriesTypes),
                     [&](const SeriesTypeWords& row) { return equalsIgnoringCase(row.words, words); });
    if (known != std::end(kSeriesTypes)) {
        return Text(known->type);
    }
    // "2nd ser.", "3d ser."
    for (const TextView word : kSeriesWords) {
        const TextView ordinal = words.substr(0, words.size() - std::min(word.size(), words.size()));
        if (endsWith(words, word) && !ordinal.empty() && isDigit(ordinal.front()) && !contains(ordinal, u" ")) {
            return concatenate({ordinal, kSeriesWords[0]});
        }
    }
    return {};
}

std::optional<SeriesType> seriesTypeAtEnd(TextView text) {
    const std::size_t second = lastWord(text, text.size());
    const std::size_t first = second == 0 ? 0 : lastWord(text, second - 1);
    for (const std::size_t start : {second, first}) {
        if (Text type = seriesType(text.substr(start)); !type.empty()) {
            return SeriesType{std::move(type), joinedAt(text, start)};
        }
    }
    return std::nullopt;
}

std::optional<Joint> jointAtStart(TextView text) {
    for (const TextView of : {kOf, kCommaOf}) {
        if (startsWith(text, of)) {
            return Joint{false, of.size()};
        }
    }
    const bool isSign = text.size() > 2 && contains(u",:.", text.substr(0, 1)) && text[1] == u' ';
    return isSign ? std::optional(Joint{text.front() == u',', 2}) : std::nullopt;
}

}  // namespace quorvel::volumetext

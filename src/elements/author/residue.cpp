#include "elements/author/residue.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/institutions.h"

namespace quorvel::authorwords {

namespace {

constexpr TextView kEllipses[] = {u". . . .", u". . .", u"....", u"...", u"\u2026"};
constexpr TextView kFinalSeparator = u", & ";
constexpr TextView kSameAuthorMarks[] = {u"---", u"\u2014\u2014\u2014"};
constexpr TextView kTranslatorMarks[] = {u", trans.", u"trans. "};

constexpr TextView kNoDate = u"(n.d.";
constexpr TextView kInPress = u"in press";
constexpr TextView kVolumeMarks[] = {u"vol. ", u", edited by "};
constexpr TextView kInMark = u" In: ";
constexpr TextView kSuffixes[] = {u" jr.", u" sr.", u" jr", u" sr"};
constexpr TextView kAbbreviations[] = {u" dr", u" st", u"-"};
constexpr TextView kEtAlMark = u"et al.";
constexpr TextView kOpeningQuotes = u"\"\u201C";
// What may stand between the persons and the text behind them.
constexpr TextView kSeparatorsAtEnd = u" ,;:([";
constexpr std::size_t kYearLength = 4;
// A blank, the longest suffix and its stop, and what follows.
constexpr std::size_t kUsualSuffixLength = 6;

bool isAt(TextView lowerCaseText, std::size_t index, TextView mark) {
    return lowerCaseText.substr(std::min(index, lowerCaseText.size()), mark.size()) == mark;
}

std::size_t positionOf(const Text& text, const Word& word) {
    return static_cast<std::size_t>(word.text.data() - text.data());
}

bool isYear(TextView word) {
    while (!word.empty() && (word.front() == u'(' || word.front() == u'[')) {
        word.remove_prefix(1);
    }
    const TextView digits = word.substr(0, std::min(word.find_first_not_of(u"0123456789"), word.size()));
    return digits.size() == kYearLength && (digits[0] == u'1' || digits[0] == u'2');
}

/// "JA." and "K." at the end of a compact list.
bool isCompactInitialsWithStop(const Word& word) {
    return word.endsWithStop && wordOf(word.text.substr(0, word.text.size() - 1)).shape == Shape::Capitals;
}

/// The first name is compact: "Smith JA, ...", "van der Meer MA. Title". "Thomas C. King" and "Edward H Shortliffe" are
/// not.
bool beginsWithCompactName(const Words& words) {
    std::size_t name = 0;
    while (name < words.size() && words[name].isLower() && words[name].is(kParticle | kLowerParticle)) {
        ++name;
    }
    if (name + 2 >= words.size() || words[name].shape != Shape::Name || words[name + 1].before != Separator::Blank) {
        return false;
    }
    const Word& initials = words[name + 1];
    const Word& next = words[name + 2];
    if (initials.shape == Shape::Capitals) {
        return next.before != Separator::Blank || next.is(kAnd | kEt | kPostfix) || next.isInitials();
    }
    // A single initial with its stop says nothing.
    return isCompactInitialsWithStop(initials) && initials.text.size() > 2;
}

bool isTagOrAnd(const Word& word) {
    return word.is(kAnyTag | kAnd | kTagOrnament);
}

bool isAtSuffixIndex(const Instrumented& element, TextView text, std::size_t index) {
    return procedure(element, u"isAtSuffixIndex", {{u"text", text}, {u"index", static_cast<std::int32_t>(index)}}, [&] {
        const Text lower = toLower(text.substr(std::min(index, text.size()), kUsualSuffixLength));
        return std::any_of(std::begin(kSuffixes), std::end(kSuffixes),
                           [&](TextView suffix) { return isAt(lower, 0, suffix); });
    });
}

bool isAtInitialOrPostfixIndex(const Instrumented& element, TextView text, std::size_t index) {
    return procedure(
        element, u"isAtInitialOrPostfixIndex", {{u"text", text}, {u"index", static_cast<std::int32_t>(index)}}, [&] {
            if (isAtSuffixIndex(element, text, index)) {
                return true;
            }
            const Text lower = toLower(text.substr(std::min(index, text.size()), kUsualSuffixLength));
            const bool isAbbreviation =
                std::any_of(std::begin(kAbbreviations), std::end(kAbbreviations), [&](TextView mark) {
                    return isAt(lower, 0, mark) && (lower.size() <= mark.size() || !isCasedLetter(lower[mark.size()]));
                });
            const bool isInitial = lower.size() > 2 && lower[0] == u' ' && lower[2] == u'.';
            return isAbbreviation || isInitial;
        });
}

bool isAtEtAlIndex(const Instrumented& element, TextView text, std::size_t index) {
    return procedure(element, u"isAtEtAlIndex", {{u"text", text}, {u"index", static_cast<std::int32_t>(index)}}, [&] {
        return isAt(toLower(text.substr(std::min(index, text.size()), kEtAlMark.size())), 0, kEtAlMark);
    });
}

/// The text from `from` on belongs to other elements; its first `skip` characters to nobody.
void cutResidue(AuthorReading& reading, std::size_t from, std::size_t skip = 0) {
    AuthorListText& text = reading.list;
    const TextView whole = text.text();
    const TextView tail = trim(whole.substr(std::min(from + skip, whole.size())));
    reading.persons.leave(tail);
    TextView head = whole.substr(0, from);
    while (!head.empty() && kSeparatorsAtEnd.find(head.back()) != TextView::npos) {
        head.remove_suffix(1);
    }
    text.assign(Text(head));
}

void parseAndRemoveElipses(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveElipses", {{u"text", text.text()}}, [&] {
        const TextView whole = text.text();
        for (const TextView ellipsis : kEllipses) {
            const std::size_t at = whole.find(ellipsis);
            if (at == TextView::npos) {
                continue;
            }
            reading.persons.hasEtAl = true;
            TextView head = whole.substr(0, at);
            while (!head.empty() && (head.back() == u' ' || head.back() == u',')) {
                head.remove_suffix(1);
            }
            TextView tail = trim(whole.substr(at + ellipsis.size()));
            while (!tail.empty() && (tail.front() == u',' || tail.front() == u'&' || tail.front() == u' ')) {
                tail.remove_prefix(1);
            }
            text.assign(tail.empty() ? Text(head) : concatenate({head, kFinalSeparator, tail}));
            return;
        }
    });
}

void parseAndRemoveSameAsLastAuthor(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveSameAsLastAuthor", {{u"text", text.text()}}, [&] {
        for (const TextView mark : kSameAuthorMarks) {
            if (!startsWith(text.text(), mark)) {
                continue;
            }
            TextView rest = TextView(text.text()).substr(mark.size());
            while (!rest.empty() && (rest.front() == mark.front() || rest.front() == u'.')) {
                rest.remove_prefix(1);
            }
            text.assign(cleanUp(concatenate({reading.previousStr, rest})));
            return;
        }
    });
}

/// ", trans." at the very end is the tag of these persons; with a name behind it it is not theirs.
void parseAndRemoveTranslator(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveTranslator", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        const auto last = std::find_if_not(words.rbegin(), words.rend(), isTagOrAnd);
        if (last == words.rend()) {
            return;
        }
        const std::size_t lastOther = positionOf(text.text(), *last);
        const Text lower = toLower(text.text());
        for (const TextView mark : kTranslatorMarks) {
            for (std::size_t at = lower.find(mark); at < lastOther; at = lower.find(mark, at + 1)) {
                if (mark.front() == u',' || at == 0 || lower[at - 1] == u' ') {
                    cutResidue(reading, at, mark.front() == u',' ? 1 : 0);
                    return;
                }
            }
        }
    });
}

void parseAndRemoveResidueChapterType(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueChapterType", {{u"text", text.text()}}, [&] {
        for (const TextView type : kChapterTypes) {
            const std::size_t at = text.text().find(type);
            if (at == Text::npos) {
                continue;
            }
            if (at > 0) {
                cutResidue(reading, at);
                return;
            }
            reading.persons.leave(type);
            text.assign(Text(trim(TextView(text.text()).substr(type.size()))));
            return;
        }
    });
}

void parseAndRemoveResidueNoDate(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueNoDate", {{u"text", text.text()}}, [&] {
        const std::size_t at = text.text().find(kNoDate);
        if (at != Text::npos) {
            cutResidue(reading, at);
        }
    });
}

void parseAndRemoveResidueBracket(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueBracket", {{u"text", text.text()}}, [&] {
        std::size_t at = toLower(text.text()).find(kInPress);
        if (at == Text::npos) {
            return;
        }
        const bool isBracketed = at > 0 && (text.text()[at - 1] == u'(' || text.text()[at - 1] == u'[');
        cutResidue(reading, isBracketed ? at - 1 : at);
    });
}

/// A title in quotation marks; 'William "Bill" Gates' is none.
void parseAndRemoveResidueQuote(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueQuote", {{u"text", text.text()}}, [&] {
        const TextView whole = text.text();
        const std::size_t at = whole.find_first_of(kOpeningQuotes);
        const std::size_t before =
            at == 0 || at == TextView::npos ? TextView::npos : whole.find_last_not_of(u' ', at - 1);
        if (before != TextView::npos && (whole[before] == u'.' || whole[before] == u',' || whole[before] == u':')) {
            cutResidue(reading, at);
        }
    });
}

void parseAndRemoveResidueVolume(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueVolume", {{u"text", text.text()}}, [&] {
        const Text lower = toLower(text.text());
        for (const TextView mark : kVolumeMarks) {
            const std::size_t at = lower.find(mark);
            if (at != Text::npos && (mark.front() == u',' || (at > 0 && lower[at - 1] == u' '))) {
                cutResidue(reading, at, mark.front() == u',' ? 1 : 0);
                return;
            }
        }
    });
}

void parseAndRemoveResidueEditor(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueEditor", {{u"text", text.text()}}, [&] {
        const std::size_t at = text.text().find(kInMark);
        if (at != Text::npos) {
            cutResidue(reading, at, 1);
        }
    });
}

/// "Smith J, Jones K. Title", "Smith J, et al. Title": what stands behind a compact list.
void parseAndRemoveResidueAMAAuthor(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueAMAAuthor", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        const bool isCompact = beginsWithCompactName(words);
        for (std::size_t i = 1; isCompact && i + 1 < words.size(); ++i) {
            const bool isAfterEtAl =
                isAtEtAlIndex(reading.element(), text.text(), positionOf(text.text(), words[i - 1]));
            const bool endsList = words[i].before == Separator::Blank && words[i + 1].before == Separator::Blank &&
                                  (isAfterEtAl || (words[i - 1].isName() && isCompactInitialsWithStop(words[i])));
            if (endsList && !isTagOrAnd(words[i + 1]) && !words[i + 1].isInitials()) {
                const std::size_t end = positionOf(text.text(), words[i]) + words[i].text.size();
                cutResidue(reading, end);
                return;
            }
        }
    });
}

/// "United States. Dept. of Labor": the first sentence, which ends with the word at `end`, is no whole author.
bool continuesAuthor(const Instrumented& element, const Words& words, std::size_t end) {
    for (std::size_t i = 1; i <= end; ++i) {
        if (words[i].before != Separator::Blank) {
            return false;
        }
    }
    if (words[end + 1].is(kSubdivision)) {
        return true;
    }
    std::size_t last = end + 1;
    while (last + 1 < words.size() && words[last + 1].before == Separator::Blank && !breaksSentence(words[last])) {
        ++last;
    }
    return isAuthorityOf(element, WordSpan(words).first(end + 1), WordSpan(words).subspan(end + 1, last - end));
}

/// "World Health Organization. Title"; "United States. Dept. of Labor" is one name.
void parseAndRemoveCorporateAuthor(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveCorporateAuthor", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        for (std::size_t i = 1; i + 1 < words.size() && words[i].before == Separator::Blank; ++i) {
            if (!words[i].endsWithStop || words[i].shape != Shape::Name || words[i].is(kCompanyEnding | kSubdivision)) {
                continue;
            }
            // Only the first sentence can be the author's.
            if (!continuesAuthor(reading.element(), words, i) &&
                isInstitutionalAuthor(reading.element(), WordSpan(words).first(i + 1))) {
                cutResidue(reading, positionOf(text.text(), words[i]) + words[i].text.size());
            }
            return;
        }
    });
}

/// A sentence that ends behind a word and not behind an initial: "Smith, John. The History of Things".
void parseAndRemoveResidueByInitials(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueByInitials", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        for (std::size_t i = 1; i + 1 < words.size(); ++i) {
            const bool breaks =
                words[i].endsWithStop && words[i].shape == Shape::Name && words[i + 1].before == Separator::Blank &&
                !words[i + 1].isInitials() &&
                !words[i].is(kPostfix | kDegree | kAnyTag | kCompanyEnding | kPreposition | kSubdivision) &&
                !continuesAuthor(reading.element(), words, i);
            const std::size_t position = positionOf(text.text(), words[i]);
            if (breaks &&
                !isAtInitialOrPostfixIndex(reading.element(), text.text(), position == 0 ? 0 : position - 1)) {
                cutResidue(reading, position + words[i].text.size());
                return;
            }
        }
    });
}

/// "Smith, J. (1990). Title": from the year on.
void parseAndRemoveResidueByNumeral(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueByNumeral", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        for (std::size_t i = 1; i < words.size(); ++i) {
            if (isYear(words[i].text)) {
                cutResidue(reading, positionOf(text.text(), words[i]));
                return;
            }
        }
    });
}

/// "Smith, John, New York: Knopf": from the place of publication on.
void parseAndRemoveResidueByPublisher(AuthorReading& reading) {
    AuthorListText& text = reading.list;
    procedure(reading.element(), u"parseAndRemoveResidueByPublisher", {{u"text", text.text()}}, [&] {
        const TextView whole = text.text();
        const std::size_t colon = whole.find(u": ");
        const std::size_t comma = whole.substr(0, std::min(colon, whole.size())).find_last_of(u",(");
        if (colon != TextView::npos && comma != TextView::npos) {
            cutResidue(reading, comma, 1);
        }
    });
}

}  // namespace

void parseAndRemoveResidue(AuthorReading& reading) {
    /// A step, and the features without which a text cannot concern it.
    struct Step {
        void (*remove)(AuthorReading&);
        std::uint32_t features;
    };
    // The order matters: each step relies on what the ones before it took off.
    static constexpr Step kSteps[] = {
        {parseAndRemoveElipses, kHasEllipsis},
        {parseAndRemoveSameAsLastAuthor, kHasDashes},
        {parseAndRemoveTranslator, kHasTranslator},
        {parseAndRemoveResidueChapterType, kHasResidueWord},
        {parseAndRemoveResidueNoDate, kHasBracket},
        {parseAndRemoveResidueBracket, kHasResidueWord},
        {parseAndRemoveResidueQuote, kHasQuote},
        {parseAndRemoveResidueVolume, kHasResidueWord},
        {parseAndRemoveResidueEditor, kHasColon},
        {parseAndRemoveResidueAMAAuthor, kHasSentenceBreak | kHasEt | kHasCompactName},
        {parseAndRemoveCorporateAuthor, kHasSentenceBreak},
        {parseAndRemoveResidueByInitials, kHasSentenceBreak},
        {parseAndRemoveResidueByNumeral, kHasDigit},
        {parseAndRemoveResidueByPublisher, kHasColon},
    };
    procedure(reading.element(), u"parseAndRemoveResidue", {{u"text", reading.list.text()}}, [&] {
        for (const Step& step : kSteps) {
            if (reading.list.has(step.features)) {
                step.remove(reading);
            }
        }
    });
}

}  // namespace quorvel::authorwords

#include "elements/refers_to/kinds.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "elements/refers_to/text.h"
#include "elements/style_codes.h"

namespace quorvel::referstokinds {

namespace {

constexpr TextView kRegular = u"Regular";
constexpr TextView kAbstractIn = u"Abstract in";
constexpr TextView kAbstractOf = u"Abstract of";
constexpr TextView kCorrection = u"Correction";
constexpr TextView kDuplicate = u"Dupl. publcn";
constexpr TextView kRetractedIn = u"Retracted in";
constexpr TextView kRetractionOf = u"Retraction of";
constexpr TextView kAbstract = u"Abstract";
constexpr TextView kSeries = u"Series";
constexpr TextView kSerialized = u"Serialized";
constexpr TextView kReprint = u"Reprint";
constexpr TextView kSerialArticle = u"Serial article";
constexpr TextView kTranslator = u"Translator";
constexpr TextView kEdition = u"Edition";

constexpr Kind kKinds[] = {
    {kRegular, Form::kText, u"Regular,,,,,,,,"},
    {kAbstractIn, Form::kJournal, u"Abstract in,Journal,Year,Volume,Number,Page Number,,,", u"abstract taken from ", 0},
    {kAbstractOf, Form::kAbstract, u"Abstract of,Author,Title,Journal,Year,Volume,Number,Page Number,", u"abstract of ",
     2},
    {kCorrection, Form::kJournal, u"Correction,Journal,Year,Volume,Number,Page Number,,,",
     u"published correction appears in ", 0},
    {kDuplicate, Form::kJournal, u"Dupl. publcn,Author,Title,Journal,Year,Volume,Number,Page Number,",
     u"duplicate publication of ", 2},
    {kRetractedIn, Form::kJournal, u"Retracted in,Journal,Year,Volume,Number,Page Number,,,", u"retracted in: ", 0},
    {kRetractionOf, Form::kJournal, u"Retraction of,Author,Journal,Year,Volume,Number,Page Number,,",
     u"retraction of: ", 1},
    {kAbstract, Form::kAbstract, u"Abstract,,,,,,,,", u"abstract of ", 2},
    {kSeries, Form::kSeries, u"Series,,,,,,,,"},
    {kSerialized, Form::kSerialized, u"Serialized,Part number,Series name,Date begun,,,,,"},
    {kReprint, Form::kReprint, u"Reprint,Title,Year,Editor,Volume,Place,Publisher,Page Number,Original Pub. Year"},
    {kSerialArticle, Form::kSerialArticle,
     u"Serial article,Part 1: Volume,Number,Year,Page Number,Part 2: Volume,Number,Year,Page Number"},
    {kTranslator, Form::kTranslator, u"Translator,Translator,,,,,,,"},
    // Not offered by any style, but told by hosts that keep other titles' types beside the text.
    {kEdition, Form::kEdition, u"Edition,,,,,,,,"},
    {u"Discusser", Form::kText, u"Discusser,,,,,,,,"},
    {u"Special issue", Form::kText, u"Special issue,,,,,,,,"},
};

// In the order of a form's options.
constexpr TextView kOfAma[] = {kRegular,   kAbstractIn,  kAbstractOf,  kCorrection,
                               kDuplicate, kRetractedIn, kRetractionOf};
constexpr TextView kOfApaAndTurabian[] = {kRegular, kAbstract};
constexpr TextView kOfMla[] = {kRegular, kAbstractIn, kReprint, kSerialArticle, kSeries, kTranslator};
// Deliberately without "Regular".
constexpr TextView kOfMlaNewspapers[] = {kSerialized};
constexpr TextView kOfOthers[] = {kRegular};

/// Words at the beginning of a statement, in any letter case.
struct Lead {
    TextView words;
    TextView caption;
    /// They are words of other texts, too: only a statement with a number in it is meant.
    bool wantsNumber = false;
};

// AMA 10 3.11.12-17, and the wordings of its earlier editions; MLA 7 5.4.8 "Abstract."
constexpr Lead kLeads[] = {
    {u"abstract taken from", kAbstractIn},
    {u"abstract obtained from", kAbstractIn, true},
    {u"abstract from", kAbstractIn, true},
    {u"abstract in", kAbstractIn, true},
    {u"abstract.", kAbstractIn, true},
    {u"abstract of", kAbstractOf},
    {u"published correction appears in", kCorrection},
    {u"published corrections appear in", kCorrection},
    {u"published correction in", kCorrection},
    {u"published erratum appears in", kCorrection},
    {u"correction published in", kCorrection, true},
    {u"correction in", kCorrection, true},
    {u"corrected in", kCorrection, true},
    {u"erratum in", kCorrection, true},
    {u"correction:", kCorrection, true},
    {u"duplicate publication of", kDuplicate},
    {u"dupl. publcn", kDuplicate, true},
    {u"retracted in", kRetractedIn},
    {u"retraction in", kRetractedIn, true},
    {u"retraction of", kRetractionOf},
    {u"translated by", kTranslator},
    {u"trans. by", kTranslator},
    {u"trans.", kTranslator},
};
// "Trans. of Le passé d'une illusion" is an edition.
constexpr TextView kNoTranslator = u"of ";

// MLA 7 5.5.6. What stands before is the first publication.
constexpr TextView kReprintLeads[] = {u"Rpt. in ", u"Reprinted in ", u"Repr. in "};

// What the square brackets left.
constexpr TextView kAbstractsAlone[] = {kAbstract, u"abstract.", u"(abstract)"};

constexpr TextView kParts[] = {u"pt. ", u"part ", u"pts. ", u"parts "};
constexpr TextView kOfSeries = u" of a series";

constexpr TextView kEndsOfEditions[] = {u" ed.", u" edition"};
constexpr std::ptrdiff_t kMostBlanksOfEdition = 3;

bool hasNumber(TextView text) {
    return text.find_first_of(kDigits) != TextView::npos;
}

/// Without one pair of square brackets round the whole.
TextView withoutBrackets(TextView text) {
    const bool isBracketed = text.size() > 1 && text.front() == u'[' && text.find(u']') == text.size() - 1;
    return isBracketed ? trim(text.substr(1, text.size() - 2)) : text;
}

/// What stands behind the words, a colon and blanks. Nothing where the text goes on with the word, or not at all.
std::optional<TextView> behind(TextView text, TextView words) {
    if (!startsWithIgnoringCase(text, words)) {
        return std::nullopt;
    }
    TextView rest = text.substr(words.size());
    if (rest.starts_with(u':')) {
        rest.remove_prefix(1);
    }
    const bool isWord = rest.starts_with(u' ') || !isCasedLetter(words.back());
    rest = trim(rest);
    return isWord && !rest.empty() ? std::optional(rest) : std::nullopt;
}

/// "late ed.", "2nd rev. edition": a few words that end so and are one sentence.
bool isEdition(TextView text) {
    const auto isSentence = [&](TextView end) {
        // "natl. ed." is one
        return text.ends_with(end) && referstotext::lastSentence(text.substr(0, text.size() - end.size())) == 0;
    };
    return std::any_of(std::begin(kEndsOfEditions), std::end(kEndsOfEditions), isSentence) &&
           std::count(text.begin(), text.end(), u' ') <= kMostBlanksOfEdition;
}

}  // namespace

std::span<const TextView> offeredKinds(std::int32_t styleCode, bool isNewspaper) {
    switch (styleCode) {
        case stylecodes::kAma: return kOfAma;
        case stylecodes::kApa:
        case stylecodes::kTurabian: return kOfApaAndTurabian;
        case stylecodes::kMla: return isNewspaper ? std::span<const TextView>(kOfMlaNewspapers) : kOfMla;
        default: return kOfOthers;
    }
}

const Kind& kindOf(TextView captionOrType) {
    const auto* const row = std::find_if(std::begin(kKinds), std::end(kKinds),
                                         [&](const Kind& kind) { return kind.caption == captionOrType; });
    return row != std::end(kKinds) ? *row : kKinds[0];
}

TextView captionOf(TextView text) {
    const auto* const row = std::find_if(std::begin(kKinds) + 1, std::end(kKinds),
                                         [&](const Kind& kind) { return equalsIgnoringCase(kind.caption, text); });
    return row != std::end(kKinds) ? row->caption : TextView();
}

std::optional<Statement> byWords(TextView text) {
    const TextView inside = withoutBrackets(text);
    if (isOneOfIgnoringCase(inside, kAbstractsAlone)) {
        return Statement{kAbstract, {}};
    }
    for (const Lead& lead : kLeads) {
        const std::optional<TextView> rest = behind(inside, lead.words);
        if (rest && (!lead.wantsNumber || hasNumber(*rest)) &&
            !(lead.caption == kTranslator && rest->starts_with(kNoTranslator))) {
            return Statement{lead.caption, *rest};
        }
    }
    if (startsWithOneOfIgnoringCase(text, kParts) && contains(text, kOfSeries)) {
        return Statement{kSerialized, text};
    }
    for (const TextView lead : kReprintLeads) {
        // The parts of the statement are read from the whole text.
        if (findIgnoringCase(text, lead) != TextView::npos) {
            return Statement{kReprint, text};
        }
    }
    // "[ASM abstract D-36]": the abstract of a paper in the proceedings of a society.
    if (inside.size() < text.size() ? referstotext::meetingAbstract(inside).has_value()
                                    : referstotext::isMeetingAbstract(text)) {
        return Statement{kAbstractOf, inside};
    }
    return std::nullopt;
}

TextView captionByForm(TextView text) {
    if (referstotext::isSeries(text)) {
        return kSeries;
    }
    if (referstotext::isSerialArticle(text)) {
        return kSerialArticle;
    }
    return isEdition(text) ? kEdition : TextView();
}

}  // namespace quorvel::referstokinds

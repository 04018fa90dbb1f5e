// The edition element: reading first publications in the manner of MLA.

#include <iterator>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/edition/edition.h"
#include "elements/edition/reprint_text.h"

namespace quorvel {

using reprinttext::Range;
using reprinttext::slice;
using Record = quorvel::EditionBookChapterYear;

namespace {

// The lead-ins of a reprint and what they say of the title.
struct LeadIn {
    TextView text;
    TextView titleType;
};
constexpr LeadIn kLeadIns[] = {
    {u"Rpt. of ", Record::kEnglishTitle},
    {u"Reprint of ", Record::kEnglishTitle},
    {u"Trans. of ", Record::kForeignTitle},
};
// "Rpt. in Modern Critics. Ed. Ann Lee. 1990" tells of a later publication.
constexpr TextView kOtherLeadIns[] = {u"Rpt. ", u"Repr"};
constexpr TextView kSpecialIssue = u"spec.";
constexpr TextView kSpecialIssueLeadIns[] = {u"spec. issue of ", u"special issue of "};

constexpr TextView kPagePrefixes[] = {u"p.", u"pp."};
constexpr TextView kPageMarks[] = {u" pp. ", u" p. "};

constexpr TextView kEndsOfSentence = u".?!\u201D\"";
constexpr TextView kEnds = u" .,;:";

void remove(Text& text, Range range) {
    text.erase(range.begin, range.end - range.begin);
}

}  // namespace

/// "Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884", "Rpt. of New York City Guide. 1939", and without a
/// lead-in "1900. Introd. E. L. Doctorow"
void OutputTemplateEdition::parseMLAReprint(Text& text) {
    procedure(*this, u"parseMLAReprint", {{u"text", text}}, [&] {
        Record& record = *mEditionBookChapterYear;
        bool hasLeadIn = false;
        for (const LeadIn& leadIn : kLeadIns) {
            if (reprinttext::removeLeadIn(text, leadIn.text)) {
                hasLeadIn = true;
                record.TitleType = leadIn.titleType;
                break;
            }
        }
        if (!hasLeadIn && startsWithOneOfIgnoringCase(text, kOtherLeadIns)) {
            return;
        }
        if (!hasLeadIn && !containsIgnoringCase(text, kSpecialIssue)) {
            parseAndRemoveMLAPartialReprintByAuthor(text);
            return;
        }
        record.isReprintBook = isMLABook(text);
        parseAndRemoveMLANumber(text);
        parseAndRemoveMLAVolume(text);
        parseAndRemoveMLAAuthor(text);
        parseAndRemoveMLAChapterOrArticleTitle(text);
        // "Ficciones (Buenos Aires: Sur, 1944)", as Turabian has it.
        if (reprinttext::journalTail(text) || !ParseAndRemoveTranslationPublisher(text)) {
            parseAndRemoveMLAPublisher(text);
        }
        parseAndRemoveMLAPage(text);
        parseAndRemoveMLASpecialIssue(text);
        if (record.chapterOrArticleTitle.empty()) {
            // "spec. issue of “Identities.” Critical Inquiry"
            parseAndRemoveMLAChapterOrArticleTitle(text);
        }
        record.Title = reprinttext::titleOf(text);
        text.clear();
    });
}

/// "By Henry James. Daisy Miller. 1878", "1900. Introd. E. L. Doctorow"; a text without contributor stays.
void OutputTemplateEdition::parseAndRemoveMLAPartialReprintByAuthor(Text& text) {
    procedure(*this, u"parseAndRemoveMLAPartialReprintByAuthor", {{u"text", text}}, [&] {
        Text statement = text;
        parseAndRemoveMLAAuthor(statement);
        Record& record = *mEditionBookChapterYear;
        statement = reprinttext::titleOf(statement);
        if (record.author.empty()) {
            return;
        }
        if (isYear(statement)) {
            takeYear(statement);
            statement.clear();
        } else if (const std::optional<Range> year = reprinttext::yearAtEnd(statement);
                   year && endsWith(TextView(statement).substr(0, year->begin), u". ")) {
            takeYear(slice(statement, *year));
            statement = reprinttext::titleOf(statement.substr(0, year->begin));
        }
        // "2nd ed. Introd. E. L. Doctorow" is no reprint.
        if (!statement.empty() && (record.Year.empty() || getEditionType(statement) == kNumbered)) {
            forgetPublication();
            return;
        }
        record.chapterOrArticleTitle = statement;
        text.clear();
    });
}

/// A special issue, an article with its volume and year, and what has its pages behind "p." or "pp." is of a journal.
bool OutputTemplateEdition::isMLABook(TextView text) const {
    return procedure(*this, u"isMLABook", {{u"text", text}}, [&] {
        if (containsIgnoringCase(text, kSpecialIssue)) {
            return false;
        }
        for (const TextView mark : kPageMarks) {
            if (contains(text, mark) && isPagePrefix(trim(mark))) {
                return false;
            }
        }
        const std::optional<reprinttext::JournalTail> tail = reprinttext::journalTail(text);
        return !tail || (tail->volume.begin == tail->volume.end && tail->number.begin == tail->number.end &&
                         text.substr(tail->year.end).empty());
    });
}

void OutputTemplateEdition::parseAndRemoveMLANumber(Text& text) {
    procedure(*this, u"parseAndRemoveMLANumber", {{u"text", text}}, [&] {
        const std::optional<reprinttext::JournalTail> tail = reprinttext::journalTail(text);
        if (tail && tail->number.begin < tail->number.end) {
            mEditionBookChapterYear->PublisherOrNumber = slice(text, tail->number);
            // With what joins it to the volume, ".4", "(4)" and ", no. 4", up to the year.
            const bool hasVolume = tail->volume.begin < tail->volume.end;
            const std::size_t begin = hasVolume ? tail->volume.end : text.rfind(u"no. ", tail->number.begin);
            text.replace(begin, tail->year.begin - begin, hasVolume ? u" " : u"");
        }
    });
}

void OutputTemplateEdition::parseAndRemoveMLAVolume(Text& text) {
    procedure(*this, u"parseAndRemoveMLAVolume", {{u"text", text}}, [&] {
        const std::optional<reprinttext::JournalTail> tail = reprinttext::journalTail(text);
        if (tail && tail->volume.begin < tail->volume.end) {
            mEditionBookChapterYear->PlaceOrVolume = slice(text, tail->volume);
            remove(text, {tail->volume.begin, tail->year.begin});
        }
    });
}

void OutputTemplateEdition::parseAndRemoveMLAAuthor(Text& text) {
    procedure(*this, u"parseAndRemoveMLAAuthor", {{u"text", text}}, [&] {
        const std::optional<reprinttext::Contributor> found = reprinttext::contributor(text);
        if (!found || found->name.empty()) {
            return;
        }
        Record& record = *mEditionBookChapterYear;
        record.author = found->name;
        record.AuthorType = found->type;
        if (found->type == Record::kAuthor) {
            mNamedAuthor = found->name;
        }
        const std::size_t behind = std::min(text.find_first_not_of(u" .", found->sentence.end), text.size());
        remove(text, {found->sentence.begin, behind});
    });
}

void OutputTemplateEdition::parseAndRemoveMLAChapterOrArticleTitle(Text& text) {
    procedure(*this, u"parseAndRemoveMLAChapterOrArticleTitle", {{u"text", text}}, [&] {
        if (const std::optional<reprinttext::Quotation> found = reprinttext::quotation(text)) {
            const Text quoted(found->title);
            mEditionBookChapterYear->chapterOrArticleTitle = quoted;
            text.erase(0, found->length);
        }
    });
}

/// ". New York: Knopf, 1939", ". Knopf, 1939" and ". 1939" of a book, "(1992)" of a journal; pages may follow.
void OutputTemplateEdition::parseAndRemoveMLAPublisher(Text& text) {
    procedure(*this, u"parseAndRemoveMLAPublisher", {{u"text", text}}, [&] {
        Record& record = *mEditionBookChapterYear;
        if (const std::optional<reprinttext::JournalTail> tail = reprinttext::journalTail(text)) {
            takeYear(TextView(text).substr(tail->year.begin + 1, tail->year.end - tail->year.begin - 2));
            remove(text, tail->year);
            return;
        }
        removeSuffix(text, u".");
        // The pages stand in a sentence of their own.
        const std::size_t last = reprinttext::beginOfPages(text);
        const bool hasPages = last > 0 && last < text.size() && endsWith(TextView(text).substr(0, last), u". ") &&
                              !isYear(TextView(text).substr(last)) &&
                              held(mPageTemplate)->isPage(TextView(text).substr(last));
        const Text pages = hasPages ? text.substr(last) : Text();
        const Text statement(trim(TextView(text).substr(0, hasPages ? last : text.size()), u" ."));
        const std::optional<Range> year = reprinttext::yearAtEnd(statement);
        const TextView inFront = trim(TextView(statement).substr(0, year ? year->begin : statement.size()));
        const bool isOnItsOwn = year && (inFront.empty() || kEndsOfSentence.find(inFront.back()) != TextView::npos);
        const TextView body = trim(inFront, u" ,");
        const std::size_t begin = isOnItsOwn ? body.size() : reprinttext::lastSentence(body);
        const auto parts = reprinttext::placeAndPublisher(body.substr(begin));
        const bool isPlaceAndPublisher = !parts.place.empty() && (year || begin > 0);
        const bool isPublisher = year && inFront.ends_with(u',') && begin > 0;
        if (!isOnItsOwn && !isPlaceAndPublisher && !isPublisher) {
            return;
        }
        if (year) {
            takeYear(slice(statement, *year));
        }
        if (!isOnItsOwn) {
            record.PlaceOrVolume = parts.place;
            takePublisher(parts.publisher);
        }
        text = concatenate({body.substr(0, begin), hasPages ? u": " : u"", pages});
    });
}

/// ": 625-884", ", pp. 703-732"
void OutputTemplateEdition::parseAndRemoveMLAPage(Text& text) {
    procedure(*this, u"parseAndRemoveMLAPage", {{u"text", text}}, [&] {
        const auto page = held(mPageTemplate);
        const TextView whole = trim(text, kEnds);
        const std::size_t begin = reprinttext::beginOfPages(whole);
        const Text locator(whole.substr(begin));
        Text rest = locator;
        if (locator.empty() || !page->parseFromEnd(rest)) {
            return;
        }
        // A locator that is no page, or has notes, keeps its words.
        const bool isPlain = page->pageType == OutputTemplatePage::kPage && page->Note == OutputTemplatePage::kNoNote;
        mEditionBookChapterYear->Page =
            replaceAll(isPlain ? page->Page() : Text(trim(TextView(locator).substr(rest.size()), kEnds)),
                       TextView(&kEnDash, 1), u"-");
        text = trim(concatenate({whole.substr(0, begin), rest}), kEnds);
    });
}

void OutputTemplateEdition::parseAndRemoveMLASpecialIssue(Text& text) {
    procedure(*this, u"parseAndRemoveMLASpecialIssue", {{u"text", text}}, [&] {
        for (const TextView leadIn : kSpecialIssueLeadIns) {
            const std::size_t at = findIgnoringCase(text, leadIn);
            if (at == Text::npos) {
                continue;
            }
            Record& record = *mEditionBookChapterYear;
            record.isSpecialIssue = true;
            record.isReprintBook = false;
            // "Identities. Spec. issue of Critical Inquiry": the issue has a title of its own.
            if (at > 0 && record.chapterOrArticleTitle.empty()) {
                record.chapterOrArticleTitle = reprinttext::titleOf(TextView(text).substr(0, at));
            }
            text.erase(0, at + leadIn.size());
            return;
        }
    });
}

bool OutputTemplateEdition::isPagePrefix(TextView word) const {
    return procedure(*this, u"isPagePrefix", {{u"word", word}}, [&] { return isOneOf(word, kPagePrefixes); });
}

}  // namespace quorvel

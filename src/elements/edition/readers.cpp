// The edition element: reading first publications in the manner of APA and Turabian, and translations.

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/edition/edition.h"
#include "elements/edition/reprint_text.h"
#include "elements/edition/words.h"
#include "elements/title/language.h"

namespace quorvel {

using reprinttext::Range;
using reprinttext::slice;
using Record = quorvel::EditionBookChapterYear;

namespace {

constexpr TextView kApaLeadIn = u"Reprinted from ";
constexpr TextView kApaYearMark = u"Original work published";
constexpr TextView kTurabianMark = u"Originally published";
constexpr TextView kAs = u" as ";
constexpr TextView kTurabianLeadIns[] = {u" as a ", u" as ", u" in ", u" "};
constexpr TextView kSpecialIssueMarks[] = {u" [Special issue]"};

// "1925; repr.", "1925. Reprint", "1925. Rpt."; what follows belongs to the reprint itself.
constexpr TextView kMarksBehindYear[] = {u"; reprint", u"; repr.",   u". reprint", u". repr.",
                                         u". rpt.",    u", reprint", u", repr."};
// "First published 1925", "Orig. published in 1925"
constexpr TextView kMarksBeforeYear[] = {u"published", u"printed", u"issued"};
// "Reprint of the 1925 ed.": the year stands for the title.
constexpr TextView kMarksBeforeEdition[] = {u"reprint of ", u"rpt. of ", u"repr. of "};
constexpr TextView kThe = u"the ";
constexpr TextView kOf = u"of ";
constexpr TextView kReprintOf = u"Rpt. of ";
constexpr TextView kPublishedIn = u"in ";

// What the contributor and his part are set off with.
// Behind a quotation, or at the beginning, their comma is missing.
struct Contribution {
    TextView mark;
    TextView type;
};
constexpr Contribution kContributions[] = {
    {u"introduction and notes by ", Record::kIntroducerWithNotes},
    {u"introduction by ", Record::kIntroducer},
    {u"by ", Record::kAuthor},
};
constexpr TextView kApaEditors[] = {u", Eds.", u", Ed.", u", Eds", u", Ed", u" (Eds.)", u" (Ed.)"};
constexpr TextView kIn = u"in ";
constexpr TextView kListSign = u", ";

// In Turabian's statement: editors stand before the title, whoever wrote the introduction behind it.
constexpr TextView kTurabianEditors[] = {u", eds., ", u", ed., "};

constexpr TextView kEnds = u" .,;:";

/// ", 50, 741-749", ", 12(3)"
bool hasVolumeBehindComma(TextView text) {
    return text.size() > kListSign.size() && startsWith(text, kListSign) && isDigit(text[kListSign.size()]);
}
/// ", p. 12"
bool hasPageBehindComma(TextView text) {
    return startsWith(text, u", p. ") || startsWith(text, u", pp. ");
}

}  // namespace

void OutputTemplateEdition::ParseReprintOrPaperbackEdition(Text& text) {
    procedure(*this, u"ParseReprintOrPaperbackEdition", {{u"text", text}}, [&] {
        text = Text(reprinttext::withoutParentheses(text));
        if (containsIgnoringCase(text, kApaYearMark)) {
            ParseAndRemoveYearAPA(text);
        } else if (startsWithIgnoringCase(text, kApaLeadIn)) {
            parseAndRemoveAPAReprint(text);
        } else {
            takeYearInFront(text);
            const bool hasTitleBehind = startsWith(text, kOf);
            if (hasTitleBehind) {
                // "1939. Rpt. of New York City Guide"
                text.replace(0, kOf.size(), kReprintOf);
            }
            if (hasTitleBehind || mEditionBookChapterYear->Year.empty()) {
                parseMLAReprint(text);
            }
        }
    });
}

/// "1925", "1925. Reprint", "First published 1925". Any other text stays.
void OutputTemplateEdition::takeYearInFront(Text& text) {
    // Most texts begin with no year, and each search is long.
    const bool mayBeginWithYear = !text.empty() && (!isAsciiLetter(text[0]) || text[0] == u'c');
    for (const TextView mark : kMarksBehindYear) {
        if (!mayBeginWithYear) {
            break;
        }
        const std::size_t at = findIgnoringCase(text, mark);
        if (at != Text::npos && isYear(TextView(text).substr(0, at))) {
            takeYear(TextView(text).substr(0, at));
            text = Text(trim(TextView(text).substr(at + mark.size()), kEnds));
            if (editionwords::isEditionWord(text)) {
                // "1936. Reprint ed."
                text.clear();
            }
            return;
        }
    }
    if (isYear(text)) {
        takeYear(text);
        text.clear();
        return;
    }
    for (const TextView mark : kMarksBeforeYear) {
        const std::size_t at = findIgnoringCase(text, mark);
        if (at == Text::npos) {
            continue;
        }
        TextView year = trim(TextView(text).substr(at + mark.size()));
        if (startsWith(year, kPublishedIn)) {
            year.remove_prefix(kPublishedIn.size());
        }
        // "First published 1900 by Doubleday": what follows stays.
        const TextView first = editionwords::withoutSigns(before(year, u" "));
        if (isYear(year) || isYear(first)) {
            const Text left(isYear(year) ? TextView() : trim(year.substr(first.size()), kEnds));
            takeYear(isYear(year) ? year : first);
            text = left;
            return;
        }
    }
    for (const TextView mark : kMarksBeforeEdition) {
        if (!startsWithIgnoringCase(text, mark)) {
            continue;
        }
        TextView edition = TextView(text).substr(mark.size());
        edition.remove_prefix(startsWithIgnoringCase(edition, kThe) ? kThe.size() : 0);
        const TextView year = before(edition, u" ");
        if (year.size() < edition.size() && isYear(year) &&
            editionwords::isEditionWord(trim(edition.substr(year.size())))) {
            takeYear(year);
            text.clear();
            return;
        }
    }
}

void OutputTemplateEdition::takeYear(TextView year) {
    const TextView bare = trim(year, kEnds);
    // "ca. 350 B.C.E." and "n.d." keep the full stop of their abbreviation.
    const bool isAbbreviated = bare.size() > 2 && isAsciiLetter(bare.back()) && bare[bare.size() - 2] == u'.';
    mEditionBookChapterYear->Year =
        concatenate({replaceAll(bare, TextView(&kEnDash, 1), u"-"), isAbbreviated ? u"." : u""});
}

/// A publisher as the publisher element reads it, so that another style gets it in full.
void OutputTemplateEdition::takePublisher(TextView publisher) {
    const auto element = held(mPublisherTemplate);
    Text text(trim(publisher, u" ,;"));
    element->Parse(text, {});
    // The special kinds are none of a first publication.
    const bool isNamed = element->PublisherType == OutputTemplatePublisher::kNamed;
    Text imprint = element->Imprint();
    Text name = isNamed ? element->publisher() : Text(trim(publisher, u" ,;"));
    Text copublisher = element->CoPublisher();
    const Text place = element->copublisherPlace;
    mEditionBookChapterYear->PublisherOrNumber =
        concatenate({imprint, imprint.empty() ? u"" : u"-", name, place.empty() && copublisher.empty() ? u"" : u"; ",
                     place, place.empty() || copublisher.empty() ? u"" : u": ", copublisher});
}

// APA.

/// "(Original work published 1925)"
void OutputTemplateEdition::ParseAndRemoveYearAPA(Text& text) {
    procedure(*this, u"ParseAndRemoveYearAPA", {{u"text", text}}, [&] {
        const std::size_t at = findIgnoringCase(text, kApaYearMark);
        if (at == Text::npos) {
            return;
        }
        const std::size_t begin = at + kApaYearMark.size();
        const std::size_t end = std::min(text.find(u')', begin), text.size());
        Text year(trim(TextView(text).substr(begin, end - begin), u" ,;:"));
        reprinttext::removeLeadIn(year, kPublishedIn);
        takeYear(year);
        const Text left = concatenate(
            {trim(TextView(text).substr(0, at), u" (.,;"), u" ", trim(TextView(text).substr(end), u" ).,;")});
        text = Text(trim(left));
    });
}

/// "Reprinted from Manual of child psychology, pp. 703-732, by P. H. Mussen, Ed., 1970, New York, NY: Wiley"
void OutputTemplateEdition::parseAndRemoveAPAReprint(Text& text) {
    text.erase(0, kApaLeadIn.size());
    mEditionBookChapterYear->isReprintBook = true;
    parseAndRemoveMLAChapterOrArticleTitle(text);
    reprinttext::removeLeadIn(text, kIn);
    parseAndRemoveAuthor(text);
    ParseAndRemovePublisher(text);
    parseAndRemoveMLAPage(text);
    takeJournal(text);
    parseAndRemoveTitleAndPlace(text);
    mEditionBookChapterYear->isReprintBook &= !mEditionBookChapterYear->Title.empty();
}

/// ", by P. H. Mussen, Ed., 1970": what follows the name is the year or nothing.
void OutputTemplateEdition::parseAndRemoveAuthor(Text& text) {
    procedure(*this, u"parseAndRemoveAuthor", {{u"text", text}}, [&] {
        for (const Contribution& row : kContributions) {
            const Text behindComma = concatenate({kListSign, row.mark});
            const std::size_t comma = text.rfind(behindComma);
            if (comma == Text::npos && !startsWith(text, row.mark)) {
                continue;
            }
            const std::size_t begin = comma == Text::npos ? 0 : comma;
            const std::size_t length = comma == Text::npos ? row.mark.size() : behindComma.size();
            const std::size_t year = reprinttext::yearBehindComma(text, begin + length);
            Text name = text.substr(begin + length, year - begin - length);
            text.erase(begin, year - begin);
            Record& record = *mEditionBookChapterYear;
            const bool isEditor = std::any_of(std::begin(kApaEditors), std::end(kApaEditors),
                                              [&](TextView mark) { return removeSuffix(name, mark); });
            name = replaceAll(name, u" & ", u" and ");
            record.AuthorType = isEditor ? Record::kEditor : row.type;
            record.author = name;
            if (!isEditor && row.type == Record::kAuthor) {
                mNamedAuthor = name;
            }
            return;
        }
    });
}

/// ", 1970, New York, NY: Wiley" and ", 1970"
void OutputTemplateEdition::ParseAndRemovePublisher(Text& text) {
    procedure(*this, u"ParseAndRemovePublisher", {{u"text", text}}, [&] {
        const Text whole = text;
        const std::size_t at = reprinttext::yearBehindComma(whole, 0);
        if (at == whole.size()) {
            return;
        }
        const TextView behind = trim(TextView(whole).substr(at), u" ,");
        const TextView year = before(behind, kListSign);
        takeYear(year);
        const TextView rest = behind.substr(year.size());
        if (hasPageBehindComma(rest)) {
            // "Time, March 3, 1999, p. 12"
            text = concatenate({TextView(whole).substr(0, at), rest});
            return;
        }
        if (!contains(rest, u": ") && hasVolumeBehindComma(rest)) {
            // "American Psychologist, 1995, 50, 741-749": volume and pages follow the title.
            const TextView volume = before(rest.substr(kListSign.size()), kListSign);
            const TextView pages = rest.substr(kListSign.size() + volume.size());
            text = concatenate({TextView(whole).substr(0, at), kListSign, volume, pages.empty() ? u"" : u", pp. ",
                                pages.substr(std::min(pages.size(), kListSign.size()))});
            return;
        }
        const auto parts = reprinttext::placeAndPublisher(trim(behind.substr(year.size()), u" ,"));
        mEditionBookChapterYear->PlaceOrVolume = parts.place;
        if (!parts.publisher.empty()) {
            takePublisher(parts.publisher);
        }
        text.erase(at);
    });
}

/// What is left of an APA statement: the title, of which a place may still be the end.
void OutputTemplateEdition::parseAndRemoveTitleAndPlace(Text& text) {
    procedure(*this, u"parseAndRemoveTitleAndPlace", {{u"text", text}}, [&] {
        mEditionBookChapterYear->Title = reprinttext::titleOf(text);
        noteLanguageOfTitle();
        text.clear();
    });
}

/// A statement that has no word for it shows by its title that it is of a translated work.
void OutputTemplateEdition::noteLanguageOfTitle() {
    Record& record = *mEditionBookChapterYear;
    if (!record.Title.empty() && !titlelanguage::isEnglish(titlecase::readTitle(record.Title))) {
        record.TitleType = Record::kForeignTitle;
    }
}

/// ", 18(4)" behind the title of a journal, and the mark of its special issue.
void OutputTemplateEdition::takeJournal(Text& text) {
    Record& record = *mEditionBookChapterYear;
    const reprinttext::VolumeAndNumber found = reprinttext::volumeAtEnd(text);
    if (found.volume.begin < found.volume.end && record.PlaceOrVolume.empty() && record.PublisherOrNumber.empty()) {
        record.PlaceOrVolume = slice(text, found.volume);
        record.PublisherOrNumber = slice(text, found.number);
        record.isReprintBook = false;
        text.erase(found.volume.begin);
        text = Text(trim(text, u" ,"));
    }
    for (const TextView mark : kSpecialIssueMarks) {
        if (removeSuffix(text, mark)) {
            record.isSpecialIssue = true;
            record.isReprintBook = false;
        }
    }
}

// Turabian.

/// "Originally published as Le passé d'une illusion (Paris: Robert Laffont, 1995)"
void OutputTemplateEdition::ParseTurabianReprint(Text& text) {
    procedure(*this, u"ParseTurabianReprint", {{u"text", text}}, [&] {
        const std::size_t at = findIgnoringCase(text, kTurabianMark);
        if (at == Text::npos) {
            return;
        }
        Text statement = text.substr(at + kTurabianMark.size());
        const Text inFront(trim(TextView(text).substr(0, at), kEnds));
        removeSuffix(statement, u".");
        text = inFront;
        Record& record = *mEditionBookChapterYear;
        const bool hasTitle = startsWithIgnoringCase(statement, kAs);
        for (const TextView leadIn : kTurabianLeadIns) {
            if (reprinttext::removeLeadIn(statement, leadIn)) {
                break;
            }
        }
        const Text first(before(statement, u" "));
        if (startsWith(TextView(statement).substr(first.size()), kAs)) {
            // "in German as Der Prozess"
            statement.erase(0, first.size() + kAs.size());
            record.TitleType = Record::kForeignTitle;
        } else if (isYear(first)) {
            // "in 1925"; what follows stays with the text
            takeYear(first);
            statement = trim(TextView(statement).substr(first.size()));
            text = statement.empty() ? text : statement;
            return;
        }
        parseAndRemoveMLASpecialIssue(statement);
        parseAndRemoveTurabianContributor(statement);
        parseAndRemoveMLAChapterOrArticleTitle(statement);
        reprinttext::removeLeadIn(statement, kIn);
        const bool isArticle = reprinttext::journalTail(statement).has_value();
        if (isArticle && !isMLABook(statement)) {
            parseAndRemoveMLANumber(statement);
            parseAndRemoveMLAVolume(statement);
            parseAndRemoveMLAPublisher(statement);
            parseAndRemoveMLAPage(statement);
        } else {
            record.isReprintBook = !record.isSpecialIssue;
            // The pages stand behind the parentheses or before them.
            if (!endsWith(statement, u")")) {
                parseAndRemoveMLAPage(statement);
            }
            if (!ParseAndRemoveTranslationPublisher(statement) && !hasTitle) {
                // "Originally published Cambridge, MA: Harvard University Press, 1960"
                parseAndRemoveMLAPublisher(statement);
            }
            if (record.Page.empty()) {
                parseAndRemoveMLAPage(statement);
            }
        }
        record.Title = reprinttext::titleOf(statement);
        noteLanguageOfTitle();
    });
}

/// "P. H. Mussen, ed., Manual of Child Psychology", "Henry James, “The Art of Fiction,” …", "Sister Carrie,
/// introduction by E. L. Doctorow (New York: …"
void OutputTemplateEdition::parseAndRemoveTurabianContributor(Text& text) {
    Record& record = *mEditionBookChapterYear;
    for (const TextView mark : kTurabianEditors) {
        const std::size_t at = text.find(mark);
        if (at != Text::npos && at < text.find(u'(')) {
            record.author = text.substr(0, at);
            record.AuthorType = Record::kEditor;
            text.erase(0, at + mark.size());
            return;
        }
    }
    for (const Contribution& row : kContributions) {
        const Text mark = concatenate({kListSign, row.mark});
        const std::size_t at = row.type == Record::kAuthor ? Text::npos : text.find(mark);
        if (at != Text::npos) {
            const std::size_t begin = at + mark.size();
            const std::size_t end = std::min({text.find(u" (", begin), text.find(kListSign, begin), text.size()});
            record.author = text.substr(begin, end - begin);
            record.AuthorType = row.type;
            text.erase(at, end - at);
            return;
        }
    }
    const Text author(reprinttext::authorInFront(text));
    if (!author.empty()) {
        record.author = author;
        mNamedAuthor = author;
        text.erase(0, author.size() + kListSign.size());
    }
}

/// "Le passé d'une illusion (Paris: Robert Laffont, 1995)", "Le passé d'une illusion. Paris: Laffont, 1995"
void OutputTemplateEdition::parseTranslationEdition(Text& text) {
    procedure(*this, u"parseTranslationEdition", {{u"text", text}}, [&] {
        Text statement = text;
        if (const TextView first = before(text, u". "); first.size() < text.size() && isYear(first)) {
            // "1899. New York: Barnes, 2001" is a reprint; its own publication is none of ours.
            mEditionType = kReprint;
            statement.erase(0, first.size() + 2);
            takeYear(first);
            text = statement;
            return;
        }
        const bool isInParentheses = ParseAndRemoveTranslationPublisher(statement);
        if (!isInParentheses) {
            parseAndRemoveMLAPublisher(statement);
        }
        Record& record = *mEditionBookChapterYear;
        const bool isStatement =
            !record.Year.empty() || (!record.PlaceOrVolume.empty() && !record.PublisherOrNumber.empty());
        // "2nd ed. (1990)" is no title.
        if (!isStatement || getEditionType(statement) == kNumbered) {
            forgetPublication();
            return;
        }
        record.isReprintBook = true;
        record.TitleType = Record::kForeignTitle;
        record.Title = reprinttext::titleOf(statement);
        text.clear();
    });
}

/// "(Paris: Robert Laffont, 1995)", "(Robert Laffont, 1995)", "(Paris: Robert Laffont)" and "(1995)" at the end.
bool OutputTemplateEdition::ParseAndRemoveTranslationPublisher(Text& text) {
    return procedure(*this, u"ParseAndRemoveTranslationPublisher", {{u"text", text}}, [&] {
        removeSuffix(text, u".");
        const std::size_t close = text.rfind(u')');
        const std::size_t open = text.rfind(u'(', close);
        if (close == Text::npos || open == Text::npos || close + 1 < text.size()) {
            return false;
        }
        TextView inside = TextView(text).substr(open + 1, close - open - 1);
        const std::optional<Range> year = reprinttext::yearAtEnd(inside);
        if (!year && !contains(inside, u": ")) {
            return false;
        }
        const Text place(trim(inside.substr(0, year ? year->begin : inside.size()), u" ,"));
        if (year) {
            takeYear(slice(inside, *year));
        }
        const auto parts = reprinttext::placeAndPublisher(place);
        mEditionBookChapterYear->PlaceOrVolume = parts.place;
        if (!parts.publisher.empty()) {
            takePublisher(parts.publisher);
        }
        text = Text(trim(TextView(text).substr(0, open)));
        return true;
    });
}

}  // namespace quorvel

// The edition element: writing first publications, in the manner of each style.

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/edition/edition.h"
#include "elements/edition/reprint_text.h"
#include "elements/style_codes.h"
#include "elements/volume_numbers.h"

namespace quorvel {

using Record = quorvel::EditionBookChapterYear;

namespace {

constexpr std::size_t kSlots = 6;

enum MlaSlot : std::size_t {
    kMlaLeadIn,
    kMlaTitle,
    kMlaContributor,
    kMlaPlaceOrVolume,
    kMlaPublisherOrNumber,
    kMlaYear
};

// MLA 7 5.5.16. The second lists are the checking ones, for journals: "Critical Inquiry 18.4 (1992): 625-884", where
// the year brings its closing parenthesis and the pages along.
constexpr SlotLayout kMlaLayout({
    {kPlainSlot, {u"", u"", u"", u"", u"", u"", u""}},
    {kFormattedSlot, {u"", u". ", u". ", u". ", u". ", u""}, {u"", u". ", u" ", u" ", u" (", u""}},
    {kPlainSlot, {u"", u". ", u". ", u". ", u""}, {u"", u". ", u". ", u". (", u""}},
    {kPlainSlot, {u"", u": ", u", ", u""}, {u"", u".", u" (", u""}},
    {kPlainSlot, {u"", u", ", u""}, {u"", u" (", u""}},
    {kPlainSlot, {u"", u""}, {u"", u""}},
});

enum ApaSlot : std::size_t { kApaTitle = 1, kApaPages, kApaContributor, kApaYear, kApaPublisher };

// APA 6 7.02. The first slot stays empty.
constexpr SlotLayout kApaLayout({
    {kFormattedSlot, {u"", u"", u"", u"", u"", u"", u""}},
    {kFormattedSlot, {u"(Reprinted from ", u", ", u", by ", u", ", u", ", u")"}},
    {kPlainSlot, {u"(Reprinted from ", u", by ", u", ", u", ", u")"}},
    {kPlainSlot, {u"(Reprinted from ", u", Ed., ", u", Ed., ", u", Ed.)"}},
    {kPlainSlot, {u"(Reprinted from ", u", ", u")"}},
    {kPlainSlot, {u"(Reprinted from ", u")"}},
});

enum TurabianSlot : std::size_t {
    kTurabianLeadIn = 1,
    kTurabianTitle,
    kTurabianPlace,
    kTurabianPublisher,
    kTurabianYear
};

// Turabian 7 17.1.2. The first slot stays empty.
constexpr SlotLayout kTurabianLayout({
    {kPlainSlot, {u"", u"", u"", u"", u"", u"", u""}},
    {kPlainSlot, {u"", u"", u"", u"", u"", u""}},
    {kFormattedSlot, {u"", u" (", u" (", u" (", u""}},
    {kPlainSlot, {u"(", u": ", u", ", u")"}},
    {kPlainSlot, {u"(", u", ", u")"}},
    {kPlainSlot, {u"(", u")"}},
});

constexpr TextView kReprintOf = u"Rpt. of ";
constexpr TextView kTranslationOf = u"Trans. of ";
constexpr TextView kSpecialIssueOf = u"spec. issue of ";
constexpr TextView kOriginallyPublishedAs = u"Originally published as ";
constexpr TextView kSpecialIssueInFull = u"special issue of ";
constexpr TextView kApaSpecialIssue = u" [Special issue]";
constexpr TextView kPagePrefix = u"p. ";
constexpr TextView kPagesPrefix = u"pp. ";

/// The quotation of a chapter's or article's title, with the sign that the style has inside its marks.
Text quoted(TextView title, TextView sign) {
    const bool hasOwnEnd = title.ends_with(u'?') || title.ends_with(u'!') || title.ends_with(u'.');
    return concatenate({u"\u201C", title, hasOwnEnd ? TextView() : sign, u"\u201D"});
}

bool isIntroducer(TextView authorType) {
    return authorType == Record::kIntroducer || authorType == Record::kIntroducerWithNotes;
}
/// APA joins persons by the sign, the others by the word, with which the record keeps them.
constexpr TextView kAndWord = u" and ";
constexpr TextView kAndSign = u" & ";
bool isPlural(TextView persons) {
    return contains(persons, kAndWord) || contains(persons, kAndSign);
}
/// In the styles that do not abbreviate it.
TextView introduction(TextView authorType) {
    return authorType == Record::kIntroducer ? u"introduction by " : u"introduction and notes by ";
}

void addItalic(OutputSink& sink, TextView text) {
    if (!text.empty()) {
        sink.Add(text, OutputSink::kItalic);
    }
}
void addPlain(OutputSink& sink, TextView text) {
    if (!text.empty()) {
        sink.Add(text, OutputSink::kPlain);
    }
}

}  // namespace

// Layouts.

void OutputTemplateEdition::Add(std::int16_t index, const std::vector<Text>& separators, bool isFormatted,
                                bool isChecking) {
    procedure(
        *this, u"Add",
        {{u"index", index}, {u"separators", separators}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}},
        [&] { held(assembly())->Add(index, isFormatted, isChecking, separators); });
}

void OutputTemplateEdition::Add2(std::int16_t index, bool isFormatted, const std::vector<Text>& separators) {
    procedure(*this, u"Add2", {{u"index", index}, {u"isFormatted", isFormatted}, {u"separators", separators}},
              [&] { held(assembly())->Add(index, isFormatted, false, separators); });
}

/// A slot with two lists has a checking one.
void OutputTemplateEdition::registerSlots(std::span<const SlotRow> rows) {
    held(assembly())->Reset(static_cast<std::int16_t>(rows.size() - 1));
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        const std::vector<Text> separators = rows[slot].separators({});
        if (separators.size() > rows[slot].length()) {
            Add(static_cast<std::int16_t>(slot), separators, rows[slot].isFormatted(), true);
        } else {
            Add2(static_cast<std::int16_t>(slot), rows[slot].isFormatted(), separators);
        }
    }
}

void OutputTemplateEdition::initTurabianOutputTemplate() {
    procedure(*this, u"initTurabianOutputTemplate", kNoParameters, [&] { registerSlots(kTurabianLayout); });
}

void OutputTemplateEdition::initAPAOutputTemplate() {
    procedure(*this, u"initAPAOutputTemplate", kNoParameters, [&] { registerSlots(kApaLayout); });
}

void OutputTemplateEdition::initMLAOutputTemplate() {
    procedure(*this, u"initMLAOutputTemplate", kNoParameters, [&] { registerSlots(kMlaLayout); });
}

/// Which slots have their checking separators in force: those of a journal.
std::vector<bool> OutputTemplateEdition::checkingArray() const {
    return procedure(*this, u"checkingArray", kNoParameters, [&] {
        std::vector<bool> checking(kSlots, stylecodes::isMla(mFormat) && isJournal());
        checking.front() = false;
        return checking;
    });
}

// Output.

void OutputTemplateEdition::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    OutputSink& sink = object(formattedStr);
    if (mEditionType != kReprint && mEditionType != kTranslation) {
        addPlain(sink, numberedOrNamedText(isFootnote));
        return;
    }
    const Text year = yearText();
    if (stylecodes::isMla(mFormat)) {
        if (!hasSource()) {
            addPlain(sink, ToMLANonTitleString());
            return;
        }
    } else if (mFormat == stylecodes::kApa) {
        if (!hasPublication() || isContributorAlone()) {
            addPlain(sink, year.empty() ? Text() : concatenate({u"(Original work published ", year, u")"}));
            return;
        }
    } else if (mFormat == stylecodes::kTurabian) {
        if (mEditionBookChapterYear->Title.empty()) {
            addPlain(sink, toStringYearOnly(isFootnote));
            return;
        }
    } else {
        // AMA and codes of no style have no statement of a first publication.
        return;
    }
    const std::shared_ptr<outputTemplate> inForce = held(assembly());
    inForce->ResetReferenceItems();
    inForce->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote, checkingArray());
}

bool OutputTemplateEdition::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                      std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    if (stylecodes::isMla(mFormat)) {
        // Copies of the fragments: the host may ask for a new layout while it is written to.
        fillMLA(items, OutputSinkRef(formattedItems.at(kMlaTitle)));
    } else if (mFormat == stylecodes::kApa) {
        fillAPA(items, OutputSinkRef(formattedItems.at(kApaTitle)));
    } else if (mFormat == stylecodes::kTurabian) {
        fillTurabian(items, OutputSinkRef(formattedItems.at(kTurabianTitle)));
    } else {
        return true;
    }
    return false;
}

/// More is known of where it stood than its year, and the title of a chapter or article.
bool OutputTemplateEdition::hasSource() const {
    const Record& record = *mEditionBookChapterYear;
    return !record.Title.empty() || !record.PlaceOrVolume.empty() || !record.PublisherOrNumber.empty() ||
           !record.Page.empty();
}

bool OutputTemplateEdition::hasPublication() const {
    return hasSource() || !mEditionBookChapterYear->author.empty();
}

/// "Reprinted from" an author or introducer alone would say nothing.
bool OutputTemplateEdition::isContributorAlone() const {
    const Record& record = *mEditionBookChapterYear;
    return !hasSource() && record.chapterOrArticleTitle.empty() &&
           (isIntroducer(record.AuthorType) || record.author == mNamedAuthor);
}

/// A form may leave the flag of a book alone: without any mark of a journal the statement is that of a book.
bool OutputTemplateEdition::isJournal() const {
    const Record& record = *mEditionBookChapterYear;
    if (record.isReprintBook) {
        return false;
    }
    const bool hasPagesAlone = !record.Page.empty() && record.PlaceOrVolume.empty() && record.PublisherOrNumber.empty();
    return record.isSpecialIssue || hasPagesAlone || isDigits(record.PublisherOrNumber) ||
           isDigits(record.PlaceOrVolume) || volumenumbers::isNumber(record.PlaceOrVolume);
}

Text OutputTemplateEdition::yearText() {
    const Text year = mEditionBookChapterYear->Year;
    return isYear(year) && !reprinttext::isYearOfEra(year) ? held(mYearTemplate)->formatStr(year) : year;
}

/// "Introd. E. L. Doctorow. 1900"
Text OutputTemplateEdition::ToMLANonTitleString() {
    return procedure(*this, u"ToMLANonTitleString", kNoParameters, [&] {
        Text result;
        for (const Text& part : {contributorText(), mEditionBookChapterYear->chapterOrArticleTitle, yearText()}) {
            if (!part.empty() && !result.empty()) {
                result.append(result.ends_with(u'.') ? u" " : u". ");
            }
            result.append(part);
        }
        return Text(result.substr(0, result.find_last_not_of(u' ') + 1));
    });
}

/// "By Henry James", "Introd. E. L. Doctorow", "Ed. Kay Smith"; nothing without a contributor.
Text OutputTemplateEdition::contributorText() const {
    const Record& record = *mEditionBookChapterYear;
    if (record.author.empty()) {
        return {};
    }
    if (record.AuthorType == Record::kIntroducer) {
        return concatenate({u"Introd. ", record.author});
    }
    if (record.AuthorType == Record::kIntroducerWithNotes) {
        return concatenate({u"Introd. and notes by ", record.author});
    }
    return concatenate({record.AuthorType == Record::kEditor ? u"Ed. " : u"By ", shortenedAuthor()});
}

/// MLA 7 5.5.8: of the author whom the reference names already the last name is enough.
Text OutputTemplateEdition::shortenedAuthor() const {
    return procedure(*this, u"shortenedAuthor", kNoParameters, [&] {
        Text author = mEditionBookChapterYear->author;
        const std::size_t comma = mOldAuthor.find(u", ");
        const Text direct = comma == Text::npos
                                ? mOldAuthor
                                : concatenate({TextView(mOldAuthor).substr(comma + 2), u" ", before(mOldAuthor, u",")});
        if (author.empty() || (author != mOldAuthor && author != direct)) {
            return author;
        }
        return Text(comma == Text::npos ? TextView(direct).substr(direct.rfind(u' ') + 1) : before(mOldAuthor, u","));
    });
}

Text OutputTemplateEdition::toStringYearOnly(bool isFootnote) {
    return procedure(*this, u"toStringYearOnly", {{u"isFootnote", isFootnote}}, [&] {
        const Text year = yearText();
        // "350 B.C.E. Reprint"
        const TextView reprint = year.ends_with(u'.') ? u" Reprint" : u". Reprint";
        return year.empty() ? Text() : concatenate({year, isFootnote ? u"; repr." : reprint});
    });
}

/// "Rpt. of " or "Trans. of ", and "spec. issue of " behind it.
Text OutputTemplateEdition::getReprintPrefix() const {
    return procedure(*this, u"getReprintPrefix", kNoParameters, [&] {
        const Record& record = *mEditionBookChapterYear;
        // A form that filled an empty record has told the kind by the edition type alone.
        const bool isReprint =
            record.TitleType == Record::kEnglishTitle || (record.TitleType.empty() && mEditionType != kTranslation);
        return concatenate({isReprint ? kReprintOf : kTranslationOf, record.isSpecialIssue ? kSpecialIssueOf : u""});
    });
}

void OutputTemplateEdition::outputReprintPrefix(std::vector<Text>& items, bool hasTitle) const {
    procedure(*this, u"outputReprintPrefix", {{u"items", items}, {u"hasTitle", hasTitle}}, [&] {
        Text prefix = hasTitle ? getReprintPrefix() : Text();
        items.at(kMlaLeadIn) = std::move(prefix);
    });
}

Text OutputTemplateEdition::publisherName() {
    const Record& record = *mEditionBookChapterYear;
    if (isDigits(record.PublisherOrNumber)) {
        return record.PublisherOrNumber;
    }
    const auto element = held(mPublisherTemplate);
    Text name = record.PublisherOrNumber;
    element->Parse(name, {});
    // What the style drops leaves its comma and blanks behind.
    return element->PublisherType == OutputTemplatePublisher::kNamed
               ? Text(trim(element->toString(false, false), u" ,"))
               : record.PublisherOrNumber;
}

/// "New York, NY: Wiley"
Text OutputTemplateEdition::getAPAPublisher() {
    return procedure(*this, u"getAPAPublisher", kNoParameters, [&] {
        const Text place = mEditionBookChapterYear->PlaceOrVolume;
        const Text name = publisherName();
        return concatenate({place, place.empty() || name.empty() ? u"" : u": ", name});
    });
}

Text OutputTemplateEdition::getMLAPublisher() {
    return procedure(*this, u"getMLAPublisher", kNoParameters, [&] { return publisherName(); });
}

/// The pages as the style's page element writes them; in APA with "p." or "pp." in any case.
Text OutputTemplateEdition::getPageStr() {
    return procedure(*this, u"getPageStr", kNoParameters, [&] {
        Text text = mEditionBookChapterYear->Page;
        if (text.empty()) {
            return text;
        }
        const auto page = held(mPageTemplate);
        page->Parse(text, {});
        Text result = page->toString(false, false);
        if (mFormat == stylecodes::kApa && !result.empty() && isDigit(result[0])) {
            const bool isPlural = result.find_first_of(u"-,\u2013") != Text::npos;
            result.insert(0, isPlural ? kPagesPrefix : kPagePrefix);
        }
        return result;
    });
}

/// "Rpt. of “Daisy Miller.” Cornhill Magazine 37 (1878): 678-98"
void OutputTemplateEdition::fillMLA(std::vector<Text>& items, const OutputSinkRef& title) {
    const Record record = *mEditionBookChapterYear;
    const bool isArticle = isJournal();
    Text contributor = contributorText();
    Text publisher = getMLAPublisher();
    Text year = yearText();
    const Text pages = getPageStr();
    // The author of a chapter follows its title, everybody else that of the work.
    Text authorOfChapter;
    if (!record.chapterOrArticleTitle.empty() && (isArticle || record.AuthorType == Record::kAuthor)) {
        authorOfChapter = std::exchange(contributor, Text());
    }
    if (isArticle && !year.empty()) {
        year.append(u")");
    }
    Text place = record.PlaceOrVolume;
    Text behindTitle;
    if (!pages.empty()) {
        // They follow the last part that there is.
        Text* const parts[] = {&year, &publisher, &place, &contributor};
        const auto* const last =
            std::find_if(std::begin(parts), std::end(parts), [](const Text* part) { return !part->empty(); });
        Text& part = last != std::end(parts) ? **last : behindTitle;
        part.append(isArticle ? u": " : u". ").append(pages);
    }
    items.at(kMlaContributor) = std::move(contributor);
    items.at(kMlaPlaceOrVolume) = std::move(place);
    items.at(kMlaPublisherOrNumber) = std::move(publisher);
    items.at(kMlaYear) = std::move(year);
    outputReprintPrefix(items, !record.Title.empty() || !record.chapterOrArticleTitle.empty());
    OutputSink& sink = object(title);
    if (!record.chapterOrArticleTitle.empty()) {
        addPlain(sink, quoted(record.chapterOrArticleTitle, u"."));
        addPlain(sink, authorOfChapter.empty() ? Text() : concatenate({u" ", authorOfChapter, u"."}));
        addPlain(sink, record.Title.empty() ? u"" : u" ");
    }
    addItalic(sink, record.Title);
    addPlain(sink, behindTitle);
}

/// "(Reprinted from Manual of child psychology, pp. 703-732, by P. H. Mussen, Ed., 1970, New York, NY: Wiley)"
void OutputTemplateEdition::fillAPA(std::vector<Text>& items, const OutputSinkRef& title) {
    const Record record = *mEditionBookChapterYear;
    const bool isArticle = isJournal();
    Text pages = getPageStr();
    Text year = yearText();
    Text publisher = isArticle ? Text() : getAPAPublisher();
    // The layout takes every contributor for an editor. Whom the text called the author, and who wrote an introduction,
    // stands with the pages instead.
    TextView lead;
    if (isIntroducer(record.AuthorType)) {
        lead = introduction(record.AuthorType);
    } else if (record.author == mNamedAuthor && record.AuthorType == Record::kAuthor) {
        lead = u"by ";
    }
    // The layout knows one editor only.
    const bool areEditors = lead.empty() && record.AuthorType == Record::kEditor && isPlural(record.author);
    if (areEditors) {
        lead = u"by ";
    }
    const Text author = replaceAll(record.author, kAndWord, kAndSign);
    const bool isWithPages = !author.empty() && !lead.empty();
    if (isWithPages) {
        pages.append(pages.empty() ? u"" : u", ").append(lead).append(author).append(areEditors ? u", Eds." : u"");
    }
    items.at(kApaPages) = std::move(pages);
    items.at(kApaContributor) = isWithPages ? Text() : author;
    items.at(kApaYear) = std::move(year);
    items.at(kApaPublisher) = std::move(publisher);
    OutputSink& sink = object(title);
    if (!record.chapterOrArticleTitle.empty()) {
        addPlain(sink, quoted(record.chapterOrArticleTitle, record.Title.empty() ? u"" : u","));
        addPlain(sink, record.Title.empty() ? u"" : isArticle ? u" " : u" in ");
    }
    addItalic(sink, record.Title);
    if (record.isSpecialIssue) {
        addPlain(sink, kApaSpecialIssue);
    }
    if (isArticle && !record.PlaceOrVolume.empty()) {
        addPlain(sink, u", ");
        addItalic(sink, record.PlaceOrVolume);
        addPlain(sink, record.PublisherOrNumber.empty() ? Text() : concatenate({u"(", record.PublisherOrNumber, u")"}));
    }
}

/// "Originally published as Le passé d'une illusion (Paris: Robert Laffont, 1995)"
void OutputTemplateEdition::fillTurabian(std::vector<Text>& items, const OutputSinkRef& title) {
    const Record record = *mEditionBookChapterYear;
    const bool isArticle = isJournal();
    const Text pages = getPageStr();
    Text year = yearText();
    Text publisher = isArticle ? Text() : publisherName();
    const bool hasIntroducer = !record.author.empty() && isIntroducer(record.AuthorType);
    Text contributor;
    if (!record.author.empty() && !hasIntroducer) {
        contributor = concatenate({record.author, record.AuthorType != Record::kEditor ? u", "
                                                  : isPlural(record.author)            ? u", eds., "
                                                                                       : u", ed., "});
    }
    // The title of a translated work has no lead-in of its own.
    items.at(kTurabianLeadIn) = concatenate({mEditionType == kReprint ? kOriginallyPublishedAs : u"",
                                             record.isSpecialIssue ? kSpecialIssueInFull : u"", contributor});
    OutputSink& sink = object(title);
    if (!record.chapterOrArticleTitle.empty()) {
        addPlain(sink, quoted(record.chapterOrArticleTitle, u","));
        addPlain(sink, isArticle ? u" " : u" in ");
    }
    addItalic(sink, record.Title);
    addPlain(sink, hasIntroducer ? concatenate({u", ", introduction(record.AuthorType), record.author}) : Text());
    if (isArticle) {
        // The layout has the parts of a book; those of a journal follow its title (Turabian 7 17.2).
        const TextView volume = record.PlaceOrVolume;
        const TextView number = record.PublisherOrNumber;
        addPlain(sink, concatenate({volume.empty() ? u"" : u" ", volume, number.empty() ? u"" : u", no. ", number,
                                    year.empty() ? u"" : u" (", year, year.empty() ? u"" : u")",
                                    pages.empty() ? u"" : u": ", pages}));
        return;
    }
    addPlain(sink, pages.empty() ? Text() : concatenate({u", ", pages}));
    items.at(kTurabianPlace) = record.PlaceOrVolume;
    items.at(kTurabianPublisher) = std::move(publisher);
    items.at(kTurabianYear) = std::move(year);
}

}  // namespace quorvel

// Writing statements about other publications.

#include "core/common_model_processing_functions.h"
#include "core/common_testing_functions.h"
#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/date/date_text.h"
#include "elements/refers_to/refers_to.h"
#include "elements/refers_to/text.h"

namespace quorvel {

namespace {

using namespace referstokinds;

/// Of a statement about a journal. What follows the journal stands in the order of the style.
enum JournalSlot : std::size_t { kPhraseSlot, kAuthorSlot, kTitleSlot, kJournalSlot, kMeetingSlot, kPageSlot = 8 };
struct IssueSlots {
    std::size_t year;
    std::size_t volume;
    std::size_t number;
};
constexpr IssueSlots kAmaIssue = {5, 6, 7};
constexpr IssueSlots kOtherIssue = {7, 5, 6};

constexpr TextView kIn = u". In: ";
constexpr TextView kMeeting = u" abstract ";

// AMA 10 3.11: "JAMA. 2004;291(20):2432". Empty parts are left out with their signs.
constexpr SlotLayout kAmaJournal({
    {kPlainSlot, {u"", u"", u"", u"", u"", u"", u"", u"(", u"", u""}},
    {kPlainSlot, {u"", u". ", kIn, kMeeting, u". ", u". ", u". (", u":", u""}},
    {kPlainSlot, {u"", u". ", kMeeting, u". ", u". ", u". (", u":", u""}},
    {kFormattedSlot, {u"", kMeeting, u". ", u". ", u". (", u":", u""}},
    {kPlainSlot, {u"abstract ", u". ", u". ", u". (", u":", u""}},
    {kPlainSlot, {u"", u";", u";(", u":", u""}},
    {kPlainSlot, {u"", u"(", u":", u""}},
    {kPlainSlot, {u"(", u"):", u")"}},
    {kPlainSlot, {u"", u""}},
});

// MLA 7 5.4.2: "JAMA 291.20 (2004): 2432"; Turabian 7 17.2: "JAMA 291, no. 20 (2004): 2432".
enum JournalText { kBeforeNumber };
constexpr TextView kMlaNumber = u".";
constexpr TextView kTurabianNumber = u", no. ";
// A number without its volume would be taken for one.
constexpr TextView kNumberAlone = u", publ. nr. ";
constexpr TextView kNumberFirst = u"publ. nr. ";
constexpr SlotLayout kOtherJournal({
    {kPlainSlot, {u"", u"", u"", u"", u"", u"", kNumberFirst, u"(", u"", u""}},
    {kPlainSlot, {u"", u". ", kIn, kMeeting, u". ", kNumberAlone, u" (", u": ", u""}},
    {kPlainSlot, {u"", u". ", kMeeting, u". ", kNumberAlone, u" (", u": ", u""}},
    {kFormattedSlot, {u"", kMeeting, u" ", kNumberAlone, u" (", u": ", u""}},
    {kPlainSlot, {u"abstract ", u" ", kNumberAlone, u" (", u": ", u""}},
    {kPlainSlot, {u"", kBeforeNumber, u" (", u": ", u""}},
    {kPlainSlot, {kNumberFirst, u" (", u": ", u""}},
    {kPlainSlot, {u"(", u"): ", u")"}},
    {kPlainSlot, {u"", u""}},
});

// MLA 7 5.5.6: "1984. Rpt. in Essays. Ed. A. Lee. Vol. 2. Detroit: Gale, 1988. 18-27".
enum ReprintSlot : std::size_t {
    kOriginalSlot,
    kPrefixSlot,
    kReprintTitleSlot,
    kEditorSlot,
    kReprintVolumeSlot,
    kPlaceSlot,
    kPublisherSlot,
    kReprintYearSlot,
    kReprintPageSlot,
};
constexpr SlotLayout kReprint({
    {kPlainSlot, {u"", u". ", u". ", u". ", u". ", u". ", u". ", u". ", u". ", u""}},
    {kPlainSlot, {u"", u"", u"Ed. ", u"Vol. ", u"", u"", u"", u"", u""}},
    {kFormattedSlot, {u"", u". Ed. ", u". Vol. ", u". ", u". ", u", ", u". ", u""}},
    {kPlainSlot, {u"Ed. ", u". Vol. ", u". ", u". ", u", ", u". ", u""}},
    {kPlainSlot, {u"Vol. ", u". ", u". ", u", ", u". ", u""}},
    {kPlainSlot, {u"", u": ", u", ", u". ", u""}},
    {kPlainSlot, {u"", u", ", u". ", u""}},
    {kPlainSlot, {u"", u". ", u""}},
    {kPlainSlot, {u"", u""}},
});

// MLA 7 5.4.12: "Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006".
enum SerializedSlot : std::size_t { kPartSlot, kSeriesSlot, kBegunSlot };
constexpr SlotLayout kSerialized({
    {kPlainSlot, {u"Pt. ", u" of a series, ", u" of a series, begun ", u" of a series"}},
    {kPlainSlot, {u"", u", begun ", u""}},
    {kPlainSlot, {u"begun ", u""}},
});

// MLA 7 5.4.12: "52.4 (1981): 688-705; 53.1 (1981): 164-80". The values fill the slots in their order.
constexpr SlotLayout kSerialArticle({
    {kPlainSlot, {u"", u".", u" (", u": ", u"; ", u"; ", u"; (", u"; ", u""}},
    {kPlainSlot, {u"", u" (", u": ", u"; ", u"; ", u"; (", u"; ", u""}},
    {kPlainSlot, {u"(", u"): ", u"); ", u"); ", u"); (", u"); ", u")"}},
    {kPlainSlot, {u"", u"; ", u"; ", u"; (", u"; ", u""}},
    {kPlainSlot, {u"", u".", u" (", u": ", u""}},
    {kPlainSlot, {u"", u" (", u": ", u""}},
    {kPlainSlot, {u"(", u"): ", u")"}},
    {kPlainSlot, {u"", u""}},
});

// MLA 7 3.9.5, AMA 10 3.13.1.
constexpr TextView kShortDate = u"d mmm yyyy";
constexpr TextView kLongDate = u"mmmm d, yyyy";

constexpr TextView kAbstractInBrackets = u"[abstract]";
constexpr TextView kAbstractInSentence = u"abstract";
constexpr TextView kTranslated = u"Trans. ";
constexpr TextView kNewSeries = u"n.s.";
constexpr TextView kNewSeriesWithoutDots = u"ns";
constexpr TextView kOldSeries = u"o.s.";
constexpr TextView kOldSeriesWithoutDots = u"os";
constexpr TextView kSer = u" ser.";
constexpr TextView kEndsOfSeries[] = {u"ser.", u"series", u"Series"};

/// A date by the pattern, a month or season with its year, and anything else as it stands.
Text formattedDate(const Text& date, TextView pattern) {
    if (date.empty() || referstotext::isYear(date) || (pattern == kShortDate && referstotext::isShortDate(date))) {
        return date;
    }
    if (const std::optional<Text> complete = completeDate(date)) {
        Text form(pattern);
        return CommonTestingFunctions::FormatDate(*complete, form);
    }
    const std::optional<MonthsAndYear> dayless = monthsAndYear(date, pattern == kShortDate);
    return dayless ? concatenate({dayless->months, u" ", dayless->year}) : date;
}

Text inQuotationMarks(const Text& title) {
    const TextView open(&kLeftDoubleQuotationMark, 1);
    const TextView close(&kRightDoubleQuotationMark, 1);
    return title.empty() ? title : concatenate({open, title, close});
}

template <class Add>
void registerSlots(std::span<const SlotRow> rows, std::span<const TextView> styleTexts, const Add& add) {
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        add(static_cast<std::int16_t>(slot), rows[slot].isFormatted(), false, rows[slot].separators(styleTexts));
    }
}

std::int16_t lastSlot(std::span<const SlotRow> rows) {
    return static_cast<std::int16_t>(rows.size() - 1);
}

}  // namespace

void OutputTemplateRefersTo::layOutAll() {
    const bool isAma = stylecodes::usesBrackets(mFormat);
    const std::span<const SlotRow> journal = isAma ? std::span<const SlotRow>(kAmaJournal) : kOtherJournal;
    const TextView journalTexts[] = {mFormat == stylecodes::kTurabian ? kTurabianNumber : kMlaNumber};
    held(mReprintTemplate)->Reset(lastSlot(kReprint));
    registerSlots(kReprint, {}, [&](auto... slot) { Add(slot...); });
    held(mSerializedTemplate)->Reset(lastSlot(kSerialized));
    registerSlots(kSerialized, {}, [&](auto... slot) { Add2(slot...); });
    held(mAbstractTemplate)->Reset(lastSlot(journal));
    registerSlots(journal, journalTexts, [&](auto... slot) { Add3(slot...); });
    held(mSerialArticleTemplate)->Reset(lastSlot(kSerialArticle));
    registerSlots(kSerialArticle, {}, [&](auto... slot) { Add4(slot...); });
}

void OutputTemplateRefersTo::addTo(const std::shared_ptr<outputTemplate>& assembly, const Name& member,
                                   std::int16_t Index, bool isFormatted, bool isChecking,
                                   const std::vector<Text>& separators) {
    procedure(
        *this, member,
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}, {u"separators", separators}},
        [&] { held(assembly)->Add(Index, isFormatted, isChecking, separators); });
}

void OutputTemplateRefersTo::Add(std::int16_t Index, bool isFormatted, bool isChecking,
                                 const std::vector<Text>& separators) {
    addTo(mReprintTemplate, u"Add", Index, isFormatted, isChecking, separators);
}

void OutputTemplateRefersTo::Add2(std::int16_t Index, bool isFormatted, bool isChecking,
                                  const std::vector<Text>& separators) {
    addTo(mSerializedTemplate, u"Add2", Index, isFormatted, isChecking, separators);
}

void OutputTemplateRefersTo::Add3(std::int16_t Index, bool isFormatted, bool isChecking,
                                  const std::vector<Text>& separators) {
    addTo(mAbstractTemplate, u"Add3", Index, isFormatted, isChecking, separators);
}

void OutputTemplateRefersTo::Add4(std::int16_t Index, bool isFormatted, bool isChecking,
                                  const std::vector<Text>& separators) {
    addTo(mSerialArticleTemplate, u"Add4", Index, isFormatted, isChecking, separators);
}

std::shared_ptr<outputTemplate> OutputTemplateRefersTo::assembly() const {
    switch (kind().form) {
        case Form::kReprint: return mReprintTemplate;
        case Form::kSerialized: return mSerializedTemplate;
        case Form::kSerialArticle: return mSerialArticleTemplate;
        default: return mAbstractTemplate;
    }
}

std::vector<bool> OutputTemplateRefersTo::checkingArray() const {
    return procedure(*this, u"checkingArray[Get]", kNoParameters, [&] { return std::vector<bool>(kValues + 1); });
}

Text OutputTemplateRefersTo::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

/// APA and Turabian say of an abstract only that it is one: APA 6 7.01, Turabian 7 17.5.
bool OutputTemplateRefersTo::hasLayout() const {
    switch (kind().form) {
        case Form::kAbstract: return hasValues() && mFormat != stylecodes::kApa && mFormat != stylecodes::kTurabian;
        case Form::kJournal:
        case Form::kReprint:
        case Form::kSerialized:
        case Form::kSerialArticle: return true;
        default: return false;
    }
}

void OutputTemplateRefersTo::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    if (!hasLayout()) {
        if (const Text text = textAlone(); !text.empty()) {
            object(formattedStr).Add(text, OutputSink::kPlain);
        }
    } else if (mFormat == stylecodes::kAma) {
        ToFormattedStringAMA(formattedStr, isFootnote, shortenedVersion);
    } else {
        AssembledElement::write(formattedStr, isFootnote, shortenedVersion);
    }
}

void OutputTemplateRefersTo::ToFormattedStringAMA(const OutputSinkRef& formattedStr, bool isFootnote,
                                                  bool shortenedVersion) {
    procedure(*this, u"ToFormattedStringAMA",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { AssembledElement::write(formattedStr, isFootnote, shortenedVersion); });
}

bool OutputTemplateRefersTo::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                       std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    if (!hasLayout()) {
        Text text = textAlone();
        items.at(0) = std::move(text);
    } else if (hasValues()) {
        switch (kind().form) {
            case Form::kReprint: fillReprint(items, formattedItems); break;
            case Form::kSerialized: fillSerialized(items); break;
            case Form::kSerialArticle: fillSerialArticle(items); break;
            default: fillJournal(items, formattedItems);
        }
    }
    return false;
}

// The functions that fill slots make all texts before the first goes into its slot: the reports reach the host, which
// may empty the slots meanwhile.

void OutputTemplateRefersTo::fillJournal(std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems) {
    const referstokinds::Kind row = kind();
    const OutputSinkRef fragment = formattedItems.at(kJournalSlot);
    const bool isAma = stylecodes::usesBrackets(mFormat);
    const bool isMeeting = abstractPublishedInJournalProceedings();
    const auto at = [&](std::size_t offset) { return valueAt(static_cast<std::size_t>(row.journal) + offset); };
    Text journal = at(kJournal);
    Text author = row.hasAuthor() ? valueAt(0) : Text();
    if (const std::size_t in = journal.find(kIn); author.empty() && in != Text::npos) {
        // "Kennedy D. In: Science": only the journal is italic.
        author = journal.substr(0, in);
        journal.erase(0, in + kIn.size());
    }
    author = personsText(author);
    Text title = row.hasTitle() ? valueAt(1) : Text();
    title = isAma ? title : inQuotationMarks(title);
    Text date = at(kJournalYear);
    if (mAbstractUsesYear && !mAbstractDateIsYear) {
        date = formattedDate(date, isAma ? kLongDate : kShortDate);
    }
    Text volume = at(kJournalVolume);
    Text number = at(kJournalNumber);
    Text page = pageText(at(kJournalPage), isAma);

    const IssueSlots issue = isAma ? kAmaIssue : kOtherIssue;
    items.at(kPhraseSlot) = isMeeting ? TextView() : row.phrase;
    items.at(kAuthorSlot) = std::move(author);
    items.at(kTitleSlot) = std::move(title);
    items.at(isMeeting ? std::size_t{kMeetingSlot} : issue.number) = std::move(number);
    items.at(issue.year) = std::move(date);
    items.at(issue.volume) = std::move(volume);
    items.at(kPageSlot) = std::move(page);
    if (!journal.empty()) {
        writeJournal(fragment, journal);
    }
}

void OutputTemplateRefersTo::writeJournal(const OutputSinkRef& fragment, TextView journal) {
    const std::shared_ptr<OutputTemplateNewspaper> newspaper = held(mNewspaperTemplate);
    if (newspaper->isNewspaper(journal)) {
        Text title(journal);
        newspaper->Parse(title, {});
        newspaper->ToFormattedString(fragment, false, false);
    } else {
        object(fragment).Add(journal, OutputSink::kItalic);
    }
}

void OutputTemplateRefersTo::fillReprint(std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems) {
    const OutputSinkRef fragment = formattedItems.at(kReprintTitleSlot);
    const Text title = valueAt(kTitle);
    Text original = valueAt(kOriginalYear);
    Text editor = personsText(valueAt(kEditor));
    Text publisher = publisherText(valueAt(kPublisher));
    Text page = pageText(valueAt(kPage), false);
    Text volume = valueAt(kVolume);
    Text place = valueAt(kPlace);
    Text year = valueAt(kYear);
    const bool isOriginalAlone = title.empty() && editor.empty() && publisher.empty() && page.empty() &&
                                 volume.empty() && place.empty() && year.empty();
    items.at(kOriginalSlot) = std::move(original);
    items.at(kPrefixSlot) = isOriginalAlone ? Text() : mReprintPrefix;
    items.at(kEditorSlot) = std::move(editor);
    items.at(kReprintVolumeSlot) = std::move(volume);
    items.at(kPlaceSlot) = std::move(place);
    items.at(kPublisherSlot) = std::move(publisher);
    items.at(kReprintYearSlot) = std::move(year);
    items.at(kReprintPageSlot) = std::move(page);
    if (!title.empty()) {
        object(fragment).Add(title, OutputSink::kItalic);
    }
}

void OutputTemplateRefersTo::fillSerialized(std::vector<Text>& items) {
    Text begun = formattedDate(valueAt(kBegun), kShortDate);
    items.at(kPartSlot) = mValues.at(kPart);
    items.at(kSeriesSlot) = mValues.at(kSeriesName);
    items.at(kBegunSlot) = std::move(begun);
}

void OutputTemplateRefersTo::fillSerialArticle(std::vector<Text>& items) {
    std::vector<Text> texts = mValues;
    for (std::size_t issue = 0; issue < kValues; issue += kValuesOfIssue) {
        texts.at(issue + kIssueYear) = formattedDate(texts.at(issue + kIssueYear), kShortDate);
        texts.at(issue + kIssuePage) = pageText(texts.at(issue + kIssuePage), stylecodes::usesBrackets(mFormat));
    }
    for (std::size_t slot = 0; slot < kValues; ++slot) {
        items.at(slot) = std::move(texts.at(slot));
    }
}

/// What a kind that has no slots writes.
Text OutputTemplateRefersTo::textAlone() {
    Text text = valueAt(0);
    switch (kind().form) {
        case Form::kAbstract:
            return Text(stylecodes::usesBrackets(mFormat) ? kAbstractInBrackets : kAbstractInSentence);
        case Form::kSeries: return seriesText();
        case Form::kTranslator:
            return concatenate({text.empty() || !mUseTrans ? TextView() : kTranslated, personsText(text)});
        case Form::kEdition:
            return text.empty() || text.ends_with(mEditionPostfix) ? text : concatenate({text, mEditionPostfix});
        default: return text;
    }
}

/// MLA 7 5.4.4: "3rd ser.", "ns".
Text OutputTemplateRefersTo::seriesText() const {
    Text name = referstotext::seriesName(mValues.at(0));
    if (name == kNewSeries) {
        return Text(mUseDots ? kNewSeries : kNewSeriesWithoutDots);
    }
    if (name == kOldSeries) {
        return Text(mUseDots ? kOldSeries : kOldSeriesWithoutDots);
    }
    const bool takesSer = mUseSer && !name.empty() && !endsWithOneOf(name, kEndsOfSeries);
    return takesSer ? concatenate({name, kSer}) : name;
}

/// Persons as the style writes them inside a sentence: AMA and APA as in the list, the others in natural order. A text
/// that is more than a list of persons stays as it is.
Text OutputTemplateRefersTo::personsText(const Text& persons) {
    const std::shared_ptr<OutputTemplateAuthor> author = mAuthorTemplate;
    if (!author || persons.empty()) {
        return persons;
    }
    Text left = persons;
    author->Parse(left, {});
    if (!left.empty() || author->isEmptyArrayAuthor()) {
        return persons;
    }
    Text written = author->toString(!stylecodes::usesBrackets(mFormat), false);
    return written.empty() ? persons : written;
}

/// @param isBehindIssue pages behind the issue of a journal have no prefix in APA (7.01) and AMA; others have the
/// style's
Text OutputTemplateRefersTo::pageText(const Text& page, bool isBehindIssue) {
    if (page.empty()) {
        return page;
    }
    const std::shared_ptr<OutputTemplatePage> element = held(mPageTemplate);
    Text text = page;
    element->Parse(text, {});
    const bool hasNoWord =
        isBehindIssue && element->pageType == OutputTemplatePage::kPage && element->Note == OutputTemplatePage::kNoNote;
    Text written = hasNoWord ? element->Page() : element->toString(false, false);
    return written.empty() ? page : written;
}

Text OutputTemplateRefersTo::publisherText(const Text& publisher) {
    if (publisher.empty()) {
        return publisher;
    }
    const std::shared_ptr<OutputTemplatePublisher> element = held(mPublisherTemplate);
    Text text = publisher;
    element->Parse(text, {});
    return element->toString(false, false);
}

}  // namespace quorvel

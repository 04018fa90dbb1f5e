#include "elements/page.h"

#include <algorithm>
#include <iterator>

#include "core/procedure.h"
#include "elements/doi.h"
#include "elements/page_words.h"

namespace quorvel {

namespace {

constexpr TextView kNoPageMarkers[] = {u"n.p.", u"N. pag.", u"n. pag."};

// Every dash that stands between pages is read as a hyphen.
constexpr TextView kDashes = u"\u2010\u2011\u2012\u2013\u2212";
constexpr TextView kHyphen = u"-";
constexpr TextView kEnDashText(&kEnDash, 1);

constexpr TextView kPagePrefix = u"p. ";
constexpr TextView kPagePluralPrefix = u"pp. ";
constexpr TextView kLinePrefix = u"line ";
constexpr TextView kLinePluralPrefix = u"lines ";

struct AdvancedPrefix {
    OutputTemplatePage::LocatorType type;
    TextView prefix;
};

constexpr AdvancedPrefix kAdvancedPrefixes[] = {
    {OutputTemplatePage::kDisc, u"disc"},       {OutputTemplatePage::kFolio, u"fol"},
    {OutputTemplatePage::kSection, u"sec"},     {OutputTemplatePage::kBook, u"bk"},
    {OutputTemplatePage::kPart, u"pt"},         {OutputTemplatePage::kFigure, u"fig"},
    {OutputTemplatePage::kTable, u"table"},     {OutputTemplatePage::kMap, u"map"},
    {OutputTemplatePage::kPlate, u"plate"},     {OutputTemplatePage::kEntry, u"Entry"},
    {OutputTemplatePage::kDefinition, u"Def."},
};

// Words in full take no full stop, abbreviations may.
constexpr TextView kWholeWords[] = {u"disc", u"table", u"map", u"plate", u"Entry"};
// The one plural that is not made with an "s".
constexpr TextView kEntryWord = u"Entry";
constexpr TextView kEntryPlural = u"Entries";

constexpr TextView kListSign = u", ";
constexpr TextView kNotePrefix = u"n";
constexpr TextView kNotesPrefix = u"nn";
constexpr TextView kSignsOfSeveralNotes = u"-,&";

// A range shorter than the first is written in full; one that is shortened all the same is expanded: "31-2".
constexpr std::size_t kShortestShortened = 3;
constexpr std::size_t kShortestExpanded = 2;

// The years in which the works that are cited have been printed.
constexpr TextView kFirstYear = u"1400";
constexpr TextView kLastYear = u"2099";

// Of a longer text a locator takes some last words: "pp. 45, n. 3".
constexpr int kMostWords = 5;
constexpr TextView kSignsBeforePages = u":,";
constexpr TextView kSignsBetween = u" ,:;";

/// The last page of a range in full: "328" for "321-28". What is not shortened stays.
Text lastPageInFull(TextView first, TextView last) {
    const bool mayBeShortened = first.size() >= kShortestExpanded && last.size() < first.size() &&
                                pagewords::isNumeric(first) && consistsOf(last, kDigits);
    if (mayBeShortened) {
        Text full = concatenate({first.substr(0, first.size() - last.size()), last});
        if (full > first) {
            return full;
        }
    }
    return Text(last);
}

bool isYearOfPrint(TextView text) {
    const TextView year = text.substr(0, kFirstYear.size());
    return text.size() <= kFirstYear.size() + 1 && year.size() == kFirstYear.size() && isDigits(year) &&
           year >= kFirstYear && year <= kLastYear;
}

/// Whether a text could be a year or a range of years as well as pages.
bool mayBeYear(TextView text) {
    if (const std::optional<pagewords::Range> range = pagewords::range(text)) {
        return isYearOfPrint(range->first) && isYearOfPrint(lastPageInFull(range->first, range->last));
    }
    return isYearOfPrint(text);
}

bool isPageNumbers(TextView text) {
    return pagewords::isPageNumber(text) || pagewords::range(text) || !pagewords::list(text).empty();
}

/// The same with or without notes.
bool isNumbers(TextView text) {
    const std::optional<pagewords::PageAndNotes> parts = pagewords::pageAndNotes(text);
    return isPageNumbers(text) || (parts && (parts->page.empty() || isPageNumbers(parts->page)));
}

/// Hyphens for dashes, and no full stop behind the last number.
void normalise(Text& text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char16_t unit) { return unit >= kDashes.front() && kDashes.find(unit) != TextView::npos; }, kHyphen[0]);
    if (text.size() > 1 && text.back() == u'.' && isDigit(text[text.size() - 2])) {
        text.pop_back();
    }
}

}  // namespace

void OutputTemplatePage::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        auto year = std::make_shared<OutputTemplateYear>();
        year->Initialize(nullptr);
        mYearTemplate = std::move(year);
    });
}

void OutputTemplatePage::Reset(const PageOptions& options) {
    procedure(*this, u"Reset", reported(kPageOptions, options), [&] {
        mSupportsDOI = options.supportsDOI;
        mSupportsNotes = options.supportsNotes;
        mElideZero = options.elideZero;
        mUsePagePrefixInCitations = options.usePagePrefixInCitations;
        mShortenedPage = options.shortenedPage;
        mNoPageStr = options.noPageStr;
        mPageRangeSeparator = options.useEnDashForPageRange ? kEnDashText : kHyphen;
        mPrefixes.at(kPage) = options.usePagePrefix ? kPagePrefix : TextView();
        mPluralPrefixes.at(kPage) = options.usePagePrefix ? kPagePluralPrefix : TextView();
        mPrefixes.at(kChapter) = concatenate({options.chapterPrefix, u" "});
        mPluralPrefixes.at(kChapter) = concatenate({options.chapterPluralPrefix, u" "});
        mPrefixes.at(kParagraph) = concatenate({options.paraPrefix, u" "});
        mPluralPrefixes.at(kParagraph) = concatenate({options.paraPluralPrefix, u" "});
        mPrefixes.at(kLine) = kLinePrefix;
        mPluralPrefixes.at(kLine) = kLinePluralPrefix;
        for (const AdvancedPrefix& advanced : kAdvancedPrefixes) {
            addAdvancedPrefix(advanced.type, advanced.prefix, options.addDotToAdvancedPrefix);
        }
    });
}

void OutputTemplatePage::addAdvancedPrefix(std::int32_t pageType, TextView prefix, bool addDotToAdvancedPrefix) {
    procedure(*this, u"addAdvancedPrefix",
              {{u"pageType", pageType}, {u"prefix", prefix}, {u"addDotToAdvancedPrefix", addDotToAdvancedPrefix}}, [&] {
                  Text word(prefix);
                  const bool hasDot = removeSuffix(word, u".");
                  const bool isWhole = isOneOf(word, kWholeWords);
                  const TextView end = hasDot || (addDotToAdvancedPrefix && !isWhole) ? u". " : u" ";
                  const auto type = static_cast<std::size_t>(pageType);
                  mPrefixes.at(type) = concatenate({word, end});
                  mPluralPrefixes.at(type) =
                      word == kEntryWord ? concatenate({kEntryPlural, end}) : concatenate({word, u"s", end});
              });
}

std::shared_ptr<OutputTemplatePage> OutputTemplatePage::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplatePage>();
        CloneImpl(*clone);
        return clone;
    });
}

void OutputTemplatePage::CloneImpl(OutputTemplatePage& clone) const {
    procedure(*this, u"CloneImpl", kNoParameters, [&] {
        clone.Initialize(nullptr);
        // Without mElideZero and mInCitation, deliberately.
        clone.pageType = pageType;
        clone.mPages = mPages;
        clone.Note = Note;
        clone.mSupportsDOI = mSupportsDOI;
        clone.mSupportsNotes = mSupportsNotes;
        clone.mShortenedPage = mShortenedPage;
        clone.mUsePagePrefixInCitations = mUsePagePrefixInCitations;
        clone.mNoPageStr = mNoPageStr;
        clone.mPageRangeSeparator = mPageRangeSeparator;
        clone.mPrefixes = mPrefixes;
        clone.mPluralPrefixes = mPluralPrefixes;
    });
}

Text OutputTemplatePage::Page() const {
    return procedure(*this, u"Page[Get]", kNoParameters, [&] { return joinPages(false); });
}

void OutputTemplatePage::Page(TextView theVal) {
    procedure(*this, u"Page[Let]", {{u"theVal", theVal}}, [&] {
        Text text = cleanUp(theVal);
        if (pageType != kEntry && !doi::isDoi(text)) {
            normalise(text);
        }
        parsePage(text);
    });
}

bool OutputTemplatePage::supportsDOI() const {
    return procedure(*this, u"supportsDOI[Get]", kNoParameters, [&] { return mSupportsDOI; });
}

bool OutputTemplatePage::supportsNotes() const {
    return procedure(*this, u"supportsNotes[Get]", kNoParameters, [&] { return mSupportsNotes; });
}

void OutputTemplatePage::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        cleanUpInPlace(text);
        Note = kNoNote;
        if (doi::isDoi(text)) {
            pageType = kPage;
            mPages = {text, {}};
        } else {
            parseAndRemovePageType(text);
            if (pageType != kEntry) {
                normalise(text);
                parseAndRemoveNotes(text);
            }
            parsePage(text);
        }
        text.clear();
    });
}

/// Takes the pages of a text that has neither word nor notes.
void OutputTemplatePage::parsePage(TextView text) {
    procedure(*this, u"parsePage", {{u"text", text}}, [&] {
        if (const std::optional<pagewords::Range> range = pagewords::range(text)) {
            Text last = lastPageInFull(range->first, range->last);
            if (last == range->first) {
                last.clear();
            }
            mPages = {Text(range->first), std::move(last)};
        } else {
            mPages = {Text(text), {}};
        }
    });
}

bool OutputTemplatePage::parseFromEnd(Text& text) {
    return procedure(*this, u"parseFromEnd", {{u"text", text}}, [&] {
        Text cleaned = cleanUp(text);
        normalise(cleaned);
        const TextView whole = cleaned;
        std::size_t found = TextView::npos;
        std::size_t start = whole.size();
        for (int words = 0; words < kMostWords && start > 0; ++words) {
            const std::size_t blank = whole.substr(0, start - 1).rfind(u' ');
            start = blank == TextView::npos ? 0 : blank + 1;
            const TextView end = whole.substr(start);
            const std::optional<pagewords::LocatorWord> word = pagewords::locatorWord(end);
            const bool isSetOff = start > 1 && kSignsBeforePages.find(whole[start - 2]) != TextView::npos;
            // A number on its own is a page only where something sets it off: "vol. 3" is none.
            const bool isLocator = word ? isNumbers(end.substr(word->length))
                                        : isNumbers(end) && !mayBeYear(end) &&
                                              (start == 0 || isSetOff || pagewords::range(end) || !isPageNumbers(end));
            if (isLocator) {
                found = start;
            }
        }
        if (found == TextView::npos) {
            return false;
        }
        Text locator(whole.substr(found));
        const std::size_t last = whole.substr(0, found).find_last_not_of(kSignsBetween);
        text = whole.substr(0, last == TextView::npos ? 0 : last + 1);
        Parse(locator, {});
        return true;
    });
}

void OutputTemplatePage::parseAndRemoveNotes(Text& text) {
    procedure(*this, u"parseAndRemoveNotes", {{u"text", text}}, [&] {
        if (const std::optional<pagewords::PageAndNotes> parts = pagewords::pageAndNotes(text)) {
            Note = parts->notes;
            text = Text(parts->page);
        }
    });
}

void OutputTemplatePage::parseAndRemovePageType(Text& text) {
    procedure(*this, u"parseAndRemovePageType", {{u"text", text}}, [&] {
        pageType = kPage;
        if (isNoPage(text)) {
            pageType = kNoPage;
            text.clear();
            return;
        }
        if (const std::optional<pagewords::LocatorWord> word = pagewords::locatorWord(text)) {
            pageType = word->type;
            text.erase(0, word->length);
            return;
        }
        // The style's own words; an empty one is a blank, with which no text begins.
        for (const LocatorType type : {kChapter, kParagraph}) {
            const auto index = static_cast<std::size_t>(type);
            if (removePrefix(text, mPluralPrefixes.at(index)) || removePrefix(text, mPrefixes.at(index))) {
                pageType = type;
                return;
            }
        }
    });
}

void OutputTemplatePage::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote,
                                           bool shortenedVersion) const {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { object(formattedStr).Add(toString(isFootnote, shortenedVersion), OutputSink::kPlain); });
}

void OutputTemplatePage::inCitation(bool theVal) {
    procedure(*this, u"inCitation[Let]", {{u"theVal", theVal}}, [&] { mInCitation = theVal; });
}

bool OutputTemplatePage::isNumericPage() const {
    return procedure(*this, u"isNumericPage[Get]", kNoParameters, [&] { return pagewords::isNumeric(mPages.at(0)); });
}

Text OutputTemplatePage::toString(bool isFootnote, bool shortenedVersion) const {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
        if (pageType == kNoPage) {
            return mNoPageStr;
        }
        const Text pages = joinPages(true);
        const bool hasPrefix = !pages.empty() && !doi::isDoi(pages);
        return concatenate({hasPrefix ? prefix() : Text(), pages, noteText()});
    });
}

bool OutputTemplatePage::isPlural() const {
    return procedure(*this, u"isPlural", kNoParameters, [&] {
        // A copy, since the test of a number reports to the host, which may set another page.
        const Text first = mPages.at(0);
        return !mPages.at(1).empty() || !pagewords::list(first).empty() ||
               (pageType == kEntry && pagewords::isListOfEntries(first));
    });
}

Text OutputTemplatePage::joinPages(bool shortenPage) const {
    return procedure(*this, u"joinPages", {{u"shortenPage", shortenPage}}, [&] {
        // Copies, since the test of a number reports to the host, which may set another page.
        const Text first = mPages.at(0);
        const Text last = mPages.at(1);
        const std::vector<TextView> pieces = last.empty() ? pagewords::list(first) : std::vector<TextView>();
        if (pieces.empty()) {
            return joinRange(first, last, shortenPage);
        }
        Text joined;
        for (const TextView piece : pieces) {
            const std::optional<pagewords::Range> range = pagewords::range(piece);
            joined.append(joined.empty() ? TextView() : kListSign);
            joined.append(range ? joinRange(range->first, lastPageInFull(range->first, range->last), shortenPage)
                                : Text(piece));
        }
        return joined;
    });
}

/// MLA 7 3.5.6, Turabian 7 23.2.4: of the last page the digits that changed, and two at least.
Text OutputTemplatePage::joinRange(TextView firstPage, TextView lastPage, bool shortenPage) const {
    if (lastPage.empty()) {
        return Text(firstPage);
    }
    std::size_t shared = 0;
    if (shortenPage && mShortenedPage && firstPage.size() >= kShortestShortened &&
        firstPage.size() == lastPage.size() && pagewords::isNumeric(firstPage) && pagewords::isNumeric(lastPage)) {
        const auto changed = std::mismatch(firstPage.begin(), firstPage.end(), lastPage.begin());
        shared = static_cast<std::size_t>(changed.first - firstPage.begin());
        if (shared == lastPage.size()) {
            return Text(firstPage);
        }
        if (shared + 1 == lastPage.size() && !(mElideZero && lastPage[shared - 1] == u'0')) {
            --shared;
        }
    }
    return concatenate({firstPage, mPageRangeSeparator, lastPage.substr(shared)});
}

bool OutputTemplatePage::isPage(TextView text) {
    return procedure(*this, u"isPage", {{u"text", text}}, [&] { return isPageImpl(text); });
}

bool OutputTemplatePage::isPageImpl(TextView text) {
    return procedure(*this, u"isPageImpl", {{u"text", text}}, [&] {
        Text tested = cleanUp(text);
        const bool hasMark =
            isNoPage(tested) || pagewords::locatorWord(tested).has_value() || (mSupportsDOI && doi::isDoi(tested));
        normalise(tested);
        mIsPage = hasMark || (isNumbers(tested) && !(mayBeYear(tested) && held(mYearTemplate)->isYear(tested)));
        return mIsPage;
    });
}

bool OutputTemplatePage::isNoPage(TextView text) const {
    return isOneOf(text, kNoPageMarkers) || (!text.empty() && text == mNoPageStr);
}

Text OutputTemplatePage::noteText() const {
    if (!mSupportsNotes || Note.empty() || Note == kNoNote) {
        return {};
    }
    const bool isSeveral = Note.find_first_of(kSignsOfSeveralNotes) != Text::npos;
    return concatenate({isSeveral ? kNotesPrefix : kNotePrefix, replaceAll(Note, kHyphen, mPageRangeSeparator)});
}

Text OutputTemplatePage::prefix() const {
    const bool isKnown = pageType >= 0 && pageType < static_cast<std::int32_t>(kLocatorTypes);
    const auto type = static_cast<std::size_t>(isKnown ? pageType : kPage);
    if (type == kPage && mInCitation && !mUsePagePrefixInCitations) {
        return {};
    }
    return isPlural() ? mPluralPrefixes.at(type) : mPrefixes.at(type);
}

void OutputTemplatePage::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"pageType", pageType);
    report.vbwReportVariable(u"mPages", mPages);
    report.vbwReportVariable(u"Note", Note);
    report.vbwReportVariable(u"mSupportsDOI", mSupportsDOI);
    report.vbwReportVariable(u"mSupportsNotes", mSupportsNotes);
    report.vbwReportVariable(u"mElideZero", mElideZero);
    report.vbwReportVariable(u"mInCitation", mInCitation);
    report.vbwReportVariable(u"mPrefixes", mPrefixes);
    report.vbwReportVariable(u"mPluralPrefixes", mPluralPrefixes);
    report.vbwReportVariable(u"mShortenedPage", mShortenedPage);
    report.vbwReportVariable(u"mUsePagePrefixInCitations", mUsePagePrefixInCitations);
    report.vbwReportVariable(u"mNoPageStr", mNoPageStr);
    report.vbwReportVariable(u"mPageRangeSeparator", mPageRangeSeparator);
    report.vbwReportVariable(u"mIsPage", mIsPage);
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
}

}  // namespace quorvel

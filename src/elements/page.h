#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/instrumented.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/year.h"

namespace quorvel {

/// What a style says of pages and other locators.
struct PageOptions {
    /// A DOI may stand in place of pages.
    bool supportsDOI = false;
    /// Note numbers are written.
    bool supportsNotes = false;
    /// A shortened last page loses a 0 in its last digit but one: "101–8".
    bool elideZero = false;
    /// "p. " and "pp. " stand before pages.
    bool usePagePrefix = false;
    /// They do so inside citations too.
    bool usePagePrefixInCitations = false;
    /// The last page of a range is shortened.
    bool shortenedPage = false;
    /// What stands for a missing page: "n. pag."
    Text noPageStr;
    /// The words before one and several chapters and paragraphs, without a blank behind.
    Text chapterPrefix;
    Text chapterPluralPrefix;
    Text paraPrefix;
    Text paraPluralPrefix;
    /// The abbreviations of the types 4 to 14 end in a full stop.
    bool addDotToAdvancedPrefix = false;
    /// Ranges are written with U+2013 instead of "-".
    bool useEnDashForPageRange = false;
};

inline constexpr std::tuple kPageOptions{
    Option{u"supportsDOI", &PageOptions::supportsDOI},
    Option{u"supportsNotes", &PageOptions::supportsNotes},
    Option{u"elideZero", &PageOptions::elideZero},
    Option{u"usePagePrefix", &PageOptions::usePagePrefix},
    Option{u"usePagePrefixInCitations", &PageOptions::usePagePrefixInCitations},
    Option{u"shortenedPage", &PageOptions::shortenedPage},
    Option{u"noPageStr", &PageOptions::noPageStr},
    Option{u"chapterPrefix", &PageOptions::chapterPrefix},
    Option{u"chapterPluralPrefix", &PageOptions::chapterPluralPrefix},
    Option{u"paraPrefix", &PageOptions::paraPrefix},
    Option{u"paraPluralPrefix", &PageOptions::paraPluralPrefix},
    Option{u"addDotToAdvancedPrefix", &PageOptions::addDotToAdvancedPrefix},
    Option{u"useEnDashForPageRange", &PageOptions::useEnDashForPageRange},
};

/// Where in a work something stands: a page, a range of pages or another locator, with the numbers of
/// notes (element type code 7).
///
///   accepted text                                  pageType           Page             Note
///   45; p. 45; xii; A1, A4                         0 page             45; xii; A1, A4
///   379-423; pp. 379–423; 321-28                   0 page             379-423; 321-328
///   45n3; 201nn16-17; 45, n. 3                     0 page             45; 201          3; 16-17
///   chap. 3; pars. 4-6; line 7; fig. 2b            1 to 12            3; 4-6; 7; 2b
///   Entry Kant; s.v. "Kant"                        13 entry           Kant; "Kant"
///   Def. 2b                                        14 definition      2b
///   n.p.; N. pag.; n. pag.; the style's own text   -1 no page
///   doi:10.1000/182                                0 page, a DOI in place of pages
///
/// The words and abbreviations are those of the table in page_words.cpp, in any letter case. A range
/// whose last page was shortened is read in full, so that it comes out right in every style.
///
/// Styles: MLA 7 3.5.6, 5.5.24, APA 6 6.19, 7.01, Turabian 7 17.1.7, 23.2.4, AMA 10 3.11, 3.12.
class OutputTemplatePage final : public Instrumented {
public:
    /// Values of `pageType`. They are part of the interface.
    enum LocatorType : std::int32_t {
        kNoPage = -1,
        kPage = 0,
        kChapter = 1,
        kParagraph = 2,
        kLine = 3,
        kDisc = 4,
        kFolio = 5,
        kSection = 6,
        kBook = 7,
        kPart = 8,
        kFigure = 9,
        kTable = 10,
        kMap = 11,
        kPlate = 12,
        kEntry = 13,
        kDefinition = 14,
    };
    static constexpr std::size_t kLocatorTypes = 15;

    /// The value of `Note` when there is none.
    static constexpr TextView kNoNote = u"__UNINITIALIZED__";

    /// One of LocatorType; a value above 14 or below -1 formats as a page.
    std::int32_t pageType = kPage;
    /// The numbers of the notes, as "3" or "3-4"; kNoNote, or empty, when there are none.
    Text Note = Text(kNoNote);

    /// Makes the year that tells years from pages. The sink is not used.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed page stays.
    void Reset(const PageOptions& options);

    /// A copy of the page and of the options but `elideZero`; it is not inside a citation.
    std::shared_ptr<OutputTemplatePage> Clone() const;

    /// The page or range in full, without prefix and note. Writing it changes neither type nor note.
    Text Page() const;
    void Page(TextView theVal);

    bool supportsDOI() const;
    bool supportsNotes() const;

    /// Reads the locator out of a finished reference's text.
    /// @param text is consumed and left empty
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    /// Reads the locator off the end of a longer text, as it ends a statement of a reprint.
    /// @param text loses the locator and what joins it to the rest
    /// @return False when the text ends in no locator; text and element stay as they are
    bool parseFromEnd(Text& text);

    /// Adds `toString` to the sink in plain font.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) const;

    /// The element is being written inside an in-text citation: pages have no prefix there unless the style
    /// keeps it; the other locators keep theirs.
    void inCitation(bool theVal);

    /// Whether the first page is digits, two or more, with one letter between them at most. A single
    /// digit is not, deliberately.
    bool isNumericPage() const;

    /// The locator as the style writes it; the same in notes and in shortened form. Nothing for an empty
    /// page.
    Text toString(bool isFootnote, bool shortenedVersion) const;

    /// Whether a text can be told to be a locator: it has a locator's word, a note or a mark of a missing
    /// page, or consists of page numbers that are no years. The element stays as it is.
    bool isPage(TextView text);

    TextView className() const override { return u"OutputTemplatePage"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void CloneImpl(OutputTemplatePage& clone) const;
    void addAdvancedPrefix(std::int32_t pageType, TextView prefix, bool addDotToAdvancedPrefix);
    void parsePage(TextView text);
    void parseAndRemoveNotes(Text& text);
    void parseAndRemovePageType(Text& text);
    bool isPlural() const;
    Text joinPages(bool shortenPage) const;
    bool isPageImpl(TextView text);

    bool isNoPage(TextView text) const;
    Text joinRange(TextView firstPage, TextView lastPage, bool shortenPage) const;
    Text noteText() const;
    Text prefix() const;

    std::vector<Text> mPages = std::vector<Text>(2);
    bool mSupportsDOI = false;
    bool mSupportsNotes = false;
    bool mElideZero = false;
    bool mInCitation = false;
    std::vector<Text> mPrefixes = std::vector<Text>(kLocatorTypes);
    std::vector<Text> mPluralPrefixes = std::vector<Text>(kLocatorTypes);
    bool mShortenedPage = false;
    bool mUsePagePrefixInCitations = false;
    Text mNoPageStr;
    Text mPageRangeSeparator = u"-";
    bool mIsPage = false;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
};

}  // namespace quorvel

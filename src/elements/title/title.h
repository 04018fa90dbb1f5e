#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/author/author.h"
#include "elements/title/case.h"

namespace quorvel {

/// What a style says of titles.
struct TitleOptions {
    /// The style code: -1 and 2 MLA, 0 AMA, 1 APA, 3 Turabian.
    std::int16_t format = 0;
    /// The style's author element, which writes the author of a work with prematter; the title keeps a copy.
    /// Empty: such an author is not written.
    std::shared_ptr<OutputTemplateAuthor> authorTemplate;
    /// Sentence case instead of heading case.
    bool sentenceCapitalization = false;
    /// The part behind a hyphen is capitalised in headings.
    bool capitalizeHyphenatedWord = false;
    /// What the form tells about the capitalisation in force; see `chapterAndWebsiteRule`.
    Text BookAndArticleRule;
    /// The first word behind ": " is capitalised in sentence case.
    bool capitalizeSubtitle = false;
    Text chapterAndWebsiteRule;
    /// Species and ships inside an italic title are roman.
    bool UnItalicizeSpeciesAndNamesOfShips = false;
    /// The title types that the style offers, separated by commas.
    Text titleTypes;
};

inline constexpr std::tuple kTitleOptions{
    Option{u"format", &TitleOptions::format},
    Option{u"authorTemplate", &TitleOptions::authorTemplate},
    Option{u"sentenceCapitalization", &TitleOptions::sentenceCapitalization},
    Option{u"capitalizeHyphenatedWord", &TitleOptions::capitalizeHyphenatedWord},
    Option{u"BookAndArticleRule", &TitleOptions::BookAndArticleRule},
    Option{u"capitalizeSubtitle", &TitleOptions::capitalizeSubtitle},
    Option{u"chapterAndWebsiteRule", &TitleOptions::chapterAndWebsiteRule},
    Option{u"UnItalicizeSpeciesAndNamesOfShips", &TitleOptions::UnItalicizeSpeciesAndNamesOfShips},
    Option{u"titleTypes", &TitleOptions::titleTypes},
};

/// The title of a work, of a part of a work, or of prematter (element type codes 1, 2 and 3).
///
///   accepted text                                     title           subtitle        kept beside
///   Guns, Germs, and Steel: The Fates of ...          Guns, ...       The Fates ...
///   “The Clash of Civilizations?”                     The Clash ...?
///   Le deuxième sexe [The second sex]                 Le deuxième sexe                translation
///   Drug allergy [letter]                             Drug allergy                    TitleType "Letter"
///   Introduction to Middlemarch, by George Eliot      Middlemarch                     TitleType, author
///
/// Titles are written in the capitalisation of the style (title_case.h); foreign and old ones stay as they
/// are. Works stand in italics, parts of works in quotation marks or plain, as the style has it.
///
/// Styles: MLA 7 3.6, 5.5.8, APA 6 4.15, 4.21, 6.29, Turabian 7 22.3, 17.1.2, AMA 10 3.9, 10.2.
class OutputTemplateTitle final : public AssembledElement {
public:
    /// Indexes of `value`. They are part of the interface.
    enum Value : std::int16_t { kTitle = 0, kSubtitle = 1, kTranslation = 2 };

    /// Keeps a clone of the sink for `toString`.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed title stays.
    void Reset(const TitleOptions& options);

    /// A copy of options and values.
    std::shared_ptr<OutputTemplateTitle> Clone() const;
    /// The same in heading capitalisation.
    std::shared_ptr<OutputTemplateTitle> CloneForHeadingCapitalization() const;

    /// Writes a foreword, introduction, preface or afterword with the work that it belongs to.
    void ToFormattedStringPrematter(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion);
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF = false);
    /// `Parse` without title type, then `toString`.
    Text formatStr(TextView text);

    /// Reads a title out of a finished reference.
    /// @param text is consumed
    /// @param secondaryStr the title type; empty: the one that the text shows
    void Parse(Text& text, TextView secondaryStr);
    /// Steps of it: the first takes a translation, or the text that tells a title type, in square brackets off
    /// the end; the second the word of prematter and the author of its work.
    void parseAndRemoveTranslation(Text& text);
    void parseAndRemovePrematter(Text& text, TextView secondaryStr);

    /// A piece by Value; any other index is reported and empty.
    Text value(std::int16_t index) const;
    void value(std::int16_t index, TextView theVal);
    Text TitleType() const;
    void TitleType(TextView value);
    /// The title is of a part of a work or of a web page.
    bool IsChapterOrWebsite() const;
    void IsChapterOrWebsite(bool value);
    bool IsSentenceCapitalization() const;
    /// The title types that the style offers, and those of them that are no prematter.
    std::vector<Text> subworkTypes() const;
    std::vector<Text> TitleSubtypes() const;
    void setTitleTypes(TextView values);
    /// Which pieces the form shows.
    bool UsesTitleType() const;
    bool UsesTitle() const;
    bool UsesSubtitle() const;
    /// Between the type in a reference and the caption in the form; an unknown text passes unchanged.
    Text TitleTypeToCaption(TextView type) const;
    Text CaptionToTitleType(TextView caption) const;
    std::vector<Text> prematterTypes() const;
    bool isPrematter(TextView theType) const;
    /// Whether the prematter that was read names the work that it belongs to.
    bool prematterHasTitle() const;

    /// The marks around the titles of parts, in citations, too; U+201C and U+201D at first. Titles that stand in them
    /// are read. `Reset` leaves them, and clones have them. Only behind U+201D do a full stop and a comma move inside.
    Text openingQuotationMark() const { return mOpeningQuotationMark; }
    void openingQuotationMark(TextView value) { mOpeningQuotationMark = value; }
    Text closingQuotationMark() const { return mClosingQuotationMark; }
    void closingQuotationMark(TextView value) { mClosingQuotationMark = value; }
    /// For the library's own use: a title in these marks.
    Text quoted(TextView title) const;

    /// The rule that the form tells: that of parts and web sites or that of books and articles.
    Text CapitalizationRule() const;
    /// A text in the style's capitalisation. Foreign, old and preformatted titles stay as they are.
    Text formatRule(TextView text) const;
    /// The words that `formatRule` changes, for the form to highlight.
    std::vector<titlecase::Range> changedWords(TextView text) const;
    /// A piece of a title in heading or sentence capitalisation, whatever the style and language.
    /// @param capitalizeFirstWord its first word gets a capital
    Text formatRuleImpl(TextView text, bool capitalizeFirstWord, bool isHeadingCapitalization) const;
    /// A text in heading capitalisation, whatever the style; whether it stands in it. The second does it to any
    /// text, the first only to English ones.
    Text InHeadingCapitalization(TextView text) const;
    Text headingCapitalization(TextView text) const;
    bool IsInHeadingCapitalization(TextView text) const;
    /// `formatRule` of a title; any other text loses nothing but what a sentence has no capital for.
    Text capitalizeAccordingToInternalRules(TextView text, bool isTitle) const;

    /// Tests on a word or text, as the capitalisation makes them.
    /// @param ignoreFormatCapitalizationRule as if the style had heading case
    bool shouldBeCapitalized(TextView word, bool ignoreFormatCapitalizationRule) const;
    /// A name particle: "van".
    bool isAlwaysLowercase(TextView word) const;
    /// Two capitals or more and no small letter.
    bool isAcronym(TextView word) const;
    /// Ends in "'s".
    bool wordIsPossessive(TextView word) const;
    /// A word with a capital, "de" and the prefix of "e-mail" excepted.
    Text capitalize(TextView word, bool doCapitalization) const;
    /// A hyphenated word with the capitals of a heading behind its hyphens.
    Text hyphenate(TextView word) const;
    bool isEnglishTitle(TextView text) const;
    /// Foreign by its spelling.
    bool isForeignTitle(TextView text) const;
    /// Foreign by its spelling, or in an old one.
    bool isOldTitle(TextView text) const;
    /// An address, or a text without small letters.
    bool isPreformattedTitle(TextView text) const;
    /// Ends in ".", "?", "!" or "'s".
    bool endsWithPunctuation(TextView text) const;

    /// Adds a text to the sink in italics, but what the names say in roman letters. The first does so only in a
    /// style that asks for it.
    void UnItalicizeSpeciesAndNamesOfShips(TextView text, const OutputSinkRef& formattedStr) const;
    void UnItalicizeSpecies(TextView text, const OutputSinkRef& formattedStr) const;
    void UnItalicizeShipNames(TextView text, const OutputSinkRef& formattedStr) const;

    TextView className() const override { return u"OutputTemplateTitle"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void CloneImpl(OutputTemplateTitle& clone) const;
    /// The note's form matters to prematter alone; shortened is the short title (title/short.h), without
    /// translation and describing text.
    void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    void layOutForFormat();
    titlecase::Rules rules() const;
    // The members of these names for a title that has been read.
    Text formatRule(titlecase::TitleText& title) const;
    Text inStyle(titlecase::TitleText& title) const;
    bool isEnglishTitle(const titlecase::TitleText& title) const;
    bool isOldTitle(const titlecase::TitleText& title) const;
    bool isRecased(const titlecase::TitleText& title) const;
    void formatRuleImpl(Text& text, const titlecase::TitleText& title, std::span<titlecase::Word> piece,
                        bool capitalizeFirstWord, bool isHeadingCapitalization) const;

    Text wholeTitle(bool shortenedVersion) const;
    bool isPart() const;
    // The words are those of the title as typed: they stand in the same places.
    void addTitle(const OutputSinkRef& formattedStr, Text& text, std::span<const titlecase::Word> words,
                  bool isPart) const;
    void addTitleImpl(const OutputSinkRef& formattedStr, Text& text, std::span<const titlecase::Word> words,
                      bool isPart) const;
    void UnItalicizeSpeciesAndNamesOfShips(Text& text, std::span<const titlecase::Word> words,
                                           std::vector<titlecase::Range>& roman) const;
    void UnItalicizeSpecies(Text& text, std::span<const titlecase::Word> words,
                            std::vector<titlecase::Range>& roman) const;
    void UnItalicizeShipNames(TextView text, std::span<const titlecase::Word> words,
                              std::vector<titlecase::Range>& roman) const;
    void movePunctuation(std::vector<Text>& items, TextView title);
    void ToFormattedStringPrematterImpl(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion);

    std::int16_t mFormat = 0;
    std::vector<Text> mValues = std::vector<Text>(3);
    Text mTitleType;
    bool mIsChapterOrWebsite = false;
    bool mCapitalizeSubtitle = true;
    bool mSentenceCapitalization = false;
    bool mCapitalizeHyphenatedWord = true;
    Text mBookAndArticleRule;
    Text mChapterAndWebsiteRule;
    bool mUnItalicizeSpeciesAndNamesOfShips = false;
    std::vector<Text> mSubworkTypes;
    bool mUsesTitleType = false;
    bool mUsesTitle = true;
    bool mUsesSubtitle = true;
    std::vector<Text> mTitleSubtypes;
    Text mPunctuation;
    std::vector<Text> mPrematterTypes;
    std::shared_ptr<OutputTemplateAuthor> mAuthorTemplate;
    // A clone of the host's sink, from which clones of the element are initialised.
    OutputSinkRef mFormattedStr;
    Text mOpeningQuotationMark = Text(1, kLeftDoubleQuotationMark);
    Text mClosingQuotationMark = Text(1, kRightDoubleQuotationMark);
};

}  // namespace quorvel

#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/edition/record.h"
#include "elements/page.h"
#include "elements/publisher.h"
#include "elements/year.h"

namespace quorvel {

/// What a style says of editions.
struct EditionOptions {
    /// The style code (style_codes.h).
    std::int32_t format = 0;
    /// The style's page element, which writes the pages of a first publication; the edition keeps a copy.
    /// Empty: pages are written as they were read.
    std::shared_ptr<OutputTemplatePage> pageTemplate;
};

inline constexpr std::tuple kEditionOptions{
    Option{u"format", &EditionOptions::format},
    Option{u"pageTemplate", &EditionOptions::pageTemplate},
};

/// The edition of a work: its number or name, or where it was published first (element type code 8).
///
///   accepted text                                                          EditionType
///   2nd ed.; 2; second edition; 2nd ed., rev.; (6th ed.)                   0 numbered
///   Rev. ed.; revised edition; Facsim. ed.; late; 2nd rev. ed.             1 named
///   1925; 1925. Reprint; 1925; repr.; Original work published 1925         2 reprint, year alone
///   1900. Introd. E. L. Doctorow; By Henry James. Daisy Miller. 1878       2 reprint, with a contributor
///   Rpt. of New York City Guide. 1939                                      2 reprint of a book (MLA)
///   Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884           2 reprint of a journal (MLA)
///   (Reprinted from Manual of child psychology, pp. 703-732, by P. H.      2 reprint of a chapter (APA)
///     Mussen, Ed., 1970, New York, NY: Wiley)
///   Originally published as Le passé d'une illusion (Paris: Robert         2 reprint (Turabian)
///     Laffont, 1995)
///   Trans. of Le passé d'une illusion. Paris: Robert Laffont, 1995         2 reprint of a foreign title (MLA)
///   Le passé d'une illusion (Paris: Robert Laffont, 1995)                  3 translation
///
/// A reprint or translation of which nothing can be told, and every text that no rule knows, is a named edition as it
/// stands.
///
/// Styles: MLA 7 5.5.10, 5.5.13, 5.5.16, APA 6 7.02, 7.03, Turabian 7 17.1.2, 17.1.3, 17.1.5, AMA 10 3.12.
class OutputTemplateEdition final : public AssembledElement {
public:
    /// Values of `EditionType`. They are part of the interface.
    enum EditionKind : std::int16_t {
        kNumbered = 0,
        kNamed = 1,
        kReprint = 2,
        kTranslation = 3,
    };

    OutputTemplateEdition();

    /// Makes the assembly, the year that recognises years and the page that stands until `Reset` brings another.
    /// @param formattedStr the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed edition stays.
    void Reset(const EditionOptions& options);

    /// The style code.
    std::int32_t format() const;
    bool isNumberedOrNamedEdition() const;

    /// What is known of the first publication; changes to it are changes to the element. Never empty.
    std::shared_ptr<quorvel::EditionBookChapterYear> EditionBookChapterYear() const;
    /// Empties that record.
    void clearEditionBookChapterYear();

    /// A first publication without title, as MLA has it: contributor, title of the chapter or article, year:
    /// "Introd. E. L. Doctorow. 1900".
    Text ToMLANonTitleString();

    /// The reference's author, as `Parse` was told it, who gives way to the contributor of the first publication.
    Text oldAuthor() const;

    /// The edition as the style writes it, as plain text.
    Text toString(bool isFootnote, bool shortenedVersion);

    /// Reads the edition out of a finished reference's text.
    /// @param text is consumed; what stands before or behind a whole statement of a first publication stays in it
    /// @param previousStr the author of the reference, where the host has it: a contributor of the same name is written
    ///        with the last name alone (MLA 7 5.5.8)
    void Parse(Text& text, TextView previousStr);

    /// The statement of a numbered edition, without " ed."; empty while the edition is of another type. Writing takes a
    /// form's text for it ("2", "2nd", "2nd ed."); the type stays.
    Text NumberedEdition() const;
    void NumberedEdition(TextView theVal);
    /// The same of a named edition: "Rev.".
    Text NamedEdition() const;
    void NamedEdition(TextView theVal);

    /// Reads a reprint in the manner of MLA or APA into the record; the type stays.
    /// @param text keeps what is not part of the statement
    void ParseReprintOrPaperbackEdition(Text& text);

    /// One of EditionKind; any other value formats as a numbered edition.
    std::int16_t EditionType() const;
    void EditionType(std::int16_t theVal);

    TextView className() const override { return u"OutputTemplateEdition"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;

    void Add(std::int16_t index, const std::vector<Text>& separators, bool isFormatted, bool isChecking);
    void Add2(std::int16_t index, bool isFormatted, const std::vector<Text>& separators);
    void registerSlots(std::span<const SlotRow> rows);
    void initTurabianOutputTemplate();
    void initAPAOutputTemplate();
    void initMLAOutputTemplate();

    // Recognition.
    std::int16_t getEditionType(TextView text);
    bool parseNumericEdition(TextView text);
    bool isYear(TextView text);
    bool takesEd(TextView statement);
    bool isEdition(TextView text, std::int16_t type) const;
    void addChapterYear(Text& text);
    void forgetPublication();
    void keepAsItStands(TextView text);
    Text joinWords(bool isBehindNumber);
    void noteWordsBesideNumber(TextView statement);

    // Reading a first publication.
    void ParseTurabianReprint(Text& text);
    void parseTranslationEdition(Text& text);
    bool ParseAndRemoveTranslationPublisher(Text& text);
    void parseMLAReprint(Text& text);
    void parseAndRemoveMLANumber(Text& text);
    void parseAndRemoveMLAVolume(Text& text);
    void parseAndRemoveMLAAuthor(Text& text);
    void parseAndRemoveMLAPartialReprintByAuthor(Text& text);
    bool isMLABook(TextView text) const;
    void parseAndRemoveMLAChapterOrArticleTitle(Text& text);
    void parseAndRemoveMLAPublisher(Text& text);
    void parseAndRemoveMLAPage(Text& text);
    void parseAndRemoveMLASpecialIssue(Text& text);
    void parseAndRemoveAPAReprint(Text& text);
    void parseAndRemoveAuthor(Text& text);
    void ParseAndRemovePublisher(Text& text);
    bool isPagePrefix(TextView word) const;
    void parseAndRemoveTitleAndPlace(Text& text);
    void ParseAndRemoveYearAPA(Text& text);
    void parseAndRemoveTurabianContributor(Text& text);
    void takeJournal(Text& text);
    void takeYearInFront(Text& text);
    void takePublisher(TextView publisher);
    void takeYear(TextView year);
    void noteLanguageOfTitle();

    // Writing a first publication.
    std::vector<bool> checkingArray() const;
    Text shortenedAuthor() const;
    Text toStringYearOnly(bool isFootnote);
    Text getReprintPrefix() const;
    void outputReprintPrefix(std::vector<Text>& items, bool hasTitle) const;
    Text getAPAPublisher();
    Text getMLAPublisher();
    Text getPageStr();
    Text numberedOrNamedText(bool isFootnote);
    Text yearText();
    Text publisherName();
    Text contributorText() const;
    bool isJournal() const;
    bool hasSource() const;
    bool hasPublication() const;
    bool isContributorAlone() const;
    void fillMLA(std::vector<Text>& items, const OutputSinkRef& title);
    void fillAPA(std::vector<Text>& items, const OutputSinkRef& title);
    void fillTurabian(std::vector<Text>& items, const OutputSinkRef& title);

    std::int16_t mEditionType = kNumbered;
    std::shared_ptr<quorvel::EditionBookChapterYear> mEditionBookChapterYear;
    NumberedEditionParts mNumberedEdition;
    Text mOldAuthor;
    std::int32_t mFormat = 0;
    Text mParsedNumberedOrNamedEdition;
    bool mAddEdToNumberedEdition = false;
    /// The statement gets " ed.": it is not complete as it stands, nor a text that no reader could use.
    bool mTakesEd = false;
    std::vector<Text> mTokens;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
    std::shared_ptr<OutputTemplatePage> mPageTemplate;
    std::shared_ptr<OutputTemplatePublisher> mPublisherTemplate;
    /// The contributor whom the text itself named as the author of what is reprinted.
    Text mNamedAuthor;
};

}  // namespace quorvel

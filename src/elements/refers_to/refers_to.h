#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/author/author.h"
#include "elements/newspaper.h"
#include "elements/page.h"
#include "elements/publisher.h"
#include "elements/refers_to/kinds.h"
#include "elements/style_codes.h"
#include "elements/year.h"

namespace quorvel {

/// What a style says of statements about other publications. The three elements are the style's own; this one keeps
/// copies. Without them persons are written as they were read, pages and publishers in full.
struct RefersToOptions {
    std::shared_ptr<OutputTemplateAuthor> authorTemplate;
    std::shared_ptr<OutputTemplatePage> pageTemplate;
    std::shared_ptr<OutputTemplatePublisher> publisherTemplate;
    /// A new or old series is "n.s." or "o.s.", instead of "ns" or "os".
    bool useDots = false;
    /// " ser." stands behind a series.
    bool useSer = false;
    /// "Trans. " stands before a translator.
    bool useTrans = false;
    /// " ed." stands behind an edition, instead of " edition".
    bool endsEditionWithEd = false;
    /// The style (elements/style_codes.h).
    std::int16_t format = stylecodes::kAma;
};

inline constexpr std::tuple kRefersToOptions{
    Option{u"authorTemplate", &RefersToOptions::authorTemplate},
    Option{u"pageTemplate", &RefersToOptions::pageTemplate},
    Option{u"publisherTemplate", &RefersToOptions::publisherTemplate},
    Option{u"useDots", &RefersToOptions::useDots},
    Option{u"useSer", &RefersToOptions::useSer},
    Option{u"useTrans", &RefersToOptions::useTrans},
    Option{u"endsEditionWithEd", &RefersToOptions::endsEditionWithEd},
    Option{u"format", &RefersToOptions::format},
};

/// What ties the work to another publication: an abstract, a correction, a retraction, a reprint, an article in parts,
/// a series of the periodical, a translator (element type code 12).
///
///   accepted text                                                            RefersToType     values
///   retracted in: Lancet. 2010;375(9713):445                                 Retracted in     Lancet, 2010, 375 ...
///   retraction of: Hwang WS, et al. In: Science. 2005;308(5729):1777-1783    Retraction of    Hwang WS, et al, Science
///   published correction appears in JAMA. 2004;292(16):1962                  Correction
///   duplicate publication of Lee K. Title. JAMA. 2004;291(20):2432-2440      Dupl. publcn     Lee K, Title, JAMA ...
///   abstract taken from JAMA. 2004;291(20):2432; Abstract. JAMA 291.20       Abstract in
///   abstract of Lee K. Title. JAMA. 2004;291(20):2432                        Abstract
///   [abstract]; Abstract; [ASM abstract D-36]                                Abstract         none; 2: ASM, 5: D-36
///   3rd ser.; n.s.; ns; old series                                           Series           3rd; n.s.; o.s.
///   Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006             Serialized       2, Diseases ...
///   52.4 (1981): 688-705; 53.1 (1981): 164-80                                Serial article   52, 4, 1981, 688-705 ...
///   1984. Rpt. in Essays. Ed. A. Lee. Vol. 2. Detroit: Gale, 1988. 18-27     Reprint          Essays, 1988, A. Lee ...
///   Trans. Jane Smith; translated by Jane Smith                              Translator       Jane Smith
///   late ed.; 2nd edition                                                    Edition          late; 2nd
///
/// Square brackets round the whole are taken off. Any other text is a regular reference, which stays as it is.
///
/// Styles: MLA 7 5.4.4, 5.4.8, 5.4.12, 5.5.6, APA 6 7.01, Turabian 7 17.2, 17.5, AMA 10 3.11.12-17.
class OutputTemplateRefersTo final : public AssembledElement {
public:
    static constexpr std::size_t kValues = 8;

    OutputTemplateRefersTo();

    /// Makes assemblies and elements, and lays out for code 0 without options.
    /// @param formattedString the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedString);

    /// The options of the style in force; the parsed statement stays.
    void Reset(const RefersToOptions& options);

    /// The kinds that the style offers, for references to newspapers or to others.
    void ResetFormatSettings(bool isNewspaper);
    /// Of a kind that is offered: its caption and eight captions of its values, empty where unused, with commas between
    /// them. An index beyond the kinds is reported and empty.
    Text settings(std::int16_t index) const;
    /// The captions of the kinds offered.
    /// @param secondaryText "Newspaper", in any letter case, when the reference is to one
    std::vector<Text> supportedTypes(TextView secondaryText);

    /// No slot has checking separators.
    std::vector<bool> checkingArray() const;
    /// Whether the statement has a journal written as AMA does: "JAMA. 2004;291(20):2432".
    bool isAMAJournalVol() const;
    /// Whether the date of the journal is a year and no more.
    bool AbstractDateIsYear() const;

    /// The values in the order of the captions of `settings`, from 0 to 7; the text of a kind without captions is value
    /// 0. Any other index is reported.
    Text value(std::int16_t index) const;
    void value(std::int16_t index, TextView theVal);

    /// The caption that a form shows for a stored type: "Regular" for "Refers to" and for "Text", under code 0
    /// "Abstract of" for "Abstract"; any other type is its own caption.
    Text TitleTypeToCaption(TextView theType) const;
    /// The reverse. "Regular" is "Refers to".
    Text CaptionToTitleType(TextView caption) const;

    /// Whether an abstract is known by a number in the proceedings of a society alone: "ASM abstract D-36".
    bool abstractPublishedInJournalProceedings() const;

    /// The whole output as plain text or as RTF; the same in notes and in shortened form, but for names in the manner
    /// of the style.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF);

    /// Reads the statement out of a finished reference's text.
    /// @param text keeps what stands before a reprint or a serial article
    /// @param secondaryText the kind, when the host keeps it apart; it decides where the text does not say it.
    ///        "Newspaper" when the reference is to one
    void Parse(Text& text, TextView secondaryText);

    /// The kind as it is stored: "Refers to" for "Regular", "Abstract" for "Abstract of", else its caption. An unknown
    /// one is written as a regular reference.
    Text RefersToType() const;
    void RefersToType(TextView theVal);

    TextView className() const override { return u"OutputTemplateRefersTo"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    std::shared_ptr<outputTemplate> assembly() const override;

    // Layouts: of reprints, of articles in parts, of journals, of serial articles.
    void Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);
    void Add2(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);
    void Add3(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);
    void Add4(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);
    void addTo(const std::shared_ptr<outputTemplate>& assembly, const Name& member, std::int16_t Index,
               bool isFormatted, bool isChecking, const std::vector<Text>& separators);
    void layOutAll();

    // Writing.
    void ToFormattedStringAMA(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion);
    void fillJournal(std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems);
    void fillReprint(std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems);
    void fillSerialized(std::vector<Text>& items);
    void fillSerialArticle(std::vector<Text>& items);
    void writeJournal(const OutputSinkRef& fragment, TextView journal);
    bool hasLayout() const;
    Text textAlone();
    Text seriesText() const;
    Text personsText(const Text& persons);
    Text pageText(const Text& page, bool isBehindIssue);
    Text publisherText(const Text& publisher);

    // Reading.
    void parseSerializedArticle(Text& text);
    void parseSeries(Text& text);
    void parseAbstract(Text& text);
    void parseAndRemoveAbstractPage(Text& text);
    void parseAndRemoveAbstractDate(Text& text);
    void parseAndRemoveAbstractVolAndNumber(Text& text);
    void parseAndRemoveAbstractYear(Text& text);
    void parseAndRemoveAbstractAuthor(Text& text);
    void parseAndRemoveAbstractTitle(Text& text);
    void parseNewspaperSerialized(Text& text);
    void parseAndRemovePart(Text& text);
    void parseAndRemoveBegun(Text& text);
    void parseReprint(Text& text);
    void ParseAndRemovePage(Text& text);
    Text expandPublisher(TextView text);
    void ParseAndRemovePublisher(Text& text);
    void parseAndRemoveVolume(Text& text);
    void parseAndRemoveEditor(Text& text);
    void parseAndRemoveOriginalDate(Text& text);
    void parseAs(TextView caption, Text& text);
    Text pageInFull(TextView text);
    void noteDate();

    const referstokinds::Kind& kind() const;
    Text valueAt(std::size_t index) const { return mValues.at(index); }
    bool hasValues() const;
    /// One of the values of a journal, counted from the journal.
    std::size_t journalValue(std::size_t offset) const;

    Text mRefersToType;
    // The row of that type.
    const referstokinds::Kind* mKind;
    std::vector<Text> mSupportedTypes;
    std::vector<Text> mSettings;
    std::int32_t mFormat = stylecodes::kAma;
    bool mSettingsInitialized = false;
    bool mIsNewspaper = false;
    bool mUseDots = false;
    bool mUseSer = false;
    bool mUseTrans = false;
    bool mAbstractDateIsYear = false;
    bool mAbstractUsesYear = false;
    Text mReprintPrefix;
    Text mEditionPostfix;
    std::vector<Text> mValues = std::vector<Text>(kValues);
    std::shared_ptr<OutputTemplateAuthor> mAuthorTemplate;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
    std::shared_ptr<OutputTemplateNewspaper> mNewspaperTemplate;
    std::shared_ptr<OutputTemplatePage> mPageTemplate;
    std::shared_ptr<OutputTemplatePublisher> mPublisherTemplate;
    std::shared_ptr<outputTemplate> mReprintTemplate;
    std::shared_ptr<outputTemplate> mSerializedTemplate;
    std::shared_ptr<outputTemplate> mAbstractTemplate;
    // An article's issues have slots of their own.
    std::shared_ptr<outputTemplate> mSerialArticleTemplate;
    OutputSinkRef mFormattedStr;
};

}  // namespace quorvel

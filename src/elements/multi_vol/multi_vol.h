#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/year.h"

namespace quorvel {

/// What a style says of volumes and series.
struct MultiVolOptions {
    /// What the style offers of a series and of a work in several volumes, by OutputTemplateMultiVol::Offer; a missing
    /// entry is not offered.
    std::vector<bool> theSupportSeriesOptions = std::vector<bool>(7, true);
    std::vector<bool> theSupportMultiVolumeOptions = std::vector<bool>(7, true);
    /// A general editor is called one: "Edwin H. Cady, gen. ed."
    bool SupportGeneralEditor = false;
    /// "Vol. 3" instead of "Vol 3".
    bool addPeriodToVol = false;
    /// What joins a volume to its title; empty: " of ".
    Text volTitleSeparator;
    /// An editor is joined by ", edited by " (in notes ", ed. ") instead of ". Ed. " (". ed. ").
    bool overrideDefaultEditorPrefix = false;
    /// "Vols. 3" instead of "3 vols."
    bool prefixedVols = false;
    /// "4 vols. to date." is written.
    bool supportVolsToDate = false;
    /// "Series" is written "Ser." in the title of a series.
    bool shortenSeriesInTitle = false;
};

inline constexpr std::tuple kMultiVolOptions{
    Option{u"theSupportSeriesOptions", &MultiVolOptions::theSupportSeriesOptions},
    Option{u"theSupportMultiVolumeOptions", &MultiVolOptions::theSupportMultiVolumeOptions},
    Option{u"SupportGeneralEditor", &MultiVolOptions::SupportGeneralEditor},
    Option{u"addPeriodToVol", &MultiVolOptions::addPeriodToVol},
    Option{u"volTitleSeparator", &MultiVolOptions::volTitleSeparator},
    Option{u"overrideDefaultEditorPrefix", &MultiVolOptions::overrideDefaultEditorPrefix},
    Option{u"prefixedVols", &MultiVolOptions::prefixedVols},
    Option{u"supportVolsToDate", &MultiVolOptions::supportVolsToDate},
    Option{u"shortenSeriesInTitle", &MultiVolOptions::shortenSeriesInTitle},
};

/// The volumes of a work, or the series in which a book appeared (element type code 10).
///
///   accepted text, a work in several volumes         values
///   Vol. 3; vol. III; Volume 3                       Volume 3
///   vols. 2-4; Vols. I and II                        Volume 2-4; I and II
///   Vol. 2, bk. 2, Title; Vol. 4. Title; vol 4: Title
///                                                    Volume, Number ("2"; "pt. 2" for a part), Title
///   3 vols.; Vols. 3; 4 vols. to date                Vols 3; 3; "4 to date"
///   Vol. 5 of Title. A. Lee, gen. ed. 32 vols. 1968-83
///                                                    Volume, Title, editor, Vols, Year
///   vers. 2.0                                        Volume, as it stands
///
///   accepted text, a series                          values
///   Bollingen Ser. 35; Studies; vol 260              Title (with "Series"), Volume
///   Records, vol. 1, no. 14                          Title, Volume 1, Number 14
///   Publications, 2nd ser., 106; Title, n.s., 39, pt. 3
///                                                    Title, SeriesType "2nd ser.", "n.s."; Volume; Number "pt. 3"
///   Women in Culture, edited by A. Lee               Title, editor
///
/// Any other text is a title, or a volume that is written as it stands when it tells of volumes in another way
/// ("2 vols. in 1").
///
/// Styles: MLA 7 5.5.14-5.5.15, APA 6 7.02, Turabian 7 17.1.4-17.1.5, AMA 10 3.12.
class OutputTemplateMultiVol final : public TwoAssembliesElement {
public:
    /// Indexes of the options of series and of works in several volumes. They are part of the interface.
    enum Offer : std::size_t {
        kTitle = 0,
        kEditor = 1,
        kVolume = 2,
        kNumber = 3,
        kVols = 4,
        kYear = 5,
        /// Old, new and numbered series; or several volumes at once with their text boxes.
        kMarker = 6,
    };

    /// Values of `EditorType`. They are part of the interface.
    enum EditorKind : std::int16_t {
        kGeneralEditor = 0,
        kSeriesEditor = 1,
        /// Of a volume or of the work, not called general editor.
        kPlainEditor = 2,
    };

    /// The caption of a work in several volumes; any other text is that of a series.
    static constexpr TextView kMultiVolCaption = u"Multi-vol.";

    /// A work in several volumes; otherwise a series.
    bool IsMultiVol = false;
    /// One of EditorKind; any other value is a plain editor.
    std::int16_t EditorType = kGeneralEditor;
    /// The volume, or several ("2-4"), or the number in the series. One that holds a blank is written as it stands,
    /// but for several volumes.
    Text Volume;
    /// The number beside the volume: of a book in a work, of the item in a series. Any other one has its word: "pt. 3".
    Text Number;
    Text editor;
    /// How many volumes there are: "3", "3 to date".
    Text Vols;
    /// The years over which they appeared.
    Text Year;
    /// "o.s.", "n.s." or a numbered series: "2nd ser."; anything else is none.
    Text SeriesType;
    /// "vol." in the list, too.
    bool LowerCaseVol = false;

    /// Makes the assemblies and lays them out for a style that offers everything.
    /// @param formattedStr the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedStr);

    std::vector<bool> SupportSeriesOptions() const;
    std::vector<bool> SupportMultiVolumeOptions() const;
    bool SupportConcurrentVolsAndTextBoxes() const;
    /// Whether the style offers anything of a series, of a work in several volumes.
    bool IsSeriesSupported() const;
    bool IsMultiVolSupported() const;
    bool IsSeriesTypeSupported() const;
    bool SupportGeneralEditor() const;

    /// The options of the style in force; the parsed values stay.
    void Reset(const MultiVolOptions& options);

    /// The whole output as plain text or as RTF. The title of a work in several volumes is italic, that of a series
    /// plain.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF = false);

    /// All values in one text as in the list, those that the style does not offer as well.
    Text toMergedString();

    /// The caption of the kind: "Multi-vol." or "Series".
    Text secondaryOutput() const;

    /// Reads the statement out of a finished reference's text. "Ser." is read "Series".
    /// @param text is consumed and left empty
    /// @param previousStr the caption: "Multi-vol.", or else it is a series
    /// @param keepOldValues what the text does not tell stays as it was
    void Parse(Text& text, TextView previousStr, bool keepOldValues = false);

    /// No full stop behind the volume word and ": " before a volume's title.
    bool isAMA() const;

    /// The title of the volumes or of the series; "Ser." becomes "Series" when it is written.
    Text Title() const;
    void Title(TextView theVal);

    /// The values for the output where `supportOptions` offers them, else nothing. The editor comes with what he is
    /// called, the years as the style writes them.
    Text getTitle(const std::vector<bool>& supportOptions) const;
    Text getEditor(const std::vector<bool>& supportOptions) const;
    Text getVolume(const std::vector<bool>& supportOptions) const;
    Text getNumber(const std::vector<bool>& supportOptions) const;
    Text getVols(const std::vector<bool>& supportOptions) const;
    Text getYear(const std::vector<bool>& supportOptions) const;

    /// Whether the statement is written as one of volumes: by its kind, unless the style offers one kind only.
    bool useMultiVol() const;

    /// One flag a slot: which of them are checked for the values as they are.
    std::vector<bool> seriesCheckingArray() const;
    std::vector<bool> multiVolCheckingArray() const;

    TextView className() const override { return u"OutputTemplateMultiVol"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    class Merged;

    /// Whether the options have this one, by Offer.
    static bool offers(const std::vector<bool>& options, std::size_t offer);

    bool usesSecond() const override { return !useMultiVol(); }
    std::vector<bool> checkedSlots(bool isFootnote) const override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    void fill(bool isMultiVol, bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
              const std::vector<bool>& offered);
    void fillMultiVol(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                      const std::vector<bool>& offered);
    void fillSeries(bool isFootnote, std::vector<Text>& items, const std::vector<bool>& offered);

    void seriesParseAndRemoveEditor(Text& text);
    bool knownShortForm(TextView text) const;
    bool isVolumeToken(TextView text) const;
    Text getVolumeWithPrefix(bool isFootnote) const;
    Text getSeriesType() const;
    Text getSeriesEditor() const;
    void seriesParseAndRemoveType(Text& text);
    void seriesParseAndRemoveVol(Text& text);
    void seriesParseAndRemoveVolImpl(Text& text);
    void seriesParseAndRemovePart(Text& text);
    void multiVolParseAndRemoveTitle(Text& text);
    void multiVolParseAndRemoveEditor(Text& text);
    bool parseGeneralEditor(Text& text);
    void multiVolParseAndRememoveNumber(Text& text);
    void multiVolParseAndRemoveVol(Text& text);
    std::int32_t RomanToArabic(TextView roman) const;
    void parseAndRemoveVols(Text& text);
    void parseAndRemoveYear(Text& text);
    bool determineIfAlwaysUseMultiVolTemplate() const;
    bool determineIfAlwaysUseSeriesTemplate() const;
    bool determineIfSeriesTypeSupported() const;

    void layOutStatements();
    void readMultiVol(Text& text);
    void readSeries(Text& text);
    void forgetValues();
    Text volumeNumber(TextView number) const;
    Text withStyleDash(TextView number) const;
    Text editorWord(bool isFootnote) const;

    MultiVolOptions mOptions;
    Text VOLBI;
    Text VOLFO;
    Text VOLBS;
    Text VOLFS;
    Text mTitle;
    /// The title is the volume's own ("Vol. 2, Title"), not that of the whole work ("Vol. 2 of Title").
    bool mTitleIsOwn = false;
    bool mAlwaysUseMultiVolTemplate = false;
    bool mAlwaysUseSeriesTemplate = false;
    bool mIsSeriesTypeSupported = false;
    bool mUsesEnDash = false;
    Text mEditorFootnotePrefix;
    Text mEditorBibliographyPrefix;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
};

}  // namespace quorvel

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

/// What a style says of the media of publications.
struct MediumOptions {
    /// The captions of the media that are offered, separated by commas. "Book or website" is always the first.
    Text Supports = u"CD,DVD,Digital file,e-book,Microform,Microfilm,Microfiche,Monograph,Videotape";
    /// "[CD-ROM]" instead of "CD-ROM".
    bool useSquareBrackets = false;
    /// Versions and discs are written.
    bool SupportsAdvancedCD = false;
    /// Microfilms and microfiches are called "Microform", too.
    bool shortenedMicroform = false;
};

inline constexpr std::tuple kMediumOptions{
    Option{u"Supports", &MediumOptions::Supports},
    Option{u"useSquareBrackets", &MediumOptions::useSquareBrackets},
    Option{u"SupportsAdvancedCD", &MediumOptions::SupportsAdvancedCD},
    Option{u"shortenedMicroform", &MediumOptions::shortenedMicroform},
};

/// The medium of a work that is not a printed book, with what is told of it (element type code 16).
///
///   accepted text                                    medium          values
///   CD-ROM; [CD-ROM]; CD; DVD-ROM; [DVD]             CD, DVD
///   CD-ROM. Version 2.0. Disc 3                      CD              version 2.0, disc 3
///   CD-ROM, version 2.0, 4 discs                     CD              version 2.0, disc 4 (several discs)
///   CD-ROM. ERIC. SilverPlatter. June 1993           CD              title, publisher, date
///   PDF file; Digital file                           Digital file    title PDF
///   Adobe PDF eBook; [Kindle version]; e-book        e-book          title Adobe PDF, Kindle
///   Microform. NewsBank: Welfare 12 (1990): fiche 1, grids A8-11
///                                                    Microform       title, version 12, date 1990, fiche 1, grids
///                                                    A8-11
///   Microfilm. Rel. 3; Microfiche, 3C12              Microfilm,      reel 3; fiche 3, row C, frame 12
///                                                    Microfiche
///   Monograph; Videotape                             Monograph, Videotape
///
/// Any other text is that of a book or website and is written as it stands, without brackets. The details of a CD that
/// a text joined by commas are written so again in the list; notes always have commas.
///
/// Styles: MLA 7 5.4.6, 5.7.17-18, APA 6 7.02, Turabian 7 17.5.8, AMA 10 3.15.
class OutputTemplateMedium final : public TwoAssembliesElement {
public:
    /// Indexes of `value`. They are part of the interface.
    enum Value : std::size_t {
        kVersion = 0,
        kDisc = 1,
        kReel = 2,
        kFiche = 3,
        kGrids = 4,
        kRow = 5,
        kFrame = 6,
        kTitle = 7,
        kPublisher = 8,
        kDate = 9,
    };
    static constexpr std::size_t kValues = 10;

    /// `disc` is how many discs there are, not which one it is.
    bool IsMultiDiscs = false;
    /// The index of the medium among the offered ones; 0, or any index that is none, is a book or website.
    std::int16_t PublicationMediumType = 0;

    /// Makes the assemblies and lays them out.
    /// @param formattedString the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedString);

    /// The options of the style in force; the parsed values stay. A medium that is no longer offered becomes a text.
    void Reset(const MediumOptions& options);

    /// The captions of the offered media, separated by commas, "Book or website" first.
    Text Supports() const;
    bool SupportsAdvancedCD() const;
    /// Whether the style tells discs of the medium.
    bool showDiscs() const;
    Text version() const;
    Text disc() const;
    /// The value as it was read, by Value; any other index is reported and empty.
    Text value(std::int16_t index) const;
    void value(std::int16_t index, TextView theVal);

    /// One flag a slot of the layout for CDs: checked where the details are sentences of their own, as in MLA's list.
    std::vector<bool> MLACheckingArray() const;

    /// A CD with its version and disc behind commas: "CD-ROM, version 2.0, disc 3".
    Text outputTurabianCD() const;

    /// "Disc 3", or "4 discs"; nothing without a disc.
    Text getDiscString() const;

    /// The whole output as plain text or as RTF.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF = false);

    /// Reads the medium out of a finished reference's text.
    /// @param text is consumed and left empty
    /// @param secondaryText the medium's caption; without one the text tells the medium
    void Parse(Text& text, TextView secondaryText);

    // The steps of `Parse`. Each sets the values that it finds and takes them off the text.
    void ParseMicrofilm(Text& text);
    void ParseCD(Text& text);
    void parseAndRemoveRowAndFrame(Text& text);
    void parseAndRemoveFiche(Text& text);
    void parseAndRemoveVersionAndTitle(Text& text);
    void ParseAndRemovePublisher(Text& text);
    void parseAndRemoveDiscs(Text& text);

    TextView className() const override { return u"OutputTemplateMedium"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool usesSecond() const override;
    std::vector<bool> checkedSlots(bool isFootnote) const override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    void fillCD(bool isFootnote, std::vector<Text>& items);
    void fillMicroform(bool isFootnote, std::vector<Text>& items);

    /// The offered captions of a list, "Book or website" first.
    std::vector<Text> processSupports(TextView supports) const;
    TextView caption() const;
    void setMedium(TextView caption);
    Text mediumText() const;
    Text digitalText() const;
    Text dateText() const;
    bool offersMicroform() const;
    void takeValue(Text& text, Value index);

    std::vector<Text> mSupports;
    MediumOptions mOptions;
    std::vector<Text> mValues = std::vector<Text>(kValues);
    /// The text of a book or website.
    Text mText;
    bool mJoinsByComma = false;
    std::shared_ptr<OutputTemplateYear> mOutputTemplateYear;
};

}  // namespace quorvel

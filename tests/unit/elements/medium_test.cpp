#include "elements/medium/medium.h"

#include <algorithm>

#include "support/element.h"
#include "support/recording_service.h"
#include "support/style_file.h"

namespace quorvel {
namespace {

using Medium = OutputTemplateMedium;

MediumOptions optionsOf(std::string_view style) {
    return test::StyleFile::of(style).options("medium", kMediumOptions);
}

Medium elementOf(std::string_view style) {
    return elementWith<Medium>(optionsOf(style));
}

/// The medium's caption, and the values that are not empty: "CD|version 2.0|discs 4".
Text valuesOf(const Medium& element) {
    constexpr TextView kNames[] = {u"version", u"disc",  u"reel",  u"fiche",     u"grids",
                                   u"row",     u"frame", u"title", u"publisher", u"date"};
    Text result = split(element.Supports(), u",").at(static_cast<std::size_t>(element.PublicationMediumType));
    for (std::size_t i = 0; i < std::size(kNames); ++i) {
        if (const Text value = element.value(static_cast<std::int16_t>(i)); !value.empty()) {
            result += concatenate({u"|", kNames[i], i == Medium::kDisc && element.IsMultiDiscs ? u"s " : u" ", value});
        }
    }
    return result;
}

TEST(Medium, ReadsWhatAnyStyleWroteAndWritesItInAll) {
    struct Case {
        TextView text;
        TextView values;
        TextView list;
        TextView note;
        TextView brackets;
    };
    constexpr Case kCases[] = {
        {u"CD-ROM", u"CD", u"CD-ROM", u"CD-ROM", u"[CD-ROM]"},
        {u"[CD-ROM].", u"CD", u"CD-ROM", u"CD-ROM", u"[CD-ROM]"},
        {u"cd", u"CD", u"CD-ROM", u"CD-ROM", u"[CD-ROM]"},
        {u"[DVD]", u"DVD", u"DVD-ROM", u"DVD-ROM", u"[DVD]"},
        {u"CD-ROM. Disc 2.", u"CD|disc 2", u"CD-ROM. Disc 2", u"CD-ROM, disc 2", u"[CD-ROM]"},
        {u"CD-ROM, 8 discs", u"CD|discs 8", u"CD-ROM, 8 discs", u"CD-ROM, 8 discs", u"[CD-ROM]"},
        {u"DVD-ROM, version 4.0, disc 3", u"DVD|version 4.0|disc 3", u"DVD-ROM, version 4.0, disc 3",
         u"DVD-ROM, version 4.0, disc 3", u"[DVD]"},
        {u"CD-ROM (version 2.0)", u"CD|version 2.0", u"CD-ROM. Version 2.0", u"CD-ROM, version 2.0", u"[CD-ROM]"},
        {u"DVD (2 discs)", u"DVD|discs 2", u"DVD-ROM. 2 discs", u"DVD-ROM, 2 discs", u"[DVD]"},
        {u"CD-ROM. Version 2.0. Disc 3", u"CD|version 2.0|disc 3", u"CD-ROM. Version 2.0. Disc 3",
         u"CD-ROM, version 2.0, disc 3", u"[CD-ROM]"},
        {u"CD-ROM. ERIC. SilverPlatter. June 1993", u"CD|title ERIC|publisher SilverPlatter|date June 1993",
         u"CD-ROM. ERIC. SilverPlatter. June 1993", u"CD-ROM, ERIC, SilverPlatter, June 1993",
         u"[CD-ROM]. ERIC. SilverPlatter. June 1993"},
        {u"CD-ROM. UMI-Proquest. Oct. 1993.", u"CD|publisher UMI-Proquest|date Oct. 1993",
         u"CD-ROM. UMI-Proquest. Oct. 1993", u"CD-ROM, UMI-Proquest, Oct. 1993", u"[CD-ROM]. UMI-Proquest. Oct. 1993"},
        {u"PDF file", u"Digital file|title PDF", u"PDF file", u"PDF file", u"[PDF file]"},
        {u"Digital file", u"Digital file", u"Digital file", u"Digital file", u"[Digital file]"},
        {u"Adobe PDF eBook", u"e-book|title Adobe PDF", u"Adobe PDF eBook", u"Adobe PDF eBook", u"[Adobe PDF version]"},
        {u"[Kindle DX version]", u"e-book|title Kindle DX", u"Kindle DX eBook", u"Kindle DX eBook",
         u"[Kindle DX version]"},
        {u"e-book", u"e-book", u"e-book", u"e-book", u"[e-book]"},
        {u"Microform. NewsBank: Welfare and Problems 12 (1990): fiche 1, grids A8-11.",
         u"Microform|version 12|fiche 1|grids A8-11|title NewsBank: Welfare and Problems|date 1990",
         u"Microform. NewsBank: Welfare and Problems 12 (1990): fiche 1, grids A8-11",
         u"Microform, NewsBank: Welfare and Problems 12 (1990): fiche 1, grids A8-11",
         u"[Microform]. NewsBank: Welfare and Problems 12 (1990): fiche 1, grids A8-11"},
        {u"Microfilm. Reel 3.", u"Microfilm|reel 3", u"Microfilm. Rel. 3", u"Microfilm, rel. 3",
         u"[Microfilm]. Rel. 3"},
        {u"Microfiche. Grids A8-11", u"Microfiche|grids A8-11", u"Microfiche. Grids A8-11", u"Microfiche, grids A8-11",
         u"[Microfiche]. Grids A8-11"},
        {u"Microfiche, 3C12", u"Microfiche|fiche 3|row C|frame 12", u"Microfiche. Fiche 3, row C, frame 12",
         u"Microfiche, 3C12", u"[Microfiche]. Fiche 3, row C, frame 12"},
        {u"Microfiche, p. 53, 3C12", u"Microfiche|fiche 3|row C|frame 12|title p. 53",
         u"Microfiche. p. 53. Fiche 3, row C, frame 12", u"Microfiche, p. 53, 3C12",
         u"[Microfiche]. p. 53. Fiche 3, row C, frame 12"},
        {u"Microform. Ann Arbor: UMI, 1990", u"Microform|title Ann Arbor: UMI, 1990",
         u"Microform. Ann Arbor: UMI, 1990", u"Microform, Ann Arbor: UMI, 1990", u"[Microform]. Ann Arbor: UMI, 1990"},
        {u"Monograph", u"Monograph", u"Monograph", u"Monograph", u"[Monograph]"},
        {u"Videotape. PBS", u"Videotape|title PBS", u"Videotape. PBS", u"Videotape, PBS", u"[Videotape]. PBS"},
        // Books, websites and what is none of the media.
        {u"Print", u"Book or website", u"Print", u"Print", u"Print"},
        {u"CDs and Cassettes", u"Book or website", u"CDs and Cassettes", u"CDs and Cassettes", u"CDs and Cassettes"},
        {u"Kindle version", u"Book or website", u"Kindle version", u"Kindle version", u"Kindle version"},
        {u"", u"Book or website", u"", u"", u""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Medium element = elementOf("mla");
        // Nothing of the text before remains.
        parseWhole(element, u"Microform. Before 9 (1906): 3C12, 4 discs");
        parseWhole(element, c.text);
        EXPECT_EQ(valuesOf(element), c.values);
        EXPECT_EQ(element.toString(false, false), c.list);
        EXPECT_EQ(element.toString(true, false), c.note);
        element.Reset(optionsOf("apa"));
        EXPECT_EQ(element.toString(false, false), c.brackets);
        // Styles in brackets leave out versions and discs; commas do not tell a title from a publisher.
        for (const TextView written : {c.list, c.note, c.brackets}) {
            const bool leavesOut = contains(written, u"[") && (contains(c.list, u"isc") || contains(c.list, u"ersion"));
            if (!leavesOut && !contains(written, u"ERIC,")) {
                Medium again = elementOf("turabian");
                parseWhole(again, written);
                EXPECT_EQ(valuesOf(again), c.values) << shown(written);
            }
        }
    }
}

TEST(Medium, TitlesAreItalic) {
    Medium element = elementOf("mla");
    const std::pair<TextView, TextView> cases[] = {
        {u"Microform. NewsBank: Welfare 12 (1990): fiche 1", u"NewsBank: Welfare"},
        {u"CD-ROM. ERIC. SilverPlatter. June 1993", u"ERIC"},
        {u"PDF file", u""},
    };
    for (const auto& [text, title] : cases) {
        parseWhole(element, text);
        const auto sink = std::make_shared<RecordingSink>();
        element.ToFormattedString(sink, false, false);
        Text italic;
        for (const RecordingSink::Phrase& phrase : sink->phrases()) {
            italic += phrase.font == OutputSink::kItalic ? phrase.text : Text();
        }
        EXPECT_EQ(italic, title) << shown(text);
    }
}

TEST(Medium, TakesItsCaptionFromTheHost) {
    Medium element = elementOf("turabian");
    parseWhole(element, u"Disc 2", u"DVD");
    EXPECT_EQ(element.toString(false, false), u"DVD-ROM. Disc 2");
    EXPECT_TRUE(element.showDiscs());
    parseWhole(element, u"CD-ROM", u"Book or website");
    EXPECT_EQ(valuesOf(element), u"Book or website");
    for (const TextView text : {u"Kindle", u"Kindle version"}) {
        parseWhole(element, text, u"e-book");
        EXPECT_EQ(element.toString(false, false), u"Kindle eBook");
    }
    EXPECT_FALSE(element.showDiscs());
    parseWhole(element, u"", u"Microfilm");
    EXPECT_EQ(element.toString(false, false), u"Microfilm");
    // The index is one of the list in force; what a style does not offer is written as a text.
    element.Reset({u"Videotape, Microfilm ,CD,CD", false, false, true});
    EXPECT_EQ(element.Supports(), u"Book or website,Videotape,Microfilm,CD");
    EXPECT_EQ(element.PublicationMediumType, 2);
    EXPECT_EQ(element.toString(false, false), u"Microform");
    parseWhole(element, u"CD-ROM. Disc 2");
    EXPECT_EQ(element.toString(false, false), u"CD");
    element.Reset({u"Videotape", true, false, false});
    EXPECT_EQ(element.toString(false, false), u"CD");
    parseWhole(element, u"CD-ROM. Disc 2");
    EXPECT_EQ(element.toString(false, false), u"CD-ROM. Disc 2");
    element.Reset({u"QVRefController,CD,DVD,Videotape", false, false, false});
    EXPECT_EQ(element.Supports(), u"Book or website,Videotape");
    element.Reset({u"QVRefController,CD,DVD,Videotape", false, true, false});
    EXPECT_EQ(element.Supports(), u"Book or website,CD,DVD,Videotape");
}

class MediumReports : public ReportingTest {};

TEST_F(MediumReports, ReportsWhatIsOutOfRange) {
    Medium element = elementOf("mla");
    parseWhole(element, u"Microform. NewsBank 12 (1990): fiche 1, grids A8-11");
    element.PublicationMediumType = 99;
    EXPECT_EQ(element.toString(false, false), u"");
    EXPECT_EQ(element.value(10), u"");
    EXPECT_EQ(service().errors().size(), 1U);
}

}  // namespace
}  // namespace quorvel

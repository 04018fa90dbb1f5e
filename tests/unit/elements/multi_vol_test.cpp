#include "elements/multi_vol/multi_vol.h"

#include "support/element.h"
#include "support/style_file.h"

namespace quorvel {
namespace {

using MultiVol = OutputTemplateMultiVol;

constexpr TextView kVolumes = MultiVol::kMultiVolCaption;
constexpr TextView kSeries = u"Series";

MultiVolOptions optionsOf(std::string_view style) {
    return test::StyleFile::of(style).options("multi-volume", kMultiVolOptions);
}

MultiVol elementOf(std::string_view style) {
    return elementWith<MultiVol>(optionsOf(style));
}

/// All values in one text: volume, number, title, editor, count, years, type.
Text valuesOf(const MultiVol& element) {
    return concatenate({element.Volume, u"|", element.Number, u"|", element.Title(), u"|", element.editor, u"|",
                        element.Vols, u"|", element.Year, u"|", element.SeriesType});
}

TEST(MultiVol, ReadsWhatAnyStyleWroteAndWritesItInAll) {
    struct Case {
        TextView text;
        TextView values;
        TextView mla;
        TextView apa;
        TextView turabian;
        TextView ama;
    };
    constexpr Case kVolumeCases[] = {
        {u"vol. III.", u"3||||||", u"Vol. 3", u"Vol. 3", u"Vol. 3", u"Vol 3"},
        {u"Vol. B", u"B||||||", u"Vol. B", u"Vol. B", u"Vol. B", u"Vol B"},
        {u"IV", u"4||||||", u"Vol. 4", u"Vol. 4", u"Vol. 4", u"Vol 4"},
        {u"(Vols. 1\u20136)", u"1-6||||||", u"Vols. 1-6", u"Vols. 1\u20136", u"Vols. 1\u20136", u"Vols 1-6"},
        {u"Vol. I and II", u"I and II||||||", u"Vols. I and II", u"Vols. I and II", u"Vols. I and II",
         u"Vols I and II"},
        {u"vols. 1, 3, and 5", u"1, 3, and 5||||||", u"Vols. 1, 3, and 5", u"Vols. 1, 3, and 5", u"Vols. 1, 3, and 5",
         u"Vols 1, 3, and 5"},
        {u"3 vols.", u"||||3||", u"3 vols.", u"Vols. 3", u"3 vols.", u"3 vols"},
        {u"Vols. 3", u"||||3||", u"3 vols.", u"Vols. 3", u"3 vols.", u"3 vols"},
        {u"8 volumes, 1955\u201392", u"||||8|1955-92|", u"8 vols. 1955-92", u"Vols. 8. 1955\u201392",
         u"8 vols. 1955\u201392", u"8 vols 1955-92"},
        {u"Vol. 5. 8 vols. 1955-92.", u"5||||8|1955-92|", u"Vol. 5. 8 vols. 1955-92", u"Vol. 5. Vols. 8. 1955\u201392",
         u"Vol. 5. 8 vols. 1955\u201392", u"Vol 5. 8 vols 1955-92"},
        {u"vol 2: Title", u"2||Title||||", u"Vol. 2 of Title", u"Vol. 2. Title", u"Vol. 2 of Title", u"Vol 2: Title"},
        {u"Vol. 1, pt. 2", u"1|pt. 2|||||", u"Vol. 1, pt. 2", u"Vol. 1, pt. 2", u"Vol. 1, pt. 2", u"Vol 1, pt. 2"},
        {u"Vol. 1 of Works, edited by A. Lee", u"1||Works|A. Lee|||", u"Vol. 1 of Works. Ed. A. Lee",
         u"Vol. 1. Works. Ed. A. Lee", u"Vol. 1 of Works, edited by A. Lee", u"Vol 1: Works, edited by A. Lee"},
        {u"The Works of John Dryden, vol. 9", u"9||The Works of John Dryden||||", u"Vol. 9 of The Works of John Dryden",
         u"Vol. 9. The Works of John Dryden", u"Vol. 9 of The Works of John Dryden",
         u"Vol 9: The Works of John Dryden"},
        {u"Vol. 2, bk. 1, of Cartography", u"2|1|Cartography||||", u"Vol. 2, bk. 1 of Cartography",
         u"Vol. 2, bk. 1. Cartography", u"Vol. 2, bk. 1 of Cartography", u"Vol 2, bk. 1: Cartography"},
        {u"Vol. 2: parts 1 and 2", u"2|pts. 1 and 2|||||", u"Vol. 2, pts. 1 and 2", u"Vol. 2, pts. 1 and 2",
         u"Vol. 2, pts. 1 and 2", u"Vol 2, pts. 1 and 2"},
        {u"5 vols. Eds. A. Lee and B. Ray.", u"|||A. Lee and B. Ray|5||", u"Ed. A. Lee and B. Ray. 5 vols.",
         u"Ed. A. Lee and B. Ray. Vols. 5", u"edited by A. Lee and B. Ray. 5 vols.",
         u"edited by A. Lee and B. Ray. 5 vols"},
        // Years behind a comma are the title's.
        {u"Vol. 5 of Criticism, 1750-1950", u"5||Criticism, 1750-1950||||", u"Vol. 5 of Criticism, 1750-1950",
         u"Vol. 5. Criticism, 1750-1950", u"Vol. 5 of Criticism, 1750-1950", u"Vol 5: Criticism, 1750-1950"},
        // Nothing tells where the title begins, or what is counted.
        {u"vers. 2.0", u"vers. 2.0||||||", u"vers. 2.0", u"vers. 2.0", u"vers. 2.0", u"vers. 2.0"},
        {u"vol. LNAI 1757", u"vol. LNAI 1757||||||", u"vol. LNAI 1757", u"vol. LNAI 1757", u"vol. LNAI 1757",
         u"vol. LNAI 1757"},
        {u"1 vol.", u"1 vol.||||||", u"1 vol.", u"1 vol.", u"1 vol.", u"1 vol."},
        {u"3rd ed., Vol. 2", u"||3rd ed., Vol. 2||||", u"3rd ed., Vol. 2", u"3rd ed., Vol. 2", u"3rd ed., Vol. 2",
         u"3rd ed., Vol. 2"},
        {u"4 vols. in 2", u"4 vols. in 2||||||", u"4 vols. in 2", u"4 vols. in 2", u"4 vols. in 2", u"4 vols. in 2"},
        {u"Encyclopedia of Volcanoes", u"||Encyclopedia of Volcanoes||||", u"Encyclopedia of Volcanoes",
         u"Encyclopedia of Volcanoes", u"Encyclopedia of Volcanoes", u"Encyclopedia of Volcanoes"},
        {u"", u"||||||", u"", u"", u"", u""},
    };
    constexpr Case kSeriesCases[] = {
        {u"Latin Amer. Lit. and Culture 7", u"7||Latin Amer. Lit. and Culture||||", u"Latin Amer. Lit. and Culture 7",
         u"Latin Amer. Lit. and Culture: Vol. 7", u"Latin Amer. Lit. and Culture 7",
         u"Latin Amer. Lit. and Culture; vol 7"},
        {u"Bollingen Ser. XXXV", u"35||Bollingen Series||||", u"Bollingen Ser. 35", u"Bollingen Series: Vol. 35",
         u"Bollingen Series 35", u"Bollingen Series; vol 35"},
        {u"Molecular Biology; vol 260", u"260||Molecular Biology||||", u"Molecular Biology 260",
         u"Molecular Biology: Vol. 260", u"Molecular Biology 260", u"Molecular Biology; vol 260"},
        {u"Vol. 8586 of Lecture Notes", u"8586||Lecture Notes||||", u"Lecture Notes 8586", u"Lecture Notes: Vol. 8586",
         u"Lecture Notes 8586", u"Lecture Notes; vol 8586"},
        {u"Records, vol. 1, no. 14", u"1|14|Records||||", u"Records, vol. 1, no. 14", u"Records: Vol. 1, No. 14",
         u"Records, vol. 1, no. 14", u"Records; vol 1, No. 14"},
        {u"Publications, second series, 106.", u"106||Publications, second series||||",
         u"Publications, second series 106", u"Publications, second series: Vol. 106",
         u"Publications, second series 106", u"Publications, second series; vol 106"},
        {u"Publications, 2nd ser., 106", u"106||Publications||||2nd ser.", u"Publications, 2nd ser., 106",
         u"Publications, 2nd ser.: Vol. 106", u"Publications, 2nd ser., 106", u"Publications, 2nd ser.; vol 106"},
        {u"Transactions, new ser., 39, pt. 3", u"39|pt. 3|Transactions||||n.s.", u"Transactions, n.s., 39, pt. 3",
         u"Transactions, n.s.: Vol. 39, pt. 3", u"Transactions, n.s., 39, pt. 3", u"Transactions, n.s.; vol 39, pt. 3"},
        {u"Studies, vol. 3, edited by A. Lee", u"3||Studies|A. Lee|||", u"Studies, edited by A. Lee, vol. 3",
         u"Studies, edited by A. Lee: Vol. 3", u"Studies, edited by A. Lee, vol. 3",
         u"Studies, edited by A. Lee; vol 3"},
        {u"Teaching Langs., Lits., and Cultures", u"||Teaching Langs., Lits., and Cultures||||",
         u"Teaching Langs., Lits., and Cultures", u"Teaching Langs., Lits., and Cultures",
         u"Teaching Langs., Lits., and Cultures", u"Teaching Langs., Lits., and Cultures"},
        {u"Pubs. in Mod. Philol. 12", u"12||Pubs. in Mod. Philol.||||", u"Pubs. in Mod. Philol. 12",
         u"Pubs. in Mod. Philol.: Vol. 12", u"Pubs. in Mod. Philol. 12", u"Pubs. in Mod. Philol.; vol 12"},
        {u"Health Statistics; series 10, no 221", u"|221|Health Statistics; series 10||||",
         u"Health Statistics; series 10, no. 221", u"Health Statistics; series 10, No. 221",
         u"Health Statistics; series 10, no. 221", u"Health Statistics; series 10, No. 221"},
        {u"Physiology; section 2, vol 3", u"3||Physiology; section 2||||", u"Physiology; section 2, vol. 3",
         u"Physiology; section 2: Vol. 3", u"Physiology; section 2, vol. 3", u"Physiology; section 2; vol 3"},
        {u"The Literature of the 1960s", u"||The Literature of the 1960s||||", u"The Literature of the 1960s",
         u"The Literature of the 1960s", u"The Literature of the 1960s", u"The Literature of the 1960s"},
        {u"Series A", u"||Series A||||", u"Ser. A", u"Series A", u"Series A", u"Series A"},
        {u"vol. 7", u"7||||||", u"Vol. 7", u"Vol. 7", u"Vol. 7", u"Vol 7"},
        {u"vol. 8586 LNCS", u"vol. 8586 LNCS||||||", u"vol. 8586 LNCS", u"vol. 8586 LNCS", u"vol. 8586 LNCS",
         u"vol. 8586 LNCS"},
    };
    const auto check = [](const Case& c, TextView caption) {
        SCOPED_TRACE(shown(c.text));
        MultiVol element = elementOf("apa");
        // Nothing of the text before remains.
        parseWhole(element, u"Vol. 9, bk. 8, Before, ed. B. Fore. 7 vols. 1906", kVolumes);
        parseWhole(element, c.text, caption);
        EXPECT_EQ(valuesOf(element), c.values);
        EXPECT_EQ(element.secondaryOutput(), caption);
        const TextView written[] = {c.mla, c.apa, c.turabian, c.ama};
        for (std::size_t i = 0; i < std::size(written); ++i) {
            SCOPED_TRACE(test::kStyles[i]);
            element.Reset(optionsOf(test::kStyles[i]));
            EXPECT_EQ(element.toString(false, false), written[i]);
            for (const bool isFootnote : {false, true}) {
                MultiVol again = elementOf("mla");
                parseWhole(again, element.toString(isFootnote, false), caption);
                EXPECT_EQ(valuesOf(again), c.values) << isFootnote;
            }
        }
    };
    for (const Case& c : kVolumeCases) check(c, kVolumes);
    for (const Case& c : kSeriesCases) check(c, kSeries);
}

// What a style does not write, or writes as another thing, is not read back: who is a general editor, "to date", and
// whether a title is the volume's own or the work's.
TEST(MultiVol, WritesWhatOnlySomeStylesTellApart) {
    MultiVol element = elementOf("mla");
    const auto written = [&](std::string_view style, bool isFootnote) {
        element.Reset(optionsOf(style));
        return element.toString(isFootnote, false);
    };
    parseWhole(element, u"Vol. 5 of Works of W. D. Howells. Edwin H. Cady, gen. ed. 32 vols. 1968-83", kVolumes);
    EXPECT_EQ(valuesOf(element), u"5||Works of W. D. Howells|Edwin H. Cady|32|1968-83|");
    EXPECT_EQ(element.EditorType, MultiVol::kGeneralEditor);
    EXPECT_EQ(written("mla", false), u"Vol. 5 of Works of W. D. Howells. Edwin H. Cady, gen. ed. 32 vols. 1968-83");
    EXPECT_EQ(written("apa", false), u"Vol. 5. Works of W. D. Howells. Ed. Edwin H. Cady. Vols. 32. 1968\u201383");
    EXPECT_EQ(written("turabian", true), u"vol. 5 of Works of W. D. Howells, ed. Edwin H. Cady. 32 vols. 1968\u201383");
    parseWhole(element, u"3 vols. Gen. ed. David Bevington.", kVolumes);
    EXPECT_EQ(element.EditorType, MultiVol::kGeneralEditor);
    EXPECT_EQ(written("mla", false), u"David Bevington, gen. ed. 3 vols.");
    parseWhole(element, u"3 vols. to date.", kVolumes);
    EXPECT_EQ(element.Vols, u"3 to date");
    EXPECT_EQ(written("mla", false), u"3 vols. to date.");
    EXPECT_EQ(written("turabian", false), u"3 vols.");
    EXPECT_EQ(written("apa", false), u"Vols. 3");
    parseWhole(element, u"Vol. 2, bk. 2, Cartography in Asia", kVolumes);
    EXPECT_EQ(written("turabian", true), u"vol. 2, bk. 2, Cartography in Asia");
    EXPECT_EQ(written("ama", false), u"Vol 2, bk. 2: Cartography in Asia");
    parseWhole(element, u"Vol. 1. Title. Ed. A. Lee", kVolumes);
    EXPECT_EQ(written("mla", true), u"vol. 1 of Title. ed. A. Lee");
    parseWhole(element, u"Women in Culture, ed. A. Lee", kSeries);
    EXPECT_EQ(written("turabian", false), u"Women in Culture, edited by A. Lee");
    EXPECT_EQ(written("turabian", true), u"Women in Culture, ed. A. Lee");
}

TEST(MultiVol, WritesTheFontsOfTitles) {
    MultiVol element = elementOf("mla");
    parseWhole(element, u"Vol. 3 of Peoples", kVolumes);
    EXPECT_EQ(element.toString(false, false, true), u"{\\f0 }{\\f0 Vol. 3}{\\f0  of }{\\f1 Peoples}{\\f0 }");
    parseWhole(element, u"Peoples 3", kSeries);
    EXPECT_EQ(element.toString(false, false, true), u"{\\f0 }{\\f0 Peoples}{\\f0  }{\\f0 3}{\\f0 }");
}

TEST(MultiVol, OffersWhatTheOptionsTell) {
    MultiVol element = elementOf("mla");
    MultiVolOptions options = optionsOf("mla");
    options.theSupportSeriesOptions = {};
    options.theSupportMultiVolumeOptions = {true, false, true};
    element.Reset(options);
    EXPECT_FALSE(element.IsSeriesSupported() || element.IsSeriesTypeSupported());
    EXPECT_TRUE(element.IsMultiVolSupported());
    EXPECT_FALSE(element.SupportConcurrentVolsAndTextBoxes());
    parseWhole(element, u"Works 3, edited by A. Lee, no. 4", kSeries);
    EXPECT_TRUE(element.useMultiVol());
    EXPECT_EQ(element.toString(false, false), u"Vol. 3 of Works");
    EXPECT_EQ(element.toMergedString(), u"Vol. 3, bk. 4 of Works. Ed. A. Lee");
    options.theSupportSeriesOptions = {true};
    options.theSupportMultiVolumeOptions = {};
    element.Reset(options);
    parseWhole(element, u"Vol. 3 of Works", kVolumes);
    EXPECT_FALSE(element.useMultiVol());
    EXPECT_EQ(element.toString(false, false), u"Works");
    EXPECT_EQ(element.getVolume({false, false, true}), u"3");
    EXPECT_EQ(element.getVolume({}), u"");
}

TEST(MultiVol, WritesWhatAFormSets) {
    MultiVol element = elementOf("mla");
    element.IsMultiVol = true;
    element.Volume = u"IV";
    element.Number = u"2";
    element.editor = u"A. Lee";
    element.Year = u"1968\u201383";
    element.Title(u"The Ser. Works");
    EXPECT_EQ(element.Title(), u"The Series Works");
    EXPECT_EQ(element.toString(false, false), u"Vol. IV, bk. 2 of The Series Works. A. Lee, gen. ed. 1968-83");
    element.LowerCaseVol = true;
    element.Vols = u"2 to date";
    EXPECT_EQ(element.toString(false, false),
              u"vol. IV, bk. 2 of The Series Works. A. Lee, gen. ed. 2 vols. to date. 1968-83");
    element.IsMultiVol = false;
    element.SeriesType = u"o.s.";
    element.Number.clear();
    element.editor.clear();
    element.Volume = u"B";
    EXPECT_EQ(element.toString(false, false), u"The Ser. Works, o.s., B");
    element.SeriesType = u"odd";
    EXPECT_EQ(element.toString(false, false), u"The Ser. Works, vol. B");
    // What a text does not tell may stay.
    Text text = u"Vol. 7";
    element.Parse(text, kVolumes, true);
    EXPECT_EQ(valuesOf(element), u"7||The Series Works||2 to date|1968\u201383|odd");
}

}  // namespace
}  // namespace quorvel

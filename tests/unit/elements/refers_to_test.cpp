#include "elements/refers_to/refers_to.h"

#include <map>

#include "support/element.h"
#include "support/recording_service.h"
#include "support/refers_to_preset.h"

namespace quorvel {
namespace {

using RefersTo = OutputTemplateRefersTo;

enum Style : std::size_t { kMla, kApa, kTurabian, kAma };

const RefersToOptions& optionsOf(std::size_t style) {
    static std::map<std::size_t, RefersToOptions> made;
    RefersToOptions& options = made[style];
    if (!options.authorTemplate) {
        options = test::refersToOptions(test::kStyles[style], std::make_shared<RecordingSink>());
    }
    return options;
}

RefersTo elementIn(std::size_t style) {
    return elementWith<RefersTo>(optionsOf(style));
}

Text valuesOf(const RefersTo& element) {
    Text joined;
    for (std::int16_t i = 0; i < 8; ++i) {
        joined += element.value(i) + u"|";
    }
    const std::size_t last = joined.find_last_not_of(u'|');
    return joined.substr(0, last == Text::npos ? 0 : last + 1);
}

struct Case {
    TextView text;
    TextView secondary;
    TextView type;
    TextView values;
    /// As the styles write it; an empty text is that of MLA.
    TextView mla, apa = {}, turabian = {}, ama = {};
    /// What comes back from a style is less: persons behind "et al.", the source of an abstract, the word that tells a
    /// translator or a series.
    bool losesSome = false;
};

// Texts as they stand in finished references. Every style reads what each one wrote, and writes the same of it.
constexpr Case kCases[] = {
    {u"[retracted in: Lancet. 2010;375(9713):445]", u"", u"Retracted in", u"Lancet|2010|375|9713|445",
     u"retracted in: Lancet 375.9713 (2010): 445", u"retracted in: Lancet. 2010;375(9713):445",
     u"retracted in: Lancet 375, no. 9713 (2010): 445", u"retracted in: Lancet. 2010;375(9713):445"},
    {u"retraction of: Hwang WS, Roh SI, Lee BC, et al. In: Science. 2005;308(5729):1777-1783", u"", u"Retraction of",
     u"Hwang WS, Roh SI, Lee BC, et al|Science|2005|308|5729|1777-1783",
     u"retraction of: W. S. Hwang et al. In: Science 308.5729 (2005): 1777-83",
     u"retraction of: Hwang, W. S., Roh, S. I., . . . Lee, B. C. In: Science. 2005;308(5729):1777\u20131783",
     u"retraction of: W. S. Hwang et al. In: Science 308, no. 5729 (2005): 1777\u201383",
     u"retraction of: Hwang WS, Roh SI, Lee BC, et al. In: Science. 2005;308(5729):1777-1783", true},
    {u"retracted in: Kennedy D. In: Science. 2006;311(5759):335", u"Retracted in", u"Retracted in",
     u"Kennedy D. In: Science|2006|311|5759|335", u"retracted in: D. Kennedy. In: Science 311.5759 (2006): 335",
     u"retracted in: Kennedy, D. In: Science. 2006;311(5759):335",
     u"retracted in: D. Kennedy. In: Science 311, no. 5759 (2006): 335",
     u"retracted in: Kennedy D. In: Science. 2006;311(5759):335"},
    {u"published correction appears in New York Times. January 3, 2004:A1", u"", u"Correction",
     u"New York Times|January 3, 2004|||A1", u"published correction appears in New York Times (3 Jan. 2004): A1",
     u"published correction appears in The New York Times. January 3, 2004:A1",
     u"published correction appears in New York Times (3 Jan. 2004): A1",
     u"published correction appears in New York Times. January 3, 2004:A1"},
    {u"published erratum appears in Ann Intern Med 2001;135:1114", u"", u"Correction", u"Ann Intern Med|2001|135||1114",
     u"published correction appears in Ann Intern Med 135 (2001): 1114",
     u"published correction appears in Ann Intern Med. 2001;135:1114",
     u"published correction appears in Ann Intern Med 135 (2001): 1114",
     u"published correction appears in Ann Intern Med. 2001;135:1114"},
    {u"Abstract obtained from Brain Research, 1999, 101(2), 137-152", u"", u"Abstract in",
     u"Brain Research|1999|101|2|137-152", u"abstract taken from Brain Research 101.2 (1999): 137-52",
     u"abstract taken from Brain Research. 1999;101(2):137\u2013152",
     u"abstract taken from Brain Research 101, no. 2 (1999): 137\u201352",
     u"abstract taken from Brain Research. 1999;101(2):137-152"},
    {u"duplicate publication of Lee K, Smith JA. Is it so? A trial. JAMA. 2004;291(20):2432-2440", u"", u"Dupl. publcn",
     u"Lee K, Smith JA|Is it so? A trial|JAMA|2004|291|20|2432-2440",
     u"duplicate publication of K. Lee and J. A. Smith. \u201CIs it so? A trial.\u201D JAMA 291.20 (2004): 2432-40",
     u"duplicate publication of Lee, K., & Smith, J. A. Is it so? A trial. JAMA. 2004;291(20):2432\u20132440",
     u"duplicate publication of K. Lee and J. A. Smith. \u201CIs it so? A trial.\u201D JAMA 291, no. 20 (2004): "
     u"2432\u201340",
     u"duplicate publication of Lee K, Smith JA. Is it so? A trial. JAMA. 2004;291(20):2432-2440"},
    {u"Abstract. Current Index to Journals in Education 26.3 (1994): item EJ 471 017", u"", u"Abstract in",
     u"Current Index to Journals in Education|1994|26|3|item EJ 471 017",
     u"abstract taken from Current Index to Journals in Education 26.3 (1994): item EJ 471 017",
     u"abstract taken from Current Index to Journals in Education. 1994;26(3):item EJ 471 017",
     u"abstract taken from Current Index to Journals in Education 26, no. 3 (1994): item EJ 471 017",
     u"abstract taken from Current Index to Journals in Education. 1994;26(3):item EJ 471 017"},
    {u"abstract of Lee K. Is it so? JAMA. 2004;291(20):2432", u"", u"Abstract",
     u"Lee K|Is it so?|JAMA|2004|291|20|2432", u"abstract of K. Lee. \u201CIs it so?\u201D JAMA 291.20 (2004): 2432",
     u"[abstract]", u"abstract", u"abstract of Lee K. Is it so? JAMA. 2004;291(20):2432", true},
    {u"[ASM abstract D-36]", u"", u"Abstract", u"||ASM|||D-36", u"ASM abstract D-36", u"[abstract]", u"abstract",
     u"ASM abstract D-36", true},
    {u"(Abstract)", u"", u"Abstract", u"", u"abstract", u"[abstract]", u"abstract", u"[abstract]"},
    {u"Abstract", u"", u"Abstract", u"", u"abstract", u"[abstract]", u"abstract", u"[abstract]"},
    {u"3rd series", u"", u"Series", u"3rd", u"3rd ser.", u"3rd", u"3rd ser.", u"3rd", true},
    {u"ser. 2", u"", u"Series", u"2nd", u"2nd ser.", u"2nd", u"2nd ser.", u"2nd", true},
    {u"2", u"Series", u"Series", u"2nd", u"2nd ser.", u"2nd", u"2nd ser.", u"2nd"},
    {u"new series", u"", u"Series", u"n.s.", u"ns", u"n.s.", u"n.s.", u"ns"},
    {u"os", u"", u"Series", u"o.s.", u"os", u"o.s.", u"o.s.", u"os"},
    {u"Pt. 2 of a series, Diseases on the Brink, begun June 25, 2006", u"", u"Serialized",
     u"2|Diseases on the Brink|June 25, 2006", u"Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006"},
    {u"part 3 of a series, begun 28 Sept. 2006", u"newspaper", u"Serialized", u"3||28 Sept. 2006",
     u"Pt. 3 of a series, begun 28 Sept. 2006"},
    {u"begun May 2006", u"Serialized", u"Serialized", u"||May 2006", u"begun May 2006"},
    {u"52.4 (1981): 688-705; 53.1 (1981): 164-80", u"", u"Serial article", u"52|4|1981|688-705|53|1|1981|164-180",
     u"52.4 (1981): 688-705; 53.1 (1981): 164-80", u"52.4 (1981): 688\u2013705; 53.1 (1981): 164\u2013180",
     u"52.4 (1981): 688\u2013705; 53.1 (1981): 164\u201380", u"52.4 (1981): 688-705; 53.1 (1981): 164-180"},
    {u"(1981); (1982)", u"", u"Serial article", u"||1981||||1982", u"(1981); (1982)"},
    {u"1984. Rpt. in Myth: Selected Essays, 1974-88. Ed. Robert D. Denham. Vol. 2. Charlottesville: UP of Virginia, "
     u"1990. 118-27",
     u"", u"Reprint",
     u"Myth: Selected Essays, 1974-88|1990|Robert D. Denham|2|Charlottesville|University Press of "
     u"Virginia|118-127|1984",
     u"1984. Rpt. in Myth: Selected Essays, 1974-88. Ed. Robert D. Denham. Vol. 2. Charlottesville: UP of Virginia, "
     u"1990. 118-27",
     u"1984. Rpt. in Myth: Selected Essays, 1974-88. Ed. Denham, R. D. Vol. 2. Charlottesville: University Press of "
     u"Virginia, 1990. pp. 118\u2013127",
     u"1984. Rpt. in Myth: Selected Essays, 1974-88. Ed. Robert D. Denham. Vol. 2. Charlottesville: University Press "
     u"of Virginia, 1990. 118\u201327",
     u"1984. Rpt. in Myth: Selected Essays, 1974-88. Ed. Denham RD. Vol. 2. Charlottesville: University Press of "
     u"Virginia, 1990. 118-127",
     true},
    {u"Rpt. in Essays: A Book. 18", u"", u"Reprint", u"Essays: A Book||||||18", u"Rpt. in Essays: A Book. 18",
     u"Rpt. in Essays: A Book. p. 18", u"", u""},
    {u"Reprinted in Essays. New York: Harcourt; London: Kegan, 1939", u"", u"Reprint",
     u"Essays|1939|||New York|Harcourt; London: Kegan", u"Rpt. in Essays. New York: Harcourt; London: Kegan, 1939"},
    {u"Rpt. in Essays. Ed. Stine, J. C. Vol. 2. 1998.", u"", u"Reprint", u"Essays|1998|Stine, J. C.|2",
     u"Rpt. in Essays. Ed. J. C. Stine. Vol. 2, 1998", u"Rpt. in Essays. Ed. Stine, J. C. Vol. 2, 1998", u"",
     u"Rpt. in Essays. Ed. Stine JC. Vol. 2, 1998"},
    {u"Essays, 1984", u"Reprint", u"Reprint", u"Essays|1984", u"Rpt. in Essays, 1984"},
    {u"translated by Jane Smith and Bob Lee", u"", u"Translator", u"Jane Smith and Bob Lee",
     u"Trans. Jane Smith and Bob Lee", u"Smith, J., & Lee, B.", u"Jane Smith and Bob Lee", u"Smith J, Lee B", true},
    {u"natl. ed.", u"", u"Edition", u"natl.", u"natl. ed.", u"natl. edition", u"", u"natl. edition"},
    {u"late ed.", u"", u"Edition", u"late", u"late ed.", u"late edition", u"", u"late edition"},
    // What is none of these stays as it is.
    {u"Trans. of Le pass\u00E9", u"", u"Refers to", u"Trans. of Le pass\u00E9", u"Trans. of Le pass\u00E9"},
    {u"[A text]: 3", u"Regular", u"Refers to", u"[A text]: 3", u"[A text]: 3"},
    {u"special issue", u"special issue", u"Special issue", u"special issue", u"special issue"},
    {u"retracted in:", u"", u"Refers to", u"retracted in:", u"retracted in:"},
    {u"", u"Abstract in", u"Abstract in", u"", u""},
};

TEST(RefersTo, ReadsAndWritesWhatEveryStyleHas) {
    const std::size_t styles[] = {kMla, kApa, kTurabian, kAma};
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        const auto written = [&](std::size_t style) {
            const TextView texts[] = {c.mla, c.apa, c.turabian, c.ama};
            return texts[style].empty() ? c.mla : texts[style];
        };
        for (const std::size_t style : styles) {
            RefersTo element = elementIn(style);
            EXPECT_EQ(parsed(element, c.text, c.secondary), u"");
            EXPECT_EQ(element.RefersToType(), c.type);
            EXPECT_EQ(valuesOf(element), c.values);
            EXPECT_EQ(element.toString(true, true, false), written(style)) << style;
            for (const std::size_t other : styles) {
                parsed(element, written(other), c.secondary);
                EXPECT_TRUE(c.losesSome || element.toString(false, false, false) == written(style)) << other << style;
            }
        }
    }
}

// AMA 10 3.11: any part may be missing, and is read again as what it was.
TEST(RefersTo, JournalsHaveTheirPartsInEveryCombination) {
    const TextView parts[] = {u"JAMA", u"2004", u"291", u"20", u"2432"};
    for (const std::size_t style : {kAma, kMla, kTurabian}) {
        for (std::size_t present = 1; present < 32; ++present) {
            RefersTo element = elementIn(style);
            element.RefersToType(u"Correction");
            for (std::size_t i = 0; i < 5; ++i) {
                element.value(static_cast<std::int16_t>(i), (present & (1U << i)) != 0 ? parts[i] : u"");
            }
            const Text values = valuesOf(element);
            const Text written = element.toString(false, false, false);
            parsed(element, written, u"");
            // A page alone, or a volume alone, is a number like any other.
            const bool isNumberAlone = present == 16 || present == 4 || present == 5;
            EXPECT_TRUE(isNumberAlone || valuesOf(element) == values) << shown(written);
        }
    }
    RefersTo element = elementIn(kAma);
    element.RefersToType(u"Abstract of");
    EXPECT_EQ(element.RefersToType(), u"Abstract");
    for (std::int16_t i = 2; i < 7; ++i) {
        element.value(i, parts[i - 2]);
    }
    EXPECT_EQ(element.toString(false, false, false), u"abstract of JAMA. 2004;291(20):2432");
    EXPECT_TRUE(element.isAMAJournalVol());
    EXPECT_TRUE(element.AbstractDateIsYear());
    EXPECT_FALSE(element.abstractPublishedInJournalProceedings());
}

TEST(RefersTo, KeepsInTheTextWhatBelongsToOtherElements) {
    RefersTo element = elementIn(kMla);
    EXPECT_EQ(parsed(element, u"PMLA 99.5 (1984): 990-95. Rpt. in Myth. 18-27", u""), u"PMLA 99.5 (1984): 990-95.");
    EXPECT_EQ(valuesOf(element), u"Myth||||||18-27");
    EXPECT_EQ(parsed(element, u"Rpt. in Myth. 18-27. Print.", u""), u"Print.");
    EXPECT_EQ(valuesOf(element), u"Myth||||||18-27");
    EXPECT_EQ(parsed(element, u"American Literature 52.4 (1981): 688; 53.1 (1981): 164; 53.2 (1981): 348-59",
                     u"Serial article"),
              u"American Literature");
    EXPECT_EQ(valuesOf(element), u"52|4|1981|688|53|1|1981|164; 53.2 (1981): 348-59");
}

TEST(RefersTo, OffersTheKindsOfEachStyle) {
    constexpr TextView kOffered[][3] = {
        {u"-1", u"", u"Regular"},
        {u"0", u"", u"Regular|Abstract in|Abstract of|Correction|Dupl. publcn|Retracted in|Retraction of"},
        {u"1", u"newspaper", u"Regular|Abstract"},
        {u"2", u"", u"Regular|Abstract in|Reprint|Serial article|Series|Translator"},
        {u"2", u"NEWSPAPER", u"Serialized"},
        {u"3", u"Reprint", u"Regular|Abstract"},
        {u"9", u"", u"Regular"},
    };
    RefersTo element = elementIn(kMla);
    for (const auto& [code, secondary, kinds] : kOffered) {
        RefersToOptions options;
        options.format = static_cast<std::int16_t>(std::stoi(std::string(code.begin(), code.end())));
        element.Reset(options);
        EXPECT_EQ(join(element.supportedTypes(secondary), u"|"), kinds) << shown(code);
    }
    element.Reset(optionsOf(kMla));
    EXPECT_EQ(element.supportedTypes(u"").size(), 6U);
    EXPECT_EQ(element.settings(0), u"Regular,,,,,,,,");
    EXPECT_EQ(element.settings(2), u"Reprint,Title,Year,Editor,Volume,Place,Publisher,Page Number,Original Pub. Year");
    EXPECT_EQ(element.settings(6), u"");
    EXPECT_EQ(element.TitleTypeToCaption(u"Abstract"), u"Abstract");
    EXPECT_EQ(element.CaptionToTitleType(u"Regular"), u"Refers to");
    element.Reset(optionsOf(kAma));
    EXPECT_EQ(element.TitleTypeToCaption(u"Abstract"), u"Abstract of");
    EXPECT_EQ(element.CaptionToTitleType(u"Abstract of"), u"Abstract");
}

class RefersToReports : public ReportingTest {};

TEST_F(RefersToReports, WritesTitlesInItalicsAndReportsWhatIsOutOfRange) {
    using Phrase = RecordingSink::Phrase;
    RefersTo element = elementIn(kAma);
    parsed(element, u"retracted in: Lancet. 2010", u"");
    const auto sink = std::make_shared<RecordingSink>();
    element.ToFormattedString(sink, false, false);
    const std::vector<Phrase> expected = {{u"", 0},   {u"retracted in: ", 0}, {u"", 0}, {u"Lancet", 1},
                                          {u". ", 0}, {u"2010", 0},           {u"", 0}};
    EXPECT_EQ(sink->phrases(), expected);
    element.value(8, u"none");
    EXPECT_EQ(element.value(-1), u"");
    EXPECT_EQ(service().errors().size(), 2U);
    // Elements that a style does not have leave texts as they were read.
    element.Reset({});
    parsed(element, u"Rpt. in Essays. Ed. Lee A, Roe B. Oxford: Oxford UP, 1939. 112-15", u"");
    EXPECT_EQ(element.toString(false, false, true).find(u"Lee A, Roe B") != Text::npos, true);
    EXPECT_EQ(element.toString(false, false, false),
              u"Rpt. in Essays. Ed. Lee A, Roe B. Oxford: Oxford University Press, 1939. 112-115");
}

}  // namespace
}  // namespace quorvel

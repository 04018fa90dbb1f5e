#include "elements/edition/edition.h"

#include "elements/style_codes.h"
#include "support/element.h"
#include "support/recording_service.h"

namespace quorvel {
namespace {

using Edition = OutputTemplateEdition;
using Record = EditionBookChapterYear;

constexpr std::int32_t kMlaWithoutEd = stylecodes::kMlaWithoutEd;
constexpr std::int32_t kAma = stylecodes::kAma;
constexpr std::int32_t kApa = stylecodes::kApa;
constexpr std::int32_t kMla = stylecodes::kMla;
constexpr std::int32_t kTurabian = stylecodes::kTurabian;

std::shared_ptr<OutputTemplatePage> pageOf(std::int32_t style) {
    auto page = std::make_shared<OutputTemplatePage>();
    page->Initialize(nullptr);
    page->Reset({.elideZero = style == kTurabian,
                 .usePagePrefix = style == kApa,
                 .shortenedPage = style != kApa,
                 .noPageStr = u"n.p.",
                 .chapterPrefix = u"chap.",
                 .chapterPluralPrefix = u"chaps.",
                 .paraPrefix = u"par.",
                 .paraPluralPrefix = u"pars.",
                 .useEnDashForPageRange = style == kApa || style == kTurabian});
    return page;
}

Edition editionOf(std::int32_t style) {
    return elementWith<Edition>(EditionOptions{style, pageOf(style)});
}

/// The record in one line; what is empty is not shown.
Text valuesOf(const Edition& edition) {
    const Record& record = *edition.EditionBookChapterYear();
    Text values;
    const auto add = [&](TextView name, TextView value) {
        if (!value.empty()) {
            values.append(values.empty() ? u"" : u" | ").append(name).append(value);
        }
    };
    add(u"", record.TitleType == Record::kForeignTitle ? u"foreign" : u"");
    add(u"", record.isReprintBook ? u"book" : u"");
    add(u"", record.isSpecialIssue ? u"special" : u"");
    add(u"chapter ", record.chapterOrArticleTitle);
    add(u"title ", record.Title);
    add(record.AuthorType + u" ", record.author);
    add(u"place ", record.PlaceOrVolume);
    add(u"publisher ", record.PublisherOrNumber);
    add(u"year ", record.Year);
    add(u"pages ", record.Page);
    return values;
}

TEST(Edition, ReadsNumbersAndNames) {
    struct Case {
        TextView text;
        std::int16_t type;
        TextView list;
        TextView note;
    };
    constexpr Case kCases[] = {
        {u"2nd ed.", 0, u"2nd ed.", u"2nd ed."},
        {u" 2nd ed ", 0, u"2nd ed.", u"2nd ed."},
        {u"2ND EDITION", 0, u"2nd ed.", u"2nd ed."},
        {u"11", 0, u"11th ed.", u"11th ed."},
        {u"22nd", 0, u"22nd ed.", u"22nd ed."},
        {u"3d ed.", 0, u"3rd ed.", u"3rd ed."},
        {u"2. ed.", 0, u"2nd ed.", u"2nd ed."},
        {u"Second edition", 0, u"2nd ed.", u"2nd ed."},
        {u"tenth ed", 0, u"10th ed.", u"10th ed."},
        {u"twelfth edition", 0, u"12th ed.", u"12th ed."},
        {u"twenty-first edition", 0, u"21st ed.", u"21st ed."},
        {u"Thirtieth ed.", 0, u"30th ed.", u"30th ed."},
        {u"(6th ed.)", 0, u"6th ed.", u"6th ed."},
        {u"(4th ed., text rev.)", 1, u"4th ed., text rev.", u"4th ed., text rev."},
        {u"2nd, revised edition", 1, u"2nd, rev. ed.", u"2nd, rev. ed."},
        {u"Rev. by Jane Smith", 1, u"Rev. by Jane Smith", u"rev. by Jane Smith"},
        {u"2nd ed. in 3 vols.", 0, u"2nd ed. in 3 vols.", u"2nd ed. in 3 vols."},
        {u"2008 ed.", 0, u"2008 ed.", u"2008 ed."},
        {u"1990 Edition", 0, u"1990 ed.", u"1990 ed."},
        {u"1911. Ed. A. Lee", 1, u"1911. Ed. A. Lee", u"1911. Ed. A. Lee"},
        {u"", 0, u"", u""},
        {u"Rev. ed.", 1, u"Rev. ed.", u"rev. ed."},
        {u"Rev.", 1, u"Rev. ed.", u"rev. ed."},
        {u"revised abridged", 1, u"Rev. Abr. ed.", u"rev. Abr. ed."},
        {u"Revised and updated edition", 1, u"Rev. and updated ed.", u"rev. and updated ed."},
        {u"Revised.", 1, u"Rev. ed.", u"rev. ed."},
        {u"2nd rev. ed.", 1, u"2nd rev. ed.", u"2nd rev. ed."},
        {u"Second revised edition", 1, u"2nd rev. ed.", u"2nd rev. ed."},
        {u"2nd ed., revised", 0, u"2nd ed., rev.", u"2nd ed., rev."},
        {u"4th ed., text rev.", 1, u"4th ed., text rev.", u"4th ed., text rev."},
        {u"1st American ed.", 1, u"1st American ed.", u"1st American ed."},
        {u"1st ed., New York", 0, u"1st ed., New York", u"1st ed., New York"},
        {u"facsimile", 1, u"Facsim. ed.", u"Facsim. ed."},
        {u"Facsim. ed. Gen. ed. John Smith", 1, u"Facsim. ed. Gen. ed. John Smith", u"Facsim. ed. Gen. ed. John Smith"},
        {u"1790. Facsim. ed.", 1, u"Facsim. 1790 ed.", u"Facsim. 1790 ed."},
        {u"Facsimile of the 1609 edition", 1, u"Facsim. 1609 ed.", u"Facsim. 1609 ed."},
        {u"Facsim. 1790 ed.", 1, u"Facsim. 1790 ed.", u"Facsim. 1790 ed."},
        {u"(New ed.)", 1, u"New ed.", u"New ed."},
        {u"late", 1, u"late ed.", u"late ed."},
        {u"Midwest edition", 1, u"Midwest ed.", u"Midwest ed."},
        {u"Large print ed.", 1, u"Large print ed.", u"Large print ed."},
        {u"Reprint ed.", 1, u"Reprint ed.", u"Reprint ed."},
        // Statements that take no "ed.".
        {u"King James Vers.", 1, u"King James Vers.", u"King James Vers."},
        {u"6. print.", 1, u"6. print.", u"6. print."},
        {u"2. Aufl.", 1, u"2. Aufl.", u"2. Aufl."},
        {u"Kindle version", 1, u"Kindle version", u"Kindle version"},
        {u"\u7B2C2\u7248", 1, u"\u7B2C2\u7248", u"\u7B2C2\u7248"},
        {u"Publication No. 12", 1, u"Publication No. 12", u"Publication No. 12"},
        // What a statement of a first publication is not.
        {u"2nd ed. Introd. E. L. Doctorow", 0, u"2nd ed. Introd. E. L. Doctorow", u"2nd ed. Introd. E. L. Doctorow"},
        {u"4th ed. (1990)", 0, u"4th ed. (1990)", u"4th ed. (1990)"},
        {u"Kindle ed. (illustrated)", 1, u"Kindle ed. (illustrated)", u"Kindle ed. (illustrated)"},
        {u"Rpt. in Critics. Ed. A. Lee. 1990", 1, u"Rpt. in Critics. Ed. A. Lee. 1990",
         u"Rpt. in Critics. Ed. A. Lee. 1990"},
        {u"Rpt. of", 1, u"Rpt. of", u"Rpt. of"},
        {u"(((", 1, u"(((", u"((("},
        {u"ed.", 1, u"ed.", u"ed."},
    };
    for (const std::int32_t style : {kMla, kApa, kTurabian, kAma}) {
        Edition edition = editionOf(style);
        for (const Case& c : kCases) {
            SCOPED_TRACE(shown(c.text));
            formatted(edition, u"Rpt. of Guide. Ed. A. Lee. Paris: Seuil, 1939");
            EXPECT_EQ(parsed(edition, c.text), u"");
            EXPECT_EQ(edition.EditionType(), c.type);
            EXPECT_TRUE(edition.isNumberedOrNamedEdition());
            EXPECT_EQ(edition.EditionBookChapterYear()->Title, u"");
            EXPECT_EQ(edition.toString(false, false), c.list);
            EXPECT_EQ(edition.toString(true, true), c.note);
            EXPECT_EQ((c.type == 0 ? edition.NamedEdition() : edition.NumberedEdition()), u"");
            EXPECT_EQ(formatted(edition, c.list), c.list);
        }
    }
    Edition edition = editionOf(kMlaWithoutEd);
    EXPECT_EQ(formatted(edition, u"2nd ed."), u"2nd");
    EXPECT_EQ(formatted(edition, u"Rev. ed."), u"Rev.");
}

TEST(Edition, TakesTheTextsOfAForm) {
    Edition edition = editionOf(kTurabian);
    edition.NumberedEdition(u"21");
    EXPECT_EQ(edition.toString(false, false), u"21st ed.");
    EXPECT_EQ(edition.NumberedEdition(), u"21st");
    edition.NumberedEdition(u"2nd ed.");
    EXPECT_EQ(edition.NumberedEdition(), u"2nd");
    edition.EditionType(Edition::kNamed);
    edition.NamedEdition(u"revised abridged ");
    EXPECT_EQ(edition.NamedEdition(), u"Rev. Abr.");
    EXPECT_EQ(edition.toString(true, false), u"rev. Abr. ed.");
    // A year is no edition's name.
    edition.NamedEdition(u"1925");
    EXPECT_EQ(edition.toString(true, false), u"1925");
    edition.EditionType(-1);
    EXPECT_EQ(edition.toString(true, false), u"1925");
    EXPECT_FALSE(edition.isNumberedOrNamedEdition());
}

/// A statement as it stands in some finished reference, and how each style has it.
struct Statement {
    TextView text;
    TextView values;
    TextView mla;
    TextView apa;
    TextView turabian;
    /// What a style does not write, and so does not read again.
    bool losesInApa = false;
    bool losesInTurabian = false;
};

constexpr Statement kStatements[] = {
    {u"1925", u"year 1925", u"1925", u"(Original work published 1925)", u"1925. Reprint"},
    {u"1925; repr.", u"year 1925", u"1925", u"(Original work published 1925)", u"1925. Reprint"},
    {u"(Original work published 1814\u201315)", u"year 1814-15", u"1814-15", u"(Original work published 1814\u201315)",
     u"1814\u201315. Reprint"},
    {u"[1925?]", u"year [1925?]", u"[1925?]", u"(Original work published [1925?])", u"[1925?]. Reprint"},
    {u"First published 1925.", u"year 1925", u"1925", u"(Original work published 1925)", u"1925. Reprint"},
    {u"Originally published in 1925", u"year 1925", u"1925", u"(Original work published 1925)", u"1925. Reprint"},
    {u"1857. Repr.", u"year 1857", u"1857", u"(Original work published 1857)", u"1857. Reprint"},
    {u"1936. Reprint ed.", u"year 1936", u"1936", u"(Original work published 1936)", u"1936. Reprint"},
    {u"Reprint of the 1925 ed.", u"year 1925", u"1925", u"(Original work published 1925)", u"1925. Reprint"},
    {u"(Original work published ca. 350 B.C.E.)", u"year ca. 350 B.C.E.", u"ca. 350 B.C.E.",
     u"(Original work published ca. 350 B.C.E.)", u"ca. 350 B.C.E. Reprint"},
    // Only MLA has contributors without a title.
    {u"1900. Introd. E. L. Doctorow.", u"Introducer E. L. Doctorow | year 1900", u"Introd. E. L. Doctorow. 1900",
     u"(Original work published 1900)", u"1900. Reprint", true, true},
    {u"Introd. and notes by Ann Lee. 1900", u"Introd. & notes Ann Lee | year 1900",
     u"Introd. and notes by Ann Lee. 1900", u"(Original work published 1900)", u"1900. Reprint", true, true},
    {u"By Henry James. Daisy Miller. 1878", u"chapter Daisy Miller | Author Henry James | year 1878",
     u"By Henry James. Daisy Miller. 1878", u"(Reprinted from \u201CDaisy Miller,\u201D by Henry James, 1878)",
     u"1878. Reprint", false, true},
    {u"Rpt. of New York City Guide. 1939", u"book | title New York City Guide | year 1939",
     u"Rpt. of New York City Guide. 1939", u"(Reprinted from New York City Guide, 1939)",
     u"Originally published as New York City Guide (1939)"},
    {u"1939. Rpt. of New York City Guide", u"book | title New York City Guide | year 1939",
     u"Rpt. of New York City Guide. 1939", u"(Reprinted from New York City Guide, 1939)",
     u"Originally published as New York City Guide (1939)"},
    {u"Rpt. of Letters: A Choice. Ed. A. B. Lee. St. Louis: C. V. Mosby, 1939. 12-34.",
     u"book | title Letters: A Choice | Editor A. B. Lee | place St. Louis | publisher C. V. Mosby | year 1939 | pages "
     u"12-34",
     u"Rpt. of Letters: A Choice. Ed. A. B. Lee. St. Louis: C. V. Mosby, 1939. 12-34",
     u"(Reprinted from Letters: A Choice, pp. 12\u201334, by A. B. Lee, Ed., 1939, St. Louis: C. V. Mosby)",
     u"Originally published as A. B. Lee, ed., Letters: A Choice, 12\u201334 (St. Louis: C. V. Mosby, 1939)"},
    {u"(Reprinted from Manual of child psychology, pp. 703\u2013732, by P. H. Mussen, Ed., 1970, New York, NY: Wiley)",
     u"book | title Manual of child psychology | Editor P. H. Mussen | place New York, NY | publisher Wiley | year "
     u"1970 "
     u"| pages 703-732",
     u"Rpt. of Manual of child psychology. Ed. P. H. Mussen. New York, NY: Wiley, 1970. 703-32",
     u"(Reprinted from Manual of child psychology, pp. 703\u2013732, by P. H. Mussen, Ed., 1970, New York, NY: Wiley)",
     u"Originally published as P. H. Mussen, ed., Manual of child psychology, 703\u201332 (New York, NY: Wiley, 1970)"},
    {u"(Reprinted from The handbook, pp. 12-20, by A. Lee & B. Roe, Eds., 2003, Cambridge, MA: MIT Press)",
     u"book | title The handbook | Editor A. Lee and B. Roe | place Cambridge, MA | publisher MIT Press | year 2003 | "
     u"pages 12-20",
     u"Rpt. of The handbook. Ed. A. Lee and B. Roe. Cambridge, MA: MIT P, 2003. 12-20",
     u"(Reprinted from The handbook, pp. 12\u201320, by A. Lee & B. Roe, Eds., 2003, Cambridge, MA: MIT Press)",
     u"Originally published as A. Lee and B. Roe, eds., The handbook, 12\u201320 (Cambridge, MA: MIT Press, 2003)"},
    {u"(Reprinted from The mind (2nd ed.), by A. Lee, Ed., 1999, Boston: Beacon)",
     u"book | title The mind (2nd ed.) | Editor A. Lee | place Boston | publisher Beacon | year 1999",
     u"Rpt. of The mind (2nd ed.). Ed. A. Lee. Boston: Beacon, 1999",
     u"(Reprinted from The mind (2nd ed.), by A. Lee, Ed., 1999, Boston: Beacon)",
     u"Originally published as A. Lee, ed., The mind (2nd ed.) (Boston: Beacon, 1999)"},
    {u"Rpt. of Studies in X. Vol. 2. London: Faber, 1930",
     u"book | title Studies in X. Vol. 2 | place London | publisher Faber | year 1930",
     u"Rpt. of Studies in X. Vol. 2. London: Faber, 1930",
     u"(Reprinted from Studies in X. Vol. 2, 1930, London: Faber)",
     u"Originally published as Studies in X. Vol. 2 (London: Faber, 1930)"},
    {u"(Reprinted from American Psychologist, 1995, 50, 741-749)",
     u"title American Psychologist | place 50 | year 1995 | pages 741-749",
     u"Rpt. of American Psychologist 50 (1995): 741-49",
     u"(Reprinted from American Psychologist, 50, pp. 741\u2013749, 1995)",
     u"Originally published as American Psychologist 50 (1995): 741\u201349"},
    {u"(Reprinted from The child's conception, by J. Piaget, 1929, London: Oxford UP)",
     u"book | title The child's conception | Author J. Piaget | place London | publisher Oxford University Press | "
     u"year "
     u"1929",
     u"Rpt. of The child's conception. By J. Piaget. London: Oxford UP, 1929",
     u"(Reprinted from The child's conception, by J. Piaget, 1929, London: Oxford University Press)",
     u"Originally published as J. Piaget, The child's conception (London: Oxford University Press, 1929)"},
    {u"Rpt. of Sister Carrie. Introd. E. L. Doctorow. New York: Bantam, 1982.",
     u"book | title Sister Carrie | Introducer E. L. Doctorow | place New York | publisher Bantam | year 1982",
     u"Rpt. of Sister Carrie. Introd. E. L. Doctorow. New York: Bantam, 1982",
     u"(Reprinted from Sister Carrie, introduction by E. L. Doctorow, 1982, New York: Bantam)",
     u"Originally published as Sister Carrie, introduction by E. L. Doctorow (New York: Bantam, 1982)"},
    {u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884.",
     u"special | title Critical Inquiry | place 18 | publisher 4 | year 1992 | pages 625-884",
     u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884",
     u"(Reprinted from Critical Inquiry [Special issue], 18(4), pp. 625\u2013884, 1992)",
     u"Originally published as special issue of Critical Inquiry 18, no. 4 (1992): 625\u2013884"},
    {u"Rpt. of Identities. Spec. issue of Critical Inquiry 18.4 (Summer 1992)",
     u"special | chapter Identities | title Critical Inquiry | place 18 | publisher 4 | year Summer 1992",
     u"Rpt. of spec. issue of \u201CIdentities.\u201D Critical Inquiry 18.4 (Summer 1992)",
     u"(Reprinted from \u201CIdentities,\u201D Critical Inquiry [Special issue], 18(4), Summer 1992)",
     u"Originally published as special issue of \u201CIdentities,\u201D Critical Inquiry 18, no. 4 (Summer 1992)"},
    {u"Rpt. of \u201CThe Art of Fiction.\u201D By Henry James. Longman's Magazine 4 (1884): 502-21",
     u"chapter The Art of Fiction | title Longman's Magazine | Author Henry James | place 4 | year 1884 | pages "
     u"502-521",
     u"Rpt. of \u201CThe Art of Fiction.\u201D By Henry James. Longman's Magazine 4 (1884): 502-21",
     u"(Reprinted from \u201CThe Art of Fiction,\u201D Longman's Magazine, 4, pp. 502\u2013521, by Henry James, 1884)",
     u"Originally published as Henry James, \u201CThe Art of Fiction,\u201D Longman's Magazine 4 (1884): 502\u201321"},
    {u"Rpt. of Why? 1925", u"book | title Why? | year 1925", u"Rpt. of Why? 1925", u"(Reprinted from Why?, 1925)",
     u"Originally published as Why? (1925)"},
    // A translated work shows by its lead-in or by its title.
    {u"Trans. of Le pass\u00E9 d'une illusion. Paris: Robert Laffont, 1995.",
     u"foreign | book | title Le pass\u00E9 d'une illusion | place Paris | publisher Robert Laffont | year 1995",
     u"Trans. of Le pass\u00E9 d'une illusion. Paris: Robert Laffont, 1995",
     u"(Reprinted from Le pass\u00E9 d'une illusion, 1995, Paris: Robert Laffont)",
     u"Originally published as Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)"},
    {u"Originally published in German as Der Prozess (Berlin: Die Schmiede, 1925).",
     u"foreign | book | title Der Prozess | place Berlin | publisher Die Schmiede | year 1925",
     u"Trans. of Der Prozess. Berlin: Die Schmiede, 1925", u"(Reprinted from Der Prozess, 1925, Berlin: Die Schmiede)",
     u"Originally published as Der Prozess (Berlin: Die Schmiede, 1925)"},
};

TEST(Edition, EveryStyleReadsWhatOneWrote) {
    for (const Statement& c : kStatements) {
        SCOPED_TRACE(shown(c.text));
        for (const std::int32_t style : {kMla, kMlaWithoutEd, kApa, kTurabian, kAma}) {
            Edition edition = editionOf(style);
            EXPECT_EQ(parsed(edition, c.text), u"");
            EXPECT_EQ(edition.EditionType(), Edition::kReprint);
            EXPECT_EQ(valuesOf(edition), c.values);
        }
        struct Form {
            std::int32_t style;
            TextView text;
            bool loses;
        };
        for (const Form& form : {Form{kMla, c.mla, false}, Form{kMlaWithoutEd, c.mla, false},
                                 Form{kApa, c.apa, c.losesInApa}, Form{kTurabian, c.turabian, c.losesInTurabian}}) {
            Edition writer = editionOf(form.style);
            EXPECT_EQ(formatted(writer, c.text), form.text);
            Edition reader = editionOf(kMla);
            // Behind a note's year stands "; repr.".
            for (const Text& written : {writer.toString(false, false), writer.toString(true, false)}) {
                parsed(reader, written);
                EXPECT_EQ(valuesOf(reader) == c.values, !form.loses)
                    << shown(written) << ": " << shown(valuesOf(reader));
            }
        }
        Edition ama = editionOf(kAma);
        EXPECT_EQ(formatted(ama, c.text), u"");
    }
}

TEST(Edition, ReadsTranslations) {
    struct Case {
        TextView text;
        TextView values;
        TextView mla;
        TextView turabian;
    };
    constexpr Case kCases[] = {
        {u"Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995).",
         u"foreign | book | title Le pass\u00E9 d'une illusion | place Paris | publisher Robert Laffont | year 1995",
         u"Trans. of Le pass\u00E9 d'une illusion. Paris: Robert Laffont, 1995",
         u"Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)"},
        {u"Der Prozess (1925)", u"foreign | book | title Der Prozess | year 1925", u"Trans. of Der Prozess. 1925",
         u"Der Prozess (1925)"},
        {u"Krieg und Frieden. Leipzig: Insel, 1910.",
         u"foreign | book | title Krieg und Frieden | place Leipzig | publisher Insel | year 1910",
         u"Trans. of Krieg und Frieden. Leipzig: Insel, 1910", u"Krieg und Frieden (Leipzig: Insel, 1910)"},
        {u"Der Prozess. Berlin: Die Schmiede, 1925.",
         u"foreign | book | title Der Prozess | place Berlin | publisher Die Schmiede | year 1925",
         u"Trans. of Der Prozess. Berlin: Die Schmiede, 1925", u"Der Prozess (Berlin: Die Schmiede, 1925)"},
    };
    Edition mla = editionOf(kMla);
    Edition turabian = editionOf(kTurabian);
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        EXPECT_EQ(formatted(mla, c.text), c.mla);
        EXPECT_EQ(mla.EditionType(), Edition::kTranslation);
        EXPECT_EQ(valuesOf(mla), c.values);
        EXPECT_EQ(formatted(turabian, c.text), c.turabian);
        EXPECT_EQ(formatted(turabian, c.turabian), c.turabian);
        // The other styles have one statement for both kinds of first publications.
        EXPECT_EQ(formatted(mla, c.mla), c.mla);
        EXPECT_EQ(valuesOf(mla), c.values);
    }
}

TEST(Edition, LeavesWhatIsNoneOfItsStatement) {
    struct Case {
        TextView text;
        TextView left;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"1944. Reprint, New York: Random House, 1992", u"New York: Random House, 1992", u"1944"},
        {u"1936. Repr., Chicago: U of Chicago P, 1986", u"Chicago: U of Chicago P, 1986", u"1936"},
        {u"1899. New York: Barnes, 2001", u"New York: Barnes, 2001", u"1899"},
        {u"First published 1925, London: Cape", u"London: Cape", u"1925"},
        {u"Trans. of Ficciones (Buenos Aires: Sur, 1944)", u"", u"Trans. of Ficciones. Buenos Aires: Sur, 1944"},
        {u"First published in 1900 by Doubleday", u"by Doubleday", u"1900"},
        {u"Originally published Cambridge: Harvard UP, 1960", u"", u"Cambridge: Harvard UP, 1960"},
        {u"2nd ed. (Original work published 1925)", u"2nd ed", u"1925"},
        {u"Translated by Ann Lee. Originally published 1925.", u"Translated by Ann Lee", u"1925"},
        {u"Originally published in 1925 by Knopf", u"by Knopf", u"1925"},
    };
    Edition edition = editionOf(kMla);
    for (const Case& c : kCases) {
        EXPECT_EQ(parsed(edition, c.text), c.left) << shown(c.text);
        EXPECT_EQ(edition.toString(false, false), c.written) << shown(c.text);
    }
}

TEST(Edition, WhatAFormWritesIntoTheRecordReachesTheElement) {
    Edition edition = editionOf(kApa);
    edition.EditionType(Edition::kReprint);
    const auto record = edition.EditionBookChapterYear();
    record->Year = u"1925";
    EXPECT_EQ(edition.toString(false, false), u"(Original work published 1925)");
    record->Title = u"Manual";
    record->author = u"P. H. Mussen";
    record->PlaceOrVolume = u"New York";
    record->PublisherOrNumber = u"Wiley";
    record->Page = u"703-732";
    // The layout takes a contributor for an editor unless a text said otherwise, deliberately.
    EXPECT_EQ(edition.toString(false, false),
              u"(Reprinted from Manual, pp. 703\u2013732, by P. H. Mussen, Ed., 1925, New York: Wiley)");
    edition.Reset({kTurabian, nullptr});
    record->author.clear();
    record->Page.clear();
    EXPECT_EQ(edition.toString(false, false), u"Originally published as Manual (New York: Wiley, 1925)");
    edition.EditionType(Edition::kTranslation);
    EXPECT_EQ(edition.toString(false, false), u"Manual (New York: Wiley, 1925)");
    edition.Reset({kMla, nullptr});
    EXPECT_EQ(edition.toString(false, false), u"Trans. of Manual. New York: Wiley, 1925");
    record->TitleType = Record::kForeignTitle;
    record->isSpecialIssue = true;
    edition.EditionType(Edition::kReprint);
    EXPECT_EQ(edition.toString(false, false).substr(0, 31), u"Trans. of spec. issue of Manual");
    edition.clearEditionBookChapterYear();
    EXPECT_EQ(record->Title + record->Year + record->TitleType, u"");
    EXPECT_FALSE(record->isSpecialIssue);
    EXPECT_EQ(edition.toString(false, false), u"");
    record->author = u"Henry James";
    record->chapterOrArticleTitle = u"The Art of Fiction";
    record->Year = u"1884";
    EXPECT_EQ(edition.ToMLANonTitleString(), u"By Henry James. The Art of Fiction. 1884");
    record->AuthorType = Record::kIntroducerWithNotes;
    EXPECT_EQ(edition.ToMLANonTitleString(), u"Introd. and notes by Henry James. The Art of Fiction. 1884");
}

TEST(Edition, TheAuthorOfTheReferenceIsNamedShort) {
    Edition edition = editionOf(kMla);
    for (const TextView author : {u"Henry James", u"James, Henry"}) {
        parsed(edition, u"By Henry James. Daisy Miller. 1878", author);
        EXPECT_EQ(edition.oldAuthor(), author);
        EXPECT_EQ(edition.toString(false, false), u"By James. Daisy Miller. 1878");
    }
}

TEST(Edition, TitlesAreItalicAndChaptersAreNot) {
    using Phrase = RecordingSink::Phrase;
    Edition edition = editionOf(kMla);
    parsed(edition, u"Rpt. of \u201CChance.\u201D PMLA 110 (1995): 12-19");
    const auto sink = std::make_shared<RecordingSink>();
    edition.ToFormattedString(sink, false, false);
    const auto& phrases = sink->phrases();
    EXPECT_NE(std::find(phrases.begin(), phrases.end(), Phrase{u"PMLA", 1}), phrases.end());
    EXPECT_NE(std::find(phrases.begin(), phrases.end(), Phrase{u"\u201CChance.\u201D", 0}), phrases.end());
}

class EditionReports : public ReportingTest {};

TEST_F(EditionReports, WritesPlainlyWithoutAnyReset) {
    Edition edition;
    edition.Initialize(std::make_shared<RecordingSink>());
    EXPECT_EQ(formatted(edition, u"2nd ed."), u"2nd");
    EXPECT_EQ(formatted(edition, u"Rpt. of Guide. Paris: Seuil, 1939. 12-34"), u"");
    edition.Reset({kMla, nullptr});
    EXPECT_EQ(edition.toString(false, false), u"Rpt. of Guide. Paris: Seuil, 1939. 12-34");
    // A code of no style.
    edition.Reset({70000, nullptr});
    EXPECT_EQ(edition.format(), 70000);
    EXPECT_EQ(edition.toString(false, false), u"");
    EXPECT_TRUE(service().errors().empty());
}

}  // namespace
}  // namespace quorvel

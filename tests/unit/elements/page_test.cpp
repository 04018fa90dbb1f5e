#include "elements/page.h"

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using Page = OutputTemplatePage;

PageOptions mla() {
    return {.supportsNotes = true,
            .shortenedPage = true,
            .noPageStr = u"n. pag.",
            .chapterPrefix = u"ch.",
            .chapterPluralPrefix = u"chs.",
            .paraPrefix = u"par.",
            .paraPluralPrefix = u"pars.",
            .addDotToAdvancedPrefix = true};
}

PageOptions apa() {
    return {.supportsDOI = true,
            .usePagePrefix = true,
            .noPageStr = u"no page",
            .chapterPrefix = u"Kap.",
            .chapterPluralPrefix = u"Kap.",
            .paraPrefix = u"para.",
            .paraPluralPrefix = u"paras.",
            .addDotToAdvancedPrefix = true,
            .useEnDashForPageRange = true};
}

PageOptions turabian() {
    PageOptions options = mla();
    options.elideZero = true;
    options.useEnDashForPageRange = true;
    return options;
}

Page pageWith(const PageOptions& options) {
    Page page;
    page.Initialize(nullptr);
    page.Reset(options);
    return page;
}

Text formatted(Page& page, TextView text) {
    Text parsed(text);
    page.Parse(parsed, u"ignored");
    EXPECT_EQ(parsed, u"");
    EXPECT_EQ(page.toString(true, true), page.toString(false, false));
    return page.toString(false, false);
}

TEST(Page, ReadsAndWritesPages) {
    struct Case {
        TextView text;
        TextView read;
        TextView mla;
        TextView apa;
        TextView turabian;
    };
    constexpr Case kCases[] = {
        {u"45", u"45", u"45", u"p. 45", u"45"},
        {u"5", u"5", u"5", u"p. 5", u"5"},
        {u"p. 45.", u"45", u"45", u"p. 45", u"45"},
        {u"PP. 12 \u2013 14", u"12-14", u"12-14", u"pp. 12\u201314", u"12\u201314"},
        {u"pages 12-14", u"12-14", u"12-14", u"pp. 12\u201314", u"12\u201314"},
        {u"pp12-14", u"12-14", u"12-14", u"pp. 12\u201314", u"12\u201314"},
        {u"321-328", u"321-328", u"321-28", u"pp. 321\u2013328", u"321\u201328"},
        {u"321-28", u"321-328", u"321-28", u"pp. 321\u2013328", u"321\u201328"},
        {u"101-108", u"101-108", u"101-08", u"pp. 101\u2013108", u"101\u20138"},
        {u"101\u20138", u"101-108", u"101-08", u"pp. 101\u2013108", u"101\u20138"},
        {u"1101-1108", u"1101-1108", u"1101-08", u"pp. 1101\u20131108", u"1101\u20138"},
        {u"1021-1028", u"1021-1028", u"1021-28", u"pp. 1021\u20131028", u"1021\u201328"},
        {u"110-119", u"110-119", u"110-19", u"pp. 110\u2013119", u"110\u201319"},
        {u"100-200", u"100-200", u"100-200", u"pp. 100\u2013200", u"100\u2013200"},
        {u"1496-1504", u"1496-1504", u"1496-504", u"pp. 1496\u20131504", u"1496\u2013504"},
        {u"98-102", u"98-102", u"98-102", u"pp. 98\u2013102", u"98\u2013102"},
        {u"12-14", u"12-14", u"12-14", u"pp. 12\u201314", u"12\u201314"},
        {u"31-2", u"31-32", u"31-32", u"pp. 31\u201332", u"31\u201332"},
        {u"31-1", u"31-1", u"31-1", u"pp. 31\u20131", u"31\u20131"},
        {u"999-1001", u"999-1001", u"999-1001", u"pp. 999\u20131001", u"999\u20131001"},
        // Not in ascending order: nothing was shortened.
        {u"321-12", u"321-12", u"321-12", u"pp. 321\u201312", u"321\u201312"},
        {u"45-45", u"45", u"45", u"p. 45", u"45"},
        {u"145-5", u"145-5", u"145-5", u"pp. 145\u20135", u"145\u20135"},
        // Only numbers are shortened.
        {u"xii-xiv", u"xii-xiv", u"xii-xiv", u"pp. xii\u2013xiv", u"xii\u2013xiv"},
        {u"A12-A15", u"A12-A15", u"A12-A15", u"pp. A12\u2013A15", u"A12\u2013A15"},
        {u"1A23-1A25", u"1A23-1A25", u"1A23-25", u"pp. 1A23\u20131A25", u"1A23\u201325"},
        {u"1,608-1,774", u"1,608-1,774", u"1,608-1,774", u"pp. 1,608\u20131,774", u"1,608\u20131,774"},
        {u"3-12-3-15", u"3-12-3-15", u"3-12-3-15", u"pp. 3-12\u20133-15", u"3-12\u20133-15"},
        {u"1-2-3", u"1-2-3", u"1-2-3", u"p. 1-2-3", u"1-2-3"},
        {u"A1, A4", u"A1, A4", u"A1, A4", u"pp. A1, A4", u"A1, A4"},
        {u"B1, B4, 321-28", u"B1, B4, 321-328", u"B1, B4, 321-28", u"pp. B1, B4, 321\u2013328", u"B1, B4, 321\u201328"},
        {u"P12", u"P12", u"P12", u"p. P12", u"P12"},
        {u"12+", u"12+", u"12+", u"p. 12+", u"12+"},
        {u"self-help", u"self-help", u"self-help", u"p. self-help", u"self-help"},
        {u"doi:10.1000/18-2", u"doi:10.1000/18-2", u"doi:10.1000/18-2", u"doi:10.1000/18-2", u"doi:10.1000/18-2"},
        {u"10.1000/182n3", u"10.1000/182n3", u"10.1000/182n3", u"10.1000/182n3", u"10.1000/182n3"},
        {u"10.5", u"10.5", u"10.5", u"p. 10.5", u"10.5"},
        {u"", u"", u"", u"", u""},
        {u"-", u"-", u"-", u"p. -", u"-"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Page page = pageWith(mla());
        EXPECT_EQ(formatted(page, c.text), c.mla);
        EXPECT_EQ(page.Page(), c.read);
        EXPECT_EQ(page.pageType, Page::kPage);
        EXPECT_EQ(page.Note, u"__UNINITIALIZED__");
        page.Reset(apa());
        EXPECT_EQ(page.toString(false, false), c.apa);
        EXPECT_EQ(formatted(page, c.apa), c.apa);
        page.Reset(turabian());
        EXPECT_EQ(page.toString(false, false), c.turabian);
        EXPECT_EQ(formatted(page, c.turabian), c.turabian);
    }
}

TEST(Page, KnowsTheLocatorTypes) {
    struct Case {
        TextView text;
        std::int32_t type;
        TextView page;
        TextView withDots;
        TextView withoutDots;
    };
    constexpr Case kCases[] = {
        {u"chap. 3", 1, u"3", u"ch. 3", u"ch. 3"},
        {u"Chapters 3-5", 1, u"3-5", u"chs. 3-5", u"chs. 3-5"},
        {u"ch. Introduction", 1, u"Introduction", u"ch. Introduction", u"ch. Introduction"},
        {u"par. 4", 2, u"4", u"par. 4", u"par. 4"},
        {u"para. 4", 2, u"4", u"par. 4", u"par. 4"},
        {u"pars. 4-6", 2, u"4-6", u"pars. 4-6", u"pars. 4-6"},
        {u"\u00B64", 2, u"4", u"par. 4", u"par. 4"},
        {u"line 7", 3, u"7", u"line 7", u"line 7"},
        {u"lines 7, 9", 3, u"7, 9", u"lines 7, 9", u"lines 7, 9"},
        {u"disc 2", 4, u"2", u"disc 2", u"disc 2"},
        {u"discs 2-3", 4, u"2-3", u"discs 2-3", u"discs 2-3"},
        {u"fol. 12v", 5, u"12v", u"fol. 12v", u"fol 12v"},
        {u"folios 12-14", 5, u"12-14", u"fols. 12-14", u"fols 12-14"},
        {u"sec. 3", 6, u"3", u"sec. 3", u"sec 3"},
        {u"\u00A7\u00A7 3-4", 6, u"3-4", u"secs. 3-4", u"secs 3-4"},
        {u"bk. 1", 7, u"1", u"bk. 1", u"bk 1"},
        {u"Books IV-V", 7, u"IV-V", u"bks. IV-V", u"bks IV-V"},
        {u"pt 2", 8, u"2", u"pt. 2", u"pt 2"},
        {u"parts 2-3", 8, u"2-3", u"pts. 2-3", u"pts 2-3"},
        {u"Fig. 2b", 9, u"2b", u"fig. 2b", u"fig 2b"},
        {u"figures 321-28", 9, u"321-328", u"figs. 321-28", u"figs 321-28"},
        {u"table A", 10, u"A", u"table A", u"table A"},
        {u"Tables 2-3", 10, u"2-3", u"tables 2-3", u"tables 2-3"},
        {u"map 4", 11, u"4", u"map 4", u"map 4"},
        {u"maps 4-5", 11, u"4-5", u"maps 4-5", u"maps 4-5"},
        {u"plate IV", 12, u"IV", u"plate IV", u"plate IV"},
        {u"plates 4-6", 12, u"4-6", u"plates 4-6", u"plates 4-6"},
        {u"Entry Kant", 13, u"Kant", u"Entry Kant", u"Entry Kant"},
        {u"s.v. \u201CSelf\u2013help\u201D", 13, u"\u201CSelf\u2013help\u201D", u"Entry \u201CSelf\u2013help\u201D",
         u"Entry \u201CSelf\u2013help\u201D"},
        {u"s.vv. \u201CA,\u201D \u201CB\u201D", 13, u"\u201CA,\u201D \u201CB\u201D",
         u"Entries \u201CA,\u201D \u201CB\u201D", u"Entries \u201CA,\u201D \u201CB\u201D"},
        {u"under \"Kant\"", 13, u"\"Kant\"", u"Entry \"Kant\"", u"Entry \"Kant\""},
        {u"Def. 2b", 14, u"2b", u"Def. 2b", u"Def. 2b"},
        {u"definitions 2-3", 14, u"2-3", u"Defs. 2-3", u"Defs. 2-3"},
        // No locators, but what pages are called in words.
        {u"table talk", 0, u"table talk", u"table talk", u"table talk"},
        {u"Map of Europe", 0, u"Map of Europe", u"Map of Europe", u"Map of Europe"},
        {u"chap.", 0, u"chap.", u"chap.", u"chap."},
        {u"Fig.", 0, u"Fig.", u"Fig.", u"Fig."},
        {u"entry", 0, u"entry", u"entry", u"entry"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Page page = pageWith(mla());
        EXPECT_EQ(formatted(page, c.text), c.withDots);
        EXPECT_EQ(page.pageType, c.type);
        EXPECT_EQ(page.Page(), c.page);
        EXPECT_EQ(formatted(page, c.withDots), c.withDots);
        PageOptions options = mla();
        options.addDotToAdvancedPrefix = false;
        page.Reset(options);
        EXPECT_EQ(page.toString(false, false), c.withoutDots);
        EXPECT_EQ(formatted(page, c.withoutDots), c.withoutDots);
    }
    // The style's own word.
    Page page = pageWith(apa());
    EXPECT_EQ(formatted(page, u"Kap. 3-5"), u"Kap. 3\u20135");
    EXPECT_EQ(page.pageType, Page::kChapter);
}

TEST(Page, ReadsAndWritesNotes) {
    struct Case {
        TextView text;
        TextView page;
        TextView note;
        TextView mla;
        TextView apa;
        TextView turabian;
    };
    constexpr Case kCases[] = {
        {u"45n3", u"45", u"3", u"45n3", u"p. 45", u"45n3"},
        {u"45nn3-4", u"45", u"3-4", u"45nn3-4", u"p. 45", u"45nn3\u20134"},
        {u"201nn16\u201317", u"201", u"16-17", u"201nn16-17", u"p. 201", u"201nn16\u201317"},
        {u"p. 45, n. 3", u"45", u"3", u"45n3", u"p. 45", u"45n3"},
        {u"45 nn. 3, 5", u"45", u"3, 5", u"45nn3, 5", u"p. 45", u"45nn3, 5"},
        {u"45nn3", u"45", u"3", u"45n3", u"p. 45", u"45n3"},
        {u"xiin3", u"xii", u"3", u"xiin3", u"p. xii", u"xiin3"},
        {u"321-28n4", u"321-328", u"4", u"321-28n4", u"pp. 321\u2013328", u"321\u201328n4"},
        {u"fig. 3n2", u"3", u"2", u"fig. 3n2", u"fig. 3", u"fig. 3n2"},
        {u"n. 3", u"", u"3", u"n3", u"", u"n3"},
        {u"volun3", u"volun3", u"__UNINITIALIZED__", u"volun3", u"p. volun3", u"volun3"},
        {u"n3", u"n3", u"__UNINITIALIZED__", u"n3", u"p. n3", u"n3"},
        {u"45N3", u"45N3", u"__UNINITIALIZED__", u"45N3", u"p. 45N3", u"45N3"},
        {u"45n", u"45n", u"__UNINITIALIZED__", u"45n", u"p. 45n", u"45n"},
        {u"45n-3", u"45n-3", u"__UNINITIALIZED__", u"45n-3", u"pp. 45n\u20133", u"45n\u20133"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Page page = pageWith(mla());
        EXPECT_EQ(formatted(page, c.text), c.mla);
        EXPECT_EQ(page.Page(), c.page);
        EXPECT_EQ(page.Note, c.note);
        page.Reset(apa());
        EXPECT_EQ(page.toString(false, false), c.apa);
        page.Reset(turabian());
        EXPECT_EQ(page.toString(false, false), c.turabian);
    }
    // As a form sets it.
    Page page = pageWith(mla());
    page.Page(u"45");
    EXPECT_EQ(page.toString(false, false), u"45");
    page.Note = u"7";
    EXPECT_EQ(page.toString(false, false), u"45n7");
    page.Note = u"";
    EXPECT_EQ(page.toString(false, false), u"45");
}

TEST(Page, WritesTheStylesTextForAMissingPage) {
    for (const TextView text : {u"n.p.", u"N. pag.", u"n. pag.", u" n.\u00A0pag."}) {
        Page page = pageWith(mla());
        formatted(page, u"45n3");
        EXPECT_EQ(formatted(page, text), u"n. pag.") << shown(text);
        EXPECT_EQ(page.pageType, Page::kNoPage);
        EXPECT_EQ(page.Page() + page.Note, u"__UNINITIALIZED__");
        page.Reset(apa());
        EXPECT_EQ(page.toString(false, false), u"no page");
        EXPECT_EQ(formatted(page, u"no page"), u"no page");
        EXPECT_EQ(page.pageType, Page::kNoPage);
        // The next text is a page again.
        EXPECT_EQ(formatted(page, u"N.p."), u"p. N.p.");
    }
}

TEST(Page, LeavesThePrefixOutOfCitations) {
    Page page = pageWith(apa());
    formatted(page, u"12-14");
    page.inCitation(true);
    EXPECT_EQ(page.toString(false, false), u"12\u201314");
    EXPECT_EQ(formatted(page, u"12"), u"12");
    EXPECT_EQ(formatted(page, u"fig. 2"), u"fig. 2");
    // Other options in the middle of a citation, and a copy, which is in none.
    page.Reset(apa());
    EXPECT_EQ(formatted(page, u"12"), u"12");
    EXPECT_EQ(page.Clone()->toString(false, false), u"p. 12");
    page.inCitation(true);
    page.inCitation(false);
    EXPECT_EQ(page.toString(false, false), u"p. 12");
    PageOptions options = apa();
    options.usePagePrefixInCitations = true;
    page.Reset(options);
    page.inCitation(true);
    EXPECT_EQ(page.toString(false, false), u"p. 12");
}

TEST(Page, TellsPagesFromOtherTexts) {
    struct Case {
        TextView text;
        bool isPage;
    };
    constexpr Case kCases[] = {
        {u"45", true},          {u"5", true},        {u"379-423", true},   {u"1311-1315", true},
        {u"12345", true},       {u"xii", true},      {u"A1, A4", true},    {u"45n3", true},
        {u"n. 3", true},        {u"p. 1990", true},  {u"chap. 3", true},   {u"s.v. Kant", true},
        {u"s.vv. A, B", true},  {u"Def. 2", true},   {u"n.p.", true},      {u"N. pag.", true},
        {u"doi:10.1/x", true},  {u"e12", true},      {u"12ff.", true},     {u"12 \u2013 14", true},
        {u"pp. 12-14.", true},  {u"no page", true},  {u"1990", false},     {u"1990a", false},
        {u"1990-1995", false},  {u"1990-95", false}, {u"", false},         {u"Paris", false},
        {u"table talk", false}, {u"12 men", false},  {u"45 of 46", false}, {u"abcd12", false},
    };
    Page page = pageWith(apa());
    formatted(page, u"fig. 2-3");
    for (const Case& c : kCases) {
        EXPECT_EQ(page.isPage(c.text), c.isPage) << shown(c.text);
        EXPECT_EQ(page.toString(false, false), u"figs. 2\u20133");
    }
    EXPECT_FALSE(pageWith(mla()).isPage(u"doi:10.1/x"));
}

TEST(Page, KnowsNumericPages) {
    struct Case {
        TextView text;
        bool isNumeric;
    };
    constexpr Case kCases[] = {
        {u"45", true},   {u"45-49", true}, {u"1A2", true},  {u"1a2", true},       {u"5", false},   {u"1AB2", false},
        {u"A12", false}, {u"12A", false},  {u"xii", false}, {u"1\u00C92", false}, {u"1.2", false}, {u"", false},
    };
    Page page = pageWith(mla());
    for (const Case& c : kCases) {
        formatted(page, c.text);
        EXPECT_EQ(page.isNumericPage(), c.isNumeric) << shown(c.text);
    }
}

TEST(Page, ReadsTheLocatorAtTheEndOfAText) {
    struct Case {
        TextView text;
        TextView rest;
        TextView locator;
    };
    constexpr Case kCases[] = {
        {u"Critical Inquiry 18.4 (1992): 625-884.", u"Critical Inquiry 18.4 (1992)", u"625-884"},
        {u"In Collected Essays, pp. 12\u201314", u"In Collected Essays", u"12-14"},
        {u"Collected Essays, p. 45, n. 3", u"Collected Essays", u"45n3"},
        {u"The Washington Post, B1, B4", u"The Washington Post", u"B1, B4"},
        {u"Kant, chap. 3", u"Kant", u"ch. 3"},
        {u"Nature 12-14", u"Nature", u"12-14"},
        {u"Nature: 45", u"Nature", u"45"},
        {u"45", u"", u"45"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Page page = pageWith(mla());
        Text text(c.text);
        EXPECT_TRUE(page.parseFromEnd(text));
        EXPECT_EQ(text, c.rest);
        EXPECT_EQ(page.toString(false, false), c.locator);
    }
    Page page = pageWith(mla());
    formatted(page, u"7");
    for (const TextView text :
         {u"London: Faber, 1990", u"Works, vol. 3", u"Collected Essays", u"", u"Fig. of speech"}) {
        Text remaining(text);
        EXPECT_FALSE(page.parseFromEnd(remaining)) << shown(text);
        EXPECT_EQ(remaining, text);
        EXPECT_EQ(page.toString(false, false), u"7");
    }
}

TEST(Page, ACloneHasAllButTheElidedZero) {
    Page page = pageWith(turabian());
    formatted(page, u"chs. 101-108n3");
    const auto clone = page.Clone();
    EXPECT_EQ(page.toString(false, false), u"chs. 101\u20138n3");
    EXPECT_EQ(clone->toString(false, false), u"chs. 101\u201308n3");
    EXPECT_EQ(clone->pageType, Page::kChapter);
    EXPECT_TRUE(clone->supportsNotes());
    EXPECT_FALSE(clone->supportsDOI());
    EXPECT_EQ(formatted(*clone, u"n.p."), u"n. pag.");
    EXPECT_TRUE(clone->isPage(u"45"));
    EXPECT_FALSE(clone->isPage(u"1990"));
    page.Reset(apa());
    EXPECT_FALSE(page.supportsNotes());
    EXPECT_TRUE(page.supportsDOI());
}

class PageReports : public ReportingTest {};

TEST_F(PageReports, FormatsWithoutAnyReset) {
    Page page;
    page.Initialize(nullptr);
    EXPECT_EQ(page.toString(false, false), u"");
    EXPECT_EQ(formatted(page, u"pp. 321-28n3"), u"321-328");
    EXPECT_EQ(formatted(page, u"n.p."), u"");
    page.Page(u"45");
    for (const std::int32_t type : {15, -2, INT32_MAX, INT32_MIN}) {
        page.pageType = type;
        EXPECT_EQ(page.toString(false, false), u"45");
    }
    EXPECT_TRUE(service().errors().empty());
    const auto sink = std::make_shared<RecordingSink>();
    page.ToFormattedString(sink, false, true);
    EXPECT_EQ(sink->phrases(), (std::vector<RecordingSink::Phrase>{{u"45", 0}}));
}

TEST_F(PageReports, BearsAHostThatCallsBack) {
    Page page = pageWith(mla());
    service().onCall([&] {
        Text other = u"figs. xii-xiv, a longer text than any buffer of a short one";
        page.Parse(other, {});
        page.Reset(apa());
        page.Note = u"12345678, 12345678";
    });
    for (const TextView text : {u"iii, iv, v-vii, and more", u"iii, iv, v-vii, xii-xiv", u"xii-xivn3", u"s.v. Kant"}) {
        formatted(page, text);
        page.isPage(text);
        Text remaining(text);
        page.parseFromEnd(remaining);
        page.Clone();
    }
    service().onCall({});
    page.Reset(mla());
    EXPECT_EQ(formatted(page, u"321-28n3"), u"321-28n3");
}

}  // namespace
}  // namespace quorvel

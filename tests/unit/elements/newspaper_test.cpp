#include "elements/newspaper.h"
#include "support/element.h"
#include "support/rows.h"

namespace quorvel {
namespace {

using Newspaper = OutputTemplateNewspaper;

const NewspaperOptions kMla = {false, u"[]", u"hint"};
const NewspaperOptions kApa = {true, u"", u""};
const NewspaperOptions kTurabian = {false, u"()", u""};

// Texts as they stand in finished references. What each style writes of them is read again with the same values by
// all, but for the city, which APA and AMA leave out, and the article, which only APA writes.
TEST(Newspaper, ReadsAndWritesWhatEveryStyleHas) {
    struct Case {
        TextView text;
        TextView title;
        TextView city;
        TextView mla;
        TextView apa;
        TextView turabian;
    };
    constexpr Case kCases[] = {
        {u"Globe and Mail [Toronto]", u"Globe and Mail", u"Toronto", u"Globe and Mail [Toronto]", u"The Globe and Mail",
         u"Globe and Mail (Toronto)"},
        {u"The Globe and Mail (Toronto)", u"The Globe and Mail", u"Toronto", u"Globe and Mail [Toronto]",
         u"The Globe and Mail", u"Globe and Mail (Toronto)"},
        {u" (London) Times ", u"Times", u"London", u"Times [London]", u"Times", u"Times (London)"},
        {u"[St. John's, NL] Telegram", u"Telegram", u"St. John's, NL", u"Telegram [St. John's, NL]", u"Telegram",
         u"Telegram (St. John's, NL)"},
        {u"new york times", u"new york times", u"", u"new york times", u"The new york times", u"new york times"},
        {u"the Wall Street Journal", u"the Wall Street Journal", u"", u"Wall Street Journal",
         u"the Wall Street Journal", u"Wall Street Journal"},
        {u"The Guardian", u"The Guardian", u"", u"The Guardian", u"The Guardian", u"The Guardian"},
    };
    // The state inside a title, a known title, an edition and brackets that are no pair are no city.
    const auto kWithoutCity = rows(
        u"Chicago Tribune || Hackensack (NJ) Record || (Washington) Post || Christian [Science Monitor] || "
        u"Herald [late ed.] || New York Times (Late Edition) || Times [London || Times [London) || Times ((London)) || "
        u"[Toronto] || Times [ ] || ");
    Newspaper mla = elementWith<Newspaper>(kMla);
    for (const TextView text : kWithoutCity) {
        mla.City = u"before";
        EXPECT_EQ(formatted(mla, text), text);
        EXPECT_EQ(mla.City, u"") << shown(text);
    }
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Newspaper newspaper = elementWith<Newspaper>(kMla);
        newspaper.City = u"before";
        EXPECT_EQ(formatted(newspaper, c.text), c.mla);
        EXPECT_EQ(newspaper.Title, c.title);
        EXPECT_EQ(newspaper.City, c.city);
        EXPECT_EQ(newspaper.toString(true, true), c.mla);
        newspaper.Reset(kApa);
        EXPECT_EQ(newspaper.toString(false, false), c.apa);
        EXPECT_EQ(formatted(newspaper, c.apa), c.apa);
        for (const TextView other : {c.mla, c.turabian}) {
            newspaper.Reset(kTurabian);
            EXPECT_EQ(formatted(newspaper, other), c.turabian);
            EXPECT_EQ(newspaper.City, c.city);
            newspaper.Reset(kMla);
            EXPECT_EQ(newspaper.toString(false, false), c.mla);
            newspaper.Reset(kApa);
            EXPECT_EQ(formatted(newspaper, other),
                      c.title == u"the Wall Street Journal" ? u"The Wall Street Journal" : c.apa);
        }
    }
}

TEST(Newspaper, WritesTheTitleInItalicsAndTheCityInPairsOfBracketsOnly) {
    using Phrase = RecordingSink::Phrase;
    Newspaper newspaper = elementWith<Newspaper>(kMla);
    EXPECT_EQ(newspaper.cityTooltip(), u"hint");
    newspaper.Title = u"Times";
    newspaper.City = u"London";
    const auto sink = std::make_shared<RecordingSink>();
    newspaper.ToFormattedString(sink, false, false);
    const std::vector<Phrase> expected = {{u"", 0}, {u"Times", 1}, {u" [", 0}, {u"London", 0}, {u"]", 0}};
    EXPECT_EQ(sink->phrases(), expected);
    newspaper.Title.clear();
    EXPECT_EQ(newspaper.toString(false, false), u"[London]");
    for (const TextView brackets : {u"", u"[", u"[.]"}) {
        newspaper.Reset({false, Text(brackets), u""});
        EXPECT_EQ(newspaper.toString(false, false), u"");
    }
}

TEST(Newspaper, KnowsNewspapers) {
    const auto kNewspapers = rows(
        u"Montreal Gazette || BOSTON HERALD || Chicago Sun-Times || Milwaukee Journal-Sentinel || Times [London] || "
        u"The Washington Post || Wall Street Journal || Christian Science Monitor || National Public Radio || "
        u"U.S. News and World Report || The Observer || cnn.com || Chronicle of Higher Education");
    const auto kOthers = rows(
        u" || Nature || Sometimes a Great Notion || Journal of the Times Literary Society || "
        u"Wikipedia: The Times || Saint Paul (Alberta) Journal || Psychology Today || Guidelines");
    const Newspaper newspaper = elementWith<Newspaper>(kMla);
    for (const TextView title : kNewspapers) {
        EXPECT_TRUE(newspaper.isNewspaper(title)) << shown(title);
    }
    for (const TextView title : kOthers) {
        EXPECT_FALSE(newspaper.isNewspaper(title)) << shown(title);
    }
}

}  // namespace
}  // namespace quorvel

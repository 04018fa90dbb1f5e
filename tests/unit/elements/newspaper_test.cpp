#include "elements/newspaper.h"

#include <gtest/gtest.h>

#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using Newspaper = OutputTemplateNewspaper;

const NewspaperOptions kMla = {false, u"[]", u"hint"};
const NewspaperOptions kApa = {true, u"", u""};
const NewspaperOptions kTurabian = {false, u"()", u""};

Newspaper newspaperWith(const NewspaperOptions& options) {
    Newspaper newspaper;
    newspaper.Initialize(std::make_shared<RecordingSink>());
    newspaper.Reset(options);
    return newspaper;
}

Text formatted(Newspaper& newspaper, TextView text) {
    Text parsed(text);
    newspaper.Parse(parsed, u"ignored");
    EXPECT_EQ(parsed, newspaper.Title);
    return newspaper.toString(false, false);
}

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
    constexpr TextView kWithoutCity[] = {u"Chicago Tribune",   u"Hackensack (NJ) Record",
                                         u"(Washington) Post", u"Christian [Science Monitor]",
                                         u"Herald [late ed.]", u"New York Times (Late Edition)",
                                         u"Times [London",     u"Times [London)",
                                         u"Times ((London))",  u"[Toronto]",
                                         u"Times [ ]",         u""};
    Newspaper mla = newspaperWith(kMla);
    for (const TextView text : kWithoutCity) {
        mla.City = u"before";
        EXPECT_EQ(formatted(mla, text), text);
        EXPECT_EQ(mla.City, u"") << shown(text);
    }
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Newspaper newspaper = newspaperWith(kMla);
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
    Newspaper newspaper = newspaperWith(kMla);
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
    constexpr TextView kNewspapers[] = {u"Montreal Gazette",
                                        u"BOSTON HERALD",
                                        u"Chicago Sun-Times",
                                        u"Milwaukee Journal-Sentinel",
                                        u"Times [London]",
                                        u"The Washington Post",
                                        u"Wall Street Journal",
                                        u"Christian Science Monitor",
                                        u"National Public Radio",
                                        u"U.S. News and World Report",
                                        u"The Observer",
                                        u"cnn.com",
                                        u"Chronicle of Higher Education"};
    constexpr TextView kOthers[] = {u"",
                                    u"Nature",
                                    u"Sometimes a Great Notion",
                                    u"Journal of the Times Literary Society",
                                    u"Wikipedia: The Times",
                                    u"Saint Paul (Alberta) Journal",
                                    u"Psychology Today",
                                    u"Guidelines"};
    const Newspaper newspaper = newspaperWith(kMla);
    for (const TextView title : kNewspapers) {
        EXPECT_TRUE(newspaper.isNewspaper(title)) << shown(title);
    }
    for (const TextView title : kOthers) {
        EXPECT_FALSE(newspaper.isNewspaper(title)) << shown(title);
    }
}

class NewspaperReports : public ReportingTest {};

TEST_F(NewspaperReports, LosesOnlyWhatTheSinkRefused) {
    Newspaper newspaper = newspaperWith(kMla);
    formatted(newspaper, u"Globe and Mail [Toronto]");
    const auto sink = std::make_shared<RecordingSink>();
    newspaper.ToFormattedString(sink, false, false);
    const int calls = sink->calls();
    for (int call = 1; call <= calls; ++call) {
        service().forget();
        const auto failing = std::make_shared<RecordingSink>();
        failing->failAt(call);
        newspaper.ToFormattedString(failing, false, false);
        EXPECT_EQ(service().errors().size(), 1U);
        EXPECT_GE(failing->phrases().size(), sink->phrases().size() - 2);
    }
    service().forget();
    newspaper.ToFormattedString(nullptr, false, false);
    EXPECT_FALSE(service().errors().empty());
    EXPECT_EQ(newspaper.toString(false, false), u"Globe and Mail [Toronto]");
}

}  // namespace
}  // namespace quorvel

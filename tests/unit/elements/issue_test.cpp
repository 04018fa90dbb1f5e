#include "elements/issue/issue.h"

#include "elements/issue/issue_text.h"
#include "support/element.h"
#include "support/recording_service.h"

namespace quorvel {
namespace {

using Issue = OutputTemplateIssue;
using Phrase = RecordingSink::Phrase;

constexpr TextView kAllKinds = u"Theme issue, Special issue,Supplement,edition";

Issue issueWith(std::int16_t format) {
    return elementWith<Issue>(IssueOptions{format, Text(kAllKinds)});
}

Text values(const Issue& issue) {
    Text all = issue.IssueType();
    for (std::int16_t index = 0; index < 5; ++index) {
        all += u"|" + issue.value(index);
    }
    return all;
}

struct Style {
    std::int16_t format;
    bool isFootnote;
};

// AMA, APA, MLA without " ed.", Turabian's list and notes.
constexpr Style kStyles[] = {{0, false}, {1, false}, {-1, false}, {3, false}, {3, true}};

// Texts as they stand in finished references. What each style writes of them is read again with the same values, but
// for the number of a supplement, which APA leaves out.
TEST(Issue, ReadsAndWritesWhatEveryStyleHas) {
    struct Case {
        TextView text;
        TextView values;
        TextView written[5];
    };
    constexpr Case kCases[] = {
        {u"(Suppl. 2)",
         u"Supplement||2|||",
         {u"(suppl 2)", u"[Supplemental material]", u"supp. 2", u"supplement 2", u"supplement 2"}},
        {u"4(suppl 2)",
         u"Supplement|4|2|||",
         {u"4 (suppl 2)", u"4 [Supplemental material]", u"4, supp. 2", u"4, supplement 2", u"4, supplement 2"}},
        {u"[Supplemental material]",
         u"Supplement|||||",
         {u"(suppl)", u"[Supplemental material]", u"supp.", u"supplement", u"supplement"}},
        {u"20 (theme issue)",
         u"Special issue|20||||",
         {u"20 (theme issue)", u"20. Spec. issue", u"20. Spec. issue", u"20. Special issue", u"20, special issue"}},
        {u"[Special issue]",
         u"Special issue|||||",
         {u"(theme issue)", u"Spec. issue", u"Spec. issue", u"Special issue", u"special issue"}},
        {u"Identities. Ed. Anthony Appiah and Henry Louis Gates, Jr. Spec. issue",
         u"Special issue||||Identities|Anthony Appiah and Henry Louis Gates, Jr.",
         {u"Identities. Ed. Anthony Appiah and Henry Louis Gates, Jr. Spec. issue",
          u"Identities. Ed. Anthony Appiah and Henry Louis Gates, Jr. Spec. issue",
          u"Identities. Ed. Anthony Appiah and Henry Louis Gates, Jr. Spec. issue",
          u"“Identities,” edited by Anthony Appiah and Henry Louis Gates, Jr. Special issue",
          u"“Identities,” ed. Anthony Appiah and Henry Louis Gates, Jr., special issue"}},
        {u"no. 4, “The ‘Other’ Question,” special issue",
         u"Special issue|4|||The “Other” Question|",
         {u"4, The “Other” Question. Spec. issue", u"4, The “Other” Question. Spec. issue",
          u"4, The “Other” Question. Spec. issue", u"4, “The ‘Other’ Question.” Special issue",
          u"4, “The ‘Other’ Question,” special issue"}},
        {u"Special issue: What Now?",
         u"Special issue||||What Now?|",
         {u"What Now? Spec. issue", u"What Now? Spec. issue", u"What Now? Spec. issue", u"“What Now?” Special issue",
          u"“What Now?,” special issue"}},
        {u"edited by A. Lee, special issue",
         u"Special issue|||||A. Lee",
         {u"Ed. A. Lee. Spec. issue", u"Ed. A. Lee. Spec. issue", u"Ed. A. Lee. Spec. issue",
          u"edited by A. Lee. Special issue", u"ed. A. Lee, special issue"}},
    };
    // All styles write these alike.
    constexpr std::pair<TextView, TextView> kPlain[] = {{u"4", u"4"},
                                                        {u"no. 3-4", u"3-4"},
                                                        {u"Nos. 3 and 4", u"3 and 4"},
                                                        {u"(3, pt 1)", u"3, pt 1"},
                                                        {u"no. 3, pt. 1", u"3, pt. 1"},
                                                        {u"4 (Spring)", u"4 (Spring)"},
                                                        {u"5(2 suppl 1)", u"5(2 suppl 1)"},
                                                        {u"(S1)", u"S1"},
                                                        {u"Spring", u"Spring"},
                                                        {u"late ed.", u"late ed."},
                                                        {u"natl. ed., sec. A", u"natl. ed., sec. A"},
                                                        {u"Supplement to the Times", u"Supplement to the Times"},
                                                        {u"a special issue price", u"a special issue price"},
                                                        {u"", u""}};
    for (const Style& style : kStyles) {
        Issue issue = issueWith(style.format);
        for (const auto& [text, written] : kPlain) {
            parsed(issue, text);
            EXPECT_EQ(values(issue), issuetext::isEdition(text) ? concatenate({u"Edition|||", written, u"||"})
                                                                : concatenate({u"Issue type|", written, u"||||"}));
            EXPECT_EQ(issue.toString(style.isFootnote, false, false), written);
        }
    }
    for (const Case& c : kCases) {
        SCOPED_TRACE(shown(c.text));
        Issue issue = issueWith(0);
        issue.value(Issue::kSpecialEditor, u"before");
        EXPECT_EQ(parsed(issue, c.text), u"");
        EXPECT_EQ(values(issue), c.values);
        for (std::size_t from = 0; from < std::size(kStyles); ++from) {
            const bool isLossy = kStyles[from].format == 1 && issue.IssueType() == u"Supplement";
            if (!isLossy) {
                parsed(issue, c.written[from]);
                EXPECT_EQ(values(issue), c.values) << shown(c.written[from]);
            }
            for (std::size_t to = 0; to < std::size(kStyles); ++to) {
                issue.Reset({kStyles[to].format, u""});
                EXPECT_EQ(issue.toString(kStyles[to].isFootnote, to % 2 == 0, false), c.written[to]);
            }
        }
    }
}

TEST(Issue, LeavesTheJournalAndTakesTheKindFromTheHost) {
    Issue issue = issueWith(2);
    EXPECT_EQ(parsed(issue, u"Identities. Ed. Anthony Appiah. Spec. issue of Critical Inquiry 18.4"),
              u"Critical Inquiry 18.4");
    EXPECT_EQ(parsed(issue, u"“Made in the U.S.,” ed. Ann Lee, special issue, Social Text 20"), u"Social Text 20");
    EXPECT_EQ(issue.value(Issue::kSpecialTitle), u"Made in the U.S.");
    EXPECT_EQ(parsed(issue, u"Identities [Special issue]. Social Text, 20(2)"), u"Social Text, 20(2)");
    EXPECT_EQ(issue.value(Issue::kSpecialTitle), u"Identities");
    EXPECT_EQ(parsed(issue, u"Identities. Ed. Anthony Appiah. Spec. issue of Critical Inquiry"), u"Critical Inquiry");
    // No words in this style, deliberately.
    EXPECT_EQ(issue.toString(false, false, false), u"Identities. Anthony Appiah");
    struct Case {
        TextView text;
        TextView kind;
        TextView values;
    };
    constexpr Case kCases[] = {
        {u"Identities. Anthony Appiah", u"Theme issue", u"Special issue||||Identities. Anthony Appiah|"},
        {u"4", u"Special issue", u"Special issue|4||||"},
        {u"2", u"Supplement", u"Supplement||2|||"},
        {u"late", u"Edition", u"Edition|||late||"},
        {u"suppl 2", u"Issue type", u"Supplement||2|||"},
        {u"4", u"Something else", u"Issue type|4||||"},
    };
    for (const Case& c : kCases) {
        parsed(issue, c.text, c.kind);
        EXPECT_EQ(values(issue), c.values) << shown(c.text);
    }
}

TEST(Issue, StoresCaptionsAsKindsAndOffersWhatTheSettingsName) {
    Issue issue = issueWith(3);
    constexpr std::pair<TextView, TextView> kKinds[] = {
        {u"Regular", u"Issue type"},    {u"Theme issue", u"Special issue"}, {u"Special issue", u"Special issue"},
        {u"Supplement", u"Supplement"}, {u"Edition", u"Edition"},           {u"anything", u"anything"}};
    for (const auto& [caption, kind] : kKinds) {
        issue.IssueType(caption);
        EXPECT_EQ(issue.IssueType(), kind);
    }
    issue.value(Issue::kIssueNumber, u"4");
    EXPECT_EQ(issue.toString(false, false, false), u"4");
    const std::vector<Text> expected = {u"Regular", u"Theme issue", u"Special issue", u"Supplement", u"Edition"};
    EXPECT_EQ(issue.SupportedIssueTypes(), expected);
    EXPECT_TRUE(issue.SupportsNewspaperEdition());
    EXPECT_EQ(issue.settings(3), u"edition");
    issue.Reset({3, u"supplement,,Regular, Supplement,Serial"});
    EXPECT_EQ(issue.SupportedIssueTypes(), (std::vector<Text>{u"Regular", u"Supplement"}));
    EXPECT_EQ(issue.settings(3), u"Serial");
    EXPECT_FALSE(issue.SupportsNewspaperEdition());
    issue.Reset({3, u""});
    EXPECT_EQ(issue.SupportedIssueTypes(), std::vector<Text>{u"Regular"});
}

class IssueReports : public ReportingTest {};

TEST_F(IssueReports, WritesTitlesInItalicsAndReportsWhatIsOutOfRange) {
    Issue issue = issueWith(-1);
    parsed(issue, u"4, Identities. Ed. Ann Lee. Spec. issue");
    const auto sink = std::make_shared<RecordingSink>();
    issue.ToFormattedString(sink, false, false);
    EXPECT_EQ(sink->phrases().at(3), (Phrase{u"Identities", OutputSink::kItalic}));
    EXPECT_EQ(issue.toString(false, false, true).substr(0, 8), u"{\\f0 }{\\");
    EXPECT_EQ(issue.value(5) + issue.value(-1) + issue.settings(9), u"");
    EXPECT_EQ(service().errors().size(), 3U);
}

}  // namespace
}  // namespace quorvel

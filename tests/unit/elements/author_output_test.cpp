#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/rows.h"
#include "support/shown.h"

namespace quorvel {
namespace {

using Options = AuthorOptions;

/// A style of no rule but those that a test sets: "A, B, and C", nothing reversed, no et al.
Options plainOptions() {
    Options options;
    options.andSeparator = u"and";
    options.numAuthorsToTriggerEtAl = 100;
    options.numAuthorsToTriggerEtAlCitation = 100;
    options.numAuthorsToTriggerEtAlMinimalString = 100;
    options.numAuthorsInEtAl = 2;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlInReferenceList = true;
    options.initialsUsePeriods = true;
    return options;
}

std::shared_ptr<OutputTemplateAuthor> authorOf(const Options& options, std::size_t persons) {
    auto author = test::authorWith(options);
    std::vector<Text> rows;
    for (std::size_t i = 0; i < persons; ++i) {
        rows.push_back(Text(1, static_cast<char16_t>(u'A' + i)) + u"son");
    }
    author->authors(rows);
    return author;
}

TEST(AuthorOutput, SeparatorsOfReferenceListAndNote) {
    struct Case {
        std::size_t persons;
        bool twoHaveNoComma;
        TextView list;
        TextView note;
    };
    constexpr Case kCases[] = {
        {0, false, u"", u""},
        {1, false, u"Ason", u"Ason"},
        {2, false, u"Ason, and Bson", u"Ason and Bson"},
        {2, true, u"Ason and Bson", u"Ason and Bson"},
        {3, true, u"Ason, Bson, and Cson", u"Ason, Bson, and Cson"},
        {6, false, u"Ason, Bson, Cson, Dson, Eson, and Fson", u"Ason, Bson, Cson, Dson, Eson, and Fson"},
        {7, false, u"Ason, Bson, Cson, Dson, Eson, Fson, and Gson", u"Ason, Bson, Cson, Dson, Eson, Fson, and Gson"},
        {9, false, u"Ason, Bson, Cson, Dson, Eson, Fson, Gson, Hson, and Ison",
         u"Ason, Bson, Cson, Dson, Eson, Fson, Gson, Hson, and Ison"},
    };
    for (const Case& c : kCases) {
        Options options = plainOptions();
        options.twoAuthorsIsOnlyCaseHaveNoComma = c.twoHaveNoComma;
        const auto author = authorOf(options, c.persons);
        EXPECT_EQ(author->toString(false, false), c.list);
        EXPECT_EQ(author->toString(true, false), c.note);
    }
}

TEST(AuthorOutput, AndWord) {
    struct Case {
        TextView andSeparator;
        TextView written;
    };
    const auto kCases =
        rows<Case>(u"and => Ason, and Bson || & => Ason, & Bson ||  => Ason, Bson ||  und  => Ason, und Bson");
    for (const Case& c : kCases) {
        Options options = plainOptions();
        options.andSeparator = c.andSeparator;
        EXPECT_EQ(authorOf(options, 2)->toString(false, false), c.written);
    }
}

TEST(AuthorOutput, EtAl) {
    struct Case {
        std::size_t persons;
        std::int16_t trigger;
        std::int16_t kept;
        bool inReferenceList;
        bool hasEtAl;
        bool hasComma;
        TextView list;
        TextView note;
    };
    constexpr Case kCases[] = {
        {3, 4, 1, true, false, true, u"Ason, Bson, and Cson", u"Ason, Bson, and Cson"},
        {4, 4, 1, true, false, true, u"Ason, et al.", u"Ason et al."},
        {4, 4, 2, true, false, false, u"Ason, Bson et al.", u"Ason, Bson et al."},
        {4, 4, 1, false, false, true, u"Ason, Bson, Cson, and Dson", u"Ason et al."},
        {2, 4, 1, true, true, true, u"Ason, et al.", u"Ason et al."},
        {1, 4, 3, false, true, true, u"Ason, et al.", u"Ason et al."},
        // Every person, and et al. all the same.
        {3, 2, 0, true, false, true, u"Ason, Bson, and Cson, et al.", u"Ason, Bson, and Cson et al."},
        {9, 2, 8, true, false, true, u"Ason, Bson, Cson, Dson, Eson, Fson, Gson, Hson, et al.",
         u"Ason, Bson, Cson, Dson, Eson, Fson, Gson, Hson et al."},
    };
    for (const Case& c : kCases) {
        Options options = plainOptions();
        options.numAuthorsToTriggerEtAl = c.trigger;
        options.numAuthorsInEtAl = c.kept;
        options.etAlInReferenceList = c.inReferenceList;
        options.etAlHasComma = c.hasComma;
        const auto author = authorOf(options, c.persons);
        author->HasEtAl(c.hasEtAl);
        EXPECT_EQ(author->toString(false, false), c.list);
        EXPECT_EQ(author->toString(true, false), c.note);
    }
}

TEST(AuthorOutput, OwnWordsStayWithTheElementAndItsClones) {
    Options options = plainOptions();
    options.numAuthorsToTriggerEtAlCitation = 3;
    options.numAuthorsToTriggerEtAl = 9;
    const auto author = authorOf(options, 3);
    author->andSeparatorHasComma(false);
    author->etAlText(u"u. a.");
    options.etAlHasComma = true;
    author->Reset(options);
    for (const auto& each : {author, author->Clone(), author->CloneForEditors()}) {
        Text text = u"Ason, Ann, Bert Bson, Carl Cson, u. a.";
        each->Parse(text, u"");
        EXPECT_EQ(each->toString(true, true, false, true), u"Ason u. a.");
        each->HasEtAl(false);
        EXPECT_EQ(each->toString(false, true), u"Ason, Bson and Cson");
    }
}

TEST(AuthorOutput, EllipsisInThePlaceOfTheAndWord) {
    struct Case {
        std::size_t persons;
        bool hasEtAl;
        TextView written;
        TextView citation;
    };
    constexpr Case kCases[] = {
        {3, false, u"Ason, Bson, and Cson", u"Ason et al."},  {3, true, u"Ason, Bson, . . . Cson", u"Ason et al."},
        {2, true, u"Ason, . . . Bson", u"Ason et al."},       {4, false, u"Ason, Bson, . . . Dson", u"Ason et al."},
        {4, true, u"Ason, Bson, . . . Dson", u"Ason et al."},
    };
    for (const Case& c : kCases) {
        Options options = plainOptions();
        options.etAlUsesElipses = true;
        options.numAuthorsToTriggerEtAl = 4;
        options.numAuthorsToTriggerEtAlCitation = 3;
        const auto author = authorOf(options, c.persons);
        author->HasEtAl(c.hasEtAl);
        EXPECT_EQ(author->toString(false, false), c.written);
        EXPECT_EQ(author->toString(false, false, false, true), c.citation);
    }
    // An "and" inside a name stays.
    Options options = plainOptions();
    options.etAlUsesElipses = true;
    const auto author = test::authorWith(options);
    author->authors({u"Centers for Disease Control and Prevention", u"Smith", u"Jones"});
    author->HasEtAl(true);
    EXPECT_EQ(author->toString(false, false), u"Centers for Disease Control and Prevention, Smith, . . . Jones");
}

TEST(AuthorOutput, MinimalAndCitationForm) {
    const auto author = test::authorWith(test::apaAuthorOptions());
    test::read(*author, u"Adams, A., Jr., Brown, B., & Cole, C.");
    EXPECT_EQ(author->toString(false, true), u"Adams, Jr., Brown, & Cole");
    EXPECT_EQ(author->toString(false, true, false, true), u"Adams Jr., Brown, & Cole");
    EXPECT_EQ(author->toString(false, true, true), u"Adams Jr., et al.");
    EXPECT_EQ(author->toString(true, true, true), u"Adams Jr. et al.");
    // The citation reads first names first, the thresholds are back afterwards.
    EXPECT_EQ(author->toString(true, false, false, true), u"A. Adams Jr., Brown, B., & Cole, C.");
    EXPECT_EQ(author->toString(true, false), u"Adams, A., Jr., Brown, B., & Cole, C.");

    Text form1;
    Text form2;
    author->toCitationFormat(form1, form2);
    EXPECT_EQ(form1, u"Adams, Jr., Brown, & Cole");
    EXPECT_EQ(form2, u"Adams, Jr., Brown, and Cole");
    EXPECT_EQ(author->toString(false, false, false, false, false, true).substr(0, 4), u"{\\f0");
}

TEST(AuthorOutput, FirstNamesAndInitials) {
    struct Case {
        TextView row;
        TextView withStops;
        TextView without;
    };
    constexpr Case kCases[] = {
        {u"Galbraith, John Kenneth", u"Galbraith J. K.", u"Galbraith JK"},
        {u"Wegener, DT", u"Wegener D. T.", u"Wegener DT"},
        {u"Sartre, Jean-Paul", u"Sartre J.-P.", u"Sartre JP"},
        {u"Durkheim, Émile", u"Durkheim É.", u"Durkheim É"},
        {u"Fromhold, A.T.", u"Fromhold A. T.", u"Fromhold AT"},
        {u"Smith, \u0041\u0308lf", u"Smith \u0041\u0308.", u"Smith \u0041\u0308"},
        {u"Smith, \xD83D\xDE00x", u"Smith \xD83D\xDE00.", u"Smith \xD83D\xDE00"},
        {u"King, Martin Luther, Jr.", u"King M. L. Jr.", u"King ML Jr"},
        {u"King, Martin Luther, sr.", u"King M. L. Sr.", u"King ML Sr"},
        {u"Plato", u"Plato", u"Plato"},
    };
    Options options = plainOptions();
    options.initialsOnly = true;
    for (const Case& c : kCases) {
        const auto author = test::authorWith(options);
        author->authors({Text(c.row)});
        EXPECT_EQ(author->toString(false, false), c.withStops);
        Options noStops = options;
        noStops.initialsUsePeriods = false;
        author->Reset(noStops);
        EXPECT_EQ(author->toString(false, false), c.without);
    }
}

TEST(AuthorOutput, ForcedFullNamesLeaveInitialsBehind) {
    const auto author = test::authorWith(plainOptions());
    author->authors({u"Galbraith, John Kenneth"});
    EXPECT_EQ(author->toString(false, false, false, false, true), u"Galbraith John Kenneth");
    // Although the style does not ask for them.
    EXPECT_EQ(author->toString(false, false), u"Galbraith J. K.");
}

TEST(AuthorOutput, OrderOfNames) {
    Options options = plainOptions();
    options.reversedAuthorUsesComma = true;
    const auto author = test::authorWith(options);
    author->authors({u"King, Martin, Jr.", u"Doe, Ann"});
    EXPECT_EQ(author->toString(false, false), u"King, Martin Jr., and Ann Doe");
    EXPECT_EQ(author->toString(true, false), u"Martin King Jr. and Ann Doe");
    options.ReverseFirstOnFootnote = true;
    options.reverseSecondaryAuthors = true;
    options.reversedAuthorPostfixUsesComma = true;
    author->Reset(options);
    EXPECT_EQ(author->toString(true, false), u"King, Martin, Jr. and Doe, Ann");
    EXPECT_EQ(author->toString(true, true), u"King, Jr. and Doe");
}

TEST(AuthorOutput, SemicolonsBesideGroupAuthors) {
    struct Case {
        TextView text;
        TextView written;
    };
    const auto kCases = rows<Case>(
        u"Smith JA, Jones K; World Health Organization => Smith JA, Jones K; World Health Organization || "
        u"World Health Organization, Smith JA, Jones K => World Health Organization; Smith JA, Jones K || "
        u"Smith JA, Jones K => Smith JA, Jones K || World Health Organization => World Health Organization || "
        u"Adams A, Brown B, Cole C, Dunn D, Eng E, Fox F; Baltic Asthma Group => Adams A, Brown B, Cole C, et al; "
        u"Baltic Asthma Group");
    const auto author = test::authorWith(test::amaAuthorOptions());
    for (const Case& c : kCases) {
        test::read(*author, c.text);
        EXPECT_EQ(author->toString(false, false), c.written);
    }
    EXPECT_EQ(author->convertCommaToSemicolon(u"Fox F, et al, Baltic Asthma Group"),
              u"Fox F, et al, Baltic Asthma Group");
}

}  // namespace
}  // namespace quorvel

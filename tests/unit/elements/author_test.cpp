#include "elements/author/author.h"

#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/recording_service.h"
#include "support/rows.h"
#include "support/shown.h"

namespace quorvel {
namespace {

TEST(Author, RowsOfTheFormAreReadAndGiven) {
    struct Case {
        TextView row;
        TextView given;
    };
    const auto kCases = rows<Case>(
        u"Smith, John, Jr. => Smith, John, Jr. || Smith, , Jr. => Smith, , Jr. || Smith, John => Smith, John || "
        u"John Smith => Smith, John || M. A. van der Meer => van der Meer, M. A. || Plato => Plato || "
        u"The Center For Disease Control, CDC => The Center For Disease Control, CDC");
    const auto author = test::authorWith(test::mlaAuthorOptions());
    for (const Case& c : kCases) {
        author->authors({u"", Text(c.row), u"  "});
        ASSERT_EQ(author->authors().size(), 1U);
        EXPECT_EQ(author->authors()[0], c.given);
    }
    author->authors({u"Smith, John", u"Doe, Ann"});
    EXPECT_EQ(author->authorsForQVDb(), u"Smith, John; Doe, Ann");
    EXPECT_FALSE(author->isEmptyArrayAuthor());
    author->ClearAuthors();
    EXPECT_TRUE(author->isEmptyArrayAuthor());
    EXPECT_TRUE(author->authors().empty());
}

TEST(Author, OtherTexts) {
    const auto author = test::authorWith(test::apaAuthorOptions());
    test::read(*author, u"Smith, J. A., & Doe, Ann, Jr.");
    EXPECT_EQ(author->toMergedString(), u"J. A. Smith & Ann Doe Jr.");
    author->Reset(test::mlaAuthorOptions());
    EXPECT_EQ(author->toMergedString(), u"J. A. Smith and Ann Doe Jr.");
    EXPECT_EQ(author->toKeywordList(), (std::vector<Text>{u"J.,A.,Smith", u"Ann,Doe"}));
    author->authors({u"Parks/Wildlife (State) and Food & Drug Agency"});
    EXPECT_EQ(author->toKeywordList(), (std::vector<Text>{u"Parks,Wildlife,State,Food,Drug,Agency"}));
}

TEST(Author, SameAuthorsInAnyForm) {
    struct Case {
        TextView one;
        TextView other;
        bool isSame;
    };
    constexpr Case kCases[] = {
        {u"Wegener, D. T., & Petty, R. E.", u"Wegener, Duane T., and Richard E. Petty", true},
        {u"Wegener DT, Petty RE", u"Duane T. Wegener and Richard E. Petty", true},
        {u"Wegener DT", u"Wegener DT, Petty RE", false},
        {u"Wegener, D. T.", u"Wegener, D.", false},
        {u"Wegener, D. T.", u"Wagner, D. T.", false},
        {u"Wegener, D. T., et al.", u"Wegener, D. T.", false},
        {u"", u"", true},
    };
    const auto author = test::authorWith(test::mlaAuthorOptions());
    test::read(*author, u"Kuhn, Fabian");
    for (const Case& c : kCases) {
        EXPECT_EQ(author->isSameAuthor(c.one, c.other), c.isSame) << shown(c.one) << shown(c.other);
    }
    EXPECT_EQ(test::personsOf(*author), u"Kuhn|Fabian");
}

TEST(Author, ClonesCarryPersonsOrOnlySettings) {
    const auto author = test::authorWith(test::turabianAuthorOptions());
    test::read(*author, u"Smith, John, and Ann Doe, eds.");
    const auto clone = author->Clone();
    EXPECT_EQ(clone->toString(false, false), u"Smith, John, and Ann Doe, eds.");
    const auto editors = author->CloneForEditors();
    EXPECT_TRUE(editors->isEmptyArrayAuthor());
    test::read(*editors, u"Jones K, ed");
    EXPECT_EQ(editors->toString(true, false), u"K. Jones, ed.");
    // Apart from each other.
    test::read(*clone, u"Jones K");
    EXPECT_EQ(author->toString(true, false), u"John Smith and Ann Doe, eds.");
}

TEST(Author, SettingsAndWhatWasRead) {
    const auto author = test::authorWith(test::turabianAuthorOptions());
    EXPECT_TRUE(author->SupportAnonAndPseudoAuthors());
    EXPECT_FALSE(author->SquareBracketIsForFirstName());
    EXPECT_TRUE(author->supportsCompilerAndEditor());
    EXPECT_EQ(author->checkingArray(), std::vector<bool>(10, false));
    test::read(*author, u"Smith, John");
    EXPECT_TRUE(author->LastNameFirstForAuthor1());
    test::read(*author, u"John Smith");
    EXPECT_FALSE(author->LastNameFirstForAuthor1());
    // A new style leaves the persons.
    author->Reset(test::apaAuthorOptions());
    EXPECT_EQ(author->toString(false, false), u"Smith, J.");
    EXPECT_TRUE(author->SquareBracketIsForFirstName());
}

/// A switch between styles with the same separators lays nothing out anew, another one does.
TEST(Author, LayoutFollowsEachStyle) {
    const auto author = test::authorWith(test::mlaAuthorOptions());
    test::read(*author, u"Smith, John, and Ann Doe");
    author->Reset(test::turabianAuthorOptions());
    EXPECT_EQ(author->toString(false, false), u"Smith, John, and Ann Doe");
    author->Reset(test::amaAuthorOptions());
    EXPECT_EQ(author->toString(false, false), u"Smith J, Doe A");
    author->Reset(test::mlaAuthorOptions());
    EXPECT_EQ(author->toString(false, false), u"Smith, John, and Ann Doe");
}

}  // namespace
}  // namespace quorvel

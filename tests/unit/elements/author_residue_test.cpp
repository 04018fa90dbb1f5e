#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/shown.h"

namespace quorvel {
namespace {

TEST(AuthorResidue, TextOfOtherElementsIsKeptForThem) {
    struct Case {
        TextView text;
        TextView persons;
        TextView residue;
    };
    constexpr Case kCases[] = {
        {u"Smith, John", u"Smith|John", u""},
        {u"Smith, John, trans. Gregory Rabassa", u"Smith|John", u"trans. Gregory Rabassa"},
        {u"Smith, John. Trans. Gregory Rabassa", u"Smith|John", u"Trans. Gregory Rabassa"},
        {u"Smith, John. Introduction.", u"Smith|John", u"Introduction."},
        {u"Foreword. Smith, John", u"Smith|John", u"Foreword."},
        {u"Smith, J. A. (n.d.). Title", u"Smith|J. A.", u"(n.d.). Title"},
        {u"Smith, J. A. (in press)", u"Smith|J. A.", u"(in press)"},
        {u"Smith, J. A. (1990). Title", u"Smith|J. A.", u"(1990). Title"},
        {u"Smith, John. \u201CA Title.\u201D", u"Smith|John", u"\u201CA Title.\u201D"},
        {u"Smith, John, vol. 2 of Works", u"Smith|John", u"vol. 2 of Works"},
        {u"Smith, John, edited by Ann Doe", u"Smith|John", u"edited by Ann Doe"},
        {u"Smith J, Jones K. In: Doe A, ed", u"Smith|J.; Jones|K.", u"In: Doe A, ed"},
        {u"Smith JA, Jones K. The title of it", u"Smith|J. A.; Jones|K.", u"The title of it"},
        {u"Smith JA, Jones K, et al. The title", u"Smith|J. A.; Jones|K. et al.", u"The title"},
        {u"Smith, Jonathan. The History of Things", u"Smith|Jonathan", u"The History of Things"},
        {u"World Health Organization. Annual Report", u"World Health Organization", u"Annual Report"},
        {u"Smith, John, New York: Knopf", u"Smith|John", u"New York: Knopf"},
        {u"Smith, John, rev. ed.", u"Smith|John", u"rev. ed."},
        {u"Smith, John, 2nd ed.", u"Smith|John", u"2nd ed."},
        {u"Smith, John, series ed.", u"Smith|John", u"series ed."},
        {u"van der Meer MA, Smith K. The title", u"van der Meer|M. A.; Smith|K.", u"The title"},
        {u"Smith, John. House of Cards", u"Smith|John", u"House of Cards"},
        {u"Smith, John, 2nd ed. Introduction.", u"Smith|John", u"2nd ed. Introduction."},
        // What looks like it and is not.
        {u"Thomas C. King", u"King|Thomas C.", u""},
        {u"Jill St. John", u"St. John|Jill", u""},
        {u"United States. Dept. of Labor", u"United States. Dept. of Labor", u""},
        {u"William \"Bill\" Gates", u"Gates|William \"Bill\"", u""},
    };
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : kCases) {
            SCOPED_TRACE(shown(c.text) + shown(preset.name));
            Text text(c.text);
            author->Parse(text, {});
            EXPECT_EQ(test::personsOf(*author) + (author->HasEtAl() ? u" et al." : u""), c.persons);
            EXPECT_EQ(author->residue(), c.residue);
            EXPECT_EQ(text, c.residue);
        }
    }
}

TEST(AuthorResidue, IsLeftAloneWhenTheHostHasTakenItOff) {
    const auto author = test::authorWith(test::mlaAuthorOptions());
    Text text = u"Smith, John, edited by Ann Doe";
    author->Parse(text, {}, true);
    EXPECT_EQ(author->residue(), u"");
    author->residue(u"other");
    EXPECT_EQ(author->residue(), u"other");
}

TEST(AuthorResidue, DashesStandForTheAuthorsOfThePreviousReference) {
    struct Case {
        TextView text;
        TextView previous;
        TextView persons;
    };
    constexpr Case kCases[] = {
        {u"---", u"Smith, John, and Ann Doe", u"Smith|John; Doe|Ann"},
        {u"---.", u"Smith, John", u"Smith|John"},
        {u"\u2014\u2014\u2014", u"Smith, John", u"Smith|John"},
        {u"\u2014\u2014\u2014, and Ann Doe", u"Smith, John", u"Smith|John; Doe|Ann"},
        {u"---, ed.", u"Smith, John", u"Smith|John"},
        {u"---", u"", u""},
        {u"---", u"---", u""},
        {u"Doe, Ann", u"Smith, John", u"Doe|Ann"},
    };
    const auto author = test::authorWith(test::mlaAuthorOptions());
    for (const Case& c : kCases) {
        EXPECT_EQ(test::read(*author, c.text, c.previous), c.persons) << shown(c.text);
    }
    test::read(*author, u"---, ed.", u"Smith, John");
    EXPECT_EQ(author->toString(false, false), u"Smith, John, ed.");
}

}  // namespace
}  // namespace quorvel

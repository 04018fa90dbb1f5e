#include "forms/surroundings.h"

#include <gtest/gtest.h>

#include "support/utf8.h"

namespace quorvel {
namespace {

TEST(Surroundings, StandWhereTheyStoodWithTheirJoints) {
    struct Case {
        TextView text;
        TextView left;
        TextView statement;
        TextView expected;
    };
    constexpr Case kCases[] = {
        {u"no. 4", u"", u"4", u"4"},
        {u"no. 4", u"no. 4", u"no. 4", u"no. 4"},
        {u"Spec. issue of Critical Inquiry 18.4", u"Critical Inquiry 18.4", u"Identities. Spec. issue",
         u"Identities. Spec. issue of Critical Inquiry 18.4"},
        {u"Spec. issue, Critical Inquiry", u" Critical Inquiry", u"", u"Critical Inquiry"},
        {u"1944. Reprint, New York: Knopf, 1992.", u"New York: Knopf, 1992.", u"1945. Reprint",
         u"1945. Reprint, New York: Knopf, 1992"},
        {u"2nd ed. New York", u"New York", u"3rd ed.", u"3rd ed. New York"},
        {u"Smith 1984. Rpt. in Essays", u"Smith", u"Rpt. in Works", u"Smith Rpt. in Works"},
        {u"Kuhn, T. S. (in press)", u"(in press)", u"Lee, A. B.", u"Lee, A. B. (in press)"},
        {u"A, B, [sic] and C", u"[sic]", u"D", u"D, [sic]"},
        // The element wrote it anew.
        {u"Kuhn (2nd, printing)", u"(2d printing)", u"Lee", u"Lee (2d printing)"},
        {u" , ", u".", u"x", u"x"},
        {u"Spec. issue of A", u"A", u"", u"A"},
    };
    for (const Case& c : kCases) {
        const Text whole = forms::surroundingsOf(c.text, c.left).around(c.statement);
        EXPECT_EQ(test::utf8Of(whole), test::utf8Of(c.expected));
    }
}

}  // namespace
}  // namespace quorvel

#include "text_table.h"

#include <gtest/gtest.h>

namespace sample {
namespace {

TEST(TextTable, LongCellsGoOnBelow) {
    const TextTable table({5, 8, 4});
    EXPECT_EQ(table.row({L"year", L"In press", L"n.d."}), L"year   In press  n.d.\n");
    EXPECT_EQ(table.rule(), L"-----  --------  ----\n");
    // At blanks where there are some, else in the middle of the word; no blanks at a line's end.
    EXPECT_EQ(table.row({L"place", L"St Louis, MO", L"Cambridge"}),
              L"place  St        Camb\n"
              L"       Louis,    ridg\n"
              L"       MO        e\n");
    EXPECT_EQ(table.row({L"a"}), L"a\n");
}

TEST(TextTable, WidthIsCountedInColumnsOfTheScreen) {
    EXPECT_EQ(displayWidth(L"café"), 4u);
    EXPECT_EQ(displayWidth(L"cafe\u0301"), 4u);
    EXPECT_EQ(displayWidth(L"漱石"), 4u);
    const TextTable table({3, 2});
    EXPECT_EQ(table.row({L"漱石", L"x"}), L"漱   x\n石\n");
    // A pair of surrogates is never torn apart, even where the column is too narrow for it.
    EXPECT_EQ(TextTable({3}).row({L"ab\U0001D400\U0001D401"}), L"ab\n\U0001D400\n\U0001D401\n");
}

}  // namespace
}  // namespace sample

// Real titles in both capitalisations; see tests/cases/titles.tsv.

#include <gtest/gtest.h>

#include <fstream>

#include "support/title_cases.h"

namespace quorvel {
namespace {

/// The share of titles that come out exactly may not fall.
TEST(TitleCases, RealTitles) {
    std::ifstream file(QUORVEL_PROJECT_DIR "/tests/cases/titles.tsv");
    int exact[2] = {0, 0};
    int all[2] = {0, 0};
    for (const test::TitleCase& title : test::readTitleCases(file)) {
        const int rule = title.rule == "heading" ? 0 : 1;
        ++all[rule];
        exact[rule] += test::casedFor(title) == title.to ? 1 : 0;
    }
    for (const int rule : {0, 1}) {
        ASSERT_GE(all[rule], 650);
        EXPECT_GE(exact[rule] * 100, all[rule] * 97);
    }
}

}  // namespace
}  // namespace quorvel

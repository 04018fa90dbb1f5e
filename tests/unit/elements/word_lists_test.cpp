#include "elements/words/lists.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "support/shown.h"

namespace quorvel {
namespace {

std::vector<Text> linesOf(TextView list) {
    std::vector<Text> lines = split(list, u"\n");
    // Every line has a break behind it.
    EXPECT_EQ(lines.back(), Text());
    lines.pop_back();
    return lines;
}

void expectSorted(TextView list) {
    const std::vector<Text> lines = linesOf(list);
    ASSERT_FALSE(lines.empty());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i], cleanUp(lines[i])) << shown(lines[i]);
        EXPECT_TRUE(i == 0 || lines[i - 1] < lines[i]) << shown(lines[i]) << " stands behind " << shown(lines[i - 1]);
    }
}

TEST(WordLists, EachIsSortedAndHasAWordOnce) {
    for (const words::WordList& list : words::wordLists()) {
        expectSorted(list.words);
    }
    for (const words::PhraseList& list : words::phraseLists()) {
        expectSorted(list.phrases);
    }
}

TEST(WordLists, NoWordStandsTwiceInAClass) {
    for (unsigned bit = 0; bit < 64; ++bit) {
        std::set<Text> inTitles;
        std::set<Text> inPersons;
        for (const words::WordList& list : words::wordLists()) {
            for (const Text& word : linesOf(list.words)) {
                EXPECT_TRUE((list.inTitles >> bit & 1U) == 0 || inTitles.insert(word).second) << shown(word);
                EXPECT_TRUE(bit >= 32 || (list.inPersons >> bit & 1U) == 0 || inPersons.insert(word).second)
                    << shown(word);
            }
        }
    }
}

}  // namespace
}  // namespace quorvel

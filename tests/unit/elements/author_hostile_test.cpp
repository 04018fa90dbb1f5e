#include <gtest/gtest.h>

#include "support/author_reading.h"
#include "support/recording_service.h"
#include "support/shown.h"

namespace quorvel {
namespace {

TEST(AuthorHostile, OddTextsAreReadAsSomethingPlain) {
    struct Case {
        TextView text;
        TextView persons;
    };
    constexpr Case kCases[] = {
        {u"", u""},
        {u" , ; , ", u""},
        {u"&", u""},
        {u"and", u""},
        {u", and & and ,", u""},
        {u"et al.", u" et al."},
        {u"et al", u" et al."},
        {u". . .", u" et al."},
        {u"III", u"III"},
        {u"Jr.", u"Jr."},
        {u"Smith, [John", u"Smith|[John"},
        {u"Smith], John", u"Smith]|John"},
        {u"[[[]", u""},
        {u"((((", u""},
        {u"...", u" et al."},
        {u"-", u""},
        {u"\xD800", u"\xD800"},
        {u"Smith\xDC00, J\xD800.", u"Smith\xDC00|J\xD800."},
        {u"\u202E\u05E9\u05DC\u05D5\u05DD \u05D0", u"\u05D0|\u202E\u05E9\u05DC\u05D5\u05DD"},
        {u"e\u0301mile Zola", u"Zola|e\u0301mile"},
        {u"Smith,,,John", u"Smith|John"},
        {u"Smith, John,", u"Smith|John"},
        {u"trans. ", u"trans."},
        {u"ed.", u"ed."},
    };
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& c : kCases) {
            EXPECT_EQ(test::read(*author, c.text), c.persons) << shown(c.text);
            author->toString(false, false);
            author->toString(true, true, true);
        }
    }
}

TEST(AuthorHostile, LongListsAndGarbage) {
    const auto author = test::authorWith(test::turabianAuthorOptions());
    Text list;
    for (int i = 0; i < 2000; ++i) {
        list += u"Smith, J. A., ";
    }
    test::read(*author, list + u"& Doe, A.");
    EXPECT_EQ(author->numAuthors(), 2001);
    const Text written = author->toString(false, false);
    EXPECT_EQ(written.size(),
              2000 * TextView(u"Smith, J. A.").size() - 0U + 2000 * 2 + TextView(u"and A. Doe").size() - 1999 * 1U);

    // More than can be counted: a full count, and the rest left over.
    list.clear();
    for (int i = 0; i < 33'000; ++i) {
        list += u"Ann Doe, ";
    }
    author->Parse(list, {});
    EXPECT_EQ(author->numAuthors(), INT16_MAX);
    EXPECT_TRUE(startsWith(list, u"Ann Doe, Ann Doe"));
    EXPECT_EQ(author->residue(), list);

    constexpr TextView kPieces[] = {u"[",     u"]",       u"(",       u" and ", u", ", u"; ",  u"A. ",
                                    u"van ",  u"et al. ", u". . . ",  u"\"",    u": ", u"---", u"Institute of ",
                                    u"1990 ", u"ed. ",    u"trans. ", u"\xD83D"};
    Text garbage;
    for (std::size_t i = 0; garbage.size() < 1'000'000; ++i) {
        garbage += kPieces[(i * 7 + i / 13) % std::size(kPieces)];
    }
    author->Parse(garbage, {});
    author->toString(false, false);
    for (const TextView piece : kPieces) {
        Text same;
        while (same.size() < 200'000) {
            same += piece;
        }
        author->Parse(same, {});
        author->toString(true, false);
    }
}

TEST(AuthorHostile, WithoutInitializeOrResetNothingBreaks) {
    OutputTemplateAuthor author;
    Text text = u"Smith, John, and Ann Doe";
    author.Parse(text, {});
    EXPECT_EQ(test::personsOf(author), u"Smith|John; Doe|Ann");
    EXPECT_EQ(author.toString(false, false), u"");
    author.Reset(test::mlaAuthorOptions());
    author.ToFormattedString(nullptr, false, false);
    author.Initialize(nullptr);
    author.Initialize(std::make_shared<RecordingSink>());
    author.Reset(test::mlaAuthorOptions());
    Text again = u"Smith, John, and Ann Doe";
    author.Parse(again, {});
    EXPECT_EQ(author.toString(false, false), u"Smith, John, and Ann Doe");
}

}  // namespace
}  // namespace quorvel

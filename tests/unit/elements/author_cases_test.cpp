// Real lists in five printed forms, read and written in every style; see tests/cases/authors.tsv.

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "support/author_cases.h"
#include "support/author_kept.h"
#include "support/author_reading.h"

namespace quorvel {
namespace {

using authorcases::Case;

struct Doubt {
    std::string id;
    std::string form;
    std::string reason;
};

/// Lists that are read otherwise than the bibliography records them.
const std::vector<Doubt> kDoubts = {
    {"h0171", "", "\"Jeriek Van den Abeele\": the record has Van as a first name"},
    {"h0420", "ama-list", "\"Bond AlanH\" was printed from a record without blank"},
    {"h0879", "turabian-note", "\"K. J. Ray Liu\": that Ray is a last name cannot be seen"},
};

bool isInDoubt(const Case& list) {
    for (const Doubt& doubt : kDoubts) {
        if (doubt.id == list.id && (doubt.form.empty() || doubt.form == list.form)) {
            return true;
        }
    }
    return false;
}

const std::vector<Case>& cases() {
    static const std::vector<Case> all = [] {
        std::ifstream file(QUORVEL_PROJECT_DIR "/tests/cases/authors.tsv");
        return authorcases::readCases(file);
    }();
    return all;
}

std::vector<AuthorRecord> recordsOf(const OutputTemplateAuthor& author) {
    std::vector<AuthorRecord> records;
    for (std::int16_t i = 0; i < author.numAuthors(); ++i) {
        records.push_back(author.person(i));
    }
    return records;
}

TEST(AuthorCases, AreReadExactlyWhateverTheStyle) {
    ASSERT_GT(cases().size(), 300U);
    for (const test::AuthorPreset& preset : test::authorPresets()) {
        const auto author = test::authorWith(preset.options);
        for (const Case& list : cases()) {
            if (isInDoubt(list)) {
                continue;
            }
            const Text read = test::read(*author, list.printed);
            EXPECT_TRUE(authorcases::areSamePersons(list.persons, recordsOf(*author)) &&
                        author->HasEtAl() == list.isCut)
                << list.id << " " << list.form << ": " << authorcases::utf8Of(list.printed) << " read as "
                << authorcases::utf8Of(read);
        }
    }
}

/// No name is ever lost, neither in reading nor in writing.
TEST(AuthorCases, KeepEveryLetter) {
    for (test::AuthorPreset preset : test::authorPresets()) {
        preset.options.numAuthorsToTriggerEtAl = 100;
        preset.options.etAlUsesElipses = true;
        const auto author = test::authorWith(preset.options);
        for (const Case& list : cases()) {
            test::read(*author, list.printed);
            EXPECT_EQ(test::lostLetters(list.printed, *author), u"") << list.id << " " << list.form;
            for (const bool isFootnote : {false, true}) {
                EXPECT_EQ(test::unwrittenPersons(author->toString(isFootnote, false), *author), u"") << list.id;
            }
        }
    }
}

/// What a style wrote is read as the same persons, as far as it wrote them.
TEST(AuthorCases, SurviveTheWayThroughEveryStyle) {
    for (const test::AuthorPreset& from : test::authorPresets()) {
        const auto reader = test::authorWith(from.options);
        for (const test::AuthorPreset& to : test::authorPresets()) {
            const auto writer = test::authorWith(to.options);
            for (const Case& list : cases()) {
                if (isInDoubt(list)) {
                    continue;
                }
                // From the first style's form of the printed list to the second style's.
                test::read(*reader, list.printed);
                test::read(*writer, reader->toString(false, false));
                std::vector<AuthorRecord> expected = recordsOf(*writer);
                const Text written = writer->toString(false, false);
                const auto again = test::authorWith(to.options);
                test::read(*again, written);
                const std::vector<AuthorRecord> read = recordsOf(*again);
                if (again->HasEtAl() && read.size() < expected.size() && !read.empty()) {
                    // Cut: the first ones, and after an ellipsis the last.
                    const AuthorRecord last = expected.back();
                    expected.resize(read.size());
                    if (to.options.etAlUsesElipses) {
                        expected.back() = last;
                    }
                }
                EXPECT_TRUE(authorcases::areSamePersons(expected, read))
                    << list.id << " " << list.form << ": " << authorcases::utf8Of(written);
                EXPECT_EQ(again->toString(false, false), written);
            }
        }
    }
}

}  // namespace
}  // namespace quorvel

// Real lists in five printed forms, read and written in every style; see tests/cases/authors.tsv.

#include <gtest/gtest.h>

#include <algorithm>
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

bool isInDoubt(const Case& list, const std::string& form) {
    return std::any_of(kDoubts.begin(), kDoubts.end(), [&](const Doubt& doubt) {
        return doubt.id == list.id && (doubt.form.empty() || doubt.form == form);
    });
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
            if (isInDoubt(list, list.form)) {
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

/// The persons whom a style wrote: when it cut the list the first ones, and after an ellipsis the last.
std::vector<AuthorRecord> writtenOf(std::vector<AuthorRecord> persons, const OutputTemplateAuthor& again,
                                    const AuthorOptions& options) {
    const auto read = static_cast<std::size_t>(again.numAuthors());
    if (again.HasEtAl() && read > 0 && read < persons.size()) {
        const AuthorRecord last = persons.back();
        persons.resize(read);
        persons.back() = options.etAlUsesElipses ? last : persons.back();
    }
    return persons;
}

/// What a style wrote is read as the same persons, as far as it wrote them.
TEST(AuthorCases, SurviveTheWayThroughEveryStyle) {
    for (const test::AuthorPreset& from : test::authorPresets()) {
        const auto reader = test::authorWith(from.options);
        for (const test::AuthorPreset& to : test::authorPresets()) {
            const auto writer = test::authorWith(to.options);
            const auto again = test::authorWith(to.options);
            for (const Case& list : cases()) {
                if (isInDoubt(list, list.form)) {
                    continue;
                }
                // From the first style's form of the printed list to the second style's.
                test::read(*reader, list.printed);
                test::read(*writer, reader->toString(false, false));
                for (const bool isFootnote : {false, true}) {
                    if (isFootnote && isInDoubt(list, "turabian-note")) {
                        continue;
                    }
                    const Text written = writer->toString(isFootnote, false);
                    test::read(*again, written);
                    const std::vector<AuthorRecord> expected = writtenOf(recordsOf(*writer), *again, to.options);
                    EXPECT_TRUE(authorcases::areSamePersons(expected, recordsOf(*again)))
                        << list.id << " " << list.form << ": " << test::utf8Of(written);
                    EXPECT_EQ(again->toString(isFootnote, false), written);
                }
            }
        }
    }
}

}  // namespace
}  // namespace quorvel

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/text.h"

/// The persons of a list, as they were read and until they are written.
namespace quorvel {

/// One person of a list. A corporate author has its whole name as last name and nothing else.
struct AuthorRecord {
    /// With its particle: "van der Meer".
    Text lastName;
    /// First and middle names or initials, separated by blanks.
    Text firstNames;
    /// "Jr.", "III".
    Text postfix;
};

/// All that is known about the persons of one text.
class AuthorPersons {
public:
    /// Values of `AuthorType`. They are part of the interface.
    enum Kind : std::int16_t {
        kOrdinary = 0,
        /// The work is anonymous and the name supplied: "[Horsley, Samuel?]".
        kAttributed = 1,
        kPseudonym = 2,
    };
    /// Indexes of `Anthologies`: what the persons are. They are part of the interface.
    enum Role : std::int16_t { kEditor = 0, kCompiler = 1, kTranslator = 2 };
    static constexpr std::int16_t kRoles = 3;

    /// One of Kind, for the first person; any other value is written as an ordinary author.
    std::int16_t authorType = kOrdinary;
    /// The name behind a pseudonym; empty stands for "pseud.".
    Text pseudoname;
    /// The list is known to be incomplete: it ended in "et al." or had an ellipsis.
    bool hasEtAl = false;
    /// The first person stood last name first.
    bool lastNameFirst = false;
    /// What the persons are, by Role; authors are none of them.
    std::array<bool, kRoles> roles{};
    /// The index of the first corporate author, -1 without one.
    std::int16_t firstGroup = -1;
    /// "Smith, J. In discussion of: ...".
    std::optional<AuthorRecord> discussant;
    /// What stood in the text and belongs to other elements.
    Text residue;

    std::int16_t size() const { return mSize; }
    bool isEmpty() const { return mSize == 0; }
    bool isFull() const { return mSize == INT16_MAX; }
    /// The person at this index; throws for one outside.
    const AuthorRecord& at(std::int32_t index) const;
    AuthorRecord& at(std::int32_t index);
    /// The record behind the last person, emptied; it counts from now on. Throws when the list is full.
    AuthorRecord& add();
    /// Leaves a text to other elements, in front of what was left to them before.
    void leave(TextView text);
    /// Forgets the persons and nothing else.
    void clearRecords();
    /// Forgets everything.
    void clear();

private:
    // Longer than the list after a longer one was held: the records are filled again.
    std::vector<AuthorRecord> mRecords;
    std::int16_t mSize = 0;
};

/// A person as "Last, First, Postfix", trailing empty parts left out.
Text rowOf(const AuthorRecord& person);
/// Each person so.
std::vector<Text> rowsOf(const AuthorPersons& persons);
/// The words of each person as keywords, separated by commas; one text a person.
std::vector<Text> keywordsOf(const AuthorPersons& persons);
/// All persons as one text: "A, B and C".
/// @param andWord with its blanks
Text mergedText(const AuthorPersons& persons, TextView andWord);
/// Whether two lists name the same persons: their last names, and the initials of the first names.
bool areSame(const AuthorPersons& one, const AuthorPersons& other);

}  // namespace quorvel

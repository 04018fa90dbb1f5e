#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "core/text.h"
#include "elements/author/author.h"
#include "support/utf8.h"

/// Lists of persons as they were printed, with the persons that they name.
namespace quorvel::authorcases {

using test::textOf;
using test::utf8Of;

/// A line of a file of cases: id, form, "whole" or "cut", the printed text, the persons. Persons are
/// "last|first|postfix", separated by " ; "; first names are in full where they are known.
struct Case {
    std::string id;
    std::string form;
    bool isCut = false;
    Text printed;
    std::vector<AuthorRecord> persons;
};

/// Reads cases; lines that begin with "#" and lines with less than five columns are passed over.
std::vector<Case> readCases(std::istream& file);

/// Whether a person that was read is the one of the case: the last name with its particle, the postfix,
/// and each first name either in full or as its initial.
bool isSamePerson(const AuthorRecord& expected, const AuthorRecord& read);
/// Whether all persons are, in order.
bool areSamePersons(const std::vector<AuthorRecord>& expected, const std::vector<AuthorRecord>& read);

/// What a list is made of, which decides the group under which it counts.
struct Kinds {
    bool hasParticle = false;
    bool hasGroup = false;
};
Kinds kindsOf(const Case& list);

}  // namespace quorvel::authorcases

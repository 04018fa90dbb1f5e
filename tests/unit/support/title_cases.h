#pragma once

#include <istream>
#include <string>
#include <vector>

#include "core/text.h"
#include "support/utf8.h"

namespace quorvel::test {

/// A title in two forms: as it stands, and as a rule has to write it.
struct TitleCase {
    Text from;
    Text to;
    /// "heading" or "sentence".
    std::string rule;
};

/// Reads a file with the columns from, to and rule under a heading line; other columns are left out, and so
/// are lines that begin with "#".
std::vector<TitleCase> readTitleCases(std::istream& file);

/// The title as the library writes it by the case's rule.
Text casedFor(const TitleCase& title);

}  // namespace quorvel::test

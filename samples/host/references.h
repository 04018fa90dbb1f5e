#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sample {

/// One element of a reference, as it stands in some finished reference.
struct ReferenceElement {
    /// The name of its kind (elements.h).
    std::wstring name;
    std::wstring text;
};

struct Reference {
    std::vector<ReferenceElement> elements;

    /// Author and title on one line, for headings.
    std::wstring label() const;
};

/// Reads a references file: one element a line, "name: text"; an empty line ends a reference. Lines
/// that begin with # are comments.
/// @throws ComError with a message that names file, line and fault
std::vector<Reference> readReferences(const std::filesystem::path& file);

}  // namespace sample

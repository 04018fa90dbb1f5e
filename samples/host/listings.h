#pragma once

#include <vector>

#include "references.h"
#include "styled_elements.h"

/// What the program prints.
namespace sample {

/// One row for each element, the styles in columns; a second row where a note reads differently.
void printStylesSideBySide(std::vector<StyledElements>& styles, const std::vector<Reference>& references);

/// Each element as it stands in the reference list and in a note.
void printStyle(StyledElements& style, const std::vector<Reference>& references);

/// The same as an RTF document.
void printAsRtf(StyledElements& style, const std::vector<Reference>& references);

}  // namespace sample

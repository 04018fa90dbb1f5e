#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "variant.h"

namespace sample {

/// One option of a style: what the host passes to an element's `Reset` under this name.
struct StyleOption {
    /// The element's options name (elements.h).
    std::wstring element;
    /// The parameter of `Reset`.
    std::wstring name;
    Variant value;
    /// For a value "@name": the value is this style's own element of that name.
    std::wstring valueElement;
};

/// A citation style, read from a style file. One option a line:
///
///     element.option = value      # where the value comes from
///
/// A value is true or false, a whole number, a "text" (a quotation mark in it is written twice), a
/// list [value, value], or @element: the element of that name with the options of this same style.
/// Two lines describe the style itself: style.name and style.manual. Empty lines, and everything
/// after a # outside a text, are ignored. The order of the lines does not matter.
struct Style {
    std::wstring name;
    std::wstring manual;
    std::vector<StyleOption> options;

    std::vector<StyleOption> optionsOf(std::wstring_view element) const;
};

/// @throws ComError with a message that names file, line and fault
Style readStyle(const std::filesystem::path& file);

}  // namespace sample

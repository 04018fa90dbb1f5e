#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sample {

/// How many columns a text takes on a console: accents that stand above a letter take none, East
/// Asian characters two.
std::size_t displayWidth(std::wstring_view text);

/// Lays texts out in columns. A text that is too long for its column goes on below.
class TextTable {
public:
    /// @param widths of the columns; two blanks stand between columns
    explicit TextTable(std::vector<std::size_t> widths) : mWidths(std::move(widths)) {}

    /// One row, of one line or several.
    std::wstring row(const std::vector<std::wstring>& cells) const;
    /// A line below the headings.
    std::wstring rule() const;

private:
    std::vector<std::size_t> mWidths;
};

}  // namespace sample

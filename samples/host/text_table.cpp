#include "text_table.h"

#include <algorithm>

namespace sample {

namespace {

constexpr const wchar_t* kGap = L"  ";

struct CharacterRange {
    wchar_t first;
    wchar_t last;
};

constexpr CharacterRange kCombining[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x20D0, 0x20FF}, {0xFE20, 0xFE2F}};
// A character beyond U+FFFF comes as two units of one column each, which is right for most of them.
constexpr CharacterRange kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                                    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}};

template <std::size_t Count>
bool isIn(wchar_t character, const CharacterRange (&ranges)[Count]) {
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const CharacterRange& range) {
        return character >= range.first && character <= range.last;
    });
}

std::size_t widthOf(wchar_t character) {
    if (isIn(character, kCombining)) return 0;
    return isIn(character, kWide) ? 2 : 1;
}

// How many characters of the text fit into the width; at least one, so that it always ends.
std::size_t fittingLength(std::wstring_view text, std::size_t width) {
    std::size_t used = 0;
    std::size_t length = 0;
    while (length < text.size() && (used += widthOf(text[length])) <= width) ++length;
    const bool splitsPair =
        length > 0 && length < text.size() && text[length - 1] >= 0xD800 && text[length - 1] < 0xDC00;
    if (splitsPair) --length;
    return std::max<std::size_t>(length, 1);
}

std::vector<std::wstring> wrapped(std::wstring_view text, std::size_t width) {
    std::vector<std::wstring> lines;
    while (displayWidth(text) > width) {
        const std::size_t length = fittingLength(text, width);
        // At a blank where there is one, which then is not printed.
        const std::size_t blank = text.substr(0, length + 1).rfind(L' ');
        const bool hasBlank = blank != std::wstring_view::npos && blank > 0;
        lines.emplace_back(text.substr(0, hasBlank ? blank : length));
        text.remove_prefix(hasBlank ? blank + 1 : length);
    }
    lines.emplace_back(text);
    return lines;
}

std::wstring withoutTrailingBlanks(std::wstring text) {
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

}  // namespace

std::size_t displayWidth(std::wstring_view text) {
    std::size_t width = 0;
    for (const wchar_t character : text) width += widthOf(character);
    return width;
}

std::wstring TextTable::row(const std::vector<std::wstring>& cells) const {
    std::vector<std::vector<std::wstring>> columns;
    std::size_t height = 1;
    for (std::size_t i = 0; i < mWidths.size(); ++i) {
        columns.push_back(wrapped(i < cells.size() ? cells[i] : std::wstring(), mWidths[i]));
        height = std::max(height, columns.back().size());
    }
    std::wstring text;
    for (std::size_t line = 0; line < height; ++line) {
        std::wstring printed;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const std::wstring cell = line < columns[i].size() ? columns[i][line] : std::wstring();
            printed += cell + std::wstring(mWidths[i] - std::min(mWidths[i], displayWidth(cell)), L' ') + kGap;
        }
        text += withoutTrailingBlanks(printed) + L"\n";
    }
    return text;
}

std::wstring TextTable::rule() const {
    std::vector<std::wstring> cells;
    for (const std::size_t width : mWidths) cells.emplace_back(width, L'-');
    return row(cells);
}

}  // namespace sample

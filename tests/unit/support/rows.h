#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "core/text.h"

/// Tables of short texts, many to a line: cells stand apart by " => ", rows by " || ".
namespace quorvel {

inline std::vector<TextView> cellsOf(TextView text, TextView separator) {
    std::vector<TextView> cells;
    for (std::size_t at = text.find(separator); at != TextView::npos; at = text.find(separator)) {
        cells.push_back(text.substr(0, at));
        text.remove_prefix(at + separator.size());
    }
    cells.push_back(text);
    return cells;
}

/// The rows of a table of one column.
inline std::vector<TextView> rows(TextView table) {
    return cellsOf(table, u" || ");
}

/// Each row as a structure of two texts; a cell that is missing is empty.
/// @param table outlives the rows
template <class Row>
std::vector<Row> rows(TextView table) {
    std::vector<Row> result;
    for (const TextView row : rows(table)) {
        std::vector<TextView> cells = cellsOf(row, u" => ");
        cells.resize(2);
        result.push_back({cells[0], cells[1]});
    }
    return result;
}

}  // namespace quorvel

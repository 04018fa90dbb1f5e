#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "support/style_file.h"

namespace quorvel::test {
namespace {

/// The headings of the guide's tables of options, with the elements' names in style files.
const std::map<std::string, std::string> kElements = {
    {"Short citations: the citation template", "citation"},
    {"Authors and editors (0, 9)", "author"},
    {"Year (6)", "year"},
    {"Place (15)", "place"},
    {"Date and time (17)", "date-time"},
    {"Title (1, 2, 3)", "title"},
    {"Newspaper (4)", "newspaper"},
    {"Publisher (5)", "publisher"},
    {"Volumes and series (10)", "multi-volume"},
    {"Medium (16)", "medium"},
    {"Page (7)", "page"},
    {"Issue (11)", "issue"},
    {"Refers-to (12)", "refers-to"},
    {"Online (13)", "online"},
};

/// A cell may say in words what a file says in full.
bool isInWords(const std::string& cell) {
    return cell.starts_with("a ") || cell.starts_with("for ") || cell.starts_with("all");
}

std::string trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> cellsOf(const std::string& row) {
    std::vector<std::string> cells;
    for (std::size_t at = 1; at < row.size();) {
        const std::size_t end = std::min(row.find('|', at), row.size());
        cells.push_back(trimmed(row.substr(at, end - at)));
        at = end + 1;
    }
    return cells;
}

/// The value of a file as the guide shows it: True, 4, ed.,comp. (quoted only where blanks would not show).
std::string shown(const std::string& value, bool isQuoted) {
    if (value == "true" || value == "false") {
        return value == "true" ? "True" : "False";
    }
    const bool isText = value.starts_with('"');
    const bool isEmpty = value == "\"\"";
    return value.starts_with('@')             ? value.substr(1)
           : isText && (isEmpty || !isQuoted) ? value.substr(1, value.size() - 2)
                                              : value;
}

TEST(HostGuide, ShowsTheOptionsOfTheStyleFiles) {
    std::ifstream guide(QUORVEL_PROJECT_DIR "/docs/host-guide.md");
    ASSERT_TRUE(guide);
    std::string element;
    std::map<std::string, int> rows;
    for (std::string line; std::getline(guide, line);) {
        if (line.starts_with("##")) {
            const auto found = kElements.find(line.substr(line.find(' ') + 1));
            element = found != kElements.end() ? found->second : "";
        }
        if (element.empty() || !line.starts_with("| `")) {
            continue;
        }
        const std::vector<std::string> cells = cellsOf(line);
        const std::string option = element + "." + cells[0].substr(1, cells[0].size() - 2);
        if (cells.size() != 3 + std::size(kStyles)) {
            continue;
        }
        ++rows[element];
        for (std::size_t i = 0; i < std::size(kStyles); ++i) {
            const std::string& cell = cells[3 + i];
            const auto& values = StyleFile::of(kStyles[i]).values();
            const auto value = values.find(option);
            ASSERT_NE(value, values.end()) << option;
            if (!isInWords(cells[3]) && !isInWords(cell)) {
                EXPECT_EQ(cell, shown(value->second, cell.starts_with('"'))) << kStyles[i] << " " << option;
            }
        }
    }
    for (const auto& [heading, name] : kElements) {
        const auto& values = StyleFile::of("apa").values();
        EXPECT_EQ(rows[name], std::count_if(values.begin(), values.end(),
                                            [&](const auto& option) { return option.first.starts_with(name + "."); }))
            << heading;
    }
}

}  // namespace
}  // namespace quorvel::test

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
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

std::string contentOf(const char* file) {
    std::ifstream stream(std::string(QUORVEL_PROJECT_DIR "/") + file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// docs/members.md as the interface description has it: members by name, classes that say the same in one row.
std::string memberIndex(const std::string& idl) {
    const std::regex part(
        R"re(interface _?(\w+) : IDispatch|\[id\(\d+\)(, prop(get|put))?[^"]*"([^"]*)"\)\]\s*HRESULT (\w+)\()re");
    struct Row {
        std::string classes, kinds;
    };
    const auto order = [](const auto& left, const auto& right) {
        const auto lower = [](std::string text) {
            std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
            return text;
        };
        return std::pair(lower(left.first), left) < std::pair(lower(right.first), right);
    };
    std::map<std::pair<std::string, std::string>, Row, decltype(order)> rows(order);
    std::string className;
    for (std::sregex_iterator found(idl.begin(), idl.end(), part), end; found != end; ++found) {
        if ((*found)[1].matched) {
            className = std::regex_replace((*found)[1].str(), std::regex("^OutputTemplate"), "");
            continue;
        }
        Row& row = rows[{(*found)[5].str(), std::regex_replace((*found)[4].str(), std::regex(R"(\|)"), R"(\|)")}];
        row.classes += row.classes.ends_with(className) ? "" : (row.classes.empty() ? "" : ", ") + className;
        row.kinds += (*found)[3].str();
    }
    std::string text =
        "# Members\n\nWhat the library's objects offer, and what a host's objects do (classes named I...), by name. "
        "Classes stand without\n\"OutputTemplate\". The [host guide](host-guide.md) has the contract and "
        "the options.\n\n| member | of | what |\n|---|---|---|\n";
    for (const auto& [key, row] : rows) {
        const bool isRead = row.kinds.find("get") != std::string::npos,
                   isPut = row.kinds.find("put") != std::string::npos;
        text += "| `" + key.first + "`" + (isPut ? isRead ? ", also written" : ", written" : "") + " | " + row.classes +
                " | " + key.second + " |\n";
    }
    return text;
}

TEST(HostGuide, HasEveryMemberInItsIndex) {
    const std::string expected = memberIndex(contentOf("src/host/idl/QuorvelTemplate.idl"));
    EXPECT_GT(std::count(expected.begin(), expected.end(), '\n'), 200);
    const bool isSame = contentOf("docs/members.md") == expected;
    EXPECT_TRUE(isSame) << "members.md as it should be is in the folder of this test";
    if (!isSame) std::ofstream("members.md") << expected;
}

}  // namespace
}  // namespace quorvel::test

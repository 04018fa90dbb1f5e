#include "support/title_cases.h"

#include <algorithm>
#include <sstream>

#include "elements/title/case.h"

namespace quorvel::test {

namespace {

std::vector<std::string> fieldsOf(std::string line) {
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    std::vector<std::string> fields;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, '\t');) {
        fields.push_back(field);
    }
    return fields;
}

std::size_t columnOf(const std::vector<std::string>& names, const std::string& name, std::size_t otherwise) {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? otherwise : static_cast<std::size_t>(found - names.begin());
}

}  // namespace

std::vector<TitleCase> readTitleCases(std::istream& file) {
    std::vector<TitleCase> cases;
    std::string line;
    std::vector<std::string> names;
    while (std::getline(file, line)) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::vector<std::string> fields = fieldsOf(line);
        if (names.empty()) {
            names = fields;
            continue;
        }
        const std::size_t from = columnOf(names, "from", 0);
        const std::size_t to = columnOf(names, "to", 1);
        const std::size_t rule = columnOf(names, "rule", 2);
        if (fields.size() > std::max({from, to, rule})) {
            cases.push_back({textOf(fields[from]), textOf(fields[to]), fields[rule]});
        }
    }
    return cases;
}

Text casedFor(const TitleCase& title) {
    titlecase::Rules rules;
    rules.isHeading = title.rule == "heading";
    return titlecase::casedTitle(title.from, rules).text;
}

}  // namespace quorvel::test

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
            cases.push_back({textOfUtf8(fields[from]), textOfUtf8(fields[to]), fields[rule]});
        }
    }
    return cases;
}

Text casedFor(const TitleCase& title) {
    titlecase::Rules rules;
    rules.isHeading = title.rule == "heading";
    return titlecase::casedTitle(title.from, rules).text;
}

std::string utf8Of(TextView text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size()) {
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00U);
        }
        const int more = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
        bytes.push_back(static_cast<char>(kLead[more] | (c >> (6 * more))));
        for (int left = more - 1; left >= 0; --left) {
            bytes.push_back(static_cast<char>(0x80 | ((c >> (6 * left)) & 0x3F)));
        }
    }
    return bytes;
}

Text textOfUtf8(const std::string& bytes) {
    Text text;
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i++]);
        const int more = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        constexpr unsigned kMask[] = {0x7F, 0x1F, 0x0F, 0x07};
        char32_t c = lead & kMask[more];
        for (int left = 0; left < more && i < bytes.size(); ++left) {
            c = (c << 6) | (static_cast<unsigned char>(bytes[i++]) & 0x3FU);
        }
        if (c >= 0x10000) {
            text.push_back(static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(c));
        }
    }
    return text;
}

}  // namespace quorvel::test

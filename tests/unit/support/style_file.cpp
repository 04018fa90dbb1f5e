#include "support/style_file.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <stdexcept>

#include "support/utf8.h"

namespace quorvel::test {

const StyleFile& StyleFile::of(std::string_view style) {
    static std::map<std::string, StyleFile, std::less<>> files;
    auto file = files.find(style);
    if (file == files.end()) {
        file = files.emplace(style, StyleFile(style)).first;
    }
    return file->second;
}

StyleFile::StyleFile(std::string_view style) {
    const std::string path = std::string(QUORVEL_STYLES) + "/" + std::string(style) + ".style";
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("no style file " + path);
    }
    const std::regex option(R"(([a-z-]+\.\w+) *= *("[^"]*"|\[[^\]]*\]|[^ #]+).*)");
    std::smatch found;
    for (std::string line; std::getline(file, line);) {
        // Behind the first heading stand variants of elements and layouts.
        if (line.starts_with('[')) {
            break;
        }
        if (std::regex_match(line, found, option)) {
            mValues[found[1]] = found[2];
        }
    }
}

const std::string& StyleFile::valueOf(const std::string& element, TextView option) const {
    return mValues.at(element + "." + utf8Of(option));
}

void StyleFile::read(const std::string& value, bool& option) {
    option = value == "true";
}

void StyleFile::read(const std::string& value, std::int16_t& option) {
    option = static_cast<std::int16_t>(std::stoi(value));
}

void StyleFile::read(const std::string& value, Text& option) {
    option = textOf(std::string_view(value).substr(1, value.size() - 2));
}

void StyleFile::read(const std::string& value, std::vector<bool>& option) {
    option.clear();
    for (std::size_t at = value.find_first_of("tf"); at != std::string::npos; at = value.find_first_of("tf", at + 5)) {
        option.push_back(value[at] == 't');
    }
}

}  // namespace quorvel::test

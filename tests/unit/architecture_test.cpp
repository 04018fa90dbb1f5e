// Reads the includes of the sources and names the file that breaks the rule of the layers:
// core <- platform, elements <- forms <- host. The linker finds what is missing in a layer's own
// library; this finds the headers, too.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kProject = QUORVEL_PROJECT_DIR;

struct Layer {
    std::string folder;
    /// Layers that its files may include besides their own.
    std::set<std::string> below;
    /// Whether its files may include headers of the system and generated ones.
    bool knowsTheSystem;
};

// The first one whose folder begins a path is the file's layer.
const std::vector<Layer> kLayers = {
    {"core", {}, false},
    {"platform", {"core"}, true},
    {"elements", {"core"}, false},
    {"forms/win", {"core", "platform", "elements", "forms"}, true},
    {"forms", {"core", "elements"}, false},
    {"host", {"core", "platform", "elements", "forms", "forms/win"}, true},
};

const Layer* layerOf(const std::string& path) {
    const auto found = std::find_if(kLayers.begin(), kLayers.end(),
                                    [&](const Layer& layer) { return path.starts_with(layer.folder + "/"); });
    return found == kLayers.end() ? nullptr : &*found;
}

/// An `#include` line's header with its delimiters: "\"core/text.h\"", "<vector>".
std::optional<std::string> headerOf(const std::string& line) {
    const std::size_t hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#') {
        return std::nullopt;
    }
    const std::size_t word = line.find_first_not_of(" \t", hash + 1);
    const std::size_t open = line.find_first_of("\"<");
    if (word == std::string::npos || line.compare(word, 7, "include") != 0 || open == std::string::npos) {
        return std::nullopt;
    }
    const std::size_t close = line.find(line[open] == '<' ? '>' : '"', open + 1);
    return line.substr(open, close - open + 1);
}

/// What is wrong when a file of src/ includes the header; empty when nothing is.
/// @param resolved the header's path in src/, empty when it is not there
std::string offence(const std::string& file, const std::string& header, const std::string& resolved) {
    const Layer* const layer = layerOf(file);
    if (layer == nullptr) {
        return file + " is in no layer";
    }
    if (resolved.empty()) {
        const bool isStandard = header.front() == '<' && header.find_first_of("./") == std::string::npos;
        return isStandard || layer->knowsTheSystem ? "" : file + " includes " + header + " of the system";
    }
    const Layer* const target = layerOf(resolved);
    const bool isAllowed = target == layer || (target != nullptr && layer->below.contains(target->folder));
    return isAllowed ? "" : file + " includes " + header + ", which " + layer->folder + "/ must not know";
}

/// The header's path in src/, from the root of src/ or beside the file.
std::string resolve(const fs::path& file, const std::string& header) {
    const std::string name = header.substr(1, header.size() - 2);
    for (const fs::path& candidate : {kProject / "src" / name, file.parent_path() / name}) {
        const fs::path relative = candidate.lexically_normal().lexically_relative(kProject / "src");
        if (fs::exists(candidate) && *relative.begin() != "..") {
            return relative.generic_string();
        }
    }
    return {};
}

/// Calls back with each file under the folder and each header that it includes.
template <class Visit>
void forEachInclude(const fs::path& folder, Visit visit) {
    static const std::set<std::string> kSources = {".h", ".hpp", ".cpp", ".c", ".inc", ".idl", ".rc"};
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && kSources.contains(entry.path().extension().string())) {
            std::ifstream stream(entry.path());
            for (std::string line; std::getline(stream, line);) {
                if (const std::optional<std::string> header = headerOf(line)) {
                    visit(entry.path(), *header);
                }
            }
        }
    }
}

TEST(Architecture, TheRuleKnowsGoodFromBad) {
    struct Case {
        std::string file;
        std::string line;
        std::string resolved;
        bool isGood;
    };
    const Case kCases[] = {
        {"core/a.h", "#include \"core/b.h\"", "core/b.h", true},
        {"core/a.h", "#include <vector>", "", true},
        {"core/a.h", "#include <windows.h>", "", false},
        {"core/a.h", "#include <sys/stat>", "", false},
        {"core/a.h", "  #  include \"platform/b.h\"", "platform/b.h", false},
        {"core/a.h", "#include \"../elements/b.h\"", "elements/b.h", false},
        {"core/a.h", "#include \"gone.h\"", "", false},
        {"platform/a.cpp", "#include <windows.h>", "", true},
        {"platform/a.cpp", "#include \"elements/b.h\"", "elements/b.h", false},
        {"elements/a.cpp", "#include \"platform/b.h\"", "platform/b.h", false},
        {"forms/a.cpp", "#include \"elements/b.h\"", "elements/b.h", true},
        {"forms/a.cpp", "#include \"forms/win/b.h\"", "forms/win/b.h", false},
        {"forms/win/a.cpp", "#include \"forms/b.h\"", "forms/b.h", true},
        {"forms/win/a.cpp", "#include \"host/b.h\"", "host/b.h", false},
        {"host/com/a.cpp", "#include \"forms/win/b.h\"", "forms/win/b.h", true},
        {"other/a.cpp", "#include <vector>", "", false},
    };
    for (const Case& c : kCases) {
        const std::optional<std::string> header = headerOf(c.line);
        ASSERT_TRUE(header.has_value()) << c.line;
        EXPECT_EQ(offence(c.file, *header, c.resolved).empty(), c.isGood) << c.file << ": " << c.line;
    }
    EXPECT_FALSE(headerOf("// as in #include \"core/text.h\"").has_value());
    EXPECT_FALSE(headerOf("#define INCLUDED \"core/text.h\"").has_value());
}

TEST(Architecture, NoSourceIncludesALayerAboveItsOwn) {
    std::map<std::string, int> includes;
    forEachInclude(kProject / "src", [&](const fs::path& path, const std::string& header) {
        const std::string file = path.lexically_relative(kProject / "src").generic_string();
        const std::string resolved = resolve(path, header);
        EXPECT_EQ(offence(file, header, resolved), "");
        if (const Layer* const layer = layerOf(file); layer != nullptr && !resolved.empty()) {
            ++includes[layer->folder];
        }
    });
    for (const char* const layer : {"core", "platform", "elements"}) {
        EXPECT_GT(includes[layer], 0) << layer << "/ was not read";
    }
}

TEST(Architecture, TheSamplesStandOnTheirOwn) {
    const fs::path samples = kProject / "samples";
    if (!fs::exists(samples)) {
        GTEST_SKIP() << "no samples yet";
    }
    forEachInclude(samples, [&](const fs::path& path, const std::string& header) {
        EXPECT_EQ(resolve(path, header), "") << path.lexically_relative(kProject) << " includes " << header;
    });
}

}  // namespace

// Reads the includes of the sources and names the file that breaks the rule of the layers:
// core <- platform, elements, forms <- host. The linker finds what is missing in a layer's own
// library; this finds the headers, too.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kProject = QUORVEL_PROJECT_DIR;
const fs::path kSources = kProject / "src";

struct Layer {
    std::string folder;
    std::set<std::string> mayInclude;
    /// Whether headers of the system and generated ones may be included besides the standard library's.
    bool knowsTheSystem;
};

// The first one whose folder begins a path is the file's layer.
const std::vector<Layer> kLayers = {
    {"core", {"core"}, false},
    {"platform", {"core", "platform"}, true},
    {"elements", {"core", "elements"}, false},
    // The windows know the presenters, neither the elements nor the platform's dates and letters.
    {"forms/win", {"core", "forms", "forms/win"}, true},
    {"forms", {"core", "forms"}, false},
    {"host", {"core", "platform", "elements", "forms", "forms/win", "host"}, true},
};

const Layer* layerOf(const std::string& path) {
    const auto found = std::find_if(kLayers.begin(), kLayers.end(),
                                    [&](const Layer& layer) { return path.starts_with(layer.folder + "/"); });
    return found == kLayers.end() ? nullptr : &*found;
}

/// What is wrong with an include of a file of src/; empty when nothing is.
/// @param header the header's name with its delimiters
/// @param resolved the header's path in src/, empty when it is not there
std::string offence(const std::string& file, const std::string& header, const std::string& resolved) {
    const Layer* const layer = layerOf(file);
    if (layer == nullptr) {
        return file + " is in no layer";
    }
    const Layer* const target = layerOf(resolved);
    const bool isStandard = header.front() == '<' && header.find_first_of("./") == std::string::npos;
    const bool isAllowed = resolved.empty() ? isStandard || layer->knowsTheSystem
                                            : target != nullptr && layer->mayInclude.contains(target->folder);
    return isAllowed ? "" : file + " includes " + header + ", which " + layer->folder + "/ must not know";
}

/// The header's path in src/, from the root of src/ or beside the file.
std::string resolve(const fs::path& file, const std::string& header) {
    const std::string name = header.substr(1, header.size() - 2);
    for (const fs::path& candidate : {kSources / name, file.parent_path() / name}) {
        const fs::path relative = candidate.lexically_normal().lexically_relative(kSources);
        if (fs::exists(candidate) && *relative.begin() != "..") {
            return relative.generic_string();
        }
    }
    return {};
}

/// The header that a line includes, with its delimiters; empty when it includes none.
std::string headerOf(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word == "#") {
        words >> word;
        word.insert(0, "#");
    }
    const std::size_t open = line.find_first_of("\"<");
    if (!word.starts_with("#include") || open == std::string::npos) {
        return {};
    }
    return line.substr(open, line.find(line[open] == '<' ? '>' : '"', open + 1) - open + 1);
}

/// Calls back with each file under the folder and each of its lines.
template <class Visit>
void forEachLine(const fs::path& folder, Visit visit) {
    static const std::set<std::string> kExtensions = {".h", ".hpp", ".cpp", ".c", ".inc", ".idl", ".rc"};
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && kExtensions.contains(entry.path().extension().string())) {
            std::ifstream stream(entry.path());
            for (std::string line; std::getline(stream, line);) {
                visit(entry.path(), line);
            }
        }
    }
}

/// Calls back with each file under the folder and each header that it includes.
template <class Visit>
void forEachInclude(const fs::path& folder, Visit visit) {
    forEachLine(folder, [&](const fs::path& path, const std::string& line) {
        if (const std::string header = headerOf(line); !header.empty()) {
            visit(path, header);
        }
    });
}

TEST(Architecture, TheRuleKnowsGoodFromBad) {
    struct Case {
        std::string file, line, resolved;
        bool isGood;
    };
    const Case kCases[] = {
        {"core/a.h", "#include \"core/b.h\"", "core/b.h", true},
        {"core/a.h", "#include <vector>", "", true},
        {"core/a.h", "#include <windows.h>", "", false},
        {"core/a.h", "  #  include \"platform/b.h\"", "platform/b.h", false},
        {"core/a.h", "#include \"../elements/b.h\"", "elements/b.h", false},
        {"core/a.h", "#include \"gone.h\"", "", false},
        {"platform/a.cpp", "#include <windows.h>", "", true},
        {"forms/a.cpp", "#include \"forms/win/b.h\"", "forms/win/b.h", false},
        {"forms/win/a.cpp", "#include \"host/b.h\"", "host/b.h", false},
        {"host/com/a.cpp", "#include \"forms/win/b.h\"", "forms/win/b.h", true},
        {"other/a.cpp", "#include <vector>", "", false},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(offence(c.file, headerOf(c.line), c.resolved).empty(), c.isGood) << c.file << ": " << c.line;
    }
    EXPECT_EQ(headerOf("// #include <vector>"), "");
    EXPECT_EQ(headerOf("#define HEADER \"core/text.h\""), "");
}

TEST(Architecture, NoSourceIncludesALayerAboveItsOwn) {
    std::set<std::string> layersRead;
    forEachInclude(kSources, [&](const fs::path& path, const std::string& header) {
        const std::string file = path.lexically_relative(kSources).generic_string();
        const std::string resolved = resolve(path, header);
        EXPECT_EQ(offence(file, header, resolved), "");
        layersRead.insert(resolved.substr(0, resolved.find('/')));
    });
    for (const char* const layer : {"core", "platform", "elements", "host"}) {
        EXPECT_TRUE(layersRead.contains(layer)) << "no include of " << layer << "/ was read";
    }
}

// With 32-bit MinGW its alignment is 8 or 16, as the includes of a source have it: a class that is laid out by it has
// two sizes in one program.
TEST(Architecture, NothingIsLaidOutByTheMostAlignedType) {
    int lines = 0;
    for (const char* const folder : {"src", "samples"}) {
        forEachLine(kProject / folder, [&](const fs::path& path, const std::string& line) {
            const std::size_t code = std::min(line.find("max_align_t"), line.find("__BIGGEST_ALIGNMENT__"));
            EXPECT_GE(code, line.find("//")) << path.lexically_relative(kProject) << ": " << line;
            ++lines;
        });
    }
    EXPECT_GT(lines, 0) << "no source was read";
}

TEST(Architecture, TheSamplesStandOnTheirOwn) {
    int includes = 0;
    forEachInclude(kProject / "samples", [&](const fs::path& path, const std::string& header) {
        EXPECT_EQ(resolve(path, header), "") << path.lexically_relative(kProject) << " includes " << header;
        ++includes;
    });
    EXPECT_GT(includes, 0) << "no sample was read";
}

}  // namespace

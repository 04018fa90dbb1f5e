#include <cstdlib>
#include <fstream>

#include "accuracy.h"

int main(int argc, char** argv) {
    using namespace quorvel::accuracy;
    Arguments arguments;
    std::ifstream file;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (kUsage.find("[" + argument + "]") != std::string_view::npos) {
            arguments.switches.insert(argument);
        } else if (argument == "--half" && i + 1 < argc) {
            arguments.half = std::atoi(argv[++i]);
        } else {
            file = std::ifstream(argument);
        }
    }
    if (!file.is_open()) {
        std::fprintf(stderr, "usage: %.*s\n", static_cast<int>(kUsage.size()), kUsage.data());
        return 2;
    }
    run(file, arguments);
    return 0;
}

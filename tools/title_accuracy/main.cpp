// title_accuracy FILE.tsv [--misses] [--half 0|1]
//
// How many titles come out exactly as the case says. The file has a heading line and the columns from, to
// and rule: from as the title stands, to as it has to come out, rule "heading" or "sentence". Prints the
// figure for each rule.
//
//   --misses   shows each title that is not exact
//   --half N   only every second case, 0 or 1: to try a rule on titles that it was not made from

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <string>

#include "support/title_cases.h"

namespace {

using namespace quorvel;

struct Count {
    int exact = 0;
    int all = 0;
};

}  // namespace

int main(int argc, char** argv) {
    bool showsMisses = false;
    int half = -1;
    const char* path = nullptr;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--misses") == 0) {
            showsMisses = true;
        } else if (std::strcmp(argv[i], "--half") == 0 && i + 1 < argc) {
            half = std::atoi(argv[++i]);
        } else {
            path = argv[i];
        }
    }
    std::ifstream file;
    if (path != nullptr) {
        file.open(path);
    }
    if (!file.is_open()) {
        std::fprintf(stderr, "usage: title_accuracy FILE.tsv [--misses] [--half 0|1]\n");
        return 2;
    }
    std::map<std::string, Count> counts;
    int number = 0;
    for (const test::TitleCase& title : test::readTitleCases(file)) {
        if (half >= 0 && number++ / 2 % 2 != half) {
            continue;
        }
        const Text cased = test::casedFor(title);
        Count& count = counts[title.rule];
        ++count.all;
        if (cased == title.to) {
            ++count.exact;
        } else if (showsMisses) {
            std::printf("%s: %s\n    is    %s\n    right %s\n", title.rule.c_str(), test::utf8Of(title.from).c_str(),
                        test::utf8Of(cased).c_str(), test::utf8Of(title.to).c_str());
        }
    }
    for (const auto& [rule, count] : counts) {
        std::printf("%-10s %5d of %5d  %6.2f %%\n", rule.c_str(), count.exact, count.all,
                    100.0 * count.exact / count.all);
    }
    return 0;
}

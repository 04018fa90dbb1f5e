// title_accuracy FILE.tsv [--misses] [--half 0|1]
//
// How many titles come out exactly as the case says. The file has a heading line and the columns from, to
// and rule: from as the title stands, to as it has to come out, rule "heading" or "sentence". Prints the
// figure for each rule.
//
//   --misses   shows each title that is not exact
//   --half N   only every second case, 0 or 1: to try a rule on titles that it was not made from

#include <map>

#include "accuracy.h"
#include "support/title_cases.h"

namespace quorvel::accuracy {

const std::string_view kUsage = "title_accuracy FILE.tsv [--misses] [--half 0|1]";

void run(std::istream& file, const Arguments& arguments) {
    std::map<std::string, Count> counts;
    int number = 0;
    for (const test::TitleCase& title : test::readTitleCases(file)) {
        if (arguments.half >= 0 && number++ / 2 % 2 != arguments.half) {
            continue;
        }
        const Text cased = test::casedFor(title);
        counts[title.rule].add(cased == title.to);
        if (cased != title.to && arguments.has("--misses")) {
            std::printf("%s: %s\n    is    %s\n    right %s\n", title.rule.c_str(), test::utf8Of(title.from).c_str(),
                        test::utf8Of(cased).c_str(), test::utf8Of(title.to).c_str());
        }
    }
    for (const auto& [rule, count] : counts) {
        print("", 10, rule.c_str(), count);
    }
}

}  // namespace quorvel::accuracy

#pragma once

#include <cstdio>
#include <istream>
#include <set>
#include <string>
#include <string_view>

/// What the programs share that count how many of a file's cases the library gets right: their `main`, in
/// accuracy_main.cpp. A program gives a usage and does the counting.
namespace quorvel::accuracy {

struct Arguments {
    /// Those of the program's switches that were given: "--misses".
    std::set<std::string, std::less<>> switches;
    /// 0 or 1: only every second case; -1: all.
    int half = -1;

    bool has(std::string_view name) const { return switches.contains(name); }
};

struct Count {
    int exact = 0;
    int all = 0;

    void add(bool isExact) {
        exact += isExact ? 1 : 0;
        ++all;
    }
};

/// "exact of all, percent" behind a name of this width.
inline void print(const char* indent, int width, const char* name, const Count& count) {
    std::printf("%s%-*s %5d of %5d  %6.2f %%\n", indent, width, name, count.exact, count.all,
                100.0 * count.exact / count.all);
}

/// The program's name and arguments; what stands in it as "[--name]" is a switch.
extern const std::string_view kUsage;
void run(std::istream& file, const Arguments& arguments);

}  // namespace quorvel::accuracy

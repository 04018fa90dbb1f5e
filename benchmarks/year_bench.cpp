#include "elements/year.h"

#include <benchmark/benchmark.h>

namespace quorvel::bench {
namespace {

OutputTemplateYear mlaYear() {
    OutputTemplateYear year;
    year.Initialize(nullptr);
    year.Reset({true, false, true, u"c.", true, u"n.d.", false});
    return year;
}

void parseAndFormatYear(benchmark::State& state, TextView text) {
    OutputTemplateYear year = mlaYear();
    for (auto _ : state) {
        benchmark::DoNotOptimize(year.formatStr(text));
    }
}
BENCHMARK_CAPTURE(parseAndFormatYear, plain, u"1990");
BENCHMARK_CAPTURE(parseAndFormatYear, circa, u"[ca. 1990-1995]");
BENCHMARK_CAPTURE(parseAndFormatYear, date, u"September 1, 2011");

/// The time for each character stays the same when the growth is linear.
void yearPerCharacter(benchmark::State& state) {
    OutputTemplateYear year = mlaYear();
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"1990, [May] 5-";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            benchmark::DoNotOptimize(year.formatStr(text));
        }
    }
}
BENCHMARK(yearPerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

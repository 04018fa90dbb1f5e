#include "elements/page.h"

#include <benchmark/benchmark.h>

namespace quorvel::bench {
namespace {

OutputTemplatePage turabianPage() {
    OutputTemplatePage page;
    page.Initialize(nullptr);
    page.Reset({false, true, true, false, false, true, u"n.p.", u"chap.", u"chaps.", u"par.", u"pars.", true, true});
    return page;
}

Text parseAndFormat(OutputTemplatePage& page, TextView text) {
    Text parsed(text);
    page.Parse(parsed, {});
    return page.toString(false, false);
}

void parseAndFormatPage(benchmark::State& state, TextView text) {
    OutputTemplatePage page = turabianPage();
    for (auto _ : state) {
        benchmark::DoNotOptimize(parseAndFormat(page, text));
    }
}
BENCHMARK_CAPTURE(parseAndFormatPage, single, u"45");
BENCHMARK_CAPTURE(parseAndFormatPage, range, u"379-423");
BENCHMARK_CAPTURE(parseAndFormatPage, chaptersWithNotes, u"chaps. 101\u2013108nn3-4");
BENCHMARK_CAPTURE(parseAndFormatPage, list, u"B1, B4, B5-B7");

/// The time for each character stays the same when the growth is linear.
void pagePerCharacter(benchmark::State& state, TextView piece) {
    OutputTemplatePage page = turabianPage();
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += piece;
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            benchmark::DoNotOptimize(parseAndFormat(page, text));
        }
    }
}
BENCHMARK_CAPTURE(pagePerCharacter, list, u"321-328, xii-xiv, ")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(pagePerCharacter, dashes, u"1-2-")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

#include "elements/citation/citation.h"

#include <benchmark/benchmark.h>

namespace quorvel::bench {
namespace {

void parseCitation(benchmark::State& state, TextView text) {
    OutputTemplateCitation citation;
    Text parsed;
    for (auto _ : state) {
        parsed = text;
        citation.Parse(parsed, {});
    }
}
BENCHMARK_CAPTURE(parseCitation, authorDatePage, u"(Smith & Jones, 2005, p. 12)");
BENCHMARK_CAPTURE(parseCitation, note, u"Kuhn, Structure of Scientific Revolutions, 52.");

/// The time for each character stays the same when the growth is linear.
void citationPerCharacter(benchmark::State& state, TextView first, TextView repeated) {
    OutputTemplateCitation citation;
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length / 2) {
        text += first;
    }
    while (text.size() < length) {
        text += repeated;
    }
    Text parsed;
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parsed = text;
            citation.Parse(parsed, {});
        }
    }
}
BENCHMARK_CAPTURE(citationPerCharacter, pages, u"1-2, ", u"p. 1, ")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(citationPerCharacter, authors, u"aaaaaaaaaa", u", and b")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

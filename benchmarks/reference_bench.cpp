// Whole references: all elements parsed and written, and the reference laid out.

#include <benchmark/benchmark.h>

#include <malloc.h>

#include "whole_reference.h"

namespace quorvel::bench {
namespace {

constexpr std::size_t kBibliography = 1'000;

std::vector<Reference> bibliographyIn(Style::Name name) {
    Style style(name);
    std::vector<Reference> bibliography;
    while (bibliography.size() < kBibliography) {
        bibliography.push_back(style.elementsOf(references()[bibliography.size() % references().size()]));
    }
    return bibliography;
}

void wholeReference(benchmark::State& state, Style::Name name) {
    Style style(name);
    const auto sink = std::make_shared<PhraseSink>();
    std::size_t i = 0;
    for (auto _ : state) {
        sink->Reset();
        style.write(references()[i++ % references().size()], sink);
    }
    state.counters["referencesPerSecond"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK_CAPTURE(wholeReference, mla, Style::kMla);
BENCHMARK_CAPTURE(wholeReference, apa, Style::kApa);
BENCHMARK_CAPTURE(wholeReference, turabian, Style::kTurabian);
BENCHMARK_CAPTURE(wholeReference, ama, Style::kAma);

/// A thousand references as they stand in one style are written in another, which is set up as well.
void switchOfAThousand(benchmark::State& state, Style::Name from, Style::Name to) {
    const std::vector<Reference> bibliography = bibliographyIn(from);
    for (auto _ : state) {
        Style style(to);
        const auto sink = std::make_shared<PhraseSink>();
        for (const Reference& reference : bibliography) {
            sink->Reset();
            style.write(reference, sink);
        }
        benchmark::DoNotOptimize(sink->text().size());
    }
}
BENCHMARK_CAPTURE(switchOfAThousand, mlaToApa, Style::kMla, Style::kApa)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(switchOfAThousand, apaToAma, Style::kApa, Style::kAma)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(switchOfAThousand, amaToTurabian, Style::kAma, Style::kTurabian)->Unit(benchmark::kMillisecond);

/// Bytes in use: what the allocator has given out and not got back.
double memory() {
    return static_cast<double>(mallinfo2().uordblks);
}

/// What a million references leave behind.
void memoryOfAMillion(benchmark::State& state) {
    Style style(Style::kApa);
    const auto sink = std::make_shared<PhraseSink>();
    const auto write = [&](std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            sink->Reset();
            style.write(references()[i % references().size()], sink);
        }
    };
    write(kBibliography);
    const double before = memory();
    for (auto _ : state) {
        write(1'000'000);
    }
    state.counters["growthInBytes"] = memory() - before;
}
BENCHMARK(memoryOfAMillion)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvel::bench

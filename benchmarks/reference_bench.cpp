// Whole references: all elements parsed and written, and the reference laid out.

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <thread>

#include "whole_reference.h"

namespace quorvel::bench {
namespace {

constexpr std::size_t kBibliography = 1'000;

std::vector<Reference> bibliographyIn(const std::string& name) {
    Style style(name);
    std::vector<Reference> bibliography;
    while (bibliography.size() < kBibliography) {
        bibliography.push_back(style.elementsOf(references()[bibliography.size() % references().size()]));
    }
    return bibliography;
}

void writeAll(Style& style, const std::vector<Reference>& all, const std::shared_ptr<PhraseSink>& sink) {
    for (const Reference& reference : all) {
        sink->Reset();
        style.write(reference, sink);
    }
}

void countReferences(benchmark::State& state, const std::vector<Reference>& all) {
    state.counters["referencesPerSecond"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * static_cast<double>(all.size()), benchmark::Counter::kIsRate);
}

/// All references of the file for the first time: by a style just set up, in a thread where nothing is known yet.
void wholeReferencesFirst(benchmark::State& state, const char* name) {
    for (auto _ : state) {
        std::thread([&] {
            Style style(name);
            const auto sink = std::make_shared<PhraseSink>();
            const auto began = std::chrono::steady_clock::now();
            writeAll(style, references(), sink);
            state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count());
        }).join();
    }
    countReferences(state, references());
}
BENCHMARK_CAPTURE(wholeReferencesFirst, mla, "mla")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesFirst, apa, "apa")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesFirst, turabian, "turabian")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesFirst, ama, "ama")->UseManualTime()->Unit(benchmark::kMillisecond);

/// The same once more by a style that has written them before.
void wholeReferencesAgain(benchmark::State& state, const char* name) {
    Style style(name);
    const auto sink = std::make_shared<PhraseSink>();
    writeAll(style, references(), sink);
    for (auto _ : state) {
        writeAll(style, references(), sink);
    }
    countReferences(state, references());
}
BENCHMARK_CAPTURE(wholeReferencesAgain, mla, "mla")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesAgain, apa, "apa")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesAgain, turabian, "turabian")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesAgain, ama, "ama")->Unit(benchmark::kMillisecond);

/// References with all elements: editions, volumes, series, issues, newspapers, dates, addresses, media, and what
/// refers to other works.
void wholeReferencesOfAllElements(benchmark::State& state, const char* name) {
    Style style(name, kElements);
    const auto sink = std::make_shared<PhraseSink>();
    for (auto _ : state) {
        writeAll(style, sampleReferences(), sink);
    }
    countReferences(state, sampleReferences());
}
BENCHMARK_CAPTURE(wholeReferencesOfAllElements, mla, "mla")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesOfAllElements, apa, "apa")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesOfAllElements, turabian, "turabian")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeReferencesOfAllElements, ama, "ama")->Unit(benchmark::kMillisecond);

/// A thousand references as they stand in one style are written in another, which is set up as well.
void switchOfAThousand(benchmark::State& state, const char* from, const char* to) {
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
BENCHMARK_CAPTURE(switchOfAThousand, mlaToApa, "mla", "apa")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(switchOfAThousand, apaToAma, "apa", "ama")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(switchOfAThousand, amaToTurabian, "ama", "turabian")->Unit(benchmark::kMillisecond);

/// Bytes in use: what the allocator has given out and not got back.
double memory() {
    return static_cast<double>(mallinfo2().uordblks);
}

/// What a million references leave behind.
void memoryOfAMillion(benchmark::State& state) {
    Style style("apa");
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

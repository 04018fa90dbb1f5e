#pragma once

#include <benchmark/benchmark.h>

#include <initializer_list>
#include <memory>
#include <string>

#include "null_sink.h"

/// Two questions to each element: how long do its texts take, and does the time grow with a text as it should? An
/// element gives the work, a callable that takes a text and what the host tells beside it, and the texts.
namespace quorvel::bench {

struct TextCase {
    const char* name;
    TextView text;
    TextView secondary = {};
};

/// A text of any length: its beginning, a piece that fills the first half, one that fills the rest, its end.
struct GrowthCase {
    /// Empty for the only case.
    const char* name = "";
    TextView lead = {};
    TextView half = {};
    TextView piece = {};
    TextView end = {};
    TextView secondary = {};

    Text of(std::size_t length) const {
        Text text(lead);
        while (!half.empty() && text.size() < length / 2) {
            text += half;
        }
        while (text.size() < length) {
            text += piece;
        }
        return text.append(end);
    }
};

/// Measures the work on each text.
/// @param makeWork makes it; called anew for each benchmark
template <class MakeWork>
bool benchTexts(const std::string& name, MakeWork makeWork, std::initializer_list<TextCase> cases) {
    for (const TextCase& c : cases) {
        benchmark::RegisterBenchmark((name + "/" + c.name).c_str(), [=](benchmark::State& state) {
            auto work = makeWork();
            for (auto _ : state) {
                work(c.text, c.secondary);
            }
        });
    }
    return true;
}

/// Measures the work on 100,000 characters in texts of growing length: the time stays the same when the growth is
/// linear.
template <class MakeWork>
bool benchGrowth(const std::string& name, MakeWork makeWork, std::initializer_list<GrowthCase> cases) {
    for (const GrowthCase& c : cases) {
        const std::string suffix = *c.name == '\0' ? "" : std::string("/") + c.name;
        benchmark::RegisterBenchmark((name + suffix).c_str(),
                                     [=](benchmark::State& state) {
                                         auto work = makeWork();
                                         const auto length = static_cast<std::size_t>(state.range(0));
                                         const Text text = c.of(length);
                                         for (auto _ : state) {
                                             for (std::size_t done = 0; done < 100'000; done += length) {
                                                 work(text, c.secondary);
                                             }
                                         }
                                     })
            ->Arg(100)
            ->Arg(1'000)
            ->Arg(10'000)
            ->Arg(100'000)
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}

/// An element under these options.
template <class Element, class Options>
std::shared_ptr<Element> elementWith(const Options& options) {
    auto element = std::make_shared<Element>();
    element->Initialize(std::make_shared<NullSink>());
    element->Reset(options);
    return element;
}

/// The work of most elements: reads the text and writes it into a sink.
template <class Element>
auto parseAndWrite(std::shared_ptr<Element> element) {
    return [element, sink = std::make_shared<NullSink>()](TextView text, TextView secondary) {
        Text parsed(text);
        element->Parse(parsed, secondary);
        element->ToFormattedString(sink, false, false);
        benchmark::DoNotOptimize(sink->length());
    };
}

}  // namespace quorvel::bench

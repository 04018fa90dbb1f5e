#include "elements/newspaper.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateNewspaper& newspaper, const std::shared_ptr<NullSink>& sink, TextView text) {
    Text parsed(text);
    newspaper.Parse(parsed, {});
    newspaper.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateNewspaper mlaNewspaper(const std::shared_ptr<NullSink>& sink) {
    OutputTemplateNewspaper newspaper;
    newspaper.Initialize(sink);
    newspaper.Reset({false, u"[]", u""});
    return newspaper;
}

void parseAndFormatNewspaper(benchmark::State& state, TextView text) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateNewspaper newspaper = mlaNewspaper(sink);
    for (auto _ : state) {
        parseAndWrite(newspaper, sink, text);
    }
}
BENCHMARK_CAPTURE(parseAndFormatNewspaper, title, u"The New York Times");
BENCHMARK_CAPTURE(parseAndFormatNewspaper, city, u"Globe and Mail (Toronto)");

/// The time for each character stays the same when the growth is linear.
void newspaperPerCharacter(benchmark::State& state) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateNewspaper newspaper = mlaNewspaper(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"Times [London (";
    }
    text += u"]";
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(newspaper, sink, text);
        }
    }
}
BENCHMARK(newspaperPerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

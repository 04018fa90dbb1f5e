#include "elements/online.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateOnline& online, const std::shared_ptr<NullSink>& sink, TextView text) {
    Text parsed(text);
    online.Parse(parsed, {});
    online.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateOnline apaOnline(const std::shared_ptr<NullSink>& sink) {
    OutputTemplateOnline online;
    online.Initialize(sink);
    online.Reset({true, true, true, u"doi:"});
    return online;
}

void parseAndFormatOnline(benchmark::State& state, TextView text) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateOnline online = apaOnline(sink);
    for (auto _ : state) {
        parseAndWrite(online, sink, text);
    }
}
BENCHMARK_CAPTURE(parseAndFormatOnline, address, u"http://www.example.org/articles/2011/index.html");
BENCHMARK_CAPTURE(parseAndFormatOnline, doi, u"https://doi.org/10.1000/182");
BENCHMARK_CAPTURE(parseAndFormatOnline, eric, u"Retrieved from ERIC database. (ED482912)");

/// The time for each character stays the same when the growth is linear.
void onlinePerCharacter(benchmark::State& state) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateOnline online = apaOnline(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"Retrieved 1 from ED 4 www . ft";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(online, sink, text);
        }
    }
}
BENCHMARK(onlinePerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

#include "elements/publisher.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplatePublisher& publisher, const std::shared_ptr<NullSink>& sink, TextView text) {
    Text parsed(text);
    publisher.Parse(parsed, {});
    publisher.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplatePublisher mlaPublisher(const std::shared_ptr<NullSink>& sink) {
    OutputTemplatePublisher publisher;
    publisher.Initialize(sink);
    publisher.Reset({true, true, false, true, true});
    return publisher;
}

void parseAndFormatPublisher(benchmark::State& state, TextView text) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplatePublisher publisher = mlaPublisher(sink);
    for (auto _ : state) {
        parseAndWrite(publisher, sink, text);
    }
}
BENCHMARK_CAPTURE(parseAndFormatPublisher, name, u"University of Chicago Press");
BENCHMARK_CAPTURE(parseAndFormatPublisher, coPublisher, u"Belknap P-Harvard UP; London: Oxford UP");

/// The time for each character stays the same when the growth is linear.
void publisherPerCharacter(benchmark::State& state) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplatePublisher publisher = mlaPublisher(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"Anchor-University U; Co: ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(publisher, sink, text);
        }
    }
}
BENCHMARK(publisherPerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

#include "elements/multi_vol/multi_vol.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateMultiVol& volumes, const std::shared_ptr<NullSink>& sink, TextView text,
                   TextView caption) {
    Text parsed(text);
    volumes.Parse(parsed, caption);
    volumes.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateMultiVol mlaMultiVol(const std::shared_ptr<NullSink>& sink) {
    OutputTemplateMultiVol volumes;
    volumes.Initialize(sink);
    MultiVolOptions options;
    options.SupportGeneralEditor = true;
    options.addPeriodToVol = true;
    volumes.Reset(options);
    return volumes;
}

void parseAndFormatMultiVol(benchmark::State& state, TextView text, TextView caption) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateMultiVol volumes = mlaMultiVol(sink);
    for (auto _ : state) {
        parseAndWrite(volumes, sink, text, caption);
    }
}
BENCHMARK_CAPTURE(parseAndFormatMultiVol, volume, u"Vol. 3", OutputTemplateMultiVol::kMultiVolCaption);
BENCHMARK_CAPTURE(parseAndFormatMultiVol, count, u"3 vols.", OutputTemplateMultiVol::kMultiVolCaption);
BENCHMARK_CAPTURE(parseAndFormatMultiVol, statement,
                  u"Vol. 5 of A Selected Edition of W. D. Howells. Edwin H. Cady, gen. ed. 32 vols. 1968-83",
                  OutputTemplateMultiVol::kMultiVolCaption);
BENCHMARK_CAPTURE(parseAndFormatMultiVol, series, u"Latin Amer. Lit. and Culture 7", u"Series");

/// The time for each character stays the same when the growth is linear.
void multiVolPerCharacter(benchmark::State& state, TextView caption) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateMultiVol volumes = mlaMultiVol(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"Vol. 3 of A. Ed. B, no. 2 vols. ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(volumes, sink, text, caption);
        }
    }
}
BENCHMARK_CAPTURE(multiVolPerCharacter, text, OutputTemplateMultiVol::kMultiVolCaption)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

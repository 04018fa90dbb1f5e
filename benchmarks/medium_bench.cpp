#include "elements/medium/medium.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateMedium& medium, const std::shared_ptr<NullSink>& sink, TextView text,
                   TextView caption) {
    Text parsed(text);
    medium.Parse(parsed, caption);
    medium.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateMedium mlaMedium(const std::shared_ptr<NullSink>& sink) {
    OutputTemplateMedium medium;
    medium.Initialize(sink);
    MediumOptions options;
    options.SupportsAdvancedCD = true;
    medium.Reset(options);
    return medium;
}

void parseAndFormatMedium(benchmark::State& state, TextView text, TextView caption) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateMedium medium = mlaMedium(sink);
    for (auto _ : state) {
        parseAndWrite(medium, sink, text, caption);
    }
}
BENCHMARK_CAPTURE(parseAndFormatMedium, cd, u"CD-ROM", TextView());
BENCHMARK_CAPTURE(parseAndFormatMedium, disc, u"CD-ROM. Version 2.0. Disc 3", TextView());
BENCHMARK_CAPTURE(parseAndFormatMedium, microform, u"Microform. NewsBank: Welfare 12 (1990): fiche 1, grids A8-11",
                  TextView());

/// The time for each character stays the same when the growth is linear.
void mediumPerCharacter(benchmark::State& state, TextView caption) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateMedium medium = mlaMedium(sink);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"CD-ROM. Disc: fiche A, row (1990). ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(medium, sink, text, caption);
        }
    }
}
BENCHMARK_CAPTURE(mediumPerCharacter, text, TextView())
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

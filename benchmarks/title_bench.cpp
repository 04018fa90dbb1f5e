#include "elements/title/title.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

std::shared_ptr<OutputTemplateTitle> titleIn(std::int16_t format, bool sentenceCapitalization) {
    auto title = std::make_shared<OutputTemplateTitle>();
    title->Initialize(std::make_shared<NullSink>());
    title->Reset({format, nullptr, sentenceCapitalization, true, u"", true, u"", true, u""});
    return title;
}

void parseAndFormatTitle(benchmark::State& state, TextView text, bool sentenceCapitalization) {
    const auto title = titleIn(sentenceCapitalization ? 1 : 2, sentenceCapitalization);
    const auto sink = std::make_shared<NullSink>();
    Text parsed;
    for (auto _ : state) {
        parsed = text;
        title->Parse(parsed, {});
        title->ToFormattedString(sink, false, false);
    }
}
BENCHMARK_CAPTURE(parseAndFormatTitle, heading, u"The structure of scientific revolutions", false);
BENCHMARK_CAPTURE(parseAndFormatTitle, headingLong, u"Guns, germs, and steel: The fates of human societies", false);
BENCHMARK_CAPTURE(parseAndFormatTitle, sentence, u"The Structure of Scientific Revolutions", true);
BENCHMARK_CAPTURE(parseAndFormatTitle, sentenceLong, u"The Power Broker: Robert Moses and the Fall of New York", true);

/// The time for each character stays the same when the growth is linear.
void titlePerCharacter(benchmark::State& state, bool sentenceCapitalization) {
    const auto title = titleIn(2, sentenceCapitalization);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    while (text.size() < length) {
        text += u"The War-Time Letters of E. Coli vs. New York: ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            benchmark::DoNotOptimize(title->formatRule(text));
        }
    }
}
BENCHMARK_CAPTURE(titlePerCharacter, heading, false)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(titlePerCharacter, sentence, true)
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

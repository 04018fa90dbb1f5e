#include <benchmark/benchmark.h>

#include "null_sink.h"
#include "support/refers_to_preset.h"

namespace quorvel::bench {
namespace {

std::shared_ptr<OutputTemplateRefersTo> elementOf(std::string_view style) {
    const auto sink = std::make_shared<NullSink>();
    auto element = std::make_shared<OutputTemplateRefersTo>();
    element->Initialize(sink);
    element->Reset(test::refersToOptions(style, sink));
    return element;
}

void parseAndWrite(OutputTemplateRefersTo& element, const std::shared_ptr<NullSink>& sink, TextView statement) {
    Text text(statement);
    element.Parse(text, {});
    element.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

void parseAndFormatRefersTo(benchmark::State& state, std::string_view style, TextView statement) {
    const auto element = elementOf(style);
    const auto sink = std::make_shared<NullSink>();
    for (auto _ : state) {
        parseAndWrite(*element, sink, statement);
    }
}
BENCHMARK_CAPTURE(parseAndFormatRefersTo, retracted, "ama", u"retracted in: Lancet. 2010;375(9713):445");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, retraction, "ama",
                  u"retraction of: Hwang WS, Roh SI, Lee BC, et al. In: Science. 2005;308(5729):1777-1783");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, reprint, "mla",
                  u"Rpt. in Twentieth-Century Literary Criticism. Ed. Dennis Poupard. Vol. 25. Detroit: Gale, 1988. "
                  u"399-402");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, serialized, "mla",
                  u"Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, serialArticle, "mla", u"52.4 (1981): 688-705; 53.1 (1981): 164-80");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, translator, "mla", u"Trans. Jane Smith");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, abstract, "ama", u"[abstract]");

/// The time for each character stays the same when the growth is linear.
void refersToPerCharacter(benchmark::State& state, TextView lead) {
    const auto element = elementOf("mla");
    const auto sink = std::make_shared<NullSink>();
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text(lead);
    while (text.size() < length) {
        text += u"Lee K. A title; in St. Louis: 52.4 (1981), ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(*element, sink, text);
        }
    }
}
BENCHMARK_CAPTURE(refersToPerCharacter, abstract, u"abstract of ")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(refersToPerCharacter, reprint, u"Rpt. in ")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(refersToPerCharacter, text, u"")
    ->Arg(100)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

#include "elements/edition/edition.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"

namespace quorvel::bench {
namespace {

void parseAndWrite(OutputTemplateEdition& edition, const std::shared_ptr<NullSink>& sink, TextView text) {
    Text parsed(text);
    edition.Parse(parsed, {});
    edition.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

OutputTemplateEdition editionOf(const std::shared_ptr<NullSink>& sink, std::int32_t format) {
    const auto page = std::make_shared<OutputTemplatePage>();
    page->Initialize(nullptr);
    page->Reset(PageOptions());
    OutputTemplateEdition edition;
    edition.Initialize(sink);
    edition.Reset({format, page});
    return edition;
}

void parseAndFormatEdition(benchmark::State& state, TextView text, std::int32_t format) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateEdition edition = editionOf(sink, format);
    for (auto _ : state) {
        parseAndWrite(edition, sink, text);
    }
}
BENCHMARK_CAPTURE(parseAndFormatEdition, numbered, u"2nd ed.", 2);
BENCHMARK_CAPTURE(parseAndFormatEdition, named, u"Revised and updated edition", 3);
BENCHMARK_CAPTURE(parseAndFormatEdition, year, u"1925", 1);
BENCHMARK_CAPTURE(parseAndFormatEdition, journal, u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884", 2);
BENCHMARK_CAPTURE(parseAndFormatEdition, book,
                  u"(Reprinted from Manual of child psychology, pp. 703-732, by P. H. Mussen, Ed., 1970, New York, NY: "
                  u"Wiley)",
                  1);
BENCHMARK_CAPTURE(parseAndFormatEdition, translation, u"Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)", 3);

/// The time for each character stays the same when the growth is linear.
void editionPerCharacter(benchmark::State& state, TextView leadIn, TextView piece) {
    const auto sink = std::make_shared<NullSink>();
    OutputTemplateEdition edition = editionOf(sink, 2);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text(leadIn);
    while (text.size() < length) {
        text += piece;
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            parseAndWrite(edition, sink, text);
        }
    }
}
void lengths(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);
}
BENCHMARK_CAPTURE(editionPerCharacter, names, u"", u"revised ed. 1925 ")->Apply(lengths);
BENCHMARK_CAPTURE(editionPerCharacter, sentences, u"Rpt. of ", u"E. L. X: Y, 1925. By (1992): ")->Apply(lengths);
BENCHMARK_CAPTURE(editionPerCharacter, list, u"Reprinted from ", u"A, by B, Ed., 1970, C: D, ")->Apply(lengths);
BENCHMARK_CAPTURE(editionPerCharacter, parentheses, u"Originally published as ", u"(A (B: C, 1970), ")->Apply(lengths);

}  // namespace
}  // namespace quorvel::bench

#include "elements/refers_to/refers_to.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"
#include "support/style_presets.h"

namespace quorvel::bench {
namespace {

/// A style with its own elements, of which this one keeps copies.
std::shared_ptr<OutputTemplateRefersTo> elementOf(bool isMla) {
    const auto sink = std::make_shared<NullSink>();
    RefersToOptions options;
    options.useSer = options.useTrans = options.endsEditionWithEd = isMla;
    options.format = isMla ? stylecodes::kMla : stylecodes::kAma;
    options.authorTemplate = std::make_shared<OutputTemplateAuthor>();
    options.authorTemplate->Initialize(sink);
    options.authorTemplate->Reset(isMla ? test::mlaAuthorOptions() : test::amaAuthorOptions());
    options.pageTemplate = std::make_shared<OutputTemplatePage>();
    options.pageTemplate->Initialize(sink);
    PageOptions pages;
    pages.shortenedPage = isMla;
    options.pageTemplate->Reset(pages);
    options.publisherTemplate = std::make_shared<OutputTemplatePublisher>();
    options.publisherTemplate->Initialize(sink);
    options.publisherTemplate->Reset({isMla, isMla, false, isMla, isMla});
    auto element = std::make_shared<OutputTemplateRefersTo>();
    element->Initialize(sink);
    element->Reset(options);
    return element;
}

void parseAndWrite(OutputTemplateRefersTo& element, const std::shared_ptr<NullSink>& sink, TextView statement) {
    Text text(statement);
    element.Parse(text, {});
    element.ToFormattedString(sink, false, false);
    benchmark::DoNotOptimize(sink->length());
}

void parseAndFormatRefersTo(benchmark::State& state, bool isMla, TextView statement) {
    const auto element = elementOf(isMla);
    const auto sink = std::make_shared<NullSink>();
    for (auto _ : state) {
        parseAndWrite(*element, sink, statement);
    }
}
BENCHMARK_CAPTURE(parseAndFormatRefersTo, retracted, false, u"retracted in: Lancet. 2010;375(9713):445");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, retraction, false,
                  u"retraction of: Hwang WS, Roh SI, Lee BC, et al. In: Science. 2005;308(5729):1777-1783");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, reprint, true,
                  u"Rpt. in Twentieth-Century Literary Criticism. Ed. Dennis Poupard. Vol. 25. Detroit: Gale, 1988. "
                  u"399-402");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, serialized, true,
                  u"Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, serialArticle, true, u"52.4 (1981): 688-705; 53.1 (1981): 164-80");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, translator, true, u"Trans. Jane Smith");
BENCHMARK_CAPTURE(parseAndFormatRefersTo, abstract, false, u"[abstract]");

/// The time for each character stays the same when the growth is linear.
void refersToPerCharacter(benchmark::State& state, TextView lead) {
    const auto element = elementOf(true);
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

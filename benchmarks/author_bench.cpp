#include "elements/author/author.h"

#include <benchmark/benchmark.h>

#include "null_sink.h"
#include "support/style_presets.h"

namespace quorvel::bench {
namespace {

std::shared_ptr<OutputTemplateAuthor> elementOf(const AuthorOptions& options) {
    auto element = std::make_shared<OutputTemplateAuthor>();
    element->Initialize(std::make_shared<NullSink>());
    element->Reset(options);
    return element;
}

void parseAndFormatAuthors(benchmark::State& state, TextView list) {
    const auto element = elementOf(test::apaAuthorOptions());
    const auto sink = std::make_shared<NullSink>();
    Text text;
    for (auto _ : state) {
        text = list;
        element->Parse(text, {});
        element->ToFormattedString(sink, false, false);
    }
}
BENCHMARK_CAPTURE(parseAndFormatAuthors, apa, u"Miller, K. J., Sorensen, L. B., & den Nijs, M.");
BENCHMARK_CAPTURE(parseAndFormatAuthors, mla, u"Warnier, Martijn, David de Groot, and Frances Brazier");
BENCHMARK_CAPTURE(parseAndFormatAuthors, ama, u"Fromhold AT Jr, van der Meer MA, Carmichael JE");
BENCHMARK_CAPTURE(parseAndFormatAuthors, corporate, u"National Science and Technology Committee");

/// Setting another style, which lays the slots out anew.
void switchStyle(benchmark::State& state) {
    const auto presets = test::authorPresets();
    const auto element = elementOf(presets[0].options);
    std::size_t i = 0;
    for (auto _ : state) {
        element->Reset(presets[++i % presets.size()].options);
    }
}
BENCHMARK(switchStyle);

/// The time for each character stays the same when the growth is linear.
void authorsPerCharacter(benchmark::State& state) {
    const auto element = elementOf(test::mlaAuthorOptions());
    const auto length = static_cast<std::size_t>(state.range(0));
    Text list;
    while (list.size() < length) {
        list += u"van der Meer, M. A., & Smith-Jones, K. ";
    }
    Text text;
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            text = list;
            element->Parse(text, {});
        }
    }
}
BENCHMARK(authorsPerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

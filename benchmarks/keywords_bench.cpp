#include "elements/keywords.h"

#include <benchmark/benchmark.h>

namespace quorvel::bench {
namespace {

/// The time for each character grows with the logarithm at most, since the words are sorted. Every
/// word is a new one.
void keywordsPerCharacter(benchmark::State& state) {
    OutputTemplateKeywords keywords;
    keywords.Initialize(nullptr);
    const auto length = static_cast<std::size_t>(state.range(0));
    Text text;
    for (std::size_t word = 0; text.size() < length; ++word) {
        text += u"word";
        for (std::size_t rest = word; rest > 0; rest /= 26) {
            text += static_cast<char16_t>(u'a' + rest % 26);
        }
        text += u", The ";
    }
    for (auto _ : state) {
        for (std::size_t done = 0; done < 100'000; done += length) {
            keywords.Parse(text, {});
            benchmark::DoNotOptimize(keywords.toString(false, false));
        }
    }
}
BENCHMARK(keywordsPerCharacter)->Arg(100)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorvel::bench

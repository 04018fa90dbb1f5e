#include "elements/author/author.h"

#include "element_bench.h"
#include "support/style_presets.h"

namespace quorvel::bench {
namespace {

auto apaAuthor() {
    return parseAndWrite(elementWith<OutputTemplateAuthor>(test::apaAuthorOptions()));
}

const bool kTexts = benchTexts("parseAndFormatAuthors", apaAuthor,
                               {{"apa", u"Miller, K. J., Sorensen, L. B., & den Nijs, M."},
                                {"mla", u"Warnier, Martijn, David de Groot, and Frances Brazier"},
                                {"ama", u"Fromhold AT Jr, van der Meer MA, Carmichael JE"},
                                {"corporate", u"National Science and Technology Committee"}});

auto reading() {
    return [element = elementWith<OutputTemplateAuthor>(test::mlaAuthorOptions())](TextView list, TextView secondary) {
        Text text(list);
        element->Parse(text, secondary);
    };
}

const bool kGrowth =
    benchGrowth("authorsPerCharacter", reading, {{.piece = u"van der Meer, M. A., & Smith-Jones, K. "}});

/// Setting another style, which lays the slots out anew.
void switchStyle(benchmark::State& state) {
    const auto presets = test::authorPresets();
    const auto element = elementWith<OutputTemplateAuthor>(presets[0].options);
    std::size_t i = 0;
    for (auto _ : state) {
        element->Reset(presets[++i % presets.size()].options);
    }
}
BENCHMARK(switchStyle);

}  // namespace
}  // namespace quorvel::bench

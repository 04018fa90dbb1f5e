#include "elements/citation/citation.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto reading() {
    return [citation = std::make_shared<OutputTemplateCitation>()](TextView text, TextView secondary) {
        Text parsed(text);
        citation->Parse(parsed, secondary);
    };
}

const bool kTexts = benchTexts(
    "parseCitation", reading,
    {{"authorDatePage", u"(Smith & Jones, 2005, p. 12)"}, {"note", u"Kuhn, Structure of Scientific Revolutions, 52."}});
const bool kGrowth = benchGrowth("citationPerCharacter", reading,
                                 {{.name = "pages", .half = u"1-2, ", .piece = u"p. 1, "},
                                  {.name = "authors", .half = u"aaaaaaaaaa", .piece = u", and b"}});

}  // namespace
}  // namespace quorvel::bench

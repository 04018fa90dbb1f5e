#include "elements/page.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto turabianPage() {
    const auto page = elementWith<OutputTemplatePage>(PageOptions{false, true, true, false, false, true, u"n.p.",
                                                                  u"chap.", u"chaps.", u"par.", u"pars.", true, true});
    return [page](TextView text, TextView secondary) {
        Text parsed(text);
        page->Parse(parsed, secondary);
        benchmark::DoNotOptimize(page->toString(false, false));
    };
}

const bool kTexts = benchTexts("parseAndFormatPage", turabianPage,
                               {{"single", u"45"},
                                {"range", u"379-423"},
                                {"chaptersWithNotes", u"chaps. 101\u2013108nn3-4"},
                                {"list", u"B1, B4, B5-B7"}});
const bool kGrowth =
    benchGrowth("pagePerCharacter", turabianPage,
                {{.name = "list", .piece = u"321-328, xii-xiv, "}, {.name = "dashes", .piece = u"1-2-"}});

}  // namespace
}  // namespace quorvel::bench

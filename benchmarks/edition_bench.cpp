#include "elements/edition/edition.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

template <std::int32_t kFormat>
auto editionOf() {
    const EditionOptions options{kFormat, elementWith<OutputTemplatePage>(PageOptions())};
    return parseAndWrite(elementWith<OutputTemplateEdition>(options));
}

constexpr const char* kName = "parseAndFormatEdition";
const bool kTexts[] = {
    benchTexts(
        kName, editionOf<2>,
        {{"numbered", u"2nd ed."}, {"journal", u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884"}}),
    benchTexts(kName, editionOf<3>,
               {{"named", u"Revised and updated edition"},
                {"translation", u"Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)"}}),
    benchTexts(kName, editionOf<1>,
               {{"year", u"1925"},
                {"book",
                 u"(Reprinted from Manual of child psychology, pp. 703-732, by P. H. Mussen, Ed., 1970, New York, NY: "
                 u"Wiley)"}})};
const bool kGrowth =
    benchGrowth("editionPerCharacter", editionOf<2>,
                {{.name = "names", .piece = u"revised ed. 1925 "},
                 {.name = "sentences", .lead = u"Rpt. of ", .piece = u"E. L. X: Y, 1925. By (1992): "},
                 {.name = "list", .lead = u"Reprinted from ", .piece = u"A, by B, Ed., 1970, C: D, "},
                 {.name = "parentheses", .lead = u"Originally published as ", .piece = u"(A (B: C, 1970), "}});

}  // namespace
}  // namespace quorvel::bench

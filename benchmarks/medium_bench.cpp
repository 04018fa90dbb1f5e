#include "elements/medium/medium.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto mlaMedium() {
    MediumOptions options;
    options.SupportsAdvancedCD = true;
    return parseAndWrite(elementWith<OutputTemplateMedium>(options));
}

const bool kTexts = benchTexts("parseAndFormatMedium", mlaMedium,
                               {{"cd", u"CD-ROM"},
                                {"disc", u"CD-ROM. Version 2.0. Disc 3"},
                                {"microform", u"Microform. NewsBank: Welfare 12 (1990): fiche 1, grids A8-11"}});
const bool kGrowth =
    benchGrowth("mediumPerCharacter", mlaMedium, {{.name = "text", .piece = u"CD-ROM. Disc: fiche A, row (1990). "}});

}  // namespace
}  // namespace quorvel::bench

#include "elements/multi_vol/multi_vol.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

constexpr TextView kVolumes = OutputTemplateMultiVol::kMultiVolCaption;

auto mlaMultiVol() {
    MultiVolOptions options;
    options.SupportGeneralEditor = true;
    options.addPeriodToVol = true;
    return parseAndWrite(elementWith<OutputTemplateMultiVol>(options));
}

const bool kTexts =
    benchTexts("parseAndFormatMultiVol", mlaMultiVol,
               {{"volume", u"Vol. 3", kVolumes},
                {"count", u"3 vols.", kVolumes},
                {"statement",
                 u"Vol. 5 of A Selected Edition of W. D. Howells. Edwin H. Cady, gen. ed. 32 vols. 1968-83", kVolumes},
                {"series", u"Latin Amer. Lit. and Culture 7", u"Series"}});
const bool kGrowth =
    benchGrowth("multiVolPerCharacter", mlaMultiVol,
                {{.name = "text", .piece = u"Vol. 3 of A. Ed. B, no. 2 vols. ", .secondary = kVolumes}});

}  // namespace
}  // namespace quorvel::bench

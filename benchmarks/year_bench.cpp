#include "elements/year.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto mlaYear() {
    const YearOptions options{true, false, true, u"c.", true, u"n.d.", false};
    return [year = elementWith<OutputTemplateYear>(options)](TextView text, TextView) {
        benchmark::DoNotOptimize(year->formatStr(text));
    };
}

const bool kTexts = benchTexts("parseAndFormatYear", mlaYear,
                               {{"plain", u"1990"}, {"circa", u"[ca. 1990-1995]"}, {"date", u"September 1, 2011"}});
const bool kGrowth = benchGrowth("yearPerCharacter", mlaYear, {{.piece = u"1990, [May] 5-"}});

}  // namespace
}  // namespace quorvel::bench

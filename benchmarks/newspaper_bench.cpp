#include "elements/newspaper.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto mlaNewspaper() {
    return parseAndWrite(elementWith<OutputTemplateNewspaper>(NewspaperOptions{false, u"[]", u""}));
}

const bool kTexts = benchTexts("parseAndFormatNewspaper", mlaNewspaper,
                               {{"title", u"The New York Times"}, {"city", u"Globe and Mail (Toronto)"}});
const bool kGrowth = benchGrowth("newspaperPerCharacter", mlaNewspaper, {{.piece = u"Times [London (", .end = u"]"}});

}  // namespace
}  // namespace quorvel::bench

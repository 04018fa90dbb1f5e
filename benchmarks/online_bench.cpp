#include "elements/online.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto apaOnline() {
    return parseAndWrite(elementWith<OutputTemplateOnline>(OnlineOptions{true, true, true, u"doi:"}));
}

const bool kTexts = benchTexts("parseAndFormatOnline", apaOnline,
                               {{"address", u"http://www.example.org/articles/2011/index.html"},
                                {"doi", u"https://doi.org/10.1000/182"},
                                {"eric", u"Retrieved from ERIC database. (ED482912)"}});
const bool kGrowth = benchGrowth("onlinePerCharacter", apaOnline, {{.piece = u"Retrieved 1 from ED 4 www . ft"}});

}  // namespace
}  // namespace quorvel::bench

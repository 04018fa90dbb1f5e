#include "elements/publisher.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto mlaPublisher() {
    return parseAndWrite(elementWith<OutputTemplatePublisher>(PublisherOptions{true, true, false, true, true}));
}

const bool kTexts =
    benchTexts("parseAndFormatPublisher", mlaPublisher,
               {{"name", u"University of Chicago Press"}, {"coPublisher", u"Belknap P-Harvard UP; London: Oxford UP"}});
const bool kGrowth = benchGrowth("publisherPerCharacter", mlaPublisher, {{.piece = u"Anchor-University U; Co: "}});

}  // namespace
}  // namespace quorvel::bench

#include "elements/publisher.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplatePublisher publisher;
    publisher.Initialize(sink);
    publisher.Reset(
        {(options & 1) != 0, (options & 2) != 0, (options & 4) != 0, (options & 8) != 0, (options & 16) != 0});
    Text remainder = text;
    publisher.Parse(remainder, {});
    publisher.ToFormattedString(sink, (options & 32) != 0, (options & 64) != 0);
    const Text written = publisher.toString(false, false);
    require(sink->plain() == written);
    require(publisher.Clone(sink)->toString(false, false) == written);

    // Nothing that was read is lost in a style that shortens nothing: only blanks, and a separator that
    // joins nothing, may go.
    publisher.Reset({false, false, false, false, false});
    const Text full = publisher.toString(false, false);
    if (publisher.PublisherType == OutputTemplatePublisher::kNamed) {
        const auto letters = [](const Text& from) {
            return replaceAll(replaceAll(replaceAll(replaceAll(from, u" ", u""), u"-", u""), u";", u""), u":", u"");
        };
        require(letters(full).size() >= letters(cleanUp(text)).size());
    } else {
        require(remainder.empty() && publisher.publisher().empty());
    }
}

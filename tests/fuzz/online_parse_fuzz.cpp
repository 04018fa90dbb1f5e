#include "elements/online.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateOnline online;
    online.Initialize(sink);
    online.Reset({(options & 1) != 0, (options & 2) != 0, (options & 4) != 0,
                  (options & 8) != 0 ? u"https://doi.org/" : u"doi:"});
    Text left = text;
    online.Parse(left, {});
    online.ToFormattedString(sink, (options & 16) != 0, (options & 32) != 0);
    require(sink->plain() == online.toString((options & 16) != 0, false, false));

    // What was written is read as the same source again.
    const Text source = online.Online();
    const bool isKnown = online.isURL() || online.isEric() || online.isDatabase;
    const Text written = online.toString(false, false, false);
    Text again = written;
    online.Parse(again, {});
    require(online.toString(false, false, false) == written);
    require(!isKnown || online.Online() == source);
}

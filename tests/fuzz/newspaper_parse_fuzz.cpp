#include "elements/newspaper.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateNewspaper newspaper;
    newspaper.Initialize(sink);
    newspaper.Reset({(options & 1) != 0, (options & 2) != 0 ? u"[]" : u"()", {}});
    newspaper.isNewspaper(text);
    Text title = text;
    newspaper.Parse(title, {});
    require(title == newspaper.Title);
    newspaper.ToFormattedString(sink, (options & 4) != 0, (options & 8) != 0);
    const Text written = newspaper.toString(false, false);
    require(sink->plain() == written);

    // Where there is no city the title is the whole text; where there is one, what was written is read the same again.
    if (newspaper.City.empty()) {
        require(title == cleanUp(text));
    } else {
        const Text city = newspaper.City;
        Text again = written;
        newspaper.Parse(again, {});
        require(newspaper.City == city && newspaper.toString(false, false) == written);
    }
}

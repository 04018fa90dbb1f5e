#include "elements/date/date_time.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

namespace {

constexpr TextView kFormats[] = {u"mmmm d, yyyy", u"yyyy, mmmm d", u"d mmmm yyyy", u"d mmm yyyy",
                                 u"mmm d, yyyy",  u"m/d/yyyy",     u"yyyy-mm-dd",  u""};

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const std::vector<Text> texts = split(input.rest(), u"\n");
    const Text text = texts[0];
    const Text secondaryText = texts.size() > 1 ? texts[1] : Text();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateDateTime dateTime;
    dateTime.Initialize(sink);
    dateTime.Reset({Text(kFormats[options % 8]), (options & 8) != 0, (options & 16) != 0});

    Text remainder = text;
    dateTime.Parse(remainder, secondaryText);
    require(remainder.empty());
    dateTime.ToFormattedString(sink, (options & 32) != 0, (options & 64) != 0);
    require(sink->plain() == dateTime.toString(false, false, false));
    require(sink->plain() == dateTime.Clone()->toString(false, false, false));

    // What was written reads the same.
    const Text written = dateTime.formatStr(text);
    require(dateTime.formatStr(written) == written);
}

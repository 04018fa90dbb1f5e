#include "elements/refers_to/refers_to.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

namespace {

std::size_t digitsOf(TextView text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isDigit));
}

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    // What a host may tell beside the text.
    constexpr TextView kTold[] = {
        u"",
        u"Abstract in",
        u"Abstract of",
        u"Correction",
        u"Dupl. publcn",
        u"Retracted in",
        u"Retraction of",
        u"Abstract",
        u"Series",
        u"Serialized",
        u"Reprint",
        u"Serial article",
        u"Translator",
        u"Edition",
        u"Discusser",
        u"Newspaper",
    };
    const std::uint8_t options = input.options();
    const std::uint8_t style = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateRefersTo refersTo;
    refersTo.Initialize(sink);
    RefersToOptions given;
    given.useDots = (options & 16) != 0;
    given.useSer = (options & 32) != 0;
    given.useTrans = (options & 64) != 0;
    given.format = static_cast<std::int16_t>(style % 6 - 1);
    refersTo.Reset(given);
    Text left = text;
    refersTo.Parse(left, kTold[options % std::size(kTold)]);
    refersTo.ToFormattedString(sink, false, false);
    const Text written = refersTo.toString(false, false, false);
    require(sink->plain() == written);

    // No number that was read is lost: it is in a value, or left in the text. Numerals of volumes and the shortened
    // last page of a range may get longer.
    Text kept = left;
    for (std::int16_t i = 0; i < 8; ++i) {
        kept += refersTo.value(i);
    }
    require(digitsOf(kept) >= digitsOf(cleanUp(text)));
}

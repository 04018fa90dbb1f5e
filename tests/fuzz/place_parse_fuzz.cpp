#include "elements/place.h"
#include "fuzz_input.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    OutputTemplatePlace place;
    place.Initialize(nullptr);
    place.Reset({(options & 1) != 0, (options & 2) != 0, (options & 4) != 0, (options & 8) != 0, (options & 16) != 0});
    Text remainder = text;
    place.Parse(remainder, {});
    require(place.Place == remainder);
    const Text written = place.toString(false, false, {});
    const std::int32_t type = place.placeType;

    place.isPlace(text);
    place.isPlace(remainder);
    require(place.Place == remainder && place.placeType == type);
    require(place.formatStr(text, {}) == written);
    require(place.Clone()->toString(false, false, {}).empty());
    // A publisher shortens a place, and nothing else.
    require(place.toString(false, false, text).size() <= written.size());

    const bool isProperPlace =
        !remainder.empty() && remainder.find_first_not_of(u"ABCDEFORXYZabcdeforxyz, ") == Text::npos &&
        remainder.find_first_of(u", ") != 0 && remainder.find_last_of(u", ") != remainder.size() - 1;
    require(!isProperPlace || place.formatStr(written, {}) == written);
}

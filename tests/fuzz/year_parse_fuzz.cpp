#include "elements/year.h"
#include "fuzz_input.h"

using namespace quorvel;

namespace {

bool isNumberOrRange(TextView text) {
    const TextView first = before(text, u"-");
    const TextView second = text.substr(std::min(text.size(), first.size() + 1));
    return !first.empty() && first.find_first_not_of(u"0123456789") == TextView::npos &&
           second.find_first_not_of(u"0123456789") == TextView::npos &&
           (first.size() == text.size() || !second.empty());
}

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    OutputTemplateYear year;
    year.Initialize(nullptr);
    const bool hasCirca = (options & 1) != 0;
    year.Reset({(options & 2) != 0, (options & 4) != 0, (options & 8) != 0, hasCirca ? u"ca." : u"",
                (options & 16) != 0, u"n.d.", (options & 32) != 0});
    Text remainder = text;
    year.Parse(remainder, {});
    const Text written = year.toString(false, false);
    const Text read = year.Year;
    const std::int32_t type = year.yearType;

    year.isYear(written);
    year.isYear(remainder);
    require(year.Year == read && year.yearType == type);
    require(year.formatStr(text) == written);

    // A year that is not the text itself stands in it, in full or with two digits.
    require(read == replaceAll(remainder, u"\u2013", u"-") ||
            (read.size() > 2 && contains(remainder, read.substr(read.size() - 2))));

    // A circa year keeps the blank that the text has.
    const TextView number = type == OutputTemplateYear::kCirca ? TextView(read).substr(read.starts_with(u' ')) : read;
    const bool isStable =
        type == OutputTemplateYear::kNoDate || type == OutputTemplateYear::kNotYetPublished ||
        (isNumberOrRange(number) && (type != OutputTemplateYear::kCirca || (hasCirca && number.size() < read.size())));
    require(!isStable || year.formatStr(written) == written);
}

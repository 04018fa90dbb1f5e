#include <algorithm>

#include "elements/issue/issue.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

namespace {

std::ptrdiff_t digitsOf(const Text& text) {
    return std::count_if(text.begin(), text.end(), [](char16_t unit) { return isDigit(unit); });
}

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    constexpr TextView kKinds[] = {u"", u"Theme issue", u"Supplement", u"Edition"};
    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateIssue issue;
    issue.Initialize(sink);
    issue.Reset({static_cast<std::int16_t>((options & 7) - 1), text});
    Text left = text;
    issue.Parse(left, kKinds[(options >> 3) & 3]);
    issue.ToFormattedString(sink, (options & 32) != 0, (options & 64) != 0);
    require(sink->plain() == issue.toString((options & 32) != 0, false, false));

    // No number is lost, and a plain text comes out as it went in.
    std::ptrdiff_t digits = digitsOf(left);
    for (std::int16_t index = 0; index <= OutputTemplateIssue::kSpecialEditor; ++index) {
        digits += digitsOf(issue.value(index));
    }
    require(digits == digitsOf(cleanUp(text)));
    const Text number = issue.value(OutputTemplateIssue::kIssueNumber);
    require(issue.IssueType() != u"Issue type" || (left.empty() && contains(cleanUp(text), number)));
}

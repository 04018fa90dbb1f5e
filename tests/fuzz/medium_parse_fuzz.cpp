#include "elements/medium/medium.h"

#include <algorithm>

#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateMedium element;
    element.Initialize(sink);
    MediumOptions style;
    style.useSquareBrackets = (options & 1) != 0;
    style.SupportsAdvancedCD = (options & 2) != 0;
    style.shortenedMicroform = (options & 4) != 0;
    element.Reset(style);
    constexpr TextView kCaptions[] = {u"", u"CD", u"Microfiche", u"e-book"};
    Text remainder = text;
    element.Parse(remainder, kCaptions[(options >> 3) & 3]);
    require(remainder.empty());
    const bool isFootnote = (options & 128) != 0;
    element.ToFormattedString(sink, isFootnote, false);
    const Text written = element.toString(isFootnote, false);
    require(sink->plain() == written);

    // No word of any text is one of ours when it has this letter.
    static constexpr char16_t kMark = u'\u4E2D';
    const auto marks = [](const Text& from) { return std::count(from.begin(), from.end(), kMark); };
    if (element.PublicationMediumType == 0) {
        require(marks(written) == marks(text));
        return;
    }
    std::ptrdiff_t kept = 0;
    for (std::int16_t index = 0; index < static_cast<std::int16_t>(OutputTemplateMedium::kValues); ++index) {
        kept += marks(element.value(index));
    }
    require(kept == marks(text));
}

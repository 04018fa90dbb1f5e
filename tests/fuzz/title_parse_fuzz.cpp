#include "elements/title/title.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"
#include "support/style_presets.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    static const auto author = [] {
        auto element = std::make_shared<OutputTemplateAuthor>();
        element->Initialize(std::make_shared<RecordingSink>());
        element->Reset(test::mlaAuthorOptions());
        return element;
    }();
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    OutputTemplateTitle title;
    title.Initialize(std::make_shared<RecordingSink>());
    title.Reset({static_cast<std::int16_t>((options & 7) - 1), author, (options & 8) != 0, (options & 16) != 0, u"",
                 (options & 32) != 0, u"", true, u""});
    title.IsChapterOrWebsite((options & 64) != 0);
    Text remainder = text;
    title.Parse(remainder, (options & 128) != 0 ? u"Introduction" : u"");
    require(remainder.empty());
    const Text written = title.toString(false, false);
    require(title.toString(true, true).size() <= written.size());
    require(title.Clone()->toString(false, false) == written);

    // Only letter case changes, and what a rule has written it leaves.
    const Text cased = title.formatRule(text);
    require(cased.size() == text.size());
    const Text heading = title.InHeadingCapitalization(text);
    require(heading.size() == text.size());
    // A dotless i becomes the capital of another letter, and may make another word.
    require(contains(text, u"\u0131") || title.InHeadingCapitalization(heading) == heading);
    for (const titlecase::Range range : title.changedWords(text)) {
        require(range.begin < range.end && range.end <= text.size());
    }
}

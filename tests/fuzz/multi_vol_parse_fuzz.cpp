#include "elements/multi_vol/multi_vol.h"

#include <algorithm>

#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateMultiVol element;
    element.Initialize(sink);
    MultiVolOptions style;
    style.SupportGeneralEditor = (options & 1) != 0;
    style.addPeriodToVol = (options & 2) != 0;
    style.volTitleSeparator = (options & 4) != 0 ? u": " : u"";
    style.overrideDefaultEditorPrefix = (options & 8) != 0;
    style.prefixedVols = (options & 16) != 0;
    style.supportVolsToDate = (options & 32) != 0;
    element.Reset(style);
    Text remainder = text;
    element.Parse(remainder, (options & 64) != 0 ? OutputTemplateMultiVol::kMultiVolCaption : TextView(u"Series"));
    require(remainder.empty());
    element.ToFormattedString(sink, (options & 128) != 0, false);
    require(sink->plain() == element.toString((options & 128) != 0, false));
    require(element.toMergedString() == element.toString(false, false));

    // No word of any text is one of ours when it has this letter.
    static constexpr char16_t kMark = u'\u4E2D';
    const auto marks = [](const Text& from) { return std::count(from.begin(), from.end(), kMark); };
    const Text values = concatenate({element.Volume, element.Number, element.Title(), element.editor, element.Vols,
                                     element.Year, element.SeriesType});
    require(marks(values) == marks(text));
    require(marks(element.toString(false, false)) == marks(text));
}

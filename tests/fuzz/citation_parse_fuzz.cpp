#include <algorithm>

#include "core/letter_case.h"
#include "elements/citation/citation.h"
#include "fuzz_input.h"
#include "support/recording_model.h"
#include "support/recording_sink.h"

using namespace quorvel;

namespace {

std::ptrdiff_t digitsIn(TextView text) {
    return std::count_if(text.begin(), text.end(), isDigit);
}

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    std::vector<Text> names;
    auto model = std::make_shared<RecordingModel>();
    for (const CitationKey& key : kCitationKeys) {
        names.emplace_back(key.key);
        model->fields[static_cast<std::int16_t>(names.size())] = Text();
    }
    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateCitation citation;
    citation.Initialize(sink, (options & 1) != 0, std::make_shared<NumberedKeys>(names), nullptr, nullptr, nullptr);
    const bool isAuthorDate = (options & 2) != 0;
    citation.Reset({u", ", true, u"vol. ", (options & 4) != 0, (options & 8) != 0, true, true, (options & 16) != 0,
                    true, true, (options & 32) != 0, (options & 64) != 0, isAuthorDate ? u", " : u" ",
                    isAuthorDate ? u", " : u"", u": "});
    Text remainder = text;
    citation.Parse(remainder, {});
    require(remainder.empty());
    citation.ToFormattedString(sink, nullptr, options & 3, (options & 128) != 0, false);

    // What was read is in the model, number for number.
    citation.MergeFieldsWithModel(model, 0, nullptr, nullptr);
    Text read;
    for (const auto& [index, value] : model->fields) {
        read += value;
    }
    // "Ibid." without a citation before it has nothing but its page.
    require(contains(toLower(text), u"ibid") || digitsIn(read) == digitsIn(text));
    require(citation.toString(model, 0, false).size() <= 4 * text.size() + 64);
}

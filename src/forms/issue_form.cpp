#include "forms/issue_form.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr TextView kFrame = u"IssueTypeFrame";
constexpr TextView kOption = u"OptionButton";
constexpr TextView kLabel = u"Label";
constexpr TextView kBox = u"Textbox";

// What the element offers at most, and a kind that stood there without being offered.
constexpr std::int16_t kTypes = 6;

// Their captions are what the style offers.
constexpr ControlRow type(std::int16_t index) {
    const bool isLeft = index % 2 == 0;
    return option({kOption, index}, u"",
                  {static_cast<std::int16_t>(index / 2), isLeft ? std::int16_t{7} : std::int16_t{112}, 100})
        .in(kFrame)
        .hidden();
}
constexpr ControlRow partLabel(std::int16_t part, TextView caption) {
    return label({kLabel, part}, caption, {static_cast<std::int16_t>(2 + part), 0, 76});
}
constexpr ControlRow partBox(std::int16_t part) {
    return textBox({kBox, part}, {static_cast<std::int16_t>(2 + part), 78, 148});
}

// The parts in the order of the element's values.
constexpr ControlRow kControls[] = {
    frame(kFrame, u"Kind of issue", {1, 0, kContentWidth}),
    type(0),
    type(1),
    type(2),
    type(3),
    type(4),
    type(5),
    partLabel(0, u"&Issue number:"),
    partBox(0).hint(u"The number of the issue, such as 4 or 3-4."),
    partLabel(1, u"&Supplement number:"),
    partBox(1),
    partLabel(2, u"&Edition:"),
    partBox(2).hint(u"The edition of a newspaper, such as late ed."),
    partLabel(3, u"&Title:"),
    partBox(3).hint(u"The title of the issue, without quotation marks."),
    partLabel(4, u"E&ditor:"),
    partBox(4).hint(u"The editor of the issue, first name first."),
};
constexpr FormDesign kDesign = {
    .className = u"IssueForm",
    .title = u"Issue",
    .controls = kControls,
    .aliases = {},
    .firstBox = {kBox, 0},
    .rtfParameter = 2,
};

constexpr std::size_t kParts = 5;
constexpr TextBinding kTexts[] = {
    {{kBox, 0}, u"value", 0}, {{kBox, 1}, u"value", 1}, {{kBox, 2}, u"value", 2},
    {{kBox, 3}, u"value", 3}, {{kBox, 4}, u"value", 4},
};

constexpr TextView kRegular = u"Regular";

/// The captions of the kinds, how the element stores them and which parts they have.
struct Kind {
    TextView caption;
    TextView stored;
    std::array<bool, kParts> parts;
};
// Of two captions for what is stored the first one that is offered is selected.
constexpr Kind kKinds[] = {
    {kRegular, u"Issue type", {true, false, false, false, false}},
    {u"Special issue", u"Special issue", {true, false, false, true, true}},
    {u"Theme issue", u"Special issue", {true, false, false, true, true}},
    {u"Supplement", u"Supplement", {true, true, false, false, false}},
    {u"Edition", u"Edition", {false, false, true, false, false}},
};

/// A kind that the table does not know is written as a regular one.
const Kind& kindOf(TextView caption) {
    const auto* const found =
        std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& kind) { return kind.caption == caption; });
    return found != std::end(kKinds) ? *found : kKinds[0];
}

/// The caption for what is stored, among those that are offered where there is one.
Text captionOf(TextView stored, const std::vector<Text>& offered) {
    Text caption;
    for (const Kind& kind : kKinds) {
        if (kind.stored == stored) {
            if (std::find(offered.begin(), offered.end(), kind.caption) != offered.end()) {
                return Text(kind.caption);
            }
            caption = caption.empty() ? Text(kind.caption) : caption;
        }
    }
    return caption.empty() ? Text(stored) : caption;
}

}  // namespace

IssueForm::IssueForm() : Form(kDesign) {}

void IssueForm::fill(TextView parentText, TextView secondaryText) {
    mSurroundings = surroundingsOf(parentText, read(element(), parentText, secondaryText));
    forms::fill(*this, element(), kTexts);
    showTypes(offered(u"SupportedIssueTypes"), element().text(u"IssueType"));
    showParts();
}

void IssueForm::showTypes(std::vector<Text> types, TextView stored) {
    types.resize(std::min(types.size(), static_cast<std::size_t>(kTypes)));
    const Text selected = captionOf(stored, types);
    // What is stored is seen in any case.
    if (!selected.empty() && std::find(types.begin(), types.end(), selected) == types.end()) {
        types.resize(std::min(types.size(), static_cast<std::size_t>(kTypes) - 1));
        types.push_back(selected);
    }
    for (std::int16_t index = 0; index < kTypes; ++index) {
        const bool isThere = static_cast<std::size_t>(index) < types.size();
        const Text caption = isThere ? types.at(static_cast<std::size_t>(index)) : Text();
        Control& option = control({kOption, index});
        option.setVisible(isThere);
        option.setCaption(caption);
        option.setValue(isThere && caption == selected);
    }
}

Text IssueForm::selectedType() {
    const std::int16_t selected = selectedOption(*this, kOption);
    return selected == kNoIndex ? Text() : control({kOption, selected}).caption();
}

void IssueForm::showParts() {
    const Kind& kind = kindOf(selectedType());
    for (std::int16_t part = 0; part < static_cast<std::int16_t>(kParts); ++part) {
        const bool isThere = kind.parts.at(static_cast<std::size_t>(part));
        control({kLabel, part}).setVisible(isThere);
        control({kBox, part}).setVisible(isThere);
    }
}

void IssueForm::choiceClicked(Control& /*control*/) {
    showParts();
}

void IssueForm::collect(bool /*isModelPreview*/) {
    if (const Text type = selectedType(); !type.empty()) {
        element().put(u"IssueType", type);
    }
    forms::collect(*this, element(), kTexts);
}

std::pair<Text, Text> IssueForm::result() {
    const Text text = toString();
    const Text type = element().text(u"IssueType");
    // A style may write the kind alone, or nothing of it.
    const bool isKept = isChanged() || (!text.empty() && isReadBack(*this, element(), kTexts, text, type));
    return {isKept ? mSurroundings.around(text) : parentText(), type};
}

}  // namespace quorvel::forms

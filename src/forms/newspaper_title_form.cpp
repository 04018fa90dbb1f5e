#include "forms/newspaper_title_form.h"

#include "forms/bindings.h"
#include "forms/common_ui_functions.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow kControls[] = {
    label(u"Label", u"&Newspaper:", {1, 0, 48}),
    textBox(u"Title", {1, 50, 176}).hint(u"The name of the newspaper, such as Globe and Mail."),
    label(u"Label1", u"Ci&ty:", {2, 0, 48}),
    textBox(u"City", {2, 50, 176}),
};
constexpr ControlAlias kAliases[] = {{u"PreviewLabel", kNoIndex, kNoIndex, u"OutputLabel"}};

constexpr FormDesign kDesign = {
    .className = u"NewspaperTitleForm",
    .title = u"Newspaper",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = u"Title",
};

constexpr ControlName kCity = u"City";
constexpr TextBinding kBoxes[] = {{u"Title", u"Title"}, {kCity, u"City"}};

}  // namespace

NewspaperTitleForm::NewspaperTitleForm() : Form(kDesign) {}

void NewspaperTitleForm::fill(TextView parentText, TextView /*secondaryText*/) {
    element().call(u"Parse", {Value(parentText)});
    forms::fill(*this, element(), kBoxes);
    control(kCity).setToolTip(element().text(u"cityTooltip"));
}

void NewspaperTitleForm::collect(bool /*isModelPreview*/) {
    forms::collect(*this, element(), kBoxes);
}

/// What the element writes of the newspaper without its city.
Text NewspaperTitleForm::titleAlone() {
    const Text city = control(kCity).text();
    element().put(u"City", TextView());
    Text title = written(false, false);
    element().put(u"City", city);
    return title;
}

Text NewspaperTitleForm::preview() {
    // The element gives plain text only: the title is italic, the city is not.
    const Text whole = toString();
    const Text title = titleAlone();
    const bool hasTitle = !title.empty() && startsWith(whole, title);
    return hasTitle ? CommonUIFunctions::toRTFString(
                          concatenate({u"\\i ", CommonUIFunctions::escaped(title), u"\\i0 ",
                                       CommonUIFunctions::escaped(TextView(whole).substr(title.size()))}))
                    : whole;
}

std::pair<Text, Text> NewspaperTitleForm::result() {
    Text text = toString();
    const Text city = control(kCity).text();
    if (!city.empty() && text == titleAlone()) {
        // A style that writes no city: the field keeps it for the next one.
        text = trim(concatenate({text, u" [", city, u"]"}));
    }
    return {text, Text()};
}

}  // namespace quorvel::forms

#include "forms/publisher_form.h"

#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr TextView kFrame = u"PublisherFrame";

constexpr ControlRow kControls[] = {
    label({u"Label", 0}, u"&Publisher:", {1, 0, 58}),
    textBox(u"publisher", {1, 60, 166}).hint(u"The name in full, such as Oxford University Press."),
    label({u"Label", 1}, u"&Imprint:", {2, 0, 58}),
    textBox(u"Imprint", {2, 60, 166}).hint(u"The name under which the publisher brought the work out, such as Anchor."),
    label({u"Label", 2}, u"&Co-publisher:", {3, 0, 58}),
    textBox(u"CoPublisher", {3, 60, 166}).hint(u"Who published the work together with the publisher."),
    label({u"Label", 3}, u"Its p&lace:", {4, 0, 58}),
    textBox(u"CoPublisherPlace", {4, 60, 166}).hint(u"Where the co-publisher is."),
    frame(kFrame, u"Who published the work", {5, 0, kContentWidth}),
    option({u"OptionButton", 0}, u"The publisher &named above", {1, 7, 210}).in(kFrame),
    option({u"OptionButton", 1}, u"It is not &known", {2, 7, 210}).in(kFrame),
    option({u"OptionButton", 2}, u"Manuscript in p&reparation", {3, 7, 210}).in(kFrame),
    option({u"OptionButton", 3}, u"Manuscript &submitted for publication", {4, 7, 210}).in(kFrame),
    option({u"OptionButton", 4}, u"The &author", {5, 7, 210}).in(kFrame),
};
constexpr FormDesign kDesign = {
    .className = u"PublisherForm",
    .title = u"Publisher",
    .controls = kControls,
    .aliases = {},
    .firstBox = u"publisher",
};

constexpr TextBinding kTexts[] = {
    {u"publisher", u"publisher"},
    {u"Imprint", u"Imprint"},
    {u"CoPublisher", u"CoPublisher"},
    {u"CoPublisherPlace", u"copublisherPlace"},
};
constexpr ChoiceBinding kKind = {u"OptionButton", u"PublisherType"};
constexpr std::int16_t kNamed = 0;
constexpr std::int16_t kFirstAdvanced = 2;
constexpr std::int16_t kLastAdvanced = 4;

constexpr LabelledBox kImprintRow = {{u"Label", 1}, u"Imprint"};
constexpr LabelledBox kCoPublisherRows[] = {
    {{u"Label", 2}, u"CoPublisher"},
    {{u"Label", 3}, u"CoPublisherPlace"},
};

}  // namespace

PublisherForm::PublisherForm() : Form(kDesign) {}

void PublisherForm::fill(TextView parentText, TextView /*secondaryText*/) {
    element().call(u"Parse", {Value(parentText)});
    forms::fill(*this, element(), kTexts);
    forms::fill(*this, element(), kKind);
    const bool isAdvanced = supports(u"SupportAdvancedOptions");
    for (std::int16_t kind = kFirstAdvanced; kind <= kLastAdvanced; ++kind) {
        Control& option = control({u"OptionButton", kind});
        option.setVisible(isAdvanced || option.value());
    }
    showOffered(*this, kImprintRow, isAdvanced);
    const bool hasCoPublisher = supports(u"supportCoPublisher");
    for (const LabelledBox& row : kCoPublisherRows) {
        showOffered(*this, row, hasCoPublisher);
    }
}

void PublisherForm::collect(bool /*isModelPreview*/) {
    forms::collect(*this, element(), kTexts);
    forms::collect(*this, element(), kKind);
}

std::pair<Text, Text> PublisherForm::result() {
    const Text text = toString();
    // A style may shorten the names.
    const bool isKept = isChanged() || isReadBack(*this, element(), kTexts, text, {});
    return {isKept ? text : parentText(), Text()};
}

void PublisherForm::boxChanged(Control& box) {
    // Who types a name knows it.
    if (!box.text().empty()) {
        control({u"OptionButton", kNamed}).setValue(true);
    }
}

}  // namespace quorvel::forms

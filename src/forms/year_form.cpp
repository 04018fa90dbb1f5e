#include "forms/year_form.h"

#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow kControls[] = {
    label(u"YearLabel", u"&Year:", {1, 0, 40}),
    textBox(u"Year", {1, 44, 80}).hint(u"A year or a range of years, such as 1990 or 1990-1995."),
    frame(u"YearNotFoundFrame", u"How the year is known", {2, 0, kContentWidth}),
    option({u"OptionButton", 0}, u"It is &printed in the work", {1, 7, 210}).in(u"YearNotFoundFrame"),
    option({u"OptionButton", 1}, u"It is &not known", {2, 7, 210}).in(u"YearNotFoundFrame"),
    option({u"OptionButton", 2}, u"It is a &guess", {3, 7, 210}).in(u"YearNotFoundFrame"),
    option({u"OptionButton", 3}, u"It is &approximate (circa)", {4, 7, 210}).in(u"YearNotFoundFrame"),
    option({u"OptionButton", 4}, u"It is certain, but comes from &elsewhere", {5, 7, 210}).in(u"YearNotFoundFrame"),
    option({u"OptionButton", 5}, u"The work is not yet p&ublished", {6, 7, 210}).in(u"YearNotFoundFrame"),
};
constexpr ControlAlias kAliases[] = {{u"YearNotKnownOption", kNoIndex, kNoIndex, u"OptionButton", 1}};

constexpr FormDesign kDesign = {
    .className = u"YearForm",
    .title = u"Year",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = u"Year",
    .isPreviewedByModel = true,
};

constexpr TextBinding kYear[] = {{u"Year", u"Year"}};
constexpr ChoiceBinding kYearType = {u"OptionButton", u"yearType", u"Supports"};

constexpr std::int16_t kPlain = 0;
constexpr std::int16_t kNotKnown = 1;
constexpr std::int16_t kNotYetPublished = 5;

}  // namespace

YearForm::YearForm() : Form(kDesign) {}

void YearForm::fill(TextView parentText, TextView /*secondaryText*/) {
    element().call(u"Parse", {Value(parentText)});
    forms::fill(*this, element(), kYear);
    forms::fill(*this, element(), kYearType);
}

void YearForm::collect(bool /*isModelPreview*/) {
    forms::collect(*this, element(), kYear);
    forms::collect(*this, element(), kYearType);
}

void YearForm::boxChanged(Control& /*box*/) {
    // Who types a year knows it.
    const std::int16_t selected = selectedOption(*this, u"OptionButton");
    if (selected == kNotKnown || selected == kNotYetPublished) {
        control({u"OptionButton", kPlain}).setValue(true);
    }
}

}  // namespace quorvel::forms

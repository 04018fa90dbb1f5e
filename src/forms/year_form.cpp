#include "forms/year_form.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow kControls[] = {
    label(u"YearLabel", u"&Year:", {1, 0, 40}),
    textBox(u"Year", {1, 44, 80}).hint(u"A year or a range of years, such as 1990 or 1990-1995."),
    frame(kVariants, u"How the year is known", {2, 0, kContentWidth}),
    variantOption(0, u"It is &printed in the work"),
    variantOption(1, u"It is &not known"),
    variantOption(2, u"It is a &guess"),
    variantOption(3, u"It is &approximate (circa)"),
    variantOption(4, u"It is certain, but comes from &elsewhere"),
    variantOption(5, u"The work is not yet p&ublished"),
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

constexpr std::int16_t kNotKnown = 1;
constexpr std::int16_t kNotYetPublished = 5;
constexpr std::int16_t kWithoutText[] = {kNotKnown, kNotYetPublished};

}  // namespace

YearForm::YearForm()
    : VariantForm(kDesign, {
                               .text = {u"Year", u"Year"},
                               .type = {u"OptionButton", u"yearType", u"Supports"},
                               .withoutText = kWithoutText,
                           }) {}

}  // namespace quorvel::forms

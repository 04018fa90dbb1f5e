#include "forms/place_form.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow kControls[] = {
    label(u"PlaceLabel", u"&Place:", {1, 0, 44}),
    textBox(u"Place", {1, 46, 180}).hint(u"A city, where needed with its state or country, such as Boston, MA."),
    frame(kVariants, u"How the place is known", {2, 0, kContentWidth}),
    variantOption(0, u"It is p&rinted in the work"),
    variantOption(1, u"It is &not known"),
    variantOption(2, u"It is a &guess"),
    variantOption(3, u"It is certain, but comes from &elsewhere"),
};
constexpr ControlAlias kAliases[] = {{u"PlaceNotKnownOption", kNoIndex, kNoIndex, u"OptionButton", 1}};

constexpr FormDesign kDesign = {
    .className = u"PlaceForm",
    .title = u"Place of publication",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = u"Place",
    .isPreviewedByModel = true,
};

constexpr std::int16_t kNotKnown = 1;
constexpr std::int16_t kWithoutText[] = {kNotKnown};

}  // namespace

PlaceForm::PlaceForm()
    : VariantForm(kDesign, {
                               .text = {u"Place", u"Place"},
                               .type = {u"OptionButton", u"placeType", u"Supports"},
                               .withoutText = kWithoutText,
                           }) {}

void PlaceForm::fill(TextView parentText, TextView secondaryText) {
    VariantForm::fill(parentText, secondaryText);
    // The element takes a last full stop for the end of a sentence; it may be that of "Washington, D.C."
    Control& place = control(u"Place");
    if (trim(parentText) == concatenate({place.text(), u"."})) {
        place.setText(trim(parentText));
    }
}

}  // namespace quorvel::forms

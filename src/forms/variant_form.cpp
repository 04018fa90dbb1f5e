#include "forms/variant_form.h"

#include <algorithm>

namespace quorvel::forms {

namespace {

constexpr std::int16_t kPlain = 0;

}  // namespace

void VariantForm::fill(TextView parentText, TextView /*secondaryText*/) {
    element().call(u"Parse", {Value(parentText)});
    forms::fill(*this, element(), std::span(&mVariants.text, 1));
    forms::fill(*this, element(), mVariants.type);
    mShownText = control(mVariants.text.box).text();
    mShownType = selectedOption(*this, mVariants.type.options);
}

void VariantForm::collect(bool /*isModelPreview*/) {
    forms::collect(*this, element(), std::span(&mVariants.text, 1));
    forms::collect(*this, element(), mVariants.type);
}

bool VariantForm::isAsItCame() {
    return selectedOption(*this, mVariants.type.options) == mShownType &&
           control(mVariants.text.box).text() == mShownText;
}

std::pair<Text, Text> VariantForm::result() {
    // A variant that the style in force does not offer is written without its marks, or not at all: the host would lose
    // it for the next style.
    if (isAsItCame() && mShownType > kPlain && !element().flag(mVariants.type.supports, mShownType)) {
        return {parentText(), Text()};
    }
    return Form::result();
}

void VariantForm::boxChanged(Control& /*box*/) {
    // Who types a text knows it.
    const std::int16_t selected = selectedOption(*this, mVariants.type.options);
    if (std::find(mVariants.withoutText.begin(), mVariants.withoutText.end(), selected) !=
        mVariants.withoutText.end()) {
        control({mVariants.type.options, kPlain}).setValue(true);
    }
}

}  // namespace quorvel::forms

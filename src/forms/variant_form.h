#pragma once

#include <span>

#include "forms/bindings.h"
#include "forms/form.h"

namespace quorvel::forms {

/// What the forms of years and of places share: a box, and options that say how its text is known.
class VariantForm : public Form {
public:
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

protected:
    /// How a form's controls belong to its element.
    struct Variants {
        TextBinding text;
        ChoiceBinding type;
        /// Variants that stand for a text. Who types one leaves them for the plain variant.
        std::span<const std::int16_t> withoutText;
    };

    /// @param design must outlive the form
    VariantForm(const FormDesign& design, const Variants& variants) : Form(design), mVariants(variants) {}

    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;

private:
    bool isAsItCame();

    const Variants mVariants;
    // What was shown of the host's text.
    Text mShownText;
    std::int16_t mShownType = kNoIndex;
};

/// The frame of the options.
inline constexpr TextView kVariants = u"YearNotFoundFrame";

constexpr ControlRow variantOption(std::int16_t type, TextView caption) {
    return option({u"OptionButton", type}, caption, {static_cast<std::int16_t>(type + 1), 7, 210}).in(kVariants);
}

}  // namespace quorvel::forms

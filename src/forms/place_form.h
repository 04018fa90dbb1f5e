#pragma once

#include "forms/variant_form.h"

namespace quorvel::forms {

/// Edits the place of publication (element type code 15): a box for the place, and how it is known.
class PlaceForm final : public VariantForm {
public:
    PlaceForm();

    TextView className() const override { return u"PlaceForm"; }

private:
    void fill(TextView parentText, TextView secondaryText) override;
};

}  // namespace quorvel::forms

#pragma once

#include "forms/variant_form.h"

namespace quorvel::forms {

/// Edits the year (element type code 6): a box for the year, and how it is known.
class YearForm final : public VariantForm {
public:
    YearForm();

    TextView className() const override { return u"YearForm"; }
};

}  // namespace quorvel::forms

#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the year (element type code 6): a box for the year, and how it is known.
class YearForm final : public Form {
public:
    YearForm();

    TextView className() const override { return u"YearForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    void boxChanged(Control& box) override;
};

}  // namespace quorvel::forms

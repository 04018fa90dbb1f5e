#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits a newspaper and its city (element type code 4).
class NewspaperTitleForm final : public Form {
public:
    NewspaperTitleForm();

    TextView className() const override { return u"NewspaperTitleForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    Text preview() override;
    std::pair<Text, Text> result() override;

    Text titleAlone();
};

}  // namespace quorvel::forms

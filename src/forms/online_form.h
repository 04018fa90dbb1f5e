#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits where a work was found online (element type code 13).
class OnlineForm final : public Form {
public:
    OnlineForm();

    TextView className() const override { return u"OnlineForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;

    Text read(TextView text);
    bool hasMoreThanSource(TextView text);
};

}  // namespace quorvel::forms

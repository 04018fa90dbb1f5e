#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the publisher (element type code 5): its name, imprint and co-publisher, or that there is none to name.
class PublisherForm final : public Form {
public:
    PublisherForm();

    TextView className() const override { return u"PublisherForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;
};

}  // namespace quorvel::forms

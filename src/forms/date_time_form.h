#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits a date and a time with its zone (element type code 17).
class DateTimeForm final : public Form {
public:
    DateTimeForm();

    TextView className() const override { return u"DateTimeForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;

    void read(TextView date, TextView time);

    /// The host has a field of its own for the time.
    bool mIsTimeApart = false;
};

}  // namespace quorvel::forms

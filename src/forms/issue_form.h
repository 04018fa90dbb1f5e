#pragma once

#include "forms/form.h"
#include "forms/surroundings.h"

namespace quorvel::forms {

/// Edits the issue (element type code 11): its kind, of those that the style offers, and the parts that the kind has.
class IssueForm final : public Form {
public:
    IssueForm();

    TextView className() const override { return u"IssueForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void choiceClicked(Control& control) override;

    void showTypes(std::vector<Text> types, TextView stored);
    /// The caption of the option that is selected; empty when none is.
    Text selectedType();
    void showParts();

    /// The journal behind the words of a special issue.
    Surroundings mSurroundings;
};

}  // namespace quorvel::forms

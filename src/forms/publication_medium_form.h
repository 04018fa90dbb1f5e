#pragma once

#include <vector>

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the medium of a publication (element type code 16): which one it is, and what is told of it.
class PublicationMediumForm final : public Form {
public:
    PublicationMediumForm();

    /// Shows the boxes that the selected medium has; those of discs where the style tells them.
    void showRows();

    TextView className() const override { return u"PublicationMediumForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void initialize() override;
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;
    void choiceClicked(Control& control) override;

    /// Whether the medium has a detail that the style does not tell.
    bool hasHiddenDetails();
    /// The caption of the selected medium; empty when none is.
    TextView medium();

    /// The places among the controls of what is there for discs alone.
    std::vector<std::int16_t> mAdvancedWidgetIndices;
    /// What the style offers.
    std::vector<Text> mMedia;
    /// The host's second text where it is a medium that the style does not offer: it goes back as it came unless the
    /// user selects another one.
    Text mForeignMedium;
    Text mLastDisc;
    // The host's text, and what the element writes for it, where the style leaves details out: as long as that stays
    // the same, the host gets its own text back.
    Text mWholeText;
    Text mWrittenText;
};

}  // namespace quorvel::forms

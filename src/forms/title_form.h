#pragma once

#include <vector>

#include "forms/form.h"
#include "forms/title_correction.h"

namespace quorvel::forms {

/// Edits a title (element type codes 1, 2 and 3) and what it is the title of. The title is shown as the style's rule of
/// capitalisation has it, with the words highlighted that the rule has changed. It is corrected when it is shown and
/// when the user leaves its box, never while he types; what he has changed himself stays.
class TitleForm final : public Form {
public:
    TitleForm();

    TextView className() const override { return u"TitleForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    Text written(bool isFootnote, bool isRTF) override;
    std::pair<Text, Text> result() override;
    void boxLeft(Control& box) override;
    void choiceClicked(Control& control) override;

    void fillTypes();
    /// Whether the element has a part of the form shown, as it has unless it says otherwise.
    bool uses(const char16_t* member);
    TextView titleType();
    /// What stands in the box.
    Text typedTitle();
    /// What the box would show if the user left it now.
    CorrectedTitle correctedTitle();
    /// Shows a title and highlights the words that the rule has changed.
    void showTitle(CorrectedTitle title);
    /// Tells the rule where it has changed something.
    void showRule();

    CorrectedTitle mShown;
    /// The document in which it is shown.
    Text mDocument;
    /// The title behind the last text that the element wrote, without a translation.
    Text mWritten;
    /// The types of the options, and the one that was read.
    std::vector<Text> mTypes;
    Text mReadType;
};

}  // namespace quorvel::forms

#pragma once

#include "forms/form.h"
#include "forms/surroundings.h"

namespace quorvel::forms {

/// Edits the edition (element type code 8): its number, its name, or where the work was published first.
///
/// What the form cannot show in full (what stands beside the number, who a contributor was, a special issue) is kept:
/// the number alone is replaced, and what nobody changed is never written but left as the element read it.
class EditionForm final : public Form {
public:
    EditionForm();

    /// The code of the kind that is selected; -1 when none is.
    std::int16_t EditionType();

    TextView className() const override { return u"EditionForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    /// What the user has entered of the kind that is selected.
    struct Entered {
        std::int16_t type = kNoIndex;
        std::vector<Text> texts;
        std::int16_t source = kNoIndex;
        bool isSpecialIssue = false;

        bool operator==(const Entered&) const = default;
    };

    void initialize() override;
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;
    void choiceClicked(Control& control) override;
    void spun(Control& upDown, Control& buddy, bool isUp) override;

    void fillNumber();
    void fillPublication();
    void showPublication();
    Entered entered();
    void collectPublication(const Entered& now);
    Control& box(std::size_t part);
    EditedObject publication();

    /// What stands round the statement in the host's text.
    Surroundings mSurroundings;
    /// What stood in the controls when the element had read the text.
    Entered mRead;
    /// The element has been written to since it read the text.
    bool mIsWritten = false;
    /// " ed., rev. by John Smith" behind the number.
    Text mBehindNumber;
    Text mLastValidNumber;
    // What is known of the first publication beside what is shown.
    Text mAuthorType;
    Text mTitleType;
    bool mIsSpecialIssue = false;
};

}  // namespace quorvel::forms

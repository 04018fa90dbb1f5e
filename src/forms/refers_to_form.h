#pragma once

#include <map>
#include <vector>

#include "forms/form.h"
#include "forms/surroundings.h"

namespace quorvel::forms {

/// Edits what ties the work to another publication (element type code 12): its kind, and the values that the kind has.
class RefersToForm final : public Form {
public:
    RefersToForm();

    TextView className() const override { return u"RefersToForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    /// A kind as the form offers it.
    struct Kind {
        Text caption;
        /// Of its values; empty where it has none.
        std::vector<Text> captions;
    };

    void initialize() override;
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;
    void choiceClicked(Control& control) override;

    void readKinds(TextView secondaryText);
    void readStatement();
    void fillSeries(TextView value);
    Text seriesValue();
    /// Labels and boxes of a kind. What stands in the boxes is kept for kinds that have a value of the same caption.
    void showKind(std::size_t kind);
    void keepTexts();
    std::vector<Text> valuesOf(std::size_t kind);
    bool isWithoutBoxes();
    /// The kind of the selected option; beyond the kinds when there is none.
    std::size_t selectedKind();

    std::vector<Kind> mKinds;
    std::size_t mShownKind = 0;
    /// What was read: the kind, as the element stores it, and its values.
    std::size_t mReadKind = 0;
    Text mReadType;
    std::vector<Text> mReadValues;
    /// What stands round the statement and belongs to none of its values.
    Surroundings mSurroundings;
    /// The texts of boxes by the captions of their values.
    std::map<Text, Text> mTexts;
    /// What the options of series stand for, by their indexes; the first one for a number.
    std::vector<Text> mUIToSeriesMap;
    Text mLastNumber;
};

}  // namespace quorvel::forms

#pragma once

#include <vector>

#include "forms/form.h"

namespace quorvel::forms {

/// Edits what is told of the volumes of a work, or of the series in which a book appeared (element type code 10).
class MultipartWorkForm final : public Form {
public:
    MultipartWorkForm();

    /// Shows the rows that the style has of the selected kind.
    void showRows();

    TextView className() const override { return u"MultipartWorkForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override { dumpProtocol(report); }

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void choiceClicked(Control& control) override;

    void fillKind(bool isNew);
    void fillSeriesType();
    bool isMultiVol();
    /// Whether the style writes a row of the selected kind, by the index of its box.
    bool isOffered(std::int16_t row);
    /// Whether a row of the selected kind holds a text that the style does not write.
    bool hasUnoffered();

    // What the style has of both kinds, by the indexes of the boxes.
    std::vector<bool> mSeriesOptions;
    std::vector<bool> mMultiVolumeOptions;
    /// The type of a series that is neither old nor new: "2nd ser."
    Text mOtherSeriesType;
    /// What the editor is unless he is a general editor.
    std::int32_t mOtherEditorType = 0;
};

}  // namespace quorvel::forms

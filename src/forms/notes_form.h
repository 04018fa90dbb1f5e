#pragma once

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the notes of a reference (type code 18): free text, behind which there is no element.
class NotesForm final : public Form {
public:
    NotesForm();

    // What the edit buttons can do now.

    bool CanUndo();
    /// The clipboard holds a text.
    bool CanPaste();
    /// Something is selected; both are the same.
    bool CanCut();
    bool CanCopy();

    TextView className() const override { return u"NotesForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool /*isModelPreview*/) override {}
    Text written(bool isFootnote, bool isRTF) override;
    void boxChanged(Control& box) override;
    void textSelected(Control& box, SelectedBy by) override;
    void activated() override;
    void buttonClicked(Control& button) override;

    void Notes_Change();
    void Notes_KeyUp();
    void Notes_MouseMove();
    void CutButton_Click();
    void CopyButton_Click();
    void PasteButton_Click();
    void UndoButton_Click();
    void OkButton_Click();
    void CancelButton_Click();
    std::intptr_t SendMessageAndKeepCursor(EditMessage msg);

    bool hasSelection();
    void enableButtons();
    void edit(EditMessage message);

    /// A row of the table of buttons.
    struct ButtonProcedure;
    static const ButtonProcedure kButtonProcedures[];
};

}  // namespace quorvel::forms

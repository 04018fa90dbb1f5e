#include "forms/notes_form.h"

#include <algorithm>
#include <iterator>

#include "core/procedure.h"

namespace quorvel::forms {

namespace {

constexpr ControlName kNotes = u"Notes";
constexpr ControlName kCutButton = u"CutButton";
constexpr ControlName kCopyButton = u"CopyButton";
constexpr ControlName kPasteButton = u"PasteButton";
constexpr ControlName kUndoButton = u"UndoButton";

constexpr std::int16_t kButtonWidth = 50;
constexpr ControlRow editButton(const ControlName& which, TextView caption, std::int16_t position) {
    return button(which, caption, {3, static_cast<std::int16_t>(position * (kButtonWidth + 4)), kButtonWidth});
}

constexpr ControlRow kControls[] = {
    label(u"NotesLabel", u"&Notes:", {1, 0, kContentWidth}),
    textBox(kNotes, {2, 0, kContentWidth, 110}).multiLine(),
    editButton(kCutButton, u"Cu&t", 0),
    editButton(kCopyButton, u"&Copy", 1),
    editButton(kPasteButton, u"&Paste", 2),
    editButton(kUndoButton, u"&Undo", 3),
};
constexpr FormDesign kDesign = {
    .className = u"NotesForm",
    .title = u"Notes",
    .controls = kControls,
    .aliases = {},
    .firstBox = kNotes,
    .hasPreview = false,
};

// In the order in which the clipboard is asked.
constexpr ClipboardFormat kTexts[] = {ClipboardFormat::Text, ClipboardFormat::UnicodeText, ClipboardFormat::OemText};

}  // namespace

struct NotesForm::ButtonProcedure {
    ControlName button;
    void (NotesForm::*click)() = nullptr;
};
constexpr NotesForm::ButtonProcedure NotesForm::kButtonProcedures[] = {
    {kCutButton, &NotesForm::CutButton_Click},     {kCopyButton, &NotesForm::CopyButton_Click},
    {kPasteButton, &NotesForm::PasteButton_Click}, {kUndoButton, &NotesForm::UndoButton_Click},
    {u"OkButton", &NotesForm::OkButton_Click},     {u"CancelButton", &NotesForm::CancelButton_Click},
};

NotesForm::NotesForm() : Form(kDesign) {}

void NotesForm::fill(TextView parentText, TextView /*secondaryText*/) {
    control(kNotes).setText(parentText);
    enableButtons();
}

Text NotesForm::written(bool /*isFootnote*/, bool /*isRTF*/) {
    return control(kNotes).text();
}

// --- What the edit buttons can do

bool NotesForm::CanUndo() {
    return procedure(*this, u"CanUndo", kNoParameters,
                     [&] { return SendMessageAndKeepCursor(EditMessage::CanUndo) != 0; });
}

bool NotesForm::CanPaste() {
    return procedure(*this, u"CanPaste", kNoParameters, [&] {
        return std::any_of(std::begin(kTexts), std::end(kTexts),
                           [&](ClipboardFormat format) { return view().clipboardHolds(format); });
    });
}

bool NotesForm::CanCut() {
    return procedure(*this, u"CanCut", kNoParameters, [&] { return hasSelection(); });
}

bool NotesForm::CanCopy() {
    return procedure(*this, u"CanCopy", kNoParameters, [&] { return hasSelection(); });
}

bool NotesForm::hasSelection() {
    return view().selection(control(kNotes)).length > 0;
}

void NotesForm::enableButtons() {
    if (!isClosed()) {
        control(kCutButton).setEnabled(CanCut());
        control(kCopyButton).setEnabled(CanCopy());
        control(kPasteButton).setEnabled(CanPaste());
        control(kUndoButton).setEnabled(CanUndo());
    }
}

void NotesForm::boxChanged(Control& /*box*/) {
    Notes_Change();
}

void NotesForm::textSelected(Control& /*box*/, SelectedBy by) {
    if (by == SelectedBy::Key) {
        Notes_KeyUp();
    } else {
        Notes_MouseMove();
    }
}

void NotesForm::activated() {
    // The clipboard may have got another content elsewhere.
    enableButtons();
}

void NotesForm::Notes_Change() {
    procedure(*this, u"Notes_Change", kNoParameters, [&] { enableButtons(); });
}

void NotesForm::Notes_KeyUp() {
    procedure(*this, u"Notes_KeyUp", kNoParameters, [&] { enableButtons(); });
}

void NotesForm::Notes_MouseMove() {
    procedure(*this, u"Notes_MouseMove", kNoParameters, [&] { enableButtons(); });
}

// --- The buttons

void NotesForm::buttonClicked(Control& button) {
    for (const ButtonProcedure& row : kButtonProcedures) {
        if (button.is(row.button)) {
            (this->*row.click)();
        }
    }
}

std::intptr_t NotesForm::SendMessageAndKeepCursor(EditMessage msg) {
    return procedure(*this, u"SendMessageAndKeepCursor", {{u"msg", static_cast<std::int32_t>(msg)}},
                     [&] { return view().sendAndKeepCursor(control(kNotes), msg); });
}

void NotesForm::edit(EditMessage message) {
    SendMessageAndKeepCursor(message);
    enableButtons();
    // The button may be disabled now, and the user goes on writing.
    if (!isClosed()) {
        view().setFocus(control(kNotes));
    }
}

void NotesForm::CutButton_Click() {
    procedure(*this, u"CutButton_Click", kNoParameters, [&] { edit(EditMessage::Cut); });
}

void NotesForm::CopyButton_Click() {
    procedure(*this, u"CopyButton_Click", kNoParameters, [&] { edit(EditMessage::Copy); });
}

void NotesForm::PasteButton_Click() {
    procedure(*this, u"PasteButton_Click", kNoParameters, [&] { edit(EditMessage::Paste); });
}

void NotesForm::UndoButton_Click() {
    procedure(*this, u"UndoButton_Click", kNoParameters, [&] {
        if (CanUndo()) {
            edit(EditMessage::Undo);
        }
    });
}

void NotesForm::OkButton_Click() {
    procedure(*this, u"OkButton_Click", kNoParameters, [&] { accept(); });
}

void NotesForm::CancelButton_Click() {
    procedure(*this, u"CancelButton_Click", kNoParameters, [&] { Unload(); });
}

void NotesForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mCallback", callback());
}

}  // namespace quorvel::forms

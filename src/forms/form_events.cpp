#include "core/procedure.h"
#include "forms/common_form_processing_functions.h"
#include "forms/common_ui_functions.h"
#include "forms/form.h"
#include "forms/form_scopes.h"

namespace quorvel::forms {

// --- What the user does

void Form::userTyped(Control& control, TextView text) {
    control.userTyped(text);
}

void Form::userClicked(Control& control) {
    control.click();
}

void Form::userSelected(Control& list, std::int32_t index) {
    list.userSelected(index);
}

void Form::userSpun(Control& upDown, bool isUp) {
    handle(u"UpDown_Change", [&] { UpDown_Click(upDown, isUp); });
}

void Form::userEntered(Control& control) {
    handle(u"TextBox_GotFocus", [&] {
        mFocused = &control;
        if (isBox(control)) {
            TextBox_GotFocus(control);
        }
    });
}

void Form::userLeft(Control& control) {
    handle(u"TextBox_LostFocus", [&] {
        if (mFocused == &control) {
            mFocused = nullptr;
        }
        if (isBox(control) && !mIsClosed) {
            TextBox_LostFocus(control);
        }
    });
}

void Form::leaveFocused() {
    if (mFocused != nullptr && isBox(*mFocused)) {
        TextBox_LostFocus(*mFocused);
    }
}

void Form::userPointedAt(Control* control) {
    handle(u"Form_MouseMove", [&] {
        if (control != mPointedAt) {
            mPointedAt = control;
            Form_MouseMove(control);
        }
    });
}

void Form::userSelectedText(Control& control, SelectedBy by) {
    handle(by == SelectedBy::Key ? u"KeyUp" : u"MouseMove", [&] { textSelected(control, by); });
}

bool Form::isEnterOk(const Control& focus) const {
    return focus.kind() != ControlKind::TextBox || !focus.row().isMultiLine;
}

void Form::userPressedEnter() {
    handle(u"OkButton_Click", [&] {
        if (mFocused != nullptr && mFocused->kind() == ControlKind::Button) {
            mFocused->click();
        } else if (!enterPressed(mFocused)) {
            control(kOkButton).click();
        }
    });
}

void Form::userPressedEscape() {
    handle(u"CancelButton_Click", [&] { control(kCancelButton).click(); });
}

void Form::userActivated() {
    handle(u"Form_Activate", [&] { activated(); });
}

void Form::TextBox_Change(Control& box) {
    procedure(*this, u"TextBox_Change", {{u"Index", box.index()}}, [&] {
        if (!mSuppressUpdatePreview) {
            mIsChanged = true;
            {
                const Filling filling(*this);
                boxChanged(box);
            }
            UpdateOutput();
        }
    });
}

void Form::TextBox_GotFocus(Control& box) {
    procedure(*this, u"TextBox_GotFocus", {{u"Index", box.index()}}, [&] { boxEntered(box); });
}

void Form::TextBox_LostFocus(Control& box) {
    procedure(*this, u"TextBox_LostFocus", {{u"Index", box.index()}}, [&] {
        {
            const Filling filling(*this);
            // Lines keep their blanks.
            if (!box.row().isMultiLine) {
                CommonUIFunctions::PreprocessTextField(box);
            }
            boxLeft(box);
        }
        UpdateOutput();
    });
}

void Form::OptionButton_Click(Control& option) {
    procedure(*this, u"OptionButton_Click", {{u"Index", option.index()}}, [&] {
        mIsChanged = mIsChanged || !mSuppressUpdatePreview;
        {
            const Filling filling(*this);
            choiceClicked(option);
        }
        UpdateOutput();
    });
}

void Form::CheckBox_Click(Control& checkBox) {
    procedure(*this, u"CheckBox_Click", {{u"Index", checkBox.index()}}, [&] {
        mIsChanged = mIsChanged || !mSuppressUpdatePreview;
        {
            const Filling filling(*this);
            choiceClicked(checkBox);
        }
        UpdateOutput();
    });
}

void Form::CommandButton_Click(Control& button) {
    procedure(*this, u"CommandButton_Click", {{u"Index", button.index()}}, [&] {
        if (button.is(kOkButton)) {
            leaveFocused();
            accept();
        } else {
            Unload();
        }
    });
}

void Form::accept() {
    const int showing = mShowings;
    const auto [parentVal, secondaryVal] = result();
    callHost(u"setParentWidgetsValue", {Value(parentVal), Value(secondaryVal)});
    if (mShowings == showing) {
        Unload();
    }
}

void Form::UpDown_Click(Control& upDown, bool isUp) {
    procedure(*this, isUp ? Name(u"UpDown_UpClick") : Name(u"UpDown_DownClick"), {{u"Index", upDown.index()}}, [&] {
        spun(upDown, control({upDown.row().buddy, upDown.index()}), isUp);
    });
}

void Form::spun(Control& /*upDown*/, Control& buddy, bool isUp) {
    constexpr std::int16_t kFirst = 1;
    if (isUp) {
        CommonFormProcessingFunctions::processSpinUp(*this, buddy, kFirst);
    } else {
        CommonFormProcessingFunctions::processSpinDown(buddy, kFirst - 1, false);
    }
}

void Form::Form_MouseMove(Control* control) {
    procedure(*this, u"Form_MouseMove", kNoParameters, [&] {
        if (control != nullptr && !control->toolTip().empty()) {
            callHost(u"TooltipShow", {Value(control->toolTip())});
        } else {
            callHost(u"TooltipHide", {});
        }
    });
}

void Form::dumpProtocol(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mSuppressUpdatePreview", mSuppressUpdatePreview);
    report.vbwReportVariable(u"mCallback", mCallback);
    report.vbwReportVariable(u"mDefaultOutputTemplate", mDefaultOutputTemplate.object());
    report.vbwReportVariable(
        mDesign.isPreviewedByModel ? TextView(u"mOutputPreviewTemplate") : TextView(u"mModelOutputTemplate"),
        mModelOutputTemplate.object());
}

}  // namespace quorvel::forms

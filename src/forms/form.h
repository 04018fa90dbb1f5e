#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "core/instrumented.h"
#include "forms/control.h"
#include "forms/edited_object.h"
#include "forms/view.h"

namespace quorvel::forms {

/// By what a selection of characters may have become another.
enum class SelectedBy : std::uint8_t { Key, Mouse };

/// An editor form: the protocol that all share, between the proxy that shows it, the element that it edits and the
/// host that it tells of the result. A form derives from it with its table of controls and its particulars, the virtual
/// members below.
///
/// Everything that comes in from outside keeps the form alive until it is done, and the controls are laid out once
/// behind it: what the host does in the middle of it (close the form, show another text) is no harm.
class Form : public Instrumented, public std::enable_shared_from_this<Form>, private ControlOwner {
public:
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    // --- The protocol, in the order in which the calls arrive.

    /// Gives the form its windows, once.
    void attach(std::shared_ptr<FormView> view);
    /// Keeps the callback and dresses the form. @param icon a picture, or nothing
    void Initialize(const LateObjectRef& callback, TextView productName, const LateObjectRef& icon);
    /// Shows what the element makes of the host's text.
    void ParentWidgetChanged(const LateObjectRef& DefaultOutputTemplate, const LateObjectRef& modelOutputTemplate,
                             TextView parentText, TextView secondaryText);
    /// Brings everything that depends on the first box into line with it, in a form with rows of boxes.
    virtual void PrimePump() {}
    /// Refreshes the preview, unless the form is filling its controls.
    void UpdateOutput();
    /// What the controls say, as the element writes it.
    /// @param isModelPreview for the preview, where a placeholder may stand for what is missing
    Text toString(bool isModelPreview = false, bool isFootnote = false, bool isRTF = false);

    // --- The form as a window. All places are twips.

    /// Modeless, owned by a window of the host's (0: by none). It is to be seen once it is filled and revealed.
    void Show(std::intptr_t owner);
    /// Is to be seen now that it is filled and placed, with the focus in its first box; where it is seen already,
    /// nothing.
    void reveal();
    void Hide();
    void SetFocus();
    /// Closes as the close box does: nothing is written back.
    void Unload();
    /// The window is gone by another's doing: the host is told, as by `Unload`.
    void windowGone();
    /// The font's size is another: lays out again.
    void densityChanged();
    bool isClosed() const { return mIsClosed; }

    std::intptr_t hwnd() const;
    Rectangle place() const;
    void setPlace(const Rectangle& place);
    /// The client area's.
    Rectangle scale() const { return mClient; }
    /// What the caption and the borders add to the client area's height.
    Twips frameHeight() const;
    void setClientHeight(Twips height);
    const Text& Caption() const { return mCaption; }
    void setCaption(TextView caption);
    void setIcon(std::intptr_t icon);
    bool isVisible() const;
    bool isEnabled() const { return mIsEnabled; }
    void setEnabled(bool isEnabled);
    const FormDesign& design() const { return mDesign; }

    // --- The controls.

    /// In the order of reading.
    std::deque<Control>& controls() { return mControls; }
    /// A control by its name or by another that it has; null when there is none.
    Control* find(const ControlName& which);
    /// The same of controls that are there: error 438 when there is none.
    Control& control(const ControlName& which);
    /// The control in which the focus is; null when it is elsewhere.
    Control* focused() const { return mFocused; }
    /// The windows; error 91 when the form is closed.
    FormView& view() const;
    /// The host wrote to controls: they are laid out if they have to be.
    void hostChanged();
    bool hasView() const { return mView != nullptr; }

    // --- What the user does, as the view tells it.

    void userTyped(Control& control, TextView text);
    void userClicked(Control& control);
    void userSelected(Control& list, std::int32_t index);
    void userSpun(Control& upDown, bool isUp);
    void userEntered(Control& control);
    void userLeft(Control& control);
    /// The mouse came upon a control, or upon the bare form (null): told once, not at each move.
    void userPointedAt(Control* control);
    /// A key was released in a box, or the mouse moved over it: what depends on its selection may have changed.
    void userSelectedText(Control& control, SelectedBy by = SelectedBy::Key);
    /// Whether Enter means OK while the focus is in this control, rather than a new line.
    virtual bool isEnterOk(const Control& focus) const;
    void userPressedEnter();
    void userPressedEscape();
    void userActivated();

protected:
    explicit Form(const FormDesign& design);

    // --- Particulars of a form. Each runs inside a procedure of the protocol, whose trap is around it.

    /// Fills the index tables. The form has its windows and its callback.
    virtual void initialize() {}
    /// Lets the element read the host's text and fills the controls, which raise no refreshing meanwhile.
    virtual void fill(TextView parentText, TextView secondaryText) = 0;
    /// Copies the controls into the element.
    virtual void collect(bool isModelPreview) = 0;
    /// What the controls that were collected say, as the element writes it.
    virtual Text written(bool isFootnote, bool isRTF);
    /// The two texts for the host: what the form says as a reference-list entry, and none.
    virtual std::pair<Text, Text> result();
    /// What the preview shows: what the form says, or what the preview's own element makes of that.
    virtual Text preview();
    /// A box has another text.
    virtual void boxChanged(Control& /*box*/) {}
    virtual void boxEntered(Control& /*box*/) {}
    /// Behind `PreprocessTextField`.
    virtual void boxLeft(Control& /*box*/) {}
    /// An option or a check box was clicked.
    virtual void choiceClicked(Control& /*control*/) {}
    /// OK and Cancel; a form with other buttons has procedures of its own.
    virtual void buttonClicked(Control& button) { CommandButton_Click(button); }
    /// Counts from 1: up from an empty box, and down to one.
    virtual void spun(Control& upDown, Control& buddy, bool isUp);
    virtual void textSelected(Control& /*box*/, SelectedBy /*by*/) {}
    virtual void activated() {}
    /// What Enter does in a control where it is neither OK nor a new line; false for OK.
    virtual bool enterPressed(Control* /*focus*/) { return false; }

    void CommandButton_Click(Control& button);
    /// What OK does: the texts go to the host, and the form closes unless the host showed it another text then.
    void accept();
    /// What leaving the box in which the focus is would do.
    void leaveFocused();

    EditedObject& element() { return mDefaultOutputTemplate; }
    const EditedObject& element() const { return mDefaultOutputTemplate; }
    EditedObject& model() { return mModelOutputTemplate; }
    /// What the style supports: the model is asked, and the element where the model does not say.
    bool supports(const char16_t* member);
    /// The same of a list: the captions that the style offers.
    std::vector<Text> offered(const char16_t* member);
    const LateObjectRef& callback() const { return mCallback; }
    /// Calls a member of the callback; nothing when the form has none any more. A failure is reported.
    Value callHost(const char16_t* member, std::initializer_list<Value> arguments) const;
    const Text& productName() const { return mProductName; }
    bool isFilling() const { return mSuppressUpdatePreview; }
    /// The texts that the form was opened with.
    const Text& parentText() const { return mParentText; }
    const Text& secondaryText() const { return mSecondaryText; }
    /// Whether somebody has changed a control since.
    bool isChanged() const { return mIsChanged; }
    /// Of `dumpVariables`, behind the form's own.
    void dumpProtocol(VBWPROTECTOR& report) const;

private:
    class Filling;

    void aspectChanged(Control& control, Aspect aspect) override;
    void textChanged(Control& control) override;
    void clicked(Control& control) override;
    Text plainText(const Control& control) const override;

    void TextBox_Change(Control& box);
    void TextBox_GotFocus(Control& box);
    void TextBox_LostFocus(Control& box);
    void OptionButton_Click(Control& option);
    void CheckBox_Click(Control& checkBox);
    void UpDown_Click(Control& upDown, bool isUp);
    void Form_MouseMove(Control* control);
    void Form_QueryUnload();
    void Form_Unload();
    void layOut();
    /// Runs what comes in from outside: the form lives until it is done, what fails is reported, and behind the
    /// outermost one the controls are laid out if they have to be.
    template <class Body>
    void handle(TextView name, Body&& body) noexcept;

    const FormDesign& mDesign;
    // Their addresses stay, since views and hosts hold them.
    std::deque<Control> mControls;
    std::shared_ptr<FormView> mView;
    Text mProductName;
    Text mCaption;
    Rectangle mClient;
    Control* mFocused = nullptr;
    Control* mPointedAt = nullptr;
    int mHandled = 0;
    /// Counts the texts that the host showed, so that an OK under way knows whether there came another.
    int mShowings = 0;
    Text mParentText;
    Text mSecondaryText;
    bool mIsChanged = false;
    bool mIsLayoutStale = true;
    bool mIsLayingOut = false;
    bool mIsEnabled = true;
    bool mIsClosed = false;

    bool mSuppressUpdatePreview = false;
    LateObjectRef mCallback;
    EditedObject mDefaultOutputTemplate;
    EditedObject mModelOutputTemplate;
};

}  // namespace quorvel::forms

#include "forms/form.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "forms/common_form_processing_functions.h"
#include "forms/common_ui_functions.h"
#include "forms/form_scopes.h"
#include "forms/layout.h"

namespace quorvel::forms {

namespace {

constexpr ControlName kOutput = u"Output";

// The foot of every form.
constexpr ControlRow kPreview[] = {
    label(u"OutputLabel", u"Preview:", {1, 0, kContentWidth}).in(kBottomPane),
    richText(u"Output", {2, 0, kContentWidth, 40}).in(kBottomPane).readOnly().spoken(u"Preview"),
};
constexpr std::int16_t kButtonWidth = 50;
constexpr ControlRow kPane = frame(kBottomPane, u"", {0, 0, kContentWidth});
constexpr ControlRow kButtons[] = {
    button(kOkButton, u"OK", {3, kContentWidth - 2 * kButtonWidth - 4, kButtonWidth}).in(kBottomPane),
    button(kCancelButton, u"Cancel", {3, kContentWidth - kButtonWidth, kButtonWidth}).in(kBottomPane),
};
constexpr ControlAlias kCommandButtons[] = {
    {u"CommandButton", 0, 0, u"OkButton"},
    {u"CommandButton", 1, 1, u"CancelButton"},
};

// Of a form that closes itself.
constexpr std::int16_t kTerminated = 1;

/// The control that an alias stands for.
const ControlAlias* aliasOf(std::span<const ControlAlias> aliases, const ControlName& which) {
    const auto found = std::find_if(aliases.begin(), aliases.end(), [&](const ControlAlias& alias) {
        return equalsIgnoringCase(alias.alias, which.name) && which.index >= alias.from && which.index <= alias.to;
    });
    return found != aliases.end() ? &*found : nullptr;
}

}  // namespace

Form::Form(const FormDesign& design) : mDesign(design), mDefaultOutputTemplate(*this), mModelOutputTemplate(*this) {
    for (const ControlRow& row : design.controls) {
        mControls.emplace_back(row, static_cast<ControlOwner&>(*this));
    }
    const bool hasPane = find(kBottomPane) != nullptr;
    if (!hasPane) {
        mControls.emplace_back(kPane, static_cast<ControlOwner&>(*this));
        if (design.hasPreview) {
            for (const ControlRow& row : kPreview) {
                mControls.emplace_back(row, static_cast<ControlOwner&>(*this));
            }
        }
        for (const ControlRow& row : kButtons) {
            mControls.emplace_back(row, static_cast<ControlOwner&>(*this));
        }
    }
    for (Control& control : mControls) {
        if (!control.row().frame.empty()) {
            control.setFrame(&this->control(control.row().frame));
        }
    }
}

Form::~Form() {
    if (mView) {
        mView->close();
    }
}

// --- The protocol

void Form::attach(std::shared_ptr<FormView> view) {
    handle(u"attach", [&] { mView = std::move(view); });
}

void Form::Initialize(const LateObjectRef& callback, TextView productName, const LateObjectRef& icon) {
    handle(u"Initialize", [&] {
        procedure(*this, u"Initialize", {{u"callback", callback}, {u"productName", productName}, {u"icon", icon}}, [&] {
            LateObjectRef given = callback;
            mCallback.swap(given);
            mProductName = productName;
            setCaption(concatenate({mDesign.title, u" - ", productName}));
            CommonUIFunctions::SetFormIcon(*this, icon);
            initialize();
        });
    });
}

void Form::ParentWidgetChanged(const LateObjectRef& DefaultOutputTemplate, const LateObjectRef& modelOutputTemplate,
                               TextView parentText, TextView secondaryText) {
    handle(u"ParentWidgetChanged", [&] {
        procedure(*this, u"ParentWidgetChanged",
                  {{u"DefaultOutputTemplate", DefaultOutputTemplate},
                   {u"modelOutputTemplate", modelOutputTemplate},
                   {u"parentText", parentText},
                   {u"secondaryText", secondaryText}},
                  [&] {
                      ++mShowings;
                      mParentText = parentText;
                      mSecondaryText = secondaryText;
                      mIsChanged = false;
                      mDefaultOutputTemplate.hold(DefaultOutputTemplate);
                      mModelOutputTemplate.hold(modelOutputTemplate);
                      const Filling filling(*this);
                      fill(parentText, secondaryText);
                  });
        PrimePump();
        UpdateOutput();
    });
}

void Form::UpdateOutput() {
    procedure(*this, u"UpdateOutput", kNoParameters, [&] {
        Control* const output = find(kOutput);
        if (!mSuppressUpdatePreview && !mIsClosed && output != nullptr) {
            output->setRtf(CommonUIFunctions::asDocument(preview()));
        }
    });
}

Text Form::toString(bool isModelPreview, bool isFootnote, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isModelPreview", isModelPreview}, {u"isFootnote", isFootnote}, {u"isRTF", isRTF}}, [&] {
                         collect(isModelPreview);
                         return written(isFootnote, isRTF);
                     });
}

Text Form::written(bool isFootnote, bool isRTF) {
    std::vector<Value> arguments = {Value(isFootnote)};
    if (isRTF && mDesign.rtfParameter > 0) {
        arguments.resize(static_cast<std::size_t>(mDesign.rtfParameter), Value(false));
        arguments.emplace_back(true);
    }
    return mDefaultOutputTemplate.call(u"toString", arguments).asText();
}

Text Form::preview() {
    if (mDesign.isPreviewedByModel && mModelOutputTemplate.object()) {
        const Text text = toString();
        if (mModelOutputTemplate.ifAny(u"Parse", {Value(text)})) {
            if (const std::optional<Value> shown = mModelOutputTemplate.ifAny(u"toString", {Value(false)}); shown) {
                return shown->asText();
            }
        }
    }
    return toString(true, false, true);
}

std::pair<Text, Text> Form::result() {
    return {toString(), Text()};
}

bool Form::supports(const char16_t* member) {
    const std::optional<Value> answer = mModelOutputTemplate.ifAny(member);
    return answer ? answer->asFlag() : mDefaultOutputTemplate.flag(member);
}

std::vector<Text> Form::offered(const char16_t* member) {
    const std::optional<Value> answer = mModelOutputTemplate.ifAny(member);
    return answer ? answer->asTexts() : mDefaultOutputTemplate.texts(member);
}

Value Form::callHost(const char16_t* member, std::initializer_list<Value> arguments) const {
    const LateObjectRef host = mCallback;
    try {
        return host ? host->call(member, {arguments.begin(), arguments.size()}) : Value();
    } catch (...) {
        reportCurrentException(*this, TextView(member));
    }
    return {};
}

// --- The form as a window

void Form::Show(std::intptr_t owner) {
    handle(u"Show", [&] { view().show(owner); });
}

void Form::reveal() {
    handle(u"reveal", [&] {
        if (mIsLayoutStale) {
            layOut();
        }
        if (!view().isRevealed()) {
            const Control* const first = find(mDesign.firstBox);
            view().reveal(first != nullptr && first->isShown() && first->isEnabled() ? first : nullptr);
        }
    });
}

void Form::Hide() {
    handle(u"Hide", [&] { view().hide(); });
}

void Form::SetFocus() {
    handle(u"SetFocus", [&] { view().setFocus(); });
}

void Form::Unload() {
    if (!mIsClosed) {
        handle(u"Unload", [&] {
            Form_QueryUnload();
            Form_Unload();
        });
    }
}

void Form::windowGone() {
    Unload();
}

void Form::densityChanged() {
    handle(u"densityChanged", [&] { mIsLayoutStale = true; });
}

void Form::Form_QueryUnload() {
    constexpr std::int16_t kNotCancelled = 0;
    procedure(*this, u"Form_QueryUnload", {{u"Cancel", kNotCancelled}, {u"UnloadMode", kTerminated}}, [&] {
        mIsClosed = true;
        // Forgotten first: the host may close the form while it is told.
        const LateObjectRef callback = std::exchange(mCallback, nullptr);
        if (callback) {
            const Value code(static_cast<std::int32_t>(kTerminated));
            callback->call(u"Terminate", {&code, 1});
        }
    });
}

void Form::Form_Unload() {
    constexpr std::int16_t kNotCancelled = 0;
    procedure(*this, u"Form_Unload", {{u"Cancel", kNotCancelled}}, [&] {
        mCallback = nullptr;
        mFocused = nullptr;
        mPointedAt = nullptr;
        if (const std::shared_ptr<FormView> view = std::exchange(mView, nullptr); view) {
            view->close();
        }
        mDefaultOutputTemplate.hold(nullptr);
        mModelOutputTemplate.hold(nullptr);
    });
}

FormView& Form::view() const {
    if (!mView) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *mView;
}

std::intptr_t Form::hwnd() const {
    return mView ? mView->handle() : 0;
}

Rectangle Form::place() const {
    return mView ? mView->place() : Rectangle();
}

void Form::setPlace(const Rectangle& place) {
    handle(u"Move", [&] {
        if (place != view().place()) {
            view().setPlace(place);
        }
    });
}

Twips Form::frameHeight() const {
    return mView ? mView->borders().height : 0;
}

void Form::setClientHeight(Twips height) {
    mClient.height = height;
    if (mView) {
        const Rectangle borders = mView->borders();
        Rectangle place = mView->place();
        place.width = mClient.width + borders.width;
        place.height = height + borders.height;
        setPlace(place);
    }
}

void Form::setCaption(TextView caption) {
    mCaption = caption;
    if (mView) {
        mView->setCaption(caption);
    }
}

void Form::setIcon(std::intptr_t icon) {
    if (mView) {
        mView->setIcon(icon);
    }
}

bool Form::isVisible() const {
    return mView && mView->isRevealed();
}

void Form::setEnabled(bool isEnabled) {
    handle(u"Enabled", [&] {
        mIsEnabled = isEnabled;
        view().setEnabled(isEnabled);
    });
}

void Form::layOut() {
    if (!mView || mIsLayingOut) {
        return;
    }
    mIsLayingOut = true;
    // Kept, since windows that move may come back here with the form's end.
    const std::shared_ptr<FormView> view = mView;
    view->beginLayout();
    try {
        const DialogUnits units = mView->dialogUnits();
        mClient.width = static_cast<Twips>(kFormWidth) * units.horizontal;
        Control* const lowest = layOutControls(mControls, units, mClient.width);
        CommonFormProcessingFunctions::adjustFormHeight(*this, lowest, control(kBottomPane));
        mIsLayoutStale = false;
    } catch (...) {
        reportCurrentException(*this, u"layOut");
    }
    view->endLayout();
    mIsLayingOut = false;
}

// --- The controls

Control* Form::find(const ControlName& which) {
    const auto named = [&](const ControlName& name) {
        const auto found = std::find_if(mControls.begin(), mControls.end(), [&](const Control& control) {
            return control.index() == name.index && equalsIgnoringCase(control.name(), name.name);
        });
        return found != mControls.end() ? &*found : nullptr;
    };
    if (Control* const control = named(which); control != nullptr) {
        return control;
    }
    const ControlAlias* alias = aliasOf(mDesign.aliases, which);
    if (alias == nullptr) {
        alias = aliasOf(kCommandButtons, which);
    }
    if (alias == nullptr) {
        return nullptr;
    }
    const bool isOne = alias->first == kNoIndex;
    return named(
        {alias->name, static_cast<std::int16_t>(isOne ? kNoIndex : alias->first + (which.index - alias->from))});
}

Control& Form::control(const ControlName& which) {
    Control* const found = find(which);
    if (found == nullptr) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    return *found;
}

void Form::aspectChanged(Control& control, Aspect aspect) {
    // A frame has a border with its caption, and a label of several lines is as high as they are.
    const bool isSizedByCaption = control.kind() == ControlKind::Frame ||
                                  (control.kind() == ControlKind::Label && control.row().place.height != 0);
    const bool matters =
        aspect == Aspect::Visible || aspect == Aspect::Place || (aspect == Aspect::Caption && isSizedByCaption);
    mIsLayoutStale = mIsLayoutStale || (matters && !mIsLayingOut);
    if (mView) {
        mView->aspectChanged(control, aspect);
    }
}

void Form::textChanged(Control& control) {
    if (isBox(control) || control.kind() == ControlKind::ListBox) {
        handle(u"TextBox_Change", [&] { TextBox_Change(control); });
    }
}

void Form::clicked(Control& control) {
    handle(u"Click", [&] {
        switch (control.kind()) {
            case ControlKind::OptionButton:
                for (Control& other : mControls) {
                    if (control.value() && &other != &control && other.kind() == ControlKind::OptionButton &&
                        other.row().group == control.row().group) {
                        other.deselect();
                    }
                }
                OptionButton_Click(control);
                break;
            case ControlKind::CheckBox: CheckBox_Click(control); break;
            default: buttonClicked(control); break;
        }
    });
}

void Form::hostChanged() {
    handle(u"hostChanged", [] {});
}

Text Form::plainText(const Control& control) const {
    return mView ? mView->plainText(control) : Text();
}

}  // namespace quorvel::forms

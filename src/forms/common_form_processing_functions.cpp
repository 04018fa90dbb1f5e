#include "forms/common_form_processing_functions.h"

#include <algorithm>

#include "core/procedure.h"
#include "forms/form.h"

namespace quorvel::forms::CommonFormProcessingFunctions {

namespace {

constexpr StandardModule kModule(u"CommonFormProcessingFunctions");

// Between the last widget and the pane below it.
constexpr Twips kPaneGap = 10;

std::int32_t numberOf(TextView text) {
    return Value(text).asNumber();
}

Text textOf(std::int32_t number) {
    return Value(number).asText();
}

}  // namespace

Text GetTag(const Control* widget, bool isSecond) {
    return procedure(kModule, u"GetTag", {{u"isSecond", isSecond}}, [&] {
        const std::vector<Text> fields = split(widget != nullptr ? TextView(widget->tag()) : TextView(), u",");
        const std::size_t field = isSecond ? 1 : 0;
        return field < fields.size() ? fields.at(field) : Text();
    });
}

Control* getWidgetWithTag(std::span<Control* const> widgets, TextView tag) {
    return procedure(kModule, u"getWidgetWithTag[Get]", {{u"tag", tag}}, [&]() -> Control* {
        const auto found = std::find_if(widgets.begin(), widgets.end(),
                                        [&](const Control* widget) { return GetTag(widget, false) == tag; });
        return found != widgets.end() ? *found : nullptr;
    });
}

bool isNumeric(TextView text) {
    TextView digits = trim(text);
    if (!digits.empty() && (digits.front() == u'-' || digits.front() == u'+')) {
        digits.remove_prefix(1);
    }
    // Nine digits fit into 32 bits, and one more number is as much as spinning adds.
    constexpr std::size_t kMostDigits = 9;
    return isDigits(digits) && digits.size() <= kMostDigits;
}

void processSpinUp(Form& form, Control& box, std::int16_t startValue) {
    procedure(kModule, u"processSpinUp", {{u"startValue", startValue}}, [&] {
        const Text text = box.text();
        if (text.empty()) {
            box.setText(textOf(startValue));
        } else if (isNumeric(text)) {
            box.setText(textOf(numberOf(text) + 1));
        }
        if (form.hasView()) {
            // Whether the box takes the focus does not matter.
            form.view().setFocus(box);
        }
    });
}

void processSpinDown(Control& box, std::int16_t floorValue, bool keep) {
    procedure(kModule, u"processSpinDown", {{u"floorValue", floorValue}, {u"keep", keep}}, [&] {
        const Text text = box.text();
        if (!isNumeric(text)) {
            return;
        }
        const std::int32_t number = numberOf(text) - 1;
        if (number != floorValue) {
            box.setText(textOf(number));
        } else if (!keep) {
            box.setText({});
        }
    });
}

bool validateSpinChange(Control& box, Text& lastValidText, std::int32_t minimum) {
    return procedure(kModule, u"validateSpinChange", {{u"lastValidText", lastValidText}, {u"minimum", minimum}}, [&] {
        const Text text(trim(box.text()));
        if (text.empty()) {
            return true;
        }
        if (isNumeric(text) && numberOf(text) >= minimum) {
            lastValidText = text;
            return true;
        }
        box.setText(lastValidText);
        return false;
    });
}

void ToggleWidgetFont(Control& widget, bool isEnabled) {
    procedure(kModule, u"ToggleWidgetFont", {{u"enabled", isEnabled}},
              [&] { widget.setForeColor(isEnabled ? kWindowText : kGreyText); });
}

void clickOptionButton(Form& form, std::span<Control* const> options, std::size_t index,
                       const LateObjectRef& callback) {
    procedure(kModule, u"clickOptionButton", {{u"Index", static_cast<std::int32_t>(index)}}, [&] {
        if (index >= options.size()) {
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        }
        Control& option = *options[index];
        if (option.isShown() && !option.value()) {
            if (form.hasView()) {
                form.view().setFocus(option);
            }
            option.setValue(true);
            held(callback)->call(u"ReturnFocus", {});
        }
    });
}

void adjustFormHeight(Form& form, const Control* lastVisibleWidget, Control& bottomPane) {
    procedure(kModule, u"adjustFormHeight", kNoParameters, [&] {
        const Rectangle above = lastVisibleWidget != nullptr ? lastVisibleWidget->place() : Rectangle();
        Rectangle pane = bottomPane.place();
        const Twips moved = above.top + above.height + kPaneGap - pane.top;
        for (Control& control : form.controls()) {
            if (control.frame() == &bottomPane) {
                Rectangle place = control.place();
                place.top += moved;
                control.setPlace(place);
            }
        }
        pane.top += moved;
        bottomPane.setPlace(pane);
        // The borders are added by the form, which knows them.
        form.setClientHeight(pane.top + pane.height);
    });
}

}  // namespace quorvel::forms::CommonFormProcessingFunctions

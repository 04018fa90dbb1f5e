#include "forms/win/navigation.h"

#include <windows.h>

#include <algorithm>

namespace quorvel::forms::win {

namespace {

char16_t upper(char16_t letter) {
    auto unit = static_cast<wchar_t>(letter);
    CharUpperBuffW(&unit, 1);
    return static_cast<char16_t>(unit);
}

/// The letter behind the single "&" of a caption, as a capital; 0 when there is none.
char16_t mnemonicOf(TextView caption) {
    for (std::size_t at = caption.find(u'&'); at != TextView::npos && at + 1 < caption.size();
         at = caption.find(u'&', at + 2)) {
        if (caption[at + 1] != u'&') {
            return upper(caption[at + 1]);
        }
    }
    return 0;
}

/// The first control that the test accepts, behind `from` (null: from the start) once round to itself.
template <class Accepts>
Control* firstFrom(std::deque<Control>& controls, const Control* from, bool isForward, Accepts accepts) {
    const std::size_t count = controls.size();
    const auto at = static_cast<std::size_t>(
        std::find_if(controls.begin(), controls.end(), [from](const Control& control) { return &control == from; }) -
        controls.begin());
    // One place more than controls: that of nobody, from which the search starts without `from`.
    for (std::size_t step = 1; step <= count + 1; ++step) {
        const std::size_t index = (at + (isForward ? step : count + 1 - step)) % (count + 1);
        if (index < count && accepts(controls[index])) {
            return &controls[index];
        }
    }
    return nullptr;
}

bool areOfOneGroup(const Control& one, const Control& other) {
    return one.kind() == ControlKind::OptionButton && other.kind() == ControlKind::OptionButton &&
           one.row().group == other.row().group;
}

/// The option at which the Tab key stops for all of its group.
const Control* stopOfGroup(std::deque<Control>& controls, const Control& option, const CanFocus& canFocus) {
    const Control* stop = nullptr;
    for (const Control& other : controls) {
        if (areOfOneGroup(option, other) && canFocus(other) && (stop == nullptr || (other.value() && !stop->value()))) {
            stop = &other;
        }
    }
    return stop;
}

}  // namespace

bool takesFocus(const Control& control) {
    switch (control.kind()) {
        case ControlKind::Label:
        case ControlKind::Frame:
        case ControlKind::UpDown: return false;
        case ControlKind::RichText: return !control.row().isReadOnly;
        default: return true;
    }
}

Control* nextStop(std::deque<Control>& controls, const Control* from, bool isForward, const CanFocus& canFocus) {
    return firstFrom(controls, from, isForward, [&](const Control& control) {
        if (!canFocus(control)) {
            return false;
        }
        if (control.kind() != ControlKind::OptionButton) {
            return true;
        }
        return (from == nullptr || !areOfOneGroup(*from, control)) &&
               stopOfGroup(controls, control, canFocus) == &control;
    });
}

Control* neighbour(std::deque<Control>& controls, const Control& from, bool isForward, const CanFocus& canFocus) {
    return firstFrom(controls, &from, isForward, [&](const Control& control) {
        const bool areButtons = from.kind() == ControlKind::Button && control.kind() == ControlKind::Button &&
                                from.frame() == control.frame();
        return (areButtons || areOfOneGroup(from, control)) && canFocus(control);
    });
}

Control* ofMnemonic(std::deque<Control>& controls, const Control* focus, char16_t letter, const CanFocus& canFocus) {
    const char16_t wanted = upper(letter);
    const auto target = [&](Control& control) -> Control* {
        if (mnemonicOf(control.caption()) != wanted || !control.isShown() || !control.isEnabled()) {
            return nullptr;
        }
        if (control.kind() != ControlKind::Label && control.kind() != ControlKind::Frame) {
            return canFocus(control) ? &control : nullptr;
        }
        const auto next =
            std::find_if(controls.begin(), controls.end(), [&](const Control& other) { return &other == &control; });
        const auto found = std::find_if(next, controls.end(), canFocus);
        return found != controls.end() ? &*found : nullptr;
    };
    Control* const named =
        firstFrom(controls, focus, true, [&](Control& control) { return target(control) != nullptr; });
    return named != nullptr ? target(*named) : nullptr;
}

Control* upDownOf(std::deque<Control>& controls, const Control& box) {
    const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control& control) {
        return control.kind() == ControlKind::UpDown && box.is({control.row().buddy, control.index()}) &&
               control.isShown() && control.isEnabled();
    });
    return found != controls.end() ? &*found : nullptr;
}

}  // namespace quorvel::forms::win

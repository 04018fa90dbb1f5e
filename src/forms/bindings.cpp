#include "forms/bindings.h"

#include <algorithm>

#include "forms/form.h"

namespace quorvel::forms {

namespace {

template <class Visit>
void forEachOption(Form& form, TextView options, Visit visit) {
    for (Control& control : form.controls()) {
        if (control.kind() == ControlKind::OptionButton && control.name() == options) {
            visit(control);
        }
    }
}

template <class T>
void put(const EditedObject& element, const char16_t* member, std::int16_t memberIndex, const T& value) {
    if (memberIndex == kNoIndex) {
        element.put(member, value);
    } else {
        element.put(member, {Value(static_cast<std::int32_t>(memberIndex)), Value(value)});
    }
}

Text textOf(const EditedObject& element, const TextBinding& binding) {
    return binding.memberIndex == kNoIndex ? element.text(binding.member)
                                           : element.text(binding.member, binding.memberIndex);
}

}  // namespace

Text read(const EditedObject& element, TextView parentText, TextView secondaryText) {
    const std::optional<Text> second = secondaryText.empty() ? std::nullopt : std::optional<Text>(secondaryText);
    return element.callWithRest(u"Parse", parentText, second);
}

void fill(Form& form, const EditedObject& element, std::span<const TextBinding> bindings) {
    for (const TextBinding& binding : bindings) {
        form.control(binding.box).setText(textOf(element, binding));
    }
}

bool isReadBack(Form& form, const EditedObject& element, std::span<const TextBinding> bindings, TextView text,
                TextView secondaryText) {
    read(element, text, secondaryText);
    return std::all_of(bindings.begin(), bindings.end(), [&](const TextBinding& binding) {
        return form.control(binding.box).text() == textOf(element, binding);
    });
}

void fill(Form& form, const EditedObject& element, std::span<const FlagBinding> bindings) {
    for (const FlagBinding& binding : bindings) {
        form.control(binding.checkBox)
            .setValue(binding.memberIndex == kNoIndex ? element.flag(binding.member)
                                                      : element.flag(binding.member, binding.memberIndex));
    }
}

void fill(Form& form, const EditedObject& element, const ChoiceBinding& binding) {
    const std::int32_t selected = element.number(binding.member);
    forEachOption(form, binding.options, [&](Control& option) {
        const bool isSelected = option.index() == selected;
        option.setVisible(isSelected || binding.supports == nullptr || element.flag(binding.supports, option.index()));
        option.setValue(isSelected);
    });
}

void collect(Form& form, const EditedObject& element, std::span<const TextBinding> bindings) {
    for (const TextBinding& binding : bindings) {
        put(element, binding.member, binding.memberIndex, form.control(binding.box).text());
    }
}

void collect(Form& form, const EditedObject& element, std::span<const FlagBinding> bindings) {
    for (const FlagBinding& binding : bindings) {
        put(element, binding.member, binding.memberIndex, form.control(binding.checkBox).value());
    }
}

void collect(Form& form, const EditedObject& element, const ChoiceBinding& binding) {
    if (const std::int16_t selected = selectedOption(form, binding.options); selected != kNoIndex) {
        element.put(binding.member, static_cast<std::int32_t>(selected));
    }
}

void showOptions(Form& form, TextView options, std::span<const Text> captions, std::size_t selected) {
    forEachOption(form, options, [&](Control& option) {
        const auto index = static_cast<std::size_t>(option.index());
        // "&" would be taken for the mark of a mnemonic.
        option.setCaption(index < captions.size() ? replaceAll(captions[index], u"&", u"&&") : Text());
        option.setVisible(!option.caption().empty());
        option.setValue(index == selected && option.isVisible());
    });
}

std::int16_t selectedOption(Form& form, TextView options) {
    std::int16_t selected = kNoIndex;
    forEachOption(form, options, [&](const Control& option) {
        if (option.value()) {
            selected = option.index();
        }
    });
    return selected;
}

void showOffered(Form& form, const LabelledBox& row, bool isOffered) {
    Control& box = form.control(row.box);
    const bool isShown = isOffered || !box.text().empty();
    box.setVisible(isShown);
    form.control(row.label).setVisible(isShown);
}

}  // namespace quorvel::forms

#pragma once

#include <span>

#include "forms/control_table.h"

namespace quorvel::forms {

class EditedObject;
class Form;

/// A box that shows a member of the element.
struct TextBinding {
    ControlName box;
    const char16_t* member = nullptr;
    /// Of a member with an index.
    std::int16_t memberIndex = kNoIndex;
};

/// A check box that shows a flag of the element.
struct FlagBinding {
    ControlName checkBox;
    const char16_t* member = nullptr;
    std::int16_t memberIndex = kNoIndex;
};

/// Option buttons of which the one with the index of the element's variant is selected.
struct ChoiceBinding {
    /// The name of the array of options, whose indexes are the codes of the variants.
    TextView options;
    const char16_t* member = nullptr;
    /// The element's member that tells which variants the style offers; null when all are shown.
    const char16_t* supports = nullptr;
};

/// Lets the element read the host's text, and the second text where there is one. @return what it left of the text
Text read(const EditedObject& element, TextView parentText, TextView secondaryText);

void fill(Form& form, const EditedObject& element, std::span<const TextBinding> bindings);
void fill(Form& form, const EditedObject& element, std::span<const FlagBinding> bindings);
/// Shows the variants that are offered, and the selected one in any case.
void fill(Form& form, const EditedObject& element, const ChoiceBinding& binding);

void collect(Form& form, const EditedObject& element, std::span<const TextBinding> bindings);
void collect(Form& form, const EditedObject& element, std::span<const FlagBinding> bindings);
void collect(Form& form, const EditedObject& element, const ChoiceBinding& binding);

/// Whether the element reads from a text what the boxes hold, so that nothing of them is lost in it.
bool isReadBack(Form& form, const EditedObject& element, std::span<const TextBinding> bindings, TextView text,
                TextView secondaryText);

/// Gives an array of options, which count from 0, the captions that the element offers, in their order. Those that are
/// left or have no caption are hidden.
/// @param selected the index of the one that is selected; any index beyond the captions for none
void showOptions(Form& form, TextView options, std::span<const Text> captions, std::size_t selected);

/// The index of the selected option of an array; kNoIndex when none is.
std::int16_t selectedOption(Form& form, TextView options);

/// A box with the label that stands for it.
struct LabelledBox {
    ControlName label;
    ControlName box;
};
/// Shows or hides both. A box that holds something is seen in any case.
void showOffered(Form& form, const LabelledBox& row, bool isOffered);

}  // namespace quorvel::forms

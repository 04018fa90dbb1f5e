#pragma once

#include <cstdint>
#include <vector>

#include "core/text.h"

/// The slots of an author list and what stands between them.
namespace quorvel::authorlayout {

/// The slots of the assembly. Persons four to six stand in the slots between kSecondPerson and
/// kSixthPerson.
enum Slot : std::int16_t {
    kDiscussant = 0,
    kFirstPerson = 1,
    kSecondPerson = 2,
    kSixthPerson = 6,
    /// The last of two to six persons, whom the and-word precedes; the last of a longer list too.
    kLastPerson = 7,
    kEtAl = 8,
    kEditor = 9,
};

/// The texts of a style from which the separators are taken.
struct Texts {
    TextView andSeparator;
    TextView commaForm;
    TextView twoPersonForm;
    TextView etAl;
    TextView etAlCitation;
    TextView editor;
};

/// The separators behind a slot: 11 - slot for the reference list, then as many for notes. Entry e
/// stands before the slot e further on, the last one where nothing follows; entry 0 is not used.
std::vector<Text> separatorsAfter(std::int16_t slot, const Texts& texts);

}  // namespace quorvel::authorlayout

#pragma once

#include <cstdint>

#include "core/slot_layout.h"
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

/// The texts of a style from which the separators are taken: the and-word, behind a comma, and between two persons of a
/// reference list; what stands before "et al." in a reference list and in a note; what stands before the tag.
enum StyleText : std::uint8_t { kAnd, kCommaAnd, kTwoAnd, kEtAlList, kEtAlNote, kTag, kStyleTexts };

inline constexpr TextView kComma = u", ";
inline constexpr TextView kDiscussed = u". In discussion of: ";
inline constexpr TextView kNobody = u". In discussion of:";

// Behind each slot: persons, the last person, "et al.", the tag, nothing; in a reference list and in a note.
// clang-format off
inline constexpr SlotLayout kLayout({
    {kPlainSlot, {u"", kDiscussed, kDiscussed, kDiscussed, kDiscussed, kDiscussed, kDiscussed, kTwoAnd, kEtAlList, kTag, kNobody},
                 {u"", kDiscussed, kDiscussed, kDiscussed, kDiscussed, kDiscussed, kDiscussed, kAnd, kEtAlNote, kTag, kNobody}},
    {kPlainSlot, {u"", kComma, kComma, kComma, kComma, kComma, kTwoAnd, kEtAlList, kTag, u""},
                 {u"", kComma, kComma, kComma, kComma, kComma, kAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kComma, kComma, kComma, kComma, kCommaAnd, kEtAlList, kTag, u""},
                 {u"", kComma, kComma, kComma, kComma, kCommaAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kComma, kComma, kComma, kCommaAnd, kEtAlList, kTag, u""},
                 {u"", kComma, kComma, kComma, kCommaAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kComma, kComma, kCommaAnd, kEtAlList, kTag, u""},
                 {u"", kComma, kComma, kCommaAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kComma, kCommaAnd, kEtAlList, kTag, u""},
                 {u"", kComma, kCommaAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kCommaAnd, kEtAlList, kTag, u""},
                 {u"", kCommaAnd, kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kEtAlList, kTag, u""},
                 {u"", kEtAlNote, kTag, u""}},
    {kPlainSlot, {u"", kTag, u""}},
    {kPlainSlot, {u"", u""}},
});
// clang-format on

}  // namespace quorvel::authorlayout

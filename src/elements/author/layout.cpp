#include "elements/author/layout.h"

#include <cstddef>

namespace quorvel::authorlayout {

namespace {

constexpr TextView kComma = u", ";
constexpr TextView kInDiscussion = u". In discussion of: ";
constexpr TextView kInDiscussionOfNobody = u". In discussion of:";

/// A separator of the table, some of which are texts of the style.
enum Entry : std::uint8_t { None, Comma, Discuss, DiscussEnd, AndWord, AndForm, TwoForm, EtAlList, EtAlNote, Tag };

/// The columns: what follows the slot.
enum Column : std::size_t { kPerson, kLast, kOmission, kTag, kNothing, kColumns };

struct Row {
    Entry list[kColumns];
    Entry note[kColumns];
};

// Reference list and notes, each by what follows: person, last person, et al., editor tag, nothing.
constexpr Row kAfterDiscussant = {{Discuss, TwoForm, EtAlList, Tag, DiscussEnd},
                                  {Discuss, AndWord, EtAlNote, Tag, DiscussEnd}};
constexpr Row kAfterFirstPerson = {{Comma, TwoForm, EtAlList, Tag, None}, {Comma, AndWord, EtAlNote, Tag, None}};
constexpr Row kAfterOtherPerson = {{Comma, AndForm, EtAlList, Tag, None}, {Comma, AndForm, EtAlNote, Tag, None}};
constexpr Row kAfterLastPerson = {{None, None, EtAlList, Tag, None}, {None, None, EtAlNote, Tag, None}};
constexpr Row kAfterEtAl = {{None, None, None, Tag, None}, {None, None, None, Tag, None}};
constexpr Row kAfterEditor = {{None, None, None, None, None}, {None, None, None, None, None}};

constexpr Row kRows[] = {
    kAfterDiscussant,  kAfterFirstPerson, kAfterOtherPerson, kAfterOtherPerson, kAfterOtherPerson,
    kAfterOtherPerson, kAfterOtherPerson, kAfterLastPerson,  kAfterEtAl,        kAfterEditor,
};
static_assert(sizeof(kRows) / sizeof(kRows[0]) == kEditor + 1);

constexpr Column columnOf(std::int16_t nextSlot) {
    switch (nextSlot) {
        case kLastPerson: return kLast;
        case kEtAl: return kOmission;
        case kEditor: return kTag;
        default: return nextSlot > kEditor ? kNothing : kPerson;
    }
}

TextView textOf(Entry entry, const Texts& texts) {
    switch (entry) {
        case None: return {};
        case Comma: return kComma;
        case Discuss: return kInDiscussion;
        case DiscussEnd: return kInDiscussionOfNobody;
        case AndWord: return texts.andSeparator;
        case AndForm: return texts.commaForm;
        case TwoForm: return texts.twoPersonForm;
        case EtAlList: return texts.etAl;
        case EtAlNote: return texts.etAlCitation;
        case Tag: return texts.editor;
    }
    return {};
}

}  // namespace

std::vector<Text> separatorsAfter(std::int16_t slot, const Texts& texts) {
    const Row& row = kRows[slot];
    std::vector<Text> separators;
    separators.reserve(2U * static_cast<std::size_t>(kEditor + 2 - slot));
    for (const auto& half : {row.list, row.note}) {
        separators.emplace_back();
        for (auto next = static_cast<std::int16_t>(slot + 1); next <= kEditor + 1; ++next) {
            separators.emplace_back(textOf(half[columnOf(next)], texts));
        }
    }
    return separators;
}

}  // namespace quorvel::authorlayout

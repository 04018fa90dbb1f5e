#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "data/fields.h"
#include "text/rtf.h"

namespace sample {

/// What a source asks of the reference: that it has a field, with the text of another field, with this text, or with
/// this text in it; or that it is not so.
struct SourceCondition {
    const Field* field = nullptr;
    const Field* sameAs = nullptr;
    /// Empty, and no other field: any text will do.
    std::wstring text;
    bool isWhole = true;
    bool holds = true;
};

/// One way to fill a slot of a layout.
struct SlotSource {
    /// Null: the pattern is what the style says of itself ("n.p.").
    const Field* field = nullptr;
    /// Under which name the style gives the options of the element that writes the field, and what `Main2.build` takes
    /// for it; kNoElement: the host writes the text as it stands.
    std::wstring element;
    std::int16_t elementCode = kNoElement;
    /// The second text of `Parse`: of a title its type.
    std::wstring secondaryText;
    /// What the persons are is written with them: "Lopate, Phillip, ed."
    bool withRole = false;
    /// Written as in notes in lists too: "Phillip Lopate".
    bool inNoteForm = false;
    /// The forms of the reference in which the source counts.
    bool inLists = true;
    bool inNotes = true;
    /// The source counts only when all of these are met.
    std::vector<SourceCondition> conditions;
    /// What the host adds: {} in the pattern is the text, where the source has a field; an empty pattern of notes is
    /// that of lists. Another font than the plain one is that of the whole text.
    std::int32_t font = kPlain;
    std::wstring pattern = L"{}";
    std::wstring notePattern = {};
};

/// One slot of a layout, as the model template takes it.
struct Slot {
    std::wstring name;
    /// The first one whose field the reference has, and no slot before has taken, fills the slot.
    std::vector<SlotSource> sources;
    bool isFormatted = false;
    std::wstring checkingKey;
    std::vector<std::wstring> separators;
};

/// Where a source's text stands in its pattern.
constexpr std::wstring_view kPatternText = L"{}";

/// The condition that the library asks the host about: the slot's text ends in "?" or "!".
constexpr const wchar_t* kEndsSentence = L"ends-sentence";
/// The same as a checking key; the field in front does not matter.
constexpr const wchar_t* kCallbackKey = L"kind=__CALLBACK_FOR_CHECKING__";

/// How the references of one kind are written.
struct Layout {
    std::vector<Slot> slots;
};

/// One line of a layout as it stands in a style file: what is written behind a slot, or before the first one.
struct LayoutRow {
    int line = 0;
    std::wstring slot;
    /// A condition under which this line holds instead of the slot's other one; else empty.
    std::wstring condition;
    /// From the name of the next filled slot, or "first", "other" or "last", to the text.
    std::map<std::wstring, std::wstring> texts;
};

/// The rows of a layout, and those of its notes where they have some, as one layout. The sources are still missing.
/// @throws LayoutFault when a row says nothing of a slot that may follow, or names one that cannot
Layout layoutOf(const std::vector<LayoutRow>& list, const std::vector<LayoutRow>& note);

struct LayoutFault {
    int line;
    std::wstring words;
};

}  // namespace sample

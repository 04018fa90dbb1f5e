#include "data/layout.h"

#include <algorithm>

namespace sample {

namespace {

constexpr const wchar_t* kFirst = L"first";
constexpr const wchar_t* kOther = L"other";
constexpr const wchar_t* kLast = L"last";

const LayoutRow* find(const std::vector<LayoutRow>& rows, const std::wstring& slot, bool isConditional) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const LayoutRow& row) {
        return row.slot == slot && row.condition.empty() != isConditional;
    });
    return found == rows.end() ? nullptr : &*found;
}

std::vector<std::wstring> slotNames(const std::vector<LayoutRow>& rows) {
    std::vector<std::wstring> names;
    for (const LayoutRow& row : rows) {
        if (!row.condition.empty()) continue;
        if (std::find(names.begin(), names.end(), row.slot) != names.end()) {
            throw LayoutFault{row.line, row.slot + L" stands here a second time"};
        }
        names.push_back(row.slot);
    }
    return names;
}

const std::wstring& separator(const LayoutRow& row, const std::wstring& next) {
    auto found = row.texts.find(next);
    if (found == row.texts.end() && next != kLast) found = row.texts.find(kOther);
    if (found == row.texts.end()) throw LayoutFault{row.line, L"what stands before " + next + L" is missing"};
    return found->second;
}

/// The separator list of one slot: the opening text, the text before each later slot, the closing text.
void append(std::vector<std::wstring>& separators, const LayoutRow& row, const std::vector<std::wstring>& laterSlots) {
    for (const auto& [next, text] : row.texts) {
        const bool isKnown = next == kFirst || next == kOther || next == kLast ||
                             std::find(laterSlots.begin(), laterSlots.end(), next) != laterSlots.end();
        if (!isKnown) throw LayoutFault{row.line, L"no slot " + next + L" comes after " + row.slot};
    }
    const auto first = row.texts.find(kFirst);
    separators.push_back(first == row.texts.end() ? std::wstring() : first->second);
    for (const std::wstring& next : laterSlots) separators.push_back(separator(row, next));
    separators.push_back(separator(row, kLast));
}

}  // namespace

Layout layoutOf(const std::vector<LayoutRow>& list, const std::vector<LayoutRow>& note) {
    const std::vector<std::wstring> names = slotNames(list);
    if (!note.empty() && slotNames(note) != names) {
        throw LayoutFault{note.front().line, L"the notes have other slots than the list"};
    }
    Layout layout;
    for (std::size_t i = 0; i < names.size(); ++i) {
        Slot slot;
        slot.name = names[i];
        const std::vector<std::wstring> later(names.begin() + static_cast<std::ptrdiff_t>(i) + 1, names.end());
        const LayoutRow* checkingList = find(list, slot.name, true);
        const LayoutRow* checkingNote = find(note, slot.name, true);
        const LayoutRow* checking = checkingList != nullptr ? checkingList : checkingNote;
        // In the order that the model template asks for: list, note, list and note of the condition.
        append(slot.separators, *find(list, slot.name, false), later);
        if (!note.empty()) append(slot.separators, *find(note, slot.name, false), later);
        if (checking != nullptr) {
            slot.checkingKey = checking->condition == kEndsSentence ? kCallbackKey : checking->condition;
            append(slot.separators, checkingList != nullptr ? *checkingList : *find(list, slot.name, false), later);
            if (!note.empty()) {
                append(slot.separators, checkingNote != nullptr ? *checkingNote : *find(note, slot.name, false), later);
            }
        }
        layout.slots.push_back(std::move(slot));
    }
    return layout;
}

}  // namespace sample

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <type_traits>
#include <vector>

#include "core/text.h"

/// Layouts of an assembly as constant tables, one row a slot, lengths checked by the compiler:
///
///   constexpr SlotLayout kLayout({
///       {kPlainSlot, {u"", u": ", kComma, u""}},      slot 0: before it, before slot 1, before slot 2, behind it
///       {kPlainSlot, {u"", u", ", u""}},
///       {kFormattedSlot, {u"(", u")"}, {u"", u""}},   another list for notes
///   });
namespace quorvel {

/// An entry of a separator list: a literal, or one of the texts that the style in force gives, named by an
/// enumeration that counts them.
class Separator {
public:
    constexpr Separator() = default;
    template <std::size_t N>
    consteval Separator(const char16_t (&literal)[N]) : mLiteral(literal, N - 1) {}
    template <class StyleText>
    requires std::is_enum_v<StyleText>
    consteval Separator(StyleText text) : mStyleText(static_cast<int>(text)) {}

    constexpr TextView text(std::span<const TextView> styleTexts) const {
        return mStyleText == kLiteral ? mLiteral : styleTexts[static_cast<std::size_t>(mStyleText)];
    }

private:
    static constexpr int kLiteral = -1;

    TextView mLiteral;
    int mStyleText = kLiteral;
};

enum SlotContent : bool { kPlainSlot = false, kFormattedSlot = true };

/// The separator list of a slot, and another one for notes where it has one.
class SlotRow {
public:
    constexpr SlotRow() = default;
    template <std::size_t N>
    consteval SlotRow(SlotContent content, const Separator (&list)[N]) : mContent(content), mLength(N) {
        append(list);
    }
    template <std::size_t N>
    consteval SlotRow(SlotContent content, const Separator (&list)[N], const Separator (&note)[N])
        : mContent(content), mLength(N) {
        append(list);
        append(note);
    }

    constexpr bool isFormatted() const { return mContent == kFormattedSlot; }
    /// The entries of one list.
    constexpr std::size_t length() const { return mLength; }
    /// The separators as the assembly takes them: the list, then the note's.
    std::vector<Text> separators(std::span<const TextView> styleTexts) const {
        std::vector<Text> texts;
        texts.reserve(mCount);
        for (const Separator& separator : std::span(mEntries).first(mCount)) {
            texts.emplace_back(separator.text(styleTexts));
        }
        return texts;
    }

private:
    template <std::size_t N>
    consteval void append(const Separator (&list)[N]) {
        for (const Separator& separator : list) {
            mEntries.at(mCount++) = separator;
        }
    }

    SlotContent mContent = kPlainSlot;
    std::size_t mLength = 0;
    std::size_t mCount = 0;
    std::array<Separator, 24> mEntries{};
};

template <std::size_t Slots>
class SlotLayout {
public:
    consteval SlotLayout(const SlotRow (&rows)[Slots]) {
        for (std::size_t slot = 0; slot < Slots; ++slot) {
            if (rows[slot].length() != Slots + 1 - slot) {
                throw "slot i of n has n + 1 - i separators";
            }
            mRows[slot] = rows[slot];
        }
    }

    constexpr operator std::span<const SlotRow>() const { return mRows; }

private:
    std::array<SlotRow, Slots> mRows{};
};

}  // namespace quorvel

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
///
/// With `kChecked` before it the other list is the one that holds where the slot is checked.
namespace quorvel {

/// An entry of a separator list: a literal, or one of the texts that the style in force gives, named by an
/// enumeration that counts them.
class SlotSeparator {
public:
    constexpr SlotSeparator() = default;
    template <std::size_t N>
    consteval SlotSeparator(const char16_t (&literal)[N]) : mLiteral(literal, N - 1) {}
    consteval SlotSeparator(TextView literal) : mLiteral(literal) {}
    template <class StyleText>
    requires std::is_enum_v<StyleText>
    consteval SlotSeparator(StyleText text) : mStyleText(static_cast<int>(text)) {}

    constexpr TextView text(std::span<const TextView> styleTexts) const {
        return mStyleText == kLiteral ? mLiteral : styleTexts[static_cast<std::size_t>(mStyleText)];
    }

private:
    static constexpr int kLiteral = -1;

    TextView mLiteral;
    int mStyleText = kLiteral;
};

enum SlotContent : bool { kPlainSlot = false, kFormattedSlot = true };

enum CheckedList { kChecked };

/// The separator list of a slot, and another one for notes or for the checked slot where it has one.
class SlotRow {
public:
    constexpr SlotRow() = default;
    template <std::size_t N>
    consteval SlotRow(SlotContent content, const SlotSeparator (&list)[N]) : mContent(content), mLength(N) {
        append(list);
    }
    template <std::size_t N>
    consteval SlotRow(SlotContent content, const SlotSeparator (&list)[N], const SlotSeparator (&note)[N])
        : mContent(content), mLength(N) {
        append(list);
        append(note);
    }
    template <std::size_t N>
    consteval SlotRow(SlotContent content, const SlotSeparator (&list)[N], CheckedList /*kChecked*/,
                      const SlotSeparator (&checked)[N])
        : SlotRow(content, list, checked) {
        mIsChecking = true;
    }

    constexpr bool isFormatted() const { return mContent == kFormattedSlot; }
    /// The other list is the one of the checked slot.
    constexpr bool isChecking() const { return mIsChecking; }
    /// The entries of one list.
    constexpr std::size_t length() const { return mLength; }
    /// The separators as the assembly takes them: the list, then the other one.
    std::vector<Text> separators(std::span<const TextView> styleTexts) const {
        std::vector<Text> texts;
        texts.reserve(mCount);
        for (const SlotSeparator& separator : std::span(mEntries).first(mCount)) {
            texts.emplace_back(separator.text(styleTexts));
        }
        return texts;
    }

private:
    template <std::size_t N>
    consteval void append(const SlotSeparator (&list)[N]) {
        for (const SlotSeparator& separator : list) {
            mEntries.at(mCount++) = separator;
        }
    }

    SlotContent mContent = kPlainSlot;
    bool mIsChecking = false;
    std::size_t mLength = 0;
    std::size_t mCount = 0;
    std::array<SlotSeparator, 28> mEntries{};
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

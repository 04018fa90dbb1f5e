#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/slot_layout.h"
#include "core/text.h"

namespace quorvel {

/// Reference assembly: a row of numbered slots, of which the filled ones are written with the
/// separators registered for each pair of slots that meet. Every separator comes from the owner;
/// nothing here knows a style.
///
/// The owner lays the slots out once per style (`Reset`, then `Add` for each slot in ascending
/// order). Each output is `ResetReferenceItems`, then `ToFormattedString`, which has the implementor
/// fill the slots.
///
/// The separator list of slot i has one entry for each later slot and two more: entry 0 is written
/// before slot i when it is the first filled one, entry e between slots i and i + e, the last entry
/// after slot i when it is the last filled one.
class outputTemplate final : public Instrumented {
public:
    /// Keeps a clone of the sink for `toString` and as the maker of fragments.
    void Initialize(const OutputSinkRef& formattedStr);

    /// A new layout for the slots 0 to `maxReferenceItems`; the old one and its fragments are gone.
    /// @param separatorFonts the font code of the separator before slot j; the entry behind the last
    ///        slot's is the closing separator's. Missing entries are plain.
    void Reset(std::int16_t maxReferenceItems, const std::vector<std::int16_t>& separatorFonts = {});

    /// Registers a slot.
    /// @param isFormatted the slot holds a fragment with fonts of its own rather than plain text
    /// @param isChecking the slot has checking variants of its lists
    /// @param separators one, two or four separator lists one after the other. Without checking: the
    ///        reference list's, then the note's (one list serves both). With checking: the two reference
    ///        list's variants, plain then checking, or reference list, note and the checking variants of
    ///        both; one list serves all. Lists that are too short are reported here, as error 9 with the slot; a
    ///        separator that is then missing is empty, without another report.
    void Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);

    /// Empties all slots before a new output.
    void ResetReferenceItems();

    /// Has the implementor fill the slots and writes them. Writes nothing, not even an opening text,
    /// when all are blank. What was written before an error stays in the sink.
    /// @param checkingArray per slot, whether its checking lists hold; a missing entry: no
    void ToFormattedString(const OutputSinkRef& formattedStr, Implementor& implementor, bool shortenedVersion,
                           bool isFootnote, const std::vector<bool>& checkingArray = {});

    /// The implementor's whole output as plain text or as RTF.
    Text toString(Implementor& implementor, bool shortenedVersion, bool isFootnote, bool isRTF);

    bool isBlank(std::int16_t Index) const;

    TextView className() const override { return u"OutputTemplate"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    // Shared, since a host object may call for a new layout while the old one is being written.
    using Separators = std::shared_ptr<const std::vector<Text>>;
    using Slots = std::shared_ptr<const std::vector<std::int16_t>>;

    struct ReferenceItem {
        bool isFormatted = false;
        /// Its lists are too short, which was reported.
        bool isShort = false;
        Separators footnoteSeparators;
        Separators bibliographySeparators;
        Separators checkFootnoteSeparators;
        Separators checkBibliographySeparators;
    };

    void writeSlots(const OutputSinkRef& formattedStr, bool isFootnote, const std::vector<bool>& checkingArray);
    Separators getSeparators(std::int16_t Index, const std::vector<bool>& checkingArray, bool isFootnote) const;
    Text getSeparator(const std::vector<Text>& list, std::int16_t i, std::int16_t j, const OutputSinkRef& formattedStr,
                      bool& removeQuoteFromPreviousPhrase, Text& phrase) const;
    void addSeparator(const std::vector<Text>& list, std::int16_t i, std::int16_t j, const OutputSinkRef& formattedStr,
                      std::int16_t separatorFont, Text& phrase) const;
    void buildReferenceStringFirst(std::int16_t Index, const OutputSinkRef& formattedStr, TextView prefix,
                                   Text& phrase) const;
    void buildReferenceString(std::int16_t Index, const OutputSinkRef& formattedStr, Text& phrase) const;
    bool hasFootnoteSeparators(std::int16_t Index, bool isChecking, std::int16_t uboundSeparators) const;

    void readPhrase(std::int16_t Index, Text& phrase) const;
    std::int16_t nextFilled(std::int16_t from) const;

    std::int16_t mMaxReferenceItems = 0;
    std::vector<ReferenceItem> mReferenceItems;
    Slots mIndexToFormatted = std::make_shared<const std::vector<std::int16_t>>();
    bool mReferenceItemsInitialized = false;
    std::vector<Text> mItems;
    std::vector<std::int16_t> mSeparatorFonts;
    OutputSinkRef mFormattedStr;
    std::vector<OutputSinkRef> mFormattedItems;
    // The memory of the texts that are written, kept for the next output; no state.
    Text mPhrase;
};

/// Registers a whole layout.
void layOut(outputTemplate& assembly, std::span<const SlotRow> rows, std::span<const TextView> styleTexts = {});

}  // namespace quorvel

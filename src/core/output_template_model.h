#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/reference_model.h"
#include "core/text.h"

namespace quorvel {

/// A whole reference: the slots are the reference's elements, which the host's implementor fills. To the
/// reference assembly it adds separators that apply only when a field of the host's model has a certain
/// value ("checking" separators), and the closing note of a footnote.
///
/// `Initialize` once; for each layout `Reset`, then `Add` for each slot from 0 upward; `ToFormattedString`
/// any number of times.
class OutputTemplateModel final : public Instrumented {
public:
    /// How many slots a layout may have. The next one is error 9 and is not registered.
    static constexpr std::int16_t kMostSlots = 31;

    /// The internal indexes under which the model keeps the note, and whether one is to be written.
    static constexpr std::int16_t kNoteField = 4;
    static constexpr std::int16_t kHasNoteField = 7;

    /// @param formattedStr the maker of fragments
    /// @param keyToInternalIndex the fields of the model by name, for the checking keys of `Add`
    void Initialize(const OutputSinkRef& formattedStr, const KeyToInternalIndexRef& keyToInternalIndex);

    /// Forgets the layout and begins a new one.
    /// @param maxElementIndex the highest slot
    /// @param blankStrings outputs that count as empty, joined by "||"; empty: none
    /// @param pageKey half of what the sink gets as its `PageIndex`
    void Reset(std::int16_t maxElementIndex, TextView blankStrings, std::int16_t pageKey);

    /// Registers the next slot; its number must be `Index`, else error 9 says so and the slot is registered all the
    /// same, its condition with that of the number which was due.
    /// @param isFormatted the slot holds a fragment with fonts of its own
    /// @param checkingKey "name=value": the slot's checking separators hold when the model's field of that name
    ///        has exactly that value, or one of several joined by "||". "name=__CALLBACK_FOR_CHECKING__": the
    ///        implementor decides. A name that the dictionary does not know is field 0. Empty: no checking.
    /// @param separators the slot's lists as in `outputTemplate::Add`
    void Add(std::int16_t Index, bool isFormatted, TextView checkingKey, const std::vector<Text>& separators);

    /// Writes the reference, and in the note form the model's note behind it. An output that is one of the
    /// blank strings is taken back. Whatever was written, the sink gets its `PageIndex`.
    void ToFormattedString(const OutputSinkRef& formattedStr, const ImplementorRef& implementor,
                           const ReferenceModelRef& model, bool shortenedVersion, bool isFootnote);

    TextView className() const override { return u"OutputTemplateModel"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    struct CheckingValue {
        std::int16_t key = 0;
        Text value;
    };

    std::vector<bool> checkingArray(Implementor& implementor, const ReferenceModelRef& model, bool isFootnote) const;
    Text getNotes(const ReferenceModelRef& model, bool isFootnote) const;
    bool isBlankString(TextView output) const;

    std::shared_ptr<outputTemplate> mOutputTemplate;
    KeyToInternalIndexRef mKeyToInternalIndex;
    std::vector<Text> mBlankStrings;
    std::int16_t mPageIndex = 0;
    std::vector<CheckingValue> mCheckingValues;
    std::int16_t mUboundCheckingValues = 0;
};

}  // namespace quorvel

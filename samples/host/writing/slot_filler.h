#pragma once

#include <string>
#include <vector>

#include "com/dispatch_object.h"
#include "data/references.h"
#include "text/formatted_text.h"
#include "writing/styled_elements.h"

namespace sample {

/// A source of a slot with the library's element that writes it; null: the host writes the text itself.
struct PreparedSource {
    const SlotSource* source;
    const StyledElement* element;
};

struct PreparedSlot {
    const Slot* slot;
    std::vector<PreparedSource> sources;
};

/// The implementor of the model template: for one reference after the other it fills the slots of the layout.
///
///   late-bound member                                    what the library asks for
///   ToFormattedStringImpl(isFootnote, items,             the texts of the plain slots in `items`, those of
///       formattedItems, shortenedVersion)                the formatted ones added to the fragments there
///   initChecking(checking, isFootnote)                   for which slots the condition holds that only the
///                                                        host can decide: the text ends in "?" or "!"
class SlotFiller final : public DispatchObject {
public:
    SlotFiller();

    /// The reference and the layout that the next calls are about; both outlive them.
    /// @param sameAuthor stands in the first slot for the author's name; empty: the name itself
    void begin(const Reference& reference, const std::vector<PreparedSlot>& slots, const Style& style, Form form,
               std::wstring sameAuthor);
    void end();

    /// The source that fills a slot; null when nothing does.
    const PreparedSource* filling(std::size_t slot) const { return mFilling[slot]; }
    /// What stands in the slot, in its fonts.
    void write(std::size_t slot, bool isFootnote, bool shortenedVersion, FormattedText& fragment) const;
    /// What the element that fills a slot writes of its field in lists, without what the layout adds.
    std::wstring elementText(std::size_t slot) const;

private:
    /// What the style writes around a text.
    struct Frame {
        std::wstring before;
        std::wstring behind;
    };

    void fill(const Arguments& arguments) const;
    void check(const Arguments& arguments) const;
    bool counts(const SlotSource& source, Form form) const;
    bool isMet(const SourceCondition& condition) const;
    bool endsSentence(std::size_t slot) const;
    void parse(const PreparedSource& filling, bool isFootnote) const;
    std::wstring plainText(const PreparedSource& filling, bool isFootnote, bool shortenedVersion) const;
    std::wstring elementText(const PreparedSource& filling, bool isFootnote, bool shortenedVersion) const;
    static Frame frameOf(const SlotSource& source, bool isFootnote);
    const std::wstring& fieldText(const Field& field, bool isFootnote) const;
    std::wstring authorMark(const PreparedSource& filling) const;

    const Reference* mReference = nullptr;
    const std::vector<PreparedSlot>* mSlots = nullptr;
    const Style* mStyle = nullptr;
    std::vector<const PreparedSource*> mFilling;
    std::wstring mSameAuthor;
};

}  // namespace sample

#pragma once

#include <map>
#include <string>

#include "text/formatted_text.h"
#include "writing/reference_model.h"
#include "writing/slot_filler.h"

namespace sample {

/// Writes whole references in one style. This is the way through the library that every host takes: elements and model
/// templates are built once and serve for all references.
class ReferenceWriter {
public:
    /// @param main a QuorvelTemplate.Main2
    ReferenceWriter(LateBoundObject main, Style style);
    // The elements know the style by its place.
    ReferenceWriter(const ReferenceWriter&) = delete;
    ReferenceWriter& operator=(const ReferenceWriter&) = delete;

    const Style& style() const { return mStyle; }

    /// Adds the reference to the sink.
    /// @param before the reference in front of this one in the list; an author who is the same is not named again
    /// @throws ComError when the style has no layout for the kind, or a call fails
    void write(const Reference& reference, Form form, FormattedText& sink, const Reference* before = nullptr);

    /// The reference with the texts of its elements as they stand in a list of this style. Fields that the style does
    /// not print stay as they are: the host knows them still.
    Reference elementTexts(const Reference& reference);

    /// What writes a field of the reference in a list of this style; null when nothing of the library does.
    const PreparedSource* sourceOf(const Reference& reference, const Field& field);

    /// The field that heads the reference in a list of this style: author, editor, title.
    const Field* heading(const Reference& reference);

    /// Whether both stand under the same persons.
    bool isSameAuthor(const Reference& reference, const Reference& before);

private:
    struct Template {
        LateBoundMember toFormattedString;
        std::vector<PreparedSlot> slots;
    };

    Template& templateFor(const Reference& reference);
    Template build(const Layout& layout);
    void setModel(const Reference& reference);

    LateBoundObject mMain;
    Style mStyle;
    StyledElements mElements;
    LateBoundObject mKeyToInternalIndex;
    ComPointer<ReferenceModel> mModel = makeObject<ReferenceModel>();
    ComPointer<SlotFiller> mFiller = makeObject<SlotFiller>();
    ComPointer<FormattedText> mSink = makeObject<FormattedText>();
    // By layout: the note is written by the template of the list.
    std::map<const Layout*, Template> mTemplates;
};

}  // namespace sample

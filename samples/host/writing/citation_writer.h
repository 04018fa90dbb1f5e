#pragma once

#include <vector>

#include "data/references.h"
#include "text/formatted_text.h"
#include "writing/reference_model.h"
#include "writing/styled_elements.h"

namespace sample {

/// Writes the short citations of references in one style: "(Booth, Colomb, & Williams, 2003, p. 35)", or the shortened
/// notes of a style that has notes.
class CitationWriter {
public:
    /// @param main a QuorvelTemplate.Main2
    CitationWriter(const LateBoundObject& main, Style style);
    // The elements know the style by its place.
    CitationWriter(const CitationWriter&) = delete;
    CitationWriter& operator=(const CitationWriter&) = delete;

    /// Adds the citation of a reference of the list to the sink.
    /// @param isFirst the first citation of this work; later ones may be shorter
    void write(const Reference& reference, const std::vector<Reference>& list, bool isFirst, FormattedText& sink);

private:
    void layOut();
    void setModel(const Reference& reference);
    std::wstring formatted(const wchar_t* field, const std::wstring& text);

    Style mStyle;
    StyledElements mElements;
    LateBoundObject mCitation;
    ComPointer<ReferenceModel> mModel = makeObject<ReferenceModel>();
};

}  // namespace sample

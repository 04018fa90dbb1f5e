#pragma once

#include <string>
#include <vector>

#include "writing/citation_writer.h"
#include "writing/reference_writer.h"

namespace sample {

/// A reference of a list, written.
struct ListedReference {
    /// "1." where the style numbers its list, and in notes.
    std::wstring number;
    ComPointer<FormattedText> text;
};

/// The references with letters behind the years of works that one author has in one year, where the style lists works
/// by year: 2006a, 2006b.
std::vector<Reference> withYearLetters(ReferenceWriter& writer, const std::vector<Reference>& references);

/// All references in the order that the style asks for; notes in the order of citation.
std::vector<ListedReference> listed(ReferenceWriter& writer, const std::vector<Reference>& references, Form form);

/// The short citations of all references, the later one behind the first where it differs.
std::vector<ListedReference> cited(CitationWriter& writer, const std::vector<Reference>& references);

/// The references with the texts of their elements as they stand in a finished list of this style: what a host has in
/// hand when its user switches to another one.
std::vector<Reference> elementTexts(ReferenceWriter& writer, const std::vector<Reference>& references);

/// The list as plain text, one reference a paragraph.
std::wstring plainText(const std::vector<ListedReference>& list);

/// The list as paragraphs of an RTF document, with hanging indents.
std::vector<RtfParagraph> rtfParagraphs(const std::wstring& heading, const std::vector<ListedReference>& list);

}  // namespace sample

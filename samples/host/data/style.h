#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "com/variant.h"
#include "data/layout.h"

namespace sample {

/// One option of a style: what the host passes to an element's `Reset` under this name.
struct StyleOption {
    /// The parameter of `Reset`.
    std::wstring name;
    Variant value;
    /// For a value "@name": the value is this style's own element of that name.
    std::wstring valueElement;
};

/// The options of one element, or of a variant of it.
struct ElementOptions {
    /// The element of which this one is a variant; else empty.
    std::wstring base;
    std::vector<StyleOption> options;
};

/// In what order a list of references is printed.
enum class ListOrder { kByTitle, kByYear, kAsCited };

/// The forms of a reference. Styles without notes have the first one alone.
enum class Form { kList, kNote };

/// A style's words for a text of a field, in lists and in notes.
struct Words {
    std::wstring list;
    std::wstring note;
};

/// A citation style, read from a style file. samples/README.md tells how such a file is written.
struct Style {
    std::wstring name;
    std::wstring manual;
    /// Works of one author stand in the order of their titles or years.
    ListOrder order = ListOrder::kByTitle;
    /// What stands for the author of the reference before; empty: the name is repeated.
    std::wstring sameAuthor;
    /// References that count as empty, joined by "||".
    std::wstring blankStrings;
    bool hasNotes = false;

    std::map<std::wstring, ElementOptions> elements;
    /// From a field's text, such as "Doctoral dissertation", to the style's words for it.
    std::map<const Field*, std::map<std::wstring, Words>> words;
    /// By kind of reference: list and note in one.
    std::map<std::wstring, Layout> layouts;
    /// That of short citations; without slots the one that the library has.
    Layout citation;

    /// The style's words for a field's text, or the text itself; and back.
    const std::wstring& wordsFor(const Field& field, const std::wstring& text, bool isFootnote) const;
    std::wstring textBehind(const Field& field, const std::wstring& printed) const;

    /// The options of an element or variant; a variant's own hide those of its base.
    std::vector<StyleOption> optionsOf(const std::wstring& element) const;
};

/// @throws ComError with a message that names file, line and fault
Style readStyle(const std::filesystem::path& file);

}  // namespace sample

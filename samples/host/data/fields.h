#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace sample {

/// No element of the library writes the field: the host writes its text as it stands.
constexpr std::int16_t kNoElement = -1;

/// One field of the host's reference model.
struct Field {
    /// The name in references files and style files, and the key of the dictionary that the library gets.
    const wchar_t* name;
    /// The internal index under which the library asks the model for its value.
    std::int16_t index;
    /// The code that `Main2.build` takes. The library may be older than this host: `build` returns Nothing for
    /// an element that it does not offer, and the host writes the text itself.
    std::int16_t elementCode;
    /// The name under which a style file gives the element's options: fields that share a class share them.
    /// Empty for an element whose `Reset` takes none.
    const wchar_t* element;
    /// What the persons in the field are: an index of the author element's `Anthologies`; none for authors.
    std::optional<std::int16_t> role = std::nullopt;
};

/// Two indexes have a fixed meaning for the library: what the note behind a footnote is, and whether there is one.
constexpr std::int16_t kNoteIndex = 4;
constexpr std::int16_t kHasNoteIndex = 7;
constexpr std::int16_t kPageIndex = 17;
constexpr std::int16_t kLastIndex = 35;

std::span<const Field> fields();

/// The field with this name; null when there is none.
const Field* findField(std::wstring_view name);

/// What `Main2.build` takes for the element of that name.
std::int16_t codeOf(std::wstring_view element);

/// Whether style files may give options under this name.
bool isElement(std::wstring_view name);

}  // namespace sample

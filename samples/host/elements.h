#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace sample {

/// One kind of element of a reference.
struct ElementKind {
    /// The name in the references file.
    const wchar_t* name;
    /// The code that `Main2.build` takes.
    std::int16_t code;
    /// The name under which a style file gives its options: kinds that share a class share them.
    /// Empty for an element whose `Reset` takes none.
    const wchar_t* optionsName;
};

/// All kinds, in the order in which a reference is read. The library may be older than this host:
/// `build` returns Nothing for a kind that it does not offer.
std::span<const ElementKind> elementKinds();

/// The kind with this name; null when there is none.
const ElementKind* findElementKind(std::wstring_view name);

}  // namespace sample

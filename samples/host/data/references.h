#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "data/fields.h"

namespace sample {

/// One reference: the texts of its fields as they stand in some finished reference.
class Reference {
public:
    const std::wstring& text(const Field& field) const { return mTexts[static_cast<std::size_t>(field.index)]; }
    /// The same by the field's name, which has to be one.
    const std::wstring& text(const wchar_t* field) const { return text(*findField(field)); }
    bool has(const Field& field) const { return !text(field).empty(); }
    void set(const Field& field, std::wstring text) { mTexts[static_cast<std::size_t>(field.index)] = std::move(text); }

private:
    std::array<std::wstring, kLastIndex + 1> mTexts;
};

/// Reads a references file: one field a line, "name: text"; an empty line ends a reference. Lines that begin with #
/// are comments. Every reference has a kind, and an id of its own.
/// @throws ComError with a message that names file, line and fault
std::vector<Reference> readReferences(const std::filesystem::path& file);

}  // namespace sample

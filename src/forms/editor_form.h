#pragma once

#include "forms/names_form.h"

namespace quorvel::forms {

/// Edits the editors, translators or compilers of a work (element type code 9).
class EditorForm final : public NamesForm {
public:
    /// Editor, compiler, translator.
    static constexpr std::size_t kRoles = 3;

    EditorForm();

    /// "Editor", "Translator", "Compiler" or "Compiler & Ed."; any other text selects none.
    Text AuthorType();
    void setAuthorType(TextView type);

    TextView className() const override { return u"EditorForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void nameRead() override;

    void showAuthorTypeOptions();
    /// The type that the element's roles make; empty when there are none.
    Text typeOfRoles();
    bool isCombination(const std::array<bool, kRoles>& ofType) const;

    std::array<bool, kRoles> mReadRoles{};
    Text mShownType;

    /// The form does not show it, and reading a single name would lose it.
    bool mHasEtAl = false;
};

}  // namespace quorvel::forms

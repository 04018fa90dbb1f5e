#pragma once

#include "forms/names_form.h"

namespace quorvel::forms {

/// Edits the authors (element type code 0): their names, whether the list goes on, whether the work is anonymous or
/// stands under a pseudonym, the discussant, and the roles of the persons.
class AuthorForm final : public NamesForm {
public:
    AuthorForm();

    /// Shows or hides the pseudonym's controls.
    void showPseudo(bool isShown);
    /// Shows or hides the discussant's box and its label; what is below them moves.
    void showDiscussant(bool isShown);

    TextView className() const override { return u"AuthorForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxEntered(Control& box) override;
    void nameRead() override;
    void rowsChanged() override;

    void fillAuthorType(const std::vector<Text>& authors);
    void positionEtAl();
};

}  // namespace quorvel::forms

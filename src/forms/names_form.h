#pragma once

#include <array>

#include "forms/form.h"
#include "forms/surroundings.h"

namespace quorvel::forms {

/// What the forms of authors and of editors share: six rows of names, of which the filled ones and an empty one are
/// enabled. Names beyond the rows are kept and written after those of the rows.
class NamesForm : public Form {
public:
    static constexpr std::size_t kRows = 6;

    void PrimePump() override;

protected:
    /// The names of a form's rows.
    struct Rows {
        TextView boxes;
        TextView labels;
        /// The procedure that enables a row.
        Name enableNext;
    };

    NamesForm(const FormDesign& design, const Rows& rows) : Form(design), mRows(rows) {}

    void initialize() override;
    void boxChanged(Control& box) override;
    void boxLeft(Control& box) override;
    /// The element has read a single name, with whatever stood beside it.
    virtual void nameRead() {}
    /// The last enabled row is another.
    virtual void rowsChanged() {}

    /// Lets the element read the host's text.
    void readText(TextView parentText);
    /// What OK gives: the names as the element writes them, with what stood beside them. Where the style leaves
    /// persons, first names or et al. out, an unchanged text is that of the host, and a changed one has all persons.
    Text wholeText();
    /// One name a row.
    void showNames(const std::vector<Text>& names);
    /// The names of the rows in use that are not empty, and those beyond the rows.
    std::vector<Text> names();
    /// A row number of 7 or more is never enabled.
    void enableNext(std::size_t row, bool isEnabled);
    /// The box of a row, from 1.
    Control& box(std::size_t row);
    std::int16_t lastRow() const { return mLastRow; }

    // Of the rows from 1: the places of their boxes and labels among the controls. Those of the first name are not
    // among the secondary ones.
    std::vector<std::int16_t> mNames;
    std::vector<std::int16_t> mSecondaryNames;
    std::vector<std::int16_t> mLabels;

private:
    /// What a list of names says.
    struct List {
        std::vector<Text> names;
        bool hasEtAl = false;

        bool operator==(const List&) const = default;
    };
    Text withAllNames(const List& all);
    List read(TextView text);
    /// 0 for a control that is no box of a row.
    std::size_t rowOf(const Control& box) const;
    void insertNames(std::size_t row, const std::vector<Text>& names);

    Rows mRows;
    std::int16_t mLastRow = 1;
    /// Beyond the rows.
    std::vector<Text> mMoreNames;
    /// What the element left to others: "(in press)".
    Surroundings mSurroundings;
};

}  // namespace quorvel::forms

#include "forms/names_form.h"

#include <algorithm>

#include "core/procedure.h"

namespace quorvel::forms {

namespace {

constexpr ControlName kMoreAuthors = u"MoreAuthors";

}  // namespace

void NamesForm::initialize() {
    mNames.clear();
    mSecondaryNames.clear();
    mLabels.clear();
    std::int16_t position = 0;
    for (const Control& control : controls()) {
        if (control.name() == mRows.boxes) {
            mNames.push_back(position);
            if (control.index() > 1) {
                mSecondaryNames.push_back(position);
            }
        } else if (control.name() == mRows.labels) {
            mLabels.push_back(position);
        }
        ++position;
    }
}

Control& NamesForm::box(std::size_t row) {
    return control({mRows.boxes, static_cast<std::int16_t>(row)});
}

std::size_t NamesForm::rowOf(const Control& box) const {
    return box.name() == mRows.boxes ? static_cast<std::size_t>(box.index()) : 0;
}

void NamesForm::enableNext(std::size_t row, bool isEnabled) {
    procedure(*this, mRows.enableNext, {{u"Index", static_cast<std::int16_t>(row)}, {u"enable", isEnabled}}, [&] {
        if (row > kRows) {
            return;
        }
        Control& label = control({mRows.labels, static_cast<std::int16_t>(row)});
        for (Control* const part : {&box(row), &label}) {
            part->setEnabled(isEnabled);
            part->setVisible(isEnabled);
        }
        mLastRow = static_cast<std::int16_t>(isEnabled ? row : row - 1);
        rowsChanged();
    });
}

void NamesForm::showNames(const std::vector<Text>& names) {
    const std::size_t shown = std::min(names.size(), kRows);
    for (std::size_t row = 1; row <= kRows; ++row) {
        box(row).setText(row <= shown ? TextView(names.at(row - 1)) : TextView());
    }
    mMoreNames.assign(names.begin() + static_cast<std::ptrdiff_t>(shown), names.end());
    const std::size_t last = std::min(shown + 1, kRows);
    for (std::size_t row = kRows; row > last; --row) {
        enableNext(row, false);
    }
    for (std::size_t row = 1; row <= last; ++row) {
        enableNext(row, true);
    }
    Control& more = control(kMoreAuthors);
    more.setVisible(!mMoreNames.empty());
    more.setCaption(concatenate({u"and ", Value(static_cast<std::int32_t>(mMoreNames.size())).asText(), u" more"}));
}

std::vector<Text> NamesForm::names() {
    std::vector<Text> result;
    for (std::size_t row = 1; row <= static_cast<std::size_t>(mLastRow); ++row) {
        const Text name(trim(box(row).text()));
        if (!name.empty()) {
            result.push_back(name);
        }
    }
    result.insert(result.end(), mMoreNames.begin(), mMoreNames.end());
    return result;
}

void NamesForm::readText(TextView parentText) {
    mSurroundings = surroundingsOf(parentText, element().callWithRest(u"Parse", parentText));
}

NamesForm::List NamesForm::read(TextView text) {
    element().call(u"Parse", {Value(text)});
    return {element().texts(u"authors"), element().flag(u"HasEtAl")};
}

Text NamesForm::wholeText() {
    const Text written = toString();
    const List all = {names(), element().flag(u"HasEtAl")};
    const List kept = read(written);
    if (!isChanged() && kept != all) {
        return parentText();
    }
    const bool isShortened = kept.names.size() < all.names.size() || (all.hasEtAl && !kept.hasEtAl);
    return mSurroundings.around(isShortened ? withAllNames(all) : written);
}

/// The persons with their role, where the element reads them out of that again; else as the style writes them.
Text NamesForm::withAllNames(const List& all) {
    const Text written = toString();
    Text whole = element().ifAny(u"toMergedString").value_or(Value()).asText();
    if (all.hasEtAl) {
        whole += u", et al.";
    }
    if (const Text role = element().ifAny(u"editor").value_or(Value()).asText(); !role.empty()) {
        whole += concatenate({u", ", role});
    }
    return read(whole) == all ? whole : written;
}

void NamesForm::PrimePump() {
    procedure(*this, u"PrimePump", kNoParameters, [&] { boxChanged(box(1)); });
}

void NamesForm::boxChanged(Control& box) {
    const std::size_t row = rowOf(box);
    if (row != 0 && row == static_cast<std::size_t>(mLastRow) && !box.text().empty()) {
        enableNext(row + 1, true);
    }
}

void NamesForm::boxLeft(Control& box) {
    const std::size_t row = rowOf(box);
    if (row == 0 || box.text().empty()) {
        return;
    }
    element().call(u"Parse", {Value(box.text())});
    const std::vector<Text> read = element().texts(u"authors");
    nameRead();
    if (read.size() == 1) {
        box.setText(read.front());
    } else if (read.size() > 1) {
        insertNames(row, read);
    }
}

void NamesForm::insertNames(std::size_t row, const std::vector<Text>& names) {
    std::vector<Text> all = this->names();
    std::size_t position = 0;
    for (std::size_t before = 1; before < row; ++before) {
        position += trim(box(before).text()).empty() ? 0 : 1;
    }
    const auto replaced = all.erase(all.begin() + static_cast<std::ptrdiff_t>(position));
    all.insert(replaced, names.begin(), names.end());
    showNames(all);
}

}  // namespace quorvel::forms

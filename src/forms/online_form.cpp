#include "forms/online_form.h"

#include "forms/surroundings.h"

namespace quorvel::forms {

namespace {

constexpr ControlName kOnline = u"Online";
constexpr ControlName kEricCheckBox = u"EricCheckBox";

constexpr ControlRow kControls[] = {
    label(u"OnlineLabel", u"Website or DOI", {1, 0, kContentWidth}),
    textBox(kOnline, {2, 0, kContentWidth})
        .hint(u"Readers find a work more easily by searching for its title than by a URL. Give a URL only where they "
              u"could not find the work without it (MLA 5.6.1)."),
    checkBox(kEricCheckBox, u"Website is an ERIC entry (it must start with an ED or EJ)", {3, 0, kContentWidth, 18})
        .multiLine(),
};
constexpr FormDesign kDesign = {
    .className = u"OnlineForm",
    .title = u"Online source",
    .controls = kControls,
    .aliases = {},
    .firstBox = kOnline,
    .rtfParameter = 2,
};

// Around the number of an ERIC document.
constexpr TextView kEricStatement = u"Retrieved from ERIC database. (";
constexpr TextView kEndOfStatement = u")";

// What stands beside a source without a date.
constexpr TextView kAdvance = u"Advance online publication";

}  // namespace

OnlineForm::OnlineForm() : Form(kDesign) {}

Text OnlineForm::read(TextView text) {
    return element().callWithRest(u"Parse", text);
}

/// Whether dates, numbers or notices stand around the source that the element has read: it does not write them.
bool OnlineForm::hasMoreThanSource(TextView text) {
    const Text source = element().text(u"Online");
    const std::size_t at = source.empty() ? TextView::npos : text.find(source);
    if (at == TextView::npos) {
        return false;
    }
    const Text around = concatenate({text.substr(0, at), text.substr(at + source.size())});
    return around.find_first_of(kDigits) != Text::npos || contains(around, kAdvance);
}

void OnlineForm::fill(TextView parentText, TextView /*secondaryText*/) {
    const Text rest = read(parentText);
    // The source alone is shown where the element makes the same of it; schemes, marks of abstracts and dates of access
    // would be lost otherwise.
    const bool hasMore = hasMoreThanSource(parentText) || !surroundingsOf(parentText, rest).isEmpty();
    const Text whole = written(false, false);
    const Text source = element().text(u"Online");
    read(source);
    const bool isSame = !hasMore && written(false, false) == whole;
    control(kOnline).setText(isSame ? TextView(source) : trim(parentText));

    Control& eric = control(kEricCheckBox);
    eric.setVisible(supports(u"SupportsWebsiteAsEric"));
    eric.setValue(eric.isVisible() && isSame && element().flag(u"isEric"));
}

void OnlineForm::collect(bool /*isModelPreview*/) {
    const Text text = control(kOnline).text();
    if (control(kEricCheckBox).value()) {
        read(concatenate({kEricStatement, trim(text), kEndOfStatement}));
        if (element().flag(u"isEric")) {
            return;
        }
    }
    // What is no number of an ERIC document stays what it is.
    read(text);
}

std::pair<Text, Text> OnlineForm::result() {
    const Text text = toString();
    const Text typed(trim(control(kOnline).text()));
    return {hasMoreThanSource(typed) ? typed : text, Text()};
}

}  // namespace quorvel::forms

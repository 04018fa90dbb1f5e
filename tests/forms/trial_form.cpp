#include "forms/trial_form.h"

#include <algorithm>

namespace quorvel::forms::test {

namespace {

constexpr ControlRow kControls[] = {
    label(u"NameLabel", u"&Name:", {1, 0, 50}),
    textBox(u"Name", {1, 54, 172}).hint(u"The name as it stands in the work."),
    label(u"NotesLabel", u"N&otes:", {2, 0, 50, 40}),
    textBox(u"Notes", {2, 54, 172, 40}).multiLine(),
    label(u"TitleLabel", u"&Title:", {3, 0, 50}),
    richText(u"Title", {3, 54, 172, 24}),
    label(u"CountLabel", u"Co&unt:", {4, 0, 50}),
    textBox(u"Count", {4, 54, 30}),
    upDown(u"UpDown", u"Count"),
    comboBox(u"Edition", {4, 120, 106}).spoken(u"Edition"),
    frame(u"KindFrame", u"Kind", {5, 0, 226}),
    option({u"Kind", 0}, u"&First kind", {1, 7, 100}).in(u"KindFrame").grouped(1),
    option({u"Kind", 1}, u"&Second kind", {1, 114, 100}).in(u"KindFrame").grouped(1),
    option({u"Kind", 2}, u"T&hird kind", {2, 7, 100}).in(u"KindFrame").grouped(1),
    frame(u"HiddenFrame", u"", {6, 0, 226}),
    checkBox(u"EtAl", u"Ends in &et al.", {1, 0, 100}).in(u"HiddenFrame"),
    checkBox(u"Extra", u"E&xtra", {1, 114, 100}).in(u"HiddenFrame"),
    listBox(u"Words", {7, 0, 226, 40}).spoken(u"Words"),
    button(u"AddButton", u"A&dd", {8, 0, 50}),
};

constexpr FormDesign kDesign = {
    .className = u"TrialForm",
    .title = u"Trial",
    .controls = kControls,
    .aliases = {},
    .firstBox = u"Name",
};

std::string narrow(TextView text) {
    return {text.begin(), text.end()};
}

}  // namespace

Value TrialObject::get(const char16_t* member) const {
    return call(member, {});
}

Value TrialObject::call(const char16_t* member, Arguments /*arguments*/) const {
    calls.emplace_back(member);
    if (const auto found = whenCalled.find(member); found != whenCalled.end()) {
        found->second();
    }
    const auto answer = answers.find(member);
    return answer != answers.end() ? answer->second : Value();
}

void TrialObject::put(const char16_t* member, Arguments /*indexesAndValue*/) const {
    calls.emplace_back(member);
}

int TrialObject::count(TextView member) const {
    return static_cast<int>(std::count(calls.begin(), calls.end(), member));
}

int TrialForm::alive = 0;

TrialForm::TrialForm() : Form(kDesign) {
    ++alive;
}

bool TrialForm::has(const std::string& event) const {
    return std::find(events.begin(), events.end(), event) != events.end();
}

void TrialForm::fill(TextView parentText, TextView secondaryText) {
    control(u"Name").setText(parentText);
    control(u"Notes").setText(secondaryText);
    control(u"Title").setRtf(
        u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Tahoma;}}\\uc1\\f0\\fs17 {\\i Life} \u2013 a history}");
    control(u"Count").setText(u"2");
    control(u"Edition").setItems({u"New", u"Enlarged", u"Abridged"});
    control({u"Kind", 1}).setValue(true);
    control(u"Words").setItems({u"biography", u"history", u"letters"});
    control(u"Extra").setEnabled(false);
}

void TrialForm::buttonClicked(Control& button) {
    note("clicked", button);
    if (button.name() != u"AddButton") {
        Form::buttonClicked(button);
    }
}

void TrialForm::activated() {
    events.emplace_back("activated");
}

void TrialForm::note(const char* what, const Control& control) {
    std::string event = std::string(what) + " " + narrow(control.name());
    if (control.index() != kNoIndex) {
        event += std::to_string(control.index());
    }
    events.push_back(event);
    if (onEvent) {
        onEvent(event);
    }
}

}  // namespace quorvel::forms::test

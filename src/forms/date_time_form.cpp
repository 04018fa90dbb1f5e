#include "forms/date_time_form.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow kControls[] = {
    label({u"Label", 0}, u"&Date:", {1, 0, 44}),
    textBox(u"Date", {1, 46, 180}).hint(u"A date, a month or a season with its year, or a range of days."),
    label({u"Label2", 0}, u"eg) September 1, 2011", {2, 46, 180}),
    label({u"Label", 1}, u"&Time:", {3, 0, 44}),
    textBox(u"Time", {3, 46, 180}).hint(u"A time of day, where known with its time zone."),
    label({u"Label2", 1}, u"eg) 12:57:58 p.m. PDT or 1:47:54 p.m. ET or 10:23 a.m.", {4, 46, 170, 17}),
};
constexpr FormDesign kDesign = {
    .className = u"DateTimeForm",
    .title = u"Date and time",
    .controls = kControls,
    .aliases = {},
    .firstBox = u"Date",
    .rtfParameter = 2,
};

// Indexes of the element's `value`.
constexpr std::int32_t kDate = 0;
constexpr std::int32_t kTime = 1;
constexpr std::int32_t kTimeZone = 2;

}  // namespace

DateTimeForm::DateTimeForm() : Form(kDesign) {}

void DateTimeForm::read(TextView date, TextView time) {
    element().call(u"Parse", {Value(date), Value(time)});
}

void DateTimeForm::fill(TextView parentText, TextView secondaryText) {
    mIsTimeApart = !trim(secondaryText).empty();
    read(parentText, secondaryText);
    control(u"Date").setText(element().text(u"value", kDate));
    const Text time = concatenate({element().text(u"value", kTime), u" ", element().text(u"value", kTimeZone)});
    control(u"Time").setText(trim(time));
}

void DateTimeForm::collect(bool /*isModelPreview*/) {
    // The element tells the time from its zone.
    read(control(u"Date").text(), control(u"Time").text());
}

std::pair<Text, Text> DateTimeForm::result() {
    if (!mIsTimeApart) {
        return Form::result();
    }
    read(control(u"Date").text(), {});
    return {written(false, false), control(u"Time").text()};
}

}  // namespace quorvel::forms

#include "elements/date/date_time.h"

#include <algorithm>
#include <optional>

#include "core/common_testing_functions.h"
#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/date/date_text.h"
#include "elements/date/time_text.h"

namespace quorvel {

namespace {

/// The separators of each slot: in front of the output, before each later slot, at the end.
constexpr SlotLayout kJoined({
    {kPlainSlot, {u"", u", ", u", ", u""}},
    {kPlainSlot, {u"", u" ", u""}},
    {kPlainSlot, {u"", u""}},
});
constexpr SlotLayout kParenthesized({
    {kPlainSlot, {u"", u" (", u" (", u""}},
    {kPlainSlot, {u"(", u" ", u")"}},
    {kPlainSlot, {u"(", u")"}},
});

// What joins a date and a time: "on September 1, 2011, at 10:23 a.m."
constexpr TextView kJoiningWords[] = {u"on", u"at"};
constexpr TextView kJoiningSigns = u" ,;";
// What may follow the last digit of a text that ends a sentence.
constexpr TextView kSignsOfEnd = u" ,;.";
// What no date holds.
constexpr TextView kSignsOfOtherTexts = u"()[]{}\":\u201C\u201D";

constexpr TextView kYear = u"yy";
constexpr TextView kLongMonth = u"mmmm";
constexpr TextView kShortMonth = u"mmm";

/// A date without what joins it to its time.
TextView withoutJoint(TextView date) {
    for (;;) {
        date = trim(date, kJoiningSigns);
        const TextView first = date.substr(0, date.find_first_of(kJoiningSigns));
        const TextView last = date.substr(date.find_last_of(kJoiningSigns) + 1);
        if (!first.empty() && isOneOfIgnoringCase(first, kJoiningWords)) {
            date.remove_prefix(first.size());
        } else if (!last.empty() && isOneOfIgnoringCase(last, kJoiningWords)) {
            date.remove_suffix(last.size());
        } else {
            return date;
        }
    }
}

/// A date without the full stop of the sentence that it ends; that of an abbreviation stays.
TextView withoutSentenceEnd(TextView date) {
    const std::size_t last = date.find_last_not_of(kSignsOfEnd);
    return last != TextView::npos && contains(kDigits, date.substr(last, 1)) ? date.substr(0, last + 1) : date;
}

struct Parts {
    TextView date;
    TextView time;
    TextView zone;
};

/// The parts of a text; nothing when there is no time, or more than date, time and zone.
std::optional<Parts> partsOf(TextView text) {
    std::optional<TimeInText> found = findTime(text);
    if (!found) {
        return std::nullopt;
    }
    if (found->before.ends_with(u'(')) {
        found->before.remove_suffix(1);
        if (!found->after.starts_with(u')') || !consistsOf(found->after.substr(1), kSignsOfEnd)) {
            return std::nullopt;
        }
        found->after = {};
    }
    TextView date = withoutSentenceEnd(withoutJoint(found->before));
    if (!consistsOf(found->after, kSignsOfEnd)) {
        // The time stands first; only what has the number of a day or year is a date behind it.
        if (!date.empty()) {
            return std::nullopt;
        }
        found->after.remove_prefix(found->after.find_first_not_of(kSignsOfEnd));
        date = withoutSentenceEnd(withoutJoint(found->after));
        if (date.find_first_of(kDigits) == TextView::npos) {
            return std::nullopt;
        }
    }
    if (date.find_first_of(kSignsOfOtherTexts) != TextView::npos || findTime(date)) {
        return std::nullopt;
    }
    return Parts{date, found->time, found->zone};
}

Text withShortMonths(const Text& pattern) {
    Text result = pattern;
    const std::size_t at = findIgnoringCase(pattern, kLongMonth);
    return at == Text::npos ? result : result.replace(at, kLongMonth.size(), kShortMonth);
}

}  // namespace

void OutputTemplateDateTime::Initialize(const OutputSinkRef& formattedString) {
    procedure(*this, u"Initialize", {{u"formattedString", formattedString}}, [&] {
        replace(mFormattedStr, formattedString);
        makeAssembly(formattedString);
        Reset();
    });
}

void OutputTemplateDateTime::Reset(const DateTimeOptions& options) {
    procedure(*this, u"Reset", reported(kDateTimeOptions, options), [&] {
        mOptions = options;
        if (mOptions.dateFormat.empty()) {
            mOptions.dateFormat = DateTimeOptions().dateFormat;
        }
        layOut(mOptions.parenthesize ? kParenthesized : kJoined);
    });
}

std::shared_ptr<OutputTemplateDateTime> OutputTemplateDateTime::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateDateTime>();
        clone->Initialize(OutputSinkRef(mFormattedStr));
        // By value: the host's sink may have given us other options by then.
        clone->Reset(DateTimeOptions(mOptions));
        clone->mValues = mValues;
        return clone;
    });
}

Text OutputTemplateDateTime::value(std::int16_t index) const {
    return procedure(*this, u"value[Get]", {{u"index", index}},
                     [&] { return mValues.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateDateTime::value(std::int16_t index, TextView theVal) {
    procedure(*this, u"value[Let]", {{u"index", index}, {u"theVal", theVal}},
              [&] { mValues.at(static_cast<std::size_t>(index)) = theVal; });
}

bool OutputTemplateDateTime::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                       std::vector<OutputSinkRef>& /*formattedItems*/, bool /*shortenedVersion*/) {
    // Formatting reports, and the host may empty the slots meanwhile.
    Text date = formattedDate(Text(mValues.at(kDate)));
    items.at(kDate) = std::move(date);
    items.at(kTime) = withHalfOfDay(mValues.at(kTime));
    items.at(kTimeZone) = mValues.at(kTimeZone);
    return false;
}

/// Only a complete date goes through the pattern: without its day, "June 2010" would become "June, 2010", and seasons
/// and ranges of months are no dates to the platform at all. Of these the pattern says whether the year stands first.
Text OutputTemplateDateTime::formattedDate(const Text& date) const {
    const std::optional<Text> complete = completeDate(date);
    if (!complete) {
        const std::optional<MonthsAndYear> dayless = monthsAndYear(date, mOptions.useShortMonths);
        if (!dayless) {
            return date;
        }
        const Text pattern = toLower(mOptions.dateFormat);
        if (!contains(pattern, kShortMonth)) {
            return date;
        }
        const bool isYearFirst = startsWith(pattern, kYear);
        return isYearFirst ? concatenate({dayless->year, u", ", dayless->months})
                           : concatenate({dayless->months, u" ", dayless->year});
    }
    Text pattern = mOptions.useShortMonths ? withShortMonths(mOptions.dateFormat) : mOptions.dateFormat;
    return CommonTestingFunctions::FormatDate(*complete, pattern);
}

Text OutputTemplateDateTime::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

Text OutputTemplateDateTime::formatStr(TextView text) {
    return procedure(*this, u"formatStr", {{u"text", text}}, [&] {
        Text parsed(text);
        Parse(parsed, {});
        return toString(false, false, false);
    });
}

void OutputTemplateDateTime::Parse(Text& text, TextView secondaryText) {
    procedure(*this, u"Parse", {{u"text", text}, {u"secondaryText", secondaryText}}, [&] {
        const Text cleaned = cleanUp(text);
        const TextView main = withoutSentenceEnd(cleaned);
        const Text time = cleanUp(secondaryText);
        Parts parts = partsOf(main).value_or(Parts{main, {}, {}});
        if (!time.empty()) {
            const std::optional<Parts> timeParts = partsOf(time);
            // What is not just a time is kept as the host has it.
            const bool isTime = timeParts && timeParts->date.empty();
            parts.time = isTime ? timeParts->time : TextView(time);
            parts.zone = isTime ? timeParts->zone : TextView();
        }
        mValues = {Text(parts.date), Text(parts.time), Text(parts.zone)};
        text.clear();
    });
}

void OutputTemplateDateTime::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mFormattedStr", mFormattedStr);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mDateFormat", mOptions.dateFormat);
    report.vbwReportVariable(u"mParenthesize", mOptions.parenthesize);
    report.vbwReportVariable(u"mUseShortMonths", mOptions.useShortMonths);
    report.vbwReportVariable(u"mValues", mValues);
}

}  // namespace quorvel

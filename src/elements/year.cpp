#include "elements/year.h"

#include <algorithm>
#include <optional>

#include "core/common_testing_functions.h"
#include "core/dates.h"
#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/date/date_text.h"

namespace quorvel {

namespace {

constexpr std::size_t kVariants = 6;

// Compared as they stand.
constexpr TextView kNoDateMarkers[] = {u"n.d.", u"date unknown"};
// Compared without letter case: lists write "in press" behind a comma.
constexpr TextView kForthcoming = u"forthcoming";
constexpr TextView kInPress = u"In press";
constexpr TextView kForthcomingMarkers[] = {kForthcoming, kInPress};
constexpr TextView kCircaMarkers[] = {u"c.", u"ca."};
constexpr TextView kEnDashText(&kEnDash, 1);

// An option that is kept as a text.
constexpr TextView kTrue = u"True";
constexpr TextView kFalse = u"False";

/// "1990-12" could be a month: a range of numbers stays a range.
bool isRangeOfNumbers(TextView text) {
    const std::size_t dash = text.find(u'-');
    return dash != TextView::npos && isDigits(trim(text.substr(0, dash))) && isDigits(trim(text.substr(dash + 1)));
}

/// The four digits of the year that a date names, or nothing when the text is no date.
std::optional<Text> yearOfDate(TextView text) {
    // A number on its own is the commonest year and no date; behind "c." it has a blank in front.
    const TextView year = trim(text);
    if (year.empty() || isDigits(year) || isRangeOfNumbers(year)) {
        return std::nullopt;
    }
    const std::optional<DateValue> date = dateWithItsYear(text);
    return date ? std::optional<Text>(dates().format(*date, u"yyyy")) : std::nullopt;
}

}  // namespace

bool readsAsYear(TextView remainder) {
    TextView year = trim(remainder);
    if (!year.empty() && isCasedLetter(year.back())) {
        year.remove_suffix(1);
    }
    year = trim(before(before(year, kEnDashText), u"-"));
    Text pattern = u"yyyy";
    return !year.empty() && CommonTestingFunctions::FormatDate(concatenate({u"1 ", year}), pattern) == year;
}

void OutputTemplateYear::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        mSupportOptions.assign(kVariants, false);
        mSupportOptions.at(kPlain) = true;
        mSupportOptions.at(kNoDate) = true;
    });
}

void OutputTemplateYear::Reset(const YearOptions& options) {
    procedure(*this, u"Reset", reported(kYearOptions, options), [&] {
        mSupportOptions.at(kSupplied) = options.supportYearForSure;
        mSupportOptions.at(kCirca) = !options.circa.empty();
        mSupportOptions.at(kGuessed) = options.supportYearGuess;
        mSupportOptions.at(kNotYetPublished) = options.supportForthcoming || options.supportInPress;
        mNoDate = options.noDateString;
        mForthcomingStr = options.supportInPress ? kInPress : kForthcoming;
        mCirca = options.circa;
        museEnDashForYearRange = options.useEnDashForYearRange ? kTrue : kFalse;
    });
}

std::shared_ptr<OutputTemplateYear> OutputTemplateYear::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateYear>();
        CloneImpl(*clone);
        return clone;
    });
}

void OutputTemplateYear::CloneImpl(OutputTemplateYear& clone) const {
    procedure(*this, u"CloneImpl", kNoParameters, [&] {
        clone.Initialize(nullptr);
        // Without mForthcomingStr and museEnDashForYearRange, deliberately.
        clone.mNoDate = mNoDate;
        clone.mCirca = mCirca;
        clone.mSupportOptions = mSupportOptions;
        clone.Year = Year;
        clone.yearType = yearType;
    });
}

void OutputTemplateYear::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote,
                                           bool shortenedVersion) const {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { object(formattedStr).Add(toString(isFootnote, shortenedVersion), OutputSink::kPlain); });
}

Text OutputTemplateYear::toString(bool isFootnote, bool shortenedVersion) const {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
        Text result;
        switch (yearType) {
            case kNoDate: result = mNoDate; break;
            case kGuessed: result = concatenate({u"[", Year, u"?]"}); break;
            case kCirca: result = concatenate({u"[", mCirca, u" ", Year, u"]"}); break;
            case kSupplied: result = concatenate({u"[", Year, u"]"}); break;
            case kNotYetPublished: result = mForthcomingStr; break;
            default: result = Year; break;
        }
        if (museEnDashForYearRange == kTrue) {
            std::replace(result.begin(), result.end(), u'-', kEnDash);
        }
        return result;
    });
}

Text OutputTemplateYear::formatStr(TextView text) {
    return procedure(*this, u"formatStr", {{u"text", text}}, [&] {
        Text parsed(text);
        Parse(parsed, {});
        return toString(false, false);
    });
}

bool OutputTemplateYear::Supports(std::int32_t code) const {
    return procedure(*this, u"Supports[Get]", {{u"code", code}},
                     [&]() -> bool { return mSupportOptions.at(static_cast<std::size_t>(code)); });
}

void OutputTemplateYear::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        cleanUpInPlace(text);
        parseAndRemoveYearType(text);
        if (std::optional<Text> year = yearOfDate(text)) {
            Year = std::move(*year);
        } else {
            Year = replaceAll(text, kEnDashText, u"-");
        }
    });
}

void OutputTemplateYear::parseAndRemoveYearType(Text& text) {
    procedure(*this, u"parseAndRemoveYearType", {{u"text", text}}, [&] {
        if (isOneOf(text, kNoDateMarkers)) {
            yearType = kNoDate;
            text.clear();
            return;
        }
        removeSuffix(text, u".");
        if (isOneOfIgnoringCase(text, kForthcomingMarkers)) {
            yearType = kNotYetPublished;
            text.clear();
            return;
        }
        yearType = kPlain;
        if (removePrefix(text, u"[")) {
            removeSuffix(text, u".");
            bool isCirca = false;
            for (const TextView marker : kCircaMarkers) {
                isCirca = removePrefix(text, marker) || isCirca;
            }
            if (isCirca) {
                yearType = kCirca;
                removeSuffix(text, u"]");
            } else if (removeSuffix(text, u"?]")) {
                yearType = kGuessed;
            } else {
                yearType = kSupplied;
                removeSuffix(text, u"]");
            }
        }
    });
}

bool OutputTemplateYear::isYear(TextView text) {
    return procedure(*this, u"isYear", {{u"text", text}}, [&] {
        Text remainder(trim(text));
        if (remainder.empty()) {
            return false;
        }
        const std::int32_t savedType = yearType;
        const Text savedYear = Year;
        Parse(remainder, {});
        yearType = savedType;
        Year = savedYear;
        return readsAsYear(remainder);
    });
}

void OutputTemplateYear::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"yearType", yearType);
    report.vbwReportVariable(u"Year", Year);
    report.vbwReportVariable(u"mSupportOptions", mSupportOptions);
    report.vbwReportVariable(u"mNoDate", mNoDate);
    report.vbwReportVariable(u"mCirca", mCirca);
    report.vbwReportVariable(u"mForthcomingStr", mForthcomingStr);
    report.vbwReportVariable(u"museEnDashForYearRange", museEnDashForYearRange);
}

}  // namespace quorvel

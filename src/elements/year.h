#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/instrumented.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// What a style says of years.
struct YearOptions {
    /// Works not yet published are offered, as "In press" with the next option and as "forthcoming" otherwise.
    bool supportForthcoming = false;
    bool supportInPress = false;
    /// "[1990?]" is offered.
    bool supportYearGuess = false;
    /// The word before an approximate year, "c." or "ca."; empty when the style has none.
    Text circa;
    /// "[1990]" is offered.
    bool supportYearForSure = false;
    /// What stands for a missing date: "n.d.", "date unknown".
    Text noDateString;
    /// Ranges are written with U+2013 instead of "-".
    bool useEnDashForYearRange = false;
};

inline constexpr std::tuple kYearOptions{
    Option{u"supportForthcoming", &YearOptions::supportForthcoming},
    Option{u"supportInPress", &YearOptions::supportInPress},
    Option{u"supportYearGuess", &YearOptions::supportYearGuess},
    Option{u"circa", &YearOptions::circa},
    Option{u"supportYearForSure", &YearOptions::supportYearForSure},
    Option{u"noDateString", &YearOptions::noDateString},
    Option{u"useEnDashForYearRange", &YearOptions::useEnDashForYearRange},
};

/// The year of publication and the way it is known (element type code 6).
///
///   accepted text                        yearType             Year
///   1990, 1990-1995, May 5, 1990         0 plain              1990, 1990-1995, 1990
///   n.d., date unknown                   1 no date
///   [1990?]                              2 guessed            1990
///   [c. 1990], [ca. 1990]                3 circa              " 1990", with its blank
///   [1990]                               4 supplied           1990
///   forthcoming, In press                5 not yet published
///
/// Styles: MLA 7 5.5.24, APA 6 6.28, Turabian 7 17.1.6, AMA 10 3.12.
class OutputTemplateYear final : public Instrumented {
public:
    /// Values of `yearType`. They are part of the interface.
    enum YearType : std::int32_t {
        kPlain = 0,
        kNoDate = 1,
        kGuessed = 2,
        kCirca = 3,
        kSupplied = 4,
        kNotYetPublished = 5,
    };

    /// One of YearType; any other value formats as a plain year.
    std::int32_t yearType = kPlain;
    /// The year as it was read, a single one or a range with "-".
    Text Year;

    /// Every style has plain years and works without date. The sink is not used.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed year stays.
    void Reset(const YearOptions& options);

    /// A copy of the year and of the options but the word for works not yet published and the en dash,
    /// which a copy lacks until its own `Reset`.
    std::shared_ptr<OutputTemplateYear> Clone() const;

    /// Adds `toString` to the sink in plain font.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) const;

    /// The year as the style writes it; the same in notes and in shortened form.
    Text toString(bool isFootnote, bool shortenedVersion) const;

    /// `Parse`, then `toString`.
    Text formatStr(TextView text);

    /// Whether the style offers this variant; a code outside 0 to 5 is reported and not supported.
    bool Supports(std::int32_t code) const;

    /// Reads the year out of a finished reference's text.
    /// @param text loses its variant's marks; what is left stays in it
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    /// Whether a text reads as a year or a range of years; the element stays as it is.
    bool isYear(TextView text);

    TextView className() const override { return u"OutputTemplateYear"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void CloneImpl(OutputTemplateYear& clone) const;
    void parseAndRemoveYearType(Text& text);

    std::vector<bool> mSupportOptions;
    Text mNoDate;
    Text mCirca;
    Text mForthcomingStr;
    Text museEnDashForYearRange;
};

/// Whether a text is a year on its own: "1990", "1990a", and of a range its first year. It is asked
/// of what a `Parse` left over, and by elements that meet years in their own texts.
bool readsAsYear(TextView remainder);

}  // namespace quorvel

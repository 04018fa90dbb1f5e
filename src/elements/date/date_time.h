#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// How a style writes dates.
struct DateTimeOptions {
    /// The pattern of complete dates (see Dates::format); empty: this one.
    Text dateFormat = u"mmmm d, yyyy";
    /// The time stands in parentheses instead of after ", ".
    bool parenthesize = false;
    /// The months of the pattern are abbreviated as in MLA 7 (7.2).
    bool useShortMonths = false;
};

inline constexpr std::tuple kDateTimeOptions{
    Option{u"dateFormat", &DateTimeOptions::dateFormat},
    Option{u"parenthesize", &DateTimeOptions::parenthesize},
    Option{u"useShortMonths", &DateTimeOptions::useShortMonths},
};

/// A date with a time of day and its zone, each of which may be missing (element type code 17).
///
///   accepted text                          date                  time              zone
///   September 1, 2011, 10:23 a.m. PDT      September 1, 2011     10:23 a.m.        PDT
///   September 1, 2011 (10:23 AM)           September 1, 2011     10:23 AM
///   1 Sept. 2011; 2011, September 1        as it stands
///   12:57:58 p.m. PDT                                            12:57:58 p.m.     PDT
///   10:23 a.m., on September 1, 2011       September 1, 2011     10:23 a.m.
///   June 2010; 2010, June; Spring 2011     as it stands
///   May 1-3, 2011                          as it stands
///
/// A complete date (day, month and four-digit year) is written by the style's pattern, a time with
/// "a.m." or "p.m.", a month or season with its year in the pattern's order, everything else as it stands. A text that
/// is not made of these parts alone is kept whole as the date.
///
/// Styles: MLA 7 5.6.2, APA 6 6.28, Turabian 7 17.5.2, AMA 10 3.15.
class OutputTemplateDateTime final : public AssembledElement {
public:
    /// Indexes of `value`. They are part of the interface.
    enum Value : std::int16_t {
        kDate = 0,
        kTime = 1,
        kTimeZone = 2,
    };

    /// Makes the assembly and lays it out for the default options.
    /// @param formattedString the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedString);

    /// The options of the style in force; the parsed values stay.
    void Reset(const DateTimeOptions& options = {});

    /// A copy of the options and values.
    std::shared_ptr<OutputTemplateDateTime> Clone() const;

    /// The part as it was read, by Value; any other index is reported and empty.
    Text value(std::int16_t index) const;
    void value(std::int16_t index, TextView theVal);

    /// The whole output as plain text or as RTF.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF);

    /// `Parse`, then `toString` as plain text.
    Text formatStr(TextView text);

    /// Reads date, time and zone out of a finished reference's text.
    /// @param text is consumed and left empty
    /// @param secondaryText the time and its zone, when the host keeps them apart; it overrides a time
    ///        in `text`
    void Parse(Text& text, TextView secondaryText);

    TextView className() const override { return u"OutputTemplateDateTime"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    Text formattedDate(const Text& date) const;

    OutputSinkRef mFormattedStr;
    DateTimeOptions mOptions;
    std::vector<Text> mValues = std::vector<Text>(3);
};

}  // namespace quorvel

#pragma once

#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// What a style says of newspapers.
struct NewspaperOptions {
    /// "The " stands before the newspapers that take it.
    bool outputArticle = false;
    /// The opening and the closing bracket around the city. Any text but one of two characters: no city is written.
    Text cityInBrackets;
    /// The hint that a form shows at the city.
    Text cityTooltip;
};

inline constexpr std::tuple kNewspaperOptions{
    Option{u"outputArticle", &NewspaperOptions::outputArticle},
    Option{u"cityInBrackets", &NewspaperOptions::cityInBrackets},
    Option{u"cityTooltip", &NewspaperOptions::cityTooltip},
};

/// A newspaper and its city (element type code 4).
///
///   accepted text                                         Title                City
///   Chicago Tribune; Hackensack (NJ) Record               as it stands
///   Globe and Mail [Toronto]; (Toronto) Globe and Mail    Globe and Mail       Toronto
///   The New York Times                                    The New York Times
///
/// The title is italic, the city is not. A city that is part of the title stays there.
///
/// Styles: MLA 7 5.4.5, APA 6 7.01, Turabian 7 17.4.2, AMA 10 3.13.1.
class OutputTemplateNewspaper final : public AssembledElement {
public:
    /// The newspaper as it was read, with its article where it had one.
    Text Title;
    /// The city that is no part of the title, without brackets.
    Text City;

    /// Makes the assembly and lays it out for a style without options.
    /// @param formattedStr the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed newspaper stays.
    void Reset(const NewspaperOptions& options);

    /// The newspaper as the style writes it, as plain text; the same in notes and in shortened form.
    Text toString(bool isFootnote, bool shortenedVersion);

    /// The option of that name.
    Text cityTooltip() const;

    /// Reads newspaper and city out of a finished reference's text.
    /// @param text loses the city; the title stays in it
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    /// Whether a title names a newspaper: it is one of a few known ones or has a word such as "Herald", and nothing
    /// speaks against it. The element stays as it is.
    bool isNewspaper(TextView text) const;

    TextView className() const override { return u"OutputTemplateNewspaper"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;

    Text AddArticle(TextView title) const;
    void parseAndRemoveCity(Text& text);
    bool isPartOfTitle(TextView word, TextView rest) const;
    Text removeArticle(TextView title) const;

    Text mCityTooltip;
    bool mOutputArticle = false;
    bool mOutputCity = false;
};

}  // namespace quorvel

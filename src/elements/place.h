#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/instrumented.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// What a style says of places.
struct PlaceOptions {
    /// "n.p." is offered.
    bool supportPlaceNotKnown = false;
    /// "[Paris?]" is offered.
    bool supportPlaceGuess = false;
    /// "[Paris]" is offered.
    bool supportPlaceForSure = false;
    /// A two-letter state is written out in full.
    bool expandAbbreviations = false;
    /// The state is kept although the publisher's name holds it.
    bool repeatLocationIfInPublisherName = false;
};

inline constexpr std::tuple kPlaceOptions{
    Option{u"supportPlaceNotKnown", &PlaceOptions::supportPlaceNotKnown},
    Option{u"supportPlaceGuess", &PlaceOptions::supportPlaceGuess},
    Option{u"supportPlaceForSure", &PlaceOptions::supportPlaceForSure},
    Option{u"expandAbbreviations", &PlaceOptions::expandAbbreviations},
    Option{u"repeatLocationIfInPublisherName", &PlaceOptions::repeatLocationIfInPublisherName},
};

/// The place of publication and the way it is known (element type code 15).
///
///   accepted text                        placeType            Place
///   New York; Portland, OR               0 plain              New York; Portland, OR
///   n.p.                                 1 not known
///   [Paris?]                             2 guessed            Paris
///   [Paris]                              3 supplied           Paris
///
/// Styles: MLA 7 5.5.2, 5.5.24, APA 6 6.30, Turabian 7 17.1.6, AMA 10 3.12.
class OutputTemplatePlace final : public Instrumented {
public:
    /// Values of `placeType`. They are part of the interface.
    enum PlaceType : std::int32_t {
        kPlain = 0,
        kNotKnown = 1,
        kGuessed = 2,
        kSupplied = 3,
    };

    /// One of PlaceType; any other value formats as a plain place.
    std::int32_t placeType = kPlain;
    /// The place as it was read: a city, or a city, a comma and a state.
    Text Place;

    /// Every style has plain places. The sink is not used.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed place stays.
    void Reset(const PlaceOptions& options);

    /// A copy of the options; its place is an empty plain one.
    std::shared_ptr<OutputTemplatePlace> Clone() const;

    /// Adds `toString` for no particular publisher to the sink in plain font.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) const;

    /// The place as the style writes it; the same in notes and in shortened form. A variant that the
    /// style does not offer is written as a plain place.
    /// @param publisherStr the publisher of the same reference, whose name may hold the state
    Text toString(bool isFootnote, bool shortenedVersion, TextView publisherStr) const;

    /// `Parse`, then `toString`.
    Text formatStr(TextView text, TextView publisherStr);

    /// Whether the style offers this variant; a code outside 0 to 3 is reported and not supported.
    bool Supports(std::int32_t placeType) const;

    /// Reads the place out of a finished reference's text.
    /// @param text loses its variant's marks; what is left stays in it
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    /// True for "n.p." and for a text that reads as a year, deliberately: no other place can be told
    /// from its text. The element stays as it is.
    bool isPlace(TextView text);

    /// The two-letter abbreviations of the states.
    std::vector<Text> DefaultAbbreviations() const;
    /// The names of the states, one for each of `DefaultAbbreviations`.
    std::vector<Text> States() const;

    TextView className() const override { return u"OutputTemplatePlace"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    Text toStringImpl(TextView publisherStr) const;
    void parseAndRemovePlaceType(Text& text);
    bool expandStateAbbreviation(Text& state) const;

    std::vector<bool> mSupportOptions;
    bool mRepeatLocationIfInPublisherName = false;
    bool mExpandAbbreviations = false;
};

}  // namespace quorvel

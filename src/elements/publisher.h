#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// What a style says of publishers.
struct PublisherOptions {
    /// Forms offer a co-publisher.
    bool supportCoPublisher = false;
    /// Forms offer an imprint and the special kinds.
    bool useAdvancedOptions = false;
    /// A missing publisher is "Publisher unknown" instead of "n.p."
    bool usePublisherUnknown = false;
    /// "University" is written "U", "Press" "P", both together "UP".
    bool shortenUniversityAndPress = false;
    /// A leading "The" and words such as "Inc." and "Co." are left out.
    bool removePublisherAbbreviations = false;
};

inline constexpr std::tuple kPublisherOptions{
    Option{u"supportCoPublisher", &PublisherOptions::supportCoPublisher},
    Option{u"useAdvancedOptions", &PublisherOptions::useAdvancedOptions},
    Option{u"usePublisherUnknown", &PublisherOptions::usePublisherUnknown},
    Option{u"shortenUniversityAndPress", &PublisherOptions::shortenUniversityAndPress},
    Option{u"removePublisherAbbreviations", &PublisherOptions::removePublisherAbbreviations},
};

/// The publisher, with its imprint and co-publisher where it has them (element type code 5).
///
///   accepted text                                          PublisherType    parts
///   Penguin                                                0 named          publisher Penguin
///   Penguin-Viking                                         0 named          imprint Penguin, publisher Viking
///   Norton; London: Faber                                  0 named          publisher Norton, co-publisher
///                                                                           Faber in London
///   Publisher unknown; n.p.; N.p.                          1 unknown
///   Manuscript in preparation                              2
///   Manuscript submitted for publication; forthcoming      3
///   Author; by the author                                  4
///
/// The texts of the special kinds are compared as they stand. Whatever was read is written, also in a
/// style that offers no imprints or co-publishers.
///
/// Styles: MLA 7 5.5.2, 5.5.17-18, 7.5, APA 6 6.30, 7.09, Turabian 7 17.1.6, AMA 10 3.12.
class OutputTemplatePublisher final : public AssembledElement {
public:
    /// Values of `PublisherType`. They are part of the interface.
    enum PublisherKind : std::int32_t {
        kNamed = 0,
        kUnknown = 1,
        kInPreparation = 2,
        kSubmitted = 3,
        kAuthor = 4,
    };

    /// One of PublisherKind; any other value formats as a named publisher.
    std::int32_t PublisherType = kNamed;
    /// Where the co-publisher is.
    Text copublisherPlace;

    /// Makes the assembly and lays it out for a style without options.
    /// @param formattedStr the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedStr);

    /// The options of the style in force; the parsed publisher stays.
    void Reset(const PublisherOptions& options);

    /// A copy of the options and of the parsed publisher.
    /// @param formattedStr the host's sink for the copy
    std::shared_ptr<OutputTemplatePublisher> Clone(const OutputSinkRef& formattedStr) const;

    /// The publisher as the style writes it, as plain text.
    Text toString(bool isFootnote, bool shortenedVersion);

    bool supportCoPublisher() const;
    bool SupportAdvancedOptions() const;

    /// The names as they were read, in full: "Oxford University Press" for "Oxford UP".
    Text publisher() const;
    void publisher(TextView theVal);
    Text Imprint() const;
    void Imprint(TextView theVal);
    Text CoPublisher() const;
    void CoPublisher(TextView theVal);

    /// Reads the publisher out of a finished reference's text. Where the text has the word "U" or "UP",
    /// "U", "P" and "UP" are read as "University", "Press" and "University Press"; so is a last "P" behind a word
    /// that is no initial: "MIT P", but not "J. P".
    /// @param text loses what is not the publisher's own name
    /// @param previousStr the year of the reference, where the caller has one: "forthcoming" is then no special kind
    void Parse(Text& text, TextView previousStr);

    TextView className() const override { return u"OutputTemplatePublisher"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;

    Text getImprint() const;
    Text getCopublisher() const;
    Text getCopublisherPlace() const;
    void parseAndRemoveImprint(Text& text);
    void parseAndRemoveCopublisher(Text& text);
    void parseAndRemovePublisherType(Text& text);
    Text targetedExpansion(TextView text) const;
    Text targetedReplace(TextView text) const;
    Text targetedReplaceImpl(TextView text, TextView find, TextView theReplace) const;

    bool isSpecial() const;
    Text specialText() const;

    Text mPublisher;
    Text mImprint;
    Text mCoPublisher;
    PublisherOptions mOptions;
};

}  // namespace quorvel

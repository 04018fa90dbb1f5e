#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/text.h"

namespace quorvel {

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
class OutputTemplatePublisher final : public Implementor, public Instrumented {
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
    /// @param supportCoPublisher forms offer a co-publisher
    /// @param useAdvancedOptions forms offer an imprint and the special kinds
    /// @param usePublisherUnknown a missing publisher is "Publisher unknown" instead of "n.p."
    /// @param shortenUniversityAndPress "University" is written "U", "Press" "P", both together "UP"
    /// @param removePublisherAbbreviations a leading "The" and words such as "Inc." and "Co." are left out
    void Reset(bool supportCoPublisher, bool useAdvancedOptions, bool usePublisherUnknown,
               bool shortenUniversityAndPress, bool removePublisherAbbreviations);

    /// A copy of the options and of the parsed publisher.
    /// @param formattedStr the host's sink for the copy
    std::shared_ptr<OutputTemplatePublisher> Clone(const OutputSinkRef& formattedStr) const;

    /// Writes the publisher to the sink; the same in notes and in shortened form.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;

    /// The publisher as the style writes it, as plain text.
    Text toString(bool isFootnote, bool shortenedVersion);

    /// Fills the slots 0 imprint, 1 publisher or the text of a special kind, 2 place of the co-publisher,
    /// 3 co-publisher.
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool shortenedVersion) override;

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
    /// "U", "P" and "UP" are read as "University", "Press" and "University Press".
    /// @param text loses what is not the publisher's own name
    /// @param previousStr not used
    void Parse(Text& text, TextView previousStr);

    TextView className() const override { return u"OutputTemplatePublisher"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);

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
    bool mSupportAdvancedOptions = false;
    bool mSupportCoPublisher = false;
    bool mShortenUniversityAndPress = false;
    bool mRemovePublisherAbbreviations = false;
    Text mPublisherUnknown;
    outputTemplate mOutputTemplate;
};

}  // namespace quorvel

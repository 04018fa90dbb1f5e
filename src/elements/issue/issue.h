#pragma once

#include <cstdint>
#include <vector>

#include "core/assembled_element.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/style_codes.h"

namespace quorvel {

/// What a style says of the issues of journals.
struct IssueOptions {
    /// The style (elements/style_codes.h).
    std::int16_t format = stylecodes::kAma;
    /// The kinds of issue that the style offers beside the regular one, by their captions, with commas between them.
    Text JournalSettings;
};

inline constexpr std::tuple kIssueOptions{
    Option{u"format", &IssueOptions::format},
    Option{u"JournalSettings", &IssueOptions::JournalSettings},
};

/// The issue of a journal, or the edition of a newspaper (element type code 11).
///
///   accepted text                                    IssueType        values
///   4; no. 4; (4); 3-4                               Issue type       0: 4; 3-4
///   suppl 2; (Suppl. 2); 4, supp. 2                  Supplement       0: 4, 1: 2
///   [Supplemental material]                          Supplement
///   late ed.; final edition                          Edition          2: as it stands
///   20 (theme issue); 4, special issue               Special issue    0: 20; 4
///   Identities. Ed. Anthony Appiah. Spec. issue;     Special issue    3: Identities, 4: Anthony Appiah
///   “Identities,” ed. Anthony Appiah, special issue
///
/// A text of no such form is a regular issue and stays as it is.
///
/// Styles: MLA 7 5.4.3, 5.4.12, APA 6 7.01, Turabian 7 17.3.4, 17.3.6, AMA 10 3.11.
class OutputTemplateIssue final : public AssembledElement {
public:
    /// Indexes of `value`. They are part of the interface.
    enum Value : std::int16_t {
        kIssueNumber = 0,
        kSupplementNumber = 1,
        kEdition = 2,
        kSpecialTitle = 3,
        kSpecialEditor = 4,
    };

    /// Makes the assembly and lays it out for code 0.
    /// @param formattedString the host's sink; a clone of it serves `toString`
    void Initialize(const OutputSinkRef& formattedString);

    /// The options of the style in force; the parsed issue stays.
    void Reset(const IssueOptions& options);

    /// Whether the style offers the editions of newspapers.
    bool SupportsNewspaperEdition() const;
    /// The captions of the kinds that the style offers, "Regular" first.
    std::vector<Text> SupportedIssueTypes() const;
    /// The settings as the style gave them, one an index; any other index is reported and empty.
    Text settings(std::int16_t index) const;

    /// The whole output as plain text or as RTF; the same in shortened form.
    Text toString(bool isFootnote, bool shortenedVersion, bool isRTF);

    /// Reads the issue out of a finished reference's text.
    /// @param text keeps a journal that follows the words of a special issue
    /// @param secondaryStr the kind, when the host keeps it apart; it decides where the text does not
    void Parse(Text& text, TextView secondaryStr);

    /// The kind as it is stored: "Issue type" for a regular issue, "Special issue" also for a theme issue,
    /// "Supplement", "Edition". A caption is stored as its kind, any other text as it is; that formats as a regular
    /// issue.
    Text IssueType() const;
    void IssueType(TextView theVal);

    /// The part as it was read, by Value; any other index is reported and empty.
    Text value(std::int16_t index) const;
    void value(std::int16_t index, TextView theVal);

    /// How the style writes the supplement alone; the same in notes.
    Text supplement(bool isFootnote) const;

    TextView className() const override { return u"OutputTemplateIssue"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;

    void ParseJournalSettings(TextView JournalSettings);
    void parseSpecialIssue(TextView text);

    Text specialWords(bool isFootnote) const;
    Text otherIssue(bool isFootnote) const;

    std::vector<Text> mValues;
    Text mIssueType;
    std::vector<Text> mSupportedIssueTypes;
    std::vector<Text> mSettings;
    std::int32_t mFormat = stylecodes::kAma;
    OutputSinkRef mFormattedStr;
};

}  // namespace quorvel

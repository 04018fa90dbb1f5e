#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/text.h"

/// The kinds of statement that tie a work to another publication, and the words by which a text shows its kind.
namespace quorvel::referstokinds {

enum class Form {
    /// The text as it stands, in value 0.
    kText,
    /// Author, title and a journal with its issue.
    kJournal,
    /// The same, or the word "abstract" alone.
    kAbstract,
    kSeries,
    kSerialized,
    kReprint,
    kSerialArticle,
    kTranslator,
    kEdition,
};

// In the order of its tables. NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
struct Kind {
    /// As forms show it.
    TextView caption;
    Form form = Form::kText;
    /// The caption and up to eight captions of values.
    TextView settings;
    /// What a statement of this kind begins with.
    TextView phrase = {};
    /// Which value is the journal; the year, the volume, the number and the page follow it.
    std::int16_t journal = 0;

    bool hasAuthor() const { return journal > 0; }
    bool hasTitle() const { return journal > 1; }
};

// The values of the kinds, in the order of their captions.
enum ReprintValue : std::size_t { kTitle, kYear, kEditor, kVolume, kPlace, kPublisher, kPage, kOriginalYear };
enum SerializedValue : std::size_t { kPart, kSeriesName, kBegun };
/// From the journal's own value on.
enum JournalValue : std::size_t { kJournal, kJournalYear, kJournalVolume, kJournalNumber, kJournalPage };
/// From the first value of one of the two issues on.
enum IssueValue : std::size_t { kIssueVolume, kIssueNumber, kIssueYear, kIssuePage, kValuesOfIssue };

/// The kinds that a style offers, by their captions, in the order of a form's options.
/// @param isNewspaper the reference is to a newspaper
std::span<const TextView> offeredKinds(std::int32_t styleCode, bool isNewspaper);

/// The row of a caption, or of a stored type ("Refers to", "Abstract"). Of any other text: that of "Regular".
const Kind& kindOf(TextView captionOrType);
/// The caption in its own spelling for one in any letter case. Empty for a text that is none, and for "Regular", which
/// says nothing of the text.
TextView captionOf(TextView text);

/// What a text says of its kind.
struct Statement {
    TextView caption;
    /// The text behind the words that say so, without brackets round the whole.
    TextView rest;
};

/// By the words that it begins with: "retracted in: Lancet. 2010;375(9713):445", "[abstract]", "Rpt. in Essays",
/// "Pt. 2 of a series".
std::optional<Statement> byWords(TextView text);
/// By its form: "3rd ser.", "52.4 (1981): 688-705; 53.1 (1981): 164-80", "late ed."
TextView captionByForm(TextView text);

}  // namespace quorvel::referstokinds

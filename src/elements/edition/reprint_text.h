#pragma once

#include <cstddef>
#include <optional>

#include "core/text.h"

/// Statements of first publications: where their parts stand in a text, whatever the style.
namespace quorvel::reprinttext {

/// A part of a text: from `begin` up to `end`.
struct Range {
    std::size_t begin;
    std::size_t end;
};
inline TextView slice(TextView text, Range range) {
    return text.substr(range.begin, range.end - range.begin);
}

/// Where the last sentence of the text begins. A full stop behind an initial ("E. L. Doctorow"), an abbreviation
/// ("St. Louis", "U.S. GPO") or a quotation's own mark ends none.
std::size_t lastSentence(TextView text);
/// Where the sentence that begins at `from` ends: behind the last character that is not its full stop.
std::size_t endOfSentence(TextView text, std::size_t from);

/// Whether the text's last full stop is that of a sentence, rather than an abbreviation's.
bool endsWithFullStop(TextView text);

/// Four digits, also as part of a range and with a letter, brackets or "c." around: "1925", "1925-27", "[1925?]",
/// "c. 1925". It says nothing of whether such a year can be.
bool looksLikeYear(TextView text);
/// "350 B.C.E.", "ca. 370 BC", with or without the last full stop.
bool isYearOfEra(TextView text);
/// What follows the last blank or comma, when it looks like a year: "1939" of "New York: Knopf, 1939".
std::optional<Range> yearAtEnd(TextView text);

/// Where, at `from` or behind, the last ", 1970" begins that ends the text or has a comma behind; the text's end when
/// there is none.
std::size_t yearBehindComma(TextView text, std::size_t from);

/// The tail of an article's statement: "18.4 (1992)", "18, no. 4 (1992)", "18(4) (1992)" or "(1992)" alone, at the end
/// or before the pages.
struct JournalTail {
    /// Both empty where there is none.
    Range volume;
    Range number;
    /// The year with its parentheses.
    Range year;
};
/// Nothing for a text that ends otherwise, or whose parentheses hold more than a date.
std::optional<JournalTail> journalTail(TextView text);

/// "18(4)" or "18" at the end of the text, as APA has them: volume and number. Both empty where there is none.
struct VolumeAndNumber {
    Range volume;
    Range number;
};
VolumeAndNumber volumeAtEnd(TextView text);

/// Where at the end of the text pages may stand: a locator's word ("pp. 12-14"), or what comes last behind a comma,
/// colon or full stop. The text's end when there is nothing of the kind.
std::size_t beginOfPages(TextView text);

/// A quotation at the beginning of the text, without its marks and its last full stop or comma.
struct Quotation {
    TextView title;
    /// The text up to the next word behind it.
    std::size_t length;
};
std::optional<Quotation> quotation(TextView text);

/// The pieces on both sides of the last ": "; the first is empty where there is none.
struct PlaceAndPublisher {
    TextView place;
    TextView publisher;
};
PlaceAndPublisher placeAndPublisher(TextView text);

/// Who contributed, and which part he had (EditionBookChapterYear::AuthorType).
struct Contributor {
    TextView name;
    TextView type;
    /// The sentence in the text.
    Range sentence;
};
/// The first sentence that names a contributor: "By Henry James", "Ed. Kay Smith", "Introd. E. L. Doctorow". From a
/// quotation mark on also behind the title of an article.
std::optional<Contributor> contributor(TextView text);

/// The author who stands before a title: what a comma sets off from a quotation, or holds initials: "Henry James" of
/// "Henry James, \u201CThe Art of Fiction\u201D". Empty where there is none.
TextView authorInFront(TextView text);

/// True when the text began with the lead-in, in any letter case, which is then gone from it.
bool removeLeadIn(Text& text, TextView leadIn);

/// A title without the signs that joined it to what has been taken off; an abbreviation keeps its full stop.
Text titleOf(TextView text);

/// Without the parentheses round the whole of it.
TextView withoutParentheses(TextView text);

}  // namespace quorvel::reprinttext

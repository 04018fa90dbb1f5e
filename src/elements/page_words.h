#pragma once

#include <cstdint>
#include <optional>

#include "core/text.h"

/// The words and numbers of locators: what a text says by its form alone, whatever the style.
namespace quorvel::pagewords {

/// The word that a locator begins with: "pp.", "chap.", "Fig.", "s.v.".
struct LocatorWord {
    /// The locator type (OutputTemplatePage::LocatorType).
    std::int32_t type;
    /// How much of the text it takes, with its full stop and the blanks behind.
    std::size_t length;
};

/// The locator word at the beginning of the text, in any letter case. A word without full stop counts
/// only before a number ("table 3", not "table talk"), but for the entries of a dictionary.
std::optional<LocatorWord> locatorWord(TextView text);

/// A page and the notes on it.
struct PageAndNotes {
    TextView page;
    TextView notes;
};

/// A text that ends in note numbers: "45n3", "201nn16-17", "45, n. 3". Nothing for any other text.
std::optional<PageAndNotes> pageAndNotes(TextView text);

/// The two ends of a range.
struct Range {
    TextView first;
    TextView last;
};

/// A text that consists of two page numbers with "-" between them. A number may hold hyphens itself, as
/// the pages of a manual do: "3-12-3-15".
std::optional<Range> range(TextView text);

/// The pieces of the text at its commas, trimmed, when it lists several page numbers: "B1, B4, B5-B7".
/// Empty for any other text.
std::vector<TextView> list(TextView text);

/// True for a page number: digits with up to three letters before or one between or behind ("A1", "e12",
/// "45a"), or a Roman numeral; also with a sign of what follows ("45ff.", "45+").
bool isPageNumber(TextView text);

/// True for digits, two or more, that may hold one letter of A to Z between them.
bool isNumeric(TextView text);

/// True for several entries of a dictionary, each in quotation marks.
bool isListOfEntries(TextView text);

}  // namespace quorvel::pagewords

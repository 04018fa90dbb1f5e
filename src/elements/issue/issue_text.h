#pragma once

#include <optional>

#include "core/text.h"

/// What a text says of an issue by its form alone, whatever the style.
namespace quorvel::issuetext {

/// The number of an issue without its word and parentheses: "4" for "no. 4", "(4)", "Issue 4", also "3 and 4" for "Nos.
/// 3 and 4" and "3, pt 1" for "(3, pt 1)". A text that is none stays.
TextView withoutWord(TextView text);

/// True for one word with a digit, or a Roman numeral: "4", "3-4", "S1", "5B".
bool isNumber(TextView text);

/// A supplement, with the number of the issue that it belongs to where that is named.
struct Supplement {
    TextView issue;
    TextView number;
};

/// "suppl 2", "(Suppl. 2)", "4, supp. 2", "4 (supplement)", "[Supplemental material]". Nothing for any other text.
std::optional<Supplement> supplement(TextView text);

/// True for a text that ends in "ed." or "edition", also before a comma: "late ed.", "final edition".
bool isEdition(TextView text);

/// A text that says that the issue is a special one.
struct Special {
    /// What it says of the issue besides, in front of the words or behind them.
    TextView text;
    /// The journal, where it follows: "Spec. issue of Critical Inquiry 18.4", "special issue, Social Text 20, no. 2".
    TextView journal;
};

/// "4, special issue", "Identities. Spec. issue", "Identities [Special issue]", "20 (theme issue)", "Special issue:
/// Identities", "Identities [Special issue]. Social Text, 20(2)". Nothing for any other text.
std::optional<Special> special(TextView text);

/// The parts of a special issue.
struct SpecialParts {
    TextView number;
    /// Without quotation marks.
    Text title;
    TextView editor;
};

/// "4, Identities. Ed. Kwame Anthony Appiah", in any order of typesetting: “Identities,” edited by Kwame Anthony
/// Appiah.
SpecialParts specialParts(TextView text);

}  // namespace quorvel::issuetext

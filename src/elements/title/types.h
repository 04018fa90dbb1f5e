#pragma once

#include <cstdint>
#include <vector>

#include "core/text.h"

/// The types that a title may have, their captions in the form, and the texts that describe them.
namespace quorvel::titletypes {

Text captionOf(TextView type);
Text typeOf(TextView caption);

/// A type in the spelling of the tables, in whatever letter case it came; any other text as it is.
Text spelled(TextView type);

/// Foreword, Introduction, Preface, Afterword.
std::vector<Text> prematterTypes();
bool isPrematter(TextView type);

/// Whether a work of this type is part of a larger one.
bool isPart(TextView type);

/// The text that describes a work of this type, without the marks around it; empty for none.
/// @param hasTitle whether the work has a title of its own
TextView describingText(TextView type, std::int16_t format, bool hasTitle);
/// Whether the describing text stands before the person it is about: "obituary for ".
bool isLeadIn(TextView describingText);
/// Whether the describing text is a sentence behind the title: "Letter" in MLA.
bool isSentence(TextView describingText, std::int16_t format);
/// The type that a describing text in square brackets stands for: "Letter" for "letter"; empty for none.
Text typeOfDescribingText(TextView text);

/// Parts of works stand in quotation marks (MLA 7 3.6.3, Turabian 7 22.3.2), or else in plain text.
bool quotesParts(std::int16_t format);

/// What joins the word of prematter, the title and the author of the work.
struct PrematterJoints {
    TextView beforeTitle;
    TextView beforeAuthor;
};
PrematterJoints prematterJoints(std::int16_t format);

}  // namespace quorvel::titletypes

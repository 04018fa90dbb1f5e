#pragma once

#include <vector>

#include "core/text.h"
#include "elements/title_case.h"

/// In which language and spelling a title stands: English capitalisation is for English titles alone.
namespace quorvel::titlelanguage {

/// Holds "š", "trz" or "sz".
bool hasForeignSpelling(TextView title);
/// Foreign by its spelling, or in an old one: "doe", "whereunto".
bool isOld(TextView title);
/// Not foreign by its spelling, and its short words are not those of French, German, Spanish, Italian,
/// Portuguese, Dutch or Latin. A title without any short word is English.
bool isEnglish(TextView title);
/// Its letters stay as typed: an address, or no small letter at all ("JAMA").
bool isPreformatted(TextView title);

/// Whether a title may be recased at all: English, in no old spelling, and not preformatted.
bool isRecased(TextView title, const std::vector<titlecase::Word>& words);

}  // namespace quorvel::titlelanguage

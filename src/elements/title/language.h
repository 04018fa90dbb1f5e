#pragma once

#include "core/text.h"
#include "elements/title/text.h"

/// In which language and spelling a title stands: English capitalisation is for English titles alone.
namespace quorvel::titlelanguage {

/// Holds "š", "trz" or "sz".
bool hasForeignSpelling(const titlecase::TitleText& title);
/// Foreign by its spelling, or in an old one: "doe", "whereunto".
bool isOld(const titlecase::TitleText& title);
/// Not foreign by its spelling, and its short words are not those of French, German, Spanish, Italian,
/// Portuguese, Dutch, Latin, the Scandinavian and some other languages. A title whose words show no language is
/// English.
bool isEnglish(const titlecase::TitleText& title);
/// Its letters stay as typed: an address, or no small letter at all ("JAMA").
bool isPreformatted(TextView title);

}  // namespace quorvel::titlelanguage

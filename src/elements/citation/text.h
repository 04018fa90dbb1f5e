#pragma once

#include <optional>

#include "core/text.h"
#include "elements/citation/fields.h"

/// Short citations as texts, whatever the style: what their form alone says.
namespace quorvel::citationtext {

// Between the name and the date of a communication.
inline constexpr TextView kPersonalCommunication = u", personal communication, ";
inline constexpr TextView kEmailCommunication = u", e-mail communication, ";

inline constexpr TextView kNoDate = u"n.d.";

/// Reads a citation:
///
///   (Smith & Jones, 2005, p. 12)                       author, year, page
///   (Freud, 1900/1953), (“New Vaccine,” n.d.)          original year; a title, which stands first
///   (Smith and Jones 12), (Wellek 2: 1-10)             author and page, volume
///   Kuhn, Structure of Scientific Revolutions, 52.     author, title, page
///   (Wellek, vol. 2)                                   volume
///   (T. K. Lutes, personal communication, April 18, 2001)
///   (JAMA. 2004;291(20):2432)                          periodical, year, volume, issue, page
///   Ibid., 57                                          what `previous` cites, with this page
///   Kuhn (1970, p. 52)                                 as it stands in a sentence
///
/// A name without anything else is an author.
/// @param previous the citation before, for "Ibid."
CitationFields read(TextView citation, TextView previous);

/// Cuts a citation of several works, "(Kuhn, 1970; Smith, 1990)", behind the first of them.
/// @return the others, "Smith, 1990"; empty when there are none
Text takeLaterCitations(Text& citation);

}  // namespace quorvel::citationtext

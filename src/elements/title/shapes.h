#pragma once

#include "core/text.h"
#include "elements/words/lexicon.h"

/// What the letters of a word tell: whether it looks like a name, and what its ending makes of it. The words
/// that only look so are in the lexicon.
namespace quorvel::titleshapes {

/// Known by itself, as a plural, or as what its ending was put to ("Kantianism", "Darwinists"), or ends as
/// names of peoples, families of living beings and persons do: "Guatemalan", "Felidae", "Lermontov".
/// @param lowered the word in lower case
bool isProperName(TextView word, TextView lowered, words::Known known);
/// "Kolkata" cannot be told from "data", but "Palermo", "Nagasaki" and "Honolulu" look foreign.
bool endsAsForeign(TextView lowered, words::Known known);
/// One of both.
bool isNameByItself(TextView word, TextView lowered, words::Known known);
/// A part of a hyphenated word: a letter that is no article ("a-priori"), or a name. Only the last part can be told by
/// a vowel at its end ("Socio-economic").
bool isNameInCompound(TextView part, TextView lowered, words::Known known, bool isLast);
/// Has letters that English words do not have: "Çelebi", but not "café".
bool hasForeignLetter(TextView lowered, words::Known known);

/// Ends as common nouns do, which a last name does not: "-tion".
bool endsAsNoun(TextView lowered);
/// Ends as agents and qualities do, whose possessive is no name's: "the writer's".
bool endsAsAgent(TextView lowered);
/// "Chinese", "Turkish".
bool endsAsAdjective(TextView lowered);
/// Ends as adjectives do, most of which have no other sign: "economic", "national".
bool endsAsQuality(TextView lowered);
/// "Victorian", "Japanese", whether or not it is a name.
bool endsAsPeople(TextView lowered);
/// Ends as the second words of species do.
bool endsAsEpithet(TextView lowered);
/// Ends as what makes an adjective of a word before it: "Marx-inspired".
bool endsAsDerived(TextView lowered);

}  // namespace quorvel::titleshapes

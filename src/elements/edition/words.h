#pragma once

#include <cstddef>
#include <vector>

#include "core/text.h"

/// The words of edition statements: what a text says by its form alone, whatever the style.
namespace quorvel::editionwords {

/// The number of an edition as an ordinal: "2nd" for "2", "2nd", "2d", "2." and "Second". Empty for every other word,
/// also for a number that is none of editions ("0", "2008").
Text ordinal(TextView word);

/// Without the commas and semicolons behind it.
TextView withoutSigns(TextView word);

/// True for "ed", "ed.", "edn." and "edition", in any letter case and also with a comma behind.
bool isEditionWord(TextView word);

/// A word of a named edition in the form in which it is abbreviated: "Rev." for "revised". What the table does not have
/// passes unchanged.
/// @param isBehindNumber behind a number the abbreviation is small: "2nd rev."
TextView abbreviated(TextView word, bool isBehindNumber);

/// A statement of words as it is kept: abbreviated up to the word "ed.", without that word where it is the last one.
/// @param isBehindNumber the statement goes on behind the number of the edition
Text normalised(const std::vector<Text>& words, bool isBehindNumber);

/// Whether a statement may get " ed." behind it: it has none, and is not of a kind that takes none, such as a version,
/// a printing or a statement in another language.
bool takesEd(TextView statement);

/// What a statement of a numbered edition tells beside its number.
bool isMarkedBy(TextView statement, TextView checkWord);
/// "John Smith" of "rev. by John Smith".
TextView reviser(TextView statement);
/// "3" of "in 3 vols."
TextView volumesOf(TextView statement);

/// A dated facsimile: "Facsim. 1790 ed." of "1790. Facsim. ed.", "Facsim. ed. 1790" and "facsimile of the 1790
/// edition".
struct DatedFacsimile {
    Text statement;
    Text year;
};
/// The statement goes on behind the general editor ("Gen. ed. John Smith"). Without a year both parts are empty.
DatedFacsimile datedFacsimile(TextView text);

}  // namespace quorvel::editionwords

#pragma once

#include <span>
#include <vector>

#include "core/text.h"
#include "elements/title/text.h"

/// Species and names of ships, which stand in roman letters inside an italic title (APA 6 4.21).
/// The words are those of the title as typed; its letters may have got another case since.
namespace quorvel::titleroman {

/// "E. coli", "Drosophila melanogaster". The second word loses the capital that a heading gave it.
void findSpecies(Text& text, std::span<const titlecase::Word> words, std::vector<titlecase::Range>& roman);
/// "U.S.S. Enterprise", "HMS Victory": the name is one word.
void findShips(TextView text, std::span<const titlecase::Word> words, std::vector<titlecase::Range>& roman);
/// Brings what both found into the order of the text; what begins inside another part is left out.
void order(std::vector<titlecase::Range>& roman);

}  // namespace quorvel::titleroman

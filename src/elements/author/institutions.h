#pragma once

#include <cstddef>

#include "core/instrumented.h"
#include "elements/author/list_text.h"

/// Corporate authors: which names are institutions, and which commas and and-words are part of one. The
/// procedures report for the element that asks.
namespace quorvel::authorwords {

/// An institution, or anything that begins with "The".
bool isInstitutionalAuthor(const Instrumented& element, WordSpan words);
bool isInstitution(const Instrumented& element, WordSpan words);
bool isInstitutionWord(const Instrumented& element, WordSpan words, std::size_t index);
/// "United States. Environmental Protection Agency": the sentence behind a country's or state's name is part of the
/// author.
bool isAuthorityOf(const Instrumented& element, WordSpan jurisdiction, WordSpan authority);
/// Whether the text of a person can be an institution's name.
bool possibleAuthor(const Instrumented& element, TextView text);
bool beginsWithThe(WordSpan words);

/// Whether the and-word between two pieces is part of an institution's name.
bool isOneAuthorWithAnAndInIt(const Instrumented& element, const AuthorListText& text, std::size_t leftPiece,
                              const Piece& right);
/// Puts together what a comma parts and is one institution.
void mergeInstitutions(AuthorListText& text);

}  // namespace quorvel::authorwords

#pragma once

#include "core/instrumented.h"
#include "elements/author/list_text.h"
#include "elements/author/persons.h"

/// From one name to its parts: where the last name begins, postfixes, prefixes. The procedures report for the
/// element that asks.
namespace quorvel::authorwords {

/// A name that stands by itself, first names first.
Person parseAuthor(const Instrumented& element, WordSpan words);
/// A name whose halves a comma parts.
Person parseReversedAuthor(const Instrumented& element, WordSpan last, WordSpan first);
/// "Smith JA", "Smith J A".
Person parseCompactAuthor(const Instrumented& element, WordSpan words);

/// A numeral that people bear: "VI".
bool isRomanNumeralPostfix(const Instrumented& element, TextView word);
bool isFirstName(const Instrumented& element, const Word& word);

/// Adds a person to those that were read; nothing when it has no name.
void store(const Person& person, AuthorPersons& persons);

}  // namespace quorvel::authorwords

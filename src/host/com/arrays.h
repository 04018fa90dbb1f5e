#pragma once

#include "host/com/automation.h"

#include <vector>

#include "core/output_sink.h"
#include "core/text.h"
#include "host/com/variant.h"

namespace quorvel::host {

/// An array as every client reads it: of variants, from index 0.
Variant arrayOfFlags(const std::vector<bool>& values);
Variant arrayOfTexts(const std::vector<Text>& values);
Variant arrayOfVariants(std::vector<Variant> values);

/// An array of one type, texts, objects or flags, as a host's class declares it. The values are of that
/// type; an empty value is an empty text or Nothing.
Variant typedArrayOf(VARTYPE type, std::vector<Variant> values);

/// An argument that passes an array of one type by reference. The array is the caller's; the callee may fill
/// it or put another one in its place.
Variant referenceToArray(Variant& array);

/// The elements of an array that a caller passed: of any type, with any lower bound, by value or by
/// reference, or a script's array object. None for a missing argument, Null or Nothing; error 13 for what is
/// no array.
std::vector<Variant> elementsOf(const VARIANT& array);

/// Gives a caller's array, passed by reference, new elements. Its size and element type stay; an element
/// beyond its end is error 9.
void assignElements(VARIANT& array, const std::vector<Variant>& values);

}  // namespace quorvel::host

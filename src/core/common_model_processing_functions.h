#pragma once

#include <cstdint>

#include "core/reference_model.h"
#include "core/text.h"

/// Rules about separators, spinner values and key instructions that the templates share.
namespace quorvel::CommonModelProcessingFunctions {

/// What `KeyInstructionsIsTriggered` found.
enum KeyInstructionsResult : std::int16_t {
    kTriggeredByField = 0,
    kNotTriggered = 1,
    kTriggeredByOutputType = 2,
};

/// Whether a model's key instructions switch a feature off. The instructions are conditions "key=value"
/// joined by "||" (any one triggers) or by "&&" (all must hold); a key is "outputType" or the number
/// of a field of the model.
/// @param disableReasonIndex receives the index of the condition that triggered, from 0; left as it
///        is otherwise, also when all conditions of an "&&" list hold.
/// @return a KeyInstructionsResult. A condition that cannot be read is reported and not triggered.
std::int16_t KeyInstructionsIsTriggered(TextView keyInstructions, const std::shared_ptr<ReferenceModel>& model,
                                        TextView outputType, std::int16_t& disableReasonIndex);

/// The separator to put behind a phrase, so that a phrase which ends in sentence punctuation gets no
/// second full stop, and a full stop or comma goes inside a closing quotation mark.
/// @param removeQuoteFromPreviousPhrase set to True when the result brings the closing quotation mark
///        along, so that the phrase's own has to go; set to False otherwise.
Text removeDoublePeriods(TextView phrase, TextView separator, bool& removeQuoteFromPreviousPhrase);

/// The part of `removeDoublePeriods` that leaves quotation marks alone.
Text removeDoublePeriodsOnly(TextView phrase, TextView separator);

/// Whether a phrase ends in the closing marks of a quotation inside a quotation: "What ‘Is’ Is ‘Is’”".
bool closesTwoQuotations(TextView phrase);

/// True when the text begins with "!", "." or "?". No other character counts.
bool isPunctuation(TextView text);

/// A spinner's number as an ordinal: "1st", "2nd", "3rd", "11th". Empty for an empty text.
Text spinNumToStr(TextView spin);

/// The number of an ordinal: "2" for "2nd". Empty when what stands before the suffix is no number.
Text strToSpinNum(TextView text);

}  // namespace quorvel::CommonModelProcessingFunctions

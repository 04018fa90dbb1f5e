#pragma once

#include <cstddef>
#include <vector>

#include "core/text.h"

/// How the rule of capitalisation and the user get along with a title that both write.
///
/// What comes from the host, and the words that the user adds, stand as the rule has them. A word that the user changes
/// stays as he wrote it from then on.
namespace quorvel::forms {

/// A word between blanks.
struct TitleWord {
    std::size_t begin = 0;
    std::size_t end = 0;
    /// The user has changed it: the rule leaves it alone.
    bool isKept = false;
    /// The rule has changed it.
    bool isCorrected = false;
};

/// A title as it is shown.
struct CorrectedTitle {
    Text text;
    std::vector<TitleWord> words;

    bool isCorrected() const;
};

/// A title as it is to be shown after the user's typing.
/// @param shown what stood there before he typed; empty for a title that comes from the host
/// @param typed what stands there now
/// @param ruled the same as the rule has it; one of another length is ignored
CorrectedTitle correct(const CorrectedTitle& shown, TextView typed, TextView ruled);

}  // namespace quorvel::forms

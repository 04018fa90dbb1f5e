#include "elements/author/lexicon.h"

#include "elements/words/lexicon.h"

namespace quorvel::authorwords {

std::uint32_t classesOf(TextView lowerCaseWord) {
    return words::Lexicon::instance().inPersons(lowerCaseWord);
}

}  // namespace quorvel::authorwords

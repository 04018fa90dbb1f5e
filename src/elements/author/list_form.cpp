#include "elements/author/list_form.h"

#include <algorithm>

namespace quorvel::authorwords {

namespace {

/// What speaks against a piece in one of the places in which it can stand.
struct Charges {
    /// A last name before a comma.
    int last = 0;
    /// First names behind a comma.
    int first = 0;
    /// A whole name, first names first.
    int direct = 0;
};

// Against two persons between whom stands a comma and no and-word, in a list of two or between semicolons.
constexpr int kLonelyPair = 2;
constexpr int kPairBetweenSemicolons = 4;
// A last name without first names at the end of a list that is reversed.
constexpr int kWithoutFirstNames = 2;
// The and-word parts a last name from its first names.
constexpr int kAndWithinName = 5;
constexpr int kForbidden = 1000;

bool isGivenName(const Word& word) {
    return word.is(kFirstName | kSharedFirstName);
}

/// "van der Kwast", "De Vos", "García Márquez": no first name stands in front. "Ben" and "Van" may be one.
bool beginsLastName(WordSpan words) {
    const Word& first = words.front();
    if (first.is(kGivenLikeParticle) && !first.isLower()) {
        return words.size() > 2 && words[1].is(kParticle);
    }
    return first.is(kParticle | kArabicOpening | kPartialLastName) || (first.isLower() && first.is(kLowerParticle)) ||
           (words.size() == 2 && words.back().is(kFamilySuffix) && !isGivenName(first) && !first.isInitials());
}

/// What speaks against several words as first names: "Chris I. Thomas", "Gabriel García Márquez", "Marga van
/// Mechelen", "Nancy Lynch".
int chargeAsFirstNames(WordSpan name) {
    const Word& last = name.back();
    int charge = 0;
    for (std::size_t i = 1; i + 1 < name.size(); ++i) {
        const bool isOfLastName = name[i].is(kPartialLastName) || (name[i].isLower() && !name[i + 1].isLower());
        if (isOfLastName || (name[i].isInitials() && !name.front().isInitials())) {
            charge = 2;
        }
    }
    if (last.isLower() || last.isBracketed || last.isInitials()) {
        return charge;
    }
    if (last.is(kSharedFirstName)) {
        return charge + 1;
    }
    return charge + (last.is(kFirstName) ? 0 : isGivenName(name.front()) || name.front().isInitials() ? 2 : 1);
}

Charges chargesOf(const Piece& piece, WordSpan words) {
    using enum PieceKind;
    switch (piece.kind) {
        case Initials: return {4, 0, 5};
        case EndsWithInitial: return {4, 0, 4};
        case Single: return {words[0].is(kFirstName) ? 1 : 0, isGivenName(words[0]) ? 0 : 1, 3};
        case Compact: return {3, 0, 4};
        case Postfix: return {};
        case Direct:
        case Multiple: break;
    }
    const WordSpan name = withoutPostfix(words);
    const Word& front = name.front();
    const bool endsInFirstName = name.back().is(kFirstName) && !name.back().is(kSharedFirstName);
    Charges charges;
    charges.first = chargeAsFirstNames(name);
    if (beginsLastName(name)) {
        // A small particle in front leaves no place for first names.
        charges.direct = front.isLower() ? 5 : 3;
    } else {
        const bool isWhole = name.size() < words.size();
        charges.last = (front.is(kGivenLikeParticle) ? 1 : 2) + (piece.kind == Direct ? 2 : 0) +
                       (front.is(kFirstName) ? 1 : 0) + (isWhole ? 1 : 0);
        charges.direct = isGivenName(front) || front.isInitials() || front.is(kGivenLikeParticle) ? 0 : 1;
    }
    charges.direct += endsInFirstName ? 1 : 0;
    return charges;
}

}  // namespace

void settleForm(AuthorListText& text, std::size_t firstPiece) {
    const auto& pieces = text.pieces();
    // Behind persons of the same list only all can be reversed.
    const bool beginsList = firstPiece == 0 || pieces[firstPiece].before == Separator::Semicolon;
    int direct = 0;
    int firstReversed = beginsList ? 0 : kForbidden;
    int reversed = 0;
    std::size_t names = 0;
    bool hasAnd = false;
    std::size_t end = firstPiece;
    for (; end < pieces.size() && (end == firstPiece || pieces[end].before != Separator::Semicolon); ++end) {
        const Piece& piece = pieces[end];
        if (piece.kind == PieceKind::Postfix || piece.isInstitution) {
            continue;
        }
        const Charges charges = chargesOf(piece, text.wordsOf(piece));
        const bool isFirstHalf = names % 2 == 0;
        const bool isAndBefore = end > firstPiece && piece.before == Separator::And;
        hasAnd = hasAnd || isAndBefore;
        direct += charges.direct;
        firstReversed += names == 0 ? charges.last : names == 1 ? charges.first : charges.direct;
        firstReversed += names == 1 && isAndBefore ? kAndWithinName : 0;
        reversed += isFirstHalf ? charges.last : charges.first;
        reversed += !isFirstHalf && isAndBefore ? kAndWithinName : 0;
        ++names;
    }
    reversed += names % 2 == 1 ? kWithoutFirstNames : 0;
    if (names == 2 && !hasAnd && beginsList) {
        const bool isBetweenSemicolons = firstPiece > 0 || end < pieces.size();
        direct += isBetweenSemicolons ? kPairBetweenSemicolons : kLonelyPair;
    }
    text.formBegin = firstPiece;
    text.formEnd = end;
    text.form = direct < std::min(firstReversed, reversed) ? ListForm::Direct
                : firstReversed <= reversed                ? ListForm::FirstReversed
                                                           : ListForm::Reversed;
}

}  // namespace quorvel::authorwords

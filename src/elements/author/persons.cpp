#include <algorithm>

#include "core/procedure.h"
#include "elements/author/author.h"

/// From the pieces of a list to persons: which pieces are one person, and in which order its names
/// stand.
namespace quorvel {

using namespace authorwords;

namespace {

constexpr TextView kPseudonymMark = u"pseud.";

bool areAllFirstNames(WordSpan words) {
    return std::all_of(words.begin(), words.end(), [](const Word& word) { return word.is(kFirstName); });
}

/// "van der Kwast", "De Vos", "García Márquez", "Chaibub Neto": no first name stands in front.
bool looksLikeLastName(WordSpan words) {
    const Word& first = words.front();
    return first.is(kParticle | kArabicOpening) || (first.isLower() && first.is(kLowerParticle)) ||
           first.is(kPartialLastName) || words.back().is(kFamilySuffix);
}

/// "Smith, Jones, and Brown", as a citation names them.
bool areLastNamesOnly(const AuthorListText& text, std::size_t piece) {
    const auto& pieces = text.pieces();
    return piece == 0 && pieces.size() > 2 && pieces.back().before == Separator::And &&
           std::all_of(pieces.begin(), pieces.end(),
                       [](const Piece& each) { return each.kind == PieceKind::Single; }) &&
           !text.wordsOf(pieces[1])[0].is(kFirstName);
}

/// "(ATLAS Collaboration)" without its parentheses.
TextView insideParentheses(TextView text) {
    const bool isEnclosed = text.size() > 2 && text.front() == u'(' && text.back() == u')';
    return isEnclosed ? text.substr(1, text.size() - 2) : text;
}

/// "[David Cornwell]" without its brackets.
TextView insideBrackets(TextView text) {
    text.remove_prefix(1);
    return endsWith(text, u"]") ? text.substr(0, text.size() - 1) : text;
}

/// "MD" and "PhD" as a piece of their own; after a bare last name they are initials.
bool isDegreeLikeInitials(WordSpan words) {
    return words.size() == 1 && words[0].is(kDegree) && words[0].isInitials();
}

}  // namespace

bool OutputTemplateAuthor::endsWithAnInitial(const Piece& piece) const {
    return procedure(*this, u"endsWithAnInitial", kNoParameters,
                     [&] { return piece.kind == PieceKind::Initials || piece.kind == PieceKind::EndsWithInitial; });
}

/// Whether the piece behind this one holds its first names: last name, comma, first names.
bool OutputTemplateAuthor::parseAndRecoverFirstName(const ListText& text, std::size_t piece) const {
    return procedure(*this, u"parseAndRecoverFirstName", {{u"text", text.text()}}, [&] {
        using enum PieceKind;
        const auto& pieces = text.pieces();
        if (piece + 1 >= pieces.size() || pieces[piece + 1].before != Separator::Comma) {
            return false;
        }
        const Piece& last = pieces[piece];
        const Piece& first = pieces[piece + 1];
        const WordSpan lastWords = text.wordsOf(last);
        const WordSpan firstWords = text.wordsOf(first);
        if (first.kind == Postfix) {
            return last.kind == Single && isDegreeLikeInitials(firstWords);
        }
        if (last.isInstitution || first.isInstitution ||
            (text.isCompact && (last.kind == Compact || last.kind == EndsWithInitial))) {
            return false;
        }
        // "Smith, J. A.", "Brendan D.": no name in direct order ends with an initial.
        if (endsWithAnInitial(first)) {
            return true;
        }
        const bool isLastName = looksLikeLastName(lastWords);
        if (last.kind == Direct || last.kind == EndsWithInitial || last.kind == Initials || last.kind == Compact) {
            // "de F. S. M. Russo, Rosaria"
            return isLastName && last.kind != EndsWithInitial;
        }
        if (last.kind == Single && areLastNamesOnly(text, piece)) {
            return false;
        }
        if (text.hasDirect) {
            // "Warnier, Martijn, David de Groot, ...": whoever follows a name in direct order is so too.
            return false;
        }
        if (last.kind == Single || isLastName) {
            return true;
        }
        // Two or more words before the comma: "García Márquez, Gabriel" or "Nancy Lynch, Calvin Newport".
        const bool endsHere = piece + 2 >= pieces.size() || pieces[piece + 2].before == Separator::Semicolon;
        const bool standsAlone = endsHere && (piece == 0 || last.before == Separator::Semicolon);
        return first.kind == Single || standsAlone || (areAllFirstNames(firstWords) && !isFirstName(lastWords[0]));
    });
}

void OutputTemplateAuthor::parseAndRemoveAuthor(ListText& text, std::int16_t index, bool treatTheRestAsResidue) {
    procedure(*this, u"parseAndRemoveAuthor", {{u"index", index}, {u"treatTheRestAsResidue", treatTheRestAsResidue}},
              [&] {
                  const auto& pieces = text.pieces();
                  const std::size_t at = text.nextPiece;
                  const Piece& piece = pieces[at];
                  const WordSpan words = text.wordsOf(piece);
                  if (treatTheRestAsResidue) {
                      text.nextPiece = pieces.size();
                      mResidue = authorwords::textOf(WordSpan(text.words()).subspan(piece.begin));
                      return;
                  }
                  // Counted on before anything can fail: the reading ends.
                  ++text.nextPiece;
                  if (isPostfixOfPrevious(text, piece, index)) {
                      Text& postfix = mAuthors.at(static_cast<std::size_t>(index - 1)).postfix;
                      postfix.append(postfix.empty() ? u"" : u", ");
                      postfix.append(writtenPostfix(authorwords::textOf(words)));
                      return;
                  }
                  Person person;
                  bool isReversed = false;
                  if (parseAndRecoverFirstName(text, at)) {
                      ++text.nextPiece;
                      person = parseReversedAuthor(words, text.wordsOf(pieces[at + 1]));
                      isReversed = true;
                      text.hasReversed = true;
                  } else if (piece.isInstitution || isGroupBehindSemicolon(text, piece)) {
                      person.last = insideParentheses(authorwords::textOf(words));
                      person.isGroup = true;
                  } else if (isCompactAuthor(text, piece)) {
                      person = parseCompactAuthor(words);
                      isReversed = true;
                  } else {
                      person = parseAuthor(words);
                      text.hasDirect = text.hasDirect || !person.first.empty();
                  }
                  person.isShouted = text.isShouted();
                  if (index == 0) {
                      mLastNameFirstForAuthor1 = isReversed;
                      const TextView supplied = insideBrackets(person.supplied.empty() ? u"[" : person.supplied);
                      if (!supplied.empty() && (!mSquareBracketIsForFirstName || supplied == kPseudonymMark)) {
                          AuthorType = kPseudonym;
                          Pseudoname = supplied == kPseudonymMark ? TextView() : supplied;
                          person.supplied = {};
                      }
                  }
                  store(person);
              });
}

/// "Rockefeller, John D., IV": a piece that can be nobody else.
bool OutputTemplateAuthor::isPostfixOfPrevious(const ListText& text, const Piece& piece, std::int16_t index) const {
    if (index == 0) {
        return false;
    }
    const WordSpan words = text.wordsOf(piece);
    return piece.kind == PieceKind::Postfix ||
           (words.size() == 1 && piece.before == Separator::Comma && words[0].shape == Shape::Capitals &&
            isRomanNumeralPostfix(words[0].text) && !author(index - 1).firstNames.empty());
}

/// "Smith JA, Jones K; Childhood Asthma Management": what follows the semicolon of a compact list and is
/// no compact name.
bool OutputTemplateAuthor::isGroupBehindSemicolon(const ListText& text, const Piece& piece) {
    return text.isCompact && piece.before == Separator::Semicolon && piece.kind == PieceKind::Multiple;
}

bool OutputTemplateAuthor::isCompactAuthor(const ListText& text, const Piece& piece) {
    if (piece.kind == PieceKind::Compact) {
        return text.isCompact || (!text.hasDirect && !text.wordsOf(piece)[0].is(kFirstName));
    }
    // "Smith J., Jones K.", or the full stop of the sentence behind the last initial.
    return text.isCompact && piece.kind == PieceKind::EndsWithInitial;
}

OutputTemplateAuthor::Person OutputTemplateAuthor::parseReversedAuthor(WordSpan last, WordSpan first) const {
    Person person;
    if (first.back().is(kPostfix)) {
        parseAndRemovePostfix(first, person);
    } else if (last.back().is(kPostfix)) {
        parseAndRemovePostfix(last, person);
    }
    person.last = authorwords::textOf(last);
    if (first.size() > 1 && first.back().isBracketed) {
        person.supplied = first.back().text;
        first = first.first(first.size() - 1);
    }
    person.first = authorwords::textOf(first);
    if (first.size() > 1 && first.back().isLower()) {
        moveApostrophePrefix(person);
    }
    return person;
}

OutputTemplateAuthor::Person OutputTemplateAuthor::parseCompactAuthor(WordSpan words) const {
    Person person;
    if (words.back().is(kPostfix)) {
        parseAndRemovePostfix(words, person);
    }
    // "Smith JA", "Smith J A"
    std::size_t initials = words.size() - 1;
    while (initials > 1 && words[initials - 1].isInitials()) {
        --initials;
    }
    person.last = authorwords::textOf(words.first(initials));
    person.first = authorwords::textOf(words.subspan(initials));
    return person;
}

/// One name that stands by itself, first names first.
OutputTemplateAuthor::Person OutputTemplateAuthor::parseAuthor(WordSpan words) const {
    Person person;
    procedure(*this, u"parseAuthor", {{u"words", authorwords::textOf(words)}}, [&] {
        if (words.size() > 1 && words.back().isBracketed) {
            person.supplied = words.back().text;
            words = words.first(words.size() - 1);
        }
        if (beginsWithThe(words)) {
            person.last = authorwords::textOf(words);
            person.isGroup = true;
            return;
        }
        if (words.back().is(kPostfix)) {
            parseAndRemovePostfix(words, person);
        }
        if (isLastNameFirst(words)) {
            person.last = words[0].text;
            person.first = words[1].text;
            return;
        }
        const auto firstNames = static_cast<std::size_t>(getFirstNameUbound(words) + 1);
        person.first = authorwords::textOf(words.first(firstNames));
        person.last = authorwords::textOf(words.subspan(firstNames));
    });
    return person;
}

}  // namespace quorvel

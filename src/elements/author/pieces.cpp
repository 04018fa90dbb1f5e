#include "elements/author/pieces.h"

#include <algorithm>

#include "core/procedure.h"
#include "elements/author/list_form.h"
#include "elements/author/names.h"

namespace quorvel::authorwords {

namespace {

constexpr TextView kPseudonymMark = u"pseud.";

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

bool endsWithAnInitial(const Instrumented& element, const Piece& piece) {
    return procedure(element, u"endsWithAnInitial", kNoParameters,
                     [&] { return piece.kind == PieceKind::Initials || piece.kind == PieceKind::EndsWithInitial; });
}

/// Whether the piece behind this one holds its first names: last name, comma, first names.
bool parseAndRecoverFirstName(const Instrumented& element, AuthorListText& text, std::size_t piece) {
    return procedure(element, u"parseAndRecoverFirstName", {{u"text", text.text()}}, [&] {
        using enum PieceKind;
        const auto& pieces = text.pieces();
        if (piece + 1 >= pieces.size() || pieces[piece + 1].before != Separator::Comma) {
            return false;
        }
        const Piece& last = pieces[piece];
        const Piece& first = pieces[piece + 1];
        const WordSpan firstWords = text.wordsOf(first);
        if (first.kind == Postfix) {
            return last.kind == Single && isDegreeLikeInitials(firstWords);
        }
        if (last.isInstitution || first.isInstitution ||
            (text.isCompact && (last.kind == Compact || last.kind == EndsWithInitial))) {
            return false;
        }
        // "Smith, J. A.", "Brendan D.": no name in direct order ends with an initial.
        if (endsWithAnInitial(element, first)) {
            return true;
        }
        if (last.kind == Initials || last.kind == EndsWithInitial || last.kind == Compact || text.hasDirect ||
            (last.kind == Single && areLastNamesOnly(text, piece))) {
            // "Warnier, Martijn, David de Groot, ...": whoever follows a name in direct order is so too.
            return false;
        }
        if (last.kind == Single) {
            return true;
        }
        if (piece >= text.formEnd) {
            settleForm(text, piece);
        }
        return text.form == ListForm::Reversed || (text.form == ListForm::FirstReversed && piece == text.formBegin);
    });
}

/// "Rockefeller, John D., IV": a piece that can be nobody else.
bool isPostfixOfPrevious(const AuthorReading& reading, const Piece& piece, std::int16_t index) {
    if (index == 0) {
        return false;
    }
    const WordSpan words = reading.list.wordsOf(piece);
    return piece.kind == PieceKind::Postfix ||
           (words.size() == 1 && piece.before == Separator::Comma && words[0].shape == Shape::Capitals &&
            isRomanNumeralPostfix(reading.element(), words[0].text) &&
            !reading.persons.at(index - 1).firstNames.empty());
}

/// "Smith JA, Jones K; Childhood Asthma Management": what follows the semicolon of a compact list and is
/// no compact name.
bool isGroupBehindSemicolon(const AuthorListText& text, const Piece& piece) {
    return text.isCompact && piece.before == Separator::Semicolon && piece.kind == PieceKind::Multiple;
}

bool isCompactAuthor(const AuthorListText& text, const Piece& piece) {
    if (piece.kind == PieceKind::Compact) {
        return text.isCompact || (!text.hasDirect && !text.wordsOf(piece)[0].is(kFirstName));
    }
    // "Smith J., Jones K.", or the full stop of the sentence behind the last initial.
    return text.isCompact && piece.kind == PieceKind::EndsWithInitial;
}

}  // namespace

void parseAndRemoveAuthor(AuthorReading& reading, std::int16_t index, bool treatTheRestAsResidue) {
    const Instrumented& element = reading.element();
    AuthorPersons& persons = reading.persons;
    AuthorListText& text = reading.list;
    procedure(element, u"parseAndRemoveAuthor", {{u"index", index}, {u"treatTheRestAsResidue", treatTheRestAsResidue}},
              [&] {
                  const auto& pieces = text.pieces();
                  const std::size_t at = text.nextPiece;
                  const Piece& piece = pieces[at];
                  const WordSpan words = text.wordsOf(piece);
                  if (treatTheRestAsResidue) {
                      text.nextPiece = pieces.size();
                      persons.leave(textOf(WordSpan(text.words()).subspan(piece.begin)));
                      return;
                  }
                  // Counted on before anything can fail: the reading ends.
                  ++text.nextPiece;
                  if (isPostfixOfPrevious(reading, piece, index)) {
                      Text& postfix = persons.at(index - 1).postfix;
                      postfix.append(postfix.empty() ? u"" : u", ");
                      postfix.append(writtenPostfix(textOf(words)));
                      return;
                  }
                  Person person;
                  bool isReversed = false;
                  if (parseAndRecoverFirstName(element, text, at)) {
                      ++text.nextPiece;
                      person = parseReversedAuthor(element, words, text.wordsOf(pieces[at + 1]));
                      isReversed = true;
                  } else if (piece.isInstitution || isGroupBehindSemicolon(text, piece)) {
                      person.last = insideParentheses(textOf(words));
                      person.isGroup = true;
                  } else if (isCompactAuthor(text, piece)) {
                      person = parseCompactAuthor(element, words);
                      isReversed = true;
                  } else {
                      person = parseAuthor(element, words);
                      text.hasDirect = text.hasDirect || !person.first.empty();
                  }
                  person.isShouted = text.isShouted();
                  if (index == 0) {
                      persons.lastNameFirst = isReversed;
                      const TextView supplied = insideBrackets(person.supplied.empty() ? u"[" : person.supplied);
                      if (!supplied.empty() && (!reading.reader.bracketIsForFirstName || supplied == kPseudonymMark)) {
                          persons.authorType = AuthorPersons::kPseudonym;
                          persons.pseudoname = supplied == kPseudonymMark ? TextView() : supplied;
                          person.supplied = {};
                      }
                  }
                  store(person, persons);
              });
}

}  // namespace quorvel::authorwords

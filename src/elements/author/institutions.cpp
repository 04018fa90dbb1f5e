#include "elements/author/institutions.h"

#include <algorithm>

#include "core/procedure.h"

namespace quorvel::authorwords {

namespace {

// Texts that make a name possibly one of an institution.
constexpr TextView kPossibleAuthorMarks[] = {u"United", u"Dept", u"Commission", u"of "};

bool isArticleFor(const Word& word) {
    return word.text.starts_with(u"'") || word.text.starts_with(u"\u2019") || word.is(kParticle);
}

// "For", "Without"; "By" and "To" are names.
constexpr std::size_t kShortestCapitalisedPreposition = 3;

/// "of" and the longer ones in any case between two words; the others in lower case only, and not where they are
/// particles ("in 't Veld").
bool isInnerPreposition(WordSpan words, std::size_t i) {
    if (!words[i].is(kPreposition) || i == 0 || i + 1 == words.size() || words[i].is(kParticle)) {
        return false;
    }
    if (words[i].is(kLowerParticle)) {
        return words[i].isLower() && !isArticleFor(words[i + 1]);
    }
    return words[i].isLower() || words[i].text.size() >= kShortestCapitalisedPreposition || words[i].text == u"Of";
}

bool hasPreposition(WordSpan words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (isInnerPreposition(words, i)) {
            return true;
        }
    }
    return false;
}

/// The words up to the first preposition hold the word for the kind of institution.
bool hasHead(WordSpan words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].is(kInstitutionHead) || (i > 0 && words[i].is(kCompanyEnding))) {
            return true;
        }
        if (isInnerPreposition(words, i)) {
            return false;
        }
    }
    return false;
}

bool holdsTopic(WordSpan words) {
    return std::any_of(words.begin(), words.end(), [](const Word& word) { return word.is(kTopic); });
}

/// "William Press", "van der Bank": the institution's word is the surname of a person.
bool isPersonWithSuchName(WordSpan words) {
    const Word& last = words.back();
    if (!last.is(kAlsoSurname) || beginsWithThe(words) || hasPreposition(words)) {
        return false;
    }
    const WordSpan others = words.first(words.size() - 1);
    const bool hasInitials = std::any_of(others.begin(), others.end(), [](const Word& word) {
        return word.shape == Shape::Initial && !word.is(kInstitutionOpening);
    });
    const bool isLastNameOnly =
        std::all_of(others.begin(), others.end(), [](const Word& word) { return word.is(kParticle); });
    return hasInitials || isLastNameOnly || others[0].is(kFirstName);
}

/// "Press WH", "van der Bank J": a last name with initials behind it.
bool isCompactPerson(WordSpan words) {
    const bool isCompany = words.back().is(kCompanyEnding) && words.back().text.size() > 2;
    if (words.back().shape != Shape::Capitals || isCompany) {
        return false;
    }
    const auto names = std::count_if(words.begin(), words.end() - 1,
                                     [](const Word& word) { return !word.is(kParticle | kLowerParticle); });
    return names <= 1;
}

/// "The Center For Disease Control, CDC": the letters are the initials of the name's words, its small
/// words counted or not.
bool isAcronymOf(TextView letters, WordSpan words) {
    std::size_t matched = 0;
    for (const Word& word : words) {
        if (matched < letters.size() && word.text.front() == letters[matched]) {
            ++matched;
        }
    }
    return letters.size() > 1 && matched == letters.size();
}

bool isOneOf(PieceKind kind, std::initializer_list<PieceKind> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

}  // namespace

bool beginsWithThe(WordSpan words) {
    return words.size() > 1 && words[0].text == u"The";
}

bool isInstitutionalAuthor(const Instrumented& element, WordSpan words) {
    return procedure(element, u"isInstitutionalAuthor", {{u"words", textOf(words)}},
                     [&] { return beginsWithThe(words) || isInstitution(element, words); });
}

bool isInstitution(const Instrumented& element, WordSpan words) {
    return procedure(element, u"isInstitution", {{u"words", textOf(words)}}, [&] {
        if (!hasInstitutionalWord(words) || isCompactPerson(words) || isPersonWithSuchName(words)) {
            return false;
        }
        if (beginsWithThe(words) || hasPreposition(words)) {
            return true;
        }
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (isInstitutionWord(element, words, i)) {
                return true;
            }
        }
        return false;
    });
}

bool isInstitutionWord(const Instrumented& element, WordSpan words, std::size_t index) {
    return procedure(element, u"isInstitutionWord", {{u"word", words[index].text}},
                     [&] { return isInstitutionalAt(words, index); });
}

bool isAuthorityOf(const Instrumented& element, WordSpan jurisdiction, WordSpan authority) {
    return jurisdiction.back().is(kJurisdiction) && !authority.empty() && hasHead(authority) &&
           isInstitution(element, authority);
}

bool possibleAuthor(const Instrumented& element, TextView text) {
    return procedure(element, u"possibleAuthor", {{u"text", text}}, [&] {
        const AuthorListText list{Text(text)};
        return std::any_of(std::begin(kPossibleAuthorMarks), std::end(kPossibleAuthorMarks),
                           [&](TextView mark) { return contains(text, mark); }) ||
               (!list.words().empty() && isInstitutionalAuthor(element, list.words()));
    });
}

/// Whether the and-word between two pieces is part of an institution's name.
bool isOneAuthorWithAnAndInIt(const Instrumented& element, const AuthorListText& text, std::size_t leftPiece,
                              const Piece& right) {
    return procedure(element, u"isOneAuthorWithAnAndInIt", {{u"text", text.text()}}, [&] {
        using enum PieceKind;
        const Words& words = text.words();
        const Piece& left = text.pieces()[leftPiece];
        const WordSpan leftWords = text.wordsOf(left);
        const WordSpan rightWords = text.wordsOf(right);
        if (!left.isInstitution && !right.isInstitution && leftPiece == 0) {
            return false;
        }
        const bool isLastNameOfNext =
            right.end < words.size() && words[right.end].before == Separator::Comma && words[right.end].isInitials();
        if (isLastNameOfNext || isOneOf(left.kind, {Initials, Compact, Postfix}) ||
            (!right.isInstitution && !isOneOf(right.kind, {Single, Multiple}))) {
            return false;
        }
        const bool rightHasHead = hasHead(rightWords);
        if (hasHead(leftWords) || hasPreposition(leftWords)) {
            if (rightHasHead || beginsWithThe(rightWords) || rightWords[0].is(kFirstName)) {
                return false;
            }
            // "Centers for Disease Control and Prevention", "Department of Health and Human Services"
            const bool isAcronym = right.kind == Single && rightWords[0].shape == Shape::Capitals;
            return !isAcronym && (hasPreposition(leftWords) || holdsTopic(rightWords));
        }
        // The series that ends here may begin some commas before: "Department of Health, Education, and
        // Welfare", "National Heart, Lung, and Blood Institute".
        std::size_t first = leftPiece;
        while (first > 0 && text.pieces()[first].kind == Single && text.pieces()[first].before == Separator::Comma &&
               !text.pieces()[first].isInstitution) {
            --first;
        }
        const Piece& begin = text.pieces()[first];
        const WordSpan beginWords = text.wordsOf(begin);
        if (first < leftPiece && hasPreposition(beginWords)) {
            return !rightHasHead && !rightWords[0].is(kFirstName);
        }
        if (!right.isInstitution || !rightHasHead || beginsWithThe(rightWords)) {
            return false;
        }
        if (beginWords.size() > 1 && beginWords[0].is(kInstitutionOpening)) {
            return true;
        }
        // "Food and Agriculture Organization", "John D. and Catherine T. MacArthur Foundation"
        const bool isShortBegin = leftPiece == 0 && isOneOf(left.kind, {Single, EndsWithInitial});
        return (holdsTopic(leftWords) || isShortBegin) && !rightWords[0].is(kInstitutionOpening);
    });
}

/// Puts together what a comma parts and is one institution.
void mergeInstitutions(AuthorListText& text) {
    std::pmr::vector<Piece>& pieces = text.pieces();
    const bool isPair = pieces.size() == 2;
    std::size_t kept = 0;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const Piece& piece = pieces[i];
        Piece& previous = pieces[kept];
        const WordSpan words = text.wordsOf(piece);
        bool joins = false;
        if (piece.before == Separator::Comma) {
            const bool isCompanyEnding = words.size() == 1 && words[0].is(kCompanyEnding) &&
                                         (words[0].endsWithStop || words[0].text.size() > 2) &&
                                         words[0].shape != Shape::Initial;
            joins = isCompanyEnding;
            if (!joins && previous.isInstitution) {
                // "University of California, Berkeley", but not "World Bank, UNESCO".
                const bool isPlace = isPair && !text.isCompact &&
                                     (piece.kind == PieceKind::Single || piece.kind == PieceKind::Multiple) &&
                                     !piece.isInstitution && !words[0].is(kFirstName);
                const bool isAcronym = words.size() == 1 && words[0].shape == Shape::Capitals &&
                                       isAcronymOf(words[0].text, text.wordsOf(previous));
                // "U.S. Department of Commerce, Bureau of the Census"
                joins = isPlace || isAcronym || (words[0].is(kSubdivision) && piece.isInstitution);
            }
        }
        if (joins) {
            previous.end = piece.end;
            previous.isInstitution = true;
        } else {
            pieces[++kept] = piece;
        }
    }
    if (!pieces.empty()) {
        pieces.resize(kept + 1);
    }
}

}  // namespace quorvel::authorwords

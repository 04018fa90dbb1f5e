#include "elements/author/reader.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/institutions.h"
#include "elements/author/names.h"
#include "elements/author/pieces.h"
#include "elements/author/residue.h"
#include "elements/author/tags.h"

namespace quorvel {

using namespace authorwords;

namespace {

constexpr TextView kInDiscussionOf = u"in discussion of:";
constexpr TextView kOthers = u"others";
constexpr std::uint32_t kFewestWordsOfTwoNames = 4;

bool isEmptyOrSigns(const Words& words) {
    return std::all_of(words.begin(), words.end(), [](const Word& word) { return word.shape == Shape::Mark; });
}

/// The end of the words that nothing but blanks part.
std::uint32_t endOfRun(const Words& words, std::uint32_t begin) {
    std::uint32_t end = begin + 1;
    while (end < words.size() && words[end].before == Separator::Blank && !words[end].is(kAnd)) {
        ++end;
    }
    return end;
}

/// "Penfield W Jasper H": in a style without and-word only a blank stands between compact names, and the initials
/// of one end the run; not in "John F Kennedy".
bool endsWithInitials(WordSpan run) {
    return withoutPostfix(run).back().shape == Shape::Capitals;
}

/// A compact name in such a run ends before the word at `end` when it has its initials.
bool endsCompactName(const Words& words, std::size_t begin, std::size_t end) {
    return words[end - 1].shape == Shape::Capitals && !words[begin].isInitials() && !words[end].isInitials() &&
           !words[end].is(kPostfix);
}

/// "[Horsley, Samuel?]": the work is anonymous, the name supplied.
void readAttributedName(Text& text, AuthorPersons& persons) {
    if (text.empty() || text.front() != u'[' || text.back() != u']' || text.find(u']') + 1 != text.size() ||
        text.find(u'[', 1) != Text::npos) {
        return;
    }
    text.pop_back();
    text.erase(0, 1);
    removeSuffix(text, u"?");
    persons.authorType = AuthorPersons::kAttributed;
}

/// "Smith, J. In discussion of: Jones, K.": what stands before the phrase is the discussant.
void ParseAndRemoveDiscussant(AuthorReading& reading) {
    AuthorListText& list = reading.list;
    procedure(reading.element(), u"ParseAndRemoveDiscussant", {{u"text", list.text()}}, [&] {
        const Text lower = toLower(list.text());
        const std::size_t at = lower.find(kInDiscussionOf);
        if (at == Text::npos || (at > 0 && lower[at - 1] != u' ')) {
            return;
        }
        const Text discussant(trim(TextView(list.text()).substr(0, at)));
        Text rest = discussant;
        AuthorPersons persons;
        readPersons(reading.reader, rest, {}, true, persons);
        AuthorRecord& person = reading.persons.discussant.emplace();
        if (persons.size() == 1 && rest.empty() && persons.pseudoname.empty()) {
            person = persons.at(0);
        } else {
            person.lastName = discussant;
        }
        list.assign(Text(trim(TextView(list.text()).substr(at + kInDiscussionOf.size()))));
    });
}

void parseAndRemoveEtAl(AuthorReading& reading) {
    AuthorListText& list = reading.list;
    procedure(reading.element(), u"parseAndRemoveEtAl", {{u"text", list.text()}}, [&] {
        Words& words = list.words();
        std::size_t kept = 0;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const bool isEtAl =
                i + 1 < words.size() && ((words[i].is(kEt) && words[i + 1].is(kAl)) ||
                                         (words[i].is(kAnd) && i + 2 == words.size() && words[i + 1].text == kOthers));
            if (isEtAl) {
                reading.persons.hasEtAl = true;
                ++i;
                if (i + 1 < words.size() && words[i + 1].before == Separator::Blank) {
                    words[i + 1].before = Separator::Comma;
                }
            } else {
                words[kept++] = words[i];
            }
        }
        words.resize(kept);
    });
}

/// Makes the words into pieces: a piece ends at a comma, a semicolon, and an and-word that is not part
/// of a name.
void parseAndRemoveAndSeparator(AuthorReading& reading) {
    const Instrumented& element = reading.element();
    AuthorListText& list = reading.list;
    procedure(element, u"parseAndRemoveAndSeparator", {{u"text", list.text()}}, [&] {
        const Words& words = list.words();
        std::pmr::vector<Piece>& pieces = list.pieces();
        pieces.clear();
        if (isEmptyOrSigns(words)) {
            return;
        }
        Separator before = Separator::Comma;
        std::uint32_t runEnd = 0;
        bool isRunOfCompactNames = false;
        for (std::uint32_t begin = 0; begin < words.size();) {
            if (words[begin].is(kAnd)) {
                before = Separator::And;
                ++begin;
                continue;
            }
            if (begin >= runEnd) {
                runEnd = endOfRun(words, begin);
                isRunOfCompactNames = runEnd - begin >= kFewestWordsOfTwoNames &&
                                      endsWithInitials(WordSpan(words).subspan(begin, runEnd - begin));
            }
            std::uint32_t end = isRunOfCompactNames ? begin + 1 : runEnd;
            while (end < runEnd && !endsCompactName(words, begin, end)) {
                ++end;
            }
            Piece piece;
            piece.begin = begin;
            piece.end = end;
            piece.before = before == Separator::And ? before : words[begin].before;
            piece.kind = kindOf(list.wordsOf(piece));
            piece.isInstitution =
                hasInstitutionalWord(list.wordsOf(piece)) && isInstitution(element, list.wordsOf(piece));
            const bool joins = before == Separator::And && !pieces.empty() &&
                               isOneAuthorWithAnAndInIt(element, list, pieces.size() - 1, piece);
            if (joins) {
                // The series that the and-word closes may reach back over commas.
                while (pieces.size() > 1 && !pieces.back().isInstitution && pieces.back().before == Separator::Comma &&
                       pieces.back().kind == PieceKind::Single) {
                    pieces.pop_back();
                }
                pieces.back().end = end;
                pieces.back().kind = PieceKind::Multiple;
                pieces.back().isInstitution = true;
            } else {
                pieces.push_back(piece);
            }
            before = Separator::Comma;
            begin = end;
        }
    });
}

/// "Daumé III, Hal, and Daniel Marcu": the numeral is no initials where no other name of the list has any in its
/// place.
bool isNumeralOfReversedName(const AuthorListText& list, const Piece& piece) {
    const WordSpan words = list.wordsOf(piece);
    return piece.kind == PieceKind::Compact && isPostfixAt(words, words.size() - 1, 1) && list.pieces().size() > 1 &&
           std::none_of(list.pieces().begin(), list.pieces().end(), [&](const Piece& other) {
               return &other != &piece && (other.kind == PieceKind::Compact || other.before == Separator::Semicolon);
           });
}

/// "Smith J, Jones K", "Smith J., Jones K.": a list whose first person is compact is so as a whole.
void handleAMAException(AuthorReading& reading) {
    AuthorListText& list = reading.list;
    procedure(reading.element(), u"handleAMAException", {{u"text", list.text()}}, [&] {
        for (Piece& piece : list.pieces()) {
            if (piece.isInstitution) {
                continue;
            }
            if (isNumeralOfReversedName(list, piece)) {
                piece.kind = kindOf(withoutPostfix(list.wordsOf(piece), 1));
            }
            list.isCompact = piece.kind == PieceKind::Compact || piece.kind == PieceKind::EndsWithInitial;
            return;
        }
    });
}

}  // namespace

void readPersons(const AuthorReader& reader, Text& text, TextView previousStr, bool residueAlreadyRemoved,
                 AuthorPersons& persons) {
    Text cleaned = cleanUp(text);
    readAttributedName(cleaned, persons);
    AuthorReading reading{reader, previousStr, persons, AuthorListText(std::move(cleaned))};
    AuthorListText& list = reading.list;
    // A step that the text gives no reason for is not taken.
    if (list.has(kHasDiscussion)) {
        ParseAndRemoveDiscussant(reading);
    }
    if (!residueAlreadyRemoved) {
        parseAndRemoveResidue(reading);
    }
    parseAndRemoveAnthology(reading);
    if (list.has(kHasEt | kHasAnd)) {
        parseAndRemoveEtAl(reading);
    }
    parseAndRemoveAndSeparator(reading);
    mergeInstitutions(list);
    handleAMAException(reading);
    while (list.nextPiece < list.pieces().size()) {
        parseAndRemoveAuthor(reading, persons.size(), persons.isFull());
    }
    text = persons.residue;
}

void readRows(const AuthorReader& reader, const std::vector<Text>& rows, AuthorPersons& persons) {
    persons.clearRecords();
    for (const Text& value : rows) {
        const Text row = cleanUp(value);
        if (row.empty()) {
            continue;
        }
        const AuthorListText list{row};
        const std::vector<Text> parts = split(row, u", ");
        Person person;
        if (isInstitutionalAuthor(reader.element, list.words())) {
            person.last = row;
            person.isGroup = true;
        } else if (parts.size() == 1) {
            person = parseAuthor(reader.element, list.words());
        } else {
            person.last = parts[0];
            person.first = parts[1];
            person.postfix = parts.size() > 2 ? TextView(parts[2]) : TextView();
        }
        store(person, persons);
    }
}

}  // namespace quorvel

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/author/author.h"

/// Reading a list of persons: the order of the steps, and the steps that concern the list as a whole.
namespace quorvel {

using namespace authorwords;

namespace {

constexpr TextView kInDiscussionOf = u"in discussion of:";
constexpr TextView kOthers = u"others";

bool isEmptyOrSigns(const Words& words) {
    return std::all_of(words.begin(), words.end(), [](const Word& word) { return word.shape == Shape::Mark; });
}

/// "Penfield W Jasper H": in a style without and-word only a blank stands between two compact names. One
/// ends before the word at `end` when it has its initials and what follows is another whole one.
bool endsCompactName(const Words& words, std::size_t begin, std::size_t end) {
    if (words[end - 1].shape != Shape::Capitals || words[begin].isInitials() || words[end].isInitials()) {
        return false;
    }
    std::size_t next = end + 1;
    while (next < words.size() && words[next].before == Separator::Blank && !words[next].isInitials()) {
        ++next;
    }
    return next < words.size() && words[next].shape == Shape::Capitals && words[next].before == Separator::Blank &&
           !words[end].is(kPostfix);
}

}  // namespace

void OutputTemplateAuthor::Parse(Text& text, TextView previousStr, bool residueAlreadyRemoved) {
    procedure(*this, u"Parse",
              {{u"text", text}, {u"previousStr", previousStr}, {u"residueAlreadyRemoved", residueAlreadyRemoved}}, [&] {
                  Text cleaned = cleanUp(text);
                  mPreviousStr = previousStr;
                  ClearAuthors();
                  readAttributedName(cleaned);
                  ListText list(std::move(cleaned));
                  // A step that the text gives no reason for is not taken.
                  if (list.has(kHasDiscussion)) {
                      ParseAndRemoveDiscussant(list);
                  }
                  if (!residueAlreadyRemoved) {
                      parseAndRemoveResidue(list);
                  }
                  parseAndRemoveAnthology(list);
                  if (list.has(kHasEt | kHasAnd)) {
                      parseAndRemoveEtAl(list);
                  }
                  parseAndRemoveAndSeparator(list);
                  mergeInstitutions(list);
                  handleAMAException(list);
                  while (list.nextPiece < list.pieces().size()) {
                      parseAndRemoveAuthor(list, mNumAuthors, mNumAuthors == INT16_MAX);
                  }
                  text = mResidue;
              });
}

/// "[Horsley, Samuel?]": the work is anonymous, the name supplied.
void OutputTemplateAuthor::readAttributedName(Text& text) {
    if (text.empty() || text.front() != u'[' || text.back() != u']' || text.find(u']') + 1 != text.size() ||
        text.find(u'[', 1) != Text::npos) {
        return;
    }
    text.pop_back();
    text.erase(0, 1);
    removeSuffix(text, u"?");
    AuthorType = kAttributed;
}

/// "Smith, J. In discussion of: Jones, K.": what stands before the phrase is the discussant.
void OutputTemplateAuthor::ParseAndRemoveDiscussant(ListText& text) {
    procedure(*this, u"ParseAndRemoveDiscussant", {{u"text", text.text()}}, [&] {
        const std::size_t at = toLower(text.text()).find(kInDiscussionOf);
        if (at == Text::npos) {
            return;
        }
        Text discussant(trim(TextView(text.text()).substr(0, at)));
        const std::shared_ptr<OutputTemplateAuthor> reader = std::make_shared<OutputTemplateAuthor>();
        AuthorRecord person;
        Text rest = discussant;
        reader->Parse(rest, {}, true);
        if (reader->mNumAuthors == 1) {
            person = reader->author(0);
        } else {
            person.lastName = std::move(discussant);
        }
        mDiscussant = std::make_shared<const AuthorRecord>(std::move(person));
        text.assign(Text(trim(TextView(text.text()).substr(at + kInDiscussionOf.size()))));
    });
}

void OutputTemplateAuthor::parseAndRemoveEtAl(ListText& text) {
    procedure(*this, u"parseAndRemoveEtAl", {{u"text", text.text()}}, [&] {
        Words& words = text.words();
        std::size_t kept = 0;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const bool isEtAl =
                i + 1 < words.size() && ((words[i].is(kEt) && words[i + 1].is(kAl)) ||
                                         (words[i].is(kAnd) && i + 2 == words.size() && words[i + 1].text == kOthers));
            if (isEtAl) {
                HasEtAl = true;
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
void OutputTemplateAuthor::parseAndRemoveAndSeparator(ListText& text) {
    procedure(*this, u"parseAndRemoveAndSeparator", {{u"text", text.text()}}, [&] {
        const Words& words = text.words();
        std::pmr::vector<Piece>& pieces = text.pieces();
        pieces.clear();
        if (isEmptyOrSigns(words)) {
            return;
        }
        Separator before = Separator::Comma;
        for (std::uint32_t begin = 0; begin < words.size();) {
            if (words[begin].is(kAnd)) {
                before = Separator::And;
                ++begin;
                continue;
            }
            std::uint32_t end = begin + 1;
            while (end < words.size() && words[end].before == Separator::Blank && !words[end].is(kAnd) &&
                   !endsCompactName(words, begin, end)) {
                ++end;
            }
            Piece piece;
            piece.begin = begin;
            piece.end = end;
            piece.before = before == Separator::And ? before : words[begin].before;
            piece.kind = kindOf(text.wordsOf(piece));
            piece.isInstitution = hasInstitutionalWord(text.wordsOf(piece)) && isInstitution(text.wordsOf(piece));
            const bool joins =
                before == Separator::And && !pieces.empty() && isOneAuthorWithAnAndInIt(text, pieces.size() - 1, piece);
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

/// "Smith J, Jones K", "Smith J., Jones K.": a list whose first person is compact is so as a whole.
void OutputTemplateAuthor::handleAMAException(ListText& text) const {
    procedure(*this, u"handleAMAException", {{u"text", text.text()}}, [&] {
        for (const Piece& piece : text.pieces()) {
            if (!piece.isInstitution) {
                text.isCompact = piece.kind == PieceKind::Compact || piece.kind == PieceKind::EndsWithInitial;
                return;
            }
        }
    });
}

void OutputTemplateAuthor::store(const Person& person) {
    if (person.last.empty() && person.first.empty()) {
        return;
    }
    if (person.isGroup && mFirstGroupAuthorIndex < 0) {
        mFirstGroupAuthorIndex = mNumAuthors;
    }
    AuthorRecord& record = nextAuthor();
    record.lastName.append(person.prefix);
    if (!person.prefix.empty() && person.prefix.back() != u'-') {
        record.lastName.push_back(u' ');
    }
    record.lastName.append(person.last);
    writeFirstNames(person, record.firstNames);
    record.postfix = writtenPostfix(person.postfix);
}

}  // namespace quorvel

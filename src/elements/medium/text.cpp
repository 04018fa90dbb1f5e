#include "elements/medium/text.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "core/letter_case.h"
#include "elements/date/date_text.h"

namespace quorvel::mediumtext {

namespace {

struct Spelling {
    TextView text;
    TextView caption;
};

// Longer texts first: the first that fits is taken.
constexpr Spelling kSpellings[] = {
    {u"[CD-ROM]", kCD},
    {u"CD-ROM", kCD},
    {u"[CD]", kCD},
    {u"CD", kCD},
    {u"[DVD-ROM]", kDVD},
    {u"DVD-ROM", kDVD},
    {u"[DVD]", kDVD},
    {u"DVD", kDVD},
    {u"[Digital file]", kDigitalFile},
    {u"Digital file", kDigitalFile},
    {u"[e-book]", kEbook},
    {u"e-book", kEbook},
    {u"[Microform]", kMicroform},
    {u"Microform", kMicroform},
    {u"[Microfilm]", kMicrofilm},
    {u"Microfilm", kMicrofilm},
    {u"[Microfiche]", kMicrofiche},
    {u"Microfiche", kMicrofiche},
    {u"[Monograph]", kMonograph},
    {u"Monograph", kMonograph},
    {u"[Videotape]", kVideotape},
    {u"Videotape", kVideotape},
};

// What stands behind the format of a file or an e-book. A version is one in brackets only: elsewhere it is an edition.
constexpr Spelling kFormats[] = {
    {u" file", kDigitalFile}, {u" eBook", kEbook}, {u" e-book", kEbook}, {u" ebook", kEbook}};
constexpr TextView kVersionInBrackets = u" version";

struct WordSpelling {
    Word word;
    TextView text;
};

// The spellings of a word stand together.
constexpr WordSpelling kWords[] = {
    {Word::kVersion, u"version "}, {Word::kVersion, u"vers. "}, {Word::kDisc, u"disc "},   {Word::kDisc, u"disk "},
    {Word::kReel, u"rel. "},       {Word::kReel, u"reel "},     {Word::kFiche, u"fiche "}, {Word::kGrids, u"grids "},
    {Word::kGrids, u"grid "},      {Word::kRow, u"row "},       {Word::kFrame, u"frame "},
};

constexpr TextView kDiscs = u" discs";
constexpr TextView kJointSigns = u".,:;";

/// True where a piece may end: at the end, or before what joins the next one.
bool ends(TextView rest) {
    if (rest.size() < 2) {
        return rest.empty() || rest.front() == u'.';
    }
    return rest[1] == u' ' ? kJointSigns.find(rest[0]) != TextView::npos : rest[0] == u' ' && rest[1] == u'(';
}

/// The text up to where a piece ends.
TextView firstPiece(TextView text) {
    std::size_t end = 0;
    while (end < text.size() && !ends(text.substr(end))) {
        ++end;
    }
    return text.substr(0, end);
}

/// Where the next piece begins; npos when there is none.
std::size_t nextPiece(TextView text, std::size_t from) {
    for (std::size_t blank = text.find(u' ', from); blank != TextView::npos; blank = text.find(u' ', blank + 1)) {
        if (blank > 0 && kJointSigns.find(text[blank - 1]) != TextView::npos) {
            return blank + 1;
        }
    }
    return TextView::npos;
}

/// The first piece of a text that the test takes: it gets what begins there and returns how much of it is the piece.
template <class Test>
std::optional<Piece> findPiece(TextView text, Test test) {
    for (std::size_t start = 0; start < text.size(); start = nextPiece(text, start)) {
        const std::size_t length = test(text.substr(start));
        const TextView rest = text.substr(start + length);
        if (length > 0 && ends(rest)) {
            const std::size_t joint = start < 2 ? 0 : start - 2;
            return Piece{text.substr(start, length), joint, start + length - joint + (rest == u"." ? 1 : 0)};
        }
    }
    return std::nullopt;
}

}  // namespace

bool isDisc(TextView caption) {
    return caption == kCD || caption == kDVD;
}

bool arePages(TextView text) {
    return startsWith(text, u"p. ") || startsWith(text, u"pp. ");
}

bool isMicroform(TextView caption) {
    return caption == kMicroform || caption == kMicrofilm || caption == kMicrofiche;
}

TextView withoutVersion(TextView text) {
    return endsWithIgnoringCase(text, kVersionInBrackets) ? text.substr(0, text.size() - kVersionInBrackets.size())
                                                          : text;
}

std::optional<Medium> mediumAtStart(TextView text) {
    for (const Spelling& spelling : kSpellings) {
        if (startsWithIgnoringCase(text, spelling.text) && ends(text.substr(spelling.text.size()))) {
            return Medium{spelling.caption, {}, spelling.text.size()};
        }
    }
    const bool isInBrackets = text.size() > 2 && text.front() == u'[' && text.find(u']') == text.size() - 1;
    const TextView inside = isInBrackets ? text.substr(1, text.size() - 2) : text;
    for (const Spelling& format : kFormats) {
        if (endsWithIgnoringCase(inside, format.text)) {
            return Medium{format.caption, inside.substr(0, inside.size() - format.text.size()), text.size()};
        }
    }
    if (isInBrackets && endsWithIgnoringCase(inside, kVersionInBrackets)) {
        return Medium{kEbook, withoutVersion(inside), text.size()};
    }
    return std::nullopt;
}

std::optional<Piece> piece(TextView text, Word word) {
    const auto isOfWord = [word](const WordSpelling& spelling) { return spelling.word == word; };
    const auto* const first = std::find_if(std::begin(kWords), std::end(kWords), isOfWord);
    const std::span<const WordSpelling> spellings(first, std::find_if_not(first, std::end(kWords), isOfWord));
    std::size_t lengthOfWord = 0;
    std::optional<Piece> found = findPiece(text, [&](TextView rest) -> std::size_t {
        for (const WordSpelling& spelling : spellings) {
            if (startsWithIgnoringCase(rest, spelling.text)) {
                lengthOfWord = spelling.text.size();
                const TextView value = firstPiece(rest.substr(lengthOfWord));
                return value.empty() || contains(value, u" ") ? 0 : lengthOfWord + value.size();
            }
        }
        return 0;
    });
    if (found) {
        found->value.remove_prefix(lengthOfWord);
    }
    return found;
}

std::optional<Piece> discs(TextView text) {
    std::optional<Piece> found = findPiece(text, [](TextView rest) -> std::size_t {
        const std::size_t digits = std::min(rest.find_first_not_of(kDigits), rest.size());
        return digits > 0 && startsWithIgnoringCase(rest.substr(digits), kDiscs) ? digits + kDiscs.size() : 0;
    });
    if (found) {
        found->value.remove_suffix(kDiscs.size());
    }
    return found;
}

std::optional<FrameOnFiche> frameOnFiche(TextView text) {
    const auto length = [](TextView rest) -> std::size_t {
        const std::size_t fiche = std::min(rest.find_first_not_of(kDigits), rest.size());
        if (fiche == 0 || fiche + 1 >= rest.size() || !isCapital(rest[fiche])) {
            return 0;
        }
        const std::size_t end = std::min(rest.find_first_not_of(kDigits, fiche + 1), rest.size());
        return end > fiche + 1 ? end : 0;
    };
    const std::optional<Piece> found = findPiece(text, length);
    if (!found) {
        return std::nullopt;
    }
    const std::size_t fiche = found->value.find_first_not_of(kDigits);
    return FrameOnFiche{found->value.substr(0, fiche), found->value.substr(fiche, 1), found->value.substr(fiche + 1),
                        *found};
}

std::optional<Piece> dateAtEnd(TextView text) {
    const TextView statement = text.ends_with(u'.') || text.ends_with(u':') ? text.substr(0, text.size() - 1) : text;
    if (statement.ends_with(u')')) {
        const std::size_t open = statement.rfind(u'(');
        if (open == TextView::npos || open + 2 > statement.size() - 1) {
            return std::nullopt;
        }
        const std::size_t start = open > 0 && statement[open - 1] == u' ' ? open - 1 : open;
        return Piece{statement.substr(open + 1, statement.size() - open - 2), start, text.size() - start};
    }
    // "June 1993", and the sentence before it.
    const std::size_t year = statement.rfind(u' ');
    if (year == TextView::npos || !isDigits(statement.substr(year + 1))) {
        return std::nullopt;
    }
    const TextView rest = statement.substr(0, year);
    const std::size_t blank = rest.rfind(u' ');
    const std::size_t month = blank == TextView::npos ? 0 : blank + 1;
    TextView word = rest.substr(month);
    word = word.ends_with(u'.') ? word.substr(0, word.size() - 1) : word;
    const bool isApart = month == 0 || (month > 1 && contains(u".,", rest.substr(month - 2, 1)));
    if (!isMonth(word) || !isApart) {
        return std::nullopt;
    }
    const std::size_t start = month > 1 ? month - 2 : 0;
    return Piece{statement.substr(month), start, text.size() - start};
}

}  // namespace quorvel::mediumtext

#include "elements/title_case.h"

#include <algorithm>

#include "core/letter_case.h"
#include "elements/title_words.h"

namespace quorvel::titlecase {

namespace {

constexpr char16_t kEmDash = u'\u2014';
constexpr char16_t kApostrophe = u'\u2019';

// Most letters of titles are ASCII, which needs no look at the platform.
bool isAsciiCapital(char16_t unit) {
    return unit >= u'A' && unit <= u'Z';
}
bool isAsciiSmall(char16_t unit) {
    return unit >= u'a' && unit <= u'z';
}
char16_t upper(char16_t unit) {
    if (unit < 0x80) {
        return isAsciiSmall(unit) ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
    }
    return toUpper(TextView(&unit, 1)).front();
}
char16_t lower(char16_t unit) {
    if (unit < 0x80) {
        return isAsciiCapital(unit) ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
    }
    return toLower(TextView(&unit, 1)).front();
}

/// Letters of scripts without case count, too: everything beyond Latin-1's signs that is no dash or mark.
bool isWordUnit(char16_t unit) {
    if (unit < 0x80) {
        return isDigit(unit) || isAsciiSmall(unit) || isAsciiCapital(unit);
    }
    if (unit < 0xC0) {
        return false;
    }
    return !(unit >= 0x2000 && unit <= 0x206F);
}

bool isPartBreak(char16_t unit) {
    return unit == u'-' || unit == kEnDash || unit == u'/' || unit == u'\u2010' || unit == u'\u2011';
}

TextView slice(TextView text, Range range) {
    return text.substr(range.begin, range.end - range.begin);
}

/// The word that ends before a place.
TextView wordBefore(TextView text, std::size_t end) {
    std::size_t begin = end;
    while (begin > 0 && text[begin - 1] != u' ') {
        --begin;
    }
    while (begin < end && !isWordUnit(text[begin])) {
        ++begin;
    }
    return text.substr(begin, end - begin);
}

/// Where the next piece begins when a mark at this place ends one, else npos.
std::size_t endOfPiece(TextView text, std::size_t i) {
    const char16_t unit = text[i];
    if (unit != u':' && unit != u'.' && unit != u';' && unit != u'!' && unit != u'?') {
        return TextView::npos;
    }
    std::size_t next = i + 1;
    // The mark may stand inside a quotation or parenthesis.
    while (next < text.size() &&
           (text[next] == u'"' || text[next] == kRightDoubleQuotationMark || text[next] == u')')) {
        ++next;
    }
    if (next >= text.size() || text[next] != u' ' || (unit == u'.' && isStopOfWord(text, i))) {
        return TextView::npos;
    }
    // "Moby-Dick; or, The Whale".
    constexpr TextView kOr = u"or, ";
    const bool isOr = unit == u';' && startsWith(toLower(text.substr(next + 1, kOr.size())), kOr);
    return next + 1 + (isOr ? kOr.size() : 0);
}

/// The parts of a hyphenated word behind the first.
void capitalizePart(Text& text, Range part, bool isLastOfTitle, TextView first) {
    const TextView word = slice(text, part);
    const Text lowered = toLower(word);
    if (hasOwnCase(word)) {
        return;
    }
    // "co-operation": the hyphen only keeps the vowels apart.
    const bool isOneWord = equalsIgnoringCase(first, u"co") && startsWith(lowered, u"op");
    if (isOneWord || (titlewords::isSmallWord(lowered) && !isLastOfTitle)) {
        lowerAt(text, part.begin);
    } else {
        capitalizeAt(text, part.begin);
    }
}

/// What stays as it stands in a heading although it is no small word.
bool staysInHeading(TextView text, std::span<const Word> words, std::size_t index) {
    const TextView word = slice(text, words[index].core);
    if (index == 0) {
        return false;
    }
    const Range previous = words[index - 1].core;
    const TextView before = slice(text, previous);
    const bool isAfterStop = previous.end < text.size() && text[previous.end] == u'.';
    const bool isAfterParticle = titlewords::isParticle(toLower(before));
    if (titlewords::isParticle(word) || word == u"vs" || word == u"v") {
        return true;
    }
    if (word == u"al") {
        return equalsIgnoringCase(before, u"et");
    }
    if (word == u"n" || word == u"et") {
        return true;
    }
    if (titlewords::isForeignParticle(word)) {
        const bool standsAlone = word.size() > 2 && word != u"los" && word != u"las" && word != u"ten";
        return isAfterParticle || standsAlone || word == u"da";
    }
    if (titlewords::isSpeciesEpithet(toLower(word))) {
        return (before.size() == 1 && isAfterStop) || titlewords::isName(before);
    }
    return false;
}

/// One word of a piece.
void applyHeading(Text& text, std::span<const Word> words, std::size_t index, bool capitalizeFirstWord,
                  const Rules& rules) {
    const Word& word = words[index];
    const bool isFirst = word.isFirst && (index > 0 || capitalizeFirstWord);
    const bool isEnd = isFirst || word.isLast;
    const std::vector<Range> parts = partsOf(text, word.core);
    const Text first(slice(text, parts.front()));
    const Text lowered = toLower(first);
    const bool isCompound = parts.size() > 1;
    const bool isSlash = isCompound && text[parts.front().end] == u'/';
    // "e-learning", "t-test": the letter stays, the word behind it is capitalised.
    const bool isLetter = isCompound && first.size() == 1 && first != u"a";
    const bool isGreek = first.size() == 1 && first[0] >= 0x370 && first[0] < 0x400;
    if (!hasOwnCase(first) && !isGreek) {
        // One test is on the word as it stands, deliberately: a capital "A" is no article.
        const bool isSmall = titlewords::isSmallWord(lowered) && first != u"A" && (!isCompound || isSlash);
        const bool isLowered = isSmall && !isEnd;
        if (!isLowered && (isFirst || !(isLetter || staysInHeading(text, words, index)))) {
            capitalizeAt(text, parts.front().begin);
        } else if (isLowered || titlewords::isSpeciesEpithet(lowered)) {
            lowerAt(text, parts.front().begin);
        }
    }
    for (std::size_t part = 1; part < parts.size(); ++part) {
        const bool isLastOfTitle = word.isLast && part + 1 == parts.size();
        if (rules.capitalizeHyphenatedWord || isSlash) {
            capitalizePart(text, parts[part], isLastOfTitle, first);
        }
    }
}

}  // namespace

bool isStopOfWord(TextView text, std::size_t stop) {
    const TextView word = wordBefore(text, stop);
    if (word.size() == 1) {
        return isCapital(word[0]) && word != u"I" && word != u"V" && word != u"X";
    }
    const bool isInitials = word.size() >= 3 && word[word.size() - 2] == u'.';
    return isInitials || titlewords::isAbbreviation(word);
}

bool isCapital(char16_t unit) {
    return lower(unit) != unit;
}
bool isSmallLetter(char16_t unit) {
    return upper(unit) != unit;
}

void capitalizeAt(Text& text, std::size_t index) {
    text[index] = upper(text[index]);
}
void lowerAt(Text& text, std::size_t index) {
    text[index] = lower(text[index]);
}

bool isAcronym(TextView word) {
    const auto capitals = std::count_if(word.begin(), word.end(), isCapital);
    return capitals >= 2 && std::none_of(word.begin(), word.end(), isSmallLetter);
}

bool hasOwnCase(TextView word) {
    if (word.empty()) {
        return false;
    }
    return std::any_of(word.begin(), word.end(), isDigit) || std::any_of(word.begin() + 1, word.end(), isCapital);
}

bool isPossessive(TextView word) {
    return withoutPossessive(word).size() != word.size();
}

TextView withoutPossessive(TextView word) {
    const std::size_t size = word.size();
    const auto isMark = [](char16_t unit) { return unit == u'\'' || unit == kApostrophe; };
    if (size > 2 && (word[size - 1] == u's' || word[size - 1] == u'S') && isMark(word[size - 2])) {
        return word.substr(0, size - 2);
    }
    return word;
}

std::vector<Range> piecesOf(TextView title) {
    std::vector<Range> pieces;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < title.size(); ++i) {
        const std::size_t next = endOfPiece(title, i);
        if (next != TextView::npos) {
            pieces.push_back({begin, std::min(next, title.size())});
            begin = pieces.back().end;
            i = begin - 1;
        }
    }
    if (begin < title.size() || pieces.empty()) {
        pieces.push_back({begin, title.size()});
    }
    return pieces;
}

std::vector<Word> wordsOf(TextView title) {
    std::vector<Word> words;
    words.reserve(title.size() / 6 + 4);
    const std::vector<Range> pieces = piecesOf(title);
    for (std::size_t piece = 0; piece < pieces.size(); ++piece) {
        bool isFirst = true;
        bool isAfterDash = false;
        // What ended the piece before: a colon makes a subtitle, a semicolon no sentence.
        const TextView past = trim(title.substr(0, pieces[piece].begin));
        const char16_t mark = past.empty() ? u' ' : past.back();
        std::size_t i = pieces[piece].begin;
        const std::size_t firstOfPiece = words.size();
        while (i < pieces[piece].end) {
            while (i < pieces[piece].end && !isWordUnit(title[i])) {
                isAfterDash = isAfterDash || title[i] == kEmDash;
                ++i;
            }
            std::size_t end = i;
            while (end < pieces[piece].end && title[end] != u' ' && title[end] != kEmDash) {
                ++end;
            }
            std::size_t coreEnd = end;
            while (coreEnd > i && !isWordUnit(title[coreEnd - 1])) {
                --coreEnd;
            }
            if (coreEnd > i) {
                Word word;
                word.core = {i, coreEnd};
                word.piece = piece;
                word.isFirst = isFirst || isAfterDash;
                word.beginsSubtitle = word.isFirst && (isAfterDash || mark == u':' || mark == u',');
                word.beginsClause = isFirst && !isAfterDash && mark == u';';
                words.push_back(word);
                isFirst = false;
            }
            isAfterDash = false;
            i = end;
        }
        if (words.size() > firstOfPiece) {
            // The "or," of "; or, " is no last word.
            const std::size_t end = words.back().core.end;
            words.back().isLast = end >= title.size() || title[end] != u',';
        }
    }
    return words;
}

std::vector<Range> partsOf(TextView text, Range word) {
    std::vector<Range> parts;
    std::size_t begin = word.begin;
    for (std::size_t i = word.begin; i < word.end; ++i) {
        if (isPartBreak(text[i])) {
            parts.push_back({begin, i});
            begin = i + 1;
        }
    }
    parts.push_back({begin, word.end});
    std::erase_if(parts, [](Range part) { return part.begin == part.end; });
    return parts;
}

bool standsInHeadingCase(TextView title) {
    return standsInHeadingCase(title, wordsOf(title));
}

bool standsInHeadingCase(TextView title, const std::vector<Word>& words) {
    int capitals = 0;
    int smalls = 0;
    for (const Word& word : words) {
        std::size_t end = word.core.begin;
        while (end < word.core.end && !isPartBreak(title[end])) {
            ++end;
        }
        const TextView first = slice(title, {word.core.begin, end});
        if (word.isFirst || first.size() < 2 || hasOwnCase(first) || titlewords::isFunctionWord(toLower(first))) {
            continue;
        }
        if (isSmallLetter(first[0])) {
            ++smalls;
        } else if (isCapital(first[0]) && !titlewords::isPlace(withoutPossessive(first))) {
            ++capitals;
        }
    }
    return capitals > smalls;
}

bool capitalizesFirstWord(const Word& first, const Rules& rules) {
    return rules.isHeading || (!first.beginsClause && (rules.capitalizeSubtitle || !first.beginsSubtitle));
}

std::vector<std::span<const Word>> pieces(const std::vector<Word>& words) {
    std::vector<std::span<const Word>> result;
    const std::span<const Word> all(words);
    for (std::size_t begin = 0; begin < all.size();) {
        std::size_t end = begin + 1;
        while (end < all.size() && all[end].piece == all[begin].piece) {
            ++end;
        }
        result.push_back(all.subspan(begin, end - begin));
        begin = end;
    }
    return result;
}

void applyPiece(Text& text, std::span<const Word> piece, bool capitalizeFirstWord, const Rules& rules) {
    if (!rules.isHeading) {
        applySentence(text, piece, capitalizeFirstWord, rules);
        return;
    }
    for (std::size_t i = 0; i < piece.size(); ++i) {
        applyHeading(text, piece, i, capitalizeFirstWord, rules);
    }
}

std::vector<Range> changedWords(TextView before, TextView after, const std::vector<Word>& words) {
    std::vector<Range> changed;
    for (const Word& word : words) {
        if (slice(before, word.core) != slice(after, word.core)) {
            changed.push_back(word.core);
        }
    }
    return changed;
}

CasedTitle casedTitle(TextView title, const Rules& rules) {
    CasedTitle result;
    result.text = title;
    const std::vector<Word> words = wordsOf(title);
    if (rules.isHeading || standsInHeadingCase(title, words)) {
        for (const std::span<const Word> piece : pieces(words)) {
            applyPiece(result.text, piece, capitalizesFirstWord(piece.front(), rules), rules);
        }
    }
    result.changed = changedWords(title, result.text, words);
    return result;
}

}  // namespace quorvel::titlecase

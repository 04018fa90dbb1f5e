#include "elements/author/words.h"

#include <algorithm>

#include "core/letter_case.h"

namespace quorvel::authorwords {

namespace {

constexpr std::size_t kLongestKnownWord = 16;
// Shorter words of capitals can be compact names: "HO S, LI JA".
constexpr std::size_t kShortestShoutedName = 4;
constexpr std::size_t kMostInitials = 5;
// "Wm.", "Geo.", "Chas."
constexpr std::size_t kLongestAbbreviation = 4;
constexpr char16_t kEmDash = u'\u2014';
constexpr char16_t kEllipsisSign = u'\u2026';
constexpr char16_t kCurlyApostrophe = u'\u2019';

bool isCombining(char16_t unit) {
    return unit >= u'\u0300' && unit <= u'\u036F';
}

enum class Letter { None, Lower, Capital };

struct Cased {
    Letter letter;
    char16_t lower;
};

Cased casedOf(char16_t unit) {
    if (unit < u'\u0080') {
        if (unit >= u'a' && unit <= u'z') {
            return {Letter::Lower, unit};
        }
        if (unit >= u'A' && unit <= u'Z') {
            return {Letter::Capital, static_cast<char16_t>(unit + (u'a' - u'A'))};
        }
        return {Letter::None, unit};
    }
    if (unit < u'\u00C0' || (unit >= u'\u2000' && unit <= u'\u206F') || isCombining(unit)) {
        return {Letter::None, unit == kCurlyApostrophe ? u'\'' : unit};
    }
    const char16_t lower = toLower(unit);
    if (lower != unit) {
        return {Letter::Capital, lower};
    }
    // Scripts without letter case count as capitals where a name begins and as small letters inside it.
    return {isSmallLetter(unit) ? Letter::Lower : Letter::None, unit};
}

/// What one pass over a word's characters finds.
struct Letters {
    std::size_t capitals = 0;
    std::size_t lower = 0;
    std::size_t others = 0;
    std::size_t stops = 0;
    std::size_t digits = 0;
    std::size_t hyphens = 0;
    bool beginsLower = false;
    // A capital letter that follows another letter directly.
    bool hasRun = false;
    // The first two letters are capitals.
    bool beginsWithCapitals = false;
    bool endsLower = false;
    // Sounds of two letters that stand for one initial: "Ch", "Yu".
    std::size_t digraphs = 0;
};

Shape shapeOf(const Letters& letters, std::size_t size, bool endsWithStop) {
    const std::size_t all = letters.capitals + letters.lower + letters.others;
    if (letters.digits > 0 && letters.capitals == 0) {
        return Shape::Number;
    }
    if (all == 0) {
        return Shape::Mark;
    }
    if (letters.digits > 0) {
        return Shape::Name;
    }
    if (letters.lower == 0 && letters.others == 0) {
        if (letters.stops > 0 && !letters.hasRun && size == letters.capitals + letters.stops + letters.hyphens) {
            return Shape::Initial;
        }
        if (letters.capitals <= kMostInitials && size == letters.capitals + letters.hyphens) {
            return Shape::Capitals;
        }
        return Shape::Name;
    }
    if (letters.beginsLower) {
        // "e. e. cummings"
        if (letters.lower == 1 && endsWithStop && size == 2) {
            return Shape::Initial;
        }
        return Shape::Lower;
    }
    // "YuI", "J-JCh": an initial is a sound of two letters; the last one may be any.
    const bool endsInSound = letters.beginsWithCapitals && letters.lower == 1 && letters.endsLower;
    if ((endsInSound || letters.lower == letters.digraphs) && letters.capitals > 1 &&
        letters.capitals <= kMostInitials && size == letters.capitals + letters.hyphens + letters.lower) {
        return Shape::Capitals;
    }
    if (endsWithStop && all <= kLongestAbbreviation && letters.capitals == 1 && size == all + 1) {
        return Shape::Abbreviation;
    }
    return Shape::Name;
}

bool isTrimmedForLookUp(char16_t unit) {
    return unit == u'.' || unit == u'(' || unit == u')' || unit == u',';
}

bool isSmallAscii(char16_t unit) {
    return unit >= u'a' && unit <= u'z';
}

/// What lists know of a word in lower case.
void lookUp(Word& word, TextView lower) {
    while (!lower.empty() && isTrimmedForLookUp(lower.back())) {
        lower.remove_suffix(1);
    }
    while (!lower.empty() && isTrimmedForLookUp(lower.front())) {
        lower.remove_prefix(1);
    }
    if (!lower.empty()) {
        word.classes = classesOf(lower);
    }
}

/// A capital and small letters, all of them ASCII, as most words are.
bool isPlainName(TextView word) {
    return word.size() > 1 && word[0] >= u'A' && word[0] <= u'Z' &&
           std::all_of(word.begin() + 1, word.end(), isSmallAscii);
}

void classifyPlainName(Word& word) {
    word.shape = Shape::Name;
    if (word.text.size() <= kLongestKnownWord) {
        char16_t lower[kLongestKnownWord];
        std::copy(word.text.begin(), word.text.end(), lower);
        lower[0] = static_cast<char16_t>(lower[0] + (u'a' - u'A'));
        word.classes = classesOf(TextView(lower, word.text.size()));
    }
}

void classify(Word& word) {
    if (isPlainName(word.text)) {
        classifyPlainName(word);
        return;
    }
    char16_t lower[kLongestKnownWord];
    Letters letters;
    bool previousIsLetter = false;
    for (std::size_t i = 0; i < word.text.size(); ++i) {
        const char16_t unit = word.text[i];
        const Cased cased = casedOf(unit);
        if (i < kLongestKnownWord) {
            lower[i] = cased.lower;
        }
        bool isLetter = true;
        switch (cased.letter) {
            case Letter::Capital:
                ++letters.capitals;
                letters.hasRun = letters.hasRun || previousIsLetter;
                letters.beginsWithCapitals =
                    letters.beginsWithCapitals || (letters.capitals == 2 && letters.lower + letters.others == 0);
                letters.endsLower = false;
                break;
            case Letter::Lower:
                letters.beginsLower = letters.beginsLower || letters.capitals + letters.lower + letters.others == 0;
                ++letters.lower;
                letters.endsLower = true;
                letters.digraphs += i > 0 && word.text[i - 1] <= u'Z' && isDigraph(word.text[i - 1], unit) ? 1U : 0U;
                break;
            case Letter::None:
                isLetter = false;
                if (isDigit(unit)) {
                    ++letters.digits;
                } else if (unit == u'.') {
                    ++letters.stops;
                } else if (unit == u'-' || unit == u'\u2010' || unit == u'\u2011') {
                    ++letters.hyphens;
                } else if (unit >= u'\u00C0' && !(unit >= u'\u2000' && unit <= u'\u206F')) {
                    isLetter = true;
                    ++letters.others;
                }
                break;
        }
        previousIsLetter = isLetter;
    }
    word.endsWithStop = word.text.back() == u'.';
    word.shape = shapeOf(letters, word.text.size(), word.endsWithStop);
    if (word.text.size() <= kLongestKnownWord) {
        lookUp(word, TextView(lower, word.text.size()));
    }
    // "John." ends a sentence, "Wm." and "Card." do not.
    if (word.shape == Shape::Abbreviation && word.is(kFirstName)) {
        word.shape = Shape::Name;
    }
}

/// Features that single characters bring.
std::uint32_t featureOf(char16_t unit) {
    switch (unit) {
        case u'(':
        case u')':
        case u'[':
        case u']': return kHasBracket;
        case u'"':
        case kLeftDoubleQuotationMark:
        case kRightDoubleQuotationMark: return kHasQuote;
        case u':': return kHasColon;
        case u';': return kHasSemicolon;
        case kEmDash: return kHasDashes;
        case kEllipsisSign: return kHasEllipsis;
        default: return isDigit(unit) ? kHasDigit : 0U;
    }
}

std::uint32_t featuresOf(const Word& word) {
    std::uint32_t features = 0;
    if (word.classes != kNoClass) {
        features |= word.is(kTranslatorTag) ? kHasTranslator : 0U;
        features |= word.is(kResidueWord) ? kHasResidueWord : 0U;
        features |= word.is(kDiscussion) ? kHasDiscussion : 0U;
        features |= word.is(kAnyTag) ? kHasTag : 0U;
        features |= word.is(kEt) ? kHasEt : 0U;
        features |= word.is(kAnd) ? kHasAnd : 0U;
    }
    if (word.shape == Shape::Mark && word.text[0] == u'.') {
        features |= kHasEllipsis;
    }
    if (word.shape == Shape::Mark && word.text.starts_with(u"--")) {
        features |= kHasDashes;
    }
    return features;
}

/// The end of a bracketed part; the end of the word when the bracket is never closed.
std::size_t endOfBracket(TextView text, std::size_t from) {
    const std::size_t closing = text.find(u']', from);
    return closing == TextView::npos ? TextView::npos : closing + 1;
}

bool endsWord(char16_t unit) {
    return unit == u' ' || unit == u',' || unit == u';';
}

}  // namespace

bool breaksSentence(const Word& word) {
    return word.endsWithStop && word.shape == Shape::Name &&
           !word.is(kPostfix | kParticle | kAnyTag | kCompanyEnding | kSubdivision);
}

std::uint32_t splitIntoWords(TextView text, Words& words) {
    words.clear();
    std::uint32_t features = 0;
    Separator before = Separator::Comma;
    bool bracketsAreBalanced = true;
    std::size_t at = 0;
    while (at < text.size()) {
        if (endsWord(text[at])) {
            if (text[at] == u';') {
                before = Separator::Semicolon;
                features |= kHasSemicolon;
            } else if (text[at] == u',' && before == Separator::Blank) {
                before = Separator::Comma;
            }
            ++at;
            continue;
        }
        const std::size_t begin = at;
        if (text[at] == u'[' && bracketsAreBalanced) {
            const std::size_t closing = endOfBracket(text, at);
            bracketsAreBalanced = closing != TextView::npos;
            at = bracketsAreBalanced ? closing : at;
            features |= kHasBracket;
        }
        while (at < text.size()) {
            // Letters bring nothing.
            if (!isAsciiLetter(text[at])) {
                if (endsWord(text[at])) {
                    break;
                }
                features |= featureOf(text[at]);
            }
            ++at;
        }
        Word& word = words.emplace_back();
        word.text = text.substr(begin, at - begin);
        word.before = words.size() == 1 ? Separator::Comma : before;
        word.isBracketed = word.text.front() == u'[';
        if (word.text == u"&") {
            word.classes = kAnd;
        } else {
            classify(word);
        }
        features |= featuresOf(word);
        if (words.size() > 1 && word.shape == Shape::Capitals && word.before == Separator::Blank) {
            features |= kHasCompactName;
        }
        if (at < text.size() && text[at] == u' ' && breaksSentence(word)) {
            features |= kHasSentenceBreak;
        }
        before = Separator::Blank;
    }
    return features;
}

Word wordOf(TextView text) {
    Word word;
    word.text = trim(text);
    if (!word.text.empty()) {
        word.isBracketed = word.text.front() == u'[';
        classify(word);
    }
    return word;
}

bool isShouted(const Words& words) {
    bool hasLongWord = false;
    for (const Word& word : words) {
        if (word.is(kAnd | kEt | kAl | kPostfix | kParticle | kAnyTag)) {
            continue;
        }
        if (std::any_of(word.text.begin(), word.text.end(),
                        [](char16_t unit) { return casedOf(unit).letter == Letter::Lower; })) {
            return false;
        }
        hasLongWord = hasLongWord || word.text.size() >= kShortestShoutedName;
    }
    return hasLongWord;
}

TextView textOf(const Word& first, const Word& last) {
    return {first.text.data(), static_cast<std::size_t>(last.text.data() + last.text.size() - first.text.data())};
}

}  // namespace quorvel::authorwords

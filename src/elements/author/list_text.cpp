#include "elements/author/list_text.h"

#include <algorithm>

#include "core/letter_case.h"

namespace quorvel::authorwords {

namespace {

constexpr std::uint32_t kWordsThatInitialsSpell = kParticle | kLowerParticle | kNameConjunction | kPreposition | kAnd |
                                                  kEt | kAl | kAnyTag | kTagOrnament | kArabicOpening | kFamilySuffix |
                                                  kEastAsianLastName | kFirstName;

// "Yu."
constexpr std::size_t kLongestUnknownAbbreviation = 3;
constexpr TextView kAbbreviatedPostfixes[] = {u"Jr.", u"Sr."};

/// The full stop of the sentence: "Smith, Jonathan.", "Smith J, Petty RE." Abbreviations and single
/// initials keep theirs.
void removeFinalStop(Words& words) {
    const bool isAbbreviation =
        !words.empty() && words.back().shape == Shape::Abbreviation &&
        (words.back().is(kAbbreviation) || words.back().text.size() <= kLongestUnknownAbbreviation);
    if (words.empty() || !words.back().endsWithStop || !words.back().isName() || isAbbreviation ||
        words.back().is(kPostfix | kDegree | kCompanyEnding | kAnyTag | kSubdivision)) {
        return;
    }
    const Word& stopped = words.back();
    Word word = wordOf(stopped.text.substr(0, stopped.text.size() - 1));
    if (word.text.find(u'.') == TextView::npos) {
        word.before = stopped.before;
        words.back() = word;
    }
}

}  // namespace

void AuthorListText::assign(Text text) {
    mText = std::move(text);
    if (mWords.capacity() == 0) {
        mWords.reserve(kUsualWords);
        mPieces.reserve(kUsualPieces);
    }
    mFeatures = splitIntoWords(mText, mWords);
    removeFinalStop(mWords);
    mIsShouted = authorwords::isShouted(mWords);
    for (Word& word : mWords) {
        if (word.shape != Shape::Capitals) {
            continue;
        }
        if (!mIsShouted) {
            // "Rolls ET", "Smith DE": initials and none of the words that they spell.
            word.classes &= ~kWordsThatInitialsSpell;
        } else if (word.text.size() > 2) {
            // "SMITH, JOHN": a run of capitals is a name, only a short one stands for initials.
            word.shape = Shape::Name;
        }
    }
}

bool isBareNumber(const Word& word) {
    return word.shape == Shape::Number && !word.is(kPostfix);
}

bool isInstitutionalAt(WordSpan words, std::size_t index) {
    return words[index].is(kInstitutionHead | kInstitutionWord) || isBareNumber(words[index]) ||
           (index > 0 && words[index].is(kCompanyEnding));
}

bool hasInstitutionalWord(WordSpan words) {
    // Nearly all words are initials and names that no list knows.
    for (std::size_t i = 0; words.size() > 1 && i < words.size(); ++i) {
        const bool isKnown = words[i].classes != kNoClass || words[i].shape == Shape::Number;
        if (isKnown && (words[i].is(kPreposition) || isInstitutionalAt(words, i))) {
            return true;
        }
    }
    return false;
}

bool isPostfixAt(WordSpan words, std::size_t index, std::size_t nameLength) {
    const Word& word = words[index];
    if (!word.is(kPostfix)) {
        return false;
    }
    if (word.shape != Shape::Capitals) {
        return true;
    }
    const bool isRoman = word.text.find_first_not_of(u"IV") == TextView::npos;
    return (isRoman && (index == 0 || index >= nameLength)) || (index >= nameLength && words[index - 1].isInitials());
}

WordSpan withoutPostfix(WordSpan words, std::size_t nameLength) {
    while (words.size() > 1 && isPostfixAt(words, words.size() - 1, nameLength)) {
        words = words.first(words.size() - 1);
    }
    return words;
}

TextView writtenPostfix(TextView postfix) {
    if (postfix.empty()) {
        return postfix;
    }
    for (const TextView abbreviation : kAbbreviatedPostfixes) {
        if (equalsIgnoringCase(before(postfix, u"."), before(abbreviation, u"."))) {
            return abbreviation;
        }
    }
    return postfix;
}

TextView textOf(WordSpan words) {
    return words.empty() ? TextView() : textOf(words.front(), words.back());
}

PieceKind kindOf(WordSpan words) {
    // A lone "MD" can be the initials of a reversed name, which the reader knows from the place.
    if (words.front().is(kPostfix | kDegree) && (words.front().is(kDegree) || isPostfixAt(words, 0)) &&
        std::all_of(words.begin(), words.end(), [](const Word& word) { return word.is(kPostfix | kDegree); })) {
        return PieceKind::Postfix;
    }
    words = withoutPostfix(words);
    // "Sartre, J.-P. [Paul]"; "Beethoven, L. van".
    while (words.size() > 1 && (words.back().isBracketed || (words.back().isLower() && words.front().isInitials()))) {
        words = words.first(words.size() - 1);
    }
    const auto isInitial = [](const Word& word) { return word.isInitials() || word.shape == Shape::Abbreviation; };
    if (std::all_of(words.begin(), words.end(), isInitial)) {
        return PieceKind::Initials;
    }
    const std::size_t last = words.size() - 1;
    if (last > 0 && words[last].shape == Shape::Capitals && !words[0].isInitials()) {
        return PieceKind::Compact;
    }
    if (last > 0 && words[last].shape == Shape::Initial) {
        return PieceKind::EndsWithInitial;
    }
    if (std::any_of(words.begin(), words.end(), [](const Word& word) { return word.isInitials(); })) {
        return PieceKind::Direct;
    }
    return words.size() == 1 ? PieceKind::Single : PieceKind::Multiple;
}

}  // namespace quorvel::authorwords

#include "elements/title/language.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "elements/title/endings.h"

namespace quorvel::titlelanguage {

namespace {

using titlecase::TitleText;
using titlecase::Word;

constexpr TextView kAddressStarts[] = {u"http:", u"https:", u"www."};

// Endings of words that English does not have, of German, the Scandinavian languages, Dutch and those of the south.
constexpr TextView kForeignEndings[] = {
    u"ung",    u"ungen", u"keit",   u"heit",    u"schaft", u"lich",   u"liche",  u"lichen", u"licher",
    u"isch",   u"ische", u"ischen", u"ischer",  u"ieren",  u"ierung", u"else",   u"elsen",  u"elser",
    u"lig",    u"lige",  u"ligt",   u"igt",     u"tig",    u"skab",   u"skap",   u"iske",   u"iska",
    u"erne",   u"heder", u"heden",  u"ighed",   u"ighet",  u"arna",   u"ningar", u"ningen", u"itet",
    u"iteit",  u"heid",  u"lijk",   u"lijke",   u"schap",  u"atie",   u"aties",  u"ciones", u"idad",
    u"idades", u"idade", u"miento", u"mientos", u"zione",  u"zioni",  u"ismo"};
constexpr std::size_t kShortestWithEnding = 6;

bool isForeignLetter(char16_t unit) {
    return unit >= 0xC0 && unit < 0x250 && unit != u'\u00D7' && unit != u'\u00F7';
}

/// "l'histoire", "d'une": an article that has lost its vowel, in small letters.
bool hasElision(TextView word) {
    return word.size() > 3 && word[1] == u'\'' && (word[0] == u'l' || word[0] == u'd');
}

/// How much a word that no list of languages holds looks foreign: 2 for letters that English words do not have, 1 for
/// an ending.
int foreignLook(const TitleText& title, const Word& word) {
    if (word.known.classes != 0 || word.hasOwnCase || word.isCompound) {
        return 0;
    }
    const TextView lowered = title.lower(word.core);
    const bool hasLetters = word.hasAccents && anyUnit(lowered, isForeignLetter);
    if (word.isLower && (hasLetters || hasElision(lowered))) {
        return 2;
    }
    const bool hasEnding = lowered.size() >= kShortestWithEnding && titleshapes::endsWithAny<kForeignEndings>(lowered);
    return hasEnding ? 1 + (hasLetters ? 1 : 0) : 0;
}

/// What the short words of a title tell of its language.
struct Evidence {
    int english = 0;
    int englishElsewhere = 0;
    int foreign = 0;
    int particles = 0;
    bool hasForeignArticle = false;
};

Evidence evidenceOf(const TitleText& title) {
    using namespace titlewords;
    constexpr WordClasses kAnyLanguage =
        kEnglishWord | kEnglishElsewhere | kFirstArticle | kLanguageParticle | kForeignWord;
    Evidence found;
    for (const Word& word : title.words) {
        if (!word.isPossessive() && !word.known.is(kAnyLanguage)) {
            continue;
        }
        const bool isFirst = &word == &title.words.front();
        if (word.known.is(kEnglishWord) || word.isPossessive()) {
            ++found.english;
        } else if (word.known.is(kEnglishElsewhere)) {
            ++found.englishElsewhere;
        } else if (isFirst && title.words.size() > 1 && word.known.is(kFirstArticle)) {
            found.hasForeignArticle = !title.words[1].known.is(kAfterArticleInEnglish);
        } else if (word.known.is(kLanguageParticle)) {
            found.particles += word.isLower || isFirst ? 1 : 0;
        } else if (word.known.is(kForeignWord) && word.isLower) {
            ++found.foreign;
        }
    }
    return found;
}

bool readsAsEnglish(const TitleText& title) {
    constexpr int kEnough = 2;
    const Evidence found = evidenceOf(title);
    if (found.english > 0) {
        return found.foreign + (found.hasForeignArticle ? 1 : 0) <= found.english + found.englishElsewhere;
    }
    if (found.foreign > 0) {
        return false;
    }
    int look = found.hasForeignArticle ? 1 : 0;
    for (const Word& word : title.words) {
        look += foreignLook(title, word);
    }
    if (look >= kEnough) {
        return false;
    }
    if (found.englishElsewhere > 0) {
        return true;
    }
    return !found.hasForeignArticle && found.particles < 2 &&
           (found.particles == 0 || !anyUnit(title.text, isForeignLetter));
}

}  // namespace

bool hasForeignSpelling(const TitleText& title) {
    return title.hasForeignSpelling;
}

bool isOld(const TitleText& title) {
    return hasForeignSpelling(title) || (title.classes & titlewords::kOldWord) != 0;
}

bool isEnglish(const TitleText& title) {
    return !hasForeignSpelling(title) && readsAsEnglish(title);
}

bool isPreformatted(TextView title) {
    return std::none_of(title.begin(), title.end(), [](char16_t unit) { return isSmallLetter(unit); }) ||
           startsWithOneOfIgnoringCase(title, kAddressStarts);
}

}  // namespace quorvel::titlelanguage

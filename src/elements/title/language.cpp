#include "elements/title/language.h"

#include <algorithm>

#include "core/letter_case.h"

namespace quorvel::titlelanguage {

namespace {

using titlecase::TitleText;
using titlecase::Word;

constexpr TextView kForeignSpellings[] = {u"\u0161", u"trz", u"sz"};
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

/// What the words of a title tell of its language. A word of another language weighs two, what only looks like one
/// weighs one.
struct Evidence {
    int english = 0;
    int englishElsewhere = 0;
    int foreign = 0;
    int particles = 0;
    bool hasForeignArticle = false;
};

int foreignWeight(const TitleText& title, const Word& word) {
    using namespace titlewords;
    const TextView lowered = title.lower(word.core);
    if (word.known.is(kForeignWord)) {
        return word.isLower ? 2 : 0;
    }
    if (word.known.classes != 0 || word.hasOwnCase || word.isCompound) {
        return 0;
    }
    if (word.isLower && (hasElision(lowered) || (word.hasAccents && anyUnit(lowered, isForeignLetter)))) {
        return 2;
    }
    const bool hasEnding = lowered.size() >= kShortestWithEnding && endsWithOneOf(lowered, kForeignEndings);
    return hasEnding ? 1 + (word.hasAccents && anyUnit(lowered, isForeignLetter) ? 1 : 0) : 0;
}

Evidence evidenceOf(const TitleText& title) {
    using namespace titlewords;
    Evidence found;
    for (const Word& word : title.words) {
        const bool isFirst = &word == &title.words.front();
        if (word.known.is(kEnglishWord) || word.isPossessive()) {
            ++found.english;
        } else if (word.known.is(kEnglishElsewhere)) {
            ++found.englishElsewhere;
        } else if (isFirst && title.words.size() > 1 && word.known.is(kFirstArticle)) {
            found.hasForeignArticle = !title.words[1].known.is(kAfterArticleInEnglish);
            found.foreign += found.hasForeignArticle ? 1 : 0;
        } else if (word.known.is(kLanguageParticle)) {
            found.particles += word.isLower || isFirst ? 1 : 0;
        } else {
            found.foreign += foreignWeight(title, word);
        }
    }
    return found;
}

bool readsAsEnglish(const TitleText& title) {
    const Evidence found = evidenceOf(title);
    if (found.english > 0) {
        return found.foreign <= 2 * (found.english + found.englishElsewhere);
    }
    if (found.foreign > 1) {
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
    // Few titles hold the letters in which these end.
    return anyUnit(title.lowered, [](char16_t unit) { return unit == u'z' || unit == u'\u0161'; }) &&
           containsOneOf(title.lowered, kForeignSpellings);
}

bool isOld(const TitleText& title) {
    return hasForeignSpelling(title) || std::any_of(title.words.begin(), title.words.end(), [](const Word& word) {
               return word.known.is(titlewords::kOldWord);
           });
}

bool isEnglish(const TitleText& title) {
    return !hasForeignSpelling(title) && readsAsEnglish(title);
}

bool isPreformatted(TextView title) {
    return startsWithOneOfIgnoringCase(title, kAddressStarts) ||
           std::none_of(title.begin(), title.end(), isSmallLetter);
}

}  // namespace quorvel::titlelanguage

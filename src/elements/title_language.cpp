#include "elements/title_language.h"

#include <algorithm>

#include "core/letter_case.h"
#include "elements/title_case.h"
#include "elements/word_set.h"

namespace quorvel::titlelanguage {

namespace {

constexpr TextView kForeignSpellings[] = {u"\u0161", u"trz", u"sz"};
constexpr TextView kOldWords[] = {u"doe", u"partes", u"realmes", u"whereunto", u"worlde"};
constexpr TextView kAddressStarts[] = {u"http:", u"https:", u"www."};

constexpr TextView kEnglishWords[] = {u"the",  u"of",   u"and", u"in",   u"to",  u"for",   u"on",   u"with",
                                      u"an",   u"from", u"by",  u"at",   u"is",  u"as",    u"are",  u"how",
                                      u"what", u"why",  u"its", u"his",  u"her", u"their", u"that", u"this",
                                      u"your", u"our",  u"you", u"into", u"or"};

// Words that English titles do not hold.
constexpr TextView kForeignWords[] = {
    // French
    u"les", u"une", u"dans", u"sur", u"pour", u"avec", u"aux", u"chez", u"être", u"leur", u"leurs", u"ou", u"sous",
    u"cette",
    // German
    u"und", u"ein", u"eine", u"einer", u"über", u"von", u"zu", u"für", u"mit", u"dem", u"des", u"im", u"zur", u"zum",
    u"auf", u"nach", u"bei", u"aus", u"nicht", u"durch",
    // Spanish
    u"los", u"las", u"del", u"por", u"con", u"una", u"para", u"su", u"sobre",
    // Italian
    u"il", u"gli", u"di", u"della", u"delle", u"nel", u"nella", u"dei", u"degli", u"dello", u"dal", u"alla", u"sul",
    // Portuguese
    u"os", u"das", u"uma", u"em", u"na", u"pelo", u"ao",
    // Dutch
    u"het", u"een", u"voor", u"met", u"op", u"van", u"uit", u"naar",
    // Latin
    u"et", u"ex", u"cum", u"sive", u"ad", u"contra", u"adversus",
    // Several of them
    u"la", u"le", u"el", u"de", u"du", u"da", u"do", u"dos", u"der", u"den", u"das", u"die", u"et", u"e", u"y", u"en",
    u"se", u"que", u"lo"};

// Of these, the ones that stand in names inside English titles, too: one of them shows nothing.
constexpr TextView kNameParticles[] = {u"de",  u"du",  u"di",     u"da",  u"del", u"della", u"la",  u"le",
                                       u"el",  u"van", u"von",    u"der", u"den", u"los",   u"las", u"dos",
                                       u"das", u"do",  u"die",    u"e",   u"y",   u"en",    u"et",  u"ad",
                                       u"ex",  u"lo",  u"contra", u"des", u"se",  u"na",    u"op",  u"aux"};
// Articles that begin a title, and what follows them in English names of places.
constexpr TextView kFirstArticles[] = {u"la", u"le",  u"les", u"el",  u"los", u"las",
                                       u"il", u"der", u"das", u"een", u"het", u"une"};
constexpr TextView kAfterArticleInEnglish[] = {u"angeles", u"vegas",    u"niño",     u"nino",   u"niña",
                                               u"jolla",   u"salvador", u"paso",     u"mancha", u"alamos",
                                               u"guin",    u"carré",    u"corbusier"};

bool isAfterArticleInEnglish(TextView word) {
    static const WordSet set(kAfterArticleInEnglish);
    return set.holds(word);
}

bool isEnglishWord(TextView word) {
    static const WordSet set(kEnglishWords);
    return set.holds(word);
}

bool isFirstArticle(TextView word) {
    static const WordSet set(kFirstArticles);
    return set.holds(word);
}

bool isForeignWord(TextView word) {
    static const WordSet set(kForeignWords);
    return set.holds(word);
}

bool isNameParticle(TextView word) {
    static const WordSet set(kNameParticles);
    return set.holds(word);
}

bool isOldWord(TextView word) {
    static const WordSet set(kOldWords);
    return set.holds(word);
}

bool hasForeignSpellingIn(TextView lowered) {
    return std::any_of(std::begin(kForeignSpellings), std::end(kForeignSpellings),
                       [&](TextView spelling) { return contains(lowered, spelling); });
}

bool hasOldWord(TextView lowered, const std::vector<titlecase::Word>& words) {
    return std::any_of(words.begin(), words.end(), [&](const titlecase::Word& word) {
        return isOldWord(lowered.substr(word.core.begin, word.core.end - word.core.begin));
    });
}

bool readsAsEnglish(TextView title, TextView lowered, const std::vector<titlecase::Word>& words) {
    int english = 0;
    int foreign = 0;
    int particles = 0;
    const bool hasAccents =
        std::any_of(title.begin(), title.end(), [](char16_t unit) { return unit >= 0xC0 && unit < 0x250; });
    for (std::size_t i = 0; i < words.size(); ++i) {
        const titlecase::Range core = words[i].core;
        const TextView word = lowered.substr(core.begin, core.end - core.begin);
        const bool isTyped = title.substr(core.begin, core.end - core.begin) == word;
        if (isEnglishWord(word) || titlecase::isPossessive(word)) {
            ++english;
        } else if (i == 0 && words.size() > 1 && isFirstArticle(word)) {
            const titlecase::Range next = words[1].core;
            foreign += isAfterArticleInEnglish(lowered.substr(next.begin, next.end - next.begin)) ? 0 : 1;
        } else if (isNameParticle(word)) {
            particles += isTyped || i == 0 ? 1 : 0;
        } else if (isForeignWord(word) && isTyped) {
            ++foreign;
        }
    }
    if (english > 0) {
        return foreign <= english;
    }
    return foreign == 0 && particles < 2 && (particles == 0 || !hasAccents);
}

}  // namespace

bool hasForeignSpelling(TextView title) {
    return hasForeignSpellingIn(toLower(title));
}

bool isOld(TextView title) {
    const Text lowered = toLower(title);
    return hasForeignSpellingIn(lowered) || hasOldWord(lowered, titlecase::wordsOf(title));
}

bool isEnglish(TextView title) {
    const Text lowered = toLower(title);
    return !hasForeignSpellingIn(lowered) && readsAsEnglish(title, lowered, titlecase::wordsOf(title));
}

bool isRecased(TextView title, const std::vector<titlecase::Word>& words) {
    const Text lowered = toLower(title);
    return !isPreformatted(title) && !hasForeignSpellingIn(lowered) && !hasOldWord(lowered, words) &&
           readsAsEnglish(title, lowered, words);
}

bool isPreformatted(TextView title) {
    const bool isAddress = std::any_of(std::begin(kAddressStarts), std::end(kAddressStarts),
                                       [&](TextView start) { return startsWithIgnoringCase(title, start); });
    return isAddress || std::none_of(title.begin(), title.end(), titlecase::isSmallLetter);
}

}  // namespace quorvel::titlelanguage

#include "elements/title/language.h"

#include <algorithm>

#include "core/letter_case.h"

namespace quorvel::titlelanguage {

namespace {

using titlecase::TitleText;
using titlecase::Word;

constexpr TextView kForeignSpellings[] = {u"\u0161", u"trz", u"sz"};
constexpr TextView kAddressStarts[] = {u"http:", u"https:", u"www."};

bool readsAsEnglish(const TitleText& title) {
    using namespace titlewords;
    int english = 0;
    int foreign = 0;
    int particles = 0;
    for (const Word& word : title.words) {
        const bool isFirst = &word == &title.words.front();
        if (word.known.is(kEnglishWord) || word.isPossessive()) {
            ++english;
        } else if (isFirst && title.words.size() > 1 && word.known.is(kFirstArticle)) {
            foreign += title.words[1].known.is(kAfterArticleInEnglish) ? 0 : 1;
        } else if (word.known.is(kLanguageParticle)) {
            particles += word.isLower || isFirst ? 1 : 0;
        } else if (word.known.is(kForeignWord) && word.isLower) {
            ++foreign;
        }
    }
    if (english > 0) {
        return foreign <= english;
    }
    const auto isAccented = [](char16_t unit) { return unit >= 0xC0 && unit < 0x250; };
    return foreign == 0 && particles < 2 &&
           (particles == 0 || std::none_of(title.text.begin(), title.text.end(), isAccented));
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

#include "elements/title_short.h"

#include <vector>

#include "core/letter_case.h"

namespace quorvel::titlecase {

namespace {

constexpr TextView kLeadingArticles[] = {u"A ", u"An ", u"The "};

constexpr std::size_t kMostWords = 4;

// A shortened title does not end in one of these.
constexpr TextView kSmallWords[] = {
    // English
    u"a",
    u"an",
    u"and",
    u"as",
    u"at",
    u"by",
    u"for",
    u"from",
    u"in",
    u"into",
    u"of",
    u"on",
    u"or",
    u"the",
    u"to",
    u"with",
    // French, Spanish, Italian, German
    u"de",
    u"du",
    u"des",
    u"la",
    u"le",
    u"les",
    u"et",
    u"del",
    u"el",
    u"los",
    u"y",
    u"di",
    u"della",
    u"e",
    u"il",
    u"der",
    u"die",
    u"das",
    u"und",
    u"von",
    u"zur",
};

}  // namespace

Text shortTitle(TextView title) {
    TextView text = before(title, u": ");
    for (const TextView article : kLeadingArticles) {
        if (startsWith(text, article)) {
            text.remove_prefix(article.size());
            break;
        }
    }
    std::vector<Text> words = split(text, u" ");
    if (words.size() <= kMostWords) {
        return Text(text);
    }
    words.resize(kMostWords);
    while (words.size() > 1 && isOneOf(toLower(words.back()), kSmallWords)) {
        words.pop_back();
    }
    Text shortened = join(words, u" ");
    shortened.erase(shortened.find_last_not_of(u",;") + 1);
    return shortened;
}

}  // namespace quorvel::titlecase

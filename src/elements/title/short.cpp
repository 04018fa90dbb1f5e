#include "elements/title/short.h"

#include <algorithm>
#include <vector>

#include "core/letter_case.h"
#include "elements/words/lexicon.h"

namespace quorvel {

namespace {

constexpr TextView kLeadingArticles[] = {u"A ", u"An ", u"The "};

constexpr std::size_t kMostWords = 4;

bool isSmall(TextView word) {
    return words::Lexicon::instance().find(word, toLower(word)).is(titlewords::kInsideShortTitle);
}

/// How many words the short title keeps.
std::size_t keptWords(const std::vector<Text>& words) {
    for (std::size_t kept = kMostWords; kept > 0; --kept) {
        const bool endsPhrase = isSmall(words[kept]) || endsWith(words[kept - 1], u",");
        if (endsPhrase && !isSmall(words[kept - 1])) {
            return kept;
        }
    }
    std::size_t kept = kMostWords;
    while (kept > 1 && isSmall(words[kept - 1])) {
        --kept;
    }
    return kept;
}

/// With the closing mark of a quotation that begins in the first units of the text.
std::size_t behindQuotation(TextView text, std::size_t length) {
    const TextView kept = text.substr(0, length);
    const std::size_t opening = kept.find_last_of(u"\u201C\u2018");
    if (opening == TextView::npos) {
        return length;
    }
    const char16_t closing = text[opening] == u'\u201C' ? u'\u201D' : u'\u2019';
    const std::size_t end = text.find(closing, opening);
    return end == TextView::npos ? length : std::max(length, end + 1);
}

}  // namespace

Text shortTitle(TextView title) {
    TextView text = before(before(title, u": "), u"; ");
    for (const TextView article : kLeadingArticles) {
        if (startsWith(text, article)) {
            text.remove_prefix(article.size());
            break;
        }
    }
    const std::vector<Text> words = split(text, u" ");
    if (words.size() <= kMostWords) {
        return Text(text);
    }
    std::size_t length = 0;
    for (std::size_t i = 0, kept = keptWords(words); i < kept; ++i) {
        length += words[i].size() + (i > 0 ? 1 : 0);
    }
    text = text.substr(0, behindQuotation(text, length));
    return Text(text.substr(0, text.find_last_not_of(u",;") + 1));
}

}  // namespace quorvel

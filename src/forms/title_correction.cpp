#include "forms/title_correction.h"

#include <algorithm>
#include <optional>

#include "core/letter_case.h"

namespace quorvel::forms {

namespace {

using Words = std::vector<TitleWord>;

/// More pairs of words are not compared: the title counts as a new one.
constexpr std::size_t kMostPairs = 250'000;

Words wordsOf(TextView text) {
    Words words;
    std::size_t begin = 0;
    while ((begin = text.find_first_not_of(u' ', begin)) != TextView::npos) {
        const std::size_t end = std::min(text.find(u' ', begin), text.size());
        words.push_back({begin, end});
        begin = end;
    }
    return words;
}

TextView slice(TextView text, const TitleWord& word) {
    return text.substr(word.begin, word.end - word.begin);
}

/// For each new word the old one that it was: the same letters in any case, in the longest order that both have.
class Alignment {
public:
    Alignment(const CorrectedTitle& shown, TextView typed, const Words& words)
        : mOld(foldedWords(shown.text, shown.words)),
          mNew(foldedWords(typed, words)),
          mOldOf(mNew.size()),
          mIsReplacement(mNew.size()) {
        std::size_t first = 0;
        std::size_t oldEnd = mOld.size();
        std::size_t newEnd = mNew.size();
        for (; first < std::min(oldEnd, newEnd) && mOld[first] == mNew[first]; ++first) {
            pair(first, first);
        }
        for (; std::min(oldEnd, newEnd) > first && mOld[oldEnd - 1] == mNew[newEnd - 1]; --oldEnd, --newEnd) {
            pair(oldEnd - 1, newEnd - 1);
        }
        alignBetween(first, oldEnd, newEnd);
        findReplacements();
    }

    const std::optional<std::size_t>& oldOf(std::size_t word) const { return mOldOf[word]; }
    /// Whether half of the words or more stood there before; otherwise it is another title.
    bool isSameTitle() const { return mPairs > 0 && 2 * mPairs >= mNew.size(); }

    /// Whether the word stands for an old one: between the same neighbours there are as many words as there were.
    bool isReplacement(std::size_t word) const { return mIsReplacement[word]; }

private:
    static std::vector<Text> foldedWords(TextView text, const Words& words) {
        std::vector<Text> folded;
        folded.reserve(words.size());
        for (const TitleWord& word : words) {
            folded.push_back(toLower(slice(text, word)));
        }
        return folded;
    }

    void pair(std::size_t oldWord, std::size_t newWord) {
        mOldOf[newWord] = oldWord;
        ++mPairs;
    }

    /// The longest common subsequence.
    void alignBetween(std::size_t first, std::size_t oldEnd, std::size_t newEnd) {
        const std::size_t rows = oldEnd - first;
        const std::size_t columns = newEnd - first;
        if (rows == 0 || columns == 0 || rows > kMostPairs / columns) {
            return;
        }
        const std::size_t width = columns + 1;
        std::vector<std::size_t> longest((rows + 1) * width);
        for (std::size_t row = rows; row-- > 0;) {
            for (std::size_t column = columns; column-- > 0;) {
                longest[row * width + column] =
                    mOld[first + row] == mNew[first + column]
                        ? longest[(row + 1) * width + column + 1] + 1
                        : std::max(longest[(row + 1) * width + column], longest[row * width + column + 1]);
            }
        }
        for (std::size_t row = 0, column = 0; row < rows && column < columns;) {
            if (mOld[first + row] == mNew[first + column]) {
                pair(first + row++, first + column++);
            } else if (longest[(row + 1) * width + column] >= longest[row * width + column + 1]) {
                ++row;
            } else {
                ++column;
            }
        }
    }

    void findReplacements() {
        std::size_t oldBegin = 0;
        std::size_t begin = 0;
        for (std::size_t end = 0; end <= mNew.size(); ++end) {
            if (end < mNew.size() && !mOldOf[end]) {
                continue;
            }
            const std::size_t oldEnd = end < mNew.size() ? *mOldOf[end] : mOld.size();
            std::fill(mIsReplacement.begin() + static_cast<std::ptrdiff_t>(begin),
                      mIsReplacement.begin() + static_cast<std::ptrdiff_t>(end), oldEnd - oldBegin == end - begin);
            oldBegin = oldEnd + 1;
            begin = end + 1;
        }
    }

    std::vector<Text> mOld;
    std::vector<Text> mNew;
    std::vector<std::optional<std::size_t>> mOldOf;
    std::vector<bool> mIsReplacement;
    std::size_t mPairs = 0;
};

}  // namespace

bool CorrectedTitle::isCorrected() const {
    return std::any_of(words.begin(), words.end(), [](const TitleWord& word) { return word.isCorrected; });
}

CorrectedTitle correct(const CorrectedTitle& shown, TextView typed, TextView ruled) {
    CorrectedTitle title = {Text(typed), wordsOf(typed)};
    const TextView rule = ruled.size() == typed.size() ? ruled : typed;
    const Alignment alignment(shown, typed, title.words);
    for (std::size_t i = 0; i < title.words.size(); ++i) {
        TitleWord& word = title.words[i];
        const TextView own = slice(typed, word);
        const std::optional<std::size_t> old = alignment.oldOf(i);
        if (alignment.isSameTitle() && old) {
            const TitleWord& before = shown.words[*old];
            const bool isAsShown = slice(shown.text, before) == own;
            word.isKept = before.isKept || !isAsShown;
            word.isCorrected = before.isCorrected && isAsShown;
        } else {
            word.isKept = alignment.isSameTitle() && alignment.isReplacement(i);
        }
        if (!word.isKept && slice(rule, word) != own) {
            word.isCorrected = true;
            title.text.replace(word.begin, own.size(), slice(rule, word));
        }
    }
    return title;
}

}  // namespace quorvel::forms

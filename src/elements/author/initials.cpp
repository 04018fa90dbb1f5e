#include "elements/author/initials.h"

#include <algorithm>
#include <cstddef>

#include "elements/author/words.h"

namespace quorvel::authorwords {

namespace {

bool isHyphen(char16_t unit) {
    return unit == u'-' || unit == u'\u2010' || unit == u'\u2011';
}

/// How many code units the first letter has: a surrogate pair has two, and combining marks stay with
/// their letter.
std::size_t firstLetter(TextView word) {
    std::size_t size = word.size() > 1 && word[0] >= u'\xD800' && word[0] <= u'\xDBFF' ? 2 : 1;
    while (size < word.size() && word[size] >= u'\u0300' && word[size] <= u'\u036F') {
        ++size;
    }
    return size;
}

/// "DT": initials that stand without stops and blanks.
bool isRunOfCapitals(TextView firstNames) {
    return std::all_of(firstNames.begin(), firstNames.end(),
                       [](char16_t unit) { return isCapital(unit) || isHyphen(unit); });
}

class InitialsWriter {
public:
    /// Appends to the result.
    InitialsWriter(Text& result, bool usesPeriods)
        : mResult(result), mBegin(result.size()), mUsesPeriods(usesPeriods) {}

    /// A word of the first names: "John", "Jean-Paul", "J.-P.", "A.T.", "[Paul]", "de".
    void add(TextView word) {
        // "Beauvoir, Simone de" is "Beauvoir, S. de".
        const bool isParticle = word.front() >= u'a' && wordOf(word).is(kParticle);
        if (word.front() == u'[' || isParticle) {
            addWhole(word);
        } else {
            addLetters(word);
        }
    }

private:
    void addWhole(TextView word) {
        if (!isEmpty()) {
            mResult.push_back(u' ');
        }
        mResult.append(word);
        mLastIsWhole = true;
    }

    void addLetters(TextView word) {
        bool isFirstOfWord = true;
        bool beginsPart = true;
        bool afterHyphen = false;
        for (std::size_t i = 0; i < word.size(); ++i) {
            if (isHyphen(word[i]) || word[i] == u'.') {
                afterHyphen = isHyphen(word[i]);
                beginsPart = true;
                continue;
            }
            if (beginsPart) {
                const std::size_t size = firstLetter(word.substr(i));
                addLetter(word.substr(i, size), afterHyphen && !isFirstOfWord);
                isFirstOfWord = false;
                beginsPart = false;
                afterHyphen = false;
                i += size - 1;
            }
        }
    }

    void addLetter(TextView letter, bool isHyphened) {
        if (mUsesPeriods && !isEmpty()) {
            mResult.push_back(isHyphened ? u'-' : u' ');
        } else if (mLastIsWhole) {
            mResult.push_back(u' ');
        }
        mLastIsWhole = false;
        if (isHyphened && letter.size() == 1) {
            // "Ying-kui" is "Y.-K."
            mResult.push_back(toUpper(letter[0]));
        } else {
            mResult.append(letter);
        }
        if (mUsesPeriods) {
            mResult.push_back(u'.');
        }
    }

    bool isEmpty() const { return mResult.size() == mBegin; }

    Text& mResult;
    std::size_t mBegin;
    bool mUsesPeriods;
    bool mLastIsWhole = false;
};

}  // namespace

void appendInitials(Text& result, TextView firstNames, bool usesPeriods) {
    if (isRunOfCapitals(firstNames)) {
        result.append(firstNames);
        return;
    }
    InitialsWriter initials(result, usesPeriods);
    for (std::size_t from = 0; from < firstNames.size();) {
        std::size_t end = firstNames[from] == u'[' ? firstNames.find(u']', from) : firstNames.find(u' ', from);
        end = std::min(end, firstNames.size());
        if (end < firstNames.size() && firstNames[end] == u']') {
            ++end;
        }
        if (end > from) {
            initials.add(firstNames.substr(from, end - from));
        }
        from = end + (end < firstNames.size() && firstNames[end] == u' ' ? 1 : 0);
    }
}

std::size_t finalParticle(TextView firstNames) {
    const std::size_t blank = firstNames.rfind(u' ');
    const bool isParticle = blank != TextView::npos && blank + 1 < firstNames.size() && firstNames[blank + 1] >= u'a' &&
                            wordOf(firstNames.substr(blank + 1)).is(kParticle);
    return isParticle ? blank + 1 : TextView::npos;
}

}  // namespace quorvel::authorwords

#include "forms/title_letters.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <vector>

#include "core/letter_case.h"
#include "forms/common_ui_functions.h"

namespace quorvel::forms {

namespace {

constexpr TextView kDocumentBegins = u"{\\rtf";

/// What a reader sees of a text, character by character.
struct Character {
    char16_t unit = 0;
    /// Where it stands in the text.
    std::size_t begin = 0;
    std::size_t length = 0;
};

/// Words of RTF that are a character.
struct CharacterWord {
    TextView word;
    char16_t unit;
};
constexpr CharacterWord kCharacterWords[] = {
    {u"lquote", u'\u2018'},    {u"rquote", u'\u2019'}, {u"ldblquote", u'\u201C'},
    {u"rdblquote", u'\u201D'}, {u"endash", u'\u2013'}, {u"emdash", u'\u2014'},
};
/// Of the Windows code page, where it is not Latin 1: what titles have of it.
struct CodePageCharacter {
    std::uint32_t code;
    char16_t unit;
};
constexpr CodePageCharacter kCodePage[] = {
    {0x85, u'\u2026'}, {0x91, u'\u2018'}, {0x92, u'\u2019'}, {0x93, u'\u201C'}, {0x94, u'\u201D'},
    {0x96, u'\u2013'}, {0x97, u'\u2014'}, {0x8A, u'\u0160'}, {0x9A, u'\u0161'}, {0x8C, u'\u0152'},
    {0x9C, u'\u0153'}, {0x8E, u'\u017D'}, {0x9E, u'\u017E'}, {0x9F, u'\u0178'},
};

/// Reads plain text or RTF.
class Reader {
public:
    explicit Reader(TextView text) : mText(text), mIsRtf(startsWith(text, kDocumentBegins)) {}

    std::vector<Character> characters() {
        std::vector<Character> all;
        while (mAt < mText.size()) {
            const std::size_t begin = mAt;
            if (const std::optional<char16_t> unit = next(); unit) {
                all.push_back({*unit, begin, mAt - begin});
            }
        }
        return all;
    }

private:
    std::optional<char16_t> next() {
        const char16_t unit = mText[mAt++];
        if (!mIsRtf) {
            return unit;
        }
        if (unit == u'{' || unit == u'}' || unit == u'\r' || unit == u'\n') {
            return std::nullopt;
        }
        return unit == u'\\' ? control() : std::optional(unit);
    }

    /// What stands behind a backslash.
    std::optional<char16_t> control() {
        if (mAt == mText.size()) {
            return std::nullopt;
        }
        if (!isAsciiLetter(mText[mAt])) {
            const char16_t sign = mText[mAt++];
            return sign == u'\'' ? codePageCharacter() : sign == u'~' ? u' ' : sign;
        }
        const TextView word = take([](char16_t unit) { return isAsciiLetter(unit); });
        const bool isNegative = mAt < mText.size() && mText[mAt] == u'-';
        mAt += isNegative ? 1 : 0;
        const TextView digits = take([](char16_t unit) { return isDigit(unit); });
        if (word == u"u" && !digits.empty()) {
            return unicode(digits, isNegative);
        }
        mAt += mAt < mText.size() && mText[mAt] == u' ' ? 1 : 0;
        const auto* const character = std::find_if(std::begin(kCharacterWords), std::end(kCharacterWords),
                                                   [&](const CharacterWord& row) { return row.word == word; });
        return character != std::end(kCharacterWords) ? std::optional(character->unit) : std::nullopt;
    }

    /// Two hexadecimal digits; any other sign counts as 0.
    char16_t codePageCharacter() {
        constexpr TextView kHexDigits = u"0123456789abcdef";
        std::uint32_t code = 0;
        for (std::size_t end = std::min(mAt + 2, mText.size()); mAt < end; ++mAt) {
            const std::size_t digit = kHexDigits.find(toLower(mText[mAt]));
            code = code * 16 + static_cast<std::uint32_t>(digit != TextView::npos ? digit : 0);
        }
        const auto* const character = std::find_if(std::begin(kCodePage), std::end(kCodePage),
                                                   [&](const CodePageCharacter& row) { return row.code == code; });
        return character != std::end(kCodePage) ? character->unit : static_cast<char16_t>(code);
    }

    /// The number of a character, behind which stands what older readers show for it.
    char16_t unicode(TextView digits, bool isNegative) {
        std::uint32_t number = 0;
        for (const char16_t digit : digits) {
            number = number * 10 + static_cast<std::uint32_t>(digit - u'0');
        }
        mAt += mAt < mText.size() && mText[mAt] == u' ' ? 1 : 0;
        const bool isHex = mText.substr(mAt).starts_with(u"\\'");
        mAt = std::min(mAt + (isHex ? 4 : 1), mText.size());
        return static_cast<char16_t>(isNegative ? 0U - number : number);
    }

    template <class Test>
    TextView take(Test test) {
        const std::size_t begin = mAt;
        while (mAt < mText.size() && test(mText[mAt])) {
            ++mAt;
        }
        return mText.substr(begin, mAt - begin);
    }

    TextView mText;
    std::size_t mAt = 0;
    bool mIsRtf;
};

/// The same letter in any case. Quotation marks inside others change with those.
bool isSame(char16_t one, char16_t other) {
    constexpr TextView kMarks = u"\"'\u2018\u2019\u201C\u201D";
    return toLower(one) == toLower(other) ||
           (kMarks.find(one) != TextView::npos && kMarks.find(other) != TextView::npos);
}

}  // namespace

Text withLettersOf(TextView text, TextView title) {
    const std::vector<Character> shown = Reader(text).characters();
    const auto start = std::search(shown.begin(), shown.end(), title.begin(), title.end(),
                                   [](const Character& one, char16_t other) { return isSame(one.unit, other); });
    if (title.empty() || start == shown.end()) {
        return Text(text);
    }
    const bool isRtf = startsWith(text, kDocumentBegins);
    Text result;
    std::size_t done = 0;
    for (std::size_t i = 0; i < title.size(); ++i) {
        const Character& there = *(start + static_cast<std::ptrdiff_t>(i));
        if (there.unit != title[i] && toLower(there.unit) == toLower(title[i])) {
            result += text.substr(done, there.begin - done);
            result += isRtf ? CommonUIFunctions::escaped(title.substr(i, 1)) : Text(title.substr(i, 1));
            done = there.begin + there.length;
        }
    }
    result += text.substr(done);
    return result;
}

}  // namespace quorvel::forms

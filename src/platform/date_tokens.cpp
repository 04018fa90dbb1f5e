#include "platform/date_tokens.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/months.h"

namespace quorvel {

namespace {

constexpr TextView kBeforeNoon[] = {u"am", u"a"};
constexpr TextView kAfterNoon[] = {u"pm", u"p"};

// The marks between the parts of a date and of a time. Commas and blanks part both.
constexpr TextView kDateMarks = u"/-";
constexpr TextView kTimeMarks = u":.";
constexpr std::size_t kMostDateMarks = 2;

/// The number of a month by its name or short form; 0 for any other word.
int numberOfMonth(TextView word) {
    const auto* const found = std::find_if(std::begin(kMonths), std::end(kMonths), [&](const Month& month) {
        return equalsIgnoringCase(month.name, word) || equalsIgnoringCase(month.shortName(), word);
    });
    return found == std::end(kMonths) ? 0 : static_cast<int>(found - std::begin(kMonths)) + 1;
}

bool isWeekday(TextView word) {
    return std::any_of(std::begin(kWeekdayNames), std::end(kWeekdayNames), [&](TextView name) {
        return equalsIgnoringCase(name, word) || equalsIgnoringCase(name.substr(0, kShortWeekday), word);
    });
}

bool isDateMark(char16_t unit) {
    return kDateMarks.find(unit) != TextView::npos;
}

bool isTimeMark(char16_t unit) {
    return kTimeMarks.find(unit) != TextView::npos;
}

bool isMark(char16_t unit) {
    return unit == u',' || isDateMark(unit) || isTimeMark(unit);
}

/// A run of digits or of letters, else a single character.
TextView nextToken(TextView rest) {
    const auto run = [&](auto belongs) {
        return rest.substr(
            0, static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), belongs) - rest.begin()));
    };
    return isDigit(rest[0]) ? run(isDigit) : isAsciiLetter(rest[0]) ? run(isAsciiLetter) : rest.substr(0, 1);
}

}  // namespace

bool DateTokens::read(TextView text) {
    for (std::size_t from = 0; from < text.size();) {
        const TextView rest = text.substr(from);
        const TextView token = nextToken(rest);
        if (!take(token)) {
            return false;
        }
        from += token.size();
    }
    // A mark has to have something behind it, if only a blank: the platform is as strict.
    return !text.empty() && !isMark(text.back());
}

bool DateTokens::take(TextView token) {
    if (isDigit(token[0])) {
        int value = 0;
        for (const char16_t digit : token) {
            value = value * 10 + (digit - u'0');
        }
        return add({.value = value});
    }
    return isAsciiLetter(token[0]) ? takeWord(token) : takeMark(token[0]);
}

bool DateTokens::takeWord(TextView word) {
    if (const int month = numberOfMonth(word)) {
        return add({.value = month, .isName = true});
    }
    if (isWeekday(word)) {
        return true;
    }
    const bool beforeNoon = isOneOfIgnoringCase(word, kBeforeNoon);
    if ((!beforeNoon && !isOneOfIgnoringCase(word, kAfterNoon)) || mCount == 0 || mHasHalf) {
        return false;
    }
    mHasHalf = true;
    last().half = beforeNoon ? DayHalf::kBeforeNoon : DayHalf::kAfterNoon;
    return true;
}

bool DateTokens::takeMark(char16_t mark) {
    if (mark == u',' || isSpace(mark)) {
        return true;
    }
    if (mCount == 0) {
        return false;
    }
    if (isDateMark(mark)) {
        return ++mDateMarks <= kMostDateMarks;
    }
    if (isTimeMark(mark)) {
        last().isTimePart = true;
        return true;
    }
    return false;
}

bool DateTokens::add(const DateNumber& number) {
    if (mCount == mNumbers.size()) {
        return false;
    }
    mNumbers[mCount++] = number;
    return true;
}

}  // namespace quorvel

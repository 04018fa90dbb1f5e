#include "core/text.h"

#include <algorithm>
#include <charconv>

namespace quorvel {

namespace {

struct CodeUnitRange {
    char16_t first;
    char16_t last;
};

// Space separators (Zs), line breaks and tabs, all read as a blank.
constexpr CodeUnitRange kSpaces[] = {
    {u'\u0009', u'\u000D'}, {u'\u0020', u'\u0020'}, {u'\u0085', u'\u0085'}, {u'\u00A0', u'\u00A0'},
    {u'\u1680', u'\u1680'}, {u'\u2000', u'\u200A'}, {u'\u2028', u'\u2029'}, {u'\u202F', u'\u202F'},
    {u'\u205F', u'\u205F'}, {u'\u3000', u'\u3000'},
};

// Characters that a word processor leaves behind and a reader never sees. The joiners U+200C and
// U+200D are not among them: in several scripts they shape the letters of a name.
constexpr CodeUnitRange kInvisible[] = {
    {u'\u00AD', u'\u00AD'},
    {u'\u200B', u'\u200B'},
    {u'\u2060', u'\u2060'},
    {u'\uFEFF', u'\uFEFF'},
};

template <std::size_t N>
bool isIn(const CodeUnitRange (&ranges)[N], char16_t unit) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [unit](const CodeUnitRange& range) { return range.first <= unit && unit <= range.last; });
}

/// Up to U+1680 only the controls and the signs up to U+00AD can be spaces or invisible.
bool mayNeedCleanUp(char16_t unit) {
    return unit < u' ' || (unit >= u'\u007F' && unit <= u'\u00AD') || unit >= u'\u1680';
}

/// Nothing for the clean-up to do, which is so for nearly every text. May answer no without need.
bool isClean(TextView text) {
    if (text.empty()) {
        return true;
    }
    // No "&&", and as wide as the characters are, so that the compiler can take several at once.
    char16_t any = 0;
    for (std::size_t i = 1; i < text.size(); ++i) {
        const int isDouble = static_cast<int>(text[i - 1] == u' ') & static_cast<int>(text[i] == u' ');
        any = static_cast<char16_t>(any | isDouble | static_cast<int>(mayNeedCleanUp(text[i])));
    }
    return any == 0 && text.front() != u' ' && text.back() != u' ' && !mayNeedCleanUp(text.front());
}

}  // namespace

Text replaceAll(TextView text, TextView find, TextView replacement) {
    Text result;
    std::size_t from = 0;
    if (!find.empty()) {
        for (std::size_t at = text.find(find); at != TextView::npos; at = text.find(find, from)) {
            result.append(text.substr(from, at - from)).append(replacement);
            from = at + find.size();
        }
    }
    return result.append(text.substr(from));
}

bool startsWith(TextView text, TextView prefix) {
    return text.starts_with(prefix);
}

bool endsWith(TextView text, TextView suffix) {
    return text.ends_with(suffix);
}

bool contains(TextView text, TextView part) {
    if (part.empty()) {
        return true;
    }
    // Most texts do not hold what is looked for, and many not even its first character.
    const char16_t first = part.front();
    return anyUnit(text, [first](char16_t unit) { return unit == first; }) && text.find(part) != TextView::npos;
}

bool removePrefix(Text& text, TextView prefix) {
    const bool found = startsWith(text, prefix);
    if (found) {
        text.erase(0, prefix.size());
    }
    return found;
}

bool removeSuffix(Text& text, TextView suffix) {
    const bool found = endsWith(text, suffix);
    if (found) {
        text.resize(text.size() - suffix.size());
    }
    return found;
}

std::vector<Text> split(TextView text, TextView separator) {
    std::vector<Text> pieces;
    std::size_t from = 0;
    if (!separator.empty()) {
        for (std::size_t at = text.find(separator); at != TextView::npos; at = text.find(separator, from)) {
            pieces.emplace_back(text.substr(from, at - from));
            from = at + separator.size();
        }
    }
    pieces.emplace_back(text.substr(from));
    return pieces;
}

Text join(const std::vector<Text>& pieces, TextView separator) {
    Text result;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (i > 0) {
            result.append(separator);
        }
        result.append(pieces[i]);
    }
    return result;
}

bool isSpace(char16_t unit) {
    return isIn(kSpaces, unit);
}

TextView trim(TextView text, TextView signs) {
    const auto isSign = [signs](char16_t unit) {
        return unit == signs.front() || (signs.size() > 1 && signs.find(unit) != TextView::npos);
    };
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && isSign(text[begin])) {
        ++begin;
    }
    while (end > begin && isSign(text[end - 1])) {
        --end;
    }
    return begin == end ? TextView() : text.substr(begin, end - begin);
}

bool consistsOf(TextView text, TextView units) {
    return text.find_first_not_of(units) == TextView::npos;
}

bool isDigits(TextView text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

TextView before(TextView text, TextView separator) {
    return text.substr(0, text.find(separator));
}

Text concatenate(std::initializer_list<TextView> parts) {
    std::size_t size = 0;
    for (const TextView part : parts) {
        size += part.size();
    }
    Text result;
    result.reserve(size);
    for (const TextView part : parts) {
        result.append(part);
    }
    return result;
}

Text decimal(std::int64_t number) {
    char digits[21];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return Text(std::begin(digits), end);
}

Text cleanUp(TextView text) {
    if (isClean(text)) {
        return Text(text);
    }
    Text result;
    result.reserve(text.size());
    for (const char16_t unit : text) {
        // Printable ASCII is nearly all of the input and never in a table but for the blank.
        const bool plain = unit > u' ' && unit < u'\u007F';
        if (plain || (!isSpace(unit) && !isIn(kInvisible, unit))) {
            result.push_back(unit);
        } else if (isSpace(unit) && !result.empty() && result.back() != u' ') {
            result.push_back(u' ');
        }
    }
    removeSuffix(result, u" ");
    return result;
}

void cleanUpInPlace(Text& text) {
    if (!isClean(text)) {
        text = cleanUp(text);
    }
}

}  // namespace quorvel

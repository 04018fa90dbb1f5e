#include "elements/date/time_text.h"

#include <algorithm>

#include "core/letter_case.h"
#include "elements/date/date_text.h"

namespace quorvel {

namespace {

struct HalfOfDay {
    TextView letter;
    TextView written;
};

constexpr HalfOfDay kHalvesOfDay[] = {{u"a", u" a.m."}, {u"p", u" p.m."}};
// What follows the letter; the longer ones come first.
constexpr TextView kEndsOfHalf[] = {u". m.", u".m.", u".m", u"m.", u"m"};

// What may stand around a time and its zone.
constexpr TextView kSignsBefore = u" (,;";
constexpr TextView kSignsBehind = u" ),;";

// Zones that are words; others are a phrase with "Time" at its end, or an abbreviation.
constexpr TextView kZoneWords[] = {u"Eastern", u"Central", u"Mountain", u"Pacific"};
constexpr TextView kTime = u"Time";
constexpr std::size_t kLongestPhrase = 4;
constexpr TextView kGreenwich = u"Z";
constexpr std::size_t kShortestAbbreviation = 2;
constexpr std::size_t kLongestAbbreviation = 5;
// Plus, hyphen, minus.
constexpr TextView kSignsOfOffset = u"+-\u2212";
constexpr std::size_t kLongestOffset = 4;

constexpr int kHours = 24;
constexpr int kMinutesOrSeconds = 60;

template <class Belongs>
std::size_t runLength(TextView text, Belongs belongs) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), belongs) - text.begin());
}

std::size_t digitsAt(TextView text) {
    return runLength(text, isDigit);
}

bool startsWithOneOf(TextView text, TextView signs) {
    return !text.empty() && contains(signs, text.substr(0, 1));
}

/// Whether a time or zone may end in front of this; ".5" are fractions of a second.
bool endsHere(TextView rest) {
    const TextView next = startsWith(rest, u".") ? rest.substr(1) : rest;
    return next.empty() || startsWithOneOf(next, kSignsBehind);
}

/// One or two digits below the limit; 0 when there are none.
std::size_t numberAt(TextView text, int limit, std::size_t fewestDigits) {
    const std::size_t digits = digitsAt(text);
    if (digits < fewestDigits || digits > 2) {
        return 0;
    }
    const int value = digits == 1 ? text[0] - u'0' : 10 * (text[0] - u'0') + (text[1] - u'0');
    return value < limit ? digits : 0;
}

/// ":23" behind the hours, ":58" behind the minutes.
std::size_t colonAndNumberAt(TextView text) {
    const std::size_t digits = startsWith(text, u":") ? numberAt(text.substr(1), kMinutesOrSeconds, 2) : 0;
    return digits == 0 ? 0 : 1 + digits;
}

/// A time at the front of a text.
struct ClockTime {
    /// The length of "10:23" and of the whole "10:23 AM"; 0 when there is no time.
    std::size_t clock = 0;
    std::size_t whole = 0;
    /// How the half of the day is written; empty when none is there.
    TextView half;
};

ClockTime clockTimeAt(TextView text) {
    const std::size_t hours = numberAt(text, kHours + 1, 1);
    if (hours == 0) {
        return {};
    }
    const std::size_t minutes = colonAndNumberAt(text.substr(hours));
    const std::size_t seconds = minutes == 0 ? 0 : colonAndNumberAt(text.substr(hours + minutes));
    const std::size_t clock = hours + minutes + seconds;
    const std::size_t blank = startsWith(text.substr(clock), u" ") ? 1 : 0;
    for (const HalfOfDay& half : kHalvesOfDay) {
        const TextView letter = text.substr(clock + blank);
        if (!startsWithIgnoringCase(letter, half.letter)) {
            continue;
        }
        for (const TextView ending : kEndsOfHalf) {
            const TextView rest = letter.substr(half.letter.size());
            if (startsWithIgnoringCase(rest, ending) && endsHere(rest.substr(ending.size()))) {
                return {clock, clock + blank + half.letter.size() + ending.size(), half.written};
            }
        }
    }
    return minutes > 0 && endsHere(text.substr(clock)) ? ClockTime{clock, clock, {}} : ClockTime();
}

/// "+2", "-0500", "+05:30"
std::size_t offsetAt(TextView text) {
    if (!startsWithOneOf(text, kSignsOfOffset)) {
        return 0;
    }
    const std::size_t digits = digitsAt(text.substr(1));
    if (digits == 0 || digits > kLongestOffset) {
        return 0;
    }
    const std::size_t length = 1 + digits + colonAndNumberAt(text.substr(1 + digits));
    return endsHere(text.substr(length)) ? length : 0;
}

std::size_t wordAt(TextView text) {
    return runLength(text, isCasedLetter);
}

/// "Pacific Daylight Time"
std::size_t phraseAt(TextView text) {
    std::size_t length = 0;
    for (std::size_t words = 0; words < kLongestPhrase; ++words) {
        const TextView word = text.substr(length, wordAt(text.substr(length)));
        length += word.size();
        if (word.empty() || toUpper(word[0]) != word[0]) {
            return 0;
        }
        if (word == kTime) {
            return words > 0 && endsHere(text.substr(length)) ? length : 0;
        }
        if (!startsWith(text.substr(length), u" ")) {
            return 0;
        }
        ++length;
    }
    return 0;
}

/// "PDT", "Z", "UTC+2", "GMT -05:00"
std::size_t abbreviationAt(TextView text) {
    const TextView word = text.substr(0, wordAt(text));
    const bool isAbbreviation =
        word == kGreenwich || (word.size() >= kShortestAbbreviation && word.size() <= kLongestAbbreviation &&
                               toUpper(word) == word && !isMonth(word));
    if (!isAbbreviation) {
        return 0;
    }
    const TextView rest = text.substr(word.size());
    const std::size_t blank = startsWith(rest, u" ") ? 1 : 0;
    const std::size_t offset = offsetAt(rest.substr(blank));
    if (offset > 0) {
        return word.size() + blank + offset;
    }
    return endsHere(rest) ? word.size() : 0;
}

std::size_t zoneAt(TextView text) {
    if (const std::size_t phrase = phraseAt(text); phrase > 0) {
        return phrase;
    }
    for (const TextView word : kZoneWords) {
        if (startsWith(text, word) && endsHere(text.substr(word.size()))) {
            return word.size();
        }
    }
    return std::max(abbreviationAt(text), offsetAt(text));
}

}  // namespace

std::optional<TimeInText> findTime(TextView text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at > 0 && !contains(kSignsBefore, text.substr(at - 1, 1))) {
            continue;
        }
        const std::size_t length = clockTimeAt(text.substr(at)).whole;
        if (length == 0) {
            continue;
        }
        TimeInText found{text.substr(0, at), text.substr(at, length), {}, text.substr(at + length)};
        const std::size_t blank = startsWith(found.after, u" ") ? 1 : 0;
        if (const std::size_t zone = zoneAt(found.after.substr(blank)); zone > 0) {
            found.zone = found.after.substr(blank, zone);
            found.after.remove_prefix(blank + zone);
        }
        return found;
    }
    return std::nullopt;
}

Text withHalfOfDay(TextView time) {
    const ClockTime found = clockTimeAt(time);
    return found.half.empty() ? Text(time)
                              : concatenate({time.substr(0, found.clock), found.half, time.substr(found.whole)});
}

}  // namespace quorvel

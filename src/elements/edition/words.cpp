#include "elements/edition/words.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "core/common_model_processing_functions.h"
#include "core/letter_case.h"

namespace quorvel::editionwords {

namespace {

// From "first" on.
constexpr TextView kNumberWords[] = {
    u"first",     u"second",    u"third",       u"fourth",     u"fifth",      u"sixth",      u"seventh",
    u"eighth",    u"ninth",     u"tenth",       u"eleventh",   u"twelfth",    u"thirteenth", u"fourteenth",
    u"fifteenth", u"sixteenth", u"seventeenth", u"eighteenth", u"nineteenth", u"twentieth",
};
constexpr std::size_t kUnits = 9;
// From twenty on, before "-ieth" and "y-".
constexpr TextView kTens[] = {u"twent", u"thirt", u"fort", u"fift", u"sixt", u"sevent", u"eight", u"ninet"};
constexpr std::size_t kMostDigits = 3;

constexpr TextView kEditionWords[] = {u"ed", u"ed.", u"edn", u"edn.", u"edition"};
constexpr TextView kEd = u"ed.";
constexpr TextView kEditor = u"Ed.";
constexpr TextView kSignsBehind = u",;";

struct Abbreviation {
    TextView word;
    TextView leading;
    TextView behindNumber;
};

constexpr Abbreviation kAbbreviations[] = {
    // "1st ed., New York": behind a number it may be part of a name.
    {u"new", u"New", u""},           {u"rev", u"Rev.", u"rev."},           {u"rev.", u"Rev.", u"rev."},
    {u"revised", u"Rev.", u"rev."},  {u"abr", u"Abr.", u"abr."},           {u"abr.", u"Abr.", u"abr."},
    {u"abridged", u"Abr.", u"abr."}, {u"facsim.", u"Facsim.", u"facsim."}, {u"facsimile", u"Facsim.", u"facsim."},
};

constexpr TextView kNoEdBehind[] = {
    u"ed.",
    u"introd.",
    u"publication no",
    u"vers.",
    // Statements that are complete as they stand: "Kindle version", "6. print.", "3rd printing", "2. Aufl.",
    // "2e \u00E9d.", "2a edici\u00F3n", "Rpt. in".
    // "Rev. by Jane Smith".
    u" by ",
    u"version",
    u"print.",
    u"printing",
    u"impression",
    u"aufl",
    u"\u00E9d",
    u"edici",
    u"edizion",
    u"\u0438\u0437\u0434",
    u"rpt. in",
    u"rpt. of",
    u"trans. of",
    u"reprinted",
};

constexpr TextView kRevisedBy[] = {u"rev. by ", u"revised by "};
constexpr TextView kVolumesPrefixes[] = {u" in ", u", "};
constexpr TextView kVolumesWord = u" vol";

constexpr TextView kFacsimileMarks[] = {u"facsim.", u"facsimile"};
constexpr TextView kGeneralEditor = u"gen.";
constexpr TextView kFacsimile = u"Facsim.";
constexpr std::size_t kDigitsOfYear = 4;
constexpr TextView kSignsAroundYear = u" .,;()[]";

/// The first year of four digits, or of such a range, that no other digit touches.
TextView yearIn(TextView text) {
    std::size_t begin = 0;
    while ((begin = text.find_first_of(kDigits, begin)) != TextView::npos) {
        const std::size_t end = std::min(text.find_first_not_of(u"0123456789-", begin), text.size());
        const TextView year = trim(text.substr(begin, end - begin), u"-");
        if (year.size() >= kDigitsOfYear && isDigits(year.substr(0, kDigitsOfYear)) &&
            (year.size() == kDigitsOfYear || year[kDigitsOfYear] == u'-')) {
            return year;
        }
        begin = end;
    }
    return {};
}

/// The ordinal number that is spelled in words, "twenty-first"; 0 for any other text.
unsigned spelledOrdinal(TextView word) {
    const auto indexIn = [](TextView text, std::span<const TextView> words) {
        const auto found =
            std::find_if(words.begin(), words.end(), [&](TextView known) { return equalsIgnoringCase(text, known); });
        return found == words.end() ? 0U : static_cast<unsigned>(found - words.begin()) + 1;
    };
    if (const unsigned number = indexIn(word, kNumberWords); number > 0) {
        return number;
    }
    for (std::size_t i = 0; i < std::size(kTens); ++i) {
        const unsigned tens = 10 * (static_cast<unsigned>(i) + 2);
        if (!startsWithIgnoringCase(word, kTens[i])) {
            continue;
        }
        const TextView rest = word.substr(kTens[i].size());
        const unsigned units =
            rest.starts_with(u"y-") ? indexIn(rest.substr(2), std::span(kNumberWords).first(kUnits)) : 0;
        return units > 0 ? tens + units : equalsIgnoringCase(rest, u"ieth") ? tens : 0;
    }
    return 0;
}

}  // namespace

TextView withoutSigns(TextView word) {
    const std::size_t last = word.find_last_not_of(kSignsBehind);
    return word.substr(0, last == TextView::npos ? 0 : last + 1);
}

Text ordinal(TextView word) {
    const std::size_t digits = std::min(word.find_first_not_of(kDigits), word.size());
    if (digits == 0) {
        const unsigned number = spelledOrdinal(word);
        if (number == 0) {
            return {};
        }
        Text spelled;
        if (number >= 10) {
            spelled.push_back(static_cast<char16_t>(u'0' + number / 10));
        }
        spelled.push_back(static_cast<char16_t>(u'0' + number % 10));
        return CommonModelProcessingFunctions::spinNumToStr(spelled);
    }
    if (digits > kMostDigits || word[0] == u'0') {
        return {};
    }
    const TextView number = word.substr(0, digits);
    Text result = CommonModelProcessingFunctions::spinNumToStr(number);
    const TextView suffix = word.substr(digits);
    // "2d" and "3d" are older spellings, "2." is one of other languages.
    const bool isOrdinal =
        suffix.empty() || suffix == u"." || equalsIgnoringCase(suffix, u"d") || equalsIgnoringCase(word, result);
    return isOrdinal ? result : Text();
}

bool isEditionWord(TextView word) {
    return isOneOfIgnoringCase(withoutSigns(word), kEditionWords);
}

TextView abbreviated(TextView word, bool isBehindNumber) {
    const auto* const found = std::find_if(std::begin(kAbbreviations), std::end(kAbbreviations),
                                           [&](const Abbreviation& row) { return equalsIgnoringCase(row.word, word); });
    if (found == std::end(kAbbreviations)) {
        return word;
    }
    const TextView result = isBehindNumber ? found->behindNumber : found->leading;
    return result.empty() ? word : result;
}

Text normalised(const std::vector<Text>& words, bool isBehindNumber) {
    Text result;
    bool isBehindEd = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const TextView word = words[i];
        if (word.empty()) {
            continue;
        }
        TextView kept = word;
        TextView signs;
        const bool isLast = i + 1 == words.size();
        if (isLast && isEditionWord(word) && withoutSigns(word) == word) {
            break;
        }
        // "1911. Ed. A. Lee" has an editor.
        const bool isEditor = word == kEditor && !isBehindNumber && !isLast;
        if (isEditionWord(word) && !isBehindEd && !isEditor) {
            isBehindEd = true;
            kept = kEd;
            signs = word.substr(withoutSigns(word).size());
        } else if (isLast && !isBehindEd && endsWithIgnoringCase(word, kEd) && word != kEd) {
            // "Revised." is a word with its full stop.
            kept = abbreviated(word.substr(0, word.size() - 1), isBehindNumber);
        } else {
            // Behind "ed." the statement goes on in small letters: "2nd ed., rev. and enl."
            kept = abbreviated(word, isBehindNumber || isBehindEd);
        }
        result.append(result.empty() ? u"" : u" ").append(kept).append(signs);
    }
    return result;
}

bool takesEd(TextView statement) {
    const bool isWhole = statement.ends_with(u')') || statement.ends_with(u']') || contains(statement, u": ");
    const bool hasWord = std::any_of(statement.begin(), statement.end(), isCasedLetter);
    return hasWord && !isWhole && !containsOneOf(toLower(statement), kNoEdBehind);
}

bool isMarkedBy(TextView statement, TextView checkWord) {
    return containsIgnoringCase(statement, checkWord);
}

TextView reviser(TextView statement) {
    for (const TextView mark : kRevisedBy) {
        const std::size_t at = findIgnoringCase(statement, mark);
        if (at != TextView::npos) {
            return trim(statement.substr(at + mark.size()), u" .");
        }
    }
    return {};
}

TextView volumesOf(TextView statement) {
    const std::size_t word = findIgnoringCase(statement, kVolumesWord);
    if (word == TextView::npos) {
        return {};
    }
    const TextView inFront = statement.substr(0, word);
    for (const TextView prefix : kVolumesPrefixes) {
        const std::size_t at = inFront.rfind(prefix);
        if (at != TextView::npos && isDigits(inFront.substr(at + prefix.size()))) {
            return inFront.substr(at + prefix.size());
        }
    }
    return {};
}

DatedFacsimile datedFacsimile(TextView text) {
    const auto isFacsimile = [&](TextView mark) { return containsIgnoringCase(text, mark); };
    if (std::none_of(std::begin(kFacsimileMarks), std::end(kFacsimileMarks), isFacsimile)) {
        return {};
    }
    const TextView statement = text.substr(0, findIgnoringCase(text, kGeneralEditor));
    const TextView generalEditor = text.substr(statement.size());
    const TextView year = yearIn(statement);
    if (year.empty()) {
        return {};
    }
    // Only where nothing else is told: "Facsim. ed. of the Quarto of 1609" stays as it is.
    Text others(statement.substr(0, static_cast<std::size_t>(year.data() - statement.data())));
    others.append(u" ").append(
        statement.substr(static_cast<std::size_t>(year.data() - statement.data()) + year.size()));
    for (const Text& word : split(others, u" ")) {
        const TextView bare = trim(word, kSignsAroundYear);
        const bool isKnown = bare.empty() || equalsIgnoringCase(bare, u"facsim") || equalsIgnoringCase(bare, u"of") ||
                             equalsIgnoringCase(bare, u"facsimile") || equalsIgnoringCase(bare, u"the") ||
                             isEditionWord(bare);
        if (!isKnown) {
            return {};
        }
    }
    return {concatenate(
                {kFacsimile, u" ", year, u" ed.", generalEditor.empty() ? TextView() : TextView(u" "), generalEditor}),
            Text(year)};
}

}  // namespace quorvel::editionwords

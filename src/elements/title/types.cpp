#include "elements/title/types.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "core/letter_case.h"
#include "elements/captions.h"
#include "elements/style_codes.h"

namespace quorvel::titletypes {

using namespace stylecodes;

namespace {

constexpr Caption kCaptions[] = {
    {u"Chapter title", u"Chapter"}, {u"Excerpt from", u"Excerpt"},  {u"Reference entry", u"Entry"},
    {u"Introduction", u"Intro"},    {u"Obituary", u"Obituary for"}, {u"Interview", u"Interview of"},
};

constexpr TextView kPrematterTypes[] = {u"Foreword", u"Introduction", u"Preface", u"Afterword"};

constexpr TextView kParts[] = {u"Chapter title", u"Article",  u"Column",          u"Editorial",      u"Interview",
                               u"Letter",        u"Obituary", u"Reply to letter", u"Reference entry"};

// Whether a row is for works with a title, without one, or both.
enum Titled { kEither, kUntitled };

struct Description {
    TextView type;
    std::vector<std::int16_t> formats;
    Titled titled;
    TextView text;
};

const std::vector<Description>& descriptions() {
    static const std::vector<Description> rows = {
        {u"Interview", {kMlaWithoutEd}, kEither, u"interview"},
        {u"Abridged", {kAma, kApa, kMla, kTurabian}, kEither, u"abridged"},
        {u"Video", {kAma, kApa, kMla, kTurabian}, kEither, u"video"},
        {u"Letter", {kTurabian}, kEither, u"letter to the editor"},
        // MLA 7 5.4.10: a sentence of its own.
        {u"Letter", {kMla}, kEither, u"Letter"},
        {u"Letter", {kApa, kAma}, kEither, u"letter"},
        // MLA 7 5.4.10: "Letter" is the title of a letter that has none.
        {u"Letter", {kMlaWithoutEd}, kUntitled, u"Letter"},
        {u"Letter", {kMlaWithoutEd}, kEither, u"letter"},
        {u"Monograph", {kApa}, kEither, u"Monograph"},
        {u"Monograph", {kMla, kTurabian, kAma}, kEither, u"monograph"},
        {u"Obituary", {kTurabian}, kUntitled, u"obituary for "},
        {u"Reply to letter", {kMla}, kUntitled, u"Reply to letter of "},
    };
    return rows;
}

}  // namespace

Text captionOf(TextView type) {
    return quorvel::captionOf(type, kCaptions);
}

Text spelled(TextView type) {
    if (type.empty()) {
        return {};
    }
    for (const Caption& row : kCaptions) {
        if (equalsIgnoringCase(row.type, type)) {
            return Text(row.type);
        }
    }
    for (const std::span<const TextView> names :
         {std::span<const TextView>(kPrematterTypes), std::span<const TextView>(kParts)}) {
        for (const TextView name : names) {
            if (equalsIgnoringCase(name, type)) {
                return Text(name);
            }
        }
    }
    for (const Description& row : descriptions()) {
        if (equalsIgnoringCase(row.type, type)) {
            return Text(row.type);
        }
    }
    return Text(type);
}

Text typeOf(TextView caption) {
    return quorvel::typeOf(caption, kCaptions);
}

std::vector<Text> prematterTypes() {
    return {std::begin(kPrematterTypes), std::end(kPrematterTypes)};
}

bool isPrematter(TextView type) {
    return isOneOf(type, kPrematterTypes);
}

bool isPart(TextView type) {
    return isOneOf(type, kParts);
}

TextView describingText(TextView type, std::int16_t format, bool hasTitle) {
    if (type.empty()) {
        return {};
    }
    for (const Description& row : descriptions()) {
        if (row.type == type && (row.titled == kEither || !hasTitle) &&
            std::find(row.formats.begin(), row.formats.end(), format) != row.formats.end()) {
            return row.text;
        }
    }
    return {};
}

bool isLeadIn(TextView describingText) {
    return endsWith(describingText, u" ");
}

bool isSentence(TextView describingText, std::int16_t format) {
    return format == kMla && describingText == u"Letter";
}

Text typeOfDescribingText(TextView text) {
    for (const Description& row : descriptions()) {
        if (!isLeadIn(row.text) && equalsIgnoringCase(row.text, text)) {
            return Text(row.type);
        }
    }
    return {};
}

bool quotesParts(std::int16_t format) {
    return isMla(format) || format == kTurabian;
}

PrematterJoints prematterJoints(std::int16_t format) {
    if (format == kTurabian) {
        return {u" to ", u", by "};
    }
    if (usesBrackets(format)) {
        return {u". In ", u", by "};
    }
    // MLA 7 5.5.8: the word, the work and its author are sentences.
    return {u". ", u". By "};
}

}  // namespace quorvel::titletypes

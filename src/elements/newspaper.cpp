#include "elements/newspaper.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/letter_case.h"
#include "core/procedure.h"

namespace quorvel {

namespace {

enum Slot : std::size_t { kTitleSlot, kCitySlot };

/// The brackets of the style, the opening one also with the blank before it.
enum StyleText { kBehindTitle, kOpening, kClosing };

constexpr SlotLayout kLayout({
    {kFormattedSlot, {u"", kBehindTitle, u""}},
    {kPlainSlot, {kOpening, kClosing}},
});
constexpr std::size_t kBracketsOfAPair = 2;

constexpr TextView kArticle = u"The ";
constexpr TextView kLowerArticle = u"the ";

// MLA 7 5.4.5, APA 6 7.01: with an article on the masthead, which styles write or leave out.
constexpr TextView kTitlesWithArticle[] = {
    u"globe and mail",
    u"new york times",
    u"wall street journal",
    u"washington post",
};

struct KnownTitle {
    TextView word;
    TextView rest;
};

// Titles whose first word could be taken for a city, and whose rest for a title of its own.
constexpr KnownTitle kKnownTitles[] = {
    {u"christian", u"science monitor"},
    {u"chronicle", u"of higher education"},
    {u"globe", u"and mail"},
    {u"international", u"herald tribune"},
    {u"national", u"public radio"},
    {u"new", u"york times"},
    {u"wall", u"street journal"},
    {u"washington", u"post"},
    {u"us", u"news and world report"},
    {u"u.s.", u"news and world report"},
    {u"usa", u"today"},
    {u"le", u"monde"},
    {u"the", u"observer"},
};

// What tells that a title names a newspaper; words stand on their own between blanks and brackets.
constexpr TextView kNewspaperWords[] = {
    u"gazette", u"herald", u"tribune", u"times", u"chronicle", u"sentinel", u"journal-sentinel", u"sun-times", u"guide",
};
constexpr TextView kNewspaperPhrases[] = {u"globe and mail", u"public radio", u"cnn.com", u"bbc.co.uk"};
// What tells that it names none, whatever else it has. With them "Saint Paul (Alberta) Journal" is none, deliberately.
constexpr TextView kOtherPeriodicals[] = {u"journal of", u") journal", u"wikipedia"};

struct Brackets {
    char16_t opening;
    char16_t closing;
};

constexpr Brackets kBrackets[] = {{u'[', u']'}, {u'(', u')'}};
constexpr TextView kAllBrackets = u"[]()";
constexpr TextView kSignsBetweenWords = u" ,()[]";

// Brackets behind a title also hold its edition: "New York Times [late ed.]".
constexpr TextView kEndsOfEditions[] = {u" ed.", u" ed", u" edition"};

struct TitleAndCity {
    TextView title;
    TextView city;
};

/// A city is a text in one pair of brackets.
bool isCity(TextView text) {
    const bool isEdition = std::any_of(std::begin(kEndsOfEditions), std::end(kEndsOfEditions),
                                       [&](TextView end) { return endsWithIgnoringCase(text, end); });
    return !text.empty() && text.find_first_of(kAllBrackets) == TextView::npos && !isEdition;
}

std::optional<TitleAndCity> ifBothThere(TextView title, TextView city) {
    title = trim(title);
    city = trim(city);
    return !title.empty() && isCity(city) ? std::optional<TitleAndCity>({title, city}) : std::nullopt;
}

/// "Globe and Mail [Toronto]"
std::optional<TitleAndCity> cityBehind(TextView text, const Brackets& pair) {
    const std::size_t at = text.ends_with(pair.closing) ? text.rfind(pair.opening) : TextView::npos;
    return at == TextView::npos ? std::nullopt
                                : ifBothThere(text.substr(0, at), text.substr(at + 1, text.size() - at - 2));
}

/// "(Toronto) Globe and Mail"
std::optional<TitleAndCity> cityInFront(TextView text, const Brackets& pair) {
    const std::size_t at = text.starts_with(pair.opening) ? text.find(pair.closing) : TextView::npos;
    return at == TextView::npos ? std::nullopt : ifBothThere(text.substr(at + 1), text.substr(1, at - 1));
}

/// The city behind the title in either kind of brackets, or else in front of it.
std::optional<TitleAndCity> titleAndCity(TextView text) {
    for (const auto find : {cityBehind, cityInFront}) {
        for (const Brackets& pair : kBrackets) {
            if (const std::optional<TitleAndCity> found = find(text, pair)) {
                return found;
            }
        }
    }
    return std::nullopt;
}

bool hasNewspaperWord(TextView lowerTitle) {
    while (!lowerTitle.empty()) {
        const std::size_t end = std::min(lowerTitle.find_first_of(kSignsBetweenWords), lowerTitle.size());
        if (isOneOf(lowerTitle.substr(0, end), kNewspaperWords)) {
            return true;
        }
        lowerTitle.remove_prefix(std::min(end + 1, lowerTitle.size()));
    }
    return false;
}

bool hasArticle(TextView title) {
    return startsWithIgnoringCase(title, kLowerArticle);
}

bool takesArticle(TextView titleWithoutArticle) {
    return isOneOfIgnoringCase(titleWithoutArticle, kTitlesWithArticle);
}

}  // namespace

void OutputTemplateNewspaper::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        makeAssembly(formattedStr);
        Reset({});
    });
}

void OutputTemplateNewspaper::Reset(const NewspaperOptions& options) {
    procedure(*this, u"Reset", reported(kNewspaperOptions, options), [&] {
        // A copy, since the reports of the layout reach the host.
        const Text brackets = options.cityInBrackets;
        mOutputArticle = options.outputArticle;
        mCityTooltip = options.cityTooltip;
        mOutputCity = brackets.size() == kBracketsOfAPair;
        const TextView opening = TextView(brackets).substr(0, mOutputCity ? 1 : 0);
        const TextView closing = TextView(brackets).substr(mOutputCity ? 1 : brackets.size());
        const Text behindTitle = concatenate({u" ", opening});
        const TextView styleTexts[] = {behindTitle, opening, closing};
        layOut(kLayout, styleTexts);
    });
}

Text OutputTemplateNewspaper::toString(bool isFootnote, bool shortenedVersion) {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
                     [&] { return assembledText(isFootnote, shortenedVersion); });
}

bool OutputTemplateNewspaper::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                        std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    const OutputSinkRef fragment = formattedItems.at(kTitleSlot);
    // Before anything goes into its slot: the reports reach the host, which may empty the slots meanwhile.
    const Text title = AddArticle(Text(Title));
    if (mOutputCity) {
        items.at(kCitySlot) = City;
    }
    if (!title.empty()) {
        object(fragment).Add(title, OutputSink::kItalic);
    }
    return false;
}

Text OutputTemplateNewspaper::cityTooltip() const {
    return procedure(*this, u"cityTooltip[Get]", kNoParameters, [&] { return mCityTooltip; });
}

void OutputTemplateNewspaper::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        cleanUpInPlace(text);
        parseAndRemoveCity(text);
        Title = text;
    });
}

/// "The New York Times" where the style writes articles, "New York Times" where it does not, however the title was
/// typed. Other titles stay as they are.
Text OutputTemplateNewspaper::AddArticle(TextView title) const {
    return procedure(*this, u"AddArticle", {{u"title", title}}, [&] {
        Text withoutArticle = removeArticle(title);
        if (!takesArticle(withoutArticle)) {
            return Text(title);
        }
        if (!mOutputArticle) {
            return withoutArticle;
        }
        return hasArticle(title) ? Text(title) : concatenate({kArticle, withoutArticle});
    });
}

void OutputTemplateNewspaper::parseAndRemoveCity(Text& text) {
    procedure(*this, u"parseAndRemoveCity", {{u"text", text}}, [&] {
        City.clear();
        const Text whole = text;
        const std::optional<TitleAndCity> parts = titleAndCity(whole);
        // "(Washington) Post" and "Christian [Science Monitor]" are one title.
        if (!parts || isPartOfTitle(parts->city, parts->title) || isPartOfTitle(parts->title, parts->city)) {
            return;
        }
        City = parts->city;
        text = parts->title;
    });
}

/// Whether a word and what follows it are a known title together.
bool OutputTemplateNewspaper::isPartOfTitle(TextView word, TextView rest) const {
    return procedure(*this, u"isPartOfTitle", {{u"word", word}, {u"rest", rest}}, [&] {
        return std::any_of(std::begin(kKnownTitles), std::end(kKnownTitles), [&](const KnownTitle& known) {
            return equalsIgnoringCase(word, known.word) && equalsIgnoringCase(rest, known.rest);
        });
    });
}

bool OutputTemplateNewspaper::isNewspaper(TextView text) const {
    return procedure(*this, u"isNewspaper", {{u"text", text}}, [&] {
        const Text lower = toLower(cleanUp(text));
        if (containsOneOf(lower, kOtherPeriodicals)) {
            return false;
        }
        const Text name = removeArticle(lower);
        const TextView word = before(name, u" ");
        return hasNewspaperWord(lower) || containsOneOf(lower, kNewspaperPhrases) || takesArticle(name) ||
               isPartOfTitle(word, trim(TextView(name).substr(word.size()))) ||
               isPartOfTitle(trim(kLowerArticle), name);
    });
}

Text OutputTemplateNewspaper::removeArticle(TextView title) const {
    return procedure(*this, u"removeArticle", {{u"title", title}},
                     [&] { return Text(hasArticle(title) ? title.substr(kLowerArticle.size()) : title); });
}

void OutputTemplateNewspaper::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"City", City);
    report.vbwReportVariable(u"Title", Title);
    report.vbwReportVariable(u"mCityTooltip", mCityTooltip);
    report.vbwReportVariable(u"mOutputArticle", mOutputArticle);
    report.vbwReportVariable(u"mOutputCity", mOutputCity);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
}

}  // namespace quorvel

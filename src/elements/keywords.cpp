#include "elements/keywords.h"

#include <algorithm>

#include "core/procedure.h"

namespace quorvel {

namespace {

constexpr std::size_t kShortestKeyword = 2;
constexpr std::size_t kShortestInFreeText = 3;

constexpr TextView kSigns = u" \\;";
constexpr TextView kClosingQuotes = u"\"\u201D";

// The host's own database: two words, and one keyword.
constexpr TextView kMy = u"my";
constexpr TextView kQuorvelDatabase = u"quorveldatabase";
constexpr TextView kMyQuorvelDatabase = u"my quorveldatabase";

// Words that say nothing of a work. The last key is one text with blanks, deliberately: single letters
// are kept out by their length.
constexpr TextView kNoiseWords[] = {
    u"about",  u"1",       u"after",   u"2",       u"all",
    u"also",   u"3",       u"an",      u"4",       u"and",
    u"5",      u"another", u"6",       u"any",     u"7",
    u"are",    u"8",       u"as",      u"9",       u"at",
    u"0",      u"be",      u"$",       u"because", u"been",
    u"before", u"being",   u"both",    u"but",     u"by",
    u"came",   u"can",     u"come",    u"could",   u"did",
    u"do",     u"each",    u"for",     u"from",    u"get",
    u"got",    u"has",     u"had",     u"have",    u"he",
    u"her",    u"him",     u"himself", u"his",     u"how",
    u"if",     u"in",      u"into",    u"is",      u"it",
    u"like",   u"make",    u"many",    u"me",      u"might",
    u"more",   u"most",    u"much",    u"my",      u"never",
    u"now",    u"of",      u"on",      u"only",    u"or",
    u"other",  u"our",     u"out",     u"over",    u"said",
    u"same",   u"see",     u"should",  u"since",   u"some",
    u"still",  u"such",    u"take",    u"than",    u"that",
    u"the",    u"their",   u"them",    u"then",    u"there",
    u"these",  u"they",    u"this",    u"those",   u"through",
    u"to",     u"too",     u"under",   u"up",      u"very",
    u"was",    u"way",     u"we",      u"well",    u"were",
    u"what",   u"where",   u"which",   u"while",   u"who",
    u"with",   u"would",   u"you",     u"your",    u"a b c d e f g h i j k l m n o p q r s t u v w x y z",
};
static_assert(std::size(kNoiseWords) == 115);

struct CodeUnitRange {
    char16_t first;
    char16_t last;
};

// Punctuation and other signs, in ascending order; every character else is a letter or a digit of some
// script.
constexpr CodeUnitRange kPunctuation[] = {
    {u'\u0000', u'/'},      {u':', u'@'},           {u'[', u'`'},           {u'{', u'\u00A9'},
    {u'\u00AB', u'\u00B1'}, {u'\u00B4', u'\u00B4'}, {u'\u00B6', u'\u00B8'}, {u'\u00BB', u'\u00BB'},
    {u'\u00BF', u'\u00BF'}, {u'\u00D7', u'\u00D7'}, {u'\u00F7', u'\u00F7'}, {u'\u02C2', u'\u02C5'},
    {u'\u037E', u'\u037E'}, {u'\u0387', u'\u0387'}, {u'\u055A', u'\u055F'}, {u'\u0589', u'\u058A'},
    {u'\u05BE', u'\u05BE'}, {u'\u05C0', u'\u05C0'}, {u'\u05C3', u'\u05C3'}, {u'\u05F3', u'\u05F4'},
    {u'\u060C', u'\u060D'}, {u'\u061B', u'\u061F'}, {u'\u066A', u'\u066D'}, {u'\u06D4', u'\u06D4'},
    {u'\u0964', u'\u0965'}, {u'\u2000', u'\u206F'}, {u'\u20A0', u'\u20CF'}, {u'\u2190', u'\u245F'},
    {u'\u2500', u'\u2BFF'}, {u'\u2E00', u'\u2E7F'}, {u'\u3000', u'\u3004'}, {u'\u3008', u'\u3020'},
    {u'\u3030', u'\u3030'}, {u'\u303D', u'\u303F'}, {u'\u30FB', u'\u30FB'}, {u'\uFE10', u'\uFE19'},
    {u'\uFE30', u'\uFE6B'}, {u'\uFEFF', u'\uFEFF'}, {u'\uFF01', u'\uFF0F'}, {u'\uFF1A', u'\uFF20'},
    {u'\uFF3B', u'\uFF40'}, {u'\uFF5B', u'\uFF65'}, {u'\uFFE0', u'\uFFFF'},
};

bool isPunctuation(char16_t unit) {
    const auto* const range = std::lower_bound(std::begin(kPunctuation), std::end(kPunctuation), unit,
                                               [](const CodeUnitRange& r, char16_t u) { return r.last < u; });
    return range != std::end(kPunctuation) && range->first <= unit;
}

}  // namespace

void OutputTemplateKeywords::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        mNoiseWords.insert(std::begin(kNoiseWords), std::end(kNoiseWords));
        Reset();
    });
}

bool OutputTemplateKeywords::hasWords() const {
    return procedure(*this, u"hasWords", kNoParameters, [&] { return !mWords.empty(); });
}

void OutputTemplateKeywords::Reset() {
    procedure(*this, u"Reset", kNoParameters, [&] {
        mWordSet.clear();
        mWords.clear();
    });
}

void OutputTemplateKeywords::Parse(TextView str, TextView previousStr) {
    procedure(*this, u"Parse", {{u"str", str}, {u"previousStr", previousStr}}, [&] {
        Reset();
        if (str.empty()) {
            return;
        }
        const bool keepOrder = previousStr == kKeepOrder;
        // Apart from the member until the end: the reports of each word reach the host, which may parse
        // another text meanwhile.
        std::vector<Text> accepted;
        for (const Text& phrase : split(cleanUp(str), u",")) {
            if (phrase.empty()) {
                continue;
            }
            std::vector<Text> words = split(phrase, u" ");
            if (keepOrder) {
                // Once a phrase is enough: a second time finds nothing that the first one left.
                keepMyQuorvelDatabase(words);
            }
            for (Text& word : words) {
                stripOffPunctuation(word, keepOrder);
                if (Add(word, !keepOrder)) {
                    accepted.push_back(std::move(word));
                }
            }
        }
        if (!keepOrder) {
            std::sort(accepted.begin(), accepted.end());
        }
        mWords = std::move(accepted);
    });
}

bool OutputTemplateKeywords::Add(TextView word, bool useMinLengthOfKeyword) {
    return procedure(*this, u"Add", {{u"word", word}, {u"useMinLengthOfKeyword", useMinLengthOfKeyword}}, [&] {
        return (!useMinLengthOfKeyword || word.size() >= kShortestInFreeText) && validKeyword(word) && !exists(word) &&
               mWordSet.emplace(word).second;
    });
}

bool OutputTemplateKeywords::validKeyword(TextView word) const {
    return procedure(*this, u"validKeyword", {{u"word", word}}, [&] {
        return word == kMyQuorvelDatabase || (word.size() >= kShortestKeyword && startsWithLowercaseLetter(word) &&
                                              word.find_first_of(kSigns) == TextView::npos);
    });
}

bool OutputTemplateKeywords::exists(TextView word) const {
    return procedure(*this, u"exists", {{u"word", word}},
                     [&] { return mNoiseWords.contains(word) || word.size() < kShortestKeyword; });
}

void OutputTemplateKeywords::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote,
                                               bool shortenedVersion) const {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { object(formattedStr).Add(toString(isFootnote, shortenedVersion)); });
}

Text OutputTemplateKeywords::toString(bool isFootnote, bool shortenedVersion) const {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
                     [&] { return join(mWords, u","); });
}

/// Puts the two words of the host's own database name together.
void OutputTemplateKeywords::keepMyQuorvelDatabase(std::vector<Text>& phrases) const {
    procedure(*this, u"keepMyQuorvelDatabase", {{u"phrases", phrases}}, [&] {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < phrases.size(); ++i, ++kept) {
            if (phrases[i] == kMy && i + 1 < phrases.size() && phrases[i + 1] == kQuorvelDatabase) {
                phrases[kept] = kMyQuorvelDatabase;
                ++i;
            } else if (kept != i) {
                phrases[kept] = std::move(phrases[i]);
            }
        }
        phrases.resize(kept);
    });
}

void OutputTemplateKeywords::stripOffPunctuation(Text& word, bool keepQuotes) const {
    procedure(*this, u"stripOffPunctuation", {{u"word", word}, {u"keepQuotes", keepQuotes}}, [&] {
        while (!word.empty() && isPunctuation(word.back()) &&
               !(keepQuotes && kClosingQuotes.find(word.back()) != TextView::npos)) {
            word.pop_back();
        }
    });
}

bool OutputTemplateKeywords::startsWithLowercaseLetter(TextView word) const {
    return procedure(*this, u"startsWithLowercaseLetter", {{u"word", word}},
                     [&] { return !word.empty() && word[0] >= u'a' && word[0] <= u'z'; });
}

void OutputTemplateKeywords::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mWords", mWords);
    report.vbwReportVariable(u"mWordSet", HostObjectRef());
    report.vbwReportVariable(u"mNoiseWords", HostObjectRef());
}

}  // namespace quorvel

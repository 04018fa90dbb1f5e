#include "elements/online.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/doi.h"

namespace quorvel {

namespace {

constexpr TextView kHttp = u"http://";
constexpr TextView kHttps = u"https://";
constexpr TextView kSignOfScheme = u"://";
constexpr TextView kRetrievedFrom = u"Retrieved from ";
// Without a blank behind it, deliberately.
constexpr TextView kAbstract = u"Abstract:";
constexpr TextView kAbstractRetrievedFrom = u"Abstract retrieved from ";
constexpr TextView kDatabaseSuffix = u" database";
constexpr TextView kDatabasePrefix = u"database:";
constexpr TextView kEricStatement = u"ERIC database. (";

/// What stands before a source, in any letter case.
struct LeadIn {
    TextView text;
    bool isAbstract = false;
    /// Behind it stands a source, whatever it looks like; else it is only removed from what is known as a source.
    bool isSure = false;
};

// In the order in which they are tried.
constexpr LeadIn kLeadIns[] = {
    {kAbstractRetrievedFrom, true, true},
    {kAbstract, true, true},
    {u"Abstract ", true, false},         // Abstract http://www.example.org
    {kRetrievedFrom, false, false},      // APA 6 6.32
    {u"Available from ", false, false},  // Available from http://www.example.org
    {u"Available at: ", false, false},
    {u"Available at ", false, false},
    {u"URL: ", false, false},
};

// "Retrieved May 5, 2011, from http://www.example.org"
constexpr TextView kRetrieved = u"Retrieved ";
constexpr TextView kFrom = u" from ";

// "accessed May 5, 2011, http://www.example.org"
constexpr TextView kAccessed = u"Accessed ";
constexpr TextView kBeginningsOfSources[] = {u" http://", u" https://", u" www.", u" doi:"};

// APA 6 7.01; the text keeps it.
constexpr TextView kAdvance = u"Advance online publication";
constexpr TextView kAdvanceBeforeSource = u"Advance online publication. ";

// What follows an address: "http://www.example.org. Published May 2, 2008. Accessed May 5, 2009."
constexpr TextView kStatementsOfAccess[] = {u"accessed", u"retrieved", u"viewed", u"published", u"updated"};

// The signs around a source: "<http://www.example.org>."
constexpr TextView kSignsBehind = u" .,;";
constexpr TextView kSignsAround = u" ,;(";

// What the name of a site or a file ends in.
constexpr TextView kPostfixes[] = {
    u"html", u"htm", u"shtml", u"php", u"asp",  u"aspx",   u"jsp", u"com", u"org", u"net", u"edu", u"gov",
    u"mil",  u"int", u"info",  u"biz", u"name", u"museum", u"uk",  u"ca",  u"au",  u"de",  u"fr",  u"jp",
    u"us",   u"eu",  u"ch",    u"nl",  u"it",   u"es",     u"se",  u"no",  u"dk",  u"fi",  u"nz",  u"ie",
    u"in",   u"br",  u"ru",    u"cn",  u"at",   u"be",     u"pl",  u"za",  u"il",  u"kr",  u"mx",  u"io",
    u"co",   u"tv",  u"gr",    u"pt",  u"hu",   u"cz",     u"tr",  u"hk",  u"tw",  u"sg",
};
constexpr TextView kSignsOfSites[] = {u"www.", u"ftp"};
constexpr TextView kEndsOfName = u"/?%#:";

// The second is no directory of DOIs, and known deliberately.
constexpr TextView kDirectories[] = {u"10.", u"11."};

// The first words of an ERIC number, the longer ones first.
constexpr TextView kEricWords[] = {
    u"ERIC Document Reproduction Service No.",
    u"the ERIC database",
    u"ERIC database",
    u"ERIC",
};
constexpr TextView kEricLetters[] = {u"ED", u"EJ"};
constexpr TextView kSignsAroundEric = u" .,:()[]";
constexpr std::size_t kFewestEricDigits = 3;

// Names that stand for a database without the word.
constexpr TextView kDatabases[] = {
    u"Academic OneFile",
    u"Academic Search Premier",
    u"CINAHL",
    u"EBSCOhost",
    u"ERIC",
    u"JSTOR",
    u"LexisNexis Academic",
    u"MEDLINE",
    u"Project Muse",
    u"ProQuest",
    u"PsycARTICLES",
    u"PsycINFO",
    u"PubMed",
    u"Web of Science",
};

/// A source that stands behind a lead-in.
struct Led {
    TextView source;
    /// The date of "Retrieved May 5, 2011, from", or another statement that stands before the source.
    TextView date;
    bool isAbstract = false;
    bool isSure = false;
};

/// "May 5, 2011, http://www.example.org"
std::optional<Led> behindAccess(TextView text) {
    std::size_t source = text.size();
    for (const TextView beginning : kBeginningsOfSources) {
        source = std::min(source, text.find(beginning));
    }
    const TextView date = trim(text.substr(0, source), kSignsBehind);
    const bool isKnown = source < text.size() && date.find_first_of(kDigits) != TextView::npos;
    return isKnown ? std::optional<Led>({trim(text.substr(source)), date, false, false}) : std::nullopt;
}

std::optional<Led> led(TextView text) {
    for (const LeadIn& leadIn : kLeadIns) {
        if (startsWithIgnoringCase(text, leadIn.text)) {
            return Led{trim(text.substr(leadIn.text.size())), {}, leadIn.isAbstract, leadIn.isSure};
        }
    }
    if (startsWithIgnoringCase(text, kAdvanceBeforeSource)) {
        return Led{trim(text.substr(kAdvanceBeforeSource.size())), text.substr(0, kAdvance.size()), false, false};
    }
    if (startsWithIgnoringCase(text, kAccessed)) {
        return behindAccess(text.substr(kAccessed.size()));
    }
    if (!startsWithIgnoringCase(text, kRetrieved)) {
        return std::nullopt;
    }
    const std::size_t from = text.find(kFrom);
    if (from == TextView::npos || from < kRetrieved.size()) {
        return std::nullopt;
    }
    const TextView date = trim(text.substr(kRetrieved.size(), from - kRetrieved.size()), u" ,");
    return date.find_first_of(kDigits) == TextView::npos
               ? std::nullopt
               : std::optional<Led>({trim(text.substr(from + kFrom.size())), date, false, false});
}

/// A source without the signs of the sentence and of the list in which it stands.
TextView withoutSigns(TextView text) {
    const auto withoutEnd = [](TextView from) { return from.substr(0, from.find_last_not_of(kSignsBehind) + 1); };
    text = withoutEnd(text);
    const bool isBracketed = text.size() > 2 && text.front() == u'<' && text.back() == u'>';
    return isBracketed ? withoutEnd(trim(text.substr(1, text.size() - 2))) : text;
}

/// Where the statement of access begins that follows an address; the text's end when there is none.
std::size_t statementOfAccess(TextView text) {
    const std::size_t blank = std::min(text.find(u' '), text.size());
    const TextView behind = trim(text.substr(blank), kSignsAround);
    return startsWithOneOfIgnoringCase(behind, kStatementsOfAccess) ? blank : text.size();
}

/// A database without the number that it has for the work: "PsycINFO database" for "PsycINFO database. (Accession No.
/// 1)".
TextView withoutNumber(TextView text) {
    const std::size_t open = text.ends_with(u')') ? text.rfind(u'(') : TextView::npos;
    return open == TextView::npos ? text : text.substr(0, text.substr(0, open).find_last_not_of(kSignsBehind) + 1);
}

TextView schemeOf(TextView text) {
    return startsWithIgnoringCase(text, kHttp) ? kHttp : startsWithIgnoringCase(text, kHttps) ? kHttps : TextView();
}

/// "ftp://ftp.example.org"
bool hasOtherScheme(TextView address) {
    const TextView scheme = before(address, kSignOfScheme);
    return scheme.size() < address.size() && std::all_of(scheme.begin(), scheme.end(), isAsciiLetter);
}

/// Letters and digits of an ERIC number: "ED482912" for "ED 482 912"; empty for any other text.
Text ericNumber(TextView text) {
    Text number = toUpper(replaceAll(text, u" ", u""));
    const bool isNumber = startsWithOneOf(number, kEricLetters) && isDigits(TextView(number).substr(2)) &&
                          number.size() >= kEricLetters[0].size() + kFewestEricDigits;
    return isNumber ? number : Text();
}

}  // namespace

void OutputTemplateOnline::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}},
              [&] { mFormattedStr = object(formattedStr).Clone(); });
}

void OutputTemplateOnline::Reset(const OnlineOptions& options) {
    procedure(*this, u"Reset", reported(kOnlineOptions, options), [&] { mOptions = options; });
}

Text OutputTemplateOnline::Online() const {
    return procedure(*this, u"Online[Get]", kNoParameters, [&] { return mOnline; });
}

bool OutputTemplateOnline::SupportsWebsiteAsDatabase() const {
    return procedure(*this, u"SupportsWebsiteAsDatabase[Get]", kNoParameters,
                     [&] { return mOptions.SupportsWebsiteAsDatabase; });
}

bool OutputTemplateOnline::SupportsWebsiteAsEric() const {
    return procedure(*this, u"SupportsWebsiteAsEric[Get]", kNoParameters,
                     [&] { return mOptions.SupportsWebsiteAsEric; });
}

bool OutputTemplateOnline::isURL() const {
    return procedure(*this, u"isURL[Get]", kNoParameters, [&] { return mIsURL; });
}

bool OutputTemplateOnline::isEric() const {
    return procedure(*this, u"isEric[Get]", kNoParameters, [&] { return mIsEric; });
}

void OutputTemplateOnline::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote,
                                             bool shortenedVersion) const {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { object(formattedStr).Add(formatted(isFootnote), OutputSink::kPlain); });
}

Text OutputTemplateOnline::toString(bool isFootnote, bool shortenedVersion, bool isRTF) const {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}}, [&] {
                         if (!isRTF) {
                             return formatted(isFootnote);
                         }
                         // Held: the host may have it replaced while it is written to.
                         const OutputSinkRef sink = mFormattedStr;
                         object(sink).Reset();
                         ToFormattedString(sink, isFootnote, shortenedVersion);
                         return sink->toRTFString();
                     });
}

void OutputTemplateOnline::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        const Text whole = cleanUp(text);
        Led found = {whole, {}, false, false};
        // "Abstract: Retrieved from http://www.example.org" has two.
        for (std::optional<Led> next = led(whole); next && found.date.empty(); next = led(found.source)) {
            next->isAbstract = next->isAbstract || found.isAbstract;
            found = *next;
        }
        Text left(withoutSigns(found.source));
        if (parseSource(left)) {
            mIsAbstract = found.isAbstract;
            text = join({Text(found.date), left}, found.date.empty() || left.empty() ? u"" : u" ");
            return;
        }
        // What stands behind one lead-in that is sure, or everything.
        const std::optional<Led> only = led(whole);
        mIsAbstract = only && only->isSure && !only->source.empty() && !led(only->source);
        mOnline = mIsAbstract ? only->source : TextView(whole);
        text.clear();
    });
}

/// The rules in the order in which they are tried.
/// @param text keeps what follows the source
/// @return False for a text that is no known source
bool OutputTemplateOnline::parseSource(Text& text) {
    mOnline.clear();
    isDatabase = mIsEric = mIsURL = mIsDOI = mIsHTTPS = mHasOtherScheme = false;
    if (parseEric(text)) {
        text.clear();
        return true;
    }
    return parseDatabase(text) || parseAndRemoveDOI(text) || parseAddress(text);
}

/// "ERIC database. (ED482912)", "(ERIC Document Reproduction Service No. ED346082)", "ED482912"
bool OutputTemplateOnline::parseEric(TextView text) {
    return procedure(*this, u"parseEric", {{u"text", text}}, [&] {
        text = trim(text, kSignsAroundEric);
        const auto* const words = std::find_if(std::begin(kEricWords), std::end(kEricWords),
                                               [&](TextView entry) { return startsWithIgnoringCase(text, entry); });
        const TextView behind = text.substr(words != std::end(kEricWords) ? words->size() : 0);
        Text number = ericNumber(trim(behind, kSignsAroundEric));
        mIsEric = !number.empty();
        if (mIsEric) {
            mOnline = std::move(number);
        }
        return mIsEric;
    });
}

/// "database: PsycINFO", "PsycINFO database", "PsycINFO", "PsycINFO database. (Accession No. 1)"
bool OutputTemplateOnline::parseDatabase(Text& text) {
    const TextView statement = withoutNumber(text);
    TextView name;
    TextView left;
    if (startsWithIgnoringCase(text, kDatabasePrefix)) {
        name = trim(TextView(text).substr(kDatabasePrefix.size()));
    } else if (endsWithIgnoringCase(statement, kDatabaseSuffix) && schemeOf(text).empty()) {
        name = trim(statement.substr(0, statement.size() - kDatabaseSuffix.size()));
        left = trim(TextView(text).substr(statement.size()), kSignsBehind);
    } else if (isOneOfIgnoringCase(text, kDatabases)) {
        name = text;
    }
    isDatabase = !name.empty();
    if (isDatabase) {
        mOnline = name;
        text = Text(left);
    }
    return isDatabase;
}

/// "doi:10.1000/182 (accessed May 5, 2011)"
bool OutputTemplateOnline::parseAndRemoveDOI(Text& text) {
    return procedure(*this, u"parseAndRemoveDOI", {{u"text", text}}, [&] {
        const TextView bare = doi::withoutAnnouncement(text);
        const std::size_t end = statementOfAccess(bare);
        const TextView whole = TextView(text).substr(0, text.size() - (bare.size() - end));
        if (!isDOI(whole)) {
            return false;
        }
        mIsDOI = true;
        mOnline = withoutSigns(bare.substr(0, end));
        text = Text(trim(bare.substr(end)));
        return true;
    });
}

/// "http://www.example.org (accessed May 5, 2011)", "www.example.org"
bool OutputTemplateOnline::parseAddress(Text& text) {
    const std::size_t end = statementOfAccess(text);
    const TextView whole = withoutSigns(TextView(text).substr(0, end));
    const TextView scheme = schemeOf(whole);
    const Text address(whole.substr(scheme.size()));
    // With a scheme it is an address whatever it holds.
    if (address.empty() || (scheme.empty() && !isURLImpl(address))) {
        return false;
    }
    mIsURL = true;
    mIsHTTPS = scheme == kHttps;
    mHasOtherScheme = scheme.empty() && hasOtherScheme(address);
    mOnline = address;
    text = Text(trim(TextView(text).substr(end)));
    return true;
}

bool OutputTemplateOnline::isURLImpl(TextView text) const {
    return procedure(*this, u"isURLImpl", {{u"text", text}}, [&] {
        if (text.empty() || contains(text, u" ")) {
            return false;
        }
        if (std::any_of(std::begin(kSignsOfSites), std::end(kSignsOfSites),
                        [&](TextView sign) { return containsIgnoringCase(text, sign); })) {
            return true;
        }
        // A single word and the address of a person's mail are none.
        if (!contains(text, u".") || contains(text, u"@")) {
            return false;
        }
        // "example.org/search?q=1": what stands before the first of these signs tells.
        const TextView name = text.substr(0, text.find_first_of(kEndsOfName));
        if (contains(name, u".") && isURLPostfix(name.substr(name.rfind(u'.') + 1))) {
            return true;
        }
        return text.find_first_of(u"?%") == TextView::npos && isURLPostfix(text.substr(text.find_last_of(u"./") + 1));
    });
}

bool OutputTemplateOnline::isURLPostfix(TextView text) const {
    return procedure(*this, u"isURLPostfix", {{u"text", text}}, [&] { return isOneOfIgnoringCase(text, kPostfixes); });
}

/// A DOI that nothing announces is believed by its first number alone, deliberately.
bool OutputTemplateOnline::isDOI(TextView text) const {
    return procedure(*this, u"isDOI", {{u"text", text}}, [&] {
        return doi::isAnnounced(text) || (startsWithOneOf(text, kDirectories) && !contains(text, u" "));
    });
}

/// Whether the style writes the source as a statement of its own rather than as what it is.
bool OutputTemplateOnline::isStatement() const {
    return mIsEric ? mOptions.SupportsWebsiteAsEric : isDatabase && mOptions.SupportsWebsiteAsDatabase;
}

/// The source without a lead-in. Where the style has no statements, a database is named so that it is read again.
Text OutputTemplateOnline::source() const {
    if (mIsEric) {
        return isStatement() ? concatenate({kEricStatement, mOnline, u")"}) : mOnline;
    }
    if (isDatabase) {
        const bool isKnown = !isStatement() && isOneOfIgnoringCase(mOnline, kDatabases);
        return concatenate({mOnline, isKnown ? TextView() : kDatabaseSuffix});
    }
    if (mIsURL) {
        const TextView scheme = mHasOtherScheme ? TextView() : mIsHTTPS ? kHttps : kHttp;
        return concatenate({scheme, mOnline});
    }
    return mIsDOI ? concatenate({mOptions.DOIPrefix, mOnline}) : mOnline;
}

Text OutputTemplateOnline::formatted(bool isFootnote) const {
    if (mIsAbstract) {
        return concatenate({isFootnote ? kAbstract : kAbstractRetrievedFrom, source()});
    }
    const bool isRetrieved = isStatement() || (mIsURL && !isDatabase && mOptions.UsesRetrievedPrefix);
    return concatenate({isRetrieved ? kRetrievedFrom : TextView(), source()});
}

void OutputTemplateOnline::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mOnline", mOnline);
    report.vbwReportVariable(u"isDatabase", isDatabase);
    report.vbwReportVariable(u"mIsEric", mIsEric);
    report.vbwReportVariable(u"mDoiPrefix", mOptions.DOIPrefix);
    report.vbwReportVariable(u"mSupportsWebsiteAsDatabase", mOptions.SupportsWebsiteAsDatabase);
    report.vbwReportVariable(u"mSupportsWebsiteAsEric", mOptions.SupportsWebsiteAsEric);
    report.vbwReportVariable(u"mUsesRetrievedPrefix", mOptions.UsesRetrievedPrefix);
    report.vbwReportVariable(u"mIsURL", mIsURL);
    report.vbwReportVariable(u"mIsDOI", mIsDOI);
    report.vbwReportVariable(u"mIsHTTPS", mIsHTTPS);
    report.vbwReportVariable(u"mFormattedStr", mFormattedStr);
    report.vbwReportVariable(u"mIsAbstract", mIsAbstract);
    report.vbwReportVariable(u"mHasOtherScheme", mHasOtherScheme);
}

}  // namespace quorvel

// The edition element: members, recognition, numbered and named editions.

#include "elements/edition/edition.h"

#include <algorithm>
#include <iterator>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/edition/reprint_text.h"
#include "elements/edition/words.h"
#include "elements/style_codes.h"

namespace quorvel {

namespace {

// The words that mark what stands beside the number of an edition.
constexpr TextView kCheckWords[] = {u" new", u" enl", u" rev", u" ed", u" in"};
enum CheckWord : std::size_t { kIsNew, kIsEnlarged, kIsRevised, kHasEd, kHasVolumes };

// Marks of a reprint, in small letters as those below.
constexpr TextView kReprintMarks[] = {u"original work published", u"originally published", u"reprint", u"rpt.",
                                      u"repr."};
constexpr TextView kTranslationMark = u"trans. of";
constexpr TextView kContributorMarks[] = {u"spec. issue", u"introd."};
constexpr TextView kByMark = u"by ";
constexpr TextView kFirstMark = u"first published ";
constexpr TextView kTurabianMark = u"originally published";
constexpr TextView kEndsOfTranslation[] = {u").", u")"};
constexpr TextView kNamedMarks[] = {u"facsim", u"rev.", u"vers."};

constexpr TextView kEdSplit = u"ed";
constexpr TextView kEdWord = u" ed";
constexpr TextView kEdSuffix = u" ed.";
constexpr TextView kEd = u"ed.";

constexpr TextView kRevised = u"Rev.";
constexpr TextView kRevisedInNote = u"rev.";

bool endsWithEditionWord(const std::vector<Text>& words) {
    return !words.empty() && editionwords::isEditionWord(words.back());
}

/// "… Leipzig: Insel, 1910."
bool endsAsPublication(TextView text) {
    const TextView statement = trim(text, u" .");
    const std::optional<reprinttext::Range> year = reprinttext::yearAtEnd(statement);
    return year && statement.substr(0, year->begin).ends_with(u", ");
}

bool hasEditionWord(TextView text) {
    const std::vector<Text> words = split(text, u" ");
    return std::any_of(words.begin(), words.end(), [](TextView word) { return editionwords::isEditionWord(word); });
}

}  // namespace

OutputTemplateEdition::OutputTemplateEdition()
    : mEditionBookChapterYear(std::make_shared<quorvel::EditionBookChapterYear>()) {}

void OutputTemplateEdition::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        auto year = std::make_shared<OutputTemplateYear>();
        year->Initialize(nullptr);
        replace(mYearTemplate, std::move(year));
        auto page = std::make_shared<OutputTemplatePage>();
        page->Initialize(nullptr);
        replace(mPageTemplate, std::move(page));
        makeAssembly(formattedStr);
        mFormat = stylecodes::kAma;
        mAddEdToNumberedEdition = false;
        auto publisher = std::make_shared<OutputTemplatePublisher>();
        publisher->Initialize(formattedStr);
        replace(mPublisherTemplate, std::move(publisher));
    });
}

void OutputTemplateEdition::Reset(const EditionOptions& options) {
    procedure(*this, u"Reset", reported(kEditionOptions, options), [&] {
        using namespace stylecodes;
        mFormat = options.format;
        if (options.pageTemplate) {
            replace(mPageTemplate, options.pageTemplate->Clone());
        }
        // MLA 7 5.5.24 and 7.5, APA 6 6.28 and 6.30, Turabian 7 17.1.6: how the years and publishers of reprints stand.
        const bool isMlaStyle = isMla(mFormat);
        held(mYearTemplate)
            ->Reset({.supportYearGuess = true,
                     .circa = isMlaStyle ? u"c." : u"ca.",
                     .supportYearForSure = true,
                     .noDateString = u"n.d.",
                     .useEnDashForYearRange = !isMlaStyle});
        held(mPublisherTemplate)
            ->Reset({.shortenUniversityAndPress = isMlaStyle, .removePublisherAbbreviations = mFormat != kAma});
        mAddEdToNumberedEdition = mFormat != kMlaWithoutEd;
        switch (mFormat) {
            case kMlaWithoutEd:
            case kMla: initMLAOutputTemplate(); break;
            case kApa: initAPAOutputTemplate(); break;
            case kTurabian: initTurabianOutputTemplate(); break;
            default: break;
        }
    });
}

std::int32_t OutputTemplateEdition::format() const {
    return procedure(*this, u"format[Get]", kNoParameters, [&] { return mFormat; });
}

bool OutputTemplateEdition::isNumberedOrNamedEdition() const {
    return procedure(*this, u"isNumberedOrNamedEdition[Get]", kNoParameters,
                     [&] { return mEditionType == kNumbered || mEditionType == kNamed; });
}

std::shared_ptr<EditionBookChapterYear> OutputTemplateEdition::EditionBookChapterYear() const {
    return procedure(*this, u"EditionBookChapterYear[Get]", kNoParameters, [&] { return mEditionBookChapterYear; });
}

void OutputTemplateEdition::clearEditionBookChapterYear() {
    procedure(*this, u"clearEditionBookChapterYear", kNoParameters, [&] {
        *mEditionBookChapterYear = {};
        mNamedAuthor.clear();
    });
}

Text OutputTemplateEdition::oldAuthor() const {
    return procedure(*this, u"oldAuthor[Get]", kNoParameters, [&] { return mOldAuthor; });
}

Text OutputTemplateEdition::toString(bool isFootnote, bool shortenedVersion) {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}}, [&] {
        return mEditionType == kReprint || mEditionType == kTranslation ? assembledText(isFootnote, shortenedVersion)
                                                                        : numberedOrNamedText(isFootnote);
    });
}

Text OutputTemplateEdition::numberedOrNamedText(bool isFootnote) {
    Text result = mParsedNumberedOrNamedEdition;
    if (isFootnote) {
        result = replaceAll(result, kRevised, kRevisedInNote);
    }
    if (mAddEdToNumberedEdition && mTakesEd) {
        result.append(kEdSuffix);
    }
    return result;
}

void OutputTemplateEdition::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        cleanUpInPlace(text);
        mOldAuthor = previousStr;
        forgetPublication();
        mNumberedEdition = {};
        mParsedNumberedOrNamedEdition.clear();
        mTakesEd = false;
        const TextView inside = reprinttext::withoutParentheses(text);
        std::int16_t type = getEditionType(inside);
        if (inside.size() < text.size()) {
            if (isEdition(inside, type)) {
                text = Text(inside);
            } else {
                type = getEditionType(text);
            }
        }
        const Text whole = text;
        mEditionType = type;
        switch (mEditionType) {
            case kReprint:
                if (containsIgnoringCase(text, kTurabianMark)) {
                    ParseTurabianReprint(text);
                } else {
                    ParseReprintOrPaperbackEdition(text);
                }
                break;
            case kTranslation: parseTranslationEdition(text); break;
            default:
                addChapterYear(text);
                if (mEditionType == kNumbered) {
                    NumberedEdition(text);
                } else {
                    NamedEdition(text);
                }
                text.clear();
                return;
        }
        if (!hasPublication() && mEditionBookChapterYear->Year.empty() &&
            mEditionBookChapterYear->chapterOrArticleTitle.empty()) {
            keepAsItStands(whole);
            text.clear();
        }
    });
}

/// What a text begins with: nothing known, a plain reprint by its author.
void OutputTemplateEdition::forgetPublication() {
    clearEditionBookChapterYear();
    mEditionBookChapterYear->AuthorType = quorvel::EditionBookChapterYear::kAuthor;
    mEditionBookChapterYear->TitleType = quorvel::EditionBookChapterYear::kEnglishTitle;
}

/// Of a statement that its reader could not use.
void OutputTemplateEdition::keepAsItStands(TextView text) {
    forgetPublication();
    mEditionType = editionwords::ordinal(before(text, u" ")).empty() ? kNamed : kNumbered;
    if (mEditionType == kNumbered) {
        NumberedEdition(text);
    } else if (endsWithEditionWord(split(text, u" "))) {
        NamedEdition(text);
    } else {
        mParsedNumberedOrNamedEdition = text;
        mTakesEd = false;
    }
}

/// The first rule that matches decides.
std::int16_t OutputTemplateEdition::getEditionType(TextView text) {
    return procedure(*this, u"getEditionType", {{u"text", text}}, [&]() -> std::int16_t {
        if (text.empty()) {
            return kNumbered;
        }
        const Text small = toLower(text);
        // "Original work published 1925", "1925; repr.", "Rpt. of X"
        if (containsOneOf(small, kReprintMarks)) {
            return kReprint;
        }
        // "Trans. of X"; "First published in 1900 by Doubleday"; "1900. Introd. E. L. Doctorow"; "By Henry James. Daisy
        // Miller. 1878"; "1925"
        if (startsWith(small, kTranslationMark) || containsOneOf(small, kContributorMarks) ||
            startsWith(small, kByMark) || startsWith(small, kFirstMark) || isYear(text)) {
            return kReprint;
        }
        // "Le passé d'une illusion (Paris: Laffont, 1995)"
        if (endsWithOneOf(text, kEndsOfTranslation)) {
            return kTranslation;
        }
        // "Facsim. ed.", "2nd rev. ed.", "King James Vers."
        if (containsOneOf(small, kNamedMarks)) {
            return kNamed;
        }
        // "2nd ed."
        std::size_t ed = small.find(kEdSplit);
        const TextView first = text.substr(0, ed);
        if (parseNumericEdition(first)) {
            return kNumbered;
        }
        // "First published 1925"
        while (ed != TextView::npos) {
            const std::size_t begin = ed + kEdSplit.size();
            ed = small.find(kEdSplit, begin);
            if (isYear(text.substr(begin, ed == TextView::npos ? ed : ed - begin))) {
                return kReprint;
            }
        }
        // "Le passé. Paris: Laffont, 1995"; of "Frieden" no edition begins.
        const TextView inFront = text.substr(0, endsAsPublication(text) ? small.find(kEdWord) : first.size());
        return contains(inFront, u" ") && contains(inFront, u":") ? kTranslation : kNamed;
    });
}

/// Whether what stands in front of "ed." is the number of an edition, or the year that serves as one: "2008 ed."
bool OutputTemplateEdition::parseNumericEdition(TextView text) {
    return procedure(*this, u"parseNumericEdition", {{u"text", text}}, [&] {
        const TextView number = trim(text, u" ,");
        return !editionwords::ordinal(number).empty() || isDigits(number);
    });
}

bool OutputTemplateEdition::isYear(TextView text) {
    const TextView year = trim(text, u" .");
    const bool isPlain = year.size() == 4 && isDigits(year) && (year[0] == u'1' || year[0] == u'2');
    // The year element would say the same, with a date made of it.
    return isPlain || reprinttext::isYearOfEra(year) ||
           (reprinttext::looksLikeYear(year) && (!isDigit(year[0]) || held(mYearTemplate)->isYear(year)));
}

bool OutputTemplateEdition::takesEd(TextView statement) {
    return editionwords::takesEd(statement) && !isYear(statement);
}

/// Whether a text of this type is an edition that stood in parentheses: "(6th ed.)", "(4th ed., text rev.)", but not
/// the end of a longer statement.
bool OutputTemplateEdition::isEdition(TextView text, std::int16_t type) const {
    return type == kNumbered || type == kReprint || (type == kNamed && hasEditionWord(text));
}

/// A facsimile of which the text tells the year of the first publication: "Facsim. ed. 1790".
void OutputTemplateEdition::addChapterYear(Text& text) {
    procedure(*this, u"addChapterYear", {{u"text", text}}, [&] {
        editionwords::DatedFacsimile facsimile = editionwords::datedFacsimile(text);
        if (!facsimile.year.empty()) {
            takeYear(facsimile.year);
            text = std::move(facsimile.statement);
        }
    });
}

Text OutputTemplateEdition::NumberedEdition() const {
    return procedure(*this, u"NumberedEdition[Get]", kNoParameters,
                     [&] { return mEditionType == kNumbered ? mParsedNumberedOrNamedEdition : Text(); });
}

void OutputTemplateEdition::NumberedEdition(TextView theVal) {
    procedure(*this, u"NumberedEdition[Let]", {{u"theVal", theVal}}, [&] {
        const Text statement = cleanUp(theVal);
        mNumberedEdition = {};
        mNumberedEdition.NumEdition = trim(before(statement, u" "), u" ,");
        mTokens = split(statement, u" ");
        const Text number = editionwords::ordinal(mNumberedEdition.NumEdition);
        if (number.empty()) {
            // "2008 ed.", "2008 Edition"
            const bool isYearOfEdition = mTokens.size() == 2 && endsWithEditionWord(mTokens);
            mParsedNumberedOrNamedEdition = isYearOfEdition ? concatenate({mTokens.front(), kEdSuffix}) : statement;
            mTakesEd = takesEd(mParsedNumberedOrNamedEdition);
            return;
        }
        mTokens.erase(mTokens.begin());
        const Text rest = joinWords(true);
        if (!rest.empty()) {
            noteWordsBesideNumber(statement);
        }
        mParsedNumberedOrNamedEdition = concatenate({number, rest.empty() ? u"" : u" ", rest});
        mTakesEd = takesEd(mParsedNumberedOrNamedEdition);
    });
}

void OutputTemplateEdition::noteWordsBesideNumber(TextView statement) {
    const auto isMarked = [&](CheckWord word) { return editionwords::isMarkedBy(statement, kCheckWords[word]); };
    mNumberedEdition.IsNew = isMarked(kIsNew);
    mNumberedEdition.IsEnlarged = isMarked(kIsEnlarged);
    mNumberedEdition.IsRevised = isMarked(kIsRevised);
    mNumberedEdition.RevisedBy = editionwords::reviser(statement);
    mNumberedEdition.NumVolume = editionwords::volumesOf(statement);
}

Text OutputTemplateEdition::NamedEdition() const {
    return procedure(*this, u"NamedEdition[Get]", kNoParameters,
                     [&] { return mEditionType == kNamed ? mParsedNumberedOrNamedEdition : Text(); });
}

void OutputTemplateEdition::NamedEdition(TextView theVal) {
    procedure(*this, u"NamedEdition[Let]", {{u"theVal", theVal}}, [&] {
        const Text statement = cleanUp(theVal);
        mTokens = split(statement, u" ");
        // "2nd, revised edition" keeps its comma.
        const TextView first = editionwords::withoutSigns(mTokens.front());
        const Text number = editionwords::ordinal(first);
        const bool hadEd = endsWithEditionWord(mTokens);
        // "Second revised edition", "1 American"; "2. Aufl." is none of ours.
        if (!number.empty() && (hadEd || editionwords::takesEd(statement))) {
            mTokens.front() = concatenate({number, TextView(mTokens.front()).substr(first.size())});
        }
        Text result = joinWords(!number.empty());
        mTakesEd = takesEd(result);
        if (hadEd && !mTakesEd) {
            // It would not get its word back: "Kindle version ed."
            result.append(result.empty() ? kEd : kEdSuffix);
        }
        mParsedNumberedOrNamedEdition = std::move(result);
    });
}

Text OutputTemplateEdition::joinWords(bool isBehindNumber) {
    return procedure(*this, u"joinWords", {{u"isBehindNumber", isBehindNumber}},
                     [&] { return editionwords::normalised(std::vector<Text>(mTokens), isBehindNumber); });
}

std::int16_t OutputTemplateEdition::EditionType() const {
    return procedure(*this, u"EditionType[Get]", kNoParameters, [&] { return mEditionType; });
}

void OutputTemplateEdition::EditionType(std::int16_t theVal) {
    procedure(*this, u"EditionType[Let]", {{u"theVal", theVal}}, [&] { mEditionType = theVal; });
}

void OutputTemplateEdition::dumpVariables(VBWPROTECTOR& report) const {
    const quorvel::EditionBookChapterYear& record = *mEditionBookChapterYear;
    report.vbwReportVariable(u"mEditionType", mEditionType);
    report.vbwReportVariable(u"EditionBookChapterYear.Title", record.Title);
    report.vbwReportVariable(u"EditionBookChapterYear.PublisherOrNumber", record.PublisherOrNumber);
    report.vbwReportVariable(u"EditionBookChapterYear.PlaceOrVolume", record.PlaceOrVolume);
    report.vbwReportVariable(u"EditionBookChapterYear.Year", record.Year);
    report.vbwReportVariable(u"EditionBookChapterYear.Page", record.Page);
    report.vbwReportVariable(u"EditionBookChapterYear.author", record.author);
    report.vbwReportVariable(u"EditionBookChapterYear.isReprintBook", record.isReprintBook);
    report.vbwReportVariable(u"EditionBookChapterYear.isSpecialIssue", record.isSpecialIssue);
    report.vbwReportVariable(u"EditionBookChapterYear.chapterOrArticleTitle", record.chapterOrArticleTitle);
    report.vbwReportVariable(u"EditionBookChapterYear.AuthorType", record.AuthorType);
    report.vbwReportVariable(u"EditionBookChapterYear.TitleType", record.TitleType);
    report.vbwReportVariable(u"NumEdition", mNumberedEdition.NumEdition);
    report.vbwReportVariable(u"IsNew", mNumberedEdition.IsNew);
    report.vbwReportVariable(u"IsEnlarged", mNumberedEdition.IsEnlarged);
    report.vbwReportVariable(u"IsRevised", mNumberedEdition.IsRevised);
    report.vbwReportVariable(u"RevisedBy", mNumberedEdition.RevisedBy);
    report.vbwReportVariable(u"NumVolume", mNumberedEdition.NumVolume);
    report.vbwReportVariable(u"mOldAuthor", mOldAuthor);
    report.vbwReportVariable(u"mFormat", mFormat);
    report.vbwReportVariable(u"mParsedNumberedOrNamedEdition", mParsedNumberedOrNamedEdition);
    report.vbwReportVariable(u"mAddEdToNumberedEdition", mAddEdToNumberedEdition);
    report.vbwReportVariable(u"mTokens", mTokens);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
    report.vbwReportVariable(u"mPageTemplate", HostObjectRef());
    report.vbwReportVariable(u"mFormattedStr", HostObjectRef());
}

}  // namespace quorvel

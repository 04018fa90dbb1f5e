#include "elements/title/title.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/title/quotes.h"
#include "elements/title/types.h"

namespace quorvel {

namespace {

constexpr TextView kSubtitleSeparator = u": ";

bool isClosingQuotationMark(char16_t unit) {
    return unit == kRightDoubleQuotationMark || unit == u'"';
}

/// "Phys. Rev. Lett.": the last two words have stops.
bool isAbbreviated(TextView text) {
    const std::size_t blank = text.find_last_of(u' ');
    return blank != TextView::npos && blank > 0 && text[blank - 1] == u'.';
}

// What MLA and Turabian write behind a title in quotation marks.
constexpr TextView kLetterTexts[] = {u" Letter", u" letter", u" letter to the editor"};

/// Takes the text that describes a letter off the end of its title, and returns the type; empty when there is none.
Text removeDescribingText(Text& text) {
    const TextView title = trim(text, u".");
    for (const TextView description : kLetterTexts) {
        const bool isBehindQuote = endsWith(title, description) && title.size() > description.size() &&
                                   isClosingQuotationMark(title[title.size() - description.size() - 1]);
        if (isBehindQuote) {
            text.resize(title.size() - description.size());
            return titletypes::typeOfDescribingText(trim(description));
        }
    }
    return {};
}

}  // namespace

void OutputTemplateTitle::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        mPrematterTypes = titletypes::prematterTypes();
        makeAssembly(formattedStr);
        layOutForFormat();
        mFormattedStr = object(formattedStr).Clone();
    });
}

void OutputTemplateTitle::Reset(const TitleOptions& options) {
    procedure(*this, u"Reset", reported(kTitleOptions, options), [&] {
        mFormat = options.format;
        mSentenceCapitalization = options.sentenceCapitalization;
        mCapitalizeHyphenatedWord = options.capitalizeHyphenatedWord;
        mBookAndArticleRule = options.BookAndArticleRule;
        mCapitalizeSubtitle = options.capitalizeSubtitle;
        mChapterAndWebsiteRule = options.chapterAndWebsiteRule;
        mUnItalicizeSpeciesAndNamesOfShips = options.UnItalicizeSpeciesAndNamesOfShips;
        setTitleTypes(options.titleTypes);
        layOutForFormat();
        // A copy with the new settings and the persons that were read: the host goes on using its own.
        const std::vector<Text> persons = mAuthorTemplate ? held(mAuthorTemplate)->authors() : std::vector<Text>();
        mAuthorTemplate = options.authorTemplate ? options.authorTemplate->Clone() : nullptr;
        if (mAuthorTemplate) {
            held(mAuthorTemplate)->ClearAuthors();
            held(mAuthorTemplate)->authors(persons);
        }
    });
}

std::shared_ptr<OutputTemplateTitle> OutputTemplateTitle::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateTitle>();
        CloneImpl(*clone);
        return clone;
    });
}

std::shared_ptr<OutputTemplateTitle> OutputTemplateTitle::CloneForHeadingCapitalization() const {
    return procedure(*this, u"CloneForHeadingCapitalization", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateTitle>();
        CloneImpl(*clone);
        clone->mSentenceCapitalization = false;
        return clone;
    });
}

void OutputTemplateTitle::CloneImpl(OutputTemplateTitle& clone) const {
    procedure(*this, u"CloneImpl", kNoParameters, [&] {
        clone.mFormat = mFormat;
        clone.mValues = mValues;
        clone.mTitleType = mTitleType;
        clone.mIsChapterOrWebsite = mIsChapterOrWebsite;
        clone.mCapitalizeSubtitle = mCapitalizeSubtitle;
        clone.mSentenceCapitalization = mSentenceCapitalization;
        clone.mCapitalizeHyphenatedWord = mCapitalizeHyphenatedWord;
        clone.mBookAndArticleRule = mBookAndArticleRule;
        clone.mChapterAndWebsiteRule = mChapterAndWebsiteRule;
        clone.mUnItalicizeSpeciesAndNamesOfShips = mUnItalicizeSpeciesAndNamesOfShips;
        clone.mSubworkTypes = mSubworkTypes;
        clone.mUsesTitleType = mUsesTitleType;
        clone.mUsesTitle = mUsesTitle;
        clone.mUsesSubtitle = mUsesSubtitle;
        clone.mTitleSubtypes = mTitleSubtypes;
        clone.mPunctuation = mPunctuation;
        clone.mOpeningQuotationMark = mOpeningQuotationMark;
        clone.mClosingQuotationMark = mClosingQuotationMark;
        if (mFormattedStr) {
            clone.Initialize(OutputSinkRef(mFormattedStr));
        }
        clone.mAuthorTemplate = mAuthorTemplate ? held(mAuthorTemplate)->Clone() : nullptr;
    });
}

// Reading.

void OutputTemplateTitle::Parse(Text& text, TextView secondaryStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"secondaryStr", secondaryStr}}, [&] {
        cleanUpInPlace(text);
        mTitleType = titletypes::spelled(secondaryStr);
        for (Text& value : mValues) {
            value.clear();
        }
        mPunctuation.clear();
        if (mAuthorTemplate) {
            held(mAuthorTemplate)->ClearAuthors();
        }
        // A copy: the reports reach the host, which may give another type.
        const Text type = mTitleType;
        parseAndRemovePrematter(text, type);
        parseAndRemoveTranslation(text);
        if (const Text behind = removeDescribingText(text); mTitleType.empty()) {
            mTitleType = behind;
        }
        // The full stop of the reference, but not one of the title's own: "U.S.", "What Is Art? . . .".
        if (endsWith(text, u".") && !endsWith(text, u"..") && !endsWith(text, u". .") && !isAbbreviated(text) &&
            !titlecase::isStopOfWord(text, text.size() - 1)) {
            text.pop_back();
        }
        const bool hasOwnMarks = text.size() >= mOpeningQuotationMark.size() + mClosingQuotationMark.size() &&
                                 !mOpeningQuotationMark.empty() && startsWith(text, mOpeningQuotationMark) &&
                                 endsWith(text, mClosingQuotationMark);
        if (hasOwnMarks) {
            const TextView title =
                TextView(text).substr(mOpeningQuotationMark.size(),
                                      text.size() - mOpeningQuotationMark.size() - mClosingQuotationMark.size());
            text = titlequotes::quoted(title);
        }
        const bool isQuoted = text.size() > 1 && (text.front() == kLeftDoubleQuotationMark || text.front() == u'"') &&
                              (text.back() == kRightDoubleQuotationMark || text.back() == u'"') &&
                              text.find_first_of(u"\u201D\"", 1) == text.size() - 1;
        if (isQuoted) {
            text = titlequotes::withDoubleQuotationMarks(TextView(text).substr(1, text.size() - 2));
            removeSuffix(text, u",");
            if (endsWith(text, u".") && !titlecase::isStopOfWord(text, text.size() - 1)) {
                text.pop_back();
            }
        }
        // Most titles have no subtitle.
        const bool hasColon = anyUnit(text, [](char16_t unit) { return unit == u':'; });
        const std::size_t colon = hasColon ? text.find(kSubtitleSeparator) : Text::npos;
        mValues.at(kTitle) = trim(TextView(text).substr(0, colon));
        if (colon != Text::npos) {
            mValues.at(kSubtitle) = trim(TextView(text).substr(colon + kSubtitleSeparator.size()));
        }
        text.clear();
    });
}

void OutputTemplateTitle::parseAndRemoveTranslation(Text& text) {
    procedure(*this, u"parseAndRemoveTranslation", {{u"text", text}}, [&] {
        const std::size_t close = text.find_last_not_of(u". ");
        if (close == Text::npos || text[close] != u']') {
            return;
        }
        const std::size_t open = text.rfind(u'[', close);
        if (open == Text::npos) {
            return;
        }
        const Text inside(trim(TextView(text).substr(open + 1, close - open - 1)));
        const Text type = titletypes::typeOfDescribingText(inside);
        if (type.empty()) {
            mValues.at(kTranslation) = inside;
        } else if (mTitleType.empty()) {
            mTitleType = type;
        }
        text = trim(TextView(text).substr(0, open));
    });
}

void OutputTemplateTitle::parseAndRemovePrematter(Text& text, TextView secondaryStr) {
    procedure(*this, u"parseAndRemovePrematter", {{u"text", text}, {u"secondaryStr", secondaryStr}}, [&] {
        Text type;
        for (const Text& name : mPrematterTypes) {
            if (startsWithIgnoringCase(text, name)) {
                type = name;
            }
        }
        bool isFound = titletypes::isPrematter(secondaryStr);
        if (type.empty() && !isFound) {
            return;
        }
        constexpr TextView kByTexts[] = {u", by ", u". By "};
        std::size_t by = Text::npos;
        for (const TextView joint : kByTexts) {
            by = by == Text::npos ? text.rfind(joint) : by;
        }
        if (!type.empty()) {
            // "Introduction to Algorithms" is a book; with an author it is the introduction of one.
            const TextView rest = TextView(text).substr(type.size());
            const bool isNamed = by != Text::npos || isFound;
            TextView joint;
            for (const TextView candidate : {TextView(u". In "), TextView(u" to "), TextView(u". ")}) {
                joint = joint.empty() && startsWith(rest, candidate) ? candidate : joint;
            }
            const bool isWhole =
                rest.empty() || rest == u"." || startsWith(rest, u", by ") || startsWith(rest, u". By ");
            const bool isJoined = joint == u". In " || (!joint.empty() && isNamed);
            if (isWhole || isJoined) {
                isFound = true;
                mTitleType = type;
                const std::size_t cut = type.size() + (isWhole ? 0 : joint.size());
                text.erase(0, cut);
                by = by != Text::npos && by >= cut ? by - cut : Text::npos;
                if (text == u".") {
                    text.clear();
                }
            }
        }
        if (!isFound || by == Text::npos || !mAuthorTemplate) {
            return;
        }
        Text author = text.substr(by + kByTexts[0].size());
        removeSuffix(author, u".");
        text.erase(by);
        held(mAuthorTemplate)->Parse(author, {});
    });
}

// Properties.

Text OutputTemplateTitle::value(std::int16_t index) const {
    return procedure(*this, u"value[Get]", {{u"index", index}},
                     [&]() -> Text { return mValues.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateTitle::value(std::int16_t index, TextView theVal) {
    procedure(*this, u"value[Let]", {{u"index", index}, {u"theVal", theVal}},
              [&] { mValues.at(static_cast<std::size_t>(index)) = theVal; });
}

Text OutputTemplateTitle::TitleType() const {
    return procedure(*this, u"TitleType[Get]", kNoParameters, [&] { return mTitleType; });
}

void OutputTemplateTitle::TitleType(TextView value) {
    procedure(*this, u"TitleType[Let]", {{u"value", value}}, [&] { mTitleType = titletypes::spelled(value); });
}

bool OutputTemplateTitle::IsChapterOrWebsite() const {
    return procedure(*this, u"IsChapterOrWebsite[Get]", kNoParameters, [&] { return mIsChapterOrWebsite; });
}

void OutputTemplateTitle::IsChapterOrWebsite(bool value) {
    procedure(*this, u"IsChapterOrWebsite[Let]", {{u"value", value}}, [&] { mIsChapterOrWebsite = value; });
}

bool OutputTemplateTitle::IsSentenceCapitalization() const {
    return procedure(*this, u"IsSentenceCapitalization[Get]", kNoParameters, [&] { return mSentenceCapitalization; });
}

std::vector<Text> OutputTemplateTitle::subworkTypes() const {
    return procedure(*this, u"subworkTypes[Get]", kNoParameters, [&] { return mSubworkTypes; });
}

std::vector<Text> OutputTemplateTitle::TitleSubtypes() const {
    return procedure(*this, u"TitleSubtypes[Get]", kNoParameters, [&] { return mTitleSubtypes; });
}

void OutputTemplateTitle::setTitleTypes(TextView values) {
    procedure(*this, u"setTitleTypes", {{u"values", values}}, [&] {
        mSubworkTypes.clear();
        mTitleSubtypes.clear();
        for (const Text& type : split(values, u",")) {
            mSubworkTypes.emplace_back(trim(type));
            if (!titletypes::isPrematter(mSubworkTypes.back())) {
                mTitleSubtypes.push_back(mSubworkTypes.back());
            }
        }
        mUsesTitleType = !trim(values).empty();
    });
}

bool OutputTemplateTitle::UsesTitleType() const {
    return procedure(*this, u"UsesTitleType[Get]", kNoParameters, [&] { return mUsesTitleType; });
}

bool OutputTemplateTitle::UsesTitle() const {
    return procedure(*this, u"UsesTitle[Get]", kNoParameters, [&] { return mUsesTitle; });
}

bool OutputTemplateTitle::UsesSubtitle() const {
    return procedure(*this, u"UsesSubtitle[Get]", kNoParameters, [&] { return mUsesSubtitle; });
}

Text OutputTemplateTitle::TitleTypeToCaption(TextView type) const {
    return procedure(*this, u"TitleTypeToCaption", {{u"type", type}}, [&] { return titletypes::captionOf(type); });
}

Text OutputTemplateTitle::CaptionToTitleType(TextView caption) const {
    return procedure(*this, u"CaptionToTitleType", {{u"caption", caption}},
                     [&] { return titletypes::typeOf(caption); });
}

std::vector<Text> OutputTemplateTitle::prematterTypes() const {
    return procedure(*this, u"prematterTypes[Get]", kNoParameters, [&] { return mPrematterTypes; });
}

bool OutputTemplateTitle::isPrematter(TextView theType) const {
    return procedure(*this, u"isPrematter", {{u"theType", theType}}, [&] { return titletypes::isPrematter(theType); });
}

bool OutputTemplateTitle::prematterHasTitle() const {
    return procedure(*this, u"prematterHasTitle[Get]", kNoParameters,
                     [&] { return titletypes::isPrematter(mTitleType) && !mValues.at(kTitle).empty(); });
}

void OutputTemplateTitle::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mFormat", mFormat);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mValues", mValues);
    report.vbwReportVariable(u"mTitleType", mTitleType);
    report.vbwReportVariable(u"mIsChapterOrWebsite", mIsChapterOrWebsite);
    report.vbwReportVariable(u"mCapitalizeSubtitle", mCapitalizeSubtitle);
    report.vbwReportVariable(u"mSentenceCapitalization", mSentenceCapitalization);
    report.vbwReportVariable(u"mCapitalizeHyphenatedWord", mCapitalizeHyphenatedWord);
    report.vbwReportVariable(u"mBookAndArticleRule", mBookAndArticleRule);
    report.vbwReportVariable(u"mChapterAndWebsiteRule", mChapterAndWebsiteRule);
    report.vbwReportVariable(u"mUnItalicizeSpeciesAndNamesOfShips", mUnItalicizeSpeciesAndNamesOfShips);
    report.vbwReportVariable(u"mSubworkTypes", mSubworkTypes);
    report.vbwReportVariable(u"mUsesTitleType", mUsesTitleType);
    report.vbwReportVariable(u"mUsesTitle", mUsesTitle);
    report.vbwReportVariable(u"mUsesSubtitle", mUsesSubtitle);
    report.vbwReportVariable(u"mTitleSubtypes", mTitleSubtypes);
    report.vbwReportVariable(u"mPunctuation", mPunctuation);
    report.vbwReportVariable(u"mPrematterTypes", mPrematterTypes);
    report.vbwReportVariable(u"mAuthorTemplate", mAuthorTemplate);
    report.vbwReportVariable(u"mOpeningQuotationMark", mOpeningQuotationMark);
    report.vbwReportVariable(u"mClosingQuotationMark", mClosingQuotationMark);
}

}  // namespace quorvel

#include "elements/refers_to/refers_to.h"

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/captions.h"
#include "elements/refers_to/text.h"

namespace quorvel {

namespace {

using namespace referstokinds;

constexpr TextView kRefersTo = u"Refers to";
constexpr TextView kAbstract = u"Abstract";
constexpr TextView kNewspaper = u"Newspaper";

// Two captions are stored under another name, the second one deliberately as the kind beside it.
constexpr Caption kStoredTypes[] = {{kRefersTo, u"Regular"}, {kAbstract, u"Abstract of"}};
// What a form shows for them. "Text" is what hosts store that know no kinds.
constexpr Caption kShown[] = {{kRefersTo, u"Regular"}, {u"Text", u"Regular"}};
constexpr Caption kShownByAma[] = {{kRefersTo, u"Regular"}, {u"Text", u"Regular"}, {kAbstract, u"Abstract of"}};

// MLA 7 5.5.6.
constexpr TextView kReprintPrefix = u"Rpt. in ";
constexpr TextView kShortEdition = u" ed.";
constexpr TextView kLongEdition = u" edition";

/// A new element that is ready for use.
template <class Element>
std::shared_ptr<Element> newElement(const OutputSinkRef& formattedString) {
    auto element = std::make_shared<Element>();
    element->Initialize(formattedString);
    return element;
}

}  // namespace

OutputTemplateRefersTo::OutputTemplateRefersTo()
    : mRefersToType(kRefersTo), mKind(&referstokinds::kindOf(mRefersToType)) {}

void OutputTemplateRefersTo::Initialize(const OutputSinkRef& formattedString) {
    procedure(*this, u"Initialize", {{u"formattedString", formattedString}}, [&] {
        replace(mFormattedStr, object(formattedString).Clone());
        const OutputSinkRef sink = mFormattedStr;
        replace(mYearTemplate, newElement<OutputTemplateYear>(sink));
        replace(mNewspaperTemplate, newElement<OutputTemplateNewspaper>(sink));
        replace(mReprintTemplate, newElement<outputTemplate>(sink));
        replace(mSerializedTemplate, newElement<outputTemplate>(sink));
        replace(mAbstractTemplate, newElement<outputTemplate>(sink));
        replace(mSerialArticleTemplate, newElement<outputTemplate>(sink));
        Reset({});
    });
}

void OutputTemplateRefersTo::Reset(const RefersToOptions& options) {
    procedure(*this, u"Reset", reported(kRefersToOptions, options), [&] {
        // Copies of all: a copy of an element reports, and the host may give other options meanwhile.
        const RefersToOptions given = options;
        const OutputSinkRef sink = mFormattedStr;
        mUseDots = given.useDots;
        mUseSer = given.useSer;
        mUseTrans = given.useTrans;
        mEditionPostfix = given.endsEditionWithEd ? kShortEdition : kLongEdition;
        mReprintPrefix = kReprintPrefix;
        if (mFormat != given.format) {
            mFormat = given.format;
            mSettingsInitialized = false;
        }
        replace(mAuthorTemplate, given.authorTemplate ? given.authorTemplate->Clone() : nullptr);
        replace(mPageTemplate, given.pageTemplate ? given.pageTemplate->Clone() : newElement<OutputTemplatePage>(sink));
        replace(mPublisherTemplate, given.publisherTemplate ? given.publisherTemplate->Clone(sink)
                                                            : newElement<OutputTemplatePublisher>(sink));
        // MLA 7 5.4.5, Turabian 7 17.4.2. A city is always written: it would be gone otherwise.
        const bool isMla = stylecodes::isMla(given.format);
        held(mNewspaperTemplate)->Reset({given.format == stylecodes::kApa, isMla ? u"[]" : u"()", {}});
        ResetFormatSettings(mIsNewspaper);
        layOutAll();
    });
}

void OutputTemplateRefersTo::ResetFormatSettings(bool isNewspaper) {
    procedure(*this, u"ResetFormatSettings", {{u"isNewspaper", isNewspaper}}, [&] {
        if (mSettingsInitialized && mIsNewspaper == isNewspaper) {
            return;
        }
        mIsNewspaper = isNewspaper;
        mSupportedTypes.clear();
        mSettings.clear();
        for (const TextView caption : referstokinds::offeredKinds(mFormat, isNewspaper)) {
            mSupportedTypes.emplace_back(caption);
            mSettings.emplace_back(referstokinds::kindOf(caption).settings);
        }
        mSettingsInitialized = true;
    });
}

Text OutputTemplateRefersTo::settings(std::int16_t index) const {
    return procedure(*this, u"settings[Get]", {{u"index", index}},
                     [&] { return mSettings.at(static_cast<std::size_t>(index)); });
}

std::vector<Text> OutputTemplateRefersTo::supportedTypes(TextView secondaryText) {
    return procedure(*this, u"supportedTypes[Get]", {{u"secondaryText", secondaryText}}, [&] {
        ResetFormatSettings(equalsIgnoringCase(secondaryText, kNewspaper));
        return mSupportedTypes;
    });
}

bool OutputTemplateRefersTo::isAMAJournalVol() const {
    return procedure(*this, u"isAMAJournalVol[Get]", kNoParameters, [&] {
        const Form form = kind().form;
        return mFormat == stylecodes::kAma && (form == Form::kJournal || form == Form::kAbstract) && hasLayout() &&
               !abstractPublishedInJournalProceedings();
    });
}

bool OutputTemplateRefersTo::AbstractDateIsYear() const {
    return procedure(*this, u"AbstractDateIsYear[Get]", kNoParameters, [&] { return mAbstractDateIsYear; });
}

Text OutputTemplateRefersTo::value(std::int16_t index) const {
    return procedure(*this, u"value[Get]", {{u"index", index}},
                     [&] { return mValues.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateRefersTo::value(std::int16_t index, TextView theVal) {
    procedure(*this, u"value[Let]", {{u"index", index}, {u"theVal", theVal}}, [&] {
        mValues.at(static_cast<std::size_t>(index)) = theVal;
        noteDate();
    });
}

Text OutputTemplateRefersTo::TitleTypeToCaption(TextView theType) const {
    return procedure(*this, u"TitleTypeToCaption", {{u"theType", theType}}, [&] {
        return mFormat == stylecodes::kAma ? quorvel::captionOf(theType, kShownByAma)
                                           : quorvel::captionOf(theType, kShown);
    });
}

Text OutputTemplateRefersTo::CaptionToTitleType(TextView caption) const {
    return procedure(*this, u"CaptionToTitleType", {{u"caption", caption}},
                     [&] { return typeOf(caption, kStoredTypes); });
}

bool OutputTemplateRefersTo::abstractPublishedInJournalProceedings() const {
    return procedure(*this, u"abstractPublishedInJournalProceedings", kNoParameters, [&] {
        if (kind().form != Form::kAbstract || mValues.at(journalValue(kJournalNumber)).empty()) {
            return false;
        }
        for (std::size_t i = 0; i < kValues; ++i) {
            if (i != journalValue(kJournal) && i != journalValue(kJournalNumber) && !mValues.at(i).empty()) {
                return false;
            }
        }
        return true;
    });
}

Text OutputTemplateRefersTo::RefersToType() const {
    return procedure(*this, u"RefersToType[Get]", kNoParameters, [&] { return mRefersToType; });
}

void OutputTemplateRefersTo::RefersToType(TextView theVal) {
    procedure(*this, u"RefersToType[Let]", {{u"theVal", theVal}}, [&] {
        mRefersToType = typeOf(theVal, kStoredTypes);
        mKind = &referstokinds::kindOf(mRefersToType);
        noteDate();
    });
}

/// What the statement has for a date, when it is about a journal.
void OutputTemplateRefersTo::noteDate() {
    const Form form = kind().form;
    const bool hasJournal = form == Form::kJournal || form == Form::kAbstract;
    const Text date = hasJournal ? valueAt(journalValue(kJournalYear)) : Text();
    mAbstractUsesYear = !date.empty();
    // The year element tries every reading of a date; most have none.
    mAbstractDateIsYear = mAbstractUsesYear && (referstotext::isYear(date) || held(mYearTemplate)->isYear(date));
}

const Kind& OutputTemplateRefersTo::kind() const {
    return *mKind;
}

bool OutputTemplateRefersTo::hasValues() const {
    return std::any_of(mValues.begin(), mValues.end(), [](const Text& value) { return !value.empty(); });
}

std::size_t OutputTemplateRefersTo::journalValue(std::size_t offset) const {
    return static_cast<std::size_t>(kind().journal) + offset;
}

void OutputTemplateRefersTo::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mRefersToType", mRefersToType);
    report.vbwReportVariable(u"mSupportedTypes", mSupportedTypes);
    report.vbwReportVariable(u"mSettings", mSettings);
    report.vbwReportVariable(u"mFormat", mFormat);
    report.vbwReportVariable(u"mSettingsInitialized", mSettingsInitialized);
    report.vbwReportVariable(u"mIsNewspaper", mIsNewspaper);
    report.vbwReportVariable(u"mUseDots", mUseDots);
    report.vbwReportVariable(u"mUseSer", mUseSer);
    report.vbwReportVariable(u"mUseTrans", mUseTrans);
    report.vbwReportVariable(u"mAbstractDateIsYear", mAbstractDateIsYear);
    report.vbwReportVariable(u"mAbstractUsesYear", mAbstractUsesYear);
    report.vbwReportVariable(u"mReprintPrefix", mReprintPrefix);
    report.vbwReportVariable(u"mEditionPostfix", mEditionPostfix);
    report.vbwReportVariable(u"mValues", mValues);
    for (const Name& name : {Name(u"mAuthorTemplate"), Name(u"mYearTemplate"), Name(u"mNewspaperTemplate"),
                             Name(u"mPageTemplate"), Name(u"mPublisherTemplate"), Name(u"mReprintTemplate"),
                             Name(u"mSerializedTemplate"), Name(u"mAbstractTemplate")}) {
        report.vbwReportVariable(name, HostObjectRef());
    }
    report.vbwReportVariable(u"mFormattedStr", mFormattedStr);
}

}  // namespace quorvel

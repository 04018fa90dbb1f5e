#include "elements/multi_vol/multi_vol.h"

#include <algorithm>
#include <array>

#include "core/procedure.h"
#include "elements/multi_vol/layout.h"
#include "elements/multi_vol/text.h"

namespace quorvel {

namespace {

constexpr TextView kSeriesCaption = u"Series";

bool offersAny(const std::vector<bool>& options) {
    return std::find(options.begin(), options.end(), true) != options.end();
}

}  // namespace

bool OutputTemplateMultiVol::offers(const std::vector<bool>& options, std::size_t offer) {
    return offer < options.size() && options[offer];
}

void OutputTemplateMultiVol::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        const auto year = std::make_shared<OutputTemplateYear>();
        mYearTemplate = year;
        year->Initialize(formattedStr);
        makeAssemblies(formattedStr);
        Reset({});
    });
}

std::vector<bool> OutputTemplateMultiVol::SupportSeriesOptions() const {
    return procedure(*this, u"SupportSeriesOptions[Get]", kNoParameters,
                     [&] { return mOptions.theSupportSeriesOptions; });
}

std::vector<bool> OutputTemplateMultiVol::SupportMultiVolumeOptions() const {
    return procedure(*this, u"SupportMultiVolumeOptions[Get]", kNoParameters,
                     [&] { return mOptions.theSupportMultiVolumeOptions; });
}

bool OutputTemplateMultiVol::SupportConcurrentVolsAndTextBoxes() const {
    return procedure(*this, u"SupportConcurrentVolsAndTextBoxes[Get]", kNoParameters,
                     [&] { return offers(mOptions.theSupportMultiVolumeOptions, kMarker); });
}

bool OutputTemplateMultiVol::IsSeriesSupported() const {
    return procedure(*this, u"IsSeriesSupported[Get]", kNoParameters,
                     [&] { return offersAny(mOptions.theSupportSeriesOptions); });
}

bool OutputTemplateMultiVol::IsMultiVolSupported() const {
    return procedure(*this, u"IsMultiVolSupported[Get]", kNoParameters,
                     [&] { return offersAny(mOptions.theSupportMultiVolumeOptions); });
}

bool OutputTemplateMultiVol::IsSeriesTypeSupported() const {
    return procedure(*this, u"IsSeriesTypeSupported[Get]", kNoParameters, [&] { return mIsSeriesTypeSupported; });
}

bool OutputTemplateMultiVol::SupportGeneralEditor() const {
    return procedure(*this, u"SupportGeneralEditor[Get]", kNoParameters, [&] { return mOptions.SupportGeneralEditor; });
}

void OutputTemplateMultiVol::Reset(const MultiVolOptions& options) {
    procedure(*this, u"Reset", reported(kMultiVolOptions, options), [&] {
        mOptions = options;
        mAlwaysUseMultiVolTemplate = determineIfAlwaysUseMultiVolTemplate();
        mAlwaysUseSeriesTemplate = determineIfAlwaysUseSeriesTemplate();
        mIsSeriesTypeSupported = determineIfSeriesTypeSupported();
        mEditorFootnotePrefix = options.overrideDefaultEditorPrefix ? u", ed. " : u". ed. ";
        mEditorBibliographyPrefix = options.overrideDefaultEditorPrefix ? u", edited by " : u". Ed. ";
        const TextView end = options.addPeriodToVol ? u". " : u" ";
        VOLBI = concatenate({u"Vol", end});
        VOLFO = concatenate({u"vol", end});
        VOLBS = concatenate({u"Vols", end});
        VOLFS = concatenate({u"vols", end});
        // No option tells the dash of ranges. Of the styles, those write U+2013 that count with the word in front (APA)
        // or join editors by a comma (Turabian), but not AMA.
        mUsesEnDash = !isAMA() && (options.prefixedVols || options.overrideDefaultEditorPrefix);
        YearOptions years;
        years.useEnDashForYearRange = mUsesEnDash;
        held(mYearTemplate)->Reset(years);
        layOutStatements();
    });
}

void OutputTemplateMultiVol::layOutStatements() {
    using namespace volumelayouts;
    const bool isAMA = this->isAMA();
    const bool isPrefixed = mOptions.prefixedVols;
    const bool joinsByOf = mOptions.volTitleSeparator.empty();
    const Text& separator = mOptions.volTitleSeparator;
    const TextView wordBehindCount = TextView(VOLFS).substr(0, VOLFS.size() - 1);

    std::array<Text, kStyleTexts> texts;
    texts[kOf] = joinsByOf ? Text(u" of ") : separator;
    texts[kOwnTitle] = joinsByOf ? Text(u", ") : separator;
    texts[kEditorInList] = mEditorBibliographyPrefix;
    texts[kEditorInNote] = mEditorFootnotePrefix;
    texts[kFirstEditor] = editorWord(false);
    if (mOptions.SupportGeneralEditor) {
        // Whether a word stands before the name depends on the editor.
        texts[kEditorInList] = texts[kEditorInNote] = u". ";
        texts[kFirstEditor].clear();
    }
    texts[kFirstVols] = VOLBS;
    texts[kVolsInList] = concatenate({u". ", isPrefixed ? TextView(VOLBS) : TextView()});
    texts[kVolsInNote] = concatenate({u", ", isPrefixed ? TextView(VOLFS) : TextView()});
    texts[kBehindVols] = concatenate({u" ", wordBehindCount});
    texts[kVolsBeforeYear] = concatenate({u" ", VOLFS});
    texts[kSeriesVolumeWithWord] = isAMA        ? concatenate({u"; ", VOLFO})
                                   : isPrefixed ? concatenate({u": ", VOLBI})
                                                : concatenate({u", ", VOLFO});
    const bool isWithoutWord = !isAMA && !isPrefixed;
    texts[kSeriesVolume] = isWithoutWord ? Text(u" ") : texts[kSeriesVolumeWithWord];
    texts[kVolumeBehindEditor] = texts[kSeriesVolumeWithWord];
    texts[kVolumeBehindType] = isWithoutWord ? Text(u", ") : texts[kSeriesVolumeWithWord];

    std::array<TextView, kStyleTexts> views;
    std::copy(texts.begin(), texts.end(), views.begin());
    layOut(isPrefixed ? kPrefixed : mOptions.supportVolsToDate ? kCountedToDate : kCounted, views);
    layOutSecond(kSeriesLayout, views);
}

Text OutputTemplateMultiVol::secondaryOutput() const {
    return procedure(*this, u"secondaryOutput[Get]", kNoParameters,
                     [&] { return Text(IsMultiVol ? kMultiVolCaption : kSeriesCaption); });
}

bool OutputTemplateMultiVol::isAMA() const {
    return procedure(*this, u"isAMA[Get]", kNoParameters,
                     [&] { return !mOptions.addPeriodToVol && mOptions.volTitleSeparator == u": "; });
}

Text OutputTemplateMultiVol::Title() const {
    return procedure(*this, u"Title[Get]", kNoParameters, [&] { return mTitle; });
}

void OutputTemplateMultiVol::Title(TextView theVal) {
    procedure(*this, u"Title[Let]", {{u"theVal", theVal}}, [&] { mTitle = volumetext::withFullSeries(theVal); });
}

bool OutputTemplateMultiVol::useMultiVol() const {
    return procedure(*this, u"useMultiVol", kNoParameters,
                     [&] { return mAlwaysUseMultiVolTemplate || (IsMultiVol && !mAlwaysUseSeriesTemplate); });
}

/// The style offers nothing of a series.
bool OutputTemplateMultiVol::determineIfAlwaysUseMultiVolTemplate() const {
    return procedure(*this, u"determineIfAlwaysUseMultiVolTemplate", kNoParameters, [&] {
        return offersAny(mOptions.theSupportMultiVolumeOptions) && !offersAny(mOptions.theSupportSeriesOptions);
    });
}

/// The style offers nothing of a work in several volumes.
bool OutputTemplateMultiVol::determineIfAlwaysUseSeriesTemplate() const {
    return procedure(*this, u"determineIfAlwaysUseSeriesTemplate", kNoParameters, [&] {
        return offersAny(mOptions.theSupportSeriesOptions) && !offersAny(mOptions.theSupportMultiVolumeOptions);
    });
}

bool OutputTemplateMultiVol::determineIfSeriesTypeSupported() const {
    return procedure(*this, u"determineIfSeriesTypeSupported", kNoParameters,
                     [&] { return offers(mOptions.theSupportSeriesOptions, kMarker); });
}

void OutputTemplateMultiVol::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mSupportSeriesOptions", mOptions.theSupportSeriesOptions);
    report.vbwReportVariable(u"mSupportMultiVolumeOptions", mOptions.theSupportMultiVolumeOptions);
    report.vbwReportVariable(u"VOLBI", VOLBI);
    report.vbwReportVariable(u"VOLFO", VOLFO);
    report.vbwReportVariable(u"VOLBS", VOLBS);
    report.vbwReportVariable(u"VOLFS", VOLFS);
    report.vbwReportVariable(u"IsMultiVol", IsMultiVol);
    report.vbwReportVariable(u"EditorType", EditorType);
    report.vbwReportVariable(u"Volume", Volume);
    report.vbwReportVariable(u"Number", Number);
    report.vbwReportVariable(u"mTitle", mTitle);
    report.vbwReportVariable(u"editor", editor);
    report.vbwReportVariable(u"Vols", Vols);
    report.vbwReportVariable(u"Year", Year);
    report.vbwReportVariable(u"LowerCaseVol", LowerCaseVol);
    report.vbwReportVariable(u"mSupportGeneralEditor", mOptions.SupportGeneralEditor);
    report.vbwReportVariable(u"mShortenSeriesInTitle", mOptions.shortenSeriesInTitle);
    report.vbwReportVariable(u"mAlwaysUseMultiVolTemplate", mAlwaysUseMultiVolTemplate);
    report.vbwReportVariable(u"mAlwaysUseSeriesTemplate", mAlwaysUseSeriesTemplate);
    report.vbwReportVariable(u"mIsSeriesTypeSupported", mIsSeriesTypeSupported);
    report.vbwReportVariable(u"mPrefixedVols", mOptions.prefixedVols);
    report.vbwReportVariable(u"mEditorFootnotePrefix", mEditorFootnotePrefix);
    report.vbwReportVariable(u"mEditorBibliographyPrefix", mEditorBibliographyPrefix);
    report.vbwReportVariable(u"mSeriesOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mMultiVolOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
}

}  // namespace quorvel

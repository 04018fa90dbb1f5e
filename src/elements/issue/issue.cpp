#include "elements/issue/issue.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/captions.h"
#include "elements/issue/issue_text.h"
#include "elements/title/quotes.h"

namespace quorvel {

namespace {

constexpr std::size_t kValues = 5;

/// Every kind but the special issue stands in the first slot.
enum Slot : std::size_t { kNumberSlot, kTitleSlot, kEditorSlot, kWordsSlot };

/// What stands between the number and the words of a special issue.
enum StyleText { kBeforeWords };

// Turabian 7 17.3.6
constexpr SlotLayout kTurabianLayout({
    {kPlainSlot, {u"", u", ", u", edited by ", u". ", u""}, {u"", u", ", u", ed. ", u", ", u""}},
    {kFormattedSlot, {u"", u", edited by ", u". ", u""}, {u"", u", ed. ", u", ", u""}},
    {kPlainSlot, {u"edited by ", u". ", u""}, {u"ed. ", u", ", u""}},
    {kPlainSlot, {u"", u""}},
});
// Without any word, deliberately.
constexpr SlotLayout kMlaLayout({
    {kPlainSlot, {u"", u", ", u", ", u"", u""}},
    {kFormattedSlot, {u"", u". ", u"", u""}},
    {kPlainSlot, {u"", u"", u""}},
    {kPlainSlot, {u"", u""}},
});
// MLA 7 5.4.12, for all other codes, deliberately.
constexpr SlotLayout kCommonLayout({
    {kPlainSlot, {u"", u", ", u", Ed. ", kBeforeWords, u""}},
    {kFormattedSlot, {u"", u". Ed. ", u". ", u""}},
    {kPlainSlot, {u"Ed. ", u". ", u""}},
    {kPlainSlot, {u"", u""}},
});

constexpr TextView kRegular = u"Issue type";
constexpr TextView kRegularCaption = u"Regular";
constexpr TextView kSpecial = u"Special issue";
constexpr TextView kTheme = u"Theme issue";
constexpr TextView kSupplement = u"Supplement";
constexpr TextView kEditionKind = u"Edition";

// A theme issue is a special one in storage, deliberately.
constexpr Caption kCaptions[] = {{kRegular, kRegularCaption}, {kSpecial, kTheme}};
constexpr TextView kOfferedKinds[] = {kTheme, kSpecial, kSupplement, kEditionKind};
constexpr TextView kSettingsSeparator = u",";

constexpr TextView kSpecialInNotes = u"special issue";
constexpr TextView kSpecialElsewhere = u"Spec. issue";
constexpr TextView kThemeInParentheses = u"(theme issue)";

}  // namespace

void OutputTemplateIssue::Initialize(const OutputSinkRef& formattedString) {
    procedure(*this, u"Initialize", {{u"formattedString", formattedString}}, [&] {
        mValues.assign(kValues, Text());
        mIssueType = kRegular;
        makeAssembly(formattedString);
        Reset({});
        mFormattedStr = object(formattedString).Clone();
    });
}

void OutputTemplateIssue::Reset(const IssueOptions& options) {
    procedure(*this, u"Reset", reported(kIssueOptions, options), [&] {
        mFormat = options.format;
        ParseJournalSettings(options.JournalSettings);
        switch (mFormat) {
            case stylecodes::kTurabian: layOut(kTurabianLayout); break;
            case stylecodes::kMla: layOut(kMlaLayout); break;
            default: {
                const TextView styleTexts[] = {mFormat == stylecodes::kAma ? u" " : u". "};
                layOut(kCommonLayout, styleTexts);
            }
        }
    });
}

/// The empty text offers regular issues alone.
void OutputTemplateIssue::ParseJournalSettings(TextView JournalSettings) {
    procedure(*this, u"ParseJournalSettings", {{u"JournalSettings", JournalSettings}}, [&] {
        std::vector<Text> settings;
        std::vector<Text> kinds = {Text(kRegularCaption)};
        for (const Text& piece : split(JournalSettings, kSettingsSeparator)) {
            const TextView setting = trim(piece);
            if (setting.empty()) {
                continue;
            }
            settings.emplace_back(setting);
            const auto* const kind =
                std::find_if(std::begin(kOfferedKinds), std::end(kOfferedKinds),
                             [&](TextView offered) { return equalsIgnoringCase(offered, setting); });
            if (kind != std::end(kOfferedKinds) && std::find(kinds.begin(), kinds.end(), *kind) == kinds.end()) {
                kinds.emplace_back(*kind);
            }
        }
        mSettings = std::move(settings);
        mSupportedIssueTypes = std::move(kinds);
    });
}

bool OutputTemplateIssue::SupportsNewspaperEdition() const {
    return procedure(*this, u"SupportsNewspaperEdition[Get]", kNoParameters, [&] {
        return std::find(mSupportedIssueTypes.begin(), mSupportedIssueTypes.end(), kEditionKind) !=
               mSupportedIssueTypes.end();
    });
}

std::vector<Text> OutputTemplateIssue::SupportedIssueTypes() const {
    return procedure(*this, u"SupportedIssueTypes[Get]", kNoParameters, [&] { return mSupportedIssueTypes; });
}

Text OutputTemplateIssue::settings(std::int16_t index) const {
    return procedure(*this, u"settings[Get]", {{u"index", index}},
                     [&] { return mSettings.at(static_cast<std::size_t>(index)); });
}

bool OutputTemplateIssue::fillSlots(bool isFootnote, std::vector<Text>& items,
                                    std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    if (mIssueType != kSpecial) {
        // Before it goes into its slot: the report reaches the host, which may empty the slots meanwhile.
        Text text = otherIssue(isFootnote);
        items.at(kNumberSlot) = std::move(text);
        return false;
    }
    items.at(kNumberSlot) = mValues.at(kIssueNumber);
    items.at(kEditorSlot) = mValues.at(kSpecialEditor);
    items.at(kWordsSlot) = specialWords(isFootnote);
    const OutputSinkRef fragment = formattedItems.at(kTitleSlot);
    const Text title = mValues.at(kSpecialTitle);
    if (title.empty()) {
        return false;
    }
    if (mFormat == stylecodes::kTurabian) {
        object(fragment).Add(titlequotes::quoted(title), OutputSink::kPlain);
    } else {
        object(fragment).Add(title, stylecodes::isMla(mFormat) ? OutputSink::kItalic : OutputSink::kPlain);
    }
    return false;
}

Text OutputTemplateIssue::specialWords(bool isFootnote) const {
    switch (mFormat) {
        case stylecodes::kTurabian: return Text(isFootnote ? kSpecialInNotes : kSpecial);
        case stylecodes::kMla: return {};
        default: break;
    }
    const bool isBare = mValues.at(kSpecialTitle).empty() && mValues.at(kSpecialEditor).empty();
    return Text(mFormat == stylecodes::kAma && isBare ? kThemeInParentheses : kSpecialElsewhere);
}

/// A supplement in brackets stands behind the number of its issue with a blank, any other with a comma.
Text OutputTemplateIssue::otherIssue(bool isFootnote) const {
    if (mIssueType == kEditionKind) {
        return mValues.at(kEdition);
    }
    if (mIssueType != kSupplement) {
        return mValues.at(kIssueNumber);
    }
    const Text number = mValues.at(kIssueNumber);
    const Text text = supplement(isFootnote);
    const TextView separator = number.empty() ? u"" : stylecodes::usesBrackets(mFormat) ? u" " : u", ";
    return concatenate({number, separator, text});
}

Text OutputTemplateIssue::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

void OutputTemplateIssue::Parse(Text& text, TextView secondaryStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"secondaryStr", secondaryStr}}, [&] {
        const Text whole = cleanUp(text);
        const Text kind = typeOf(trim(secondaryStr), kCaptions);
        text.clear();
        mValues.assign(kValues, Text());
        // The rules in the order in which they are tried.
        if (const std::optional<issuetext::Special> special = issuetext::special(whole)) {
            text = special->journal;
            parseSpecialIssue(special->text);
        } else if (const std::optional<issuetext::Supplement> found = issuetext::supplement(whole)) {
            IssueType(kSupplement);
            value(kIssueNumber, found->issue);
            value(kSupplementNumber, found->number);
        } else if (kind == kSpecial) {
            parseSpecialIssue(whole);
        } else if (kind == kEditionKind || issuetext::isEdition(whole)) {
            IssueType(kEditionKind);
            value(kEdition, whole);
        } else {
            IssueType(kind == kSupplement ? kSupplement : kRegular);
            value(kind == kSupplement ? kSupplementNumber : kIssueNumber, issuetext::withoutWord(whole));
        }
    });
}

void OutputTemplateIssue::parseSpecialIssue(TextView text) {
    procedure(*this, u"parseSpecialIssue", {{u"text", text}}, [&] {
        const issuetext::SpecialParts parts = issuetext::specialParts(text);
        IssueType(kSpecial);
        value(kIssueNumber, parts.number);
        value(kSpecialTitle, parts.title);
        value(kSpecialEditor, parts.editor);
    });
}

Text OutputTemplateIssue::IssueType() const {
    return procedure(*this, u"IssueType[Get]", kNoParameters, [&] { return mIssueType; });
}

void OutputTemplateIssue::IssueType(TextView theVal) {
    procedure(*this, u"IssueType[Let]", {{u"theVal", theVal}}, [&] { mIssueType = typeOf(theVal, kCaptions); });
}

Text OutputTemplateIssue::value(std::int16_t index) const {
    return procedure(*this, u"value[Get]", {{u"index", index}},
                     [&] { return mValues.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateIssue::value(std::int16_t index, TextView theVal) {
    procedure(*this, u"value[Let]", {{u"index", index}, {u"theVal", theVal}},
              [&] { mValues.at(static_cast<std::size_t>(index)) = theVal; });
}

Text OutputTemplateIssue::supplement(bool isFootnote) const {
    return procedure(*this, u"supplement", {{u"isFootnote", isFootnote}}, [&]() -> Text {
        const Text& number = mValues.at(kSupplementNumber);
        const TextView blank = number.empty() ? u"" : u" ";
        switch (mFormat) {
            case stylecodes::kAma: return concatenate({u"(suppl", blank, number, u")"});
            // Without its number, deliberately.
            case stylecodes::kApa: return Text(u"[Supplemental material]");
            case stylecodes::kTurabian: return concatenate({u"supplement", blank, number});
            default: return concatenate({u"supp.", blank, number});
        }
    });
}

void OutputTemplateIssue::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mValues", mValues);
    report.vbwReportVariable(u"mIssueType", mIssueType);
    report.vbwReportVariable(u"mSupportedIssueTypes", mSupportedIssueTypes);
    report.vbwReportVariable(u"mSettings", mSettings);
    report.vbwReportVariable(u"mFormat", mFormat);
    report.vbwReportVariable(u"mFormattedStr", mFormattedStr);
    report.vbwReportVariable(u"mSpecialIssueTemplate", HostObjectRef());
}

}  // namespace quorvel

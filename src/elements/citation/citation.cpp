#include "elements/citation/citation.h"

#include <array>
#include <utility>

#include "core/procedure.h"
#include "elements/citation/text.h"
#include "elements/title/quotes.h"
#include "elements/title/short.h"
#include "elements/volume_numbers.h"

namespace quorvel {

namespace {

constexpr TextView kTrue = u"True";
constexpr TextView kCirca = u"ca.";
constexpr TextView kInPress = u"in press";

/// The slots of communications and web sites.
enum ElectronicSlot : std::int16_t { kCommunicator = 0, kDateOfLetter = 1, kDateOfEmail = 2, kWebsite = 3 };

/// The texts that the style gives.
enum StyleText : std::uint8_t { kSepar, kPsepr, kYsepr };

// Which separator stands before a slot does not depend on the slot that comes before it.
constexpr SlotLayout kLayout({
    {kFormattedSlot, {u"(", kSepar, kYsepr, kSepar, kPsepr, u")"}},
    {kFormattedSlot, {u"(", kYsepr, kSepar, kPsepr, u")"}},
    {kPlainSlot, {u"(", kSepar, kPsepr, u")"}},
    {kPlainSlot, {u"(", kPsepr, u")"}},
    {kPlainSlot, {u"(", u")"}},
});
constexpr SlotLayout kElectronicLayout({
    {kPlainSlot, {u"(", citationtext::kPersonalCommunication, citationtext::kEmailCommunication, kSepar, u")"}},
    {kPlainSlot, {u"(", kSepar, kSepar, u")"}},
    {kPlainSlot, {u"(", kSepar, u")"}},
    {kPlainSlot, {u"(", u")"}},
});

/// "J. K." for "John Kenneth"; initials stay as they are.
Text initialsOf(TextView firstNames) {
    Text initials;
    for (const Text& name : split(firstNames, u" ")) {
        if (!name.empty()) {
            initials += initials.empty() ? u"" : u" ";
            initials += endsWith(name, u".") ? name : concatenate({TextView(name).substr(0, 1), u"."});
        }
    }
    return initials;
}

bool isCommunication(const CitationFields& fields) {
    return fields.personalCommunication == kTrue || fields.email == kTrue;
}

/// Whether a slot's text ends in "?" or "!", inside quotation marks or not.
bool asksOrExclaims(TextView text) {
    constexpr TextView kClosingMarks = u"\u201D\u2019\"'";
    const std::size_t last = text.find_last_not_of(kClosingMarks);
    return last != TextView::npos && (text[last] == u'?' || text[last] == u'!');
}

/// A citation has no "Jr." (MLA 7 6.2, APA 6 6.12).
void removePostfixes(AuthorPersons& persons) {
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        persons.at(i).postfix.clear();
    }
}

TextView citedTitle(const CitationFields& fields, bool supportsSubwork) {
    const bool citesPart = !fields.subwork.empty() && (supportsSubwork || fields.title.empty());
    return citesPart ? fields.subwork : fields.title;
}

}  // namespace

/// The parts of one citation, which the assembly asks for.
class OutputTemplateCitation::Slots final : public Implementor {
public:
    void add(std::int16_t slot, TextView text, std::int32_t font = OutputSink::kPlain) {
        if (!text.empty()) {
            mPhrases.push_back({slot, Text(text), font});
        }
    }

    /// Only the slots are asked for.
    void ToFormattedString(const OutputSinkRef& /*formattedStr*/, bool /*isFootnote*/,
                           bool /*shortenedVersion*/) override {}
    bool ToFormattedStringImpl(bool /*isFootnote*/, std::vector<Text>& items,
                               std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) override {
        for (const Phrase& phrase : mPhrases) {
            const auto slot = static_cast<std::size_t>(phrase.slot);
            // A layout of the host's may have fewer slots, and any of them may be a fragment.
            if (slot < formattedItems.size() && formattedItems[slot]) {
                const OutputSinkRef fragment = formattedItems[slot];
                fragment->Add(phrase.text, phrase.font);
            } else if (slot < items.size()) {
                items[slot] += phrase.text;
            }
        }
        return mPhrases.empty();
    }
    /// A layout of the host's may leave the comma out behind a question.
    void initChecking(std::vector<bool>& checkingArray, bool /*isFootnote*/) override {
        for (const Phrase& phrase : mPhrases) {
            const auto slot = static_cast<std::size_t>(phrase.slot);
            if (slot < checkingArray.size() && asksOrExclaims(phrase.text)) {
                checkingArray[slot] = true;
            }
        }
    }

private:
    struct Phrase {
        std::int16_t slot;
        Text text;
        std::int32_t font;
    };
    std::vector<Phrase> mPhrases;
};

void OutputTemplateCitation::Initialize(const OutputSinkRef& formattedStr, bool useMultiPartWork,
                                        const KeyToInternalIndexRef& keyToInternalIndex,
                                        const std::shared_ptr<OutputTemplateAuthor>& authorModelOutputTemplate,
                                        const std::shared_ptr<OutputTemplateTitle>& titleModelOutputTemplate,
                                        const HostObjectRef& multiVolModelOutputTemplate) {
    procedure(*this, u"Initialize",
              {{u"formattedStr", formattedStr},
               {u"useMultiPartWork", useMultiPartWork},
               {u"keyToInternalIndex", keyToInternalIndex},
               {u"authorModelOutputTemplate", HostObjectRef()},
               {u"titleModelOutputTemplate", HostObjectRef()},
               {u"multiVolModelOutputTemplate", multiVolModelOutputTemplate}},
              [&] {
                  mUseMultiPartWork = useMultiPartWork;
                  replace(mAuthorModelOutputTemplate, authorModelOutputTemplate);
                  replace(mTitleModelOutputTemplate, titleModelOutputTemplate);
                  replace(mMultiVolModelOutputTemplate, multiVolModelOutputTemplate);
                  mYearTemplate = std::make_shared<OutputTemplateYear>();
                  held(mYearTemplate)->Initialize(formattedStr);
                  mOutputTemplate = std::make_shared<outputTemplate>();
                  held(mOutputTemplate)->Initialize(formattedStr);
                  mElectronicOutputTemplate = std::make_shared<outputTemplate>();
                  held(mElectronicOutputTemplate)->Initialize(object(formattedStr).BuildNewFormattedString());
                  mModelTemplate = std::make_shared<OutputTemplateModel>();
                  held(mModelTemplate)->Initialize(formattedStr, keyToInternalIndex);
                  // Its layout is gone, and with it who filled it.
                  mIsLikeModelTemplate = false;
                  mCallback = nullptr;
                  mFormattedStr = object(formattedStr).Clone();
                  mIndexes = CitationFieldIndexes(object(held(keyToInternalIndex)));
                  if (!authorModelOutputTemplate) {
                      throw RuntimeError(
                          ErrorNumber::ObjectNotSet,
                          descriptionOf(ErrorNumber::ObjectNotSet,
                                        u"authorModelOutputTemplate; authors stand as the model has them"));
                  }
              });
}

void OutputTemplateCitation::ResetLikeModelTemplate(std::int16_t maxIndex, const ImplementorRef& callback) {
    procedure(*this, u"ResetLikeModelTemplate",
              {{u"maxIndex", maxIndex}, {u"callback", callback ? callback->hostObject() : nullptr}}, [&] {
                  mIsLikeModelTemplate = true;
                  replace(mCallback, callback);
                  held(mModelTemplate)->Reset(maxIndex, {}, 0);
              });
}

void OutputTemplateCitation::Add(std::int16_t Index, bool isFormatted, TextView checkingKey,
                                 const std::vector<Text>& separators) {
    procedure(
        *this, u"Add",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"checkingKey", checkingKey}, {u"separators", separators}},
        [&] { held(mModelTemplate)->Add(Index, isFormatted, checkingKey, separators); });
}

void OutputTemplateCitation::Reset(const CitationOptions& options) {
    procedure(*this, u"Reset", reported(kCitationOptions, options), [&] {
        mOptions = options;
        mIsLikeModelTemplate = false;
        mCallback = nullptr;
        layOut();
    });
}

void OutputTemplateCitation::layOut() {
    // Copies: laying out reports, and the host may give us other options meanwhile.
    const Text separ = mOptions.SEPAR;
    const Text psepr = mOptions.PSEPR;
    const Text ysepr = mOptions.YSEPR;
    const TextView styleTexts[] = {separ, psepr, ysepr};
    quorvel::layOut(*held(mOutputTemplate), kLayout, styleTexts);
    quorvel::layOut(*held(mElectronicOutputTemplate), kElectronicLayout, styleTexts);
}

void OutputTemplateCitation::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        if (mNoDateString != citationtext::kNoDate && !mNoDateString.empty()) {
            constexpr TextView kComma = u", ";
            text = replaceAll(text, concatenate({kComma, mNoDateString}), concatenate({kComma, citationtext::kNoDate}));
        }
        Text rest = citationtext::takeLaterCitations(text);
        mFields = citationtext::read(text, previousStr);
        text = std::move(rest);
    });
}

void OutputTemplateCitation::ToFormattedString(const OutputSinkRef& formattedStr, const ReferenceModelRef& model,
                                               std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor,
                                               bool shouldReadFromModel) {
    procedure(
        *this, u"ToFormattedString",
        {{u"formattedStr", formattedStr},
         {u"model", model},
         {u"firstNameCommand", firstNameCommand},
         {u"hasOtherTitlesByAuthor", hasOtherTitlesByAuthor},
         {u"shouldReadFromModel", shouldReadFromModel}},
        [&] { write(formattedStr, model, firstNameCommand, hasOtherTitlesByAuthor, shouldReadFromModel, false); });
}

Text OutputTemplateCitation::toString(const ReferenceModelRef& model, std::int16_t firstNameCommand,
                                      bool hasOtherTitlesByAuthor) {
    return procedure(*this, u"toString",
                     {{u"model", model},
                      {u"firstNameCommand", firstNameCommand},
                      {u"hasOtherTitlesByAuthor", hasOtherTitlesByAuthor}},
                     [&] {
                         const OutputSinkRef sink = held(mFormattedStr);
                         sink->Reset();
                         ToFormattedString(sink, model, firstNameCommand, hasOtherTitlesByAuthor, true);
                         return sink->toString();
                     });
}

void OutputTemplateCitation::ToMinimalFormattedString(const OutputSinkRef& formattedStr, const ReferenceModelRef& model,
                                                      std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor) {
    procedure(*this, u"ToMinimalFormattedString",
              {{u"formattedStr", formattedStr},
               {u"model", model},
               {u"firstNameCommand", firstNameCommand},
               {u"hasOtherTitlesByAuthor", hasOtherTitlesByAuthor}},
              [&] { write(formattedStr, model, firstNameCommand, hasOtherTitlesByAuthor, true, true); });
}

CitationFields OutputTemplateCitation::fieldsOf(const ReferenceModelRef& model, bool shouldReadFromModel) const {
    // A copy, since the model's answer may be a new Initialize.
    const CitationFieldIndexes indexes = mIndexes;
    return shouldReadFromModel && model ? indexes.read(*model) : mFields;
}

void OutputTemplateCitation::write(const OutputSinkRef& formattedStr, const ReferenceModelRef& model,
                                   std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor, bool shouldReadFromModel,
                                   bool isMinimal) {
    object(formattedStr);
    const CitationFields fields = fieldsOf(model, shouldReadFromModel);
    if (mIsLikeModelTemplate) {
        ImplementorRef implementor = mCallback;
        if (!implementor) {
            const auto slots = std::make_shared<Slots>();
            fill(*slots, fields, firstNameCommand, hasOtherTitlesByAuthor, isMinimal);
            implementor = slots;
        }
        // Not as a footnote: the closing note belongs to the full form.
        held(mModelTemplate)->ToFormattedString(formattedStr, implementor, model, true, false);
        return;
    }
    Slots slots;
    std::shared_ptr<outputTemplate> assembly = held(mElectronicOutputTemplate);
    const bool isNamed = firstNameCommand == kNamedInTheSentence;
    const bool namesCommunications = !mOptions.YSEPR.empty() || mOptions.useEmailKey;
    const bool hasNobody = fields.author.empty() && fields.editor.empty();
    const bool citesWebsite = mOptions.useWebsiteWhenNoAuthorAndDate && hasNobody && !isNamed &&
                              !fields.website.empty() && (fields.year.empty() || fields.year == citationtext::kNoDate);
    if (isCommunication(fields) && namesCommunications) {
        const bool isEmail = fields.email == kTrue && mOptions.useEmailKey;
        slots.add(kCommunicator, isNamed ? Text() : communicatorOf(fields));
        slots.add(isEmail ? kDateOfEmail : kDateOfLetter, fields.date.empty() ? mNoDateString : fields.date);
    } else if (citesWebsite) {
        slots.add(kWebsite, fields.website);
    } else {
        fill(slots, fields, firstNameCommand, hasOtherTitlesByAuthor, isMinimal);
        assembly = held(mOutputTemplate);
    }
    assembly->ResetReferenceItems();
    assembly->ToFormattedString(formattedStr, slots, isMinimal, false);
}

void OutputTemplateCitation::fill(Slots& slots, const CitationFields& fields, std::int16_t firstNameCommand,
                                  bool hasOtherTitlesByAuthor, bool isMinimal) {
    const Text year = yearOf(fields);
    if (mOptions.journalCentric && !fields.periodical.empty()) {
        slots.add(kName, fields.periodical, OutputSink::kItalic);
        slots.add(kName, concatenate({endsWith(fields.periodical, u".") ? u" " : u". ", year}));
        slots.add(kName, fields.volume.empty() ? Text() : concatenate({u";", fields.volume}));
        slots.add(kName, fields.issue.empty() ? Text() : concatenate({u"(", fields.issue, u")"}));
        slots.add(kName, fields.page.empty() ? Text() : concatenate({u":", fields.page}));
        return;
    }
    const bool isNamed = firstNameCommand == kNamedInTheSentence;
    const Text name = isNamed ? Text() : nameOf(fields, firstNameCommand, isMinimal);
    bool titleFollows = (mOptions.useTitle && (!isMinimal || hasOtherTitlesByAuthor)) ||
                        (hasOtherTitlesByAuthor && mOptions.YSEPR.empty());
    if (!name.empty()) {
        slots.add(kName, name);
    } else if (mOptions.useAuthorOrPeriodicalTitle && !fields.periodical.empty() && !isNamed) {
        slots.add(kName, fields.periodical, OutputSink::kItalic);
    } else if (!isNamed) {
        titleFollows = false;
        if (citedTitle(fields, mOptions.supportsSubwork).empty()) {
            slots.add(kName, fields.website.empty() ? fields.periodical : fields.website, OutputSink::kItalic);
        } else {
            addTitle(slots, kName, fields);
        }
    }
    if (titleFollows) {
        addTitle(slots, kTitle, fields);
    }
    slots.add(kYear, year);
    addLocator(slots, fields);
}

/// The persons that the text names, as the style's author element reads them; empty without that element, or when
/// there are none.
std::shared_ptr<AuthorPersons> OutputTemplateCitation::personsIn(TextView text) const {
    const std::shared_ptr<OutputTemplateAuthor> style = mAuthorModelOutputTemplate;
    if (!style || text.empty()) {
        return nullptr;
    }
    const std::shared_ptr<AuthorPersons> persons = style->personsIn(text);
    return persons->isEmpty() ? nullptr : persons;
}

/// The authors, or the editors of a work without; empty when there are neither.
Text OutputTemplateCitation::nameOf(const CitationFields& fields, std::int16_t firstNameCommand, bool isMinimal) const {
    Text text = fields.author.empty() ? fields.editor : fields.author;
    const std::shared_ptr<AuthorPersons> persons = personsIn(text);
    const std::shared_ptr<OutputTemplateAuthor> style = mAuthorModelOutputTemplate;
    if (!persons || !style) {
        return text;
    }
    removePostfixes(*persons);
    AuthorForm form;
    form.isMinimal = isMinimal;
    form.isCitation = !isMinimal;
    Text names = style->toString(persons, true, true, form);
    if (persons->size() == 2 && !persons->hasEtAl &&
        names == concatenate({persons->at(0).lastName, u" ", persons->at(1).lastName})) {
        // A style without and-word has one in the text (AMA 10 3.6).
        names = concatenate({persons->at(0).lastName, u" and ", persons->at(1).lastName});
    }
    const Text& firstNames = persons->at(0).firstNames;
    if (firstNames.empty() || (firstNameCommand != kInitials && firstNameCommand != kFirstNames)) {
        return names;
    }
    return concatenate({firstNameCommand == kInitials ? initialsOf(firstNames) : firstNames, u" ", names});
}

/// "T. K. Lutes", in AMA with his degree.
Text OutputTemplateCitation::communicatorOf(const CitationFields& fields) const {
    const std::shared_ptr<AuthorPersons> persons = personsIn(fields.author);
    const std::shared_ptr<OutputTemplateAuthor> style = mAuthorModelOutputTemplate;
    AuthorForm form;
    form.isCitation = true;
    const Text name = persons && style ? style->toString(persons, true, false, form) : fields.author;
    return mOptions.useDegree && !fields.degree.empty() ? concatenate({name, u", ", fields.degree}) : name;
}

/// Empty in a style whose citations have no year.
Text OutputTemplateCitation::yearOf(const CitationFields& fields) {
    if (mOptions.YSEPR.empty()) {
        return {};
    }
    const std::shared_ptr<OutputTemplateYear> year = held(mYearTemplate);
    Text remainder = fields.year.empty() ? Text(citationtext::kNoDate) : fields.year;
    // A range has the dash with which the style's own year element wrote it.
    year->Reset({.supportForthcoming = true,
                 .supportYearGuess = true,
                 .circa = Text(kCirca),
                 .supportYearForSure = true,
                 .noDateString = Text(citationtext::kNoDate),
                 .useEnDashForYearRange = contains(remainder, TextView(&kEnDash, 1))});
    year->Parse(remainder, {});
    Text result;
    switch (year->yearType) {
        case OutputTemplateYear::kNoDate: result = mOptions.useNoDate ? mNoDateString : Text(); break;
        case OutputTemplateYear::kCirca: result = concatenate({kCirca, u" ", trim(year->Year)}); break;
        case OutputTemplateYear::kNotYetPublished: result = kInPress; break;
        default: result = year->toString(false, true); break;
    }
    const bool hasOriginal = mOptions.useOriginalYear && !fields.originalYear.empty() && !result.empty();
    return hasOriginal ? concatenate({fields.originalYear, u"/", result}) : result;
}

void OutputTemplateCitation::addTitle(Slots& slots, std::int16_t slot, const CitationFields& fields) const {
    const TextView title = citedTitle(fields, mOptions.supportsSubwork);
    const bool isOfPart = title == fields.subwork || !fields.periodical.empty() || !fields.website.empty();
    Text text = fields.shortTitle.empty() ? shortTitle(title) : fields.shortTitle;
    if (const std::shared_ptr<OutputTemplateTitle> style = mTitleModelOutputTemplate) {
        text = style->InHeadingCapitalization(text);
    }
    if (!isOfPart) {
        slots.add(slot, text, OutputSink::kItalic);
    } else if (mOptions.titleIsQuoted && !text.empty()) {
        const std::shared_ptr<OutputTemplateTitle> style = mTitleModelOutputTemplate;
        slots.add(slot, style ? style->quoted(text) : titlequotes::quoted(text));
    } else {
        slots.add(slot, text);
    }
}

void OutputTemplateCitation::addLocator(Slots& slots, const CitationFields& fields) const {
    const TextView volume = mUseMultiPartWork ? volumenumbers::withoutWord(fields.volume) : TextView();
    if (volume.empty()) {
        slots.add(kLocator, fields.page);
    } else if (fields.page.empty()) {
        slots.add(kVolume, concatenate({mOptions.volPrefix, volume}));
    } else {
        const TextView prefix = startsWith(mOptions.VSEPR, u":") ? TextView() : TextView(mOptions.volPrefix);
        slots.add(kLocator, concatenate({prefix, volume, mOptions.VSEPR, fields.page}));
    }
}

void OutputTemplateCitation::MergeFieldsWithModel(const ReferenceModelRef& model, std::int16_t modelType,
                                                  const std::shared_ptr<OutputTemplateAuthor>& authorTemplate,
                                                  const HostObjectRef& multiVolTemplate) {
    procedure(*this, u"MergeFieldsWithModel",
              {{u"model", model},
               {u"modelType", modelType},
               {u"authorTemplate", HostObjectRef()},
               {u"multiVolTemplate", multiVolTemplate}},
              [&] {
                  const CitationFieldIndexes indexes = mIndexes;
                  const CitationFields cited = mFields;
                  const CitationFields known = indexes.read(object(model));
                  for (const CitationKey& key : kCitationKeys) {
                      const Text& value = cited.*key.field;
                      const bool isPlaceOfCitation =
                          key.field == &CitationFields::page || key.field == &CitationFields::volume;
                      const bool isMissing = (known.*key.field).empty() || (key.field == &CitationFields::year &&
                                                                            known.year == citationtext::kNoDate);
                      if (!value.empty() && (isMissing || isPlaceOfCitation)) {
                          indexes.write(*model, key.field, value);
                      }
                  }
                  if (authorTemplate && known.author.empty() && !cited.author.empty()) {
                      Text author = cited.author;
                      authorTemplate->Parse(author, {});
                  }
              });
}

Text OutputTemplateCitation::Year() const {
    return procedure(*this, u"Year[Get]", kNoParameters, [&] { return mFields.year; });
}

void OutputTemplateCitation::Year(TextView theVal) {
    procedure(*this, u"Year[Let]", {{u"theVal", theVal}}, [&] { mFields.year = theVal; });
}

void OutputTemplateCitation::dumpVariables(VBWPROTECTOR& report) const {
    // Held, since the host may replace them between two of the reports.
    const HostObjectRef multiVol = mMultiVolModelOutputTemplate;
    const OutputSinkRef formattedStr = mFormattedStr;
    const ImplementorRef callback = mCallback;
    const CitationOptions options = mOptions;
    const CitationFields fields = mFields;
    report.vbwReportVariable(u"mUseMultiPartWork", mUseMultiPartWork);
    report.vbwReportVariable(u"mAuthorModelOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mTitleModelOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mMultiVolModelOutputTemplate", multiVol);
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mElectronicOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mModelTemplate", HostObjectRef());
    report.vbwReportVariable(u"mFormattedStr", formattedStr);
    report.vbwReportVariable(u"mSEPAR", options.SEPAR);
    report.vbwReportVariable(u"mUseNoDate", options.useNoDate);
    report.vbwReportVariable(u"mVolPrefix", options.volPrefix);
    report.vbwReportVariable(u"mUseAuthorOrPeriodicalTitle", options.useAuthorOrPeriodicalTitle);
    report.vbwReportVariable(u"mUseTitle", options.useTitle);
    report.vbwReportVariable(u"mUseOriginalYear", options.useOriginalYear);
    report.vbwReportVariable(u"mTitleIsQuoted", options.titleIsQuoted);
    report.vbwReportVariable(u"mUseEmailKey", options.useEmailKey);
    report.vbwReportVariable(u"mUseDegree", options.useDegree);
    report.vbwReportVariable(u"mSupportsSubwork", options.supportsSubwork);
    report.vbwReportVariable(u"mUseWebsiteWhenNoAuthorAndDate", options.useWebsiteWhenNoAuthorAndDate);
    report.vbwReportVariable(u"mJournalCentric", options.journalCentric);
    report.vbwReportVariable(u"mPSEPR", options.PSEPR);
    report.vbwReportVariable(u"mYSEPR", options.YSEPR);
    report.vbwReportVariable(u"mVSEPR", options.VSEPR);
    report.vbwReportVariable(u"mIsLikeModelTemplate", mIsLikeModelTemplate);
    report.vbwReportVariable(u"mCallback", callback ? callback->hostObject() : nullptr);
    for (const CitationKey& key : kCitationKeys) {
        report.vbwReportVariable(Name(key.key), fields.*key.field);
    }
    report.vbwReportVariable(u"mNoDateString", mNoDateString);
}

}  // namespace quorvel

#include "elements/author/author.h"

#include "core/procedure.h"
#include "elements/author/layout.h"
#include "elements/author/residue.h"
#include "elements/author/words.h"

namespace quorvel {

namespace {

// Shown in the report of the variables; what reads the tags knows more of them (lexicon.cpp).
constexpr TextView kCompStrings[] = {u" comp.", u" comps.", u" (Comp.)", u" (Comps.)"};
constexpr TextView kEditorStrings[] = {u" ed.", u" eds.", u" (Ed.)", u" (Eds.)"};
constexpr TextView kTranslatorStrings[] = {u" trans.", u" (Trans.)"};
constexpr TextView kEditorTokens[] = {u"ed", u"comp", u"trans", u"eds", u"comps"};

template <std::size_t N>
std::vector<Text> texts(const TextView (&table)[N]) {
    return {std::begin(table), std::end(table)};
}

constexpr TextView kAmpersand = u"&";
constexpr TextView kPseudonymMark = u"pseud.";

}  // namespace

const AuthorStyleRef& OutputTemplateAuthor::plainStyle() {
    static const AuthorStyleRef style = std::make_shared<AuthorStyle>();
    return style;
}

void OutputTemplateAuthor::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        makeAssembly(formattedStr);
        layOut();
        mYearTemplate = std::make_shared<OutputTemplateYear>();
        held(mYearTemplate)->Initialize(nullptr);
        ClearAuthors();
        mFormattedStr = object(formattedStr).Clone();
    });
}

void OutputTemplateAuthor::Reset(const AuthorOptions& options) {
    procedure(*this, u"Reset", reported(kAuthorOptions, options), [&] {
        // Hosts call it for each reference: what stays the same is not made anew.
        const AuthorStyleRef before = mStyle;
        if (options == before->options && assembly()) {
            return;
        }
        const auto style = std::make_shared<AuthorStyle>(*this, options);
        style->use(before->wording);
        mStyle = style;
        if (!assembly() || !style->hasSeparatorsOf(*before)) {
            layOut();
        }
    });
}

void OutputTemplateAuthor::andSeparatorHasComma(bool value) {
    procedure(*this, u"andSeparatorHasComma[Let]", {{u"value", value}}, [&] {
        AuthorWording wording = mStyle->wording;
        wording.andSeparatorHasComma = value;
        use(wording);
    });
}

void OutputTemplateAuthor::etAlText(TextView value) {
    procedure(*this, u"etAlText[Let]", {{u"value", value}}, [&] {
        AuthorWording wording = mStyle->wording;
        wording.etAlText = value;
        use(wording);
    });
}

void OutputTemplateAuthor::use(const AuthorWording& wording) {
    const AuthorStyleRef before = mStyle;
    const auto style = std::make_shared<AuthorStyle>(*before);
    style->use(wording);
    mStyle = style;
    if (assembly() && !style->hasSeparatorsOf(*before)) {
        layOut();
    }
}

/// Puts the usual "et al." in the place of the style's own words, for the reader.
void OutputTemplateAuthor::useUsualEtAl(Text& text) const {
    const Text& own = mStyle->wording.etAlText;
    if (own == kUsualEtAl || own.empty()) {
        return;
    }
    const std::size_t at = text.rfind(own);
    const bool isWord = at != Text::npos && at > 0 && text[at - 1] == u' ' &&
                        (at + own.size() == text.size() || contains(u" ,.;()", text.substr(at + own.size(), 1)));
    if (isWord) {
        text.replace(at, own.size(), kUsualEtAl);
    }
}

void OutputTemplateAuthor::layOut() {
    // Held, since each slot is reported and the host may set another style meanwhile.
    const AuthorStyleRef style = mStyle;
    const TextView styleTexts[authorlayout::kStyleTexts] = {
        style->andSeparator,          style->commaForm,
        style->twoPersonForm,         style->etAlSeparator,
        style->etAlCitationSeparator, style->options.editorSeparator};
    AssembledElement::layOut(authorlayout::kLayout, styleTexts);
}

std::shared_ptr<OutputTemplateAuthor> OutputTemplateAuthor::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateAuthor>();
        CloneImpl(*clone);
        clone->Reset(clone->mStyle->options);
        return clone;
    });
}

void OutputTemplateAuthor::CloneImpl(OutputTemplateAuthor& clone) const {
    procedure(*this, u"CloneImpl", kNoParameters, [&] {
        const std::shared_ptr<const AuthorPersons> persons = mPersons;
        clone.mStyle = mStyle;
        clone.Initialize(OutputSinkRef(mFormattedStr));
        clone.own() = *persons;
        clone.mPreviousStr = mPreviousStr;
    });
}

std::shared_ptr<OutputTemplateAuthor> OutputTemplateAuthor::CloneForEditors() const {
    return procedure(*this, u"CloneForEditors", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateAuthor>();
        clone->mStyle = mStyle;
        clone->Initialize(OutputSinkRef(mFormattedStr));
        AuthorOptions settings = clone->mStyle->options;
        settings.editorTags = getEditorTags();
        clone->Reset(settings);
        return clone;
    });
}

Text OutputTemplateAuthor::getEditorTags() const {
    return procedure(*this, u"getEditorTags", kNoParameters, [&] { return mStyle->options.editorTags; });
}

/// The persons to be changed. An output under way keeps those with which it began.
AuthorPersons& OutputTemplateAuthor::own() {
    if (mPersons.use_count() > 1) {
        mPersons = std::make_shared<AuthorPersons>(*mPersons);
    }
    return *mPersons;
}

void OutputTemplateAuthor::Parse(Text& text, TextView previousStr, bool residueAlreadyRemoved) {
    procedure(*this, u"Parse",
              {{u"text", text}, {u"previousStr", previousStr}, {u"residueAlreadyRemoved", residueAlreadyRemoved}}, [&] {
                  mPreviousStr = previousStr;
                  ClearAuthors();
                  useUsualEtAl(text);
                  // Held, and set again, since the host may have another text read in the middle of this one.
                  const std::shared_ptr<AuthorPersons> persons = mPersons;
                  readPersons(reader(), text, previousStr, residueAlreadyRemoved, *persons);
                  mPersons = persons;
              });
}

std::shared_ptr<AuthorPersons> OutputTemplateAuthor::personsIn(TextView text) const {
    auto persons = std::make_shared<AuthorPersons>();
    Text remainder(text);
    useUsualEtAl(remainder);
    procedure(*this, u"Parse", {{u"text", remainder}, {u"previousStr", TextView()}, {u"residueAlreadyRemoved", false}},
              [&] { readPersons(reader(), remainder, {}, false, *persons); });
    return persons;
}

void OutputTemplateAuthor::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    writer().write(formattedStr, isFootnote, shortenedVersion);
}

bool OutputTemplateAuthor::fillSlots(bool isFootnote, std::vector<Text>& items,
                                     std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    return writer().fillSlots(isFootnote, items, formattedItems, shortenedVersion);
}

Text OutputTemplateAuthor::toString(bool isFootnote, bool shortenedVersion, bool isMinimal, bool isCitation,
                                    bool forceNoInitials, bool isRTF) {
    const AuthorForm form = {isMinimal, isCitation, forceNoInitials};
    Text text = toString(mPersons, isFootnote, shortenedVersion, form, isRTF);
    if (forceNoInitials && !mStyle->options.initialsOnly) {
        // Not the former value: deliberate, hosts have come to rely on it.
        const auto style = std::make_shared<AuthorStyle>(*mStyle);
        style->options.initialsOnly = true;
        mStyle = style;
    }
    return text;
}

Text OutputTemplateAuthor::toString(const std::shared_ptr<const AuthorPersons>& persons, bool isFootnote,
                                    bool shortenedVersion, AuthorForm form, bool isRTF) const {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote},
                      {u"shortenedVersion", shortenedVersion},
                      {u"isMinimal", form.isMinimal},
                      {u"isCitation", form.isCitation},
                      {u"forceNoInitials", form.forceNoInitials},
                      {u"isRTF", isRTF}},
                     [&] {
                         AuthorWriter writer(*this, mStyle, persons, assembly(), mFormattedStr, form);
                         return writer.assembledText(isFootnote, shortenedVersion, isRTF);
                     });
}

void OutputTemplateAuthor::toCitationFormat(Text& form1, Text& form2) {
    procedure(*this, u"toCitationFormat", {{u"form1", form1}, {u"form2", form2}}, [&] {
        form1 = toString(false, true);
        form2 = replaceAll(form1, kAmpersand, u"and");
    });
}

std::vector<Text> OutputTemplateAuthor::toKeywordList() const {
    return procedure(*this, u"toKeywordList", kNoParameters, [&] { return keywordsOf(persons()); });
}

Text OutputTemplateAuthor::toMergedString() const {
    return procedure(*this, u"toMergedString", kNoParameters, [&] {
        return mergedText(persons(), contains(mStyle->andSeparator, kAmpersand) ? u" & " : u" and ");
    });
}

bool OutputTemplateAuthor::isSameAuthor(TextView str1, TextView str2) {
    return procedure(*this, u"isSameAuthor", {{u"str1", str1}, {u"str2", str2}},
                     [&] { return areSame(*personsIn(str1), *personsIn(str2)); });
}

std::vector<Text> OutputTemplateAuthor::authors() const {
    return procedure(*this, u"authors[Get]", kNoParameters, [&] { return rowsOf(persons()); });
}

void OutputTemplateAuthor::authors(const std::vector<Text>& values) {
    procedure(*this, u"authors[Let]", {{u"values", values}}, [&] {
        own();
        const std::shared_ptr<AuthorPersons> persons = mPersons;
        readRows(reader(), values, *persons);
        mPersons = persons;
    });
}

Text OutputTemplateAuthor::authorsForQVDb() const {
    return procedure(*this, u"authorsForQVDb[Get]", kNoParameters, [&] { return join(rowsOf(persons()), u"; "); });
}

Text OutputTemplateAuthor::collapsePseudoToFirstName(TextView firstAuthor) const {
    return procedure(*this, u"collapsePseudoToFirstName", {{u"firstAuthor", firstAuthor}}, [&] {
        const Text& pseudoname = persons().pseudoname;
        const bool isUnknown = pseudoname.empty() || pseudoname == kPseudonymMark;
        return isUnknown ? Text(firstAuthor) : concatenate({firstAuthor, u" [", pseudoname, u"]"});
    });
}

Text OutputTemplateAuthor::convertCommaToSemicolon(TextView text) const {
    const std::shared_ptr<const AuthorPersons> persons = mPersons;
    return quorvel::convertCommaToSemicolon(*this, *persons, mStyle->wording, text);
}

void OutputTemplateAuthor::ClearAuthors() {
    procedure(*this, u"ClearAuthors", kNoParameters, [&] { own().clear(); });
}

bool OutputTemplateAuthor::isEmptyArrayAuthor() const {
    return procedure(*this, u"isEmptyArrayAuthor", kNoParameters, [&] { return persons().isEmpty(); });
}

bool OutputTemplateAuthor::hasDiscussant() const {
    return procedure(*this, u"hasDiscussant[Get]", kNoParameters, [&] { return persons().discussant.has_value(); });
}

Text OutputTemplateAuthor::Discussant() const {
    return procedure(*this, u"Discussant[Get]", kNoParameters,
                     [&] { return persons().discussant ? rowOf(*persons().discussant) : Text(); });
}

void OutputTemplateAuthor::Discussant(TextView value) {
    procedure(*this, u"Discussant[Let]", {{u"value", value}}, [&] {
        const std::optional<AuthorRecord>& before = persons().discussant;
        // A text of several persons stands in one record, and is not taken apart when it comes back.
        if (before && rowOf(*before) == value) {
            return;
        }
        AuthorPersons read;
        readRows(reader(), {Text(value)}, read);
        own().discussant = read.isEmpty() ? std::nullopt : std::optional(read.at(0));
    });
}

bool OutputTemplateAuthor::Anthologies(std::int16_t index) const {
    return procedure(*this, u"Anthologies[Get]", {{u"index", index}},
                     [&]() -> bool { return persons().roles.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateAuthor::Anthologies(std::int16_t index, bool value) {
    procedure(*this, u"Anthologies[Let]", {{u"index", index}, {u"value", value}},
              [&] { own().roles.at(static_cast<std::size_t>(index)) = value; });
}

Text OutputTemplateAuthor::editor() const {
    const std::shared_ptr<const AuthorPersons> persons = mPersons;
    const AuthorStyleRef style = mStyle;
    return editorTag(*this, *style, *persons);
}

std::vector<bool> OutputTemplateAuthor::checkingArray() const {
    return procedure(*this, u"checkingArray[Get]", kNoParameters,
                     [&] { return std::vector<bool>(authorlayout::kEditor + 1, false); });
}

Text OutputTemplateAuthor::residue() const {
    return procedure(*this, u"residue[Get]", kNoParameters, [&] { return persons().residue; });
}

void OutputTemplateAuthor::residue(TextView value) {
    procedure(*this, u"residue[Let]", {{u"value", value}}, [&] { own().residue = value; });
}

bool OutputTemplateAuthor::LastNameFirstForAuthor1() const {
    return procedure(*this, u"LastNameFirstForAuthor1[Get]", kNoParameters, [&] { return persons().lastNameFirst; });
}

bool OutputTemplateAuthor::isJapaneseOrChineseLastName() const {
    return procedure(*this, u"isJapaneseOrChineseLastName[Get]", kNoParameters, [&] {
        return numAuthors() > 0 && person(0).firstNames.empty() &&
               authorwords::wordOf(person(0).lastName).is(authorwords::kEastAsianLastName);
    });
}

bool OutputTemplateAuthor::supportsCompilerAndEditor() const {
    return procedure(*this, u"supportsCompilerAndEditor[Get]", kNoParameters,
                     [&] { return mStyle->options.supportsCompilerAndEditor; });
}

bool OutputTemplateAuthor::SupportAnonAndPseudoAuthors() const {
    return procedure(*this, u"SupportAnonAndPseudoAuthors[Get]", kNoParameters,
                     [&] { return mStyle->options.SupportAnonAndPseudoAuthors; });
}

bool OutputTemplateAuthor::SquareBracketIsForFirstName() const {
    return procedure(*this, u"SquareBracketIsForFirstName[Get]", kNoParameters,
                     [&] { return mStyle->options.SquareBracketIsForFirstName; });
}

void OutputTemplateAuthor::dumpVariables(VBWPROTECTOR& report) const {
    // Held, since the host may replace them between two of the reports.
    const AuthorStyleRef style = mStyle;
    const AuthorOptions& options = style->options;
    const AuthorPersons persons = *mPersons;
    const OutputSinkRef formattedStr = mFormattedStr;
    std::vector<Text> people;
    for (std::int16_t i = 0; i < persons.size(); ++i) {
        const AuthorRecord& person = persons.at(i);
        people.push_back(concatenate({person.lastName, u"|", person.firstNames, u"|", person.postfix}));
    }
    report.vbwReportVariable(u"Pseudoname", persons.pseudoname);
    report.vbwReportVariable(u"AuthorType", persons.authorType);
    report.vbwReportVariable(u"HasEtAl", persons.hasEtAl);
    report.vbwReportVariable(u"mLastNameFirstForAuthor1", persons.lastNameFirst);
    report.vbwReportVariable(u"mSupportAnonAndPseudoAuthors", options.SupportAnonAndPseudoAuthors);
    report.vbwReportVariable(u"mSquareBracketIsForFirstName", options.SquareBracketIsForFirstName);
    report.vbwReportVariable(u"mEditorTagsSingular", style->editorTagsSingular);
    report.vbwReportVariable(u"mEditorTagsPlural", style->editorTagsPlural);
    report.vbwReportVariable(u"mAndSeparator", style->andSeparator);
    report.vbwReportVariable(u"mReverseSecondaryAuthors", options.reverseSecondaryAuthors);
    report.vbwReportVariable(u"mReversedAuthorUsesComma", options.reversedAuthorUsesComma);
    report.vbwReportVariable(u"mReversedAuthorPostfixUsesComma", options.reversedAuthorPostfixUsesComma);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAl", options.numAuthorsToTriggerEtAl);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAlCitation", options.numAuthorsToTriggerEtAlCitation);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAlMinimalString", options.numAuthorsToTriggerEtAlMinimalString);
    report.vbwReportVariable(u"mNumAuthorsInEtAl", options.numAuthorsInEtAl);
    report.vbwReportVariable(u"mNumAuthorsInEtAlMinimalString", options.numAuthorsInEtAlMinimalString);
    report.vbwReportVariable(u"mEtAlUsesElipses", options.etAlUsesElipses);
    report.vbwReportVariable(u"mEtAlInReferenceList", options.etAlInReferenceList);
    report.vbwReportVariable(u"mInitialsOnly", options.initialsOnly);
    report.vbwReportVariable(u"mInitialsUsePeriods", options.initialsUsePeriods);
    report.vbwReportVariable(u"mSemicolonBetweenGroupAuthors", options.semicolonBetweenGroupAuthors);
    report.vbwReportVariable(u"mAnthologies", std::vector<bool>(persons.roles.begin(), persons.roles.end()));
    report.vbwReportVariable(u"mCompStrings", texts(kCompStrings));
    report.vbwReportVariable(u"mEditorStrings", texts(kEditorStrings));
    report.vbwReportVariable(u"mTranslatorStrings", texts(kTranslatorStrings));
    report.vbwReportVariable(u"mSupportsCompilerAndEditor", options.supportsCompilerAndEditor);
    report.vbwReportVariable(u"mReverseFirstOnFootnote", options.ReverseFirstOnFootnote);
    report.vbwReportVariable(u"mEtAlSeparator", style->etAlSeparator);
    report.vbwReportVariable(u"mEtAlCitationSeparator", style->etAlCitationSeparator);
    report.vbwReportVariable(u"mEditorSeparator", options.editorSeparator);
    report.vbwReportVariable(u"mTwoAuthorsIsOnlyCaseHaveNoComma", options.twoAuthorsIsOnlyCaseHaveNoComma);
    report.vbwReportVariable(u"mAuthors", people);
    report.vbwReportVariable(u"mNumAuthors", persons.size());
    report.vbwReportVariable(u"mFirstGroupAuthorIndex", persons.firstGroup);
    report.vbwReportVariable(u"mResidue", persons.residue);
    report.vbwReportVariable(u"mPreviousStr", mPreviousStr);
    report.vbwReportVariable(u"mEditorTokens", texts(kEditorTokens));
    report.vbwReportVariable(u"mChapterTypes", texts(authorwords::kChapterTypes));
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mFormattedStr", formattedStr);
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
    report.vbwReportVariable(u"mAndSeparatorHasComma", style->wording.andSeparatorHasComma);
    report.vbwReportVariable(u"mEtAlText", style->wording.etAlText);
}

}  // namespace quorvel

#include "elements/author/author.h"

#include <algorithm>

#include "core/procedure.h"
#include "elements/author/layout.h"

namespace quorvel {

namespace {

constexpr TextView kComma = u",";

std::vector<Text> texts(std::initializer_list<TextView> values) {
    return {values.begin(), values.end()};
}

/// The and-word with its blanks.
Text padded(TextView andSeparator) {
    if (andSeparator.empty()) {
        return u" ";
    }
    return contains(andSeparator, u" ") ? Text(andSeparator) : concatenate({u" ", andSeparator, u" "});
}

TextView etAlSeparator(bool hasComma) {
    return hasComma ? u", " : u" ";
}

std::size_t at(std::int32_t index) {
    if (index < 0) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
}

}  // namespace

void OutputTemplateAuthor::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        mCompStrings = texts({u" comp.", u" comps.", u" (Comp.)", u" (Comps.)"});
        mEditorStrings = texts({u" ed.", u" eds.", u" (Ed.)", u" (Eds.)"});
        mTranslatorStrings = texts({u" trans.", u" (Trans.)"});
        mEditorTokens = texts({u"ed", u"comp", u"trans", u"eds", u"comps"});
        mChapterTypes = texts({u"Afterword.", u"Foreword.", u"Introduction.", u"Preface."});
        mOutputTemplate = std::make_shared<outputTemplate>();
        mLaidOut.clear();
        layOut();
        mYearTemplate = std::make_shared<OutputTemplateYear>();
        held(mYearTemplate)->Initialize(nullptr);
        ClearAuthors();
        mFormattedStr = object(formattedStr).Clone();
        held(mOutputTemplate)->Initialize(formattedStr);
    });
}

void OutputTemplateAuthor::Reset(bool SupportAnonAndPseudoAuthors, bool SquareBracketIsForFirstName,
                                 TextView editorTags, TextView andSeparator, bool twoAuthorsIsOnlyCaseHaveNoComma,
                                 bool ReverseFirstOnFootnote, bool reverseSecondaryAuthors,
                                 bool reversedAuthorUsesComma, bool reversedAuthorPostfixUsesComma,
                                 std::int16_t numAuthorsToTriggerEtAl, std::int16_t numAuthorsToTriggerEtAlCitation,
                                 std::int16_t numAuthorsToTriggerEtAlMinimalString, std::int16_t numAuthorsInEtAl,
                                 std::int16_t numAuthorsInEtAlMinimalString, bool etAlUsesElipses,
                                 bool etAlInReferenceList, bool etAlHasComma, bool etAlCitationHasComma,
                                 TextView editorSeparator, bool initialsOnly, bool initialsUsePeriods,
                                 bool semicolonBetweenGroupAuthors, bool supportsCompilerAndEditor) {
    procedure(*this, u"Reset",
              {{u"SupportAnonAndPseudoAuthors", SupportAnonAndPseudoAuthors},
               {u"SquareBracketIsForFirstName", SquareBracketIsForFirstName},
               {u"editorTags", editorTags},
               {u"andSeparator", andSeparator},
               {u"twoAuthorsIsOnlyCaseHaveNoComma", twoAuthorsIsOnlyCaseHaveNoComma},
               {u"ReverseFirstOnFootnote", ReverseFirstOnFootnote},
               {u"reverseSecondaryAuthors", reverseSecondaryAuthors},
               {u"reversedAuthorUsesComma", reversedAuthorUsesComma},
               {u"reversedAuthorPostfixUsesComma", reversedAuthorPostfixUsesComma},
               {u"numAuthorsToTriggerEtAl", numAuthorsToTriggerEtAl},
               {u"numAuthorsToTriggerEtAlCitation", numAuthorsToTriggerEtAlCitation},
               {u"numAuthorsToTriggerEtAlMinimalString", numAuthorsToTriggerEtAlMinimalString},
               {u"numAuthorsInEtAl", numAuthorsInEtAl},
               {u"numAuthorsInEtAlMinimalString", numAuthorsInEtAlMinimalString},
               {u"etAlUsesElipses", etAlUsesElipses},
               {u"etAlInReferenceList", etAlInReferenceList},
               {u"etAlHasComma", etAlHasComma},
               {u"etAlCitationHasComma", etAlCitationHasComma},
               {u"editorSeparator", editorSeparator},
               {u"initialsOnly", initialsOnly},
               {u"initialsUsePeriods", initialsUsePeriods},
               {u"semicolonBetweenGroupAuthors", semicolonBetweenGroupAuthors},
               {u"supportsCompilerAndEditor", supportsCompilerAndEditor}},
              [&] {
                  mSupportAnonAndPseudoAuthors = SupportAnonAndPseudoAuthors;
                  mSquareBracketIsForFirstName = SquareBracketIsForFirstName;
                  const std::vector<Text> singular = split(editorTags, kComma);
                  std::vector<Text> plural;
                  for (std::size_t role = 0; role < singular.size(); ++role) {
                      plural.push_back(role == kTranslator ? singular[role] : generateTag(singular[role], true));
                  }
                  mEditorTagsSingular = singular;
                  mEditorTagsPlural = plural;
                  mAndSeparator = padded(andSeparator);
                  mTwoAuthorsIsOnlyCaseHaveNoComma = twoAuthorsIsOnlyCaseHaveNoComma;
                  mReverseFirstOnFootnote = ReverseFirstOnFootnote;
                  mReverseSecondaryAuthors = reverseSecondaryAuthors;
                  mReversedAuthorUsesComma = reversedAuthorUsesComma;
                  mReversedAuthorPostfixUsesComma = reversedAuthorPostfixUsesComma;
                  mNumAuthorsToTriggerEtAl = numAuthorsToTriggerEtAl;
                  mNumAuthorsToTriggerEtAlCitation = numAuthorsToTriggerEtAlCitation;
                  mNumAuthorsToTriggerEtAlMinimalString = numAuthorsToTriggerEtAlMinimalString;
                  mNumAuthorsInEtAl = numAuthorsInEtAl;
                  mNumAuthorsInEtAlMinimalString = numAuthorsInEtAlMinimalString;
                  mEtAlUsesElipses = etAlUsesElipses;
                  mEtAlInReferenceList = etAlInReferenceList;
                  mEtAlSeparator = etAlSeparator(etAlHasComma);
                  mEtAlCitationSeparator = etAlSeparator(etAlCitationHasComma);
                  mEditorSeparator = editorSeparator;
                  mInitialsOnly = initialsOnly;
                  mInitialsUsePeriods = initialsUsePeriods;
                  mSemicolonBetweenGroupAuthors = semicolonBetweenGroupAuthors;
                  mSupportsCompilerAndEditor = supportsCompilerAndEditor;
                  layOut();
              });
}

void OutputTemplateAuthor::Reset(const Options& options) {
    Reset(options.SupportAnonAndPseudoAuthors, options.SquareBracketIsForFirstName, options.editorTags,
          options.andSeparator, options.twoAuthorsIsOnlyCaseHaveNoComma, options.ReverseFirstOnFootnote,
          options.reverseSecondaryAuthors, options.reversedAuthorUsesComma, options.reversedAuthorPostfixUsesComma,
          options.numAuthorsToTriggerEtAl, options.numAuthorsToTriggerEtAlCitation,
          options.numAuthorsToTriggerEtAlMinimalString, options.numAuthorsInEtAl, options.numAuthorsInEtAlMinimalString,
          options.etAlUsesElipses, options.etAlInReferenceList, options.etAlHasComma, options.etAlCitationHasComma,
          options.editorSeparator, options.initialsOnly, options.initialsUsePeriods,
          options.semicolonBetweenGroupAuthors, options.supportsCompilerAndEditor);
}

/// Registers the ten slots, unless the last style had the same separators: hosts call `Reset` for each
/// reference.
void OutputTemplateAuthor::layOut() {
    const Text commaForm = concatenate({kComma, mAndSeparator});
    const TextView twoPersonForm = mTwoAuthorsIsOnlyCaseHaveNoComma ? TextView(mAndSeparator) : TextView(commaForm);
    const authorlayout::Texts separators = {mAndSeparator,          commaForm,       twoPersonForm, mEtAlSeparator,
                                            mEtAlCitationSeparator, mEditorSeparator};
    const TextView wanted[] = {mAndSeparator, twoPersonForm, mEtAlSeparator, mEtAlCitationSeparator, mEditorSeparator};
    if (std::equal(std::begin(wanted), std::end(wanted), mLaidOut.begin(), mLaidOut.end())) {
        return;
    }
    mLaidOut.assign(std::begin(wanted), std::end(wanted));
    held(mOutputTemplate)->Reset(authorlayout::kEditor);
    for (std::int16_t slot = 0; slot <= authorlayout::kEditor; ++slot) {
        Add(slot, authorlayout::separatorsAfter(slot, separators));
    }
}

void OutputTemplateAuthor::Add(std::int16_t Index, const std::vector<Text>& separators) {
    procedure(*this, u"Add", {{u"Index", Index}, {u"separators", separators}}, [&] {
        const std::shared_ptr<outputTemplate> assembly = mOutputTemplate;
        object(assembly).Add(Index, false, false, separators);
    });
}

std::shared_ptr<OutputTemplateAuthor> OutputTemplateAuthor::Clone() const {
    return procedure(*this, u"Clone", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateAuthor>();
        CloneImpl(*clone);
        clone->Reset(options());
        return clone;
    });
}

void OutputTemplateAuthor::CloneImpl(OutputTemplateAuthor& clone) const {
    procedure(*this, u"CloneImpl", kNoParameters, [&] {
        clone.Initialize(OutputSinkRef(mFormattedStr));
        clone.Pseudoname = Pseudoname;
        clone.AuthorType = AuthorType;
        clone.HasEtAl = HasEtAl;
        clone.mLastNameFirstForAuthor1 = mLastNameFirstForAuthor1;
        clone.mAnthologies = mAnthologies;
        clone.mAuthors = mAuthors;
        clone.mNumAuthors = mNumAuthors;
        clone.mFirstGroupAuthorIndex = mFirstGroupAuthorIndex;
        clone.mResidue = mResidue;
        clone.mPreviousStr = mPreviousStr;
        clone.mDiscussant = mDiscussant;
    });
}

std::shared_ptr<OutputTemplateAuthor> OutputTemplateAuthor::CloneForEditors() const {
    return procedure(*this, u"CloneForEditors", kNoParameters, [&] {
        auto clone = std::make_shared<OutputTemplateAuthor>();
        clone->Initialize(OutputSinkRef(mFormattedStr));
        Options settings = options();
        settings.editorTags = getEditorTags();
        clone->Reset(settings);
        return clone;
    });
}

Text OutputTemplateAuthor::getEditorTags() const {
    return procedure(*this, u"getEditorTags", kNoParameters, [&] { return join(mEditorTagsSingular, kComma); });
}

/// The settings as `Reset` received them.
OutputTemplateAuthor::Options OutputTemplateAuthor::options() const {
    Options options;
    options.SupportAnonAndPseudoAuthors = mSupportAnonAndPseudoAuthors;
    options.SquareBracketIsForFirstName = mSquareBracketIsForFirstName;
    options.editorTags = join(mEditorTagsSingular, kComma);
    options.andSeparator = mAndSeparator;
    options.twoAuthorsIsOnlyCaseHaveNoComma = mTwoAuthorsIsOnlyCaseHaveNoComma;
    options.ReverseFirstOnFootnote = mReverseFirstOnFootnote;
    options.reverseSecondaryAuthors = mReverseSecondaryAuthors;
    options.reversedAuthorUsesComma = mReversedAuthorUsesComma;
    options.reversedAuthorPostfixUsesComma = mReversedAuthorPostfixUsesComma;
    options.numAuthorsToTriggerEtAl = mNumAuthorsToTriggerEtAl;
    options.numAuthorsToTriggerEtAlCitation = mNumAuthorsToTriggerEtAlCitation;
    options.numAuthorsToTriggerEtAlMinimalString = mNumAuthorsToTriggerEtAlMinimalString;
    options.numAuthorsInEtAl = mNumAuthorsInEtAl;
    options.numAuthorsInEtAlMinimalString = mNumAuthorsInEtAlMinimalString;
    options.etAlUsesElipses = mEtAlUsesElipses;
    options.etAlInReferenceList = mEtAlInReferenceList;
    options.etAlHasComma = startsWith(mEtAlSeparator, kComma);
    options.etAlCitationHasComma = startsWith(mEtAlCitationSeparator, kComma);
    options.editorSeparator = mEditorSeparator;
    options.initialsOnly = mInitialsOnly;
    options.initialsUsePeriods = mInitialsUsePeriods;
    options.semicolonBetweenGroupAuthors = mSemicolonBetweenGroupAuthors;
    options.supportsCompilerAndEditor = mSupportsCompilerAndEditor;
    return options;
}

const AuthorRecord& OutputTemplateAuthor::author(std::int32_t index) const {
    if (index < 0 || index >= mNumAuthors) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return mAuthors.at(at(index));
}

/// The record behind the last person, emptied; it counts from now on.
AuthorRecord& OutputTemplateAuthor::nextAuthor() {
    if (mNumAuthors == INT16_MAX) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    if (at(mNumAuthors) == mAuthors.size()) {
        mAuthors.emplace_back();
    }
    AuthorRecord& record = mAuthors[at(mNumAuthors)];
    record.lastName.clear();
    record.firstNames.clear();
    record.postfix.clear();
    ++mNumAuthors;
    return record;
}

void OutputTemplateAuthor::ClearAuthors() {
    procedure(*this, u"ClearAuthors", kNoParameters, [&] {
        mNumAuthors = 0;
        mFirstGroupAuthorIndex = -1;
        mLastNameFirstForAuthor1 = false;
        mDiscussant.reset();
        mResidue.clear();
        mAnthologies.assign(kRoles, false);
        Pseudoname.clear();
        AuthorType = kOrdinary;
        HasEtAl = false;
    });
}

bool OutputTemplateAuthor::isEmptyArrayAuthor() const {
    return procedure(*this, u"isEmptyArrayAuthor", kNoParameters, [&] { return mNumAuthors == 0; });
}

bool OutputTemplateAuthor::hasDiscussant() const {
    return procedure(*this, u"hasDiscussant[Get]", kNoParameters, [&] { return mDiscussant != nullptr; });
}

bool OutputTemplateAuthor::Anthologies(std::int16_t index) const {
    return procedure(*this, u"Anthologies[Get]", {{u"index", index}},
                     [&]() -> bool { return mAnthologies.at(at(index)); });
}

void OutputTemplateAuthor::Anthologies(std::int16_t index, bool value) {
    procedure(*this, u"Anthologies[Let]", {{u"index", index}, {u"value", value}},
              [&] { mAnthologies.at(at(index)) = value; });
}

std::vector<bool> OutputTemplateAuthor::checkingArray() const {
    return procedure(*this, u"checkingArray[Get]", kNoParameters,
                     [&] { return std::vector<bool>(at(authorlayout::kEditor) + 1, false); });
}

Text OutputTemplateAuthor::residue() const {
    return procedure(*this, u"residue[Get]", kNoParameters, [&] { return mResidue; });
}

void OutputTemplateAuthor::residue(TextView value) {
    procedure(*this, u"residue[Let]", {{u"value", value}}, [&] { mResidue = value; });
}

bool OutputTemplateAuthor::LastNameFirstForAuthor1() const {
    return procedure(*this, u"LastNameFirstForAuthor1[Get]", kNoParameters, [&] { return mLastNameFirstForAuthor1; });
}

bool OutputTemplateAuthor::isJapaneseOrChineseLastName() const {
    return procedure(*this, u"isJapaneseOrChineseLastName[Get]", kNoParameters, [&] {
        return mNumAuthors > 0 && author(0).firstNames.empty() &&
               authorwords::wordOf(author(0).lastName).is(authorwords::kEastAsianLastName);
    });
}

bool OutputTemplateAuthor::supportsCompilerAndEditor() const {
    return procedure(*this, u"supportsCompilerAndEditor[Get]", kNoParameters,
                     [&] { return mSupportsCompilerAndEditor; });
}

bool OutputTemplateAuthor::SupportAnonAndPseudoAuthors() const {
    return procedure(*this, u"SupportAnonAndPseudoAuthors[Get]", kNoParameters,
                     [&] { return mSupportAnonAndPseudoAuthors; });
}

bool OutputTemplateAuthor::SquareBracketIsForFirstName() const {
    return procedure(*this, u"SquareBracketIsForFirstName[Get]", kNoParameters,
                     [&] { return mSquareBracketIsForFirstName; });
}

void OutputTemplateAuthor::dumpVariables(VBWPROTECTOR& report) const {
    std::vector<Text> people;
    for (std::int32_t i = 0; i < mNumAuthors; ++i) {
        const AuthorRecord& person = mAuthors[at(i)];
        people.push_back(concatenate({person.lastName, u"|", person.firstNames, u"|", person.postfix}));
    }
    report.vbwReportVariable(u"Pseudoname", Pseudoname);
    report.vbwReportVariable(u"AuthorType", AuthorType);
    report.vbwReportVariable(u"HasEtAl", HasEtAl);
    report.vbwReportVariable(u"mLastNameFirstForAuthor1", mLastNameFirstForAuthor1);
    report.vbwReportVariable(u"mSupportAnonAndPseudoAuthors", mSupportAnonAndPseudoAuthors);
    report.vbwReportVariable(u"mSquareBracketIsForFirstName", mSquareBracketIsForFirstName);
    report.vbwReportVariable(u"mEditorTagsSingular", mEditorTagsSingular);
    report.vbwReportVariable(u"mEditorTagsPlural", mEditorTagsPlural);
    report.vbwReportVariable(u"mAndSeparator", mAndSeparator);
    report.vbwReportVariable(u"mReverseSecondaryAuthors", mReverseSecondaryAuthors);
    report.vbwReportVariable(u"mReversedAuthorUsesComma", mReversedAuthorUsesComma);
    report.vbwReportVariable(u"mReversedAuthorPostfixUsesComma", mReversedAuthorPostfixUsesComma);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAl", mNumAuthorsToTriggerEtAl);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAlCitation", mNumAuthorsToTriggerEtAlCitation);
    report.vbwReportVariable(u"mNumAuthorsToTriggerEtAlMinimalString", mNumAuthorsToTriggerEtAlMinimalString);
    report.vbwReportVariable(u"mNumAuthorsInEtAl", mNumAuthorsInEtAl);
    report.vbwReportVariable(u"mNumAuthorsInEtAlMinimalString", mNumAuthorsInEtAlMinimalString);
    report.vbwReportVariable(u"mEtAlUsesElipses", mEtAlUsesElipses);
    report.vbwReportVariable(u"mEtAlInReferenceList", mEtAlInReferenceList);
    report.vbwReportVariable(u"mInitialsOnly", mInitialsOnly);
    report.vbwReportVariable(u"mInitialsUsePeriods", mInitialsUsePeriods);
    report.vbwReportVariable(u"mSemicolonBetweenGroupAuthors", mSemicolonBetweenGroupAuthors);
    report.vbwReportVariable(u"mAnthologies", mAnthologies);
    report.vbwReportVariable(u"mCompStrings", mCompStrings);
    report.vbwReportVariable(u"mEditorStrings", mEditorStrings);
    report.vbwReportVariable(u"mTranslatorStrings", mTranslatorStrings);
    report.vbwReportVariable(u"mSupportsCompilerAndEditor", mSupportsCompilerAndEditor);
    report.vbwReportVariable(u"mReverseFirstOnFootnote", mReverseFirstOnFootnote);
    report.vbwReportVariable(u"mEtAlSeparator", mEtAlSeparator);
    report.vbwReportVariable(u"mEtAlCitationSeparator", mEtAlCitationSeparator);
    report.vbwReportVariable(u"mEditorSeparator", mEditorSeparator);
    report.vbwReportVariable(u"mTwoAuthorsIsOnlyCaseHaveNoComma", mTwoAuthorsIsOnlyCaseHaveNoComma);
    report.vbwReportVariable(u"mAuthors", people);
    report.vbwReportVariable(u"mNumAuthors", mNumAuthors);
    report.vbwReportVariable(u"mFirstGroupAuthorIndex", mFirstGroupAuthorIndex);
    report.vbwReportVariable(u"mResidue", mResidue);
    report.vbwReportVariable(u"mPreviousStr", mPreviousStr);
    report.vbwReportVariable(u"mEditorTokens", mEditorTokens);
    report.vbwReportVariable(u"mChapterTypes", mChapterTypes);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mFormattedStr", mFormattedStr);
    report.vbwReportVariable(u"mYearTemplate", HostObjectRef());
}

}  // namespace quorvel

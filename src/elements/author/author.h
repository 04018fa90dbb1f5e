#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/text.h"
#include "elements/author/list_text.h"
#include "elements/year.h"

namespace quorvel {

/// One person of a list. A corporate author has its whole name as last name and nothing else.
struct AuthorRecord {
    /// With its particle: "van der Meer".
    Text lastName;
    /// First and middle names or initials, separated by blanks.
    Text firstNames;
    /// "Jr.", "III".
    Text postfix;
};

/// The authors, editors, compilers or translators of a work (element type codes 0 and 9).
///
/// It reads a list of persons in any of the forms in which the styles print them, without being told
/// which, and writes it in the form that the style in force asks for:
///
///   Wegener, D. T., & Petty, R. E.              APA 6 6.27
///   Wegener, Duane T., and Richard E. Petty     MLA 7 5.5.3, Turabian 7 17.1.1 (bibliography)
///   Duane T. Wegener and Richard E. Petty       Turabian 7 17.1.1 (note)
///   Wegener DT, Petty RE                        AMA 10 3.7
///
/// The members are kept in several files by what they do: author.cpp (life and properties),
/// output.cpp (writing), parse.cpp (the order of reading), residue.cpp (text of
/// other elements), editors.cpp (tags), institutions.cpp (corporate authors),
/// persons.cpp (from pieces of a list to persons), names.cpp (from a name to its parts),
/// keywords.cpp (lists as other texts).
class OutputTemplateAuthor final : public Instrumented, public Implementor {
public:
    /// Values of `AuthorType`. They are part of the interface.
    enum AuthorKind : std::int16_t {
        kOrdinary = 0,
        /// The work is anonymous and the name supplied: "[Horsley, Samuel?]".
        kAttributed = 1,
        kPseudonym = 2,
    };

    /// Indexes of `Anthologies`: the role of the persons.
    enum Role : std::int16_t { kEditor = 0, kCompiler = 1, kTranslator = 2 };
    static constexpr std::int16_t kRoles = 3;

    /// The settings of a style, under the names of `Reset`'s arguments.
    struct Options {
        bool SupportAnonAndPseudoAuthors = false;
        bool SquareBracketIsForFirstName = false;
        Text editorTags;
        Text andSeparator;
        bool twoAuthorsIsOnlyCaseHaveNoComma = false;
        bool ReverseFirstOnFootnote = false;
        bool reverseSecondaryAuthors = false;
        bool reversedAuthorUsesComma = false;
        bool reversedAuthorPostfixUsesComma = false;
        std::int16_t numAuthorsToTriggerEtAl = 0;
        std::int16_t numAuthorsToTriggerEtAlCitation = 0;
        std::int16_t numAuthorsToTriggerEtAlMinimalString = 0;
        std::int16_t numAuthorsInEtAl = 0;
        std::int16_t numAuthorsInEtAlMinimalString = 0;
        bool etAlUsesElipses = false;
        bool etAlInReferenceList = false;
        bool etAlHasComma = false;
        bool etAlCitationHasComma = false;
        Text editorSeparator;
        bool initialsOnly = false;
        bool initialsUsePeriods = false;
        bool semicolonBetweenGroupAuthors = false;
        bool supportsCompilerAndEditor = false;
    };

    /// The name behind a pseudonym; empty stands for "pseud.".
    Text Pseudoname;
    /// One of AuthorKind, for the first person; any other value is written as an ordinary author.
    std::int16_t AuthorType = kOrdinary;
    /// The list is known to be incomplete: it ended in "et al." or had an ellipsis.
    bool HasEtAl = false;

    /// Keeps a clone of the sink for `toString`.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The settings of the style in force; the persons stay.
    /// @param SupportAnonAndPseudoAuthors "[name?]" and "name [pseud.]" are written
    /// @param SquareBracketIsForFirstName a bracketed part of a name that is read belongs to the first names
    /// @param editorTags the tags of one editor, compiler and translator, separated by commas
    /// @param andSeparator the word before the last person; empty when the style has none
    /// @param twoAuthorsIsOnlyCaseHaveNoComma two persons have no comma before that word
    /// @param ReverseFirstOnFootnote the first person is reversed in notes too
    /// @param reverseSecondaryAuthors the persons after the first are reversed
    /// @param reversedAuthorUsesComma a comma stands between the last and the first names
    /// @param reversedAuthorPostfixUsesComma a comma stands before a postfix
    /// @param numAuthorsToTriggerEtAl, numAuthorsToTriggerEtAlCitation, numAuthorsToTriggerEtAlMinimalString
    ///        the number of persons from which a list, a citation and a minimal form are shortened
    /// @param numAuthorsInEtAl, numAuthorsInEtAlMinimalString how many persons a shortened list and the two
    ///        other forms keep; below 1 all
    /// @param etAlUsesElipses an omission is written " . . . " before the last person
    /// @param etAlInReferenceList the reference list is shortened, not only notes
    /// @param etAlHasComma, etAlCitationHasComma a comma stands before "et al." in the reference list and
    ///        in notes
    /// @param editorSeparator the text between the persons and their tag
    /// @param initialsOnly first names are written as initials
    /// @param initialsUsePeriods initials, "Jr." and "Sr." have full stops
    /// @param semicolonBetweenGroupAuthors group authors are set off by semicolons
    /// @param supportsCompilerAndEditor compilers have a tag of their own
    void Reset(bool SupportAnonAndPseudoAuthors, bool SquareBracketIsForFirstName, TextView editorTags,
               TextView andSeparator, bool twoAuthorsIsOnlyCaseHaveNoComma, bool ReverseFirstOnFootnote,
               bool reverseSecondaryAuthors, bool reversedAuthorUsesComma, bool reversedAuthorPostfixUsesComma,
               std::int16_t numAuthorsToTriggerEtAl, std::int16_t numAuthorsToTriggerEtAlCitation,
               std::int16_t numAuthorsToTriggerEtAlMinimalString, std::int16_t numAuthorsInEtAl,
               std::int16_t numAuthorsInEtAlMinimalString, bool etAlUsesElipses, bool etAlInReferenceList,
               bool etAlHasComma, bool etAlCitationHasComma, TextView editorSeparator, bool initialsOnly,
               bool initialsUsePeriods, bool semicolonBetweenGroupAuthors, bool supportsCompilerAndEditor);
    /// The same with the settings as one value.
    void Reset(const Options& options);

    /// A copy with the settings and the persons.
    std::shared_ptr<OutputTemplateAuthor> Clone() const;
    /// An element with the same settings and no persons, for the editors of the work.
    std::shared_ptr<OutputTemplateAuthor> CloneForEditors() const;

    /// Reads a list of persons out of a finished reference.
    /// @param text what belongs to other elements stays in it (see `residue`)
    /// @param previousStr the authors of the reference before, for a dash that stands for them
    /// @param residueAlreadyRemoved nothing in the text belongs to other elements
    void Parse(Text& text, TextView previousStr, bool residueAlreadyRemoved = false);

    /// Writes the list to the sink.
    /// @param isFootnote the note's form
    /// @param shortenedVersion last names only, without the tag
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool shortenedVersion) override;

    /// The list as text, or as RTF.
    /// @param isMinimal, isCitation the thresholds of the minimal form or of the citation count
    /// @param forceNoInitials first names are written in full; afterwards they are initials, whatever
    ///        they were before (see output.cpp)
    Text toString(bool isFootnote, bool shortenedVersion, bool isMinimal = false, bool isCitation = false,
                  bool forceNoInitials = false, bool isRTF = false);

    /// The last names as a citation writes them.
    /// @param form2 the same with "and" for every "&"
    void toCitationFormat(Text& form1, Text& form2);

    /// The words of each person as keywords, separated by commas; one text a person.
    std::vector<Text> toKeywordList() const;
    /// All persons as one text "A, B and C"; the and-word is the style's "&" or "and".
    Text toMergedString() const;
    /// Whether two texts name the same persons, in whatever form they stand. The element stays as it is.
    bool isSameAuthor(TextView str1, TextView str2);

    /// Each person as "Last, First, Postfix", trailing empty parts left out.
    std::vector<Text> authors() const;
    /// Replaces the persons; a text without comma is read like a name in a list. Empty texts are skipped.
    void authors(const std::vector<Text>& values);
    /// The persons for the host's data base, "Last, First" each, separated by "; ".
    Text authorsForQVDb() const;

    /// Whether the text had a discussant ("Smith, J. In discussion of: ...").
    bool hasDiscussant() const;
    /// One of the flags of Role; an index outside is reported and False.
    bool Anthologies(std::int16_t index) const;
    void Anthologies(std::int16_t index, bool value);
    /// The tag that tells what the persons are: "eds.", "ed. and trans."; empty for authors.
    Text editor() const;
    /// No slot has checking separators.
    std::vector<bool> checkingArray() const;
    /// What was found in the text and belongs to other elements.
    Text residue() const;
    void residue(TextView value);
    /// Whether the first person stood last name first in the text that was read.
    bool LastNameFirstForAuthor1() const;
    /// Whether the first person is a last name only that is known to be Japanese or Chinese.
    bool isJapaneseOrChineseLastName() const;
    bool supportsCompilerAndEditor() const;
    bool SupportAnonAndPseudoAuthors() const;
    bool SquareBracketIsForFirstName() const;

    /// The first person's text with the name behind the pseudonym in brackets: "Le Carré, John [David
    /// Cornwell]".
    Text collapsePseudoToFirstName(TextView firstAuthor) const;
    /// Commas beside a group author become semicolons, unless the text holds "et al".
    Text convertCommaToSemicolon(TextView text) const;
    void ClearAuthors();
    bool isEmptyArrayAuthor() const;

    /// The persons that were read.
    std::int16_t numAuthors() const { return mNumAuthors; }
    /// One of them; throws for an index outside (for the library's own use).
    const AuthorRecord& person(std::int16_t index) const { return author(index); }

    TextView className() const override { return u"OutputTemplateAuthor"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    using ListText = authorwords::AuthorListText;
    using Word = authorwords::Word;
    using WordSpan = authorwords::WordSpan;
    using Piece = authorwords::Piece;
    using Person = authorwords::Person;

    // Life.
    void CloneImpl(OutputTemplateAuthor& clone) const;
    void Add(std::int16_t Index, const std::vector<Text>& separators);
    Text getEditorTags() const;
    void layOut();
    Options options() const;
    const AuthorRecord& author(std::int32_t index) const;
    AuthorRecord& nextAuthor();

    // Writing.
    void ToArray(bool isFootnote, std::vector<Text>& items, bool shortenedVersion) const;
    Text toStringDiscussant(bool isFootnote, bool shortenedVersion) const;
    Text toStringFirstAuthor(bool isFootnote, bool shortenedVersion) const;
    Text toStringAuthor(std::int16_t index, bool Reverse, bool useFirst) const;
    void toStringAuthorFirst(TextView firstNames, Text& result) const;
    void addPostFix(Text& author, TextView postFix, bool forceUseSpace) const;
    Text generateTag(TextView templateStr, bool isPlural) const;
    Text nameOf(const AuthorRecord& person, bool reverse, bool useFirst) const;
    Text restOf(std::int16_t from, std::int16_t to, bool useFirst) const;
    bool writesSemicolons() const;
    std::vector<bool> rolesInForce() const;

    // Reading: the list.
    void ParseAndRemoveDiscussant(ListText& text);
    void parseAndRemoveResidue(ListText& text);
    void parseAndRemoveAnthology(ListText& text);
    bool parseAnthologyTag(const Word& word);
    void parseAndRemoveEtAl(ListText& text);
    void parseAndRemoveAndSeparator(ListText& text);
    void handleAMAException(ListText& text) const;
    void parseAndRemoveAuthor(ListText& text, std::int16_t index, bool treatTheRestAsResidue);
    void readAttributedName(Text& text);
    void store(const Person& person);
    static void writeFirstNames(const Person& person, Text& firstNames);

    // Reading: text of other elements.
    void parseAndRemoveElipses(ListText& text);
    void parseAndRemoveSameAsLastAuthor(ListText& text);
    void parseAndRemoveTranslator(ListText& text);
    void parseAndRemoveResidueChapterType(ListText& text);
    void parseAndRemoveResidueNoDate(ListText& text);
    void parseAndRemoveResidueBracket(ListText& text);
    void parseAndRemoveResidueQuote(ListText& text);
    void parseAndRemoveResidueVolume(ListText& text);
    void parseAndRemoveResidueEditor(ListText& text);
    void parseAndRemoveResidueAMAAuthor(ListText& text);
    void parseAndRemoveCorporateAuthor(ListText& text);
    void parseAndRemoveResidueByInitials(ListText& text);
    void parseAndRemoveResidueByNumeral(ListText& text);
    void parseAndRemoveResidueByPublisher(ListText& text);
    void cutResidue(ListText& text, std::size_t from, std::size_t skip = 0);

    // Reading: tags.
    bool processEditor(ListText& text);
    void removeInnerTags(ListText& text);
    bool isEditor(WordSpan words) const;
    bool editionMisinterpretedAsEditor(WordSpan words) const;
    bool isEdition(TextView word) const;

    // Reading: institutions.
    bool isInstitutionalAuthor(WordSpan words) const;
    bool isInstitution(WordSpan words) const;
    bool isInstitutionWord(const Word& word) const;
    bool possibleAuthor(TextView text) const;
    bool isOneAuthorWithAnAndInIt(const ListText& text, std::size_t leftPiece, const Piece& right) const;
    void mergeInstitutions(ListText& text) const;

    // Reading: persons and the parts of their names.
    bool isPostfixOfPrevious(const ListText& text, const Piece& piece, std::int16_t index) const;
    static bool isGroupBehindSemicolon(const ListText& text, const Piece& piece);
    static bool isCompactAuthor(const ListText& text, const Piece& piece);
    static bool isLastNameFirst(WordSpan words);
    static bool beginsWithThe(WordSpan words);
    Person parseAuthor(WordSpan words) const;
    Person parseReversedAuthor(WordSpan last, WordSpan first) const;
    Person parseCompactAuthor(WordSpan words) const;
    void parseAndRemovePostfix(WordSpan& words, Person& person) const;
    bool isRomanNumeralPostfix(TextView word) const;
    std::int16_t getFirstNameUbound(WordSpan words) const;
    bool isPartialLastName(const Word& word) const;
    bool dePartOfFirstName(const Word& lastName) const;
    bool isArabicName(WordSpan words) const;
    bool isArabicLastName(const Word& word) const;
    void moveApostrophePrefix(Person& person) const;
    bool isSpanishY(const Word& word) const;
    bool isFirstName(const Word& word) const;
    bool parseAndRecoverFirstName(const ListText& text, std::size_t piece) const;
    bool endsWithAnInitial(const Piece& piece) const;

    // Reading: places in a text.
    bool isAtSuffixIndex(TextView text, std::size_t index) const;
    bool isAtInitialOrPostfixIndex(TextView text, std::size_t index) const;
    bool isAtEtAlIndex(TextView text, std::size_t index) const;

    bool mSupportAnonAndPseudoAuthors = false;
    bool mSquareBracketIsForFirstName = false;
    std::vector<Text> mEditorTagsSingular;
    std::vector<Text> mEditorTagsPlural;
    Text mAndSeparator = u" ";
    bool mReverseSecondaryAuthors = false;
    bool mReversedAuthorUsesComma = false;
    bool mReversedAuthorPostfixUsesComma = false;
    std::int16_t mNumAuthorsToTriggerEtAl = 0;
    std::int16_t mNumAuthorsToTriggerEtAlCitation = 0;
    std::int16_t mNumAuthorsToTriggerEtAlMinimalString = 0;
    std::int16_t mNumAuthorsInEtAl = 0;
    std::int16_t mNumAuthorsInEtAlMinimalString = 0;
    bool mEtAlUsesElipses = false;
    bool mEtAlInReferenceList = false;
    bool mInitialsOnly = false;
    bool mInitialsUsePeriods = false;
    bool mSemicolonBetweenGroupAuthors = false;
    std::vector<bool> mAnthologies = std::vector<bool>(kRoles, false);
    std::vector<Text> mCompStrings;
    std::vector<Text> mEditorStrings;
    std::vector<Text> mTranslatorStrings;
    bool mSupportsCompilerAndEditor = false;
    bool mReverseFirstOnFootnote = false;
    bool mLastNameFirstForAuthor1 = false;
    Text mEtAlSeparator = u" ";
    Text mEtAlCitationSeparator = u" ";
    Text mEditorSeparator;
    bool mTwoAuthorsIsOnlyCaseHaveNoComma = false;
    // Longer than the list after a longer one was read: the records are filled again.
    std::vector<AuthorRecord> mAuthors;
    std::int16_t mNumAuthors = 0;
    std::int16_t mFirstGroupAuthorIndex = -1;
    Text mResidue;
    Text mPreviousStr;
    std::vector<Text> mEditorTokens;
    std::vector<Text> mChapterTypes;
    std::shared_ptr<outputTemplate> mOutputTemplate;
    OutputSinkRef mFormattedStr;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
    std::shared_ptr<const AuthorRecord> mDiscussant;
    // The layout's texts that `Reset` registered last; while they stay there is nothing to lay out.
    std::vector<Text> mLaidOut;
    // In a citation or minimal form a postfix has no comma and an omission no ellipsis.
    bool mIsCitationForm = false;
};

}  // namespace quorvel

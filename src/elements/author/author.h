#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/assembled_element.h"
#include "core/output_sink.h"
#include "core/text.h"
#include "elements/author/persons.h"
#include "elements/author/reader.h"
#include "elements/author/style.h"
#include "elements/author/writer.h"
#include "elements/year.h"

namespace quorvel {

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
/// It consists of the style in force (style.h), the persons (persons.h), the reading of a text (reader.h) and
/// the writing (writer.h).
class OutputTemplateAuthor final : public AssembledElement {
public:
    using enum AuthorPersons::Kind;
    using enum AuthorPersons::Role;
    static constexpr std::int16_t kRoles = AuthorPersons::kRoles;

    /// Keeps a clone of the sink for `toString`.
    void Initialize(const OutputSinkRef& formattedStr);

    /// The settings of the style in force; the persons stay.
    void Reset(const AuthorOptions& options);

    /// A copy with the settings and the persons.
    std::shared_ptr<OutputTemplateAuthor> Clone() const;
    /// An element with the same settings and no persons, for the editors of the work.
    std::shared_ptr<OutputTemplateAuthor> CloneForEditors() const;

    /// Reads a list of persons out of a finished reference.
    /// @param text what belongs to other elements stays in it (see `residue`)
    /// @param previousStr the authors of the reference before, for a dash that stands for them
    /// @param residueAlreadyRemoved nothing in the text belongs to other elements
    void Parse(Text& text, TextView previousStr, bool residueAlreadyRemoved = false);

    /// The list as text, or as RTF.
    /// @param isMinimal, isCitation the thresholds of the minimal form or of the citation count
    /// @param forceNoInitials first names are written in full; afterwards the style has initials, whatever it
    ///        had before
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

    /// The name behind a pseudonym; empty stands for "pseud.".
    Text Pseudoname() const { return mPersons->pseudoname; }
    void Pseudoname(TextView value) { own().pseudoname = value; }
    /// One of AuthorPersons::Kind.
    std::int16_t AuthorType() const { return mPersons->authorType; }
    void AuthorType(std::int16_t value) { own().authorType = value; }
    /// The list is known to be incomplete.
    bool HasEtAl() const { return mPersons->hasEtAl; }
    void HasEtAl(bool value) { own().hasEtAl = value; }
    /// Whether the text had a discussant ("Smith, J. In discussion of: ...").
    bool hasDiscussant() const;
    /// Who discusses the work of the persons, as "Last, First, Postfix"; empty when there is nobody.
    Text Discussant() const;
    /// A text without comma is read like a name in a list; an empty one removes the discussant.
    void Discussant(TextView value);
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

    /// Whether a comma stands before the and-word of three persons and more; True at first. `Reset` leaves it, as it
    /// does the next one, and clones have both.
    bool andSeparatorHasComma() const { return mStyle->wording.andSeparatorHasComma; }
    void andSeparatorHasComma(bool value);
    /// What stands for the persons that are left out; "et al." at first. It is read like that, too.
    Text etAlText() const { return mStyle->wording.etAlText; }
    void etAlText(TextView value);

    /// The first person's text with the name behind the pseudonym in brackets: "Le Carré, John [David
    /// Cornwell]".
    Text collapsePseudoToFirstName(TextView firstAuthor) const;
    /// Commas beside a group author become semicolons, unless the text holds "et al".
    Text convertCommaToSemicolon(TextView text) const;
    void ClearAuthors();
    bool isEmptyArrayAuthor() const;

    /// For the library's own use: the persons, one of them (throws for an index outside), and how many.
    const AuthorPersons& persons() const { return *mPersons; }
    const AuthorRecord& person(std::int16_t index) const { return persons().at(index); }
    std::int16_t numAuthors() const { return mPersons->size(); }
    /// The persons that a text names, as this style reads them; the element keeps its own.
    std::shared_ptr<AuthorPersons> personsIn(TextView text) const;
    /// Other persons than its own in the style in force.
    Text toString(const std::shared_ptr<const AuthorPersons>& persons, bool isFootnote, bool shortenedVersion,
                  AuthorForm form, bool isRTF = false) const;

    TextView className() const override { return u"OutputTemplateAuthor"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void CloneImpl(OutputTemplateAuthor& clone) const;
    void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                   bool shortenedVersion) override;
    void layOut();
    void use(const AuthorWording& wording);
    void useUsualEtAl(Text& text) const;
    Text getEditorTags() const;
    AuthorReader reader() const { return {*this, mStyle->options.SquareBracketIsForFirstName}; }
    AuthorWriter writer() const { return {*this, mStyle, mPersons, assembly(), mFormattedStr}; }
    AuthorPersons& own();

    AuthorStyleRef mStyle = plainStyle();
    // Shared with outputs under way: changed only through `own`.
    std::shared_ptr<AuthorPersons> mPersons = std::make_shared<AuthorPersons>();
    Text mPreviousStr;
    OutputSinkRef mFormattedStr;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;

    static const AuthorStyleRef& plainStyle();
};

}  // namespace quorvel

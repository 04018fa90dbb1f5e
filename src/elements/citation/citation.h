#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/options.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/output_template_model.h"
#include "core/reference_model.h"
#include "core/text.h"
#include "elements/author/author.h"
#include "elements/citation/fields.h"
#include "elements/citation/text.h"
#include "elements/title/title.h"
#include "elements/year.h"

namespace quorvel {

/// What a style says of short citations.
struct CitationOptions {
    /// Between the author and a title.
    Text SEPAR;
    /// A missing year is "n.d."
    bool useNoDate = false;
    /// Before a volume: "vol. ". A volume that a colon joins to its page has none.
    Text volPrefix;
    /// Without author the periodical stands first rather than the title.
    bool useAuthorOrPeriodicalTitle = false;
    /// The title always follows the author; otherwise only where the citation has no year and there are other works
    /// by the author.
    bool useTitle = false;
    /// "1900/1953".
    bool useOriginalYear = false;
    /// The titles of parts of works stand in quotation marks.
    bool titleIsQuoted = false;
    /// A communication by e-mail is called so.
    bool useEmailKey = false;
    /// The academic degree follows the name of who communicated.
    bool useDegree = false;
    /// The title is that of the part that is cited, not of the whole work.
    bool supportsSubwork = false;
    /// Without author and year the web site stands alone.
    bool useWebsiteWhenNoAuthorAndDate = false;
    /// A work in a periodical is cited by that.
    bool journalCentric = false;
    /// Before the page or the volume with its page.
    Text PSEPR;
    /// Before the year; empty: citations have no year.
    Text YSEPR;
    /// Between volume and page.
    Text VSEPR;
};

inline constexpr std::tuple kCitationOptions{
    Option{u"SEPAR", &CitationOptions::SEPAR},
    Option{u"useNoDate", &CitationOptions::useNoDate},
    Option{u"volPrefix", &CitationOptions::volPrefix},
    Option{u"useAuthorOrPeriodicalTitle", &CitationOptions::useAuthorOrPeriodicalTitle},
    Option{u"useTitle", &CitationOptions::useTitle},
    Option{u"useOriginalYear", &CitationOptions::useOriginalYear},
    Option{u"titleIsQuoted", &CitationOptions::titleIsQuoted},
    Option{u"useEmailKey", &CitationOptions::useEmailKey},
    Option{u"useDegree", &CitationOptions::useDegree},
    Option{u"supportsSubwork", &CitationOptions::supportsSubwork},
    Option{u"useWebsiteWhenNoAuthorAndDate", &CitationOptions::useWebsiteWhenNoAuthorAndDate},
    Option{u"journalCentric", &CitationOptions::journalCentric},
    Option{u"PSEPR", &CitationOptions::PSEPR},
    Option{u"YSEPR", &CitationOptions::YSEPR},
    Option{u"VSEPR", &CitationOptions::VSEPR},
};

/// The short citation of a reference.
///
///   style                 output                                          manual
///   author and date       (Smith & Jones, 2005, p. 12)                    APA 6 6.11-6.20
///   author and page       (Smith and Jones 12)                            MLA 7 6.2-6.4
///   short note            Smith and Jones, Short Title, 12.               Turabian 7 16.4
///   journal               (JAMA. 2004;291(20):2432)                       AMA 10 3.3
///
/// Without author the title stands first, or the periodical, or the web site; without date "n.d.". What is
/// cited comes from the host's model, under the names of citation_fields.h, or from a citation that
/// `Parse` read.
///
/// The style's author and title elements write their parts; they are only asked, never changed.
class OutputTemplateCitation final : public Instrumented {
public:
    /// How the first author's first names are written (`firstNameCommand`). Other values count as 0.
    enum FirstNameCommand : std::int16_t {
        /// Last names only.
        kLastNames = 0,
        /// With initials, since another author in the list has the same last name (MLA 7 6.4.2, APA 6 6.14).
        kInitials = 1,
        /// With first names in full, since the initials are the same as well.
        kFirstNames = 2,
        /// No author: the sentence names him, "(2005, p. 12)".
        kNamedInTheSentence = 3,
    };

    /// The slots of a layout made with `ResetLikeModelTemplate`, where no implementor fills them. The first two
    /// have fonts.
    enum Slot : std::int16_t {
        kName = 0,
        kTitle = 1,
        kYear = 2,
        /// The volume alone, with its prefix.
        kVolume = 3,
        /// The page, with its volume before it.
        kLocator = 4,
        kLastSlot = kLocator,
    };

    /// @param formattedStr the maker of sinks
    /// @param useMultiPartWork the volume that is cited is written
    /// @param keyToInternalIndex the model's fields by name
    /// @param authorModelOutputTemplate, titleModelOutputTemplate the style's elements; without them authors and
    ///        titles are written as the model has them
    /// @param multiVolModelOutputTemplate kept for the host; the volume is written by the citation itself
    void Initialize(const OutputSinkRef& formattedStr, bool useMultiPartWork,
                    const KeyToInternalIndexRef& keyToInternalIndex,
                    const std::shared_ptr<OutputTemplateAuthor>& authorModelOutputTemplate,
                    const std::shared_ptr<OutputTemplateTitle>& titleModelOutputTemplate,
                    const HostObjectRef& multiVolModelOutputTemplate);

    /// The citation gets a layout of the host's instead of the style's own, as short notes need: `Add` registers
    /// its slots. The options stay; a later `Reset` gives the own layout back.
    /// @param maxIndex the highest slot
    /// @param callback fills the slots; empty: they are the ones of Slot
    void ResetLikeModelTemplate(std::int16_t maxIndex, const ImplementorRef& callback);

    /// The options of the style in force; what `Parse` read stays.
    void Reset(const CitationOptions& options);

    /// Reads a citation in any of the forms above.
    /// @param text is consumed
    /// @param previousStr the citation before, for "Ibid."
    void Parse(Text& text, TextView previousStr);

    /// Writes the citation.
    /// @param model empty: what `Parse` read is written
    /// @param firstNameCommand one of FirstNameCommand
    /// @param hasOtherTitlesByAuthor the list has several works by the author
    /// @param shouldReadFromModel False: what `Parse` read is written, and the model is not looked at
    void ToFormattedString(const OutputSinkRef& formattedStr, const ReferenceModelRef& model,
                           std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor, bool shouldReadFromModel);
    Text toString(const ReferenceModelRef& model, std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor);
    /// The form for a work that was cited before: the authors as their minimal form has them, and no title
    /// where the author alone tells the work.
    void ToMinimalFormattedString(const OutputSinkRef& formattedStr, const ReferenceModelRef& model,
                                  std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor);

    /// Gives the model what `Parse` read: author, title, year and the like where the model has none, the volume
    /// and page that are cited in any case.
    /// @param modelType the host's number for the kind of reference, for its reports
    /// @param authorTemplate reads the author where the model had none
    /// @param multiVolTemplate kept for the host
    void MergeFieldsWithModel(const ReferenceModelRef& model, std::int16_t modelType,
                              const std::shared_ptr<OutputTemplateAuthor>& authorTemplate,
                              const HostObjectRef& multiVolTemplate);

    /// The year that `Parse` read.
    Text Year() const;
    void Year(TextView theVal);

    /// The citation's own text for a missing date; "n.d." at first. It is read, too, and `Reset` leaves it.
    Text noDateString() const { return mNoDateString; }
    void noDateString(TextView value) { mNoDateString = value; }

    /// Registers the next slot of a layout begun with `ResetLikeModelTemplate`, as `OutputTemplateModel::Add`.
    void Add(std::int16_t Index, bool isFormatted, TextView checkingKey, const std::vector<Text>& separators);

    TextView className() const override { return u"OutputTemplateCitation"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    class Slots;

    CitationFields fieldsOf(const ReferenceModelRef& model, bool shouldReadFromModel) const;
    void write(const OutputSinkRef& formattedStr, const ReferenceModelRef& model, std::int16_t firstNameCommand,
               bool hasOtherTitlesByAuthor, bool shouldReadFromModel, bool isMinimal);
    void layOut();

    std::shared_ptr<AuthorPersons> personsIn(TextView text) const;
    Text nameOf(const CitationFields& fields, std::int16_t firstNameCommand, bool isMinimal) const;
    Text communicatorOf(const CitationFields& fields) const;
    Text yearOf(const CitationFields& fields);
    void fill(Slots& slots, const CitationFields& fields, std::int16_t firstNameCommand, bool hasOtherTitlesByAuthor,
              bool isMinimal);
    void addTitle(Slots& slots, std::int16_t slot, const CitationFields& fields) const;
    void addLocator(Slots& slots, const CitationFields& fields) const;

    bool mUseMultiPartWork = false;
    std::shared_ptr<OutputTemplateAuthor> mAuthorModelOutputTemplate;
    std::shared_ptr<OutputTemplateTitle> mTitleModelOutputTemplate;
    HostObjectRef mMultiVolModelOutputTemplate;
    std::shared_ptr<OutputTemplateYear> mYearTemplate;
    std::shared_ptr<outputTemplate> mOutputTemplate;
    std::shared_ptr<outputTemplate> mElectronicOutputTemplate;
    std::shared_ptr<OutputTemplateModel> mModelTemplate;
    OutputSinkRef mFormattedStr;
    CitationFieldIndexes mIndexes;
    CitationOptions mOptions;
    bool mIsLikeModelTemplate = false;
    ImplementorRef mCallback;
    CitationFields mFields;
    Text mNoDateString = Text(citationtext::kNoDate);
};

}  // namespace quorvel

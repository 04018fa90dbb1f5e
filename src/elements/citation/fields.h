#pragma once

#include <array>
#include <cstdint>

#include "core/reference_model.h"
#include "core/text.h"

namespace quorvel {

/// What a short citation is made of: texts as they stand in a finished reference or citation.
struct CitationFields {
    Text author;
    /// Stand for the authors of a work that has none.
    Text editor;
    /// The academic degree behind the name of a person who is cited for a communication.
    Text degree;
    Text title;
    /// A shorter form of the title that the host's user chose; empty: the title is shortened by rule.
    Text shortTitle;
    /// The chapter or other part that is cited, of the work that `title` names.
    Text subwork;
    /// The journal, magazine or newspaper, and the web site that the title is from.
    Text periodical;
    Text website;
    Text year;
    Text originalYear;
    Text volume;
    Text issue;
    /// The place that is cited, with its prefix; not the pages of the whole article.
    Text page;
    /// A communication to the author and its date; "True" when it was one, and when it came by e-mail.
    Text personalCommunication;
    Text email;
    Text date;
};

/// A field under its name in the host's dictionary.
struct CitationKey {
    TextView key;
    Text CitationFields::*field;
};

inline constexpr CitationKey kCitationKeys[] = {
    {u"author", &CitationFields::author},
    {u"editor", &CitationFields::editor},
    {u"degree", &CitationFields::degree},
    {u"title", &CitationFields::title},
    {u"shortTitle", &CitationFields::shortTitle},
    {u"subwork", &CitationFields::subwork},
    {u"periodical", &CitationFields::periodical},
    {u"website", &CitationFields::website},
    {u"year", &CitationFields::year},
    {u"originalYear", &CitationFields::originalYear},
    {u"citedVolume", &CitationFields::volume},
    {u"issue", &CitationFields::issue},
    {u"citedPage", &CitationFields::page},
    {u"personalCommunication", &CitationFields::personalCommunication},
    {u"email", &CitationFields::email},
    {u"date", &CitationFields::date},
};

/// Where the host's model keeps these fields.
class CitationFieldIndexes {
public:
    CitationFieldIndexes() = default;
    /// Looks the names up; a name that the dictionary does not have is a field that is always empty.
    explicit CitationFieldIndexes(const KeyToInternalIndex& keys);

    CitationFields read(const ReferenceModel& model) const;
    /// Gives the model a field; nothing when it has no such field.
    void write(ReferenceModel& model, Text CitationFields::*field, TextView text) const;

private:
    static constexpr std::int16_t kNoField = -1;
    std::array<std::int16_t, std::size(kCitationKeys)> mIndexes = absent();

    static constexpr std::array<std::int16_t, std::size(kCitationKeys)> absent() {
        std::array<std::int16_t, std::size(kCitationKeys)> indexes{};
        indexes.fill(kNoField);
        return indexes;
    }
};

}  // namespace quorvel

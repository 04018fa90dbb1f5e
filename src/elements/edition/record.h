#pragma once

#include "core/text.h"

namespace quorvel {

/// What is known of the first publication of a reprint or of a translated work. Hosts read and change it in place:
/// what they write reaches the edition element.
struct EditionBookChapterYear {
    /// Values of `AuthorType`. Any other value but these two and kAuthor stands for an editor, as kEditor does.
    static constexpr TextView kAuthor = u"Author";
    static constexpr TextView kIntroducer = u"Introducer";
    static constexpr TextView kIntroducerWithNotes = u"Introd. & notes";
    static constexpr TextView kEditor = u"Editor";

    /// Values of `TitleType`. An empty one follows the edition type.
    static constexpr TextView kEnglishTitle = u"English title";
    static constexpr TextView kForeignTitle = u"Foreign title";

    /// The title of the work; of a translated one in its own language.
    Text Title;
    /// The first publisher, in full; of a journal the number of the issue.
    Text PublisherOrNumber;
    /// The first place of publication; of a journal the volume.
    Text PlaceOrVolume;
    /// The year of first publication: "1925", "1925-27", "[1925?]".
    Text Year;
    /// The pages of a chapter or an article, in full: "625-884".
    Text Page;
    /// Who contributed to the first publication, as the text names him.
    Text author;
    /// The first publication was a book rather than a journal.
    bool isReprintBook = false;
    /// It was a special issue of a journal.
    bool isSpecialIssue = false;
    /// The title of the chapter or article that is reprinted, without quotation marks.
    Text chapterOrArticleTitle;
    /// The part that `author` had.
    Text AuthorType;
    /// Whether the title is that of a plain reprint or of a translated work.
    Text TitleType;
};

/// The parts of the statement of a numbered edition.
struct NumberedEditionParts {
    /// The number as typed: "2", "2nd", "Second".
    Text NumEdition;
    bool IsNew = false;
    bool IsEnlarged = false;
    bool IsRevised = false;
    /// Who revised it: "John Smith" of "3rd ed., rev. by John Smith".
    Text RevisedBy;
    /// "3" of "2nd ed. in 3 vols."
    Text NumVolume;
};

}  // namespace quorvel

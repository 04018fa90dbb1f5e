#include "elements/edition/edition.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const Text text = input.rest();

    const auto page = std::make_shared<OutputTemplatePage>();
    page->Initialize(nullptr);
    PageOptions pages;
    pages.usePagePrefix = (options & 8) != 0;
    pages.shortenedPage = (options & 16) != 0;
    page->Reset(pages);
    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateEdition edition;
    edition.Initialize(sink);
    edition.Reset({static_cast<std::int32_t>(options & 7) - 1, page});
    Text remainder = text;
    edition.Parse(remainder, {});
    require(edition.EditionType() >= OutputTemplateEdition::kNumbered &&
            edition.EditionType() <= OutputTemplateEdition::kTranslation);
    const bool isFootnote = (options & 32) != 0;
    const Text written = edition.toString(isFootnote, false);
    edition.ToFormattedString(sink, isFootnote, false);
    require(sink->plain() == written);

    // Every digit of the text stands in the values, or is left in the text; only a page that was shortened has more.
    const EditionBookChapterYear record = *edition.EditionBookChapterYear();
    const Text kept = concatenate({edition.NumberedEdition(), edition.NamedEdition(), record.Title, record.Year,
                                   record.PublisherOrNumber, record.PlaceOrVolume, record.Page, record.author,
                                   record.chapterOrArticleTitle, remainder});
    for (const char16_t digit : kDigits) {
        require(kept.find(digit) != Text::npos || text.find(digit) == Text::npos || !record.Page.empty());
    }

    // An edition by number or name is written as a text that reads the same.
    if (edition.isNumberedOrNamedEdition() && !isFootnote) {
        Text again = written;
        edition.Parse(again, {});
        require(!edition.isNumberedOrNamedEdition() || edition.toString(false, false) == written);
    }
}

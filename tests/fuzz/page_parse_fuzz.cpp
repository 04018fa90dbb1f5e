#include "elements/page.h"
#include "fuzz_input.h"
#include "support/recording_sink.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const std::uint8_t options = input.options();
    const std::uint8_t moreOptions = input.options();
    const Text text = input.rest();

    OutputTemplatePage page;
    page.Initialize(nullptr);
    const PageOptions style = {
        .supportsDOI = (options & 1) != 0,
        .supportsNotes = (options & 2) != 0,
        .elideZero = (options & 4) != 0,
        .usePagePrefix = (options & 8) != 0,
        .usePagePrefixInCitations = (options & 16) != 0,
        .shortenedPage = (options & 32) != 0,
        .noPageStr = (options & 64) != 0 ? u"n. pag." : u"",
        .chapterPrefix = u"chap.",
        .chapterPluralPrefix = u"chaps.",
        .paraPrefix = (moreOptions & 1) != 0 ? u"" : u"par.",
        .paraPluralPrefix = u"pars.",
        .addDotToAdvancedPrefix = (moreOptions & 2) != 0,
        .useEnDashForPageRange = (moreOptions & 4) != 0,
    };
    page.Reset(style);
    Text remainder = text;
    page.Parse(remainder, {});
    require(remainder.empty());
    require(page.pageType >= OutputTemplatePage::kNoPage && page.pageType <= OutputTemplatePage::kDefinition);
    const Text written = page.toString(false, false);

    page.isPage(text);
    page.isPage(written);
    require(page.toString(false, false) == written);
    const auto sink = std::make_shared<RecordingSink>();
    page.ToFormattedString(sink, false, false);
    require(sink->plain() == written);
    const auto clone = page.Clone();
    require(clone->Page() == page.Page());
    require(clone->toString(false, false).size() >= written.size());

    // A locator at the end is taken off, the rest stays in front.
    Text rest = text;
    const bool found = clone->parseFromEnd(rest);
    require(found ? startsWith(cleanUp(text), rest.substr(0, rest.find_first_of(u"-"))) : rest == text);

    // What consists of numbers alone, and was written without a note, reads the same.
    const bool isNumbers = !written.empty() && written.find_first_not_of(u"0123456789-\u2013") == Text::npos &&
                           page.Note == OutputTemplatePage::kNoNote;
    Text again = written;
    page.Parse(again, {});
    require(!isNumbers || page.toString(false, false) == written);
}

#include "elements/author/author.h"
#include "fuzz_input.h"
#include "support/author_kept.h"
#include "support/recording_sink.h"

using namespace quorvel;

namespace {

AuthorOptions optionsOf(FuzzInput& input) {
    const std::uint8_t first = input.options();
    const std::uint8_t second = input.options();
    const std::uint8_t counts = input.options();
    constexpr TextView kAndWords[] = {u"and", u"&", u"", u" und "};
    AuthorOptions options;
    options.SupportAnonAndPseudoAuthors = (first & 1) != 0;
    options.SquareBracketIsForFirstName = (first & 2) != 0;
    options.editorTags = (first & 4) != 0 ? u"(Ed.),(Comp.),(Trans.)" : u"ed.,comp.,trans.";
    options.andSeparator = kAndWords[counts >> 6];
    options.twoAuthorsIsOnlyCaseHaveNoComma = (first & 8) != 0;
    options.ReverseFirstOnFootnote = (first & 16) != 0;
    options.reverseSecondaryAuthors = (first & 32) != 0;
    options.reversedAuthorUsesComma = (first & 64) != 0;
    options.reversedAuthorPostfixUsesComma = (first & 128) != 0;
    options.numAuthorsToTriggerEtAl = counts & 7;
    options.numAuthorsToTriggerEtAlCitation = counts & 3;
    options.numAuthorsToTriggerEtAlMinimalString = counts & 1;
    options.numAuthorsInEtAl = (counts >> 3) & 7;
    options.numAuthorsInEtAlMinimalString = 1;
    options.etAlUsesElipses = (second & 1) != 0;
    options.etAlInReferenceList = (second & 2) != 0;
    options.etAlHasComma = (second & 4) != 0;
    options.etAlCitationHasComma = (second & 8) != 0;
    options.editorSeparator = u", ";
    options.initialsOnly = (second & 16) != 0;
    options.initialsUsePeriods = (second & 32) != 0;
    options.semicolonBetweenGroupAuthors = (second & 64) != 0;
    options.supportsCompilerAndEditor = (second & 128) != 0;
    return options;
}

}  // namespace

void quorvel::tryInput(FuzzInput& input) {
    const AuthorOptions options = optionsOf(input);
    const std::uint8_t forms = input.options();
    const std::vector<Text> texts = split(input.rest(), u"\n");
    const Text text = texts[0];
    const Text previous = texts.size() > 1 ? texts[1] : Text();

    const auto sink = std::make_shared<RecordingSink>();
    OutputTemplateAuthor author;
    author.Initialize(sink);
    author.Reset(options);
    Text remainder = text;
    author.Parse(remainder, previous, (forms & 8) != 0);
    require(remainder == author.residue());
    // Nobody without a name, and no more words than there were.
    for (std::int16_t i = 0; i < author.numAuthors(); ++i) {
        require(!author.person(i).lastName.empty() || !author.person(i).firstNames.empty());
    }
    require(static_cast<std::size_t>(author.numAuthors()) <= text.size() + previous.size());
    require(test::lostLetters(text, author).empty());

    author.ToFormattedString(sink, (forms & 1) != 0, (forms & 2) != 0);
    require(sink->plain() == author.toString((forms & 1) != 0, (forms & 2) != 0));
    if (author.numAuthors() < options.numAuthorsToTriggerEtAl && !author.HasEtAl()) {
        require(test::unwrittenPersons(sink->plain(), author).empty());
    }
    require(author.Clone()->toString((forms & 1) != 0, (forms & 2) != 0) == sink->plain());
    author.toString(false, false, true, false, (forms & 4) != 0, true);
    author.toString(true, true, false, true, false, false);
    Text form1;
    Text form2;
    author.toCitationFormat(form1, form2);
    author.toKeywordList();
    author.toMergedString();
    author.authors(author.authors());
    require(author.isSameAuthor(text, text));
}

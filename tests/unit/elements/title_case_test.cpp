#include "elements/title/case.h"

#include <gtest/gtest.h>

#include "elements/title/title.h"
#include "support/recording_sink.h"
#include "support/rows.h"

namespace quorvel {
namespace {

using titlecase::Rules;

TEST(TitleCase, Heading) {
    struct Case {
        TextView text;
        TextView heading;
    };
    // A capital "A" is no article, deliberately.
    const auto kCases = rows<Case>(
        u"the book of the dead => The Book of the Dead || THE book of THE dead => THE Book of THE Dead || "
        u"a day: an evening; the night => A Day: An Evening; The Night || "
        u"Once A week and The night => Once A Week and the Night || "
        u"what are we here for? to live => What Are We Here For? To Live || "
        u"into the woods amid wolves without fear => Into the Woods amid Wolves without Fear || "
        u"follow-up of state-of-the-art co-operation => Follow-Up of State-of-the-Art Co-operation || "
        u"the rise of e-commerce and t-tests => The Rise of e-Commerce and t-Tests || e-learning => E-Learning || "
        u"mRNA, p53 and the iPhone => mRNA, p53 and the iPhone || "
        u"back-off strategies, opting-out and so on => Back-Off Strategies, Opting-Out and so On || "
        u"a 56Gb/s receiver at 10 km/h and/or 1/f => A 56Gb/s Receiver at 10 km/h and/or 1/f || "
        u"Dreams and Desire (An Interpretation) => Dreams and Desire (An Interpretation) || "
        u"Reading \u201CThe Waste Land\u201D => Reading \u201CThe Waste Land\u201D || "
        u"in search of homo economicus => In Search of Homo Economicus || "
        u"growth of E. coli vs. yeast => Growth of E. coli vs. Yeast || Growth of E. Coli => Growth of E. coli || "
        u"the U.S.S. Constitution and mr. Smith => The U.S.S. Constitution and Mr. Smith || "
        u"Moby-Dick; or, the whale => Moby-Dick; or, The Whale || "
        u"letters of Vincent van Gogh and J. de la Cruz => Letters of Vincent van Gogh and J. de la Cruz || "
        u"reading \u201Cthe waste land\u201D => Reading \u201Cthe Waste Land\u201D || "
        u"life \u2014 the sequel => Life \u2014 The Sequel ||  =>  ||  ...  =>  ... ");
    for (const Case& c : kCases) {
        EXPECT_EQ(titlecase::casedTitle(c.text, {}).text, c.heading);
        EXPECT_EQ(titlecase::casedTitle(c.heading, {}).text, c.heading);
    }
    const Rules firstPartOnly{true, false, true};
    EXPECT_EQ(titlecase::casedTitle(u"follow-up of out-of-hospital arrest", firstPartOnly).text,
              u"Follow-up of Out-of-hospital Arrest");
}

TEST(TitleCase, Sentence) {
    struct Case {
        TextView text;
        TextView sentence;
    };
    constexpr Case kCases[] = {
        {u"The Origins of the Cold War in Eastern Europe", u"The origins of the Cold War in Eastern Europe"},
        {u"Farming in Northern Peru and Southern Colombia", u"Farming in northern Peru and southern Colombia"},
        {u"Drug Allergy: A Review. Part Two? Yes; No", u"Drug allergy: A review. Part two? Yes; no"},
        {u"The Autobiography of Benjamin Thorpe", u"The autobiography of Benjamin Thorpe"},
        {u"Letters of J. R. R. Tolkien", u"Letters of J. R. R. Tolkien"},
        {u"The Battle of Hastings and the Gulf of Tonkin", u"The Battle of Hastings and the Gulf of Tonkin"},
        {u"Snell's Law and the Children's Hour", u"Snell's law and the children's hour"},
        {u"A Librarian and a Victorian in the Post-Soviet Era", u"A librarian and a Victorian in the post-Soviet era"},
        {u"What I Know of Vitamin A, DNA and mRNA", u"What I know of vitamin A, DNA and mRNA"},
        {u"Growth of E. coli in May 1968", u"Growth of E. coli in May 1968"},
        {u"As We May Think of the Decline of the West", u"As we may think of the decline of the West"},
        {u"Mrs. Dalloway, the Qur\u2019an, and the U.S. Constitution in Context",
         u"Mrs. Dalloway, the Qur\u2019an, and the U.S. Constitution in context"},
        {u"Staging the Midsummer Night\u2019s Dream", u"Staging the Midsummer Night\u2019s Dream"},
        {u"The Decline of the West,", u"The decline of the West,"},
        {u"Moby-Dick; or, The Whale", u"Moby-Dick; or, The whale"},
        {u"Na\u00EFve Realism in M\u00FCnster", u"Na\u00EFve realism in M\u00FCnster"},
        {u"The \u201COther\u201D Question", u"The \u201Cother\u201D question"},
        {u"The New World of Information", u"The new world of information"},
        {u"Do Androids Dream of Electric Sheep?", u"Do androids dream of electric sheep?"},
        {u"Growth of Germanium on Si (111) Surfaces", u"Growth of germanium on Si (111) surfaces"},
        {u"\u03B1-Synuclein in Mice and Men", u"\u03B1-synuclein in mice and men"},
        // In sentence case already, with or without a capital where it begins.
        {u"the history of the lake", u"The history of the lake"},
        {u"e-learning in the schools of Moby-Dick", u"E-learning in the schools of Moby-Dick"},
        {u"edgeR in the lab", u"edgeR in the lab"},
        {u"k-means of the lake", u"k-means of the lake"},
        // Its capitals are names.
        {u"The letters of an unknown Zembla to the Prior", u"The letters of an unknown Zembla to the Prior"},
        {u"Animal Farm", u"Animal farm"},
    };
    const Rules sentence{false, true, true};
    for (const Case& c : kCases) {
        EXPECT_EQ(titlecase::casedTitle(c.text, sentence).text, c.sentence);
        EXPECT_EQ(titlecase::casedTitle(c.sentence, sentence).text, c.sentence);
    }
    const Rules lowSubtitle{false, false, false};
    EXPECT_EQ(titlecase::casedTitle(u"Drug Allergy: The Review of London Cases", lowSubtitle).text,
              u"Drug allergy: the review of London cases");
}

TEST(TitleCase, TellsTheChangedWords) {
    const titlecase::CasedTitle cased = titlecase::casedTitle(u"(the book) Of \u201Cdead\u201D Men", {});
    EXPECT_EQ(cased.text, u"(The Book) of \u201CDead\u201D Men");
    EXPECT_EQ(cased.changed, (std::vector<titlecase::Range>{{1, 4}, {5, 9}, {11, 13}, {15, 19}}));
}

TEST(TitleCase, TestsOnWords) {
    OutputTemplateTitle title;
    title.Initialize(std::make_shared<RecordingSink>());
    constexpr TextView kSmall[] = {
        u"a",      u"an",     u"as",     u"at",      u"by",      u"in",      u"of",      u"on",    u"or",     u"so",
        u"to",     u"and",    u"but",    u"for",     u"nor",     u"off",     u"out",     u"the",   u"yet",    u"amid",
        u"from",   u"over",   u"with",   u"above",   u"about",   u"after",   u"below",   u"under", u"before", u"beside",
        u"behind", u"beyond", u"during", u"against", u"beneath", u"between", u"without", u"The",   u"Without"};
    for (const TextView word : kSmall) {
        EXPECT_FALSE(title.shouldBeCapitalized(word, false)) << testing::PrintToString(Text(word));
    }
    for (const TextView word : {u"A", u"THE", u"into", u"up", u"via", u"is", u""}) {
        EXPECT_TRUE(title.shouldBeCapitalized(word, false)) << testing::PrintToString(Text(word));
    }
    title.Reset({1, nullptr, true, true, u"", true, u"", true, u""});
    EXPECT_FALSE(title.shouldBeCapitalized(u"whale", false));
    EXPECT_TRUE(title.shouldBeCapitalized(u"whale", true));
    EXPECT_EQ(title.capitalize(u"e-mail", true), u"e-Mail");
    EXPECT_EQ(title.capitalize(u"de", true), u"de");
    EXPECT_EQ(title.hyphenate(u"state-of-the-art"), u"state-of-the-Art");
    EXPECT_TRUE(title.isAcronym(u"DNA") && !title.isAcronym(u"Dna"));
    EXPECT_TRUE(title.wordIsPossessive(u"Darwin's") && title.wordIsPossessive(u"Darwin\u2019s"));
    EXPECT_FALSE(title.wordIsPossessive(u"Darwins"));
    EXPECT_TRUE(title.isAlwaysLowercase(u"van") && !title.isAlwaysLowercase(u"Van"));
    for (const TextView text : {u"Inc.", u"Why?", u"No!", u"Darwin's"}) {
        EXPECT_TRUE(title.endsWithPunctuation(text));
    }
    EXPECT_FALSE(title.endsWithPunctuation(u"Why"));
}

}  // namespace
}  // namespace quorvel

#include "elements/title/title.h"

#include <algorithm>

#include "elements/title/short.h"
#include "elements/title/types.h"
#include "support/element.h"
#include "support/recording_service.h"
#include "support/rows.h"
#include "support/style_presets.h"

namespace quorvel {
namespace {

using Title = OutputTemplateTitle;

std::shared_ptr<OutputTemplateAuthor> authorElement() {
    auto author = std::make_shared<OutputTemplateAuthor>();
    author->Initialize(std::make_shared<RecordingSink>());
    author->Reset(test::mlaAuthorOptions());
    return author;
}

std::shared_ptr<Title> titleIn(std::int16_t format) {
    auto title = std::make_shared<Title>();
    title->Initialize(std::make_shared<RecordingSink>());
    const bool isSentence = format == 0 || format == 1;
    title->Reset({format, authorElement(), isSentence, format != 0, u"books", format != 0, u"parts", true,
                  u"Chapter title,Introduction,Interview"});
    return title;
}

/// What is written, italics between "_".
Text written(Title& title, bool isFootnote = false, bool shortenedVersion = false) {
    const auto sink = std::make_shared<RecordingSink>();
    title.ToFormattedString(sink, isFootnote, shortenedVersion);
    return marked(*sink);
}

TEST(Title, WritesEachTypeAsTheStyleAsks) {
    struct Case {
        TextView text;
        TextView type;
        std::int16_t format;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"The double helix: a personal account.", u"", 2, u"_The Double Helix: A Personal Account_"},
        {u"The Double Helix: A Personal Account", u"", 1, u"_The double helix: A personal account_"},
        {u"The Double Helix: A Personal Account", u"", 0, u"_The double helix: a personal account_"},
        // A title that stands in sentence case changes only where its subtitle begins.
        {u"Mood management: the hedonic hypothesis", u"", 1, u"_Mood management: The hedonic hypothesis_"},
        {u"Mood management: The hedonic hypothesis", u"", 0, u"_Mood management: the hedonic hypothesis_"},
        {u"Mood management: HIV and mRNA", u"", 0, u"_Mood management: HIV and mRNA_"},
        {u"Mood management: German words", u"", 0, u"_Mood management: German words_"},
        {u"\u201CThe Clash of Civilizations?\u201D", u"Article", 3, u"\u201CThe Clash of Civilizations?\u201D"},
        {u"\u201CThe Clash of Civilizations?\u201D", u"Article", 1, u"The clash of civilizations?"},
        {u"The \"Other\" Question", u"Article", 2, u"\u201CThe \u2018Other\u2019 Question\u201D"},
        {u"Who Governs?: Democracy in America", u"", 2, u"_Who Governs? Democracy in America_"},
        {u"Le deuxi\u00E8me sexe [The second sex]", u"", 2, u"_Le deuxi\u00E8me sexe_ [The second sex]"},
        {u"Phys. Rev. Lett.", u"", 2, u"_Phys. Rev. Lett._"},
        {u"A Life", u"Interview", -1, u"\u201CA Life,\u201D interview"},
        {u"A Life", u"Interview", 2, u"\u201CA Life\u201D"},
        {u"A Life?", u"Interview", -1, u"\u201CA Life?\u201D interview"},
        {u"A Life", u"Abridged", 2, u"_A Life_, abridged"},
        {u"A Life", u"Abridged", -1, u"_A Life_"},
        {u"A Life", u"Video", 0, u"_A life_ [video]"},
        {u"A Life", u"Letter", 3, u"\u201CA Life,\u201D letter to the editor"},
        {u"A Life", u"Letter", 1, u"A life [letter]"},
        {u"A Life", u"Letter", 2, u"\u201CA Life.\u201D Letter"},
        {u"\u201CWhy Me?\u201D Letter.", u"", 2, u"\u201CWhy Me?\u201D Letter"},
        {u"A Life [letter]", u"", 2, u"\u201CA Life.\u201D Letter"},
        {u"", u"LETTER", 2, u"Letter"},
        {u"", u"Letter", -1, u"Letter"},
        {u"A Life", u"Letter", -1, u"\u201CA Life,\u201D letter"},
        {u"A Life", u"Monograph", 1, u"_A life_ [Monograph]"},
        {u"A Life", u"Monograph", 3, u"_A Life_, monograph"},
        {u"", u"Obituary", 3, u"obituary for "},
        {u"", u"Reply to letter", 2, u"Reply to letter of "},
        {u"A Life", u"Reply to letter", 2, u"\u201CA Life\u201D"},
        {u"A Life", u"interview", -1, u"\u201CA Life,\u201D interview"},
        {u"Drug Allergy [Letter].", u"", 1, u"Drug allergy [letter]"},
        {u"The E. coli Strains of the U.S.S. Enterprise", u"", 2, u"_The _E. coli_ Strains of the _U.S.S. Enterprise"},
        {u"", u"", 2, u""},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text) + u" / " + Text(c.type)));
        const auto title = titleIn(c.format);
        Text text(c.text);
        title->Parse(text, c.type);
        EXPECT_EQ(text, u"");
        EXPECT_EQ(written(*title), c.written);
        EXPECT_EQ(written(*title->Clone()), c.written);
    }
}

TEST(Title, ShortensAndQuotesParts) {
    const auto title = titleIn(2);
    title->openingQuotationMark(u"\u00AB");
    title->closingQuotationMark(u"\u00BB");
    Text own = u"\u00ABWhy \u201CMe\u201D\u00BB";
    title->Parse(own, u"Article");
    EXPECT_EQ(title->Clone()->toString(false, false), u"\u00ABWhy \u2018Me\u2019\u00BB");
    title->openingQuotationMark(u"\u201C");
    title->closingQuotationMark(u"\u201D");
    Text text = u"Guns, Germs, and Steel: The Fates of Human Societies";
    title->Parse(text, u"");
    EXPECT_EQ(title->value(0), u"Guns, Germs, and Steel");
    EXPECT_EQ(title->value(1), u"The Fates of Human Societies");
    EXPECT_EQ(written(*title, false, true), u"_Guns, Germs, and Steel_");
    EXPECT_EQ(title->CapitalizationRule(), u"books");
    title->IsChapterOrWebsite(true);
    EXPECT_EQ(title->CapitalizationRule(), u"parts");
    EXPECT_EQ(title->toString(false, true), u"\u201CGuns, Germs, and Steel\u201D");
    EXPECT_EQ(title->CloneForHeadingCapitalization()->IsSentenceCapitalization(), false);
}

TEST(Title, WritesPrematter) {
    struct Case {
        TextView text;
        TextView type;
        std::int16_t format;
        TextView written;
        TextView note;
    };
    constexpr Case kCases[] = {
        {u"Introduction to Middlemarch, by George Eliot", u"", 3, u"Introduction to _Middlemarch_, by George Eliot",
         u"introduction to _Middlemarch_, by George Eliot"},
        {u"Introduction. Middlemarch. By George Eliot.", u"", 2, u"Introduction. _Middlemarch_. By George Eliot",
         u"Introduction. _Middlemarch_. By George Eliot"},
        {u"Foreword. In Middlemarch", u"", 1, u"Foreword. In _Middlemarch_", u"Foreword. In _Middlemarch_"},
        {u"Middlemarch", u"Preface", 3, u"Preface to _Middlemarch_", u"preface to _Middlemarch_"},
        {u"Afterword.", u"", 3, u"Afterword", u"afterword"},
        // A book, and no introduction of one.
        {u"Introduction to Algorithms", u"", 3, u"_Introduction to Algorithms_", u"_Introduction to Algorithms_"},
    };
    for (const Case& c : kCases) {
        SCOPED_TRACE(testing::PrintToString(Text(c.text)));
        const auto title = titleIn(c.format);
        Text text(c.text);
        title->Parse(text, c.type);
        EXPECT_EQ(written(*title), c.written);
        EXPECT_EQ(written(*title, true), c.note);
    }
}

TEST(Title, MapsTypesAndCaptions) {
    const auto title = titleIn(2);
    const std::pair<TextView, TextView> kCaptions[] = {
        {u"Chapter title", u"Chapter"},
        {u"Excerpt from", u"Excerpt"},
        {u"Reference entry", u"Entry"},
        {u"Introduction", u"Intro"},
        {u"Obituary", u"Obituary for"},
        {u"Interview", u"Interview of"},
        {u"Text", u"Text"},
        {u"interview", u"interview"},
    };
    for (const auto& [type, caption] : kCaptions) {
        EXPECT_EQ(title->TitleTypeToCaption(type), caption);
        EXPECT_EQ(title->CaptionToTitleType(caption), type);
    }
    EXPECT_EQ(title->subworkTypes(), (std::vector<Text>{u"Chapter title", u"Introduction", u"Interview"}));
    EXPECT_EQ(title->TitleSubtypes(), (std::vector<Text>{u"Chapter title", u"Interview"}));
    EXPECT_TRUE(title->UsesTitleType());
    title->setTitleTypes(u"");
    EXPECT_FALSE(title->UsesTitleType());
    EXPECT_EQ(title->prematterTypes(), (std::vector<Text>{u"Foreword", u"Introduction", u"Preface", u"Afterword"}));
}

TEST(Title, LeavesForeignOldAndPreformattedTitlesAlone) {
    const auto heading = titleIn(2);
    const auto sentence = titleIn(1);
    const auto kAlone = rows(
        u"Cien a\u00F1os de soledad || Kafka und Prag || Dei delitti e delle pene || Le deuxi\u00E8me sexe || "
        u"De rerum natura et cetera || Het achterhuis || Rum og rammer for aktivt udeliv || "
        u"Thermodiffusion in bin\u00E4ren und tern\u00E4ren Oxiden || Strategier for b\u00E6redygtig byudvikling || "
        u"Barns rett til medvirkning i barnevernet || Ledelse i offentlige virksomheder || "
        u"Handleiding tot de kennis der natuur || Entwicklung moderner Forschung || "
        u"Pour l'histoire de l'enseignement || A declaration of the state whereunto the realmes came || "
        u"Szkoła żon || JAMA || http://www.example.org/some page");
    for (const TextView text : kAlone) {
        EXPECT_EQ(heading->formatRule(text), text);
        EXPECT_EQ(sentence->formatRule(text), text);
    }
    const auto kEnglish = rows(
        u"Learning from Las Vegas || The Philosophy of Simone de Beauvoir || What Does It Mean || "
        u"El Ni\u00F1o Events || Die Hard || Poincar\u00E9 Duality in Mixed Characteristic || "
        u"Coup d'\u00E9tat in Chile || La Follette in Wisconsin");
    for (const TextView text : kEnglish) {
        EXPECT_TRUE(heading->isEnglishTitle(text) && !heading->isOldTitle(text)) << testing::PrintToString(Text(text));
    }
}

class TitleReports : public ReportingTest {};

TEST_F(TitleReports, NamesTheRulesAndNotEachWord) {
    const auto title = titleIn(1);
    Text text = u"The Power Broker: Robert Moses and the Fall of New York in the Age of the Motor Car";
    service().forget();
    title->Parse(text, u"");
    title->ToFormattedString(std::make_shared<RecordingSink>(), false, false);
    const std::vector<Text>& reports = service().reports();
    for (const TextView name : {u"isPreformattedTitle", u"isEnglishTitle", u"isOldTitle", u"formatRule",
                                u"formatRuleImpl", u"movePunctuation", u"addTitleImpl", u"UnItalicizeShipNames"}) {
        const Text entry = concatenate({u"vbwProcIn: QuorvelTemplate.OutputTemplateTitle.", name, u" "});
        EXPECT_TRUE(std::any_of(reports.begin(), reports.end(), [&](const Text& report) {
            return startsWith(report, entry);
        })) << testing::PrintToString(entry);
    }
    // Two calls of the host's service for each procedure.
    EXPECT_LT(reports.size(), 120U);
}

TEST_F(TitleReports, ReportsWhatIsOutOfRange) {
    const auto title = titleIn(2);
    Text text = u"A Life: A Story [Translation]";
    title->Parse(text, u"Video");
    EXPECT_EQ(title->value(3), u"");
    title->value(-1, u"x");
    EXPECT_EQ(service().errors().size(), 2U);
}

TEST(Title, ShortTitlesEndWhereAPhraseEnds) {
    struct Case {
        TextView title, expected;
    };
    constexpr Case kCases[] = {
        {u"The Structure of Scientific Revolutions", u"Structure of Scientific Revolutions"},
        {u"The Heath Anthology of American Literature", u"Heath Anthology"},
        {u"North Carolina During the Great Depression: A Portrait", u"North Carolina"},
        {u"Women's Ways of Knowing the World", u"Women's Ways of Knowing"},
        {u"Guns, Germs, Cars, Planes, and Steel", u"Guns, Germs, Cars, Planes"},
        {u"New Child Vaccine Gets Funding Boost", u"New Child Vaccine"},
        {u"Obesity Affects Economic Development in Towns", u"Obesity"},
        {u"Mental Reserves Keep Brain Agile", u"Mental Reserves"},
        {u"This Once, a David Beats a Goliath", u"This Once"},
        {u"Computer Addiction? A Study of Students", u"Computer Addiction?"},
        {u"Who Governs? Democracy", u"Who Governs?"},
        {u"So, Did They Live Happily Ever After?", u"So, Did They Live"},
        {u"A Randomized, Controlled Trial of Vitamin D", u"Randomized, Controlled Trial"},
        {u"Capital in the Twenty-First Century", u"Capital"},
        {u"How to Avoid Common Mistakes in Print", u"How to Avoid Common Mistakes"},
        {u"Modern American Political Economic History", u"Modern American Political Economic History"},
        {u"Goodbye, Columbus", u"Goodbye, Columbus"},
        {u"Frankenstein; or, The Modern Prometheus", u"Frankenstein"},
        {u"\u2018The House I Live In\u2019: Race and Class", u"\u2018The House I Live In\u2019"},
        {u"Of the in the by the", u"Of the in the by the"},
        {u"A", u"A"},
        {u"", u""},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(shortTitle(c.title), c.expected) << shown(c.title);
    }
}

TEST(Title, QuotationMarksInsideATitleTurnWithTheOuterOnes) {
    const auto turabian = titleIn(3);
    Text text = u"\u201C\u2018The House\u2019 of the Smiths\u2019 and \u2018Rock\u2019s Roll\u2019\u201D";
    const Text quoted = text;
    turabian->Parse(text, u"Article");
    EXPECT_EQ(turabian->value(Title::kTitle),
              u"\u201CThe House\u201D of the Smiths\u2019 and \u201CRock\u2019s Roll\u201D");
    EXPECT_EQ(written(*turabian), quoted);
}

}  // namespace
}  // namespace quorvel

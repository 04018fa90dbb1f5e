#include "forms/title_correction.h"

#include <gtest/gtest.h>

#include "core/letter_case.h"
#include "forms/title_letters.h"
#include "support/utf8.h"

namespace quorvel {
namespace {

using forms::CorrectedTitle;
using forms::TitleWord;

/// A rule: every word but "of" has a capital, and no other.
Text ruled(TextView title) {
    std::vector<Text> words = split(toLower(title), u" ");
    for (Text& word : words) {
        if (!word.empty() && word != u"of") {
            word.front() = toUpper(word.front());
        }
    }
    return join(words, u" ");
}

/// Words that the rule has changed between "_", those that the user has changed behind "!".
std::string marked(const CorrectedTitle& title) {
    std::string text;
    for (const TitleWord& word : title.words) {
        const std::string letters = test::utf8Of(TextView(title.text).substr(word.begin, word.end - word.begin));
        text += text.empty() ? "" : " ";
        text += word.isKept ? "!" : "";
        text += word.isCorrected ? "_" + letters + "_" : letters;
    }
    return text;
}

// What comes from the host, then what stands in the box each time that the user leaves it.
TEST(TitleCorrection, WhatTheUserChangesStaysAndWhatHeAddsIsCorrected) {
    struct Step {
        TextView typed;
        std::string shown;
    };
    const std::vector<Step> kTitles[] = {
        // Put back, it stays, whatever is typed beside it.
        {{u"the art Of war", "_The_ _Art_ _of_ _War_"},
         {u"The Art Of War", "_The_ _Art_ !Of _War_"},
         {u"The Art Of War", "_The_ _Art_ !Of _War_"},
         {u"The New Art Of War", "_The_ New _Art_ !Of _War_"},
         {u"The new Art Of War", "_The_ !new _Art_ !Of _War_"},
         {u"The new Art Of War again", "_The_ !new _Art_ !Of _War_ _Again_"},
         {u"new Art Of War Again", "!new _Art_ !Of _War_ _Again_"}},
        // A word in the place of another is the user's.
        {{u"The Art of War", "The Art of War"}, {u"The Art of peace", "The Art of !peace"}},
        // Words whose case alone is another are, too, all of them.
        {{u"the art", "_The_ _Art_"}, {u"the art", "!the !art"}},
        // Another title is corrected like one that comes from the host, though one word is the same.
        {{u"The Art of War", "The Art of War"}, {u"guns of august", "_Guns_ of _August_"}},
        {{u"", ""}, {u"cosmos", "_Cosmos_"}, {u"kosmos", "_Kosmos_"}, {u"", ""}},
        // Changes in several places at once.
        {{u"The Art of War And Peace", "The Art of War And Peace"},
         {u"New art of War Or peace", "!New !art of War !Or !peace"}},
    };
    for (const std::vector<Step>& steps : kTitles) {
        CorrectedTitle title;
        for (const Step& step : steps) {
            title = forms::correct(title, step.typed, ruled(step.typed));
            EXPECT_EQ(marked(title), step.shown);
        }
    }
}

TEST(TitleCorrection, ARuleThatTellsNothingChangesNothing) {
    EXPECT_EQ(forms::correct({}, u"the art", u"").text, u"the art");
}

TEST(TitleCorrection, ATitleThatIsReplacedAsAWholeIsNoMatterHowLongItIs) {
    const Text before = replaceAll(Text(100'000, u'a'), u"a", u"a ");
    const Text after = replaceAll(before, u"a", u"b");
    const CorrectedTitle shown = forms::correct({}, before, ruled(before));
    EXPECT_EQ(forms::correct(shown, after, ruled(after)).text, ruled(after));
}

TEST(TitleCorrection, ATextGetsTheLettersOfTheTitle) {
    struct Case {
        TextView text;
        TextView title;
        TextView written;
    };
    constexpr Case kCases[] = {
        {u"\u201CThe Art of War,\u201D interview", u"The Art Of war", u"\u201CThe Art Of war,\u201D interview"},
        {u"Afterword to The Art of War, by Art Of", u"the art of war", u"Afterword to the art of war, by Art Of"},
        {u"\u201CA \u2018Good\u2019 War\u201D", u"a \"good\" war", u"\u201Ca \u2018good\u2019 war\u201D"},
        {u"Art of Peace", u"Art Of War", u"Art of Peace"},
        {u"Art", u"", u"Art"},
        {u"{\\rtf1\\ansi\\fs17 {\\i The Art }{\\b of\\b0  War}, video}", u"the Art Of war",
         u"{\\rtf1\\ansi\\fs17 {\\i the Art }{\\b Of\\b0  war}, video}"},
        {u"{\\rtf1 \\u201?t\\u233?\\'3f \\{x\\}}", u"\u00E9t\u00E9", u"{\\rtf1 \\u233?t\\u233?\\'3f \\{x\\}}"},
        {u"{\\rtf1 L\\rquote \\'c9t\\'C9 d\\'92Or\\~Noir}", u"l\u2019\u00E9t\u00C9 d\u2019or noir",
         u"{\\rtf1 l\\rquote \\u233?t\\'C9 d\\'92or\\~noir}"},
        {u"{\\rtf1 \\{X\\}\\", u"{x}", u"{\\rtf1 \\{x\\}\\"},
        {u"{\\rtf1 \\u99999999999999999999?A\\u65", u"a", u"{\\rtf1 \\u99999999999999999999?a\\u65"},
    };
    for (const Case& row : kCases) {
        EXPECT_EQ(test::utf8Of(forms::withLettersOf(row.text, row.title)), test::utf8Of(row.written));
    }
}

}  // namespace
}  // namespace quorvel

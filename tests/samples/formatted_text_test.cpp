#include "text/formatted_text.h"

#include <gtest/gtest.h>

#include "com/late_bound.h"

namespace sample {
namespace {

LateBoundObject caller(const ComPointer<FormattedText>& text) {
    return LateBoundObject(text.get());
}

TEST(FormattedText, NeighboursOfOneFontAreOnePhrase) {
    const auto text = makeObject<FormattedText>();
    const LateBoundObject late = caller(text);
    late.call(L"Add", {L"Kuhn. "});
    late.call(L"Add", {L"", kBold});
    late.call(L"Add", {L"", kPlain});
    late.call(L"Add", {L"The ", kItalic});
    late.call(L"Add", {L"Structure", kItalic});
    ASSERT_EQ(text->phrases().size(), 2u);
    EXPECT_EQ(text->phrases()[1].text, L"The Structure");
    EXPECT_EQ(textOf(late.get(L"toString")), L"Kuhn. The Structure");
    EXPECT_EQ(numberOf(late.get(L"lastPhraseFont")), kItalic);
}

TEST(FormattedText, CopiesStandOnTheirOwn) {
    const long before = DispatchObject::liveObjects();
    {
        const auto text = makeObject<FormattedText>();
        const LateBoundObject late = caller(text);
        late.call(L"Add", {L"a", kBold});
        late.put(L"PageIndex", 14);
        const LateBoundObject clone(objectOf(late.call(L"Clone")));
        const LateBoundObject fresh(objectOf(late.call(L"BuildNewFormattedString")));
        late.call(L"addFormattedString", {late.dispatch()});
        EXPECT_EQ(textOf(late.get(L"toString")), L"aa");
        EXPECT_EQ(text->phrases().size(), 1u);
        late.call(L"Reset");
        EXPECT_TRUE(booleanOf(late.get(L"IsEmpty")));
        EXPECT_EQ(numberOf(late.get(L"PageIndex")), 0);
        EXPECT_EQ(textOf(clone.get(L"toString")), L"a");
        EXPECT_EQ(numberOf(clone.get(L"PageIndex")), 14);
        EXPECT_TRUE(booleanOf(fresh.get(L"IsEmpty")));
        EXPECT_FALSE(late.tryCall(L"addFormattedString", DISPATCH_METHOD, {Variant(L"text")}).ok());
    }
    EXPECT_EQ(DispatchObject::liveObjects(), before);
}

struct QuoteCase {
    std::vector<Phrase> phrases;
    std::int16_t font;
    const wchar_t* left;
};

TEST(FormattedText, RemovesTheQuotationMarkThatEndsTheText) {
    const QuoteCase cases[] = {
        {{}, 0, L""},
        {{{L"“Song”", kPlain}}, 0, L"“Song"},
        {{{L"“Song", kPlain}, {L"”", kItalic}}, kItalic, L"“Song"},
        {{{L"\"Song\"", kItalic | kBold}}, kItalic | kBold, L"\"Song"},
        {{{L"Song", kItalic}}, 0, L"Song"},
        {{{L"“Song”", kItalic}, {L".", kPlain}}, 0, L"“Song”."},
        {{{L"“A ‘Song’", kItalic}}, kItalic, L"“A ‘Song"},
    };
    for (const QuoteCase& sample : cases) {
        const auto text = makeObject<FormattedText>();
        for (const Phrase& phrase : sample.phrases) text->add(phrase.text, phrase.font);
        const Variant result = caller(text).call(L"removeQuoteFromLastPhrase");
        EXPECT_EQ(result.get().vt, VT_I2);
        EXPECT_EQ(numberOf(result), sample.font) << sample.left;
        EXPECT_EQ(text->toString(), sample.left);
    }
}

struct RtfCase {
    std::vector<Phrase> phrases;
    const char* body;
};

TEST(Rtf, BodyIsAsciiAndKeepsEveryBlank) {
    const RtfCase cases[] = {
        {{{L" plain {a} \\b", kPlain}}, " plain \\{a\\} \\\\b"},
        {{{L"a", kPlain}, {L" italic ", kItalic}, {L"b", kPlain}}, "a{\\i  italic }b"},
        {{{L"all", kItalic | kBold | kUnderline | kSmallCapitals}}, "{\\i\\b\\ul\\scaps all}"},
        {{{L"1990–1995 é ", kPlain}}, "1990\\u8211?1995 \\u233? "},
        // Beyond U+7FFF the number is negative, and beyond U+FFFF it takes two of them.
        {{{L"\uFEFF\U0001D400", kPlain}}, "\\u-257?\\u-10187?\\u-9216?"},
        {{{L"a\tb\nc", kPlain}}, "a\\tab b\\line c"},
    };
    for (const RtfCase& sample : cases) EXPECT_EQ(rtfBody(sample.phrases), sample.body);
}

TEST(Rtf, DocumentHasAHeadAndBalancedBraces) {
    const auto text = makeObject<FormattedText>();
    text->add(L"{x}", kItalic);
    const std::wstring rtf = textOf(caller(text).get(L"toRTFString"));
    EXPECT_EQ(rtf.find(L"{\\rtf1\\ansi"), 0u);
    EXPECT_NE(rtf.find(L"\\fs24 {\\i \\{x\\}}\\par"), std::wstring::npos);
    int depth = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf[i] == L'\\') {
            ++i;
        } else if (rtf[i] == L'{') {
            ++depth;
        } else if (rtf[i] == L'}') {
            EXPECT_EQ(--depth == 0, i + 3 == rtf.size());
        }
    }
    EXPECT_EQ(depth, 0);
}

}  // namespace
}  // namespace sample

#include "forms/keywords_form.h"

#include <gtest/gtest.h>

#include "elements/keywords.h"
#include "support/element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;
using Arguments = forms::LateObject::Arguments;

/// The library's own element.
std::shared_ptr<RecordingObject> keywordsElement() {
    auto keywords = std::make_shared<OutputTemplateKeywords>();
    keywords->Initialize(nullptr);
    auto seen = std::make_shared<RecordingObject>();
    seen->does(u"Parse", [keywords](Arguments arguments) {
        keywords->Parse(arguments[0].asText(), arguments[1].asText());
        return Value();
    });
    seen->does(u"toString", [keywords](Arguments) { return Value(keywords->toString(false, false)); });
    return seen;
}

Text listed(const ShownForm& shown) {
    return join(shown.at(u"KeywordList").items(), u"|");
}

TEST(KeywordsForm, ListsAFieldInItsOrderAndLosesNothing) {
    constexpr std::pair<TextView, TextView> kCases[] = {
        {u"", u""},
        {u"zebra,apple, ox", u"zebra|apple|ox"},
        {u"zebra, apple, zebra, ", u"zebra|apple"},
        {u"climate change, policy.", u"climate|change|policy"},
        {u"my quorveldatabase, law", u"my quorveldatabase|law"},
        // Words that the element refuses.
        {u"law, Boston, New York, the", u"law|Boston|New York|the"},
        {u"theory of mind, law", u"theory of mind|law"},
    };
    for (const auto& [field, list] : kCases) {
        const ShownForm shown(14, keywordsElement(), field);
        EXPECT_EQ(listed(shown), list);
        EXPECT_EQ(shown.at(u"Label").caption(), u"Product will add the author and title keywords for you.");
    }
}

TEST(KeywordsForm, TheHintsTellOfTheWordInTheBox) {
    struct Case {
        TextView typed;
        bool canAdd;
        bool isUnique;
        bool isSearchable;
        std::int32_t selected;
    };
    constexpr Case kCases[] = {
        {u"law", true, true, true, -1},          {u"apple ", false, false, true, 1},
        {u"apple, law", true, true, true, -1},   {u"Boston", false, true, false, -1},
        {u"zebra,apple", false, false, true, 0}, {u"  ", false, false, false, 0},
    };
    const ShownForm shown(14, keywordsElement(), u"zebra, apple");
    for (const Case& expected : kCases) {
        shown.type(u"Textbox", expected.typed);
        EXPECT_EQ(shown.at(u"AddKeywordButton").isEnabled(), expected.canAdd) << test::utf8Of(expected.typed);
        EXPECT_EQ(shown.at(u"UniqueLabel").foreColor() == forms::kRed, expected.isUnique);
        EXPECT_EQ(shown.at(u"SearchableLabel").foreColor() == forms::kRed, expected.isSearchable);
        EXPECT_EQ(shown.at(u"KeywordList").listIndex(), expected.selected) << test::utf8Of(expected.typed);
    }
}

TEST(KeywordsForm, EnterAddsAndOkSavesWhatStandsInTheBox) {
    const ShownForm shown(14, keywordsElement(), u"zebra");
    shown.type(u"Textbox", u"law, zebra");
    shown.form->userPressedEnter();
    EXPECT_EQ(listed(shown), u"zebra|law");
    EXPECT_EQ(shown.at(u"Textbox").text(), u"");
    EXPECT_EQ(shown.at(u"KeywordList").listIndex(), 0) << "what is listed already is selected";
    EXPECT_TRUE(told(shown).empty());

    shown.at(u"AddKeywordButton").click();
    EXPECT_EQ(listed(shown), u"zebra|law") << "nothing to add";
    shown.type(u"Textbox", u" Boston");
    shown.clickOk();
    EXPECT_EQ(told(shown), (std::vector<std::string>{"setParentWidgetsValue(zebra, law, Boston, )", "Terminate(1)"}));
}

TEST(KeywordsForm, WhatIsSelectedIsRemovedAndCanBeAddedAgain) {
    const ShownForm shown(14, keywordsElement(), u"zebra, apple, law");
    EXPECT_FALSE(shown.at(u"RemoveKeywordButton").isEnabled());
    shown.type(u"Textbox", u"a");
    shown.form->userSelected(shown.at(u"KeywordList"), 1);
    EXPECT_EQ(shown.at(u"KeywordList").listIndex(), 1) << "what is typed does not take the selection back";
    shown.at(u"RemoveKeywordButton").click();
    EXPECT_EQ(listed(shown), u"zebra|law");
    shown.type(u"Textbox", u"apple");
    EXPECT_TRUE(shown.at(u"AddKeywordButton").isEnabled());
    shown.form->userPressedEnter();
    shown.form->userPressedEnter();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(zebra, law, apple, )");
}

// An element that fails takes no word away.
TEST(KeywordsForm, ListsTheFieldWhenTheElementFails) {
    auto element = keywordsElement();
    element->does(u"Parse", [](Arguments) -> Value { throw RuntimeError(ErrorNumber::AutomationError); });
    const ShownForm shown(14, element, u"zebra, apple");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(zebra, apple, )");
}

}  // namespace
}  // namespace quorvel

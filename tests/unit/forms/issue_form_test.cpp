#include "elements/issue/issue.h"

#include "support/lent_element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

/// As a style has it.
struct IssueElement : LentElement<OutputTemplateIssue> {
    IssueElement(std::int16_t format, TextView settings) : LentElement(IssueOptions{format, Text(settings)}) {
        lend(u"IssueType", &OutputTemplateIssue::IssueType, &OutputTemplateIssue::IssueType);
        const std::shared_ptr<OutputTemplateIssue> issue = element;
        object->does(u"SupportedIssueTypes", [issue](Arguments) { return Value(issue->SupportedIssueTypes()); });
        object->does(u"value", [issue](Arguments arguments) {
            return Value(issue->value(static_cast<std::int16_t>(arguments[0].asNumber())));
        });
        object->takes(u"value", [issue](Arguments arguments) {
            issue->value(static_cast<std::int16_t>(arguments[0].asNumber()), arguments[1].asText());
            return Value();
        });
    }
};

constexpr TextView kAll = u"Theme issue,Special issue,Supplement,Edition";

/// The options that are seen, the selected one between brackets, and the boxes that are seen.
Text shownBy(const ShownForm& shown) {
    Text all;
    for (std::int16_t i = 0; i < 6; ++i) {
        const forms::Control& option = shown.at({u"OptionButton", i});
        if (option.isShown()) {
            all += concatenate({option.value() ? u"[" : u"", option.caption(), option.value() ? u"]" : u"", u" "});
        }
    }
    for (std::int16_t i = 0; i < 5; ++i) {
        if (shown.at({u"Textbox", i}).isShown()) {
            all += concatenate({Value(std::int32_t{i}).asText(), u"=", shown.at({u"Textbox", i}).text(), u";"});
        }
    }
    return all;
}

TEST(IssueForm, ShowsTheKindsInTheirOrderAndThePartsOfTheStoredOne) {
    struct Case {
        TextView settings;
        TextView text;
        TextView secondary;
        TextView shown;
        std::string told;
    };
    const Case kCases[] = {
        {u"", u"no. 4", u"", u"[Regular] 0=4;", "4, Issue type"},
        {u"", u"", u"", u"[Regular] 0=;", ", Issue type"},
        {kAll, u"4", u"Regular", u"[Regular] Theme issue Special issue Supplement Edition 0=4;", "4, Issue type"},
        {kAll, u"20 (theme issue)", u"", u"Regular Theme issue [Special issue] Supplement Edition 0=20;3=;4=;",
         "20 (theme issue), Special issue"},
        {u"Theme issue", u"20", u"Special issue", u"Regular [Theme issue] 0=20;3=;4=;",
         "20 (theme issue), Special issue"},
        {u"Theme issue", u"4, suppl 2", u"", u"Regular Theme issue [Supplement] 0=4;1=2;", "4 (suppl 2), Supplement"},
        {u"Edition", u"late ed.", u"", u"Regular [Edition] 2=late ed.;", "late ed., Edition"},
    };
    for (const Case& c : kCases) {
        const IssueElement element(0, c.settings);
        const ShownForm shown(11, element.object, c.text, c.secondary);
        EXPECT_EQ(shownBy(shown), c.shown) << test::utf8Of(shownBy(shown));
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + c.told + ")");
    }
}

TEST(IssueForm, AnotherKindHasItsOwnPartsAndKeepsTheOthers) {
    const IssueElement element(0, kAll);
    const ShownForm shown(11, element.object, u"Identities. Ed. Anthony Appiah. Spec. issue");
    EXPECT_EQ(shown.at({u"Textbox", 3}).text(), u"Identities");
    shown.at({u"OptionButton", 3}).click();
    shown.type({u"Textbox", 1}, u"2");
    EXPECT_EQ(shown.preview(), u"(suppl 2)");
    shown.at({u"OptionButton", 1}).click();
    EXPECT_EQ(shown.at({u"Textbox", 4}).text(), u"Anthony Appiah");
    EXPECT_EQ(element.element->IssueType(), u"Special issue") << "a theme issue is a special one in storage";
}

TEST(IssueForm, WhatTheStyleDoesNotWriteAndTheJournalStay) {
    constexpr std::int16_t kApa = 1;
    constexpr std::int16_t kMla = 2;
    struct Case {
        std::int16_t format;
        TextView text;
        TextView title;
        std::string told;
    };
    const Case kCases[] = {
        {kApa, u"4, suppl 2", u"", "4, suppl 2, Supplement"},
        {kMla, u"Spec. issue of Critical Inquiry 18.4", u"", "Spec. issue of Critical Inquiry 18.4, Special issue"},
        {-1, u"Spec. issue of Critical Inquiry 18.4", u"Identities",
         "Identities. Spec. issue of Critical Inquiry 18.4, Special issue"},
    };
    for (const Case& c : kCases) {
        const IssueElement element(c.format, kAll);
        const ShownForm shown(11, element.object, c.text);
        if (!c.title.empty()) {
            shown.type({u"Textbox", 3}, c.title);
        }
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + c.told + ")");
    }
}

TEST(IssueForm, AKindOfTheHostsOwnStays) {
    const auto element = std::make_shared<RecordingObject>();
    element->does(u"Parse", [](forms::LateObject::Arguments) { return Value(); });
    element->has(u"IssueType", Value(TextView(u"Festschrift")));
    for (const char16_t* const part : {u"value(0)", u"value(1)", u"value(2)", u"value(3)", u"value(4)"}) {
        element->has(part, Value(TextView()));
    }
    element->does(u"toString", [](forms::LateObject::Arguments) { return Value(TextView(u"x")); });
    element->has(u"SupportedIssueTypes", Value(std::vector<Text>{u"1", u"2", u"3", u"4", u"5", u"6", u"7"}));
    const ShownForm shown(11, element, u"x");
    EXPECT_EQ(shownBy(shown), u"1 2 3 4 5 [Festschrift] 0=;");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(x, Festschrift)");
}

}  // namespace
}  // namespace quorvel

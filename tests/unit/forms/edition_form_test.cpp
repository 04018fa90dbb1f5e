#include "elements/edition/edition.h"

#include "elements/style_codes.h"
#include "support/lent_element.h"
#include "support/recording_service.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;
using Record = EditionBookChapterYear;

/// As a style has it.
struct EditionElement : LentElement<OutputTemplateEdition> {
    explicit EditionElement(std::int32_t format) : LentElement(EditionOptions{format, nullptr}) {
        using Edition = OutputTemplateEdition;
        lend(u"EditionType", &Edition::EditionType, &Edition::EditionType);
        lend(u"NumberedEdition", &Edition::NumberedEdition, &Edition::NumberedEdition);
        lend(u"NamedEdition", &Edition::NamedEdition, &Edition::NamedEdition);
        const std::shared_ptr<Edition> edition = element;
        object->does(u"format", [edition](Arguments) { return Value(edition->format()); });
        object->does(u"clearEditionBookChapterYear", [edition](Arguments) {
            edition->clearEditionBookChapterYear();
            return Value();
        });
        lendPart(u"Title", &Record::Title);
        lendPart(u"author", &Record::author);
        lendPart(u"PlaceOrVolume", &Record::PlaceOrVolume);
        lendPart(u"PublisherOrNumber", &Record::PublisherOrNumber);
        lendPart(u"Year", &Record::Year);
        lendPart(u"Page", &Record::Page);
        lendPart(u"chapterOrArticleTitle", &Record::chapterOrArticleTitle);
        lendPart(u"AuthorType", &Record::AuthorType);
        lendPart(u"TitleType", &Record::TitleType);
        lendPart(u"isReprintBook", &Record::isReprintBook);
        lendPart(u"isSpecialIssue", &Record::isSpecialIssue);
        const forms::LateObjectRef lent = record;
        object->does(u"EditionBookChapterYear", [lent](Arguments) { return Value(lent); });
    }

    template <class T>
    void lendPart(const char16_t* member, T Record::*part) {
        const std::shared_ptr<Record> publication = element->EditionBookChapterYear();
        record->does(member, [=](Arguments) { return Value((*publication).*part); });
        record->takes(member, [=](Arguments arguments) {
            if constexpr (std::is_same_v<T, bool>) {
                (*publication).*part = arguments.back().asFlag();
            } else {
                (*publication).*part = arguments.back().asText();
            }
            return Value();
        });
    }

    std::shared_ptr<RecordingObject> record = std::make_shared<RecordingObject>();
};

constexpr std::int32_t kFormats[] = {stylecodes::kMlaWithoutEd, stylecodes::kAma, stylecodes::kApa, stylecodes::kMla,
                                     stylecodes::kTurabian};

forms::ControlName type(std::int16_t code) {
    return {u"EditionOption", code};
}
forms::ControlName box(std::int16_t index) {
    return {u"ReprintTextBox", index};
}

constexpr TextView kTexts[] = {
    u"",
    u"2nd ed.",
    u"second edition",
    u"2nd ed., rev. by John Smith",
    u"2nd ed. in 3 vols.",
    u"2008 ed.",
    u"Rev. ed.",
    u"2nd rev. ed.",
    u"1911. Ed. A. Lee",
    u"Kindle version",
    u"Facsim. ed. 1790",
    u"1925",
    u"1925. Reprint",
    u"1925. Reprint, New York: Dover",
    u"1900. Introd. E. L. Doctorow",
    u"By Henry James. Daisy Miller. 1878",
    u"Rpt. of New York City Guide. 1939",
    u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884",
    u"Trans. of Le pass\u00E9 d'une illusion. Paris: Robert Laffont, 1995",
    u"(Original work published 1925)",
    u"(Reprinted from Manual of child psychology, pp. 703-732, by P. H. Mussen, Ed., 1970, New York, NY: Wiley)",
    u"(Reprinted from Manual of child psychology, by P. H. Mussen, 1970, New York, NY: Wiley)",
    u"Originally published as Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)",
    u"Le pass\u00E9 d'une illusion (Paris: Robert Laffont, 1995)"};

// Whatever the form can show of a text, in every style: untouched it stays, and so it does when the user tries the
// other kinds and comes back.
TEST(EditionForm, KeepsWhatNobodyChanged) {
    for (const std::int32_t format : kFormats) {
        for (const TextView text : kTexts) {
            const std::string name = test::utf8Of(text) + " in " + std::to_string(format);
            EditionElement alone(format);
            Text left(text);
            alone.element->Parse(left, {});
            const Text expected = alone.element->toString(false, false);
            const std::int16_t read = alone.element->EditionType();

            const EditionElement element(format);
            const ShownForm shown(8, element.object, text);
            EXPECT_EQ(shown.preview(), expected) << name;
            ASSERT_TRUE(shown.at(type(read)).isShown()) << name;
            ASSERT_TRUE(shown.at(type(read)).value()) << name;
            for (std::int16_t other = 0; other < 4; ++other) {
                shown.at(type(other)).click();
                if (shown.at(box(0)).isShown()) {
                    shown.type(box(0), u"Something else");
                    shown.at({u"ReprintOption", 0}).click();
                }
            }
            shown.type(u"NumEdition", u"7");
            shown.form->ParentWidgetChanged(element.object, nullptr, text, {});
            for (std::int16_t other = 0; other < 4; ++other) {
                shown.at(type(other)).click();
            }
            shown.at(type(read)).click();
            EXPECT_EQ(shown.preview(), expected) << name;
            shown.clickOk();
            const TextView written = read >= 2 ? text : TextView(expected);
            EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + test::utf8Of(written) + ", )");
        }
    }
}

TEST(EditionForm, ArrowsCountEditionsFromTheSecondAndKeepWhatStandsBehindTheNumber) {
    struct Case {
        TextView text;
        // "+" and "-" are the arrows, anything else is typed.
        std::vector<TextView> steps;
        TextView box;
        TextView preview;
    };
    const Case kCases[] = {
        {u"", {u"+"}, u"2", u"2nd ed."},
        {u"2nd ed.", {u"-"}, u"", u""},
        {u"2nd ed.", {u"-", u"-"}, u"", u""},
        {u"2nd ed.", {u"1", u"-"}, u"1", u"1st ed."},
        {u"2nd ed.", {u"0"}, u"2", u"2nd ed."},
        {u"2nd ed.", {u"3x"}, u"2", u"2nd ed."},
        {u"2nd ed.", {u"22", u"x"}, u"22", u"22nd ed."},
        {u"1st ed., New York", {u"+"}, u"2", u"2nd ed., New York"},
        {u"2nd ed. in 3 vols.", {u"-", u"+", u"+"}, u"3", u"3rd ed. in 3 vols."},
        {u"2008 ed.", {u"+"}, u"2009", u"2009 ed."},
        {u"1925", {u"x"}, u"", u"1925"},
        {u"Rev. ed.", {u"+"}, u"2", u"2nd ed."},
    };
    for (const Case& c : kCases) {
        const EditionElement element(stylecodes::kMla);
        const ShownForm shown(8, element.object, c.text);
        for (const TextView step : c.steps) {
            if (step == u"+" || step == u"-") {
                shown.form->userSpun(shown.at(u"UpDown"), step == u"+");
            } else {
                shown.type(u"NumEdition", step);
            }
        }
        EXPECT_EQ(shown.at(u"NumEdition").text(), c.box) << test::utf8Of(c.text);
        EXPECT_EQ(shown.preview(), c.preview) << test::utf8Of(c.text);
    }
}

TEST(EditionForm, WritesNamesAndFirstPublications) {
    const EditionElement element(stylecodes::kMla);
    const ShownForm shown(8, element.object, u"2nd ed.");
    EXPECT_FALSE(shown.at(u"ReprintFrame").isShown());
    shown.form->userSelected(shown.at(u"NamedEdition"), 5);
    EXPECT_TRUE(shown.at(type(1)).value());
    EXPECT_EQ(shown.preview(), u"Rev. ed.");

    shown.at(type(2)).click();
    EXPECT_TRUE(shown.at({u"ReprintOption", 0}).value());
    shown.type(box(0), u"New York City Guide");
    shown.type(box(4), u"1939");
    EXPECT_EQ(shown.preview(), u"Rpt. of New York City Guide. 1939");
    EXPECT_TRUE(element.element->EditionBookChapterYear()->isReprintBook);
    shown.at(type(3)).click();
    EXPECT_EQ(shown.preview(), u"Trans. of New York City Guide. 1939");
    shown.at(type(2)).click();
    shown.at({u"ReprintOption", 1}).click();
    EXPECT_EQ(shown.at({u"ReprintLabel", 2}).caption(), u"Vo&lume:");
    shown.type(box(2), u"18");
    EXPECT_EQ(shown.preview(), u"Rpt. of New York City Guide 18 (1939)");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(Rpt. of New York City Guide 18 (1939), )");
}

TEST(EditionForm, AChangedPartLeavesWhatTheFormDoesNotShow) {
    const EditionElement element(stylecodes::kMla);
    const ShownForm shown(8, element.object, u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-884");
    shown.type(box(5), u"625-700");
    EXPECT_EQ(shown.preview(), u"Rpt. of spec. issue of Critical Inquiry 18.4 (1992): 625-700");
    shown.at({u"ReprintOption", 0}).click();
    shown.at({u"ReprintOption", 1}).click();
    EXPECT_EQ(shown.preview(), u"Rpt. of Critical Inquiry 18.4 (1992): 625-700") << "no book is a special issue";
    for (std::int16_t part = 0; part < 7; ++part) {
        shown.type(box(part), u"");
    }
    EXPECT_EQ(shown.preview(), u"");
    shown.form->ParentWidgetChanged(element.object, nullptr, u"1900. Introd. E. L. Doctorow", {});
    shown.type(box(4), u"1901");
    EXPECT_EQ(shown.preview(), u"Introd. E. L. Doctorow. 1901");
}

class EditionFormReports : public ReportingTest {};

TEST_F(EditionFormReports, ArrowsThatCannotBeMadeAreToldOnce) {
    const std::shared_ptr<forms::Form> form = forms::make(8);
    const auto view = std::make_shared<RecordingView>();
    view->missing = {u"UpDown"};
    const auto callback = std::make_shared<RecordingObject>();
    callback->does(u"WebsiteAddress",
                   [](forms::LateObject::Arguments) { return Value(TextView(u"http://host.example")); });
    form->attach(view);
    form->Initialize(callback, u"Product", nullptr);
    EXPECT_EQ(callback->calls, std::vector<std::string>{"WebsiteAddress()"});
    ASSERT_EQ(view->messages.size(), 1U);
    EXPECT_TRUE(view->messages[0].starts_with(u"Missing Windows core library.: "));
    EXPECT_TRUE(view->messages[0].ends_with(u"http://host.example/dependencies/comct232.exe to fix this problem."));
    ASSERT_EQ(service().errors().size(), 1U);
    EXPECT_TRUE(service().errors()[0].starts_with(u"339: Missing Windows core library."));
}

TEST_F(EditionFormReports, ARecordThatFailsOrIsGoneIsReportedAndTheFormCloses) {
    const EditionElement element(stylecodes::kMla);
    const ShownForm shown(8, element.object, u"Rpt. of New York City Guide. 1939");
    element.record->failAt(element.record->count + 5);
    shown.type(box(4), u"1940");
    EXPECT_EQ(service().errors().size(), 1U);
    EXPECT_EQ(shown.preview(), u"Rpt. of New York City Guide. 1939");
    element.object->does(u"EditionBookChapterYear", [](forms::LateObject::Arguments) { return Value(); });
    shown.form->ParentWidgetChanged(element.object, nullptr, u"1925", {});
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(1925, )");
}

}  // namespace
}  // namespace quorvel

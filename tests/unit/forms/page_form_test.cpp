#include "elements/page.h"

#include "support/lent_element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

/// As a style has it.
struct PageElement : LentElement<OutputTemplatePage> {
    explicit PageElement(bool supportsNotes)
        : LentElement(PageOptions{.supportsNotes = supportsNotes,
                                  .usePagePrefix = !supportsNotes,
                                  .noPageStr = u"n. pag.",
                                  .chapterPrefix = u"chap.",
                                  .chapterPluralPrefix = u"chaps.",
                                  .paraPrefix = u"par.",
                                  .paraPluralPrefix = u"pars.",
                                  .addDotToAdvancedPrefix = true}) {
        using Page = OutputTemplatePage;
        lend(u"Page", &Page::Page, &Page::Page);
        lend(u"pageType", &Page::pageType);
        lend(u"Note", &Page::Note);
        object->has(u"supportsNotes", forms::Value(supportsNotes));
    }
};

std::int16_t typeOf(const ShownForm& shown) {
    for (std::int16_t type = 0; type < 15; ++type) {
        if (shown.at({u"OptionButton", type}).value()) {
            return type;
        }
    }
    return -1;
}

struct Case {
    TextView text;
    std::int16_t type;
    TextView page;
    TextView note;
    TextView written;
};
constexpr Case kCases[] = {
    {u"45", 0, u"45", u"", u"45"},
    {u"pp. 321-28", 0, u"321-328", u"", u"321-328"},
    {u"12, 15-18", 0, u"12, 15-18", u"", u"12, 15-18"},
    {u"201nn16-17", 0, u"201", u"16-17", u"201nn16-17"},
    {u"chap. 3", 1, u"3", u"", u"chap. 3"},
    {u"Def. 2b", 14, u"2b", u"", u"Def. 2b"},
    {u"n.p.", -1, u"", u"", u"n. pag."},
    {u"", 0, u"", u"", u""},
};

TEST(PageForm, ShowsTheLocatorThatStoodThereAndTheOneThatIsTyped) {
    for (const Case& c : kCases) {
        for (const bool isTyped : {false, true}) {
            const PageElement element(true);
            const ShownForm shown(7, element.object, isTyped ? u"7" : c.text);
            if (isTyped) {
                shown.type(u"Page", c.text);
                shown.form->userLeft(shown.at(u"Page"));
            }
            EXPECT_EQ(typeOf(shown), c.type) << test::utf8Of(c.text);
            EXPECT_EQ(shown.at(u"Page").text(), c.page);
            EXPECT_EQ(shown.at(u"Note").text(), c.note);
            EXPECT_EQ(shown.at(u"NoteCheckBox").value(), !c.note.empty());
            EXPECT_EQ(shown.preview(), c.written);
            shown.clickOk();
            EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + test::utf8Of(c.written) + ", )");
        }
    }
}

TEST(PageForm, TheCheckBoxDecidesWhetherTheNoteIsWritten) {
    const PageElement element(true);
    const ShownForm shown(7, element.object, u"n.p.");
    shown.type(u"Page", u"201");
    EXPECT_EQ(typeOf(shown), 0) << "who types a page knows it";
    shown.type(u"Note", u"3");
    EXPECT_EQ(shown.preview(), u"201n3");
    shown.at(u"NoteCheckBox").click();
    EXPECT_EQ(shown.preview(), u"201");
    EXPECT_EQ(element.element->Note, OutputTemplatePage::kNoNote);
    EXPECT_EQ(shown.at(u"Note").text(), u"3");
}

TEST(PageForm, KeepsWhatWasTypedWhereTheStyleHasNoNotesOrTheElementFails) {
    const PageElement element(false);
    const ShownForm shown(7, element.object, u"45");
    EXPECT_FALSE(shown.at(u"Note").isShown());
    shown.at({u"OptionButton", 1}).click();
    shown.type(u"Page", u"6");
    shown.form->userLeft(shown.at(u"Page"));
    EXPECT_EQ(shown.preview(), u"chap. 6") << "the type that the user chose stays";
    shown.type(u"Page", u"45n3");
    shown.form->userLeft(shown.at(u"Page"));
    EXPECT_EQ(shown.at(u"Page").text(), u"45n3");
    shown.type(u"Page", u"8");
    element.object->failAt(element.object->count + 1);
    shown.form->userLeft(shown.at(u"Page"));
    EXPECT_EQ(shown.preview(), u"chap. 8");
}

// The model is an element of its own, which reads what this one writes.
TEST(PageForm, IsPreviewedByTheModel) {
    const PageElement element(true);
    const PageElement model(false);
    const ShownForm shown(7, element.object, u"45n3");
    shown.form->ParentWidgetChanged(element.object, model.object, u"45-46", {});
    EXPECT_EQ(shown.preview(), u"pp. 45-46");
    EXPECT_FALSE(shown.at(u"Note").isShown()) << "the model tells what the style supports";
}

}  // namespace
}  // namespace quorvel

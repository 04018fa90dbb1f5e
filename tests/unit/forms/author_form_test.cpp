#include <gtest/gtest.h>

#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Control;
using forms::Value;
using Arguments = forms::LateObject::Arguments;

/// Reads names separated by ";", the roles and "et al." apart, and writes them in that way.
std::shared_ptr<RecordingObject> authorElement() {
    auto author = std::make_shared<RecordingObject>();
    RecordingObject* const self = author.get();
    for (const char16_t* const flag :
         {u"HasEtAl", u"hasDiscussant", u"Anthologies(0)", u"Anthologies(1)", u"Anthologies(2)",
          u"supportsCompilerAndEditor", u"SquareBracketIsForFirstName"}) {
        author->has(flag, Value(false));
    }
    author->has(u"SupportAnonAndPseudoAuthors", Value(true));
    author->has(u"AuthorType", Value(0));
    author->has(u"Pseudoname", Value(TextView()));
    author->has(u"Discussant", Value(TextView()));
    author->has(u"authors", Value(std::vector<Text>()));
    author->does(u"Parse", [self](Arguments arguments) {
        Text text = arguments[0].asText();
        self->has(u"HasEtAl", Value(removeSuffix(text, u" et al.")));
        const bool isBoth = removeSuffix(text, u", ed. and trans.");
        self->has(u"Anthologies(0)", Value(isBoth));
        self->has(u"Anthologies(2)", Value(removeSuffix(text, u", trans.") || isBoth));
        self->has(u"authors", Value(text.empty() ? std::vector<Text>() : split(text, u"; ")));
        return Value();
    });
    author->does(u"toString", [self](Arguments) {
        const Text pseudo = self->valueOf(u"Pseudoname").asText();
        return Value(concatenate({join(self->valueOf(u"authors").asTexts(), u"; "),
                                  self->valueOf(u"AuthorType").asNumber() == 2 ? u" [" : u"", pseudo,
                                  self->valueOf(u"HasEtAl").asFlag() ? u" et al." : u"",
                                  !self->valueOf(u"Anthologies(2)").asFlag()  ? u""
                                  : self->valueOf(u"Anthologies(0)").asFlag() ? u", ed. and trans."
                                                                              : u", trans."}));
    });
    return author;
}

Control& row(const ShownForm& shown, std::int16_t number) {
    return shown.at({u"authors", number});
}

TEST(AuthorForm, ShowsTheFilledRowsAndAnEmptyOne) {
    struct Case {
        TextView text;
        int rowsShown;
        TextView more;
    };
    constexpr Case kCases[] = {
        {u"", 1, u""},
        {u"A, B", 2, u""},
        {u"A; B; C; D; E", 6, u""},
        {u"A; B; C; D; E; F", 6, u""},
        {u"A; B; C; D; E; F; G; H", 6, u"and 2 more"},
    };
    for (const Case& c : kCases) {
        const ShownForm shown(0, authorElement(), c.text);
        for (std::int16_t i = 1; i <= 6; ++i) {
            EXPECT_EQ(row(shown, i).isShown(), i <= c.rowsShown) << c.rowsShown << ", " << i;
            EXPECT_EQ(shown.at({u"AuthorLabels", i}).isEnabled(), i <= c.rowsShown);
        }
        EXPECT_EQ(shown.at(u"MoreAuthors").isShown(), !c.more.empty());
        EXPECT_EQ(shown.preview(), c.text) << "names beyond the rows are written";
        if (c.rowsShown > 1) {
            EXPECT_EQ(shown.at(u"HasEtAl").place().top,
                      row(shown, static_cast<std::int16_t>(c.rowsShown)).place().top + 405);
        }
    }
}

TEST(AuthorForm, TypingIntoTheLastRowEnablesTheNext) {
    const ShownForm shown(0, authorElement(), u"");
    for (std::int16_t i = 1; i <= 6; ++i) {
        shown.type({u"authors", i}, u"Name");
        EXPECT_EQ(row(shown, static_cast<std::int16_t>(std::min(i + 1, 6))).isShown(), true);
    }
    shown.type({u"authors", 2}, u"");
    EXPECT_EQ(shown.preview(), u"Name; Name; Name; Name; Name") << "empty rows are dropped";
}

TEST(AuthorForm, LeavingABoxShowsTheNameAsItWasRead) {
    const ShownForm shown(0, authorElement(), u"A; B");
    shown.type({u"authors", 1}, u" X, Y, trans. ");
    shown.form->userLeft(row(shown, 1));
    EXPECT_EQ(row(shown, 1).text(), u"X, Y");
    EXPECT_TRUE(shown.at({u"CheckBox", 2}).value()) << "the role that stood beside the name is kept";
    shown.type({u"authors", 2}, u"C; D et al.");
    shown.form->userLeft(row(shown, 2));
    EXPECT_EQ(shown.preview(), u"X, Y; C; D et al., trans.") << "two names in a box become two rows";
}

TEST(AuthorForm, PersonsThatTheStyleLeavesOutAreKept) {
    struct Case {
        TextView text;
        TextView rest;
        TextView typed;
        const char* told;
    };
    constexpr Case kCases[] = {
        {u"A; B; C", u"", u"", "setParentWidgetsValue(A; B; C, )"},
        {u"A; B; C", u"", u"X", "setParentWidgetsValue(X; B; C, trans., )"},
        {u"A (in press)", u"(in press)", u"X", "setParentWidgetsValue(X et al. (in press), )"},
    };
    for (const Case& c : kCases) {
        const auto author = authorElement();
        RecordingObject* const self = author.get();
        const auto names = [self] { return self->valueOf(u"authors").asTexts(); };
        author->does(u"toString", [names](Arguments) { return Value(names().front() + u" et al."); });
        author->does(u"toMergedString", [names](Arguments) { return Value(join(names(), u"; ")); });
        author->has(u"editor", Value(TextView(u"trans.")));
        author->leaves(u"Parse", Text(c.rest));
        const ShownForm shown(0, author, c.text);
        if (!c.typed.empty()) {
            shown.type({u"authors", 1}, c.typed);
        }
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), c.told);
    }
}

TEST(AuthorForm, KindsPseudonymsAndDiscussants) {
    const auto pseudonymous = authorElement();
    pseudonymous->has(u"AuthorType", Value(2));
    pseudonymous->has(u"Pseudoname", Value(TextView(u"pseud.")));
    const ShownForm shown(0, pseudonymous, u"Twain", u"Discussant");
    EXPECT_EQ(shown.at(u"Pseudoname").text(), u"");
    EXPECT_EQ(shown.preview(), u"Twain [pseud.");
    EXPECT_TRUE(shown.at(u"Discussant").isShown());
    shown.at(u"NormalOption").click();
    EXPECT_EQ(pseudonymous->valueOf(u"AuthorType").asNumber(), 0);
    shown.form->userEntered(shown.at(u"Pseudoname"));
    EXPECT_TRUE(shown.at(u"PseudoOption").value());
    shown.type(u"Discussant", u"Doe, J.");
    shown.clickOk();
    EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(Twain [, Discussant)");

    const auto plain = authorElement();
    plain->has(u"SupportAnonAndPseudoAuthors", Value(false));
    const ShownForm without(0, plain, u"Twain");
    EXPECT_FALSE(without.at(u"PseudoOption").isShown());
    EXPECT_FALSE(without.at(u"Discussant").isShown());
}

TEST(EditorForm, TypeComesFromTheSecondTextTheRolesOrIsEditor) {
    struct Case {
        TextView text;
        TextView secondary;
        bool hasCompilers;
        TextView option;
        const char* told;
    };
    constexpr Case kCases[] = {
        {u"A", u"", false, u"EditorOption", "setParentWidgetsValue(A, Editor)"},
        {u"A, trans.", u"", false, u"TranslatorOption", "setParentWidgetsValue(A, trans., Translator)"},
        {u"A, trans.", u"Compiler & Ed.", true, u"CompilerAndEditorOption", "setParentWidgetsValue(A, Compiler & Ed.)"},
        // The roles of a text that no type has stay together.
        {u"A, ed. and trans.", u"Editor", false, u"EditorOption", "setParentWidgetsValue(A, ed. and trans., Editor)"},
        {u"A et al.", u"Compiler", false, u"CompilerOption", "setParentWidgetsValue(A et al., Compiler)"},
    };
    for (const Case& c : kCases) {
        const auto element = authorElement();
        element->has(u"supportsCompilerAndEditor", Value(c.hasCompilers));
        const ShownForm shown(9, element, c.text, c.secondary);
        EXPECT_TRUE(shown.at(c.option).value());
        EXPECT_TRUE(shown.at(c.option).isShown());
        EXPECT_EQ(shown.at(u"CompilerAndEditorOption").isShown(), c.hasCompilers);
        shown.form->userEntered(shown.at({u"editors", 1}));
        shown.form->userPressedEnter();
        EXPECT_EQ(told(shown).front(), c.told);
    }
}

TEST(EditorForm, NobodyHasNoRole) {
    const auto element = authorElement();
    const ShownForm shown(9, element, u"");
    EXPECT_TRUE(shown.at(u"EditorOption").value());
    EXPECT_FALSE(element->valueOf(u"Anthologies(0)").asFlag());
    shown.type({u"editors", 1}, u"A");
    EXPECT_TRUE(element->valueOf(u"Anthologies(0)").asFlag());
}

}  // namespace
}  // namespace quorvel

#include "forms/notes_form.h"

#include <gtest/gtest.h>

#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::ClipboardFormat;
using forms::EditMessage;

constexpr TextView kLines = u"  First line\nSecond line ";

TEST(NotesForm, GivesTheTextBackWithItsBlanksAndLines) {
    const ShownForm shown(18, nullptr, kLines);
    EXPECT_EQ(shown.at(u"Notes").text(), kLines);
    EXPECT_FALSE(shown.form->isEnterOk(shown.at(u"Notes")));
    shown.form->userEntered(shown.at(u"Notes"));
    shown.form->userLeft(shown.at(u"Notes"));
    EXPECT_EQ(shown.form->toString(), kLines);
    shown.clickOk();
    EXPECT_EQ(told(shown),
              (std::vector<std::string>{"setParentWidgetsValue(  First line\nSecond line , )", "Terminate(1)"}));
}

TEST(NotesForm, TheButtonsDoWhatCanBeDone) {
    struct Case {
        std::vector<ClipboardFormat> clipboard;
        std::int32_t selected;
        bool canUndo;
        TextView enabled;
    };
    const Case kCases[] = {
        {{}, 0, false, u""},
        {{ClipboardFormat::Text}, 3, true, u"tcpu"},
        {{ClipboardFormat::UnicodeText}, 0, false, u"p"},
        {{ClipboardFormat::OemText}, 0, false, u"p"},
        {{}, 1, false, u"tc"},
        {{}, 0, true, u"u"},
    };
    const std::function<void(const ShownForm&)> kOccasions[] = {
        [](const ShownForm& shown) { shown.form->userSelectedText(shown.at(u"Notes")); },
        [](const ShownForm& shown) { shown.form->userSelectedText(shown.at(u"Notes"), forms::SelectedBy::Mouse); },
        [](const ShownForm& shown) { shown.type(u"Notes", u"Other"); },
        [](const ShownForm& shown) { shown.form->userActivated(); },
        [](const ShownForm& shown) { shown.form->ParentWidgetChanged(nullptr, nullptr, u"Next", {}); },
    };
    constexpr std::pair<TextView, char16_t> kButtons[] = {
        {u"CutButton", u't'}, {u"CopyButton", u'c'}, {u"PasteButton", u'p'}, {u"UndoButton", u'u'}};
    for (const auto& occasion : kOccasions) {
        const ShownForm shown(18, nullptr, u"Notes");
        for (const Case& expected : kCases) {
            shown.view->clipboard = expected.clipboard;
            shown.view->selected.length = expected.selected;
            shown.view->canUndo = expected.canUndo;
            occasion(shown);
            Text enabled;
            for (const auto& [button, letter] : kButtons) {
                enabled += shown.at(button).isEnabled() ? Text(1, letter) : Text();
            }
            EXPECT_EQ(enabled, expected.enabled);
        }
    }
}

TEST(NotesForm, TheButtonsSendTheirMessagesAndGiveTheFocusBack) {
    constexpr std::pair<TextView, EditMessage> kCases[] = {
        {u"CutButton", EditMessage::Cut},
        {u"CopyButton", EditMessage::Copy},
        {u"PasteButton", EditMessage::Paste},
        {u"UndoButton", EditMessage::Undo},
    };
    for (const auto& [button, message] : kCases) {
        const ShownForm shown(18, nullptr, u"Notes");
        shown.view->clipboard = {ClipboardFormat::UnicodeText};
        shown.view->selected.length = 1;
        shown.view->canUndo = true;
        shown.form->userActivated();
        shown.view->focus = nullptr;
        shown.form->userClicked(shown.at(button));
        EXPECT_EQ(std::count(shown.view->sent.begin(), shown.view->sent.end(), message), 1) << test::utf8Of(button);
        EXPECT_EQ(shown.view->focus, &shown.at(u"Notes"));
    }
}

}  // namespace
}  // namespace quorvel

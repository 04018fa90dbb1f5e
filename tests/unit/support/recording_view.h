#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/form.h"

namespace quorvel {

/// Windows of a test: what the form says of them, and a user's hand on them.
class RecordingView final : public forms::FormView {
public:
    /// Of Tahoma with 8 points at 96 dots per inch.
    forms::DialogUnits units = {22.5F, 24.375F};
    forms::Rectangle where = {100, 200, 300, 300};
    Text caption;
    std::intptr_t icon = -1;
    std::intptr_t owner = -1;
    const forms::Control* focus = nullptr;
    bool isRevealedNow = false;
    bool isClosed = false;
    /// The formats on the clipboard, and what edit controls can do.
    std::vector<forms::ClipboardFormat> clipboard;
    std::vector<forms::EditMessage> sent;
    bool canUndo = false;
    forms::Selection selected;
    std::vector<Text> messages;
    /// How often a rich-text control got another document.
    int previews = 0;
    /// Controls for which no window could be made, by name.
    std::vector<TextView> missing;

    forms::DialogUnits dialogUnits() const override { return units; }
    forms::Rectangle borders() const override { return {60, 420, 120, 480}; }
    void aspectChanged(const forms::Control& control, forms::Aspect aspect) override {
        if (control.kind() == forms::ControlKind::RichText && aspect == forms::Aspect::Text) {
            ++previews;
        }
    }
    forms::Rectangle place() const override { return where; }
    void setPlace(const forms::Rectangle& place) override { where = place; }
    void setCaption(TextView text) override { caption = text; }
    void setIcon(std::intptr_t handle) override { icon = handle; }
    void setEnabled(bool /*isEnabled*/) override {}
    std::intptr_t handle() const override { return 1; }
    std::intptr_t handle(const forms::Control& control) const override {
        return std::find(missing.begin(), missing.end(), control.name()) != missing.end() ? 0 : 2;
    }
    void show(std::intptr_t theOwner) override { owner = theOwner; }
    void reveal(const forms::Control* first) override {
        isRevealedNow = true;
        focus = first;
    }
    void hide() override { isRevealedNow = false; }
    bool isRevealed() const override { return isRevealedNow; }
    bool setFocus(const forms::Control& control) override {
        focus = &control;
        return true;
    }
    bool setFocus() override { return true; }
    forms::Selection selection(const forms::Control& /*control*/) const override { return selected; }
    void setSelection(const forms::Control& /*control*/, const forms::Selection& selection) override {
        selected = selection;
    }
    /// The text of a document, without its control words.
    Text plainText(const forms::Control& control) const override {
        Text text;
        int depth = 0;
        const Text& rtf = control.rtf();
        for (std::size_t i = 0; i < rtf.size(); ++i) {
            if (rtf[i] == u'{' || rtf[i] == u'}') {
                depth += rtf[i] == u'{' ? 1 : -1;
            } else if (rtf[i] == u'\\' && i + 1 < rtf.size() && !isAsciiLetter(rtf[i + 1])) {
                text += rtf[++i];
            } else if (rtf[i] == u'\\') {
                const std::size_t word = i + 1;
                while (i + 1 < rtf.size() && isAsciiLetter(rtf[i + 1])) {
                    ++i;
                }
                const bool isCharacter = rtf.substr(word, i + 1 - word) == u"u";
                Text digits;
                while (i + 1 < rtf.size() && (rtf[i + 1] == u'-' || (rtf[i + 1] >= u'0' && rtf[i + 1] <= u'9'))) {
                    digits += rtf[++i];
                }
                if (isCharacter) {
                    text += static_cast<char16_t>(forms::Value(digits).asNumber());
                    ++i;
                } else if (i + 1 < rtf.size() && rtf[i + 1] == u' ') {
                    ++i;
                }
            } else if (depth == 1) {
                text += rtf[i];
            }
        }
        return text;
    }
    std::intptr_t sendAndKeepCursor(const forms::Control& /*control*/, forms::EditMessage message) override {
        sent.push_back(message);
        return message == forms::EditMessage::CanUndo && canUndo ? 1 : 0;
    }
    bool clipboardHolds(forms::ClipboardFormat format) const override {
        return std::find(clipboard.begin(), clipboard.end(), format) != clipboard.end();
    }
    void showMessage(TextView title, TextView text) override { messages.push_back(concatenate({title, u": ", text})); }
    void close() override { isClosed = true; }
};

}  // namespace quorvel

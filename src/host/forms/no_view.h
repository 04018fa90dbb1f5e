#pragma once

#include <algorithm>
#include <map>

#include "forms/view.h"

namespace quorvel::host {

/// A form without windows. It stands here until the forms have real ones.
class NoView : public forms::FormView {
public:
    void close() override {}
    forms::DialogUnits dialogUnits() const override { return {30, 30}; }
    forms::Rectangle borders() const override { return {60, 360, 120, 420}; }
    void aspectChanged(const forms::Control& /*control*/, forms::Aspect /*aspect*/) override {}
    forms::Rectangle place() const override { return mPlace; }
    void setPlace(const forms::Rectangle& place) override { mPlace = place; }
    void setCaption(TextView /*caption*/) override {}
    void setIcon(std::intptr_t icon) override { mIcon = icon; }
    void setEnabled(bool /*isEnabled*/) override {}
    std::intptr_t handle() const override { return 0; }
    std::intptr_t handle(const forms::Control& /*control*/) const override { return 0; }
    void show(std::intptr_t owner) override { mOwner = owner; }
    void reveal(const forms::Control* /*focus*/) override { mIsRevealed = true; }
    void hide() override { mIsRevealed = false; }
    bool isRevealed() const override { return mIsRevealed; }
    bool setFocus(const forms::Control& /*control*/) override { return false; }
    bool setFocus() override { return false; }
    forms::Selection selection(const forms::Control& control) const override {
        const auto found = mSelections.find(&control);
        return found != mSelections.end() ? found->second : forms::Selection();
    }
    void setSelection(const forms::Control& control, const forms::Selection& selection) override {
        mSelections[&control] = selection;
    }
    Text plainText(const forms::Control& /*control*/) const override { return {}; }
    std::intptr_t sendAndKeepCursor(const forms::Control& /*control*/, forms::EditMessage /*message*/) override {
        return 0;
    }
    bool clipboardHolds(forms::ClipboardFormat /*format*/) const override { return false; }
    void showMessage(TextView /*caption*/, TextView /*text*/) override {}

    std::intptr_t owner() const { return mOwner; }
    std::intptr_t icon() const { return mIcon; }

private:
    forms::Rectangle mPlace;
    std::intptr_t mOwner = 0;
    std::intptr_t mIcon = 0;
    bool mIsRevealed = false;
    std::map<const forms::Control*, forms::Selection> mSelections;
};

}  // namespace quorvel::host

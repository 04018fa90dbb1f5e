#include "forms/control.h"

#include <algorithm>

namespace quorvel::forms {

namespace {

std::uint32_t usualColor(ControlKind kind) {
    const bool isBox = kind == ControlKind::TextBox || kind == ControlKind::RichText || kind == ControlKind::ListBox ||
                       kind == ControlKind::ComboBox;
    return isBox ? kWindowText : kButtonText;
}

}  // namespace

Control::Control(const ControlRow& row, ControlOwner& owner)
    : mRow(row),
      mOwner(owner),
      mCaption(row.caption),
      mTag(row.tag),
      mToolTip(row.toolTip),
      mForeColor(usualColor(row.kind)),
      mIsVisible(!row.isHidden) {}

template <class T, class U>
bool Control::change(T& member, const U& value, Aspect aspect) {
    if (member == value) {
        return false;
    }
    member = value;
    aspectChanged(aspect);
    return true;
}

void Control::setCaption(TextView caption) {
    change(mCaption, caption, Aspect::Caption);
}

void Control::setToolTip(TextView text) {
    change(mToolTip, text, Aspect::ToolTip);
}

void Control::setForeColor(std::uint32_t color) {
    change(mForeColor, color, Aspect::ForeColor);
}

void Control::setEnabled(bool isEnabled) {
    change(mIsEnabled, isEnabled, Aspect::Enabled);
}

void Control::setVisible(bool isVisible) {
    change(mIsVisible, isVisible, Aspect::Visible);
}

void Control::setShown(bool isShown) {
    change(mIsShown, isShown, Aspect::Visible);
}

void Control::setPlace(const Rectangle& place) {
    change(mPlace, place, Aspect::Place);
}

void Control::setTopBelow(const Control* other, Twips distance) {
    if (other != mAbove || distance != mBelowIt) {
        mAbove = other;
        mBelowIt = distance;
        aspectChanged(Aspect::Place);
    }
}

std::optional<Twips> Control::fixedTop() const {
    return mAbove != nullptr ? std::optional(mAbove->place().top + mBelowIt) : std::nullopt;
}

Text Control::text() const {
    return kind() == ControlKind::RichText && !mRtf.empty() ? mOwner.plainText(*this) : mText;
}

void Control::setText(TextView text) {
    const bool hadDocument = !mRtf.empty();
    mRtf.clear();
    if (change(mText, text, Aspect::Text) || hadDocument) {
        if (hadDocument) {
            aspectChanged(Aspect::Text);
        }
        mOwner.textChanged(*this);
    }
}

void Control::setRtf(TextView rtf) {
    if (change(mRtf, rtf, Aspect::Text)) {
        mOwner.textChanged(*this);
    }
}

void Control::userTyped(TextView text) {
    mRtf.clear();
    mText = text;
    mListIndex = -1;
    mOwner.textChanged(*this);
}

void Control::userSelected(std::int32_t index) {
    mListIndex = index;
    if (index >= 0 && static_cast<std::size_t>(index) < mItems.size()) {
        mText = mItems[static_cast<std::size_t>(index)];
    }
    mOwner.textChanged(*this);
}

void Control::setValue(bool value) {
    if (change(mValue, value, Aspect::Value)) {
        mOwner.clicked(*this);
    }
}

void Control::deselect() {
    change(mValue, false, Aspect::Value);
}

void Control::click() {
    if (!mIsEnabled || !mIsShown) {
        return;
    }
    switch (kind()) {
        case ControlKind::OptionButton: setValue(true); break;
        case ControlKind::CheckBox: setValue(!mValue); break;
        case ControlKind::Button: mOwner.clicked(*this); break;
        default: break;
    }
}

void Control::setItems(std::vector<Text> items) {
    if (items != mItems) {
        mItems = std::move(items);
        mListIndex = -1;
        aspectChanged(Aspect::Items);
    }
}

void Control::addItem(TextView item) {
    mItems.emplace_back(item);
    aspectChanged(Aspect::Items);
}

void Control::removeItem(std::size_t index) {
    mItems.erase(mItems.begin() + static_cast<std::ptrdiff_t>(index));
    mListIndex = -1;
    aspectChanged(Aspect::Items);
}

void Control::setListIndex(std::int32_t index) {
    const auto last = static_cast<std::int32_t>(mItems.size()) - 1;
    const std::int32_t chosen = std::clamp(index, -1, last);
    if (chosen != mListIndex) {
        mListIndex = chosen;
        if (chosen >= 0) {
            mText = mItems[static_cast<std::size_t>(chosen)];
        } else if (kind() == ControlKind::ListBox) {
            mText.clear();
        }
        aspectChanged(Aspect::Items);
        mOwner.textChanged(*this);
    }
}

}  // namespace quorvel::forms

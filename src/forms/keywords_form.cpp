#include "forms/keywords_form.h"

#include <algorithm>

#include "core/procedure.h"

namespace quorvel::forms {

namespace {

constexpr ControlName kLabel = u"Label";
constexpr ControlName kTextbox = u"Textbox";
constexpr ControlName kAddButton = u"AddKeywordButton";
constexpr ControlName kUniqueLabel = u"UniqueLabel";
constexpr ControlName kSearchableLabel = u"SearchableLabel";
constexpr ControlName kKeywordList = u"KeywordList";
constexpr ControlName kRemoveButton = u"RemoveKeywordButton";

constexpr ControlRow kControls[] = {
    label(kLabel, u"", {1, 0, kContentWidth, 17}),
    label(u"NewKeywordLabel", u"&New keyword:", {2, 0, kContentWidth}),
    textBox(kTextbox, {3, 0, 172}).hint(u"A word in small letters, or several with commas between them."),
    button(kAddButton, u"&Add", {3, 176, 50}),
    label(kUniqueLabel, u"It is not in the list yet.", {4, 0, 110}),
    label(kSearchableLabel, u"It can be searched for.", {4, 116, 110}),
    label(u"KeywordListLabel", u"&Keywords:", {5, 0, kContentWidth}),
    listBox(kKeywordList, {6, 0, 172}),
    button(kRemoveButton, u"&Remove", {6, 176, 50}),
};
constexpr FormDesign kDesign = {
    .className = u"KeywordsForm",
    .title = u"Keywords",
    .controls = kControls,
    .aliases = {},
    .firstBox = kTextbox,
    .hasPreview = false,
};

constexpr TextView kOthersAreAdded = u" will add the author and title keywords for you.";

/// The second argument of the element's `Parse` for a list whose order is the user's.
constexpr TextView kKeepOrder = u"KEEP_ORDER";

std::size_t wordCount(TextView text) {
    const std::vector<Text> words = split(replaceAll(cleanUp(text), u",", u" "), u" ");
    return words.size() - static_cast<std::size_t>(std::count(words.begin(), words.end(), Text()));
}

}  // namespace

KeywordsForm::KeywordsForm() : Form(kDesign) {}

void KeywordsForm::initialize() {
    control(kLabel).setCaption(concatenate({productName(), kOthersAreAdded}));
}

void KeywordsForm::fill(TextView parentText, TextView /*secondaryText*/) {
    mWordSet.clear();
    control(kKeywordList).setItems({});
    control(kTextbox).setText({});
    addItems(wordsToList(parentText));
    refreshHints();
}

void KeywordsForm::collect(bool /*isModelPreview*/) {
    element().call(u"Parse", {Value(join(control(kKeywordList).items(), u",")), Value(kKeepOrder)});
}

std::pair<Text, Text> KeywordsForm::result() {
    // With a blank behind the comma, where the element has none, deliberately.
    return {join(control(kKeywordList).items(), u", "), Text()};
}

// --- Words

/// What the element accepts of a text.
std::vector<Text> KeywordsForm::keywordsOf(TextView text) {
    element().call(u"Parse", {Value(text), Value(kKeepOrder)});
    const Text keywords = written(false, false);
    return keywords.empty() ? std::vector<Text>() : split(keywords, u",");
}

/// The words that a text gives: those that the element accepts. Where it would refuse one, each entry between commas of
/// which that is true stays as it stands, so that nothing is lost.
std::vector<Text> KeywordsForm::wordsToList(TextView text) {
    std::vector<Text> accepted = keywordsOf(text);
    if (wordCount(join(accepted, u",")) == wordCount(text)) {
        return accepted;
    }
    const std::vector<Text> entries = split(text, u",");
    if (entries.size() == 1) {
        return {cleanUp(text)};
    }
    std::vector<Text> words;
    for (const Text& entry : entries) {
        for (Text& word : wordsToList(entry)) {
            words.push_back(std::move(word));
        }
    }
    return words;
}

void KeywordsForm::addItems(const std::vector<Text>& words) {
    for (const Text& word : words) {
        AddItem(word);
    }
}

void KeywordsForm::AddItem(TextView word) {
    procedure(*this, u"AddItem", {{u"word", word}}, [&] {
        if (mWordSet.emplace(word).second) {
            control(kKeywordList).addItem(word);
        }
    });
}

void KeywordsForm::HighlightWordInKeywordList(TextView word) {
    procedure(*this, u"HighlightWordInKeywordList", {{u"word", word}}, [&] {
        Control& list = control(kKeywordList);
        const auto found = std::find(list.items().begin(), list.items().end(), word);
        list.setListIndex(found != list.items().end() ? static_cast<std::int32_t>(found - list.items().begin()) : -1);
    });
}

// --- The box and its hints

Text KeywordsForm::entered() {
    return cleanUp(control(kTextbox).text());
}

void KeywordsForm::boxChanged(Control& box) {
    if (box.is(kTextbox)) {
        refreshHints();
    } else {
        enableRemoving();
    }
}

void KeywordsForm::enableRemoving() {
    control(kRemoveButton).setEnabled(control(kKeywordList).listIndex() >= 0);
}

void KeywordsForm::refreshHints() {
    const Text text = entered();
    if (text.empty()) {
        TextBox_ChangeImpl(false, false, false);
    } else {
        const bool isSearchable = !keywordsOf(text).empty();
        const std::vector<Text> words = wordsToList(text);
        const bool isUnique =
            std::any_of(words.begin(), words.end(), [&](const Text& word) { return !mWordSet.contains(word); });
        TextBox_ChangeImpl(isUnique && isSearchable, isUnique, isSearchable);
        HighlightWordInKeywordList(words.empty() || isUnique ? TextView() : TextView(words.front()));
    }
    enableRemoving();
}

void KeywordsForm::TextBox_ChangeImpl(bool enableKeywordButton, bool highlightUnique, bool highlightSearchable) {
    procedure(*this, u"TextBox_ChangeImpl",
              {{u"enableKeywordButton", enableKeywordButton},
               {u"highlightUnique", highlightUnique},
               {u"highlightSearchable", highlightSearchable}},
              [&] {
                  control(kAddButton).setEnabled(enableKeywordButton);
                  highlight(control(kUniqueLabel), highlightUnique);
                  highlight(control(kSearchableLabel), highlightSearchable);
              });
}

void KeywordsForm::highlight(Control& label, bool isHighlighted) {
    procedure(*this, u"highlight[Let]", {{u"Label", label.name()}, {u"isHighlighted", isHighlighted}},
              [&] { label.setForeColor(isHighlighted ? kRed : kButtonText); });
}

// --- The buttons

void KeywordsForm::buttonClicked(Control& button) {
    if (button.is(kAddButton)) {
        AddKeywordButton_Click();
        focusBox();
    } else if (button.is(kRemoveButton)) {
        RemoveKeywordButton_Click();
        if (!button.isEnabled()) {
            focusBox();
        }
    } else if (button.is(u"OkButton")) {
        OkButton_Click();
    } else {
        CancelButton_Click();
    }
}

/// A button that was pressed and is disabled now cannot keep the focus.
void KeywordsForm::focusBox() {
    if (!isClosed()) {
        view().setFocus(control(kTextbox));
    }
}

bool KeywordsForm::enterPressed(Control* /*focus*/) {
    const bool isAdding = !entered().empty();
    if (isAdding) {
        AddKeywordButton_Click();
    }
    return isAdding;
}

void KeywordsForm::AddKeywordButton_Click() {
    procedure(*this, u"AddKeywordButton_Click", kNoParameters, [&] {
        const std::vector<Text> words = wordsToList(entered());
        addItems(words);
        control(kTextbox).setText({});
        if (!words.empty()) {
            HighlightWordInKeywordList(words.back());
        }
    });
}

void KeywordsForm::RemoveKeywordButton_Click() {
    procedure(*this, u"RemoveKeywordButton_Click", kNoParameters, [&] {
        Control& list = control(kKeywordList);
        const std::int32_t index = list.listIndex();
        if (index >= 0) {
            mWordSet.erase(list.items().at(static_cast<std::size_t>(index)));
            list.removeItem(static_cast<std::size_t>(index));
            list.setListIndex(index);
        }
        refreshHints();
    });
}

void KeywordsForm::OkButton_Click() {
    procedure(*this, u"OkButton_Click", kNoParameters, [&] {
        // A keyword that still stands in the box is not lost.
        AddKeywordButton_Click();
        accept();
    });
}

void KeywordsForm::CancelButton_Click() {
    procedure(*this, u"CancelButton_Click", kNoParameters, [&] { Unload(); });
}

void KeywordsForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mCallback", callback());
    report.vbwReportVariable(u"mWordSet", HostObjectRef());
    report.vbwReportVariable(u"mDefaultOutputTemplate", element().object());
}

}  // namespace quorvel::forms

#pragma once

#include <unordered_set>
#include <vector>

#include "forms/form.h"

namespace quorvel::forms {

/// Edits the keywords of a reference (element type code 14): a list of them, and a box for a new one.
class KeywordsForm final : public Form {
public:
    KeywordsForm();

    /// Lists a word behind the others, unless it is listed already.
    void AddItem(TextView word);
    /// Selects a word in the list when it is there; otherwise nothing is selected.
    void HighlightWordInKeywordList(TextView word);

    TextView className() const override { return u"KeywordsForm"; }
    void dumpVariables(VBWPROTECTOR& report) const override;

private:
    void initialize() override;
    void fill(TextView parentText, TextView secondaryText) override;
    void collect(bool isModelPreview) override;
    std::pair<Text, Text> result() override;
    void boxChanged(Control& box) override;
    void buttonClicked(Control& button) override;
    bool enterPressed(Control* focus) override;

    void AddKeywordButton_Click();
    void RemoveKeywordButton_Click();
    void OkButton_Click();
    void CancelButton_Click();
    void TextBox_ChangeImpl(bool enableKeywordButton, bool highlightUnique, bool highlightSearchable);
    void highlight(Control& label, bool isHighlighted);

    std::vector<Text> keywordsOf(TextView text);
    std::vector<Text> wordsToList(TextView text);
    void addItems(const std::vector<Text>& words);
    void refreshHints();
    void enableRemoving();
    void focusBox();
    Text entered();

    /// The words of the list, compared as the element does.
    std::unordered_set<Text> mWordSet;
};

}  // namespace quorvel::forms

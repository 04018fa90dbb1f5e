#include "forms/title_form.h"

#include <algorithm>

#include "core/procedure.h"
#include "forms/bindings.h"
#include "forms/common_ui_functions.h"
#include "forms/title_letters.h"

namespace quorvel::forms {

namespace {

constexpr TextView kOptions = u"OptionButton";
constexpr ControlName kTitle = u"Title";
constexpr ControlName kRulesFrame = u"RulesFrame";
constexpr ControlName kRuleLabel = u"RuleLabel";
constexpr ControlName kTypesFrame = u"TypesFrame";

constexpr ControlRow type(std::int16_t index) {
    return option({kOptions, index}, u"",
                  {static_cast<std::int16_t>(1 + index / 2), static_cast<std::int16_t>(index % 2 == 0 ? 0 : 113), 108})
        .in(u"TypesFrame");
}

// The captions of the types are the element's.
constexpr ControlRow kControls[] = {
    label(u"TitleLabel", u"&Title:", {1, 0, kContentWidth}),
    richText(kTitle, {2, 0, kContentWidth, 36})
        .hint(u"The title, a subtitle behind a colon, and a translation in square brackets."),
    frame(kRulesFrame, u"Capitalization", {3, 0, kContentWidth}),
    label(u"HighlightLabel", u"The highlighted words have been changed.", {1, 7, 212}).in(u"RulesFrame"),
    label(kRuleLabel, u"", {2, 7, 212, 64}).in(u"RulesFrame"),
    label(u"TitleRefersLabel", u"It is the title of:", {4, 0, kContentWidth}),
    frame(kTypesFrame, u"", {5, 0, kContentWidth}),
    type(0),
    type(1),
    type(2),
    type(3),
    type(4),
    type(5),
    type(6),
    type(7),
    type(8),
    type(9),
    type(10),
    type(11),
    type(12),
    type(13),
    type(14),
    type(15),
    type(16),
    type(17),
    type(18),
    type(19),
};
constexpr FormDesign kDesign = {
    .className = u"TitleForm",
    .title = u"Title",
    .controls = kControls,
    .aliases = {},
    .firstBox = kTitle,
    .rtfParameter = 2,
};

constexpr TextView kCorrected =
    u" has corrected your title according to the following rule. Click OK when you are satisfied with your title.";
/// The option of a title without a type.
constexpr TextView kPlainCaption = u"None of these";

// A document of its own: it has colours, black on yellow.
constexpr TextView kDocumentBegins =
    u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Tahoma;}}"
    u"{\\colortbl ;\\red255\\green255\\blue0;\\red0\\green0\\blue0;}\\viewkind4\\uc1\\pard\\lang4105\\f0\\fs17 ";
constexpr TextView kHighlightBegins = u"\\highlight1\\cf2 ";
constexpr TextView kHighlightEnds = u"\\highlight0\\cf0 ";

// The element's values.
constexpr std::int32_t kMainTitle = 0;
constexpr std::int32_t kSubtitle = 1;
constexpr std::int32_t kTranslation = 2;

constexpr TextView kColon = u": ";
constexpr TextView kTranslationBegins = u" [";

/// A title as it stands in the box, in its parts.
struct Parts {
    /// With its subtitle.
    TextView whole;
    TextView title;
    TextView subtitle;
    TextView translation;
};

Parts partsOf(TextView text) {
    Parts parts;
    parts.whole = text;
    const std::size_t open = text.rfind(kTranslationBegins);
    if (text.ends_with(u']') && open != TextView::npos) {
        const std::size_t begin = open + kTranslationBegins.size();
        parts.whole = text.substr(0, open);
        parts.translation = text.substr(begin, text.size() - 1 - begin);
    }
    parts.title = before(parts.whole, kColon);
    if (parts.title.size() < parts.whole.size()) {
        parts.subtitle = parts.whole.substr(parts.title.size() + kColon.size());
    }
    return parts;
}

Text joined(const Text& title, const Text& subtitle, const Text& translation) {
    const bool endsInMark = title.ends_with(u'?') || title.ends_with(u'!');
    const TextView joint = title.empty() || subtitle.empty() ? TextView() : endsInMark ? TextView(u" ") : kColon;
    const Text whole = concatenate({title, joint, subtitle});
    return translation.empty() ? whole : concatenate({whole, kTranslationBegins, translation, u"]"});
}

Text documentOf(const CorrectedTitle& title) {
    Text document(kDocumentBegins);
    std::size_t done = 0;
    for (const TitleWord& word : title.words) {
        if (word.isCorrected) {
            const TextView text = title.text;
            document += CommonUIFunctions::escaped(text.substr(done, word.begin - done));
            document += kHighlightBegins;
            document += CommonUIFunctions::escaped(text.substr(word.begin, word.end - word.begin));
            document += kHighlightEnds;
            done = word.end;
        }
    }
    return concatenate({document, CommonUIFunctions::escaped(TextView(title.text).substr(done)), u"}"});
}

}  // namespace

TitleForm::TitleForm() : Form(kDesign) {}

void TitleForm::fill(TextView parentText, TextView secondaryText) {
    element().call(u"Parse", {Value(parentText), Value(secondaryText)});
    mReadType = element().text(u"TitleType");
    // Forgets what the user did to the title before.
    mShown = {};
    mDocument.clear();
    fillTypes();
    const Text read = joined(element().text(u"value", kMainTitle), element().text(u"value", kSubtitle),
                             element().text(u"value", kTranslation));
    control(kTitle).setText(read);
    for (const ControlName& part : {ControlName(u"TitleLabel"), kTitle}) {
        control(part).setVisible(uses(u"UsesTitle"));
    }
    showTitle(correctedTitle());
}

void TitleForm::fillTypes() {
    mTypes = element().texts(u"TitleSubtypes");
    const bool isShown = !mTypes.empty() && uses(u"UsesTitleType");
    // The one that was read has an option in any case, and so has none.
    for (const TextView type : {TextView(mReadType), TextView()}) {
        if (std::find(mTypes.begin(), mTypes.end(), type) == mTypes.end()) {
            mTypes.emplace_back(type);
        }
    }
    std::vector<Text> captions;
    for (const Text& type : mTypes) {
        captions.push_back(type.empty() ? Text(kPlainCaption)
                                        : element().call(u"TitleTypeToCaption", {Value(type)}).asText());
    }
    const auto read = std::find(mTypes.begin(), mTypes.end(), mReadType);
    showOptions(*this, kOptions, captions, static_cast<std::size_t>(read - mTypes.begin()));
    control(kTypesFrame).setVisible(isShown);
    control(u"TitleRefersLabel").setVisible(isShown);
}

bool TitleForm::uses(const char16_t* member) {
    const std::optional<Value> answer = element().ifAny(member);
    return !answer || answer->asFlag();
}

TextView TitleForm::titleType() {
    const auto selected = static_cast<std::size_t>(selectedOption(*this, kOptions));
    return selected < mTypes.size() ? mTypes[selected] : mReadType;
}

Text TitleForm::typedTitle() {
    const Control& box = control(kTitle);
    // What the form shows it knows, even if there is no window that shows it.
    return box.rtf().empty() || box.rtf() != mDocument ? box.text() : mShown.text;
}

CorrectedTitle TitleForm::correctedTitle() {
    const Text typed = cleanUp(typedTitle());
    if (typed == mShown.text) {
        return mShown;
    }
    const Parts parts = partsOf(typed);
    const Text ruled = element().call(u"formatRule", {Value(parts.whole)}).asText();
    return correct(mShown, typed, concatenate({ruled, TextView(typed).substr(parts.whole.size())}));
}

void TitleForm::showTitle(CorrectedTitle title) {
    procedure(*this, u"showTitle", {{u"title", title.text}}, [&] {
        // Where nothing is to be seen or to be taken away, the box stays as it is, with what can be undone in it.
        const bool isHighlighted = title.isCorrected() || mShown.isCorrected();
        const bool isThere = !isHighlighted && typedTitle() == title.text;
        mShown = std::move(title);
        if (!isThere) {
            mDocument = documentOf(mShown);
            control(kTitle).setRtf(mDocument);
        }
        showRule();
    });
}

void TitleForm::showRule() {
    procedure(*this, u"showRule", kNoParameters, [&] {
        control(kRulesFrame).setVisible(mShown.isCorrected());
        if (mShown.isCorrected()) {
            // It depends on the type.
            element().put(u"TitleType", titleType());
            const Text rule = concatenate({productName(), kCorrected, u"\n", element().text(u"CapitalizationRule")});
            control(kRuleLabel).setCaption(replaceAll(rule, u"&", u"&&"));
        }
    });
}

void TitleForm::boxLeft(Control& box) {
    if (box.is(kTitle)) {
        showTitle(correctedTitle());
    }
}

void TitleForm::choiceClicked(Control& /*control*/) {
    showRule();
}

void TitleForm::collect(bool /*isModelPreview*/) {
    const Text title = correctedTitle().text;
    const Parts parts = partsOf(title);
    element().put(u"value", {Value(kMainTitle), Value(parts.title)});
    element().put(u"value", {Value(kSubtitle), Value(parts.subtitle)});
    element().put(u"value", {Value(kTranslation), Value(parts.translation)});
    element().put(u"TitleType", titleType());
    mWritten = parts.whole;
}

/// The element writes every title by the rule: the user's words get their letters back.
Text TitleForm::written(bool isFootnote, bool isRTF) {
    const Text written = Form::written(isFootnote, isRTF);
    return withLettersOf(written, mWritten);
}

std::pair<Text, Text> TitleForm::result() {
    return {toString(), Text(titleType())};
}

}  // namespace quorvel::forms

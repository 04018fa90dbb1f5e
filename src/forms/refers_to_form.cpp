#include "forms/refers_to_form.h"

#include <algorithm>

#include "core/common_model_processing_functions.h"
#include "core/procedure.h"
#include "forms/bindings.h"
#include "forms/common_form_processing_functions.h"

namespace quorvel::forms {

namespace {

using CommonFormProcessingFunctions::isNumeric;

constexpr TextView kOptions = u"OptionButton";
constexpr TextView kBoxes = u"Textbox";
constexpr TextView kLabels = u"Label";
constexpr TextView kSeriesOptions = u"SeriesOptionButton";
constexpr ControlName kSeriesFrame = u"SeriesFrame";
constexpr ControlName kNumSeries = u"NumSeries";

constexpr std::int16_t kValues = 8;
constexpr std::int16_t kNumbered = 0;

constexpr std::uint8_t kKindGroup = 0;
constexpr std::uint8_t kSeriesGroup = 1;

constexpr ControlRow kind(std::int16_t index) {
    return option({kOptions, index}, u"",
                  {static_cast<std::int16_t>(1 + index / 2), static_cast<std::int16_t>(index % 2 == 0 ? 7 : 113), 104})
        .in(u"KindFrame")
        .grouped(kKindGroup);
}
constexpr ControlRow valueLabel(std::int16_t index) {
    return label({kLabels, index}, u"", {static_cast<std::int16_t>(2 + index), 0, 78}).hidden();
}
constexpr ControlRow valueBox(std::int16_t index) {
    return textBox({kBoxes, index}, {static_cast<std::int16_t>(2 + index), 80, 146}).hidden();
}

// The captions of kinds and values are the element's. A style offers seven kinds at most, and a text may be of another.
constexpr ControlRow kControls[] = {
    frame(u"KindFrame", u"The statement is a", {1, 0, kContentWidth}),
    kind(0),
    kind(1),
    kind(2),
    kind(3),
    kind(4),
    kind(5),
    kind(6),
    kind(7),
    kind(8),
    kind(9),
    valueLabel(0),
    valueBox(0),
    valueLabel(1),
    valueBox(1),
    valueLabel(2),
    valueBox(2),
    valueLabel(3),
    valueBox(3),
    valueLabel(4),
    valueBox(4),
    valueLabel(5),
    valueBox(5),
    valueLabel(6),
    valueBox(6),
    valueLabel(7),
    valueBox(7),
    frame(kSeriesFrame, u"Series", {10, 0, kContentWidth}),
    option({kSeriesOptions, 0}, u"&Numbered:", {1, 7, 56}).in(u"SeriesFrame").grouped(kSeriesGroup),
    textBox(kNumSeries, {1, 65, 46})
        .in(u"SeriesFrame")
        .spoken(u"Number of the series")
        .hint(u"The number of the series, such as 3 for the third."),
    upDown(u"UpDown", u"NumSeries").in(u"SeriesFrame"),
    option({kSeriesOptions, 1}, u"Ne&w series", {2, 7, 104}).in(u"SeriesFrame").grouped(kSeriesGroup),
    option({kSeriesOptions, 2}, u"&Old series", {2, 113, 104}).in(u"SeriesFrame").grouped(kSeriesGroup),
};
constexpr ControlAlias kAliases[] = {
    {u"NumberedOption", kNoIndex, kNoIndex, kSeriesOptions, 0},
    {u"NewOption", kNoIndex, kNoIndex, kSeriesOptions, 1},
};
constexpr FormDesign kDesign = {
    .className = u"RefersToForm",
    .title = u"Refers to",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = {kBoxes, 0},
    .rtfParameter = 2,
};

constexpr TextView kSeriesValues[] = {u"", u"n.s.", u"o.s."};
constexpr TextView kSeries = u"Series";

/// Of these the element leaves what stands round them to other elements.
constexpr TextView kPartsOfTexts[] = {u"Reprint", u"Serial article"};

/// The name of a value: two values of a kind may have the same caption.
Text nameOf(const std::vector<Text>& captions, std::size_t index) {
    const auto before = captions.begin() + static_cast<std::ptrdiff_t>(index);
    const auto same = static_cast<std::int32_t>(std::count(captions.begin(), before, captions.at(index)));
    return concatenate({captions.at(index), u",", Value(same).asText()});
}

bool hasAny(const std::vector<Text>& texts) {
    return std::any_of(texts.begin(), texts.end(), [](const Text& text) { return !text.empty(); });
}

}  // namespace

RefersToForm::RefersToForm() : Form(kDesign) {}

void RefersToForm::initialize() {
    mUIToSeriesMap.assign(std::begin(kSeriesValues), std::end(kSeriesValues));
}

void RefersToForm::fill(TextView parentText, TextView secondaryText) {
    const Text rest = element().callWithRest(u"Parse", parentText, Text(secondaryText));
    mSurroundings = surroundingsOf(parentText, rest);
    readKinds(secondaryText);
    readStatement();
    const Kind& read = mKinds.at(mReadKind);
    fillSeries(read.caption == kSeries ? TextView(mReadValues.front()) : TextView());
    if (isOneOf(read.caption, kPartsOfTexts)) {
        const Text written = element().call(u"toString", {Value(false)}).asText();
        if (const std::size_t at = parentText.find(written); !written.empty() && at != TextView::npos) {
            mSurroundings = {Text(parentText.substr(0, at)), Text(parentText.substr(at + written.size()))};
        }
    }
    std::vector<Text> captions;
    for (const Kind& kind : mKinds) {
        captions.push_back(kind.caption);
    }
    mShownKind = mReadKind;
    showOptions(*this, kOptions, captions, mReadKind);
    showKind(mReadKind);
}

void RefersToForm::readKinds(TextView secondaryText) {
    mKinds.clear();
    for (const Text& caption : element().call(u"supportedTypes", {Value(secondaryText)}).asTexts()) {
        std::vector<Text> row = split(element().text(u"settings", static_cast<std::int32_t>(mKinds.size())), u",");
        row.erase(row.begin());
        row.resize(kValues);
        mKinds.push_back({caption, std::move(row)});
    }
}

/// The kind and the values that the element read. A kind that the style does not offer comes behind those that it does.
void RefersToForm::readStatement() {
    mReadType = element().text(u"RefersToType");
    const Text caption = element().call(u"TitleTypeToCaption", {Value(mReadType)}).asText();
    const auto found =
        std::find_if(mKinds.begin(), mKinds.end(), [&](const Kind& kind) { return kind.caption == caption; });
    mReadKind = static_cast<std::size_t>(found - mKinds.begin());
    if (found == mKinds.end()) {
        mKinds.push_back({caption, std::vector<Text>(kValues)});
    }
    mReadValues.clear();
    mTexts.clear();
    const std::vector<Text>& captions = mKinds.at(mReadKind).captions;
    for (std::size_t i = 0; i < kValues; ++i) {
        mReadValues.push_back(element().text(u"value", static_cast<std::int32_t>(i)));
        mTexts[nameOf(captions, i)] = mReadValues.back();
    }
}

void RefersToForm::showKind(std::size_t kind) {
    procedure(*this, u"showKind", {{u"kind", static_cast<std::int32_t>(kind)}}, [&] {
        mShownKind = kind;
        const std::vector<Text>& captions = mKinds.at(kind).captions;
        for (std::int16_t i = 0; i < kValues; ++i) {
            const Text& caption = captions.at(static_cast<std::size_t>(i));
            Control& label = control({kLabels, i});
            label.setCaption(caption);
            label.setVisible(!caption.empty());
            Control& box = control({kBoxes, i});
            box.setVisible(!caption.empty());
            const auto text = mTexts.find(nameOf(captions, static_cast<std::size_t>(i)));
            box.setText(!caption.empty() && text != mTexts.end() ? TextView(text->second) : TextView());
        }
        control(kSeriesFrame).setVisible(mKinds.at(kind).caption == kSeries);
    });
}

void RefersToForm::keepTexts() {
    const std::vector<Text>& captions = mKinds.at(mShownKind).captions;
    for (std::int16_t i = 0; i < kValues; ++i) {
        mTexts[nameOf(captions, static_cast<std::size_t>(i))] = control({kBoxes, i}).text();
    }
}

void RefersToForm::fillSeries(TextView value) {
    const auto marker = std::find(mUIToSeriesMap.begin() + 1, mUIToSeriesMap.end(), value);
    const bool isMarker = marker != mUIToSeriesMap.end();
    const Text number = CommonModelProcessingFunctions::strToSpinNum(value);
    mLastNumber = isMarker ? TextView() : number.empty() ? value : TextView(number);
    control(kNumSeries).setText(mLastNumber);
    const std::int16_t option = isMarker ? static_cast<std::int16_t>(marker - mUIToSeriesMap.begin()) : kNumbered;
    control({kSeriesOptions, option}).setValue(true);
}

Text RefersToForm::seriesValue() {
    const std::int16_t selected = selectedOption(*this, kSeriesOptions);
    if (selected > kNumbered) {
        return mUIToSeriesMap.at(static_cast<std::size_t>(selected));
    }
    const Text number(trim(control(kNumSeries).text()));
    return isNumeric(number) ? CommonModelProcessingFunctions::spinNumToStr(number) : number;
}

std::size_t RefersToForm::selectedKind() {
    return static_cast<std::size_t>(selectedOption(*this, kOptions));
}

std::vector<Text> RefersToForm::valuesOf(std::size_t kind) {
    // What a kind without boxes was read with stays with it.
    std::vector<Text> values = kind == mReadKind ? mReadValues : std::vector<Text>(kValues);
    if (mKinds.at(kind).caption == kSeries) {
        values.front() = seriesValue();
    } else if (hasAny(mKinds.at(kind).captions)) {
        for (std::int16_t i = 0; i < kValues; ++i) {
            values.at(static_cast<std::size_t>(i)) = control({kBoxes, i}).text();
        }
    }
    return values;
}

void RefersToForm::collect(bool /*isModelPreview*/) {
    const std::size_t kind = selectedKind();
    if (kind >= mKinds.size()) {
        return;
    }
    element().put(u"RefersToType", kind == mReadKind ? mReadType : mKinds.at(kind).caption);
    std::int32_t index = 0;
    for (const Text& value : valuesOf(kind)) {
        element().put(u"value", {Value(index++), Value(value)});
    }
}

/// Whether what was read is of a kind that has no boxes here: the style may write nothing of it, or in other letters.
bool RefersToForm::isWithoutBoxes() {
    const Kind& read = mKinds.at(mReadKind);
    return read.caption != kSeries && !hasAny(read.captions);
}

std::pair<Text, Text> RefersToForm::result() {
    Text text = toString();
    if (selectedKind() == mReadKind) {
        text = isWithoutBoxes() ? parentText() : mSurroundings.around(text);
    }
    return {text, element().text(u"RefersToType")};
}

void RefersToForm::choiceClicked(Control& control) {
    const bool isOther = control.name() == kOptions && control.value() && selectedKind() != mShownKind;
    if (isOther && selectedKind() < mKinds.size()) {
        keepTexts();
        showKind(selectedKind());
    }
}

void RefersToForm::boxChanged(Control& box) {
    if (box.is(kNumSeries)) {
        control({kSeriesOptions, kNumbered}).setValue(true);
        // A series that came with a name may have it changed freely.
        if (mLastNumber.empty() || isNumeric(mLastNumber)) {
            CommonFormProcessingFunctions::validateSpinChange(box, mLastNumber, 1);
        }
    }
}

void RefersToForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mUIToSeriesMap", mUIToSeriesMap);
    dumpProtocol(report);
}

}  // namespace quorvel::forms

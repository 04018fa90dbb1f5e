#include "forms/multipart_work_form.h"

#include <algorithm>

#include "core/procedure.h"
#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr TextView kKinds = u"SeriesTypeOption";
constexpr TextView kBoxes = u"Textbox";
constexpr TextView kLabels = u"Label";
constexpr TextView kArrows = u"UpDown";
constexpr TextView kSeriesTypes = u"OptionButton";
constexpr ControlName kIsGeneralEditor = u"CheckBox";
constexpr ControlName kSeriesTypeFrame = u"SeriesTypeFrame";

constexpr std::int16_t kSeries = 0;
constexpr std::int16_t kMultiVol = 1;

// The rows, by the indexes that the element's options have.
enum Row : std::int16_t { kTitle, kEditor, kVolume, kNumber, kVols, kYear, kRows };
/// What a series has of them.
constexpr std::int16_t kRowsOfSeries = kVols;

/// The options of old and new series.
constexpr std::int16_t kOtherSeries = 0;
constexpr std::int16_t kOldSeries = 1;
constexpr std::int16_t kNewSeries = 2;

constexpr TextView kOneVolume = u"The volume, such as 3, or the number in the series.";
constexpr TextView kSeveralVolumes = u"The volume, or several such as 2-4, or the number in the series.";

constexpr std::uint8_t kKindGroup = 0;
constexpr std::uint8_t kSeriesTypeGroup = 1;

constexpr ControlRow rowLabel(Row row, TextView caption, std::int16_t line, std::int16_t x) {
    return label({kLabels, row}, caption, {line, x, 44});
}
constexpr ControlRow rowBox(Row row, std::int16_t line, std::int16_t x, std::int16_t width) {
    return textBox({kBoxes, row}, {line, x, width});
}

// The long captions take two lines.
constexpr ControlRow kControls[] = {
    frame(u"WorkIsAPartOfFrame", u"The work is part of a", {1, 0, kContentWidth}),
    option({kKinds, kSeries}, u"Series (citation emphasis is on the specific book in the series)", {1, 7, 212, 18})
        .in(u"WorkIsAPartOfFrame")
        .grouped(kKindGroup)
        .multiLine(),
    option({kKinds, kMultiVol}, u"Multi-volume work (citation emphasis is on the larger multi-vol. work)",
           {2, 7, 212, 18})
        .in(u"WorkIsAPartOfFrame")
        .grouped(kKindGroup)
        .multiLine(),
    frame(u"TitleFrame", u"", {2, 0, kContentWidth}),
    rowLabel(kTitle, u"&Title:", 1, 0).in(u"TitleFrame"),
    rowBox(kTitle, 1, 46, 180).in(u"TitleFrame").hint(u"The title of the series or of the work in several volumes."),
    frame(u"EditorFrame", u"", {3, 0, kContentWidth}),
    rowLabel(kEditor, u"&Editor:", 1, 0).in(u"EditorFrame"),
    rowBox(kEditor, 1, 46, 180).in(u"EditorFrame").hint(u"The editor, such as Edwin H. Cady."),
    checkBox(kIsGeneralEditor, u"This is the &general editor", {2, 46, 180}).in(u"EditorFrame"),
    rowLabel(kVolume, u"&Volume:", 4, 0),
    rowBox(kVolume, 4, 46, 46).hint(kSeveralVolumes),
    upDown({kArrows, kVolume}, kBoxes),
    rowLabel(kNumber, u"&Number:", 4, 124),
    rowBox(kNumber, 4, 170, 46).hint(u"The number of the book or part beside the volume."),
    upDown({kArrows, kNumber}, kBoxes),
    rowLabel(kVols, u"Volume&s:", 5, 0),
    rowBox(kVols, 5, 46, 46).hint(u"How many volumes there are, such as 5, or 5 to date."),
    upDown({kArrows, kVols}, kBoxes),
    rowLabel(kYear, u"&Years:", 5, 124),
    rowBox(kYear, 5, 170, 56).hint(u"The years over which the volumes appeared, such as 1968-83."),
    frame(kSeriesTypeFrame, u"Series type", {6, 0, kContentWidth}),
    option({kSeriesTypes, kOtherSeries}, u"", {1, 7, 66}).in(u"SeriesTypeFrame").grouped(kSeriesTypeGroup),
    option({kSeriesTypes, kOldSeries}, u"&Old series", {1, 77, 66}).in(u"SeriesTypeFrame").grouped(kSeriesTypeGroup),
    option({kSeriesTypes, kNewSeries}, u"Ne&w series", {1, 147, 66}).in(u"SeriesTypeFrame").grouped(kSeriesTypeGroup),
};
constexpr ControlAlias kAliases[] = {
    {u"Title", kNoIndex, kNoIndex, kBoxes, kTitle},
    {u"Editor", kNoIndex, kNoIndex, kBoxes, kEditor},
    {u"Volume", kNoIndex, kNoIndex, kBoxes, kVolume},
    {u"Number", kNoIndex, kNoIndex, kBoxes, kNumber},
    {u"Vols", kNoIndex, kNoIndex, kBoxes, kVols},
    {u"Year", kNoIndex, kNoIndex, kBoxes, kYear},
    {u"OldSeriesOption", kNoIndex, kNoIndex, kSeriesTypes, kOldSeries},
    {u"NewSeriesOption", kNoIndex, kNoIndex, kSeriesTypes, kNewSeries},
};
constexpr FormDesign kDesign = {
    .className = u"MultipartWorkForm",
    .title = u"Multi-volume or Series",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = {kBoxes, kTitle},
    .rtfParameter = 2,
};

constexpr TextBinding kValues[] = {
    {{kBoxes, kTitle}, u"Title"},   {{kBoxes, kEditor}, u"editor"}, {{kBoxes, kVolume}, u"Volume"},
    {{kBoxes, kNumber}, u"Number"}, {{kBoxes, kVols}, u"Vols"},     {{kBoxes, kYear}, u"Year"},
};

/// The types of series that have an option.
struct SeriesType {
    std::int16_t option;
    TextView type;
};
constexpr SeriesType kMarkers[] = {{kOldSeries, u"o.s."}, {kNewSeries, u"n.s."}};
constexpr TextView kNoMarker = u"Ne&ither";

/// Kinds of editors, as the element counts them.
constexpr std::int32_t kGeneralEditor = 0;
constexpr std::int32_t kPlainEditor = 2;

std::vector<bool> flagsOf(const std::vector<Text>& texts) {
    std::vector<bool> flags;
    for (const Text& text : texts) {
        flags.push_back(Value(text).asFlag());
    }
    flags.resize(std::max<std::size_t>(flags.size(), kRows));
    return flags;
}

}  // namespace

MultipartWorkForm::MultipartWorkForm() : Form(kDesign) {}

void MultipartWorkForm::fill(TextView parentText, TextView secondaryText) {
    element().call(u"Parse", {Value(parentText), Value(secondaryText)});
    mSeriesOptions = flagsOf(element().texts(u"SupportSeriesOptions"));
    mMultiVolumeOptions = flagsOf(element().texts(u"SupportMultiVolumeOptions"));
    forms::fill(*this, element(), kValues);
    const std::int32_t editorType = element().number(u"EditorType");
    mOtherEditorType = editorType == kGeneralEditor ? kPlainEditor : editorType;
    control(kIsGeneralEditor).setValue(editorType == kGeneralEditor);
    const bool takesSeveral = element().flag(u"SupportConcurrentVolsAndTextBoxes");
    control({kBoxes, kVolume}).setToolTip(takesSeveral ? kSeveralVolumes : kOneVolume);
    fillSeriesType();
    fillKind(parentText.empty());
    showRows();
}

/// What the text is; a new one is what the style has.
void MultipartWorkForm::fillKind(bool isNew) {
    const bool hasSeries = element().flag(u"IsSeriesSupported");
    const bool hasMultiVol = element().flag(u"IsMultiVolSupported");
    bool isMultiVol = element().flag(u"IsMultiVol");
    if (isNew && hasSeries != hasMultiVol) {
        isMultiVol = hasMultiVol;
    }
    control({kKinds, kSeries}).setVisible(hasSeries || !isMultiVol);
    control({kKinds, kMultiVol}).setVisible(hasMultiVol || isMultiVol);
    control({kKinds, kSeries}).setValue(!isMultiVol);
    control({kKinds, kMultiVol}).setValue(isMultiVol);
}

void MultipartWorkForm::fillSeriesType() {
    mOtherSeriesType = element().text(u"SeriesType");
    std::int16_t selected = kOtherSeries;
    for (const SeriesType& marker : kMarkers) {
        if (mOtherSeriesType == marker.type) {
            mOtherSeriesType.clear();
            selected = marker.option;
        }
    }
    control({kSeriesTypes, kOtherSeries}).setCaption(mOtherSeriesType.empty() ? kNoMarker : TextView(mOtherSeriesType));
    control({kSeriesTypes, selected}).setValue(true);
}

bool MultipartWorkForm::isMultiVol() {
    return selectedOption(*this, kKinds) == kMultiVol;
}

bool MultipartWorkForm::isOffered(std::int16_t row) {
    const auto index = static_cast<std::size_t>(row);
    return isMultiVol() ? mMultiVolumeOptions.at(index) : row < kRowsOfSeries && mSeriesOptions.at(index);
}

void MultipartWorkForm::showRows() {
    procedure(*this, u"showRows", kNoParameters, [&] {
        for (std::int16_t row = 0; row < kRows; ++row) {
            const bool isShown = isOffered(row);
            control({kBoxes, row}).setVisible(isShown);
            control({kLabels, row}).setVisible(isShown);
            if (Control* const arrows = find({kArrows, row}); arrows != nullptr) {
                arrows->setVisible(isShown);
            }
        }
        control(kIsGeneralEditor)
            .setVisible(isMultiVol() && isOffered(kEditor) && element().flag(u"SupportGeneralEditor"));
        control(kSeriesTypeFrame).setVisible(!isMultiVol() && element().flag(u"IsSeriesTypeSupported"));
    });
}

void MultipartWorkForm::choiceClicked(Control& control) {
    if (control.name() == kKinds && control.value()) {
        showRows();
    }
}

void MultipartWorkForm::collect(bool /*isModelPreview*/) {
    element().put(u"IsMultiVol", isMultiVol());
    forms::collect(*this, element(), kValues);
    element().put(u"EditorType", control(kIsGeneralEditor).value() ? kGeneralEditor : mOtherEditorType);
    const std::int16_t selected = selectedOption(*this, kSeriesTypes);
    TextView type = mOtherSeriesType;
    for (const SeriesType& marker : kMarkers) {
        type = selected == marker.option ? marker.type : type;
    }
    element().put(u"SeriesType", type);
}

bool MultipartWorkForm::hasUnoffered() {
    const std::int16_t rows = isMultiVol() ? std::int16_t{kRows} : kRowsOfSeries;
    for (std::int16_t row = 0; row < rows; ++row) {
        if (!isOffered(row) && !control({kBoxes, row}).text().empty()) {
            return true;
        }
    }
    const bool hasMarker =
        !isMultiVol() && (selectedOption(*this, kSeriesTypes) > kOtherSeries || !mOtherSeriesType.empty());
    return hasMarker && !control(kSeriesTypeFrame).isVisible();
}

std::pair<Text, Text> MultipartWorkForm::result() {
    Text text = toString();
    if (hasUnoffered()) {
        // What the style does not write stays in the host's field.
        if (Text all = element().call(u"toMergedString", LateObject::Arguments()).asText(); !all.empty()) {
            text = std::move(all);
        }
    }
    return {text, element().text(u"secondaryOutput")};
}

}  // namespace quorvel::forms

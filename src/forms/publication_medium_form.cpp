#include "forms/publication_medium_form.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "core/procedure.h"
#include "forms/bindings.h"
#include "forms/common_form_processing_functions.h"

namespace quorvel::forms {

namespace {

constexpr TextView kOptions = u"OptionButton";
constexpr TextView kBoxes = u"Textbox";
constexpr TextView kLabels = u"Label";
constexpr ControlName kIsMultiDiscs = u"IsMultiDiscs";

// The element's values, whose indexes those of the boxes are.
enum Detail : std::int16_t {
    kVersion,
    kDisc,
    kReel,
    kFiche,
    kGrids,
    kRow,
    kFrame,
    kTitle,
    kPublisher,
    kDate,
    kValues,
};

constexpr ControlRow medium(std::int16_t index) {
    return option({kOptions, index}, u"",
                  {static_cast<std::int16_t>(1 + index / 2), static_cast<std::int16_t>(index % 2 == 0 ? 7 : 113), 104})
        .in(u"MediumFrame");
}
constexpr ControlRow caption(Detail value, TextView text, std::int16_t line, std::int16_t x) {
    return label({kLabels, value}, text, {line, x, 40});
}
constexpr ControlRow box(Detail value, std::int16_t line, std::int16_t x, std::int16_t width) {
    return textBox({kBoxes, value}, {line, x, width});
}

// The captions of the media are the element's. There are ten of them, and room for two of the host's own.
constexpr ControlRow kControls[] = {
    frame(u"MediumFrame", u"The work is a", {1, 0, kContentWidth}),
    medium(0),
    medium(1),
    medium(2),
    medium(3),
    medium(4),
    medium(5),
    medium(6),
    medium(7),
    medium(8),
    medium(9),
    medium(10),
    medium(11),
    frame(u"DetailsFrame", u"Details", {2, 0, kContentWidth}),
    caption(kTitle, u"&Title:", 1, 7).in(u"DetailsFrame"),
    box(kTitle, 1, 50, 169).in(u"DetailsFrame").hint(u"The title of the collection, or the format of a file: PDF."),
    caption(kPublisher, u"&Publisher:", 2, 7).in(u"DetailsFrame"),
    box(kPublisher, 2, 50, 169).in(u"DetailsFrame").hint(u"Who published the disc or the microform."),
    caption(kDate, u"D&ate:", 3, 7).in(u"DetailsFrame"),
    box(kDate, 3, 50, 60).in(u"DetailsFrame").hint(u"e.g. June 1993"),
    caption(kVersion, u"&Version:", 3, 118).in(u"DetailsFrame"),
    box(kVersion, 3, 159, 60).in(u"DetailsFrame").hint(u"The version of a disc, or the volume of a microform."),
    frame(u"CDFrame", u"Discs", {3, 0, kContentWidth}),
    caption(kDisc, u"&Disc:", 1, 7).in(u"CDFrame"),
    box(kDisc, 1, 50, 30).in(u"CDFrame").hint(u"The number of the disc."),
    upDown({u"UpDown", kDisc}, kBoxes).in(u"CDFrame"),
    checkBox(kIsMultiDiscs, u"It is the &number of discs", {1, 97, 122})
        .in(u"CDFrame")
        .hint(u"Writes 4 discs instead of disc 4."),
    frame(u"MicroformFrame", u"Where on the microform", {4, 0, kContentWidth}),
    caption(kReel, u"&Reel:", 1, 7).in(u"MicroformFrame"),
    box(kReel, 1, 50, 60).in(u"MicroformFrame"),
    caption(kFiche, u"&Fiche:", 1, 118).in(u"MicroformFrame"),
    box(kFiche, 1, 159, 60).in(u"MicroformFrame"),
    caption(kGrids, u"&Grids:", 2, 7).in(u"MicroformFrame"),
    box(kGrids, 2, 50, 60).in(u"MicroformFrame").hint(u"e.g. A8-11"),
    caption(kRow, u"Ro&w:", 2, 118).in(u"MicroformFrame"),
    box(kRow, 2, 159, 60).in(u"MicroformFrame"),
    caption(kFrame, u"Fra&me:", 3, 7).in(u"MicroformFrame"),
    box(kFrame, 3, 50, 60).in(u"MicroformFrame"),
};
constexpr FormDesign kDesign = {
    .className = u"PublicationMediumForm",
    .title = u"Publication medium",
    .controls = kControls,
    .aliases = {},
    .firstBox = {kBoxes, kTitle},
    .rtfParameter = 2,
};

constexpr TextBinding kValueBoxes[] = {
    {{kBoxes, kVersion}, u"value", kVersion},     {{kBoxes, kDisc}, u"value", kDisc},
    {{kBoxes, kReel}, u"value", kReel},           {{kBoxes, kFiche}, u"value", kFiche},
    {{kBoxes, kGrids}, u"value", kGrids},         {{kBoxes, kRow}, u"value", kRow},
    {{kBoxes, kFrame}, u"value", kFrame},         {{kBoxes, kTitle}, u"value", kTitle},
    {{kBoxes, kPublisher}, u"value", kPublisher}, {{kBoxes, kDate}, u"value", kDate},
};
constexpr FlagBinding kFlags[] = {{kIsMultiDiscs, u"IsMultiDiscs"}};

constexpr std::int32_t kFirstDisc = 1;

/// Which values a medium has.
using Details = std::uint16_t;
constexpr Details valuesOf(std::initializer_list<Detail> list) {
    Details values = 0;
    for (const Detail value : list) {
        values = static_cast<Details>(values | (1U << static_cast<unsigned>(value)));
    }
    return values;
}
constexpr bool has(Details values, std::int16_t value) {
    return (values >> static_cast<unsigned>(value) & 1U) != 0;
}

constexpr Details kOfDisc = valuesOf({kVersion, kDisc, kTitle, kPublisher, kDate});
constexpr Details kOfMicroform = valuesOf({kVersion, kReel, kFiche, kGrids, kRow, kFrame, kTitle, kPublisher, kDate});
constexpr Details kTitleAlone = valuesOf({kTitle});

constexpr TextView kTitleLabel = u"&Title:";
constexpr TextView kFormatLabel = u"&Format:";

struct Medium {
    TextView caption;
    Details values;
    TextView titleLabel = kTitleLabel;
};
constexpr Medium kMedia[] = {
    {u"Book or website", 0},
    {u"CD", kOfDisc},
    {u"DVD", kOfDisc},
    {u"Digital file", kTitleAlone, kFormatLabel},
    {u"e-book", kTitleAlone, kFormatLabel},
    {u"Microform", kOfMicroform},
    {u"Microfilm", kOfMicroform},
    {u"Microfiche", kOfMicroform},
};
// Monographs, videotapes, and what hosts offer besides.
constexpr Medium kOther = {{}, kTitleAlone};

const Medium& mediumOf(TextView caption) {
    const auto* const found =
        std::find_if(std::begin(kMedia), std::end(kMedia), [&](const Medium& row) { return row.caption == caption; });
    return found != std::end(kMedia) ? *found : kOther;
}

}  // namespace

PublicationMediumForm::PublicationMediumForm() : Form(kDesign) {}

void PublicationMediumForm::initialize() {
    mAdvancedWidgetIndices.clear();
    std::int16_t position = 0;
    for (const Control& control : controls()) {
        if (control.row().frame == u"CDFrame") {
            mAdvancedWidgetIndices.push_back(position);
        }
        ++position;
    }
}

TextView PublicationMediumForm::medium() {
    const std::int16_t selected = selectedOption(*this, kOptions);
    return selected != kNoIndex ? TextView(mMedia.at(static_cast<std::size_t>(selected))) : TextView();
}

void PublicationMediumForm::fill(TextView parentText, TextView secondaryText) {
    element().call(u"Parse", {Value(parentText), Value(secondaryText)});
    mMedia = split(element().text(u"Supports"), u",");
    forms::fill(*this, element(), kValueBoxes);
    forms::fill(*this, element(), kFlags);
    mLastDisc = control({kBoxes, kDisc}).text();
    const std::int32_t selected = element().number(u"PublicationMediumType");
    showOptions(*this, kOptions, mMedia, static_cast<std::size_t>(selected));
    const bool isForeign = selected == 0 && std::find(mMedia.begin(), mMedia.end(), secondaryText) == mMedia.end();
    mForeignMedium = isForeign ? secondaryText : TextView();
    showRows();
    const bool isCut = hasHiddenDetails();
    mWholeText = isCut ? parentText : TextView();
    mWrittenText = isCut ? toString() : Text();
}

bool PublicationMediumForm::hasHiddenDetails() {
    const Details values = medium().empty() ? Details{0} : mediumOf(medium()).values;
    return std::any_of(std::begin(kValueBoxes), std::end(kValueBoxes), [&](const TextBinding& binding) {
        const Control& box = control(binding.box);
        return has(values, binding.memberIndex) && !box.isVisible() && !box.text().empty();
    });
}

void PublicationMediumForm::showRows() {
    procedure(*this, u"showRows", kNoParameters, [&] {
        // The element tells of the selected medium whether it has discs.
        forms::collect(*this, element(), {kOptions, u"PublicationMediumType"});
        const bool isSelected = !medium().empty();
        const Medium& shown = isSelected ? mediumOf(medium()) : kMedia[0];
        const bool showsDiscs =
            has(shown.values, kDisc) && supports(u"SupportsAdvancedCD") && element().flag(u"showDiscs");
        for (std::int16_t value = 0; value < kValues; ++value) {
            const bool isShown =
                has(shown.values, value) && (value != kVersion || !has(shown.values, kDisc) || showsDiscs);
            control({kBoxes, value}).setVisible(isShown);
            control({kLabels, value}).setVisible(isShown);
        }
        control({kLabels, kTitle}).setCaption(shown.titleLabel);
        for (const std::int16_t position : mAdvancedWidgetIndices) {
            controls().at(static_cast<std::size_t>(position)).setVisible(showsDiscs);
        }
    });
}

void PublicationMediumForm::collect(bool /*isModelPreview*/) {
    if (medium().empty()) {
        return;
    }
    forms::collect(*this, element(), {kOptions, u"PublicationMediumType"});
    forms::collect(*this, element(), kFlags);
    const Details values = mediumOf(medium()).values;
    for (const TextBinding& binding : kValueBoxes) {
        // A box keeps its text while another medium is selected, which is not written then.
        const Text text = has(values, binding.memberIndex) ? control(binding.box).text() : Text();
        element().put(binding.member, {Value(std::int32_t{binding.memberIndex}), Value(text)});
    }
}

std::pair<Text, Text> PublicationMediumForm::result() {
    Text text = toString();
    if (hasHiddenDetails() && text == mWrittenText) {
        text = mWholeText;
    }
    return {std::move(text), mForeignMedium.empty() ? Text(medium()) : mForeignMedium};
}

void PublicationMediumForm::choiceClicked(Control& control) {
    if (control.name() == kOptions && control.value()) {
        mForeignMedium.clear();
        showRows();
    }
}

void PublicationMediumForm::boxChanged(Control& box) {
    // A disc that came with another name may have it changed freely.
    if (box.is({kBoxes, kDisc}) && (mLastDisc.empty() || CommonFormProcessingFunctions::isNumeric(mLastDisc))) {
        CommonFormProcessingFunctions::validateSpinChange(box, mLastDisc, kFirstDisc);
    }
}

void PublicationMediumForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mAdvancedWidgetIndices", mAdvancedWidgetIndices);
    dumpProtocol(report);
}

}  // namespace quorvel::forms

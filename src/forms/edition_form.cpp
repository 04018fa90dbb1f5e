#include "forms/edition_form.h"

#include <algorithm>
#include <iterator>

#include "core/procedure.h"
#include "forms/bindings.h"
#include "forms/common_form_processing_functions.h"

namespace quorvel::forms {

namespace {

constexpr TextView kFrame = u"ReprintFrame";
constexpr TextView kTypeOption = u"EditionOption";
constexpr TextView kSourceOption = u"ReprintOption";
constexpr TextView kLabel = u"ReprintLabel";
constexpr TextView kBox = u"ReprintTextBox";
constexpr TextView kNumber = u"NumEdition";
constexpr TextView kName = u"NamedEdition";
constexpr TextView kUpDown = u"UpDown";

constexpr std::uint8_t kTypes = 1;
constexpr std::uint8_t kSources = 2;

constexpr TextView kNumberHint = u"Preferred over Named edition or Reprint edition.";
constexpr TextView kNameHint = u"e.g. New, Enlarged, Abridged, Expanded, Facsimile.";

constexpr ControlRow partLabel(std::int16_t part) {
    return label({kLabel, part}, u"", {static_cast<std::int16_t>(1 + part), 7, 58}).in(kFrame);
}
constexpr ControlRow partBox(std::int16_t part) {
    return textBox({kBox, part}, {static_cast<std::int16_t>(1 + part), 67, 152}).in(kFrame);
}

// The arrows share the line of their box, which is the first.
constexpr ControlRow kControls[] = {
    option({kTypeOption, 0}, u"&Numbered edition:", {0, 0, 86}).grouped(kTypes).hint(kNumberHint),
    textBox(kNumber, {0, 88, 40}).spoken(u"Number of the edition").hint(kNumberHint),
    upDown(kUpDown, kNumber),
    option({kTypeOption, 1}, u"Na&med edition:", {1, 0, 86}).grouped(kTypes).hint(kNameHint),
    comboBox(kName, {1, 88, 138}).spoken(u"Name of the edition").hint(kNameHint),
    option({kTypeOption, 2}, u"&Reprint or paperback edition", {2, 0, kContentWidth})
        .grouped(kTypes)
        .hint(u"Frequently used for paperbacks, which are often first published as a hardcover edition."),
    option({kTypeOption, 3}, u"&Translation (first title not in English)", {3, 0, kContentWidth})
        .grouped(kTypes)
        .hint(u"Enter original publication title only if it was not in English \u00A0\u00A0 (Turabian 17.1.2)."),
    frame(kFrame, u"First publication", {4, 0, kContentWidth}),
    option({kSourceOption, 0}, u"In a &book", {0, 7, 100}).in(kFrame).grouped(kSources),
    option({kSourceOption, 1}, u"In a &journal", {0, 112, 100}).in(kFrame).grouped(kSources),
    partLabel(0),
    partBox(0),
    partLabel(1),
    partBox(1).hint(u"Who wrote, edited or introduced it, first name first."),
    partLabel(2),
    partBox(2),
    partLabel(3),
    partBox(3),
    partLabel(4),
    partBox(4).hint(u"The year of the first publication, such as 1925."),
    partLabel(5),
    partBox(5).hint(u"The pages there, such as 625-884."),
    partLabel(6),
    partBox(6).hint(u"The title of the part that is reprinted, without quotation marks."),
};
constexpr FormDesign kDesign = {
    .className = u"EditionForm",
    .title = u"Edition",
    .controls = kControls,
    .aliases = {},
    .firstBox = kNumber,
};

// The codes of the options, which are the element's.
enum Type : std::int16_t { kNumbered, kNamed, kReprint, kTranslation };
enum Source : std::int16_t { kBook, kJournal };
constexpr ChoiceBinding kType = {kTypeOption, u"EditionType"};

/// The parts of a first publication, in the order of their boxes.
struct Part {
    const char16_t* member;
    TextView ofBook;
    TextView ofJournal;
};
constexpr Part kParts[] = {
    {u"Title", u"T&itle:", u"Journal t&itle:"},
    {u"author", u"&Contributor:", u"&Contributor:"},
    {u"PlaceOrVolume", u"P&lace:", u"Vo&lume:"},
    {u"PublisherOrNumber", u"P&ublisher:", u"N&umber:"},
    {u"Year", u"&Year:", u"&Year:"},
    {u"Page", u"&Pages:", u"&Pages:"},
    {u"chapterOrArticleTitle", u"C&hapter title:", u"&Article title:"},
};
// By these a publication without the flag of a book is one in a journal.
constexpr std::size_t kMarksOfJournal[] = {2, 3, 5};
constexpr TextView kEnglishTitle = u"English title";
constexpr TextView kForeignTitle = u"Foreign title";
constexpr TextView kNames[] = {
    u"New",         u"Enlarged",      u"Abridged",    u"Expanded", u"Facsimile", u"Revised", u"Revised and enlarged",
    u"Illustrated", u"International", u"Large print",
};

// The arrows begin with the second edition, since nobody states a first one; who types may.
constexpr std::int16_t kFirstOfArrows = 2;
constexpr std::int16_t kLeastNumber = 1;
// The style that has no statements of first publications.
constexpr std::int32_t kAma = 0;

constexpr TextView kMissingTitle = u"Missing Windows core library.";
constexpr TextView kMissingText = u"The arrows beside the number of the edition cannot be shown. Please install ";
constexpr TextView kMissingFile = u"/dependencies/comct232.exe to fix this problem.";

bool isPublication(std::int16_t type) {
    return type == kReprint || type == kTranslation;
}

}  // namespace

EditionForm::EditionForm() : Form(kDesign) {}

void EditionForm::initialize() {
    control(kName).setItems({std::begin(kNames), std::end(kNames)});
    if (view().handle(control(kUpDown)) == 0) {
        const Text address = callHost(u"WebsiteAddress", {Value(TextView())}).asText();
        const Text text = concatenate({kMissingText, address, kMissingFile});
        view().showMessage(kMissingTitle, text);
        throw RuntimeError(ErrorNumber::ComponentNotRegistered, concatenate({kMissingTitle, u" ", text}));
    }
}

std::int16_t EditionForm::EditionType() {
    return procedure(*this, u"EditionType[Get]", kNoParameters, [&] { return selectedOption(*this, kTypeOption); });
}

void EditionForm::fill(TextView parentText, TextView secondaryText) {
    mSurroundings = surroundingsOf(parentText, read(element(), parentText, secondaryText));
    mIsWritten = false;
    forms::fill(*this, element(), kType);
    fillNumber();
    control(kName).setText(element().text(u"NamedEdition"));
    fillPublication();
    showPublication();
    mRead = entered();
    const std::optional<Value> format = element().ifAny(u"format");
    const bool hasPublications = !format || format->asNumber() != kAma;
    for (const std::int16_t type : {kReprint, kTranslation}) {
        control({kTypeOption, type}).setVisible(hasPublications || type == mRead.type);
    }
}

/// "2" of "2nd ed., rev. by John Smith".
void EditionForm::fillNumber() {
    const Text statement = element().text(u"NumberedEdition");
    const std::size_t digits = std::min(statement.find_first_not_of(kDigits), statement.size());
    const auto behind = std::find_if_not(statement.begin() + static_cast<std::ptrdiff_t>(digits), statement.end(),
                                         [](char16_t unit) { return isAsciiLetter(unit); });
    mBehindNumber = digits > 0 ? Text(behind, statement.end()) : Text();
    mLastValidNumber = statement.substr(0, digits);
    control(kNumber).setText(mLastValidNumber);
}

EditedObject EditionForm::publication() {
    EditedObject record(*this);
    record.hold(element().get(u"EditionBookChapterYear").asObject());
    return record;
}

void EditionForm::fillPublication() {
    const EditedObject record = publication();
    const bool isThere = record.object() != nullptr;
    for (std::size_t part = 0; part < std::size(kParts); ++part) {
        box(part).setText(isThere ? record.text(kParts[part].member) : Text());
    }
    const bool isBook = isThere && record.flag(u"isReprintBook");
    const bool isSpecialIssue = isThere && record.flag(u"isSpecialIssue");
    const bool hasMark = std::any_of(std::begin(kMarksOfJournal), std::end(kMarksOfJournal),
                                     [&](std::size_t part) { return !box(part).text().empty(); });
    const bool isJournal = !isBook && (isSpecialIssue || hasMark);
    control({kSourceOption, isJournal ? kJournal : kBook}).setValue(true);
    mIsSpecialIssue = isSpecialIssue;
    mAuthorType = isThere ? record.text(u"AuthorType") : Text();
    mTitleType = isThere ? record.text(u"TitleType") : Text();
}

Control& EditionForm::box(std::size_t part) {
    return control({kBox, static_cast<std::int16_t>(part)});
}

void EditionForm::showPublication() {
    control(kFrame).setVisible(isPublication(selectedOption(*this, kTypeOption)));
    const bool isJournal = control({kSourceOption, kJournal}).value();
    for (std::int16_t part = 0; part < static_cast<std::int16_t>(std::size(kParts)); ++part) {
        control({kLabel, part}).setCaption(isJournal ? kParts[part].ofJournal : kParts[part].ofBook);
    }
}

void EditionForm::boxChanged(Control& box) {
    if (box.is(kNumber)) {
        CommonFormProcessingFunctions::validateSpinChange(box, mLastValidNumber, kLeastNumber);
    }
    // Who types a number or a name means it.
    if ((box.is(kNumber) || box.is(kName)) && !box.text().empty()) {
        control({kTypeOption, box.is(kNumber) ? kNumbered : kNamed}).setValue(true);
    }
}

void EditionForm::choiceClicked(Control& control) {
    if (control.is({kSourceOption, kBook})) {
        mIsSpecialIssue = false;
    }
    showPublication();
}

void EditionForm::spun(Control& /*upDown*/, Control& buddy, bool isUp) {
    if (isUp) {
        CommonFormProcessingFunctions::processSpinUp(*this, buddy, kFirstOfArrows);
    } else {
        CommonFormProcessingFunctions::processSpinDown(buddy, kLeastNumber, false);
    }
}

EditionForm::Entered EditionForm::entered() {
    Entered now;
    now.type = EditionType();
    if (now.type == kNumbered || now.type == kNamed) {
        now.texts.push_back(control(now.type == kNumbered ? kNumber : kName).text());
    } else if (isPublication(now.type)) {
        for (std::size_t part = 0; part < std::size(kParts); ++part) {
            now.texts.push_back(box(part).text());
        }
        now.source = selectedOption(*this, kSourceOption);
        now.isSpecialIssue = mIsSpecialIssue;
    }
    return now;
}

void EditionForm::collect(bool /*isModelPreview*/) {
    const Entered now = entered();
    if (now == mRead) {
        if (mIsWritten) {
            read(element(), parentText(), secondaryText());
            mIsWritten = false;
        }
        return;
    }
    mIsWritten = true;
    forms::collect(*this, element(), kType);
    if (now.type == kNumbered) {
        const Text& number = now.texts.front();
        element().put(u"NumberedEdition", number.empty() ? number : concatenate({number, mBehindNumber}));
    } else if (now.type == kNamed) {
        element().put(u"NamedEdition", now.texts.front());
    } else if (isPublication(now.type)) {
        collectPublication(now);
    }
}

void EditionForm::collectPublication(const Entered& now) {
    const EditedObject record = publication();
    if (!record.object()) {
        return;
    }
    if (std::all_of(now.texts.begin(), now.texts.end(), [](TextView text) { return text.empty(); })) {
        element().call(u"clearEditionBookChapterYear", {});
        return;
    }
    for (std::size_t part = 0; part < std::size(kParts); ++part) {
        record.put(kParts[part].member, now.texts.at(part));
    }
    record.put(u"isReprintBook", now.source == kBook);
    record.put(u"isSpecialIssue", now.isSpecialIssue);
    record.put(u"AuthorType", mAuthorType);
    // A reprint may be one of a foreign title.
    const TextView titleType = now.type == kTranslation ? kForeignTitle : kEnglishTitle;
    record.put(u"TitleType", now.type == mRead.type ? TextView(mTitleType) : titleType);
}

std::pair<Text, Text> EditionForm::result() {
    const Text text = toString();
    // A statement of a first publication that nobody changed goes back as it stood: the style may write less of it.
    return {isPublication(mRead.type) && entered() == mRead ? parentText() : mSurroundings.around(text), Text()};
}

}  // namespace quorvel::forms

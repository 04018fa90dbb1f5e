#include "forms/page_form.h"

#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr TextView kFrame = u"LocatorTypeFrame";

// By the codes of locators, in three columns.
constexpr ControlRow locator(std::int16_t type, TextView caption) {
    constexpr Place kColumns[] = {{0, 7, 62}, {0, 71, 84}, {0, 157, 62}};
    Place place = kColumns[type % 3];
    place.line = static_cast<std::int16_t>(type / 3);
    return option({u"OptionButton", type}, caption, place).in(kFrame);
}

constexpr ControlRow kControls[] = {
    label(u"Label1", u"&Page or number:", {1, 0, 66}),
    textBox(u"Page", {1, 70, 156}).hint(u"A page, a range or several of them, such as 45, 379-423 or xii."),
    checkBox(u"NoteCheckBox", u"&Notes on it:", {2, 0, 66}),
    textBox(u"Note", {2, 70, 156})
        .spoken(u"Numbers of the notes")
        .hint(u"Identifies a footnote to quote. eg) 201nn16-17 = pg 201, footnotes 16-17. See Turabian 17.1.7, pg 176 "
              u"for more details."),
    frame(kFrame, u"This is a", {3, 0, kContentWidth}),
    locator(0, u"Pa&ge"),
    locator(1, u"&Chapter"),
    locator(2, u"Paragrap&h"),
    locator(3, u"&Line"),
    locator(4, u"&Disc"),
    locator(5, u"&Folio"),
    locator(6, u"&Section"),
    locator(7, u"&Book"),
    locator(8, u"Pa&rt"),
    locator(9, u"F&igure"),
    locator(10, u"&Table"),
    locator(11, u"&Map"),
    locator(12, u"Pl&ate"),
    locator(13, u"Dictionar&y entry"),
    locator(14, u"D&efinition"),
};
constexpr ControlAlias kAliases[] = {{u"PageButton", kNoIndex, kNoIndex, u"OptionButton", 0}};

constexpr FormDesign kDesign = {
    .className = u"PageForm",
    .title = u"Page",
    .controls = kControls,
    .aliases = kAliases,
    .firstBox = u"Page",
    .isPreviewedByModel = true,
};

constexpr ChoiceBinding kType = {u"OptionButton", u"pageType"};
constexpr TextBinding kPage[] = {{u"Page", u"Page"}};

constexpr std::int16_t kPlainPage = 0;
constexpr std::int16_t kEntry = 13;
constexpr TextView kNoNote = u"__UNINITIALIZED__";

/// The element's note, empty when it has none.
Text noteOf(const EditedObject& element) {
    const Text note = element.text(u"Note");
    return note == kNoNote ? Text() : note;
}

}  // namespace

PageForm::PageForm() : Form(kDesign) {}

void PageForm::fill(TextView parentText, TextView /*secondaryText*/) {
    element().call(u"Parse", {Value(parentText)});
    forms::fill(*this, element(), kType);
    forms::fill(*this, element(), kPage);
    mPage = control(u"Page").text();
    showNote(noteOf(element()));
    const bool hasNotes = supports(u"supportsNotes");
    control(u"NoteCheckBox").setVisible(hasNotes);
    control(u"Note").setVisible(hasNotes);
}

void PageForm::showNote(TextView note) {
    control(u"Note").setText(note);
    control(u"NoteCheckBox").setValue(!note.empty());
}

void PageForm::collect(bool /*isModelPreview*/) {
    // The type first: the element reads the text of an entry in another way.
    forms::collect(*this, element(), kType);
    forms::collect(*this, element(), kPage);
    const Text note = control(u"NoteCheckBox").value() ? control(u"Note").text() : Text();
    element().put(u"Note", note.empty() ? kNoNote : TextView(note));
}

void PageForm::boxChanged(Control& box) {
    if (box.is(u"Note")) {
        control(u"NoteCheckBox").setValue(!box.text().empty());
    } else if (selectedOption(*this, kType.options) == kNoIndex) {
        // The text said that there is no page; who types one knows better.
        control({kType.options, kPlainPage}).setValue(true);
    }
}

void PageForm::boxLeft(Control& box) {
    // The words of an entry may be words of locators, too.
    const bool isEntry = control({kType.options, kEntry}).value();
    if (box.is(u"Page") && box.text() != mPage && !isEntry) {
        readTyped(box);
    }
}

/// A locator in full goes where its parts belong: "chap. 3", "pp. 321-28", "201n5", "n.p."
void PageForm::readTyped(Control& page) {
    if (!element().ifAny(u"Parse", {Value(page.text())})) {
        return;
    }
    const Text note = noteOf(element());
    const std::optional<Value> read = element().ifAny(u"Page");
    if (!read || (!note.empty() && !control(u"Note").isVisible())) {
        // A note that the style does not write stays where it was typed.
        return;
    }
    const std::int32_t type = element().number(kType.member);
    if (type != kPlainPage) {
        forms::fill(*this, element(), kType);
    }
    page.setText(read->asText());
    mPage = page.text();
    if (!note.empty()) {
        showNote(note);
    }
}

}  // namespace quorvel::forms

#include "forms/author_form.h"

#include "core/procedure.h"
#include "forms/bindings.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow authorLabel(std::int16_t row, TextView caption) {
    return label({u"AuthorLabels", row}, caption, {row, 0, 44}).in(u"AuthorFrame");
}
constexpr ControlRow authorBox(std::int16_t row) {
    return textBox({u"authors", row}, {row, 46, 180})
        .in(u"AuthorFrame")
        .hint(u"A name, such as Smith, John A., Jr. An organization stands as it is.");
}

constexpr ControlRow kControls[] = {
    frame(u"AuthorFrame", u"", {1, 0, kContentWidth}),
    authorLabel(1, u"Author &1:"),
    authorBox(1),
    authorLabel(2, u"Author &2:"),
    authorBox(2),
    authorLabel(3, u"Author &3:"),
    authorBox(3),
    authorLabel(4, u"Author &4:"),
    authorBox(4),
    authorLabel(5, u"Author &5:"),
    authorBox(5),
    authorLabel(6, u"Author &6:"),
    authorBox(6),
    checkBox(u"HasEtAl", u"The list of authors goes &on (et al.)", {7, 46, 180}).in(u"AuthorFrame"),
    label(u"MoreAuthors", u"", {8, 46, 180}).in(u"AuthorFrame").hidden(),
    label(u"DiscussantLabel", u"&Discussant:", {2, 0, 44}),
    textBox(u"Discussant", {2, 46, 180}).hint(u"The author of the work that is discussed."),
    frame(u"PseudoFrame", u"Author kind", {3, 0, kContentWidth}),
    option(u"NormalOption", u"The name is &printed in the work", {1, 7, 212}).in(u"PseudoFrame"),
    option(u"AnonymousOption", u"The work is &anonymous, and the name is attributed", {2, 7, 212}).in(u"PseudoFrame"),
    option(u"PseudoOption", u"It is a p&seudonym of:", {3, 7, 100}).in(u"PseudoFrame"),
    textBox(u"Pseudoname", {3, 109, 110})
        .in(u"PseudoFrame")
        .spoken(u"Name behind the pseudonym")
        .hint(u"The name behind the pseudonym. Without one, pseud. is written."),
    frame(u"Frame1", u"Roles", {4, 0, kContentWidth}),
    checkBox({u"CheckBox", 0}, u"&Editor", {1, 7, 66}).in(u"Frame1"),
    checkBox({u"CheckBox", 1}, u"&Compiler", {1, 77, 66}).in(u"Frame1"),
    checkBox({u"CheckBox", 2}, u"&Translator", {1, 147, 66}).in(u"Frame1"),
};
constexpr ControlAlias kAliases[] = {
    {u"Author1", kNoIndex, kNoIndex, u"authors", 1},
    {u"SecondaryAuthors", 2, 6, u"authors", 2},
};
/// A design's members are called with forms of that design.
AuthorForm& own(Form& form) {
    return static_cast<AuthorForm&>(form);  // NOLINT(*-static-cast-downcast): see above
}
constexpr FormMember kMembers[] = {
    {u"showPseudo", nullptr,
     [](Form& form, LateObject::Arguments value) { own(form).showPseudo(value.back().asFlag()); }},
    {u"showDiscussant", nullptr,
     [](Form& form, LateObject::Arguments value) { own(form).showDiscussant(value.back().asFlag()); }},
};
constexpr FormDesign kDesign = {
    .className = u"AuthorForm",
    .title = u"Authors",
    .controls = kControls,
    .aliases = kAliases,
    .members = kMembers,
    .firstBox = {u"authors", 1},
    .rtfParameter = 5,
};

constexpr FlagBinding kFlags[] = {
    {{u"CheckBox", 0}, u"Anthologies", 0},
    {{u"CheckBox", 1}, u"Anthologies", 1},
    {{u"CheckBox", 2}, u"Anthologies", 2},
    {u"HasEtAl", u"HasEtAl"},
};

/// The options by the codes of `AuthorType`.
constexpr ControlName kAuthorTypes[] = {u"NormalOption", u"AnonymousOption", u"PseudoOption"};
constexpr std::int32_t kPseudonym = 2;

constexpr TextView kDiscussant = u"Discussant";
constexpr TextView kPseudPlaceholder = u"pseud.";

constexpr Twips kEtAlBelowRow = 405;

}  // namespace

AuthorForm::AuthorForm() : NamesForm(kDesign, {u"authors", u"AuthorLabels", u"EnableNextAuthor"}) {}

void AuthorForm::fill(TextView parentText, TextView secondaryText) {
    readText(parentText);
    forms::fill(*this, element(), kFlags);
    const std::vector<Text> authors = element().texts(u"authors");
    showPseudo(supports(u"SupportAnonAndPseudoAuthors"));
    const bool hasDiscussant = element().flag(u"hasDiscussant");
    showDiscussant(secondaryText == kDiscussant || hasDiscussant);
    control(kDiscussant).setText(hasDiscussant ? element().text(u"Discussant") : Text());
    showNames(authors);
    fillAuthorType(authors);
}

void AuthorForm::fillAuthorType(const std::vector<Text>& authors) {
    const std::int32_t type = element().number(u"AuthorType");
    for (std::int32_t code = 0; code <= kPseudonym; ++code) {
        control(kAuthorTypes[code]).setValue(code == type);
    }
    Text pseudoname;
    if (type == kPseudonym) {
        if (!authors.empty() && supports(u"SquareBracketIsForFirstName")) {
            box(1).setText(element().call(u"collapsePseudoToFirstName", {Value(authors.front())}).asText());
        }
        pseudoname = element().text(u"Pseudoname");
    }
    control(u"Pseudoname").setText(pseudoname == kPseudPlaceholder ? TextView() : TextView(pseudoname));
}

void AuthorForm::collect(bool isModelPreview) {
    std::int32_t type = 0;
    for (std::int32_t code = 0; code <= kPseudonym; ++code) {
        type = control(kAuthorTypes[code]).value() ? code : type;
    }
    element().put(u"AuthorType", type);
    if (type == kPseudonym) {
        const Text pseudoname = control(u"Pseudoname").text();
        element().put(u"Pseudoname",
                      isModelPreview && pseudoname.empty() ? TextView(kPseudPlaceholder) : TextView(pseudoname));
    }
    element().put(u"authors", names());
    forms::collect(*this, element(), kFlags);
    const Control& discussant = control(kDiscussant);
    if (discussant.isVisible()) {
        element().put(u"Discussant", discussant.text());
    }
}

std::pair<Text, Text> AuthorForm::result() {
    const Control& discussant = control(kDiscussant);
    const bool hasDiscussant = discussant.isVisible() && !discussant.text().empty();
    return {wholeText(), Text(hasDiscussant ? kDiscussant : TextView())};
}

void AuthorForm::boxEntered(Control& box) {
    if (box.is(u"Pseudoname")) {
        control(u"PseudoOption").setValue(true);
    }
}

void AuthorForm::nameRead() {
    // What stood beside the name, a role or et al., is kept.
    for (const FlagBinding& binding : kFlags) {
        const bool isThere = binding.memberIndex == kNoIndex ? element().flag(binding.member)
                                                             : element().flag(binding.member, binding.memberIndex);
        if (isThere) {
            control(binding.checkBox).setValue(true);
        }
    }
}

void AuthorForm::rowsChanged() {
    positionEtAl();
}

void AuthorForm::positionEtAl() {
    procedure(*this, u"positionEtAl", kNoParameters, [&] {
        // Below a single row it stands where its line has it.
        const bool isSingle = lastRow() == 1;
        control(u"HasEtAl").setTopBelow(isSingle ? nullptr : &box(static_cast<std::size_t>(lastRow())), kEtAlBelowRow);
    });
}

void AuthorForm::showPseudo(bool isShown) {
    procedure(*this, u"showPseudo[Let]", {{u"isShown", isShown}}, [&] { control(u"PseudoFrame").setVisible(isShown); });
}

void AuthorForm::showDiscussant(bool isShown) {
    procedure(*this, u"showDiscussant[Let]", {{u"isShown", isShown}}, [&] {
        control(kDiscussant).setVisible(isShown);
        control(u"DiscussantLabel").setVisible(isShown);
    });
}

void AuthorForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mAuthors", mNames);
    report.vbwReportVariable(u"mSecondaryAuthors", mSecondaryNames);
    report.vbwReportVariable(u"mAuthorLabels", mLabels);
    report.vbwReportVariable(u"mAuthorsUbound", lastRow());
    dumpProtocol(report);
}

}  // namespace quorvel::forms

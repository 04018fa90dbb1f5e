#include "forms/editor_form.h"

#include <algorithm>
#include <array>

#include "core/procedure.h"
#include "forms/common_form_processing_functions.h"

namespace quorvel::forms {

namespace {

constexpr ControlRow editorLabel(std::int16_t row, TextView caption) {
    return label({u"EditorLabels", row}, caption, {row, 0, 44});
}
constexpr ControlRow editorBox(std::int16_t row) {
    return textBox({u"editors", row}, {row, 46, 180}).hint(u"A name, such as Smith, John A., Jr.");
}

// The tag of an option is the type for which it stands.
constexpr ControlRow kControls[] = {
    frame(u"AuthorTypeFrame", u"These persons are", {0, 0, kContentWidth}),
    option(u"EditorOption", u"&Editors", {1, 7, 100}).in(u"AuthorTypeFrame").tagged(u"Editor"),
    option(u"TranslatorOption", u"&Translators", {1, 112, 100}).in(u"AuthorTypeFrame").tagged(u"Translator"),
    option(u"CompilerOption", u"&Compilers", {2, 7, 100}).in(u"AuthorTypeFrame").tagged(u"Compiler"),
    option(u"CompilerAndEditorOption", u"Compilers &and editors", {2, 112, 100})
        .in(u"AuthorTypeFrame")
        .tagged(u"Compiler & Ed."),
    editorLabel(1, u"Name &1:"),
    editorBox(1),
    editorLabel(2, u"Name &2:"),
    editorBox(2),
    editorLabel(3, u"Name &3:"),
    editorBox(3),
    editorLabel(4, u"Name &4:"),
    editorBox(4),
    editorLabel(5, u"Name &5:"),
    editorBox(5),
    editorLabel(6, u"Name &6:"),
    editorBox(6),
    label(u"MoreAuthors", u"", {7, 46, 180}).hidden(),
};
/// A design's members are called with forms of that design.
EditorForm& own(Form& form) {
    return static_cast<EditorForm&>(form);  // NOLINT(*-static-cast-downcast): see above
}
constexpr FormMember kMembers[] = {
    {u"AuthorType", [](Form& form, LateObject::Arguments) { return Value(own(form).AuthorType()); },
     [](Form& form, LateObject::Arguments value) { own(form).setAuthorType(value.back().asText()); }},
};
constexpr FormDesign kDesign = {
    .className = u"EditorForm",
    .title = u"Editors",
    .controls = kControls,
    .aliases = {},
    .members = kMembers,
    .firstBox = {u"editors", 1},
    .rtfParameter = 5,
};

/// The four types, their options and the element's roles that they are: editor, compiler, translator.
struct EditorType {
    TextView type;
    ControlName option;
    std::array<bool, EditorForm::kRoles> roles;
};
constexpr EditorType kTypes[] = {
    {u"Editor", u"EditorOption", {true, false, false}},
    {u"Translator", u"TranslatorOption", {false, false, true}},
    {u"Compiler", u"CompilerOption", {false, true, false}},
    {u"Compiler & Ed.", u"CompilerAndEditorOption", {true, true, false}},
};

bool isType(TextView text) {
    return std::any_of(std::begin(kTypes), std::end(kTypes), [&](const EditorType& row) { return row.type == text; });
}

}  // namespace

EditorForm::EditorForm() : NamesForm(kDesign, {u"editors", u"EditorLabels", u"EnableNextEditor"}) {}

Text EditorForm::AuthorType() {
    return procedure(*this, u"AuthorType[Get]", kNoParameters, [&] {
        Text type;
        for (const EditorType& row : kTypes) {
            if (control(row.option).value()) {
                type = CommonFormProcessingFunctions::GetTag(&control(row.option), false);
            }
        }
        return type;
    });
}

void EditorForm::setAuthorType(TextView type) {
    procedure(*this, u"AuthorType[Let]", {{u"AuthorType", type}}, [&] {
        for (const EditorType& row : kTypes) {
            control(row.option).setValue(row.type == type);
        }
    });
}

void EditorForm::fill(TextView parentText, TextView secondaryText) {
    readText(parentText);
    mHasEtAl = element().flag(u"HasEtAl");
    showNames(element().texts(u"authors"));
    const Text byRoles = typeOfRoles();
    setAuthorType(isType(secondaryText) ? secondaryText : byRoles.empty() ? TextView(u"Editor") : TextView(byRoles));
    mShownType = AuthorType();
    showAuthorTypeOptions();
}

Text EditorForm::typeOfRoles() {
    for (std::size_t role = 0; role < kRoles; ++role) {
        mReadRoles.at(role) = element().flag(u"Anthologies", static_cast<std::int32_t>(role));
    }
    const auto* const found = std::find_if(std::begin(kTypes), std::end(kTypes),
                                           [&](const EditorType& row) { return row.roles == mReadRoles; });
    return found != std::end(kTypes) ? Text(found->type) : Text();
}

void EditorForm::showAuthorTypeOptions() {
    procedure(*this, u"showAuthorTypeOptions", kNoParameters, [&] {
        const bool hasCompilers = supports(u"supportsCompilerAndEditor");
        for (const ControlName& option : {kTypes[2].option, kTypes[3].option}) {
            // What is selected is seen in any case.
            control(option).setVisible(hasCompilers || control(option).value());
        }
    });
}

void EditorForm::collect(bool /*isModelPreview*/) {
    const Text type = AuthorType();
    const std::vector<Text> persons = names();
    for (const EditorType& row : kTypes) {
        if (row.type == type) {
            const bool isAsRead = type == mShownType && isCombination(row.roles);
            const std::array<bool, kRoles>& roles = isAsRead ? mReadRoles : row.roles;
            for (std::size_t role = 0; role < kRoles; ++role) {
                // A role without a person would be written alone: "ed."
                const bool hasRole = roles.at(role) && !persons.empty();
                element().put(u"Anthologies", {Value(static_cast<std::int32_t>(role)), Value(hasRole)});
            }
        }
    }
    element().put(u"authors", persons);
    element().put(u"HasEtAl", mHasEtAl);
}

/// Whether the text that was read names a type's roles beside others, a combination that has no type: "ed. and trans."
bool EditorForm::isCombination(const std::array<bool, kRoles>& ofType) const {
    const bool isType = std::any_of(std::begin(kTypes), std::end(kTypes),
                                    [&](const EditorType& row) { return row.roles == mReadRoles; });
    return !isType && std::equal(ofType.begin(), ofType.end(), mReadRoles.begin(),
                                 [](bool isOfType, bool isRead) { return !isOfType || isRead; });
}

std::pair<Text, Text> EditorForm::result() {
    return {wholeText(), AuthorType()};
}

void EditorForm::nameRead() {
    mHasEtAl = mHasEtAl || element().flag(u"HasEtAl");
}

void EditorForm::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"mEditors", mNames);
    report.vbwReportVariable(u"mSecondaryEditors", mSecondaryNames);
    report.vbwReportVariable(u"mEditorLabels", mLabels);
    dumpProtocol(report);
}

}  // namespace quorvel::forms

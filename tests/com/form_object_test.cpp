#include "host/forms/host_late_object.h"

#include <cmath>
#include <map>
#include <set>

#include "host/com/module.h"
#include "host/forms/form_factory.h"
#include "host/forms/sub_form.h"
#include "library.h"
#include "support/recording_service.h"

// The objects by which a host reaches a form, against the forms themselves. They are not creatable, so that this
// program holds the library's own code beside the DLL, from which the elements are.

namespace comtests {
namespace {

namespace host = quorvel::host;

constexpr std::int32_t kAuthors = 0;
constexpr std::int32_t kEditors = 9;

std::wstring wide(quorvel::TextView text) {
    return {text.begin(), text.end()};
}

/// "OptionButton(1)" in its parts; an argument of digits is a number.
struct Step {
    explicit Step(const std::wstring& text) : member(text.substr(0, text.find(L'('))) {
        for (std::size_t at = member.size() + 1; at < text.size();) {
            const std::size_t end = text.find_first_of(L",)", at);
            const std::wstring argument = text.substr(at, end - at);
            const bool isNumber = argument.find_first_not_of(L"-0123456789") == std::wstring::npos;
            arguments.push_back(isNumber ? Variant(std::int32_t{std::stoi(argument)}) : Variant(argument));
            at = end + 1;
        }
    }
    std::wstring member;
    std::vector<Variant> arguments;
};

/// A form as a host has it: asked and changed by paths as scripts write them, "Controls(Year).Text".
class HostedForm {
public:
    HostedForm() = default;
    explicit HostedForm(IDispatch* form) : mForm(form) {}

    Variant get(const std::wstring& path) const {
        const auto [object, last] = find(path);
        const CallResult result = object.tryCall(last.member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, last.arguments);
        EXPECT_TRUE(result.ok()) << path << ": " << result.error;
        return result.value;
    }
    std::wstring text(const std::wstring& path) const { return shown(get(path)); }
    void put(const std::wstring& path, const Variant& value) const {
        const auto [object, last] = find(path);
        std::vector<Variant> arguments = last.arguments;
        arguments.push_back(value);
        std::vector<VARIANT> values;
        for (const Variant& argument : arguments) values.push_back(argument.get());
        EXPECT_EQ(invoke(object.dispatch(), idOf(object.dispatch(), last.member.c_str()), DISPATCH_PROPERTYPUT, values,
                         nullptr),
                  S_OK)
            << path;
    }
    void call(const std::wstring& member, const std::vector<Variant>& arguments = {}) const {
        EXPECT_TRUE(mForm.tryCall(member, DISPATCH_METHOD, arguments).ok()) << member;
    }
    IDispatch* dispatch() const { return mForm.dispatch(); }
    LateBoundObject object(const std::wstring& path) const { return LateBoundObject(objectOf(get(path))); }

private:
    std::pair<LateBoundObject, Step> find(const std::wstring& path) const {
        LateBoundObject object = mForm;
        std::size_t at = 0;
        for (std::size_t dot = path.find(L'.'); dot != std::wstring::npos; at = dot + 1, dot = path.find(L'.', at)) {
            const Step step(path.substr(at, dot - at));
            object = LateBoundObject(objectOf(object.call(step.member, step.arguments)));
        }
        return {object, Step(path.substr(at))};
    }

    LateBoundObject mForm;
};

class FormObjects : public quorvel::ReportingTest {
protected:
    FormObjects() {
        const auto note = [this](const wchar_t* name) {
            mCallback->addMethod(name, [this, name](const Arguments& arguments, VARIANT&) {
                std::wstring line = name;
                for (std::size_t i = 0; i < arguments.size(); ++i) line += L"|" + arguments.text(i);
                told.push_back(line);
                if (onTold) onTold();
                return S_OK;
            });
        };
        for (const wchar_t* name :
             {L"Terminate", L"setParentWidgetsValue", L"TooltipShow", L"TooltipHide", L"ReturnFocus"})
            note(name);
    }
    ~FormObjects() override { EXPECT_FALSE(host::Module::isInUse()) << "an object of the form's is still alive"; }

    HostedForm open(std::int32_t code, const wchar_t* parentText, const wchar_t* secondaryText = L"") {
        element = library.build(code, makeObject<FormattedText>().get());
        const HostedForm form(host::makeForm(static_cast<std::int16_t>(code)).get());
        form.call(L"Initialize", {mCallback.get(), L"Quorvel", static_cast<IDispatch*>(nullptr)});
        form.call(L"ParentWidgetChanged",
                  {element.dispatch(), static_cast<IDispatch*>(nullptr), parentText, secondaryText});
        service().forget();
        return form;
    }

    /// The errors since the last time: "438 YearForm.Controls[Get]".
    std::wstring takenErrors() {
        std::vector<std::wstring> lines;
        for (const quorvel::Text& error : service().errors()) {
            const std::wstring line = wide(error);
            constexpr std::wstring_view kLibrary = L"QuorvelTemplate.";
            lines.push_back(line.substr(0, line.find(L':')) + L" " +
                            line.substr(line.find(kLibrary) + kLibrary.size()));
        }
        service().forget();
        return joined(lines, L"; ");
    }
    std::wstring takenTold() { return joined(std::exchange(told, {}), L"; "); }

    Library library;
    LateBoundObject element;
    std::vector<std::wstring> told;
    std::function<void()> onTold;

private:
    ComPointer<DispatchObject> mCallback = makeObject<DispatchObject>();
};

struct Answer {
    const wchar_t* path;
    const wchar_t* expected;
    const wchar_t* errors = L"";
};
void PrintTo(const Answer& answer, std::ostream* stream) {
    *stream << std::string(answer.path, answer.path + wcslen(answer.path));
}

TEST_F(FormObjects, AnswerByNameInAnyCase) {
    const HostedForm year = open(kYear, L"[1990?]");
    const Answer kAnswers[] = {
        {L"Name", L"YearForm"},
        {L"CAPTION", L"Year - Quorvel"},
        {L"Icon", L"Nothing"},
        {L"tostring", L"[1990?]"},
        {L"toString(0,0,0)", L"[1990?]"},
        {L"Controls(Year).Text", L"1990"},
        {L"controls(YEAR).text", L"1990"},
        {L"year.Text", L"1990"},
        {L"Controls(OptionButton,2).Value", L"True"},
        {L"OptionButton(2).Value", L"True"},
        {L"optionbutton(0).value", L"False"},
        {L"Controls(OptionButton).Item(2).Value", L"True"},
        {L"YearNotKnownOption.Index", L"1"},
        {L"Controls(YearNotKnownOption).Name", L"OptionButton"},
        {L"OptionButton.Count", L"6"},
        {L"OptionButton.LBound", L"0"},
        {L"OptionButton.UBound", L"5"},
        {L"CommandButton(0).Name", L"OkButton"},
        {L"CommandButton.Count", L"2"},
        {L"OkButton.Caption", L"OK"},
        {L"OkButton.Index", L"-1"},
        {L"Year.Tag", L""},
        {L"Year.Enabled", L"True"},
        {L"Year.TabIndex", L"1"},
        {L"Year.ForeColor", L"-2147483640"},
        {L"Controls(0).Name", L"YearLabel"},
        // What there is not.
        {L"Controls(Nowhere)", L"Nothing", L"438 YearForm.Controls[Get]"},
        {L"Controls(Year,1)", L"Nothing", L"438 YearForm.Controls[Get]"},
        {L"Controls(OptionButton,6)", L"Nothing", L"9 YearForm.Controls[Get]"},
        {L"OptionButton(-1)", L"Nothing", L"9 YearForm.OptionButton[Get]"},
        {L"OptionButton.Item(70000)", L"Nothing", L"9 YearForm.Item[Get]"},
        {L"Controls(-1)", L"Nothing", L"9 YearForm.Controls[Get]"},
        {L"Controls(1000)", L"Nothing", L"9 YearForm.Controls[Get]"},
        {L"Controls(OptionButton,one)", L"Nothing", L"13 YearForm.Controls[Get]"},
        {L"Controls.Item", L"object", L"449 YearForm.Item[Get]"},
        {L"Caption(1)", L"Year - Quorvel", L"450 YearForm.Caption[Get]"},
        {L"toString(maybe)", L"", L"13 YearForm.toString"},
    };
    for (const Answer& answer : kAnswers) {
        SCOPED_TRACE(testing::PrintToString(answer));
        EXPECT_EQ(year.text(answer.path), answer.expected);
        EXPECT_EQ(takenErrors(), answer.errors);
    }
    // Nor does a control have the members of other kinds; a method is not read.
    for (const wchar_t* const none :
         {L"Year.Caption", L"Year.Click", L"OkButton.Text", L"OkButton.Value", L"YearLabel.Value", L"Year.ListCount",
          L"Year.TextRTF", L"Output.Click", L"Year.UpClick"}) {
        const std::wstring path = none;
        const LateBoundObject control = year.object(path.substr(0, path.find(L'.')));
        EXPECT_EQ(idOf(control.dispatch(), path.substr(path.find(L'.') + 1).c_str()), DISPID_UNKNOWN) << path.c_str();
    }
    for (const wchar_t* const none : {L"Nowhere", L"", L"_NewEnum", L"showPseudo"}) {
        EXPECT_EQ(idOf(year.dispatch(), none), DISPID_UNKNOWN);
    }
    const DISPID unload = idOf(year.dispatch(), L"Unload");
    EXPECT_EQ(invoke(year.dispatch(), unload, DISPATCH_PROPERTYGET, {}, nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(year.dispatch(), unload, DISPATCH_PROPERTYPUT, {Variant(1).get()}, nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(
        invoke(year.dispatch(), idOf(year.dispatch(), L"Name"), DISPATCH_PROPERTYPUT, {Variant(1).get()}, nullptr),
        DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(year.dispatch(), DISPID_VALUE, DISPATCH_PROPERTYGET, {}, nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(invoke(year.dispatch(), 4711, DISPATCH_METHOD, {}, nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(takenErrors(), L"");
}

TEST_F(FormObjects, ControlsThatAreWrittenBehaveAsUnderTheUsersHands) {
    const HostedForm year = open(kYear, L"1990");
    struct Change {
        const wchar_t* path;
        Variant value;
        const wchar_t* output;
        const wchar_t* errors = L"";
    };
    Variant variable(L"1995");
    const Change kChanges[] = {
        {L"Controls(Year).Text", L"1991", L"1991"},
        {L"OptionButton(1).Value", true, L"n.d."},
        {L"Year.Text", 1992, L"1992"},
        {L"OptionButton(2).Value", L"True", L"[1992?]"},
        {L"OptionButton(2).Value", L"perhaps", L"[1992?]", L"13 YearForm.Value[Let]"},
        // The control stands for its text or its value.
        {L"Year", L"1993", L"[1993?]"},
        {L"Controls(Year)", L"1994", L"[1994?]"},
        {L"Controls(OptionButton,0)", -1, L"1994"},
        {L"OptionButton(0)", true, L"1994"},
        {L"Year", referenceTo(VT_VARIANT, &variable.get()), L"1995"},
        {L"Year.SelStart", 2, L"1995"},
        {L"Year.SelLength", 100, L"1995"},
        {L"Year.SelText", L"89", L"1989"},
        {L"Year", L"", L""},
        {L"OkButton", L"1990", L"", L"438 YearForm.OkButton[Let]"},
        {L"OptionButton", L"1990", L"", L"438 YearForm.OptionButton[Let]"},
        {L"Year.ForeColor", 255, L""},
    };
    element.call(L"Reset", {true, true, true, L"c.", true, L"n.d.", true});
    service().forget();
    for (const Change& change : kChanges) {
        year.put(change.path, change.value);
        EXPECT_EQ(takenErrors(), change.errors) << &change - kChanges;
        EXPECT_EQ(year.text(L"toString"), change.output) << &change - kChanges;
    }
    EXPECT_EQ(year.text(L"Year.ForeColor"), L"255");
    EXPECT_EQ(year.text(L"Year.SelStart"), L"0");
    EXPECT_TRUE(year.text(L"Output.TextRTF").starts_with(L"{\\rtf"));
    Variant value;
    EXPECT_EQ(invoke(year.object(L"OptionButton(0)").dispatch(), DISPID_VALUE, DISPATCH_PROPERTYGET, {}, &value.get()),
              S_OK);
    EXPECT_EQ(shown(value), L"True");
    year.call(L"UpdateOutput");
    EXPECT_EQ(takenTold(), L"");
}

TEST_F(FormObjects, AreThePlacesOfWindowsInTwips) {
    const HostedForm year = open(kYear, L"1990");
    const float height = year.get(L"Height").get().fltVal;
    EXPECT_EQ(year.get(L"Left").get().vt, VT_R4);
    EXPECT_EQ(year.get(L"ScaleWidth").get().vt, VT_R4);
    EXPECT_LT(year.get(L"ScaleHeight").get().fltVal, height);
    year.put(L"Left", 1500);
    year.put(L"Top", L"3000");
    EXPECT_EQ(year.text(L"Left") + year.text(L"Top"), L"15003000");
    year.call(L"Move", {150, Variant::missing(), 6000});
    EXPECT_EQ(year.text(L"Left") + L" " + year.text(L"Top") + L" " + year.text(L"Width"), L"150 3000 6000");
    EXPECT_EQ(year.get(L"Height").get().fltVal, height);
    year.put(L"Width", L"wide");
    year.call(L"Move", {});
    EXPECT_EQ(takenErrors(), L"13 YearForm.Width[Let]; 449 YearForm.Move");
    EXPECT_EQ(year.text(L"Width"), L"6000");
    EXPECT_GT(year.get(L"Year.Width").get().fltVal, 0);

    EXPECT_NE(year.text(L"hwnd"), L"0");
    EXPECT_NE(year.text(L"Year.hwnd"), year.text(L"hwnd"));

    // It is to be seen when somebody says so.
    const auto owner = makeObject<DispatchObject>();
    year.call(L"Show", {0, owner.get()});
    EXPECT_EQ(takenErrors(), L"438 YearForm.Show");
    EXPECT_EQ(year.text(L"Visible"), L"False");
    year.put(L"Visible", true);
    EXPECT_EQ(year.text(L"Visible"), L"True");
    year.call(L"Hide");
    EXPECT_EQ(year.text(L"Visible"), L"False");
    year.put(L"Enabled", false);
    EXPECT_EQ(year.text(L"Enabled"), L"False");
    EXPECT_EQ(takenErrors(), L"");
}

TEST_F(FormObjects, TheControlsAreACollection) {
    const HostedForm year = open(kYear, L"1990");
    for (const wchar_t* const path : {L"Controls", L"OptionButton"}) {
        const LateBoundObject collection = year.object(path);
        Variant enumeration;
        ASSERT_EQ(invoke(collection.dispatch(), DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {},
                         &enumeration.get()),
                  S_OK);
        ASSERT_EQ(enumeration.get().vt, VT_UNKNOWN);
        ComPointer<IEnumVARIANT> items;
        ASSERT_EQ(enumeration.get().punkVal->QueryInterface(IID_IEnumVARIANT, items.putVoid()), S_OK);
        Variant item;
        std::int32_t count = 0;
        for (; items->Next(1, &item.get(), nullptr) == S_OK; item = Variant(), ++count) {
            const LateBoundObject control(objectOf(item));
            EXPECT_EQ(control.dispatch(), objectOf(collection.call(L"Item", {count})).get());
        }
        EXPECT_EQ(count, numberOf(collection.get(L"Count")));
        EXPECT_GT(count, 5);
    }
    // While somebody holds it, a control is one object.
    const LateBoundObject held = year.object(L"OkButton");
    EXPECT_EQ(held.dispatch(), year.object(L"CommandButton(0)").dispatch());
    EXPECT_EQ(held.dispatch(), year.object(L"Controls(OkButton)").dispatch());
}

TEST_F(FormObjects, WhatFormsHaveBesides) {
    const HostedForm author = open(kAuthors, L"Smith, John, and Ann Lee");
    const Answer kAuthor[] = {
        {L"authors(1).Text", L"Smith, John"},
        {L"Author1.Text", L"Smith, John"},
        {L"SecondaryAuthors(2).Text", L"Lee, Ann"},
        {L"authors.Count", L"6"},
        {L"authors.LBound", L"1"},
        {L"SecondaryAuthors.Count", L"5"},
        {L"AuthorLabels(2).Visible", L"True"},
        {L"AuthorLabels(4).Visible", L"False"},
        {L"Discussant.Visible", L"False"},
        {L"authors(7)", L"Nothing", L"9 AuthorForm.authors[Get]"},
        {L"authors(0)", L"Nothing", L"9 AuthorForm.authors[Get]"},
    };
    for (const Answer& answer : kAuthor) {
        SCOPED_TRACE(testing::PrintToString(answer));
        EXPECT_EQ(author.text(answer.path), answer.expected);
        EXPECT_EQ(takenErrors(), answer.errors);
    }
    // Beside what it hides, a control is not to be seen.
    author.put(L"showDiscussant", true);
    EXPECT_EQ(author.text(L"Discussant.Visible"), L"True");
    author.put(L"showPseudo", true);
    EXPECT_EQ(author.text(L"Pseudoname.Visible"), L"True");
    author.put(L"showPseudo", false);
    EXPECT_EQ(author.text(L"Pseudoname.Visible"), L"False");
    EXPECT_EQ(invoke(author.dispatch(), idOf(author.dispatch(), L"showPseudo"), DISPATCH_PROPERTYGET, {}, nullptr),
              DISP_E_MEMBERNOTFOUND);
    author.put(L"showPseudo", L"perhaps");
    EXPECT_EQ(takenErrors(), L"13 AuthorForm.showPseudo[Let]");
    author.put(L"Discussant", L"Doe, Jane");
    author.object(L"OkButton").call(L"Click");
    EXPECT_EQ(takenTold(),
              L"setParentWidgetsValue|Doe Jane. In discussion of: Smith John, Ann Lee|Discussant; Terminate|1");

    const HostedForm editor = open(kEditors, L"Smith, John", L"Compiler & Ed.");
    EXPECT_EQ(editor.text(L"AuthorType"), L"Compiler & Ed.");
    editor.put(L"AuthorType", L"Translator");
    EXPECT_EQ(editor.text(L"TranslatorOption.Value") + editor.text(L"EditorOption.Value"), L"TrueFalse");
}

TEST_F(FormObjects, WhatOutlivesAFormIsEmpty) {
    LateBoundObject box;
    LateBoundObject controls;
    {
        const HostedForm year = open(kYear, L"1990");
        box = year.object(L"Year");
        controls = year.object(L"Controls");
        onTold = [&] {
            // In the middle of its end.
            EXPECT_EQ(shown(year.get(L"Name")), L"YearForm");
            onTold = nullptr;
        };
        year.call(L"Unload");
        EXPECT_EQ(takenTold(), L"Terminate|1");
        EXPECT_EQ(year.text(L"Year"), L"Nothing");
        EXPECT_EQ(takenErrors(), L"91 YearForm.Year[Get]");
        year.call(L"Unload");
        EXPECT_EQ(year.text(L"hwnd"), L"0");
        EXPECT_EQ(takenErrors() + takenTold(), L"");
    }
    EXPECT_EQ(shown(box.get(L"Text")), L"");
    box.put(L"Text", L"1991");
    box.call(L"SetFocus");
    EXPECT_EQ(shown(controls.get(L"Count")), L"0");
    EXPECT_EQ(takenErrors(),
              L"91 YearForm.Text[Get]; 91 YearForm.Text[Let]; 91 YearForm.SetFocus; 91 YearForm.Count[Get]");

    // An open form closes with its last reference, whoever comes for it in the middle of that.
    {
        const HostedForm year = open(kYear, L"1990");
        box = year.object(L"Year");
        onTold = [&] { EXPECT_EQ(shown(box.get(L"Text")), L""); };
    }
    EXPECT_EQ(takenTold(), L"Terminate|1");
    EXPECT_EQ(takenErrors(), L"91 YearForm.Text[Get]");
}

TEST_F(FormObjects, MayBeLetGoInTheMiddleOfWhatTheyDo) {
    // By whom the form is clicked, or closed; and in which of the calls to the host its last reference goes.
    for (const wchar_t* const member : {L"OkButton", L"CancelButton", L"Unload"}) {
        for (const std::size_t at : {1U, 2U}) {
            HostedForm year = open(kYear, L"1990");
            const bool isButton = std::wstring_view(member) != L"Unload";
            const LateBoundObject button = isButton ? year.object(member) : LateBoundObject();
            IDispatch* const form = year.dispatch();
            const DISPID unload = idOf(form, L"Unload");
            std::size_t calls = 0;
            onTold = [&] {
                if (++calls == at) year = HostedForm();
            };
            if (isButton) {
                button.call(L"Click");
            } else {
                EXPECT_EQ(invoke(form, unload, DISPATCH_METHOD, {}, nullptr), S_OK);
            }
            onTold = nullptr;
            const std::wstring last = L"Terminate|1";
            EXPECT_EQ(takenTold(),
                      std::wstring_view(member) == L"OkButton" ? L"setParentWidgetsValue|1990|; " + last : last);
            EXPECT_EQ(takenErrors(), L"");
        }
    }
}

TEST_F(FormObjects, AreThoseOfTheirTypeCodes) {
    for (const std::int16_t code : {std::int16_t{-1}, std::int16_t{19}, std::int16_t{300}}) {
        EXPECT_FALSE(host::makeForm(code)) << code;
        EXPECT_EQ(host::formClassOf(code), code);
    }
    const auto form = host::makeForm(kYear);
    EXPECT_TRUE(host::subFormOf(form.get()));
    host::subFormOf(form.get())->reveal();
    EXPECT_EQ(HostedForm(form.get()).text(L"Visible"), L"True");
    EXPECT_FALSE(host::subFormOf(library.build(kYear).dispatch()));
}

/// What an object of the host's answers, as a form takes it.
std::wstring taken(const quorvel::forms::Value& value) {
    struct Shown {
        std::wstring operator()(std::monostate) const { return L"nothing"; }
        std::wstring operator()(bool flag) const { return flag ? L"flag True" : L"flag False"; }
        std::wstring operator()(std::int32_t number) const { return L"number " + std::to_wstring(number); }
        std::wstring operator()(const quorvel::Text& text) const { return L"text " + wide(text); }
        std::wstring operator()(const std::vector<quorvel::Text>& texts) const {
            std::wstring list = L"texts";
            for (const quorvel::Text& text : texts) list += L" " + wide(text);
            return list;
        }
        std::wstring operator()(const quorvel::forms::LateObjectRef& object) const {
            return object ? L"object" : L"Nothing";
        }
    };
    return std::visit(Shown(), value.storage());
}

TEST(HostLateObject, ValuesBothWays) {
    Variant given;
    const auto object = makeObject<DispatchObject>();
    std::wstring got;
    object->addMethod(L"answer", [&](const Arguments& arguments, VARIANT& result) {
        for (std::size_t i = 0; i < arguments.size(); ++i) got += L"|" + shown(arguments[i]);
        result = Variant(given).release();
        return S_OK;
    });
    object->addSetter(L"answer", [&](const Arguments& arguments, VARIANT&) {
        for (std::size_t i = 0; i < arguments.size(); ++i) got += L"=" + shown(arguments[i]);
        return S_OK;
    });
    const auto late = host::HostLateObject::of(object.get());
    const auto typed = [](VARTYPE type, double value) {
        Variant real;
        real.get().vt = VT_R8;
        real.get().dblVal = value;
        EXPECT_EQ(VariantChangeType(&real.get(), &real.get(), 0, type), S_OK);
        return real;
    };
    Variant null;
    null.get().vt = VT_NULL;
    Variant number(7);
    const auto scriptArray = makeObject<DispatchObject>();
    scriptArray->addMethod(L"length", [](const Arguments&, VARIANT& result) {
        result = Variant(2).release();
        return S_OK;
    });
    scriptArray->addMethod(L"0", [](const Arguments&, VARIANT& result) {
        result = Variant(L"a").release();
        return S_OK;
    });
    scriptArray->addMethod(L"1", [](const Arguments&, VARIANT& result) {
        result = Variant(2).release();
        return S_OK;
    });
    struct Case {
        Variant answer;
        const wchar_t* taken;
    };
    const Case kCases[] = {
        {Variant(), L"nothing"},
        {null, L"nothing"},
        {Variant::missing(), L"nothing"},
        {L"1990", L"text 1990"},
        {true, L"flag True"},
        {std::int16_t{-3}, L"number -3"},
        {referenceTo(VT_I4, &number.get().lVal), L"number 7"},
        {typed(VT_UI1, 200), L"number 200"},
        {typed(VT_R8, 4), L"number 4"},
        {typed(VT_R8, 2.5), L"text 2.5"},
        {typed(VT_R4, -1), L"number -1"},
        {typed(VT_R8, 1e12), L"text 1000000000000"},
        {typed(VT_CY, 1.5), L"text 1.5"},
        {Variant::array({L"a", 1, null}), L"texts a 1 "},
        {Variant::array({}), L"texts"},
        {scriptArray.get(), L"texts a 2"},
        {object.get(), L"object"},
        {static_cast<IDispatch*>(nullptr), L"Nothing"},
    };
    for (const Case& c : kCases) {
        given = c.answer;
        EXPECT_EQ(taken(late->get(u"answer")), c.taken) << &c - kCases;
    }
    given = Variant(object.get());
    EXPECT_EQ(host::dispatchOf(late->get(u"answer").asObject().get()), object.get());
    EXPECT_EQ(host::HostLateObject::of(nullptr), nullptr);

    using quorvel::forms::Value;
    got.clear();
    const Value arguments[] = {Value(),
                               Value(true),
                               Value(std::int32_t{-2}),
                               Value(quorvel::TextView(u"x")),
                               Value(std::vector<quorvel::Text>{u"a", u"b"}),
                               Value(late),
                               Value(quorvel::forms::LateObjectRef())};
    late->call(u"answer", arguments);
    EXPECT_EQ(got, L"||True|-2|x|{a, b}|object|Nothing");
    got.clear();
    late->put(u"answer", std::span(arguments).subspan(2, 2));
    EXPECT_EQ(got, L"=-2=x");

    const auto errorOf = [&](auto&& call) {
        try {
            call();
        } catch (const quorvel::RuntimeError& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(errorOf([&] { late->get(u"nowhere"); }), 438);
    EXPECT_EQ(errorOf([&] { late->put(u"nowhere", {arguments, 1}); }), 438);
    const std::vector<Value> many(9);
    EXPECT_EQ(errorOf([&] { late->call(u"answer", many); }), 450);
    given = typed(VT_R8, 1e12);
    EXPECT_EQ(VariantChangeType(&given.get(), &given.get(), 0, VT_I8), S_OK);
    EXPECT_EQ(errorOf([&] { late->get(u"answer"); }), 6);
    given = Variant::array({Variant(object.get())});
    EXPECT_EQ(errorOf([&] { late->get(u"answer"); }), 13);
}

}  // namespace
}  // namespace comtests

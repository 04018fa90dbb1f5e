#include <gtest/gtest.h>

#include "elements/newspaper.h"
#include "support/element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;
using Arguments = forms::LateObject::Arguments;

/// The library's own element.
std::shared_ptr<RecordingObject> newspaperElement(TextView brackets) {
    auto newspaper = std::make_shared<OutputTemplateNewspaper>();
    newspaper->Initialize(std::make_shared<RecordingSink>());
    newspaper->Reset({true, Text(brackets), u"The city, unless the title names it."});
    auto seen = std::make_shared<RecordingObject>();
    RecordingObject* const self = seen.get();
    seen->does(u"Parse", [newspaper, self](Arguments arguments) {
        parsed(*newspaper, arguments[0].asText());
        self->has(u"Title", Value(newspaper->Title));
        self->has(u"City", Value(newspaper->City));
        return Value();
    });
    seen->does(u"toString", [newspaper, self](Arguments) {
        newspaper->Title = self->valueOf(u"Title").asText();
        newspaper->City = self->valueOf(u"City").asText();
        return Value(newspaper->toString(false, false));
    });
    seen->does(u"cityTooltip", [newspaper](Arguments) { return Value(newspaper->cityTooltip()); });
    return seen;
}

struct Case {
    TextView brackets;
    TextView text;
    TextView city;
    TextView preview;
    TextView document;
    std::string sent;
};

TEST(NewspaperTitleForm, KeepsACityThatTheStyleDoesNotWrite) {
    const Case kCases[] = {
        {u"[]", u"Globe and Mail [Toronto]", u"Toronto", u"The Globe and Mail [Toronto]",
         u"\\i The Globe and Mail\\i0  [Toronto]}", "The Globe and Mail [Toronto]"},
        {u"", u"Globe and Mail [Toronto]", u"Toronto", u"The Globe and Mail", u"\\i The Globe and Mail\\i0 }",
         "The Globe and Mail [Toronto]"},
        {u"[]", u"Chicago Tribune", u"", u"Chicago Tribune", u"\\i Chicago Tribune\\i0 }", "Chicago Tribune"},
        {u"", u"", u"", u"", u"\\fs17}", ""},
    };
    for (const Case& expected : kCases) {
        const ShownForm shown(4, newspaperElement(expected.brackets), expected.text);
        EXPECT_EQ(shown.at(u"City").text(), expected.city);
        EXPECT_EQ(shown.at(u"City").toolTip(), u"The city, unless the title names it.");
        EXPECT_EQ(shown.preview(), expected.preview);
        EXPECT_TRUE(shown.at(u"Output").rtf().ends_with(expected.document)) << test::utf8Of(shown.at(u"Output").rtf());
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + expected.sent + ", )");
    }
}

}  // namespace
}  // namespace quorvel

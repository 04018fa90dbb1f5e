#include <gtest/gtest.h>

#include "elements/online.h"
#include "support/element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;
using Arguments = forms::LateObject::Arguments;

/// The library's own element.
std::shared_ptr<RecordingObject> onlineElement(bool hasEric) {
    auto online = std::make_shared<OutputTemplateOnline>(
        elementWith<OutputTemplateOnline>(OnlineOptions{true, hasEric, true, u"doi:"}));
    auto seen = std::make_shared<RecordingObject>();
    seen->does(u"Parse", [online](Arguments arguments) {
        parsed(*online, arguments[0].asText());
        return Value();
    });
    seen->does(u"toString", [online](Arguments) { return Value(online->toString(false, false, false)); });
    seen->does(u"Online", [online](Arguments) { return Value(online->Online()); });
    seen->does(u"isEric", [online](Arguments) { return Value(online->isEric()); });
    seen->does(u"SupportsWebsiteAsEric", [online](Arguments) { return Value(online->SupportsWebsiteAsEric()); });
    return seen;
}

struct Case {
    TextView text;
    TextView box;
    bool isEric;
    std::string sent;
};

TEST(OnlineForm, ShowsTheSourceAloneWhereNothingIsLostByThat) {
    const Case kCases[] = {
        {u"Retrieved from http://www.example.org/a", u"www.example.org/a", false,
         "Retrieved from http://www.example.org/a"},
        {u"https://www.example.org", u"https://www.example.org", false, "Retrieved from https://www.example.org"},
        {u"doi:10.1000/182", u"10.1000/182", false, "doi:10.1000/182"},
        {u"Retrieved from ERIC database. (ED482912)", u"ED482912", true, "Retrieved from ERIC database. (ED482912)"},
        {u"Abstract retrieved from http://example.org", u"Abstract retrieved from http://example.org", false,
         "Abstract retrieved from http://example.org"},
        // The element leaves these to the host.
        {u"http://example.org (accessed May 5, 2011)", u"http://example.org (accessed May 5, 2011)", false,
         "http://example.org (accessed May 5, 2011)"},
        {u"PsycINFO database. (Accession No. 1)", u"PsycINFO database. (Accession No. 1)", false,
         "PsycINFO database. (Accession No. 1)"},
        {u"Advance online publication. doi:10.1000/182", u"Advance online publication. doi:10.1000/182", false,
         "Advance online publication. doi:10.1000/182"},
        {u"", u"", false, ""},
    };
    for (const Case& expected : kCases) {
        const ShownForm shown(13, onlineElement(true), expected.text);
        EXPECT_EQ(shown.at(u"Online").text(), expected.box);
        EXPECT_EQ(shown.at(u"EricCheckBox").value(), expected.isEric) << expected.sent;
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + expected.sent + ", )");
    }
}

TEST(OnlineForm, AnEricNumberGoesInAsTheStatement) {
    const ShownForm shown(13, onlineElement(true), u"");
    shown.at(u"EricCheckBox").click();
    shown.type(u"Online", u"ED123456");
    EXPECT_EQ(shown.preview(), u"Retrieved from ERIC database. (ED123456)");
    shown.type(u"Online", u"www.example.org");
    EXPECT_EQ(shown.preview(), u"Retrieved from http://www.example.org");
    EXPECT_FALSE(ShownForm(13, onlineElement(false), u"ED123456").at(u"EricCheckBox").isShown());
}

}  // namespace
}  // namespace quorvel

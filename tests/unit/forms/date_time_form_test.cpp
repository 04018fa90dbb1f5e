#include <gtest/gtest.h>

#include "elements/date/date_time.h"
#include "support/element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;
using Arguments = forms::LateObject::Arguments;

/// The library's own element.
std::shared_ptr<RecordingObject> dateTimeElement() {
    auto dateTime = std::make_shared<OutputTemplateDateTime>();
    dateTime->Initialize(std::make_shared<RecordingSink>());
    auto seen = std::make_shared<RecordingObject>();
    seen->does(u"Parse", [dateTime](Arguments arguments) {
        parsed(*dateTime, arguments[0].asText(), arguments[1].asText());
        return Value();
    });
    seen->does(u"value", [dateTime](Arguments which) {
        return Value(dateTime->value(static_cast<std::int16_t>(which[0].asNumber())));
    });
    seen->does(u"toString", [dateTime](Arguments) { return Value(dateTime->toString(false, false, false)); });
    return seen;
}

struct Case {
    TextView text;
    TextView secondText;
    TextView date;
    TextView time;
    std::string sent;
};

TEST(DateTimeForm, TheTimeGoesBackToWhereItCameFrom) {
    const Case kCases[] = {
        {u"1 September 2011, 10:23 AM PDT", u"", u"1 September 2011", u"10:23 AM PDT",
         "September 1, 2011, 10:23 a.m. PDT, "},
        {u"1 September 2011", u"10:23 AM PDT", u"1 September 2011", u"10:23 AM PDT", "September 1, 2011, 10:23 AM PDT"},
        {u"September 2011", u"", u"September 2011", u"", "September 2011, "},
        {u"", u"around noon", u"", u"around noon", ", around noon"},
    };
    for (const Case& expected : kCases) {
        const ShownForm shown(17, dateTimeElement(), expected.text, expected.secondText);
        EXPECT_EQ(shown.at(u"Date").text(), expected.date);
        EXPECT_EQ(shown.at(u"Time").text(), expected.time);
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + expected.sent + ")");
    }
}

TEST(DateTimeForm, AZoneThatIsTypedIsOne) {
    const ShownForm shown(17, dateTimeElement(), u"September 1, 2011");
    shown.type(u"Time", u"1:47:54 pm ET");
    EXPECT_EQ(shown.preview(), u"September 1, 2011, 1:47:54 p.m. ET");
}

}  // namespace
}  // namespace quorvel

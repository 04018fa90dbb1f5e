// The forms that show a text and how it is known, shown on the place.

#include <gtest/gtest.h>

#include "elements/place.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

using forms::Value;

/// The library's own place, in a style that writes guesses but neither knows "n.p." nor brackets.
std::shared_ptr<RecordingObject> placeElement() {
    auto place = std::make_shared<OutputTemplatePlace>();
    place->Initialize(nullptr);
    place->Reset({.supportPlaceGuess = true});
    auto seen = std::make_shared<RecordingObject>();
    RecordingObject* const self = seen.get();
    seen->does(u"Supports",
               [place](forms::LateObject::Arguments which) { return Value(place->Supports(which[0].asNumber())); });
    seen->does(u"Parse", [place, self](forms::LateObject::Arguments arguments) {
        Text text = arguments[0].asText();
        place->Parse(text, {});
        self->has(u"Place", Value(place->Place));
        self->has(u"placeType", Value(place->placeType));
        return Value();
    });
    seen->does(u"toString", [place, self](forms::LateObject::Arguments) {
        place->Place = self->valueOf(u"Place").asText();
        place->placeType = self->valueOf(u"placeType").asNumber();
        return Value(place->toString(false, false, {}));
    });
    return seen;
}

struct Case {
    TextView text;
    TextView box;
    std::int16_t type;
    /// Empty: nothing is typed.
    TextView typed;
    std::string sent;
};

TEST(PlaceForm, GivesTheHostWhatItHadOrWhatTheUserSays) {
    const Case kCases[] = {
        {u"Boston, MA", u"Boston, MA", 0, u"", "Boston, MA"},
        {u"Washington, D.C.", u"Washington, D.C.", 0, u"", "Washington, D.C."},
        {u"[Boston?]", u"Boston", 2, u"", "[Boston?]"},
        {u"[Boston?]", u"Boston", 2, u"London ", "[London?]"},
        // Not offered: shown, and kept for another style.
        {u"[Boston]", u"Boston", 3, u"", "[Boston]"},
        {u"[Boston]", u"Boston", 3, u"London", "London"},
        {u"n.p.", u"", 1, u"", "n.p."},
        {u"n.p.", u"", 1, u"London", "London"},
    };
    for (const Case& expected : kCases) {
        const ShownForm shown(15, placeElement(), expected.text);
        EXPECT_EQ(shown.at(u"Place").text(), expected.box);
        for (std::int16_t type = 0; type <= 3; ++type) {
            const bool isSelected = type == expected.type;
            EXPECT_EQ(shown.at({u"OptionButton", type}).value(), isSelected) << expected.sent;
            EXPECT_EQ(shown.at({u"OptionButton", type}).isShown(), isSelected || type == 0 || type == 2);
        }
        if (!expected.typed.empty()) {
            shown.type(u"Place", expected.typed);
        }
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + expected.sent + ", )");
    }
}

}  // namespace
}  // namespace quorvel

#include "elements/publisher.h"

#include "support/lent_element.h"
#include "support/shown_form.h"

namespace quorvel {
namespace {

/// As a style has it.
struct PublisherElement : LentElement<OutputTemplatePublisher> {
    explicit PublisherElement(const PublisherOptions& options) : LentElement(options) {
        using Publisher = OutputTemplatePublisher;
        lend(u"publisher", &Publisher::publisher, &Publisher::publisher);
        lend(u"Imprint", &Publisher::Imprint, &Publisher::Imprint);
        lend(u"CoPublisher", &Publisher::CoPublisher, &Publisher::CoPublisher);
        lend(u"copublisherPlace", &Publisher::copublisherPlace);
        lend(u"PublisherType", &Publisher::PublisherType);
        object->has(u"SupportAdvancedOptions", forms::Value(options.useAdvancedOptions));
        object->has(u"supportCoPublisher", forms::Value(options.supportCoPublisher));
    }
};

constexpr PublisherOptions kAll = {.supportCoPublisher = true, .useAdvancedOptions = true};

TEST(PublisherForm, ShowsWhatTheStyleOffersAndWhatTheTextHas) {
    struct Case {
        PublisherOptions options;
        TextView text;
        bool hasImprint, hasCoPublisher, hasPreparation;
        std::int16_t kind;
    };
    const Case kCases[] = {
        {kAll, u"Penguin", true, true, true, 0},
        {{}, u"Penguin", false, false, false, 0},
        {{.supportCoPublisher = true}, u"n.p.", false, true, false, 1},
        {{}, u"McGraw-Hill", true, false, false, 0},
        {{}, u"Norton; London: Faber", false, true, false, 0},
        {{}, u"Manuscript in preparation", false, false, true, 2},
    };
    forms::Twips lowest = 0;
    for (const Case& c : kCases) {
        const PublisherElement element(c.options);
        const ShownForm shown(5, element.object, c.text);
        EXPECT_EQ(shown.at(u"Imprint").isShown(), c.hasImprint);
        EXPECT_EQ(shown.at({u"Label", 1}).isShown(), c.hasImprint);
        EXPECT_EQ(shown.at(u"CoPublisher").isShown(), c.hasCoPublisher);
        EXPECT_EQ(shown.at(u"CoPublisherPlace").isShown(), c.hasCoPublisher);
        EXPECT_EQ(shown.at({u"OptionButton", 2}).isShown(), c.hasPreparation);
        EXPECT_TRUE(shown.at({u"OptionButton", c.kind}).value());
        lowest = lowest == 0 ? shown.form->scale().height : lowest;
        EXPECT_LE(shown.form->scale().height, lowest) << "the height follows what is shown";
        const Text before = shown.preview();
        shown.clickOk();
        EXPECT_EQ(told(shown).front(), "setParentWidgetsValue(" + test::utf8Of(before) + ", )");
        EXPECT_EQ(before, c.text);
    }
}

TEST(PublisherForm, TypingANameTellsThatItIsKnown) {
    for (const TextView box : {TextView(u"publisher"), TextView(u"Imprint"), TextView(u"CoPublisher")}) {
        const PublisherElement element(kAll);
        const ShownForm shown(5, element.object, u"n.p.");
        shown.type(box, u"Viking");
        EXPECT_TRUE(shown.at({u"OptionButton", 0}).value());
        EXPECT_EQ(shown.preview(), u"Viking");
        shown.at({u"OptionButton", 4}).click();
        EXPECT_EQ(shown.preview(), u"Author");
        EXPECT_EQ(shown.at(box).text(), u"Viking");
    }
}

}  // namespace
}  // namespace quorvel

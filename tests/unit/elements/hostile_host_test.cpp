#include <gtest/gtest.h>

#include <functional>

#include "core/output_template_model.h"
#include "elements/author/author.h"
#include "elements/citation/citation.h"
#include "elements/date/date_time.h"
#include "elements/edition/edition.h"
#include "elements/issue/issue.h"
#include "elements/keywords.h"
#include "elements/medium/medium.h"
#include "elements/multi_vol/multi_vol.h"
#include "elements/newspaper.h"
#include "elements/online.h"
#include "elements/page.h"
#include "elements/place.h"
#include "elements/publisher.h"
#include "elements/title/title.h"
#include "elements/year.h"
#include "support/recording_model.h"
#include "support/recording_service.h"
#include "support/recording_sink.h"
#include "support/refers_to_preset.h"
#include "support/style_presets.h"

// What is gone while somebody still works with it shows under a sanitizer only; without one these tests
// say little.

namespace quorvel {
namespace {

/// An element as a host drives it, whatever its class is.
struct Element {
    std::function<void(const OutputSinkRef& sink)> initialize;
    std::function<void()> reset;
    std::function<void(TextView text)> parse;
    std::function<void(const OutputSinkRef& sink)> write;
    std::function<void()> read;
};

template <class Class>
Element elementOf(std::function<void(Class&)> reset) {
    const auto element = std::make_shared<Class>();
    const auto read = [element] {
        if constexpr (requires { element->toString(false, false); }) {
            element->toString(false, false);
        } else if constexpr (requires { element->toString(false, false, u""); }) {
            element->toString(false, false, u"");
        } else {
            element->toString(false, false, true);
        }
        if constexpr (requires { element->Clone(); }) {
            element->Clone();
        } else if constexpr (requires { element->Clone(nullptr); }) {
            element->Clone(std::make_shared<RecordingSink>());
        }
    };
    return {[element](const OutputSinkRef& sink) { element->Initialize(sink); }, [element, reset] { reset(*element); },
            [element](TextView text) {
                Text left(text);
                element->Parse(left, {});
            },
            [element](const OutputSinkRef& sink) { element->ToFormattedString(sink, false, false); }, read};
}

void resetTitle(OutputTemplateTitle& title) {
    const auto author = std::make_shared<OutputTemplateAuthor>();
    author->Initialize(std::make_shared<RecordingSink>());
    author->Reset(test::apaAuthorOptions());
    title.Reset({2, author, false, true, u"books", true, u"parts", true, u"Introduction,Article"});
}

void resetRefersTo(OutputTemplateRefersTo& refersTo) {
    refersTo.Reset(test::refersToOptions("mla", std::make_shared<RecordingSink>()));
}

/// The implementor of a host, which puts a fragment of its own in the place of the one that it gets.
class Reference final : public Implementor {
public:
    Text text;
    std::shared_ptr<RecordingSink> sink;

    void ToFormattedString(const OutputSinkRef&, bool, bool) override {}
    bool ToFormattedStringImpl(bool, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool) override {
        std::vector<Text> texts(items.size(), text);
        std::vector<OutputSinkRef> fragments(formattedItems.size());
        fragments.at(1) = sink->BuildNewFormattedString();
        fragments.at(1)->Add(text);
        items.swap(texts);
        formattedItems.swap(fragments);
        return false;
    }
};

Element modelElement() {
    const auto model = std::make_shared<OutputTemplateModel>();
    const auto reference = std::make_shared<Reference>();
    const auto fields = std::make_shared<RecordingModel>(std::map<std::int16_t, Text>{{1, u"a"}, {7, u""}});
    return {[=](const OutputSinkRef& sink) {
                reference->sink = std::dynamic_pointer_cast<RecordingSink>(sink);
                model->Initialize(sink, std::make_shared<NumberedKeys>(std::vector<Text>{u"kind"}));
            },
            [=] {
                model->Reset(1, u"", 0);
                model->Add(0, false, u"kind=a", {u"", u", ", u".", u"", u"; ", u"."});
                model->Add(1, true, u"", {u"", u"."});
            },
            [=](TextView text) { reference->text = Text(text); },
            [=](const OutputSinkRef& sink) {
                const auto own = std::make_shared<Reference>(*reference);
                own->sink = std::dynamic_pointer_cast<RecordingSink>(sink);
                model->ToFormattedString(sink, own, fields, false, false);
            },
            [] {}};
}

/// A citation in its own layout, or in one of a host's.
Element citationElement(bool isLikeModelTemplate) {
    const auto citation = std::make_shared<OutputTemplateCitation>();
    const auto fields = std::make_shared<RecordingModel>();
    return {
        [=](const OutputSinkRef& sink) {
            const auto author = std::make_shared<OutputTemplateAuthor>();
            author->Initialize(sink);
            author->Reset(test::apaAuthorOptions());
            const auto title = std::make_shared<OutputTemplateTitle>();
            title->Initialize(sink);
            resetTitle(*title);
            citation->Initialize(sink, true, std::make_shared<NumberedKeys>(std::vector<Text>{}), author, title, sink);
        },
        [=] {
            citation->Reset(
                {u", ", true, u"vol. ", false, true, true, true, true, true, true, true, false, u", ", u", ", u": "});
            if (isLikeModelTemplate) {
                citation->ResetLikeModelTemplate(1, nullptr);
                citation->Add(0, true, u"", {u"", u", ", u"."});
                citation->Add(1, true, u"", {u"", u"."});
            }
        },
        [=](TextView text) {
            Text left(text);
            citation->Parse(left, {});
        },
        [=](const OutputSinkRef& sink) { citation->ToFormattedString(sink, fields, 0, true, false); },
        [=] { citation->toString(nullptr, 0, true); }};
}

struct Case {
    const char* name;
    std::function<Element()> make;
    TextView text;
    TextView other;
};

void resetEdition(OutputTemplateEdition& edition) {
    const auto page = std::make_shared<OutputTemplatePage>();
    page->Initialize(nullptr);
    page->Reset(PageOptions());
    edition.Reset({2, page});
}

const Case kCases[] = {
    {"author",
     [] { return elementOf<OutputTemplateAuthor>([](auto& author) { author.Reset(test::amaAuthorOptions()); }); },
     u"Smith, John, World Health Organization, and Ann Lee, eds.", u"Kuhn T"},
    {"title", [] { return elementOf<OutputTemplateTitle>(resetTitle); },
     u"Introduction to \u201CThe \u2018Other\u2019 Question,\u201D by Ann Lee [Die andere Frage]", u"A Life"},
    {"issue", [] { return elementOf<OutputTemplateIssue>([](auto& issue) {
                       issue.Reset({3, u"Special issue"});
                   }); },
     u"4, \u201CThe \u2018Other\u2019 Question,\u201D ed. Ann Lee, special issue", u"4 (suppl 2)"},
    {"newspaper",
     [] {
         return elementOf<OutputTemplateNewspaper>([](auto& newspaper) { newspaper.Reset({true, u"[]", u"hint"}); });
     },
     u"Globe and Mail [Toronto]", u"Times (London)"},
    {"online",
     [] { return elementOf<OutputTemplateOnline>([](auto& online) {
              online.Reset({true, true, true, u"doi:"});
          }); },
     u"Abstract retrieved from https://www.example.org/a", u"DOI: 10.1000/182"},
    {"publisher",
     [] {
         return elementOf<OutputTemplatePublisher>([](auto& publisher) {
             publisher.Reset({true, true, true, true, true});
         });
     },
     u"Vintage-Knopf; London: Random House Press", u"MIT Press"},
    {"medium", [] { return elementOf<OutputTemplateMedium>([](auto& medium) { medium.Reset({}); }); },
     u"Microform. NewsBank: Welfare 12 (1990): fiche 1, grids A8-11", u"CD-ROM. Disc 3"},
    {"multi-volume",
     [] {
         return elementOf<OutputTemplateMultiVol>([](auto& volumes) {
             MultiVolOptions options;
             options.SupportGeneralEditor = true;
             volumes.Reset(options);
         });
     },
     u"Studies, 2nd ser., vol. 12, no. 3, edited by A. Lee", u"Records 7"},
    {"page", [] { return elementOf<OutputTemplatePage>([](auto& page) { page.Reset(PageOptions()); }); },
     u"pp. 112-15n3", u"chap. 4"},
    {"edition", [] { return elementOf<OutputTemplateEdition>(resetEdition); },
     u"Rpt. of \u201CChance.\u201D By A. Lee. Critical Inquiry 18.4 (1992): 625-884", u"(2nd ed.)"},
    {"refers-to, a journal", [] { return elementOf<OutputTemplateRefersTo>(resetRefersTo); },
     u"abstract of Lee K, Roe B. A title. N Engl J Med. 2004;291(20):2432-2440", u"[abstract]"},
    {"refers-to, a reprint", [] { return elementOf<OutputTemplateRefersTo>(resetRefersTo); },
     u"1984. Rpt. in Essays. Ed. Ann Lee. Vol. 2. Oxford: Oxford UP, 1990. 118-27", u"Trans. Jane Smith"},
    {"keywords", [] { return elementOf<OutputTemplateKeywords>([](auto& keywords) { keywords.Reset(); }); },
     u"zebra, the cat and dogs", u"apple"},
    {"year",
     [] {
         return elementOf<OutputTemplateYear>([](auto& year) {
             year.Reset({true, false, true, u"c.", true, u"n.d.", true});
         });
     },
     u"[ca. 1990-95]", u"May 5, 1990"},
    {"place",
     [] { return elementOf<OutputTemplatePlace>([](auto& place) {
              place.Reset({true, true, true, true, false});
          }); },
     u"[Lincoln, NE?]", u"n.p."},
    {"date-time",
     [] { return elementOf<OutputTemplateDateTime>([](auto& dateTime) {
              dateTime.Reset({u"d mmmm yyyy", true});
          }); },
     u"May 5, 2011, 9:15 a.m. PDT", u"June 2010"},
    {"model", modelElement, u"text", u"other"},
    {"citation", [] { return citationElement(false); }, u"(Smith & Jones, \u201CA Life,\u201D vol. 2, p. 12)",
     u"(Lee, 2005)"},
    {"citation in a host's layout", [] { return citationElement(true); }, u"Smith, A Life, 12", u"(Lee, 2005)"},
};

void use(const Element& element, const OutputSinkRef& sink, TextView text) {
    element.initialize(sink);
    element.reset();
    element.parse(text);
    element.write(sink);
    element.read();
}

using HostileHost = ReportingTest;

// The host begins anew with the element, or has it read and write another text, in the middle of each of the calls
// that it gets, and at the end of each of its objects, in turn. With the parameters there are many more calls; then
// some of them are enough.
TEST_F(HostileHost, MayUseTheElementInTheMiddleOfAnything) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        Text expected;
        for (const auto& [beginsAnew, step] : {std::pair(true, 1), std::pair(true, 11), std::pair(false, 1)}) {
            int calls = 0;
            // What makes many calls is interrupted at some of them.
            for (int n = 0; n <= calls; n += step + calls / 150) {
                const Element element = c.make();
                const auto sink = std::make_shared<RecordingSink>();
                const auto called = [&, anew = beginsAnew] {
                    if (++calls != n) {
                        return;
                    }
                    if (anew) {
                        use(element, std::make_shared<RecordingSink>(), c.other);
                        element.initialize(nullptr);
                    } else {
                        element.parse(c.other);
                        element.reset();
                        element.write(std::make_shared<RecordingSink>());
                        element.read();
                    }
                };
                sink->onCall(called);
                sink->onEnd(called);
                service().onCall(called);
                protector().switches().vbwTraceProc = true;
                protector().switches().vbwTraceParameters = step > 1;
                calls = 0;
                use(element, sink, c.text);
                // Nobody listens any more.
                protector().switches().vbwTraceProc = false;
                sink->onCall({});
                sink->onEnd({});
                service().onCall({});
                service().forget();
                const auto after = std::make_shared<RecordingSink>();
                use(element, after, c.text);
                expected = expected.empty() ? after->plain() : expected;
                ASSERT_EQ(after->plain(), expected) << "call " << n;
            }
            EXPECT_GT(calls, 10);
        }
        EXPECT_NE(expected, u"");
    }
}

// Whichever call fails, of the sink that is written to or of the element's own: it is reported, only what was refused
// is lost (with an opening text the slots that it opens), and the element works on.
TEST_F(HostileHost, MayFailAtAnyCall) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        const Element element = c.make();
        const auto own = std::make_shared<RecordingSink>();
        use(element, own, c.text);
        const auto whole = std::make_shared<RecordingSink>();
        element.write(whole);
        EXPECT_EQ(service().errors(), std::vector<Text>());
        if (std::string_view(c.name) == "model") {
            continue;  // Its implementor is the test's own, and fails with the sink.
        }
        for (int call = 1; call <= whole->calls(); ++call) {
            service().forget();
            const auto failing = std::make_shared<RecordingSink>();
            failing->failAt(call);
            element.write(failing);
            EXPECT_FALSE(service().errors().empty()) << call;
            EXPECT_LE(failing->plain().size(), whole->plain().size()) << call;
            EXPECT_GE(failing->phrases().size() + 4, whole->phrases().size()) << call;
        }
        for (const auto& write : {element.read, std::function<void()>([&] { element.write(own); })}) {
            for (int call = 1, before = 0; own->calls() >= before; ++call) {
                service().forget();
                before = own->calls() + call;
                own->failAt(call);
                write();
                EXPECT_EQ(own->calls() >= before, !service().errors().empty()) << call;
            }
            own->failAt(0);
        }
        service().forget();
        element.write(nullptr);
        EXPECT_FALSE(service().errors().empty());
        const auto after = std::make_shared<RecordingSink>();
        element.write(after);
        EXPECT_EQ(after->phrases(), whole->phrases());
        service().forget();
    }
}

}  // namespace
}  // namespace quorvel

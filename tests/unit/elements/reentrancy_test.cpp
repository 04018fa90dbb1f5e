#include <gtest/gtest.h>

#include <functional>

#include "elements/author/author.h"
#include "elements/date/date_time.h"
#include "elements/keywords.h"
#include "elements/page.h"
#include "elements/place.h"
#include "elements/publisher.h"
#include "elements/title/title.h"
#include "elements/year.h"
#include "support/recording_service.h"
#include "support/recording_sink.h"
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

struct Case {
    const char* name;
    std::function<Element()> make;
    TextView text;
    TextView other;
};

void resetTitle(OutputTemplateTitle& title) {
    const auto author = std::make_shared<OutputTemplateAuthor>();
    author->Initialize(std::make_shared<RecordingSink>());
    author->Reset(test::apaAuthorOptions());
    title.Reset({2, author, false, true, u"books", true, u"parts", true, u"Introduction,Article"});
}

const Case kCases[] = {
    {"author",
     [] { return elementOf<OutputTemplateAuthor>([](auto& author) { author.Reset(test::amaAuthorOptions()); }); },
     u"Smith, John, World Health Organization, and Ann Lee, eds.", u"Kuhn T"},
    {"title", [] { return elementOf<OutputTemplateTitle>(resetTitle); },
     u"Introduction to \u201CThe \u2018Other\u2019 Question,\u201D by Ann Lee [Die andere Frage]", u"A Life"},
    {"publisher",
     [] {
         return elementOf<OutputTemplatePublisher>([](auto& publisher) {
             publisher.Reset({true, true, true, true, true});
         });
     },
     u"Vintage-Knopf; London: Random House Press", u"MIT Press"},
    {"page", [] { return elementOf<OutputTemplatePage>([](auto& page) { page.Reset(PageOptions()); }); },
     u"pp. 112-15n3", u"chap. 4"},
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
};

void use(const Element& element, const OutputSinkRef& sink, TextView text) {
    element.initialize(sink);
    element.reset();
    element.parse(text);
    element.write(sink);
    element.read();
}

using Reentrancy = ReportingTest;

// The host begins anew with the element in the middle of each of the calls that it gets, in turn. With the
// parameters there are many more calls; then some of them are enough.
TEST_F(Reentrancy, AnElementMayBeginAnewInTheMiddleOfAnything) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.name);
        Text expected;
        for (const int step : {1, 11}) {
            int calls = 0;
            for (int n = 0; n <= calls; n += step) {
                const Element element = c.make();
                const auto sink = std::make_shared<RecordingSink>();
                const auto called = [&] {
                    if (++calls == n) {
                        use(element, std::make_shared<RecordingSink>(), c.other);
                        element.initialize(nullptr);
                    }
                };
                sink->onCall(called);
                service().onCall(called);
                protector().switches().vbwTraceProc = true;
                protector().switches().vbwTraceParameters = step > 1;
                calls = 0;
                use(element, sink, c.text);
                // Nobody listens any more.
                protector().switches().vbwTraceProc = false;
                sink->onCall({});
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

}  // namespace
}  // namespace quorvel

#include "recording_service.h"
#include "writing/reference_model.h"

namespace comtests {
namespace {

constexpr const wchar_t* kKeys[] = {L"author", L"title", L"year", L"citedPage"};

class Citation : public ServiceTest {
protected:
    Citation() {
        const LateBoundObject main = library.main2();
        const LateBoundObject author(objectOf(main.call(L"build", {0, sink.get()})));
        author.call(L"Reset", {false, true,  L"(Ed.),(Comp.),(Trans.)",
                               L"&",  false, true,
                               true,  true,  true,
                               8,     6,     3,
                               6,     1,     true,
                               true,  true,  false,
                               L" ",  true,  true,
                               false, false});
        const LateBoundObject title(objectOf(main.call(L"build", {1, sink.get()})));
        title.call(L"Reset", {1, author.dispatch(), true, true, L"", true, L"", true, L""});
        const LateBoundObject keys = LateBoundObject::create(L"Scripting.Dictionary");
        for (std::int32_t i = 0; i < 4; ++i) keys.call(L"Add", {kKeys[i], i + 1});
        citation.call(L"Initialize", {sink.get(), true, keys.dispatch(), author.dispatch(), title.dispatch(),
                                      static_cast<IDispatch*>(nullptr)});
        citation.call(L"Reset", {L", ", true, L"Vol. ", false, false, true, true, false, false, true, false, false,
                                 L", ", L", ", L", "});
    }

    LateBoundObject citation = LateBoundObject(objectOf(library.main2().call(L"buildCitationTemplate")));
    ComPointer<FormattedText> sink = makeObject<FormattedText>();
    ComPointer<ReferenceModel> model = makeObject<ReferenceModel>();
};

TEST_F(Citation, IsWrittenFromTheHostsModelAndReadIntoIt) {
    model->set(1, L"Smith, J., & Jones, K.");
    model->set(2, L"Wheel");
    model->set(3, L"2005");
    model->set(4, L"p. 12");
    EXPECT_EQ(textOf(citation.call(L"toString", {model.get()})), L"(Smith & Jones, 2005, p. 12)");
    citation.call(L"ToFormattedString", {sink.get(), model.get(), 1});
    EXPECT_EQ(sink->toString(), L"(J. Smith & Jones, 2005, p. 12)");
    model->set(1, L"");
    sink->reset();
    citation.call(L"ToMinimalFormattedString", {sink.get(), model.get()});
    EXPECT_EQ(sink->toString(), L"(Wheel, 2005, p. 12)");
    EXPECT_EQ(sink->phrases()[1].font, 1);

    const auto cited = makeObject<ReferenceModel>();
    citation.call(L"Parse", {L"(Kuhn, 1970, p. 52)"});
    EXPECT_EQ(textOf(citation.get(L"Year")), L"1970");
    citation.put(L"Year", L"1996");
    citation.call(L"MergeFieldsWithModel", {cited.get()});
    EXPECT_EQ(cited->value(1) + L"|" + cited->value(3) + L"|" + cited->value(4), L"Kuhn|1996|p. 52");
    EXPECT_EQ(service.takenErrors(), L"");
}

TEST_F(Citation, ReportsAModelWithoutValueAndReadsNoFieldThatTheDictionaryLacks) {
    const auto empty = makeObject<DispatchObject>();
    sink->reset();
    citation.call(L"ToFormattedString", {sink.get(), empty.get()});
    EXPECT_EQ(sink->toString(), L"");
    EXPECT_EQ(service.takenErrors(), L"438 OutputTemplateCitation.ToFormattedString");
    // Field 0 is what an unknown key would give: no part of a citation.
    model->set(0, L"Zero");
    EXPECT_EQ(textOf(citation.call(L"toString", {model.get()})), L"(n.d.)");
}

}  // namespace
}  // namespace comtests

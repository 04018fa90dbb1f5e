#include "support/refers_to_preset.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto elementOf(std::string_view style) {
    return parseAndWrite(
        elementWith<OutputTemplateRefersTo>(test::refersToOptions(style, std::make_shared<NullSink>())));
}
auto mla() {
    return elementOf("mla");
}
auto ama() {
    return elementOf("ama");
}

constexpr const char* kName = "parseAndFormatRefersTo";
const bool kTexts[] = {
    benchTexts(
        kName, ama,
        {{"retracted", u"retracted in: Lancet. 2010;375(9713):445"},
         {"retraction", u"retraction of: Hwang WS, Roh SI, Lee BC, et al. In: Science. 2005;308(5729):1777-1783"},
         {"abstract", u"[abstract]"}}),
    benchTexts(kName, mla,
               {{"reprint",
                 u"Rpt. in Twentieth-Century Literary Criticism. Ed. Dennis Poupard. Vol. 25. Detroit: Gale, 1988. "
                 u"399-402"},
                {"serialized", u"Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006"},
                {"serialArticle", u"52.4 (1981): 688-705; 53.1 (1981): 164-80"},
                {"translator", u"Trans. Jane Smith"}})};
constexpr TextView kPiece = u"Lee K. A title; in St. Louis: 52.4 (1981), ";
const bool kGrowth = benchGrowth("refersToPerCharacter", mla,
                                 {{.name = "abstract", .lead = u"abstract of ", .piece = kPiece},
                                  {.name = "reprint", .lead = u"Rpt. in ", .piece = kPiece},
                                  {.name = "text", .piece = kPiece}});

}  // namespace
}  // namespace quorvel::bench

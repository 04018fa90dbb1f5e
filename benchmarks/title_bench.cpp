#include "elements/title/title.h"

#include "element_bench.h"

namespace quorvel::bench {
namespace {

auto titleIn(std::int16_t format, bool isSentence) {
    return elementWith<OutputTemplateTitle>(TitleOptions{format, nullptr, isSentence, true, u"", true, u"", true, u""});
}
template <bool kIsSentence>
auto titleOf() {
    return parseAndWrite(titleIn(kIsSentence ? 1 : 2, kIsSentence));
}
template <bool kIsSentence>
auto formatRule() {
    return [title = titleIn(2, kIsSentence)](TextView text, TextView) {
        benchmark::DoNotOptimize(title->formatRule(text));
    };
}

constexpr const char* kName = "parseAndFormatTitle";
const bool kTexts[] = {benchTexts(kName, titleOf<false>,
                                  {{"heading", u"The structure of scientific revolutions"},
                                   {"headingLong", u"Guns, germs, and steel: The fates of human societies"}}),
                       benchTexts(kName, titleOf<true>,
                                  {{"sentence", u"The Structure of Scientific Revolutions"},
                                   {"sentenceLong", u"The Power Broker: Robert Moses and the Fall of New York"}})};
constexpr TextView kPiece = u"The War-Time Letters of E. Coli vs. New York: ";
const bool kGrowth[] = {benchGrowth("titlePerCharacter", formatRule<false>, {{.name = "heading", .piece = kPiece}}),
                        benchGrowth("titlePerCharacter", formatRule<true>, {{.name = "sentence", .piece = kPiece}})};

}  // namespace
}  // namespace quorvel::bench

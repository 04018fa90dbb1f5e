#include <algorithm>

#include "elements/keywords.h"
#include "fuzz_input.h"

using namespace quorvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const bool keepOrder = (input.options() & 1) != 0;
    const Text text = input.rest();

    OutputTemplateKeywords keywords;
    keywords.Initialize(nullptr);
    keywords.Parse(text, keepOrder ? u"KEEP_ORDER" : u"");
    const Text written = keywords.toString(false, false);
    require(keywords.hasWords() == !written.empty());
    if (written.empty()) {
        return 0;
    }
    const std::vector<Text> words = split(written, u",");
    for (const Text& word : words) {
        require(keywords.validKeyword(word) && !keywords.exists(word));
        require(!keywords.Add(word, false));
    }
    require(keepOrder || std::is_sorted(words.begin(), words.end()));

    // What was written reads the same.
    keywords.Parse(written, keepOrder ? u"KEEP_ORDER" : u"");
    require(keywords.toString(false, false) == written);
    return 0;
}

#include <algorithm>

#include "elements/keywords.h"
#include "fuzz_input.h"

using namespace quorvel;

void quorvel::tryInput(FuzzInput& input) {
    const bool keepOrder = (input.options() & 1) != 0;
    const Text text = input.rest();

    OutputTemplateKeywords keywords;
    keywords.Initialize(nullptr);
    keywords.Parse(text, keepOrder ? u"KEEP_ORDER" : u"");
    const Text written = keywords.toString(false, false);
    require(keywords.hasWords() == !written.empty());
    if (written.empty()) {
        return;
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
}

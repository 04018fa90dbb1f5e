#include "elements/title/roman.h"

#include <algorithm>

#include "core/letter_case.h"

namespace quorvel::titleroman {

using titlecase::Range;
using titlecase::slice;
using titlecase::Word;
using words::Lexicon;

void findSpecies(Text& text, std::span<const Word> words, std::vector<Range>& roman) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        if (!words[i].known.is(titlewords::kSpeciesEpithet)) {
            continue;
        }
        const Word& before = words[i - 1];
        const TextView genus = slice(text, before.core);
        const std::size_t gap = words[i].core.begin - before.core.end;
        const bool isInitial = genus.size() == 1 && gap == 2 && text[before.core.end] == u'.';
        // As it is written now: a heading may have given it its capital.
        const bool isName = (Lexicon::instance().classesOf(before.known.entry, genus) & titlewords::kName) != 0;
        if (isInitial || (gap == 1 && isName)) {
            titlecase::lowerAt(text, words[i].core.begin);
            roman.push_back({before.core.begin, words[i].core.end});
        }
    }
}

void findShips(TextView text, std::span<const Word> words, std::vector<Range>& roman) {
    for (const Word& word : words) {
        if (!word.known.is(titlewords::kShipPrefix)) {
            continue;
        }
        const std::size_t at = word.core.begin;
        // "U.S.S. " or "USS ".
        const bool isDotted = contains(slice(text, word.core), u".");
        const TextView joint = isDotted ? u". " : u" ";
        if ((at > 0 && text[at - 1] != u' ') || !startsWith(text.substr(word.core.end), joint)) {
            continue;
        }
        std::size_t end = word.core.end + joint.size();
        // Without the mark behind the name.
        while (end < text.size() && (isDigit(text[end]) || isCasedLetter(text[end]) || text[end] == u'-')) {
            ++end;
        }
        roman.push_back({at, end});
    }
}

void order(std::vector<Range>& roman) {
    std::sort(roman.begin(), roman.end(), [](Range a, Range b) { return a.begin < b.begin; });
    // "H.M.S. E. coli" would be both.
    std::size_t end = 0;
    std::erase_if(roman, [&](Range range) {
        const bool isInside = range.begin < end;
        end = isInside ? end : range.end;
        return isInside;
    });
}

}  // namespace quorvel::titleroman

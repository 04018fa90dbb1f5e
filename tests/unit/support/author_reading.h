#pragma once

#include <memory>

#include "elements/author/author.h"
#include "support/recording_sink.h"
#include "support/style_presets.h"

/// The author element as tests use it: texts in, persons as one text out.
namespace quorvel::test {

inline std::shared_ptr<OutputTemplateAuthor> authorWith(const AuthorOptions& options) {
    auto author = std::make_shared<OutputTemplateAuthor>();
    author->Initialize(std::make_shared<RecordingSink>());
    author->Reset(options);
    return author;
}

/// "last|first|postfix" for each person, empty parts at the end left out, separated by "; ".
inline Text personsOf(const OutputTemplateAuthor& author) {
    Text text;
    for (std::int16_t i = 0; i < author.numAuthors(); ++i) {
        const AuthorRecord& person = author.person(i);
        text += i == 0 ? u"" : u"; ";
        text += person.lastName;
        text += person.firstNames.empty() && person.postfix.empty() ? u"" : u"|" + person.firstNames;
        text += person.postfix.empty() ? u"" : u"|" + person.postfix;
    }
    return text;
}

/// Parses and gives the persons; " et al." behind them when the list is incomplete.
inline Text read(OutputTemplateAuthor& author, TextView text, TextView previousStr = {}) {
    Text remainder(text);
    author.Parse(remainder, previousStr);
    return personsOf(author) + (author.HasEtAl() ? u" et al." : u"");
}

}  // namespace quorvel::test

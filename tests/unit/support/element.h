#pragma once

#include <memory>

#include "support/recording_sink.h"
#include "support/shown.h"

/// What tests do with an element of any class.
namespace quorvel {

template <class Element, class Options>
Element elementWith(const Options& options) {
    Element element;
    element.Initialize(std::make_shared<RecordingSink>());
    element.Reset(options);
    return element;
}

/// Parses, and gives what is left in the text.
template <class Element>
Text parsed(Element& element, TextView text, TextView secondary = {}) {
    Text left(text);
    element.Parse(left, secondary);
    return left;
}

/// Parses a text of which nothing may be left.
template <class Element>
void parseWhole(Element& element, TextView text, TextView secondary = {}) {
    EXPECT_EQ(parsed(element, text, secondary), u"") << shown(text);
}

/// Parses, and gives what a reference list has.
template <class Element>
Text formatted(Element& element, TextView text, TextView secondary = {}) {
    parsed(element, text, secondary);
    return element.toString(false, false);
}

/// The phrases, those in italics between "_".
inline Text marked(const RecordingSink& sink) {
    Text text;
    for (const RecordingSink::Phrase& phrase : sink.phrases()) {
        const TextView mark = phrase.font == OutputSink::kItalic && !phrase.text.empty() ? u"_" : u"";
        text += concatenate({mark, phrase.text, mark});
    }
    return text;
}

}  // namespace quorvel

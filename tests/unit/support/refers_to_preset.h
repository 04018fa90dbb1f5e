#pragma once

#include "elements/refers_to/refers_to.h"
#include "support/style_file.h"

namespace quorvel::test {

/// The options of the refers-to element in a style, with the style's own elements.
/// @param sink what they are made with
inline RefersToOptions refersToOptions(std::string_view style, const OutputSinkRef& sink) {
    const StyleFile& file = StyleFile::of(style);
    auto options = file.options<RefersToOptions>("refers-to", kRefersToOptions);
    options.authorTemplate = std::make_shared<OutputTemplateAuthor>();
    options.authorTemplate->Initialize(sink);
    options.authorTemplate->Reset(file.options("author", kAuthorOptions));
    options.pageTemplate = std::make_shared<OutputTemplatePage>();
    options.pageTemplate->Initialize(sink);
    options.pageTemplate->Reset(file.options("page", kPageOptions));
    options.publisherTemplate = std::make_shared<OutputTemplatePublisher>();
    options.publisherTemplate->Initialize(sink);
    options.publisherTemplate->Reset(file.options("publisher", kPublisherOptions));
    return options;
}

}  // namespace quorvel::test

#pragma once

#include <map>
#include <optional>
#include <string>

#include "formatted_text.h"
#include "late_bound.h"
#include "references.h"
#include "styles.h"

namespace sample {

/// What the library makes of one element's text.
struct FormattedElement {
    ComPointer<FormattedText> reference;
    ComPointer<FormattedText> note;
};

/// The library's elements with the options of one style. This is the way through the library that
/// every host takes: build, Reset once, then Parse and ToFormattedString for each text.
class StyledElements {
public:
    /// @param main a QuorvelTemplate.Main2
    StyledElements(LateBoundObject main, Style style) : mMain(std::move(main)), mStyle(std::move(style)) {}

    const Style& style() const { return mStyle; }

    /// The text of an element in this style; nothing when the library does not offer the element or
    /// the style file has no options for it.
    /// @param name the kind's name (elements.h)
    /// @param secondaryText what the host knows beside the text: of a title its type
    std::optional<FormattedElement> format(const std::wstring& name, const std::wstring& text,
                                           const std::wstring& secondaryText = {});
    /// An element of a reference; the title of a work inside a journal or newspaper is an article's.
    std::optional<FormattedElement> format(const Reference& reference, const ReferenceElement& element);

private:
    LateBoundObject element(const std::wstring& name);
    LateBoundObject buildElement(const std::wstring& name);

    LateBoundObject mMain;
    Style mStyle;
    // Also holds the elements that are not offered, as Nothing.
    std::map<std::wstring, LateBoundObject> mElements;
};

}  // namespace sample

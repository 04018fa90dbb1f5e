#pragma once

#include <map>
#include <string>
#include <utility>

#include "com/late_bound.h"
#include "data/style.h"

namespace sample {

/// One element of the library with the options of a style, ready to be used for any number of references.
struct StyledElement {
    LateBoundObject object;
    LateBoundMember parse;
    LateBoundMember toString;
    LateBoundMember toFormattedString;
};

/// The elements that a style needs, each built and `Reset` once, when it is first asked for.
class StyledElements {
public:
    /// @param main a QuorvelTemplate.Main2
    /// @param style outlives this object
    StyledElements(LateBoundObject main, const Style& style) : mMain(std::move(main)), mStyle(style) {}

    /// @param name of the element or of one of the style's variants of it
    /// @param code what `Main2.build` takes
    /// @return null when the library does not offer the element or the style has no options for it
    const StyledElement* element(const std::wstring& name, std::int16_t code);

private:
    StyledElement build(const std::wstring& name, std::int16_t code);

    LateBoundObject mMain;
    const Style& mStyle;
    // Also holds the elements that are not offered, as Nothing.
    std::map<std::pair<std::wstring, std::int16_t>, StyledElement> mElements;
};

}  // namespace sample

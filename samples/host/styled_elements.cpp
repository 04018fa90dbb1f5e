#include "styled_elements.h"

#include <algorithm>

#include "elements.h"

namespace sample {

namespace {

ComPointer<FormattedText> write(const LateBoundObject& element, bool isFootnote) {
    const bool shortenedVersion = false;
    ComPointer<FormattedText> sink = makeObject<FormattedText>();
    element.call(L"ToFormattedString", {sink.get(), isFootnote, shortenedVersion});
    return sink;
}

}  // namespace

std::optional<FormattedElement> StyledElements::format(const std::wstring& name, const std::wstring& text,
                                                       const std::wstring& secondaryText) {
    const LateBoundObject styled = element(name);
    if (!styled) return std::nullopt;
    // The text goes by reference: the element takes out of it what it has understood.
    Variant remaining(text);
    styled.call(L"Parse", {Variant::byReference(remaining.get().bstrVal), secondaryText});
    return FormattedElement{write(styled, false), write(styled, true)};
}

std::optional<FormattedElement> StyledElements::format(const Reference& reference, const ReferenceElement& element) {
    const bool isInside = std::any_of(
        reference.elements.begin(), reference.elements.end(),
        [](const ReferenceElement& other) { return other.name == L"container" || other.name == L"newspaper"; });
    return format(element.name, element.text, element.name == L"title" && isInside ? L"Article" : L"");
}

LateBoundObject StyledElements::element(const std::wstring& name) {
    const auto found = mElements.find(name);
    if (found != mElements.end()) return found->second;
    // Known as Nothing while it is built, so that a style whose elements need each other ends here.
    mElements[name] = LateBoundObject();
    return mElements[name] = buildElement(name);
}

LateBoundObject StyledElements::buildElement(const std::wstring& name) {
    const ElementKind* kind = findElementKind(name);
    const std::vector<StyleOption> options = mStyle.optionsOf(kind->optionsName);
    const bool hasOptions = *kind->optionsName != L'\0';
    if (hasOptions && options.empty()) return LateBoundObject();
    const ComPointer<FormattedText> sink = makeObject<FormattedText>();
    const LateBoundObject built(objectOf(mMain.call(L"build", {kind->code, sink.get()})));
    if (!built) return built;
    // By name, so that a style file may give its options in any order.
    std::vector<NamedArgument> arguments;
    for (const StyleOption& option : options) {
        const bool isElement = !option.valueElement.empty();
        arguments.push_back({option.name, isElement ? Variant(element(option.valueElement).dispatch()) : option.value});
    }
    built.callNamed(L"Reset", arguments);
    return built;
}

}  // namespace sample

#include "writing/styled_elements.h"

#include "data/fields.h"
#include "text/formatted_text.h"

namespace sample {

const StyledElement* StyledElements::element(const std::wstring& name, std::int16_t code) {
    if (code == kNoElement) return nullptr;
    const auto [found, isNew] = mElements.try_emplace({name, code});
    // Known as Nothing while it is built, so that a style whose elements need each other ends here.
    if (isNew) found->second = build(name, code);
    return found->second.object ? &found->second : nullptr;
}

StyledElement StyledElements::build(const std::wstring& name, std::int16_t code) {
    const std::vector<StyleOption> options = mStyle.optionsOf(name);
    if (options.empty()) return {};
    const ComPointer<FormattedText> sink = makeObject<FormattedText>();
    const LateBoundObject built(objectOf(mMain.call(L"build", {code, sink.get()})));
    if (!built) return {};
    // By name, so that a style file may give its options in any order.
    std::vector<NamedArgument> arguments;
    for (const StyleOption& option : options) {
        Variant value = option.value;
        if (!option.valueElement.empty()) {
            const StyledElement* other = element(option.valueElement, findField(option.valueElement)->elementCode);
            value = Variant(other != nullptr ? other->object.dispatch() : nullptr);
        }
        arguments.push_back({option.name, std::move(value)});
    }
    built.callNamed(L"Reset", arguments);
    return {built, built.member(L"Parse"), built.member(L"toString"), built.member(L"ToFormattedString")};
}

}  // namespace sample

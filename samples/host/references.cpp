#include "references.h"

#include <algorithm>
#include <string_view>

#include "elements.h"
#include "text_io.h"
#include "variant.h"

namespace sample {

namespace {

constexpr const wchar_t* kLabelElements[] = {L"author", L"editor", L"title"};

std::wstring_view trimmed(std::wstring_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(L" \t"), text.size()));
    const std::size_t last = text.find_last_not_of(L" \t");
    return text.substr(0, last == std::wstring_view::npos ? 0 : last + 1);
}

}  // namespace

std::wstring Reference::label() const {
    std::wstring label;
    for (const wchar_t* name : kLabelElements) {
        const auto found = std::find_if(elements.begin(), elements.end(),
                                        [name](const ReferenceElement& element) { return element.name == name; });
        if (found == elements.end()) continue;
        if (!label.empty()) label += label.ends_with(L'.') ? L" " : L". ";
        label += found->text;
    }
    return label;
}

std::vector<Reference> readReferences(const std::filesystem::path& file) {
    std::vector<Reference> references;
    Reference reference;
    const auto finish = [&] {
        if (!reference.elements.empty()) references.push_back(std::move(reference));
        reference = Reference();
    };
    const std::wstring text = readTextFile(file);
    std::size_t start = 0;
    for (int number = 1; start < text.size(); ++number) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        const std::wstring_view line = trimmed(std::wstring_view(text).substr(start, end - start));
        start = end + 1;
        if (line.empty()) finish();
        if (line.empty() || line.front() == L'#') continue;
        const std::size_t colon = std::min(line.find(L':'), line.size());
        const std::wstring name(trimmed(line.substr(0, colon)));
        if (colon == line.size() || findElementKind(name) == nullptr) {
            throw ComError{E_INVALIDARG, file.wstring() + L", line " + std::to_wstring(number) +
                                             L": there is no element named \"" + name + L"\"."};
        }
        reference.elements.push_back({name, std::wstring(trimmed(line.substr(colon + 1)))});
    }
    finish();
    if (references.empty()) throw ComError{E_INVALIDARG, file.wstring() + L" holds no references."};
    return references;
}

}  // namespace sample

#include "data/references.h"

#include <algorithm>
#include <set>

#include "data/data_file.h"

namespace sample {

std::vector<Reference> readReferences(const std::filesystem::path& file) {
    const Field& id = *findField(L"id");
    const Field& kind = *findField(L"kind");
    std::vector<Reference> references;
    std::set<std::wstring> ids;
    Reference reference;
    bool isEmpty = true;
    const auto finish = [&] {
        if (isEmpty) return;
        if (!reference.has(kind)) throw Fault{L"the reference before has no kind"};
        if (!ids.insert(reference.text(id)).second) throw Fault{L"the reference before has no id of its own"};
        references.push_back(std::move(reference));
        reference = Reference();
        isEmpty = true;
    };
    int last = 0;
    forEachLine(file, [&](std::wstring_view line, int number) {
        last = number;
        if (line.empty()) finish();
        if (line.empty() || line.front() == L'#') return;
        const std::size_t colon = std::min(line.find(L':'), line.size());
        const std::wstring name(trimmed(line.substr(0, colon)));
        const Field* field = findField(name);
        if (colon == line.size() || field == nullptr) throw Fault{L"there is no field named \"" + name + L"\""};
        if (reference.has(*field)) throw Fault{L"the reference has two fields named " + name};
        reference.set(*field, std::wstring(trimmed(line.substr(colon + 1))));
        isEmpty = false;
    });
    try {
        finish();
    } catch (const Fault& fault) {
        throwFault(file, last, fault.words);
    }
    if (references.empty()) throwFault(file, 0, L"it holds no references");
    return references;
}

}  // namespace sample

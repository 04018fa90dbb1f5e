#include "elements.h"

namespace sample {

namespace {

constexpr ElementKind kElementKinds[] = {
    {L"author", 0, L"author"},
    {L"editor", 9, L"author"},
    {L"title", 1, L"title"},
    {L"container", 2, L"title"},
    {L"newspaper", 4, L"newspaper"},
    {L"edition", 8, L"edition"},
    {L"multi-volume", 10, L"multi-volume"},
    {L"issue", 11, L"issue"},
    {L"place", 15, L"place"},
    {L"publisher", 5, L"publisher"},
    {L"year", 6, L"year"},
    {L"date-time", 17, L"date-time"},
    {L"page", 7, L"page"},
    {L"refers-to", 12, L"refers-to"},
    {L"online", 13, L"online"},
    {L"medium", 16, L"medium"},
    {L"keywords", 14, L""},
};

}  // namespace

std::span<const ElementKind> elementKinds() {
    return kElementKinds;
}

const ElementKind* findElementKind(std::wstring_view name) {
    for (const ElementKind& kind : kElementKinds) {
        if (name == kind.name) return &kind;
    }
    return nullptr;
}

}  // namespace sample

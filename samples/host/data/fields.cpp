#include "data/fields.h"

#include <algorithm>

namespace sample {

namespace {

constexpr std::int16_t kEditorRole = 0;
constexpr std::int16_t kCompilerRole = 1;
constexpr std::int16_t kTranslatorRole = 2;

constexpr Field kFields[] = {
    {L"kind", 0, kNoElement, L""},
    {L"author", 1, 0, L"author"},
    {L"editor", 2, 9, L"author", kEditorRole},
    {L"translator", 3, 9, L"author", kTranslatorRole},
    {L"note", kNoteIndex, kNoElement, L""},
    {L"compiler", 5, 9, L"author", kCompilerRole},
    {L"title", 6, 1, L"title"},
    // The journal, magazine, book or website that holds the work.
    {L"container", 8, 2, L"title"},
    {L"newspaper", 9, 4, L"newspaper"},
    {L"edition", 10, 8, L"edition"},
    // The year of the first publication of what is reprinted; and all that is told of it.
    {L"reprint", 31, 8, L"edition"},
    {L"first-publication", 32, 8, L"edition"},
    // Of a book: "vol. 2", "4 vols."
    {L"multi-volume", 11, 10, L"multi-volume"},
    // The whole of which a volume with a title of its own is a part: "Vol. 3 of A History of England. 4 vols."
    {L"set", 33, 10, L"multi-volume"},
    {L"series", 12, 10, L"multi-volume"},
    // Of a journal.
    {L"volume", 13, kNoElement, L""},
    {L"issue", 14, 11, L"issue"},
    // The title and editor of a special issue.
    {L"special-issue", 34, 11, L"issue"},
    {L"year", 15, 6, L"year"},
    {L"date", 16, 17, L"date-time"},
    {L"page", kPageIndex, 7, L"page"},
    // The place in the work that a note refers to.
    {L"cited", 30, 7, L"page"},
    {L"place", 18, 15, L"place"},
    {L"publisher", 19, 5, L"publisher"},
    // The number of a report.
    {L"number", 20, kNoElement, L""},
    // What a thesis, report or title is: "Doctoral dissertation".
    {L"type", 21, kNoElement, L""},
    {L"refers-to", 22, 12, L"refers-to"},
    // Volume, number, year and pages of an article that came in parts.
    {L"parts", 35, 12, L"refers-to"},
    {L"database", 23, 13, L"online"},
    {L"doi", 24, 13, L"online"},
    {L"url", 25, 13, L"online"},
    {L"medium", 26, 16, L"medium"},
    {L"accessed", 27, 17, L"date-time"},
    {L"keywords", 28, 14, L""},
    // What distinguishes the reference from all others of the file.
    {L"id", 29, kNoElement, L""},
};

}  // namespace

std::span<const Field> fields() {
    return kFields;
}

const Field* findField(std::wstring_view name) {
    const auto* found =
        std::find_if(std::begin(kFields), std::end(kFields), [name](const Field& field) { return name == field.name; });
    return found == std::end(kFields) ? nullptr : found;
}

std::int16_t codeOf(std::wstring_view element) {
    const auto* found = std::find_if(std::begin(kFields), std::end(kFields),
                                     [element](const Field& field) { return element == field.element; });
    return found == std::end(kFields) ? kNoElement : found->elementCode;
}

bool isElement(std::wstring_view name) {
    return !name.empty() && std::any_of(std::begin(kFields), std::end(kFields),
                                        [name](const Field& field) { return name == field.element; });
}

}  // namespace sample

#include "listings.h"

#include <optional>

#include "text_io.h"
#include "text_table.h"

namespace sample {

namespace {

// A console of 120 columns holds them all.
const TextTable kHeadings({117});
const TextTable kSideBySide({12, 19, 19, 19, 19, 19});
const TextTable kListAndNote({12, 51, 50});

// An element's name, "list" or "note", and its text, which goes on below itself.
constexpr const char* kRtfColumns = "\\fi-2520\\li2520\\tx360\\tx1800\\tx2520";

std::wstring shown(const FormattedText& text) {
    return text.isEmpty() ? L"(empty)" : text.toString();
}

std::wstring heading(std::size_t index, const Reference& reference) {
    return std::to_wstring(index + 1) + L". " + reference.label();
}

}  // namespace

void printStylesSideBySide(std::vector<StyledElements>& styles, const std::vector<Reference>& references) {
    std::vector<std::wstring> columns{L"element", L"as written"};
    for (const StyledElements& style : styles) columns.push_back(style.style().name);
    print(kSideBySide.row(columns) + kSideBySide.rule());
    for (std::size_t i = 0; i < references.size(); ++i) {
        print(kHeadings.row({heading(i, references[i])}));
        for (const ReferenceElement& element : references[i].elements) {
            std::vector<std::wstring> row{L"  " + element.name, element.text};
            std::vector<std::wstring> noteRow{L"    in notes", L""};
            bool isOffered = false;
            bool hasOwnNote = false;
            for (StyledElements& style : styles) {
                const std::optional<FormattedElement> formatted = style.format(references[i], element);
                isOffered = isOffered || formatted.has_value();
                row.push_back(formatted ? shown(*formatted->reference) : L"");
                noteRow.push_back(formatted ? shown(*formatted->note) : L"");
                hasOwnNote = hasOwnNote || row.back() != noteRow.back();
            }
            if (isOffered) print(kSideBySide.row(row));
            if (hasOwnNote) print(kSideBySide.row(noteRow));
        }
        print(L"\n");
    }
}

void printStyle(StyledElements& style, const std::vector<Reference>& references) {
    print(style.style().manual + L"\n\n");
    print(kListAndNote.row({L"element", L"reference list", L"note"}) + kListAndNote.rule());
    for (std::size_t i = 0; i < references.size(); ++i) {
        print(kHeadings.row({heading(i, references[i])}));
        for (const ReferenceElement& element : references[i].elements) {
            const std::optional<FormattedElement> formatted = style.format(references[i], element);
            if (!formatted) continue;
            print(kListAndNote.row({L"  " + element.name, shown(*formatted->reference), shown(*formatted->note)}));
        }
        print(L"\n");
    }
}

void printAsRtf(StyledElements& style, const std::vector<Reference>& references) {
    std::vector<RtfParagraph> paragraphs{{rtfBody({{style.style().manual, kBold | kSmallCapitals}}), ""}};
    for (std::size_t i = 0; i < references.size(); ++i) {
        paragraphs.push_back({"", ""});
        paragraphs.push_back({rtfBody({{heading(i, references[i]), kBold}}), ""});
        for (const ReferenceElement& element : references[i].elements) {
            const std::optional<FormattedElement> formatted = style.format(references[i], element);
            if (!formatted) continue;
            const std::string name = rtfBody({{element.name, kPlain}});
            paragraphs.push_back(
                {"\\tab " + name + "\\tab list\\tab " + formatted->reference->toRtfBody(), kRtfColumns});
            paragraphs.push_back({"\\tab\\tab note\\tab " + formatted->note->toRtfBody(), kRtfColumns});
        }
    }
    print(fromUtf8(rtfDocument(paragraphs)));
}

}  // namespace sample

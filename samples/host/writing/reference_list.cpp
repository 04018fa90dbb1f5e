#include "writing/reference_list.h"

#include <algorithm>

#include "data/data_file.h"

namespace sample {

namespace {

// Half an inch, in twentieths of a point.
constexpr const char* kHangingIndent = "\\fi-720\\li720\\tx720\\sa120";
constexpr const char* kHeadingSpace = "\\keepn\\sb240\\sa120";

constexpr std::wstring_view kArticles[] = {L"A ", L"An ", L"The "};
constexpr DWORD kLettersAlone = NORM_IGNORECASE | NORM_IGNORENONSPACE | NORM_IGNORESYMBOLS;

bool isPlainYear(std::wstring_view text) {
    return text.size() == 4 && text.find_first_not_of(L"0123456789") == std::wstring_view::npos;
}

int compare(std::wstring_view left, std::wstring_view right) {
    return CompareStringEx(LOCALE_NAME_INVARIANT, kLettersAlone, left.data(), static_cast<int>(left.size()),
                           right.data(), static_cast<int>(right.size()), nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

std::wstring_view withoutArticle(std::wstring_view title) {
    for (const std::wstring_view article : kArticles) {
        if (title.starts_with(article)) title.remove_prefix(article.size());
    }
    return title;
}

/// What decides on a reference's place, the most important first: the names of the heading one by one, so that a list
/// of names stands behind the first of them alone, then title and year.
std::vector<std::wstring> sortKeys(ReferenceWriter& writer, const Reference& reference) {
    std::vector<std::wstring> keys;
    const Field* heading = writer.heading(reference);
    std::wstring_view rest = heading == nullptr ? std::wstring_view() : reference.text(*heading);
    if (heading == nullptr || std::wstring_view(heading->element) != L"author") {
        keys.emplace_back(withoutArticle(rest));
    } else {
        for (bool isFirst = true; isFirst || !rest.empty(); isFirst = false) {
            const std::size_t comma = std::min(rest.find(L','), rest.size());
            keys.emplace_back(trimmed(rest.substr(0, comma)));
            rest.remove_prefix(std::min(comma + 1, rest.size()));
        }
    }
    // Shorter than any name: what follows decides among references with one heading.
    keys.emplace_back();
    const std::wstring title(withoutArticle(reference.text(L"title")));
    const std::wstring& year = reference.text(reference.text(L"year").empty() ? L"date" : L"year");
    const bool isByYear = writer.style().order == ListOrder::kByYear;
    keys.push_back(isByYear ? year : title);
    keys.push_back(isByYear ? title : year);
    return keys;
}

std::vector<const Reference*> ordered(ReferenceWriter& writer, const std::vector<Reference>& references, Form form) {
    struct Keyed {
        std::vector<std::wstring> keys;
        const Reference* reference;
    };
    std::vector<Keyed> keyed;
    for (const Reference& reference : references) keyed.push_back({sortKeys(writer, reference), &reference});
    if (form == Form::kList && writer.style().order != ListOrder::kAsCited) {
        std::stable_sort(keyed.begin(), keyed.end(), [](const Keyed& left, const Keyed& right) {
            return std::lexicographical_compare(
                left.keys.begin(), left.keys.end(), right.keys.begin(), right.keys.end(),
                [](const std::wstring& one, const std::wstring& other) { return compare(one, other) < 0; });
        });
    }
    std::vector<const Reference*> result;
    for (const Keyed& entry : keyed) result.push_back(entry.reference);
    return result;
}

}  // namespace

std::vector<Reference> withYearLetters(ReferenceWriter& writer, const std::vector<Reference>& references) {
    std::vector<Reference> lettered = references;
    if (writer.style().order != ListOrder::kByYear) return lettered;
    const Field& year = *findField(L"year");
    const std::vector<const Reference*> list = ordered(writer, references, Form::kList);
    const auto isLikeNext = [&](std::size_t i) {
        return i + 1 < list.size() && isPlainYear(list[i]->text(year)) &&
               list[i]->text(year) == list[i + 1]->text(year) && writer.isSameAuthor(*list[i], *list[i + 1]);
    };
    wchar_t letter = L'a';
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool isLikeLast = i > 0 && isLikeNext(i - 1);
        letter = isLikeLast ? static_cast<wchar_t>(letter + 1) : L'a';
        if ((!isLikeLast && !isLikeNext(i)) || letter > L'z') continue;
        lettered[static_cast<std::size_t>(list[i] - references.data())].set(year, list[i]->text(year) + letter);
    }
    return lettered;
}

std::vector<ListedReference> listed(ReferenceWriter& writer, const std::vector<Reference>& references, Form form) {
    const bool isNumbered = form != Form::kList || writer.style().order == ListOrder::kAsCited;
    std::vector<ListedReference> list;
    const Reference* before = nullptr;
    for (const Reference* reference : ordered(writer, references, form)) {
        ListedReference entry{L"", makeObject<FormattedText>()};
        writer.write(*reference, form, *entry.text, form == Form::kList ? before : nullptr);
        if (isNumbered) entry.number = std::to_wstring(list.size() + 1) + L".";
        before = reference;
        list.push_back(std::move(entry));
    }
    return list;
}

std::vector<ListedReference> cited(CitationWriter& writer, const std::vector<Reference>& references) {
    std::vector<ListedReference> list;
    const auto later = makeObject<FormattedText>();
    for (const Reference& reference : references) {
        ListedReference entry{std::to_wstring(list.size() + 1) + L".", makeObject<FormattedText>()};
        writer.write(reference, references, true, *entry.text);
        later->reset();
        writer.write(reference, references, false, *later);
        if (later->toString() != entry.text->toString()) {
            entry.text->add(L" \u2026 ");
            entry.text->add(*later);
        }
        list.push_back(std::move(entry));
    }
    return list;
}

std::vector<Reference> elementTexts(ReferenceWriter& writer, const std::vector<Reference>& references) {
    std::vector<Reference> texts;
    for (const Reference& reference : references) texts.push_back(writer.elementTexts(reference));
    return texts;
}

std::wstring plainText(const std::vector<ListedReference>& list) {
    std::wstring text;
    for (const ListedReference& entry : list) {
        if (!entry.number.empty()) text += entry.number + L" ";
        text += entry.text->toString() + L"\n";
    }
    return text;
}

std::vector<RtfParagraph> rtfParagraphs(const std::wstring& heading, const std::vector<ListedReference>& list) {
    std::vector<RtfParagraph> paragraphs{{rtfBody({{heading, kBold}}), kHeadingSpace}};
    for (const ListedReference& entry : list) {
        const std::string number = entry.number.empty() ? "" : rtfBody({{entry.number + L"\t", kPlain}});
        paragraphs.push_back({number + entry.text->toRtfBody(), kHangingIndent});
    }
    return paragraphs;
}

}  // namespace sample

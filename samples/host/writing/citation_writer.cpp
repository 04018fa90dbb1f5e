#include "writing/citation_writer.h"

#include <algorithm>

namespace sample {

namespace {

/// The fields that a citation is made of, under the names by which the library asks for them.
enum CitationField : std::int16_t {
    kAuthor = 1,
    kEditor,
    kTitle,
    kPartTitle,
    kPeriodical,
    kWebsite,
    kYear,
    kOriginalYear,
    kIssue,
    kCitedVolume,
    kCitedPage,
};

struct CitationKey {
    const wchar_t* key;
    CitationField index;
};

constexpr CitationKey kKeys[] = {
    {L"author", kAuthor},
    {L"editor", kEditor},
    {L"title", kTitle},
    {L"subwork", kPartTitle},
    {L"periodical", kPeriodical},
    {L"website", kWebsite},
    {L"year", kYear},
    {L"originalYear", kOriginalYear},
    {L"issue", kIssue},
    {L"citedVolume", kCitedVolume},
    {L"citedPage", kCitedPage},
};

/// How the author is told from others of the list.
enum FirstNames : std::int16_t { kLastNames = 0, kInitials = 1, kFirstNames = 2 };

const wchar_t* const kPeriodicals[] = {L"journal", L"magazine", L"newspaper"};

std::wstring lastNameOf(const std::wstring& author) {
    return author.substr(0, author.find(L','));
}

/// Last name and first initial.
std::wstring shortNameOf(const std::wstring& author) {
    const std::size_t comma = author.find(L", ");
    return comma == std::wstring::npos ? author : author.substr(0, comma + 3);
}

std::int16_t firstNamesFor(const Reference& reference, const std::vector<Reference>& list) {
    const std::wstring& author = reference.text(L"author");
    std::int16_t command = kLastNames;
    for (const Reference& other : list) {
        const std::wstring& name = other.text(L"author");
        if (author.empty() || name == author || lastNameOf(name) != lastNameOf(author)) continue;
        command = std::max<std::int16_t>(command, shortNameOf(name) == shortNameOf(author) ? kFirstNames : kInitials);
    }
    return command;
}

bool hasOtherWorks(const Reference& reference, const std::vector<Reference>& list) {
    const std::wstring& author = reference.text(L"author");
    return !author.empty() && std::count_if(list.begin(), list.end(), [&](const Reference& other) {
                                  return other.text(L"author") == author;
                              }) > 1;
}

}  // namespace

CitationWriter::CitationWriter(const LateBoundObject& main, Style style)
    : mStyle(std::move(style)), mElements(main, mStyle), mCitation(objectOf(main.call(L"buildCitationTemplate"))) {
    if (!mCitation) throw ComError{E_NOTIMPL, L"The library is too old: it has no citation template."};
    const ComPointer<FormattedText> sink = makeObject<FormattedText>();
    const LateBoundObject keys = LateBoundObject::create(L"Scripting.Dictionary");
    for (const CitationKey& key : kKeys) keys.call(L"Add", {key.key, static_cast<std::int16_t>(key.index)});
    const auto element = [&](const wchar_t* field) {
        const StyledElement* known = mElements.element(findField(field)->element, findField(field)->elementCode);
        return known != nullptr ? known->object.dispatch() : nullptr;
    };
    const bool citesVolumes = false;
    mCitation.call(L"Initialize", {sink.get(), citesVolumes, keys.dispatch(), element(L"author"), element(L"title"),
                                   element(L"multi-volume")});
    std::vector<NamedArgument> options;
    for (const StyleOption& option : mStyle.optionsOf(L"citation")) options.push_back({option.name, option.value});
    mCitation.callNamed(L"Reset", options);
    if (!mStyle.citation.slots.empty()) layOut();
    // Citations have their own way with page prefixes.
    if (element(L"cited") != nullptr) LateBoundObject(element(L"cited")).put(L"inCitation", true);
}

void CitationWriter::write(const Reference& reference, const std::vector<Reference>& list, bool isFirst,
                           FormattedText& sink) {
    setModel(reference);
    mCitation.call(isFirst ? L"ToFormattedString" : L"ToMinimalFormattedString",
                   {&sink, mModel.get(), firstNamesFor(reference, list), hasOtherWorks(reference, list)});
}

/// The style's own signs instead of the parentheses. The library fills the slots.
void CitationWriter::layOut() {
    const std::vector<Slot>& slots = mStyle.citation.slots;
    mCitation.call(L"ResetLikeModelTemplate",
                   {static_cast<std::int16_t>(slots.size() - 1), static_cast<IDispatch*>(nullptr)});
    std::int16_t index = 0;
    for (const Slot& slot : slots) {
        std::vector<Variant> separators(slot.separators.begin(), slot.separators.end());
        mCitation.call(L"Add", {index++, slot.isFormatted, slot.checkingKey, Variant::array(separators)});
    }
}

void CitationWriter::setModel(const Reference& reference) {
    const std::wstring& kind = reference.text(L"kind");
    const std::wstring& container = reference.text(L"container");
    const bool isPeriodical = std::any_of(std::begin(kPeriodicals), std::end(kPeriodicals),
                                          [&](const wchar_t* known) { return kind == known; });
    const bool isPartOfBook = (kind == L"chapter" || kind == L"proceedings") && !container.empty();
    const bool isWholeSite = kind == L"web" && reference.text(L"title").empty();
    mModel->clear();
    // A book that stands under its title is cited by it.
    const bool hasAuthors = kind != L"anonymous";
    mModel->set(kAuthor, reference.text(L"author"));
    mModel->set(kEditor, hasAuthors ? reference.text(L"editor") + reference.text(L"compiler") : std::wstring());
    mModel->set(kTitle, isPartOfBook || isWholeSite ? container : reference.text(L"title"));
    mModel->set(kPartTitle, isPartOfBook ? reference.text(L"title") : std::wstring());
    mModel->set(kPeriodical, isPeriodical ? container + reference.text(L"newspaper") : std::wstring());
    mModel->set(kWebsite, kind == L"web" && !isWholeSite ? container + reference.text(L"publisher") : std::wstring());
    mModel->set(kYear, formatted(L"year", reference.text(reference.text(L"year").empty() ? L"date" : L"year")));
    mModel->set(kOriginalYear, reference.text(L"reprint"));
    mModel->set(kIssue, reference.text(L"issue"));
    mModel->set(kCitedVolume, isPeriodical ? reference.text(L"volume") : std::wstring());
    mModel->set(kCitedPage, formatted(L"cited", reference.text(L"cited")));
}

/// The text as the element of the field writes it.
std::wstring CitationWriter::formatted(const wchar_t* field, const std::wstring& text) {
    const StyledElement* element = mElements.element(findField(field)->element, findField(field)->elementCode);
    if (element == nullptr || text.empty()) return text;
    element->parse({text});
    return textOf(element->toString({}));
}

}  // namespace sample

#include "document.h"

#include <fstream>

#include "data/data_file.h"
#include "text/text_io.h"

namespace sample {

namespace {

constexpr const wchar_t* kStyleNames[] = {L"mla", L"apa", L"turabian", L"ama"};

// The first of these that a reference has names it.
constexpr const wchar_t* kPersons[] = {L"author", L"editor", L"compiler", L"translator"};
constexpr const wchar_t* kYears[] = {L"year", L"date"};

template <std::size_t N>
std::wstring firstOf(const Reference& reference, const wchar_t* const (&names)[N]) {
    for (const wchar_t* const name : names) {
        if (const std::wstring& text = reference.text(name); !text.empty()) return text;
    }
    return {};
}

}  // namespace

Document::Document(LateBoundObject main) : mMain(std::move(main)) {
    for (const wchar_t* const name : kStyleNames) {
        mStyles.push_back(readStyle(dataFile(std::filesystem::path(L"styles") / (std::wstring(name) + L".style"))));
    }
    prepareWriters();
}

void Document::prepareWriters() {
    const Style& style = mStyles[mStyle];
    mElements = std::make_unique<StyledElements>(mMain, style);
    mWriter = std::make_unique<ReferenceWriter>(mMain, style);
    mCitations = std::make_unique<CitationWriter>(mMain, style);
}

void Document::open(const std::filesystem::path& file) {
    std::vector<Reference> references = readReferences(file);
    mReferences = std::move(references);
    mFile = file;
    mUndo.clear();
    mChanges = mSavedChanges = 0;
}

void Document::save(const std::filesystem::path& file) {
    std::wstring text = L"# References, one field a line; an empty line ends a reference.\n";
    for (const Reference& reference : mReferences) {
        text += L"\n";
        for (const Field& field : fields()) {
            if (reference.has(field)) text += std::wstring(field.name) + L": " + reference.text(field) + L"\n";
        }
    }
    std::ofstream stream(file, std::ios::binary);
    stream << toUtf8(text);
    stream.close();
    if (!stream) throw ComError{STG_E_ACCESSDENIED, file.wstring() + L" cannot be written."};
    mFile = file;
    mSavedChanges = mChanges;
}

void Document::setStyle(std::size_t style) {
    mStyle = style;
    prepareWriters();
}

std::wstring Document::author(std::size_t reference) const {
    return firstOf(mReferences[reference], kPersons);
}

std::wstring Document::title(std::size_t reference) const {
    return mReferences[reference].text(L"title");
}

std::wstring Document::year(std::size_t reference) const {
    return firstOf(mReferences[reference], kYears);
}

std::vector<const Field*> Document::fieldsOf(std::size_t reference) const {
    std::vector<const Field*> filled;
    std::vector<const Field*> empty;
    for (const Field& field : fields()) {
        (mReferences[reference].has(field) ? filled : empty).push_back(&field);
    }
    filled.insert(filled.end(), empty.begin(), empty.end());
    return filled;
}

void Document::change(std::size_t reference, const Field& field, const std::wstring& text) {
    Reference& changed = mReferences[reference];
    if (changed.text(field) == text) return;
    mUndo.push_back({reference, changed});
    changed.set(field, text);
    ++mChanges;
}

std::size_t Document::undo() {
    const Change change = std::move(mUndo.back());
    mUndo.pop_back();
    mReferences[change.reference] = change.before;
    --mChanges;
    return change.reference;
}

std::vector<ListedReference> Document::written() {
    const std::vector<Reference> lettered = withYearLetters(*mWriter, mReferences);
    if (mListing == Listing::kCitations) return cited(*mCitations, lettered);
    return listed(*mWriter, lettered, mListing == Listing::kNotes ? Form::kNote : Form::kList);
}

std::wstring Document::written(std::size_t reference) {
    const auto sink = makeObject<FormattedText>();
    try {
        mWriter->write(mReferences[reference], mListing == Listing::kNotes ? Form::kNote : Form::kList, *sink);
    } catch (const ComError& error) {
        return error.message;
    }
    return sink->toString();
}

LateBoundObject Document::element(const Field& field) {
    const StyledElement* const found =
        field.elementCode == kNoElement ? nullptr : mElements->element(field.element, field.elementCode);
    return found != nullptr ? found->object : LateBoundObject();
}

}  // namespace sample

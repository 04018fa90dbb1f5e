#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "com/late_bound.h"
#include "data/references.h"
#include "data/style.h"
#include "writing/citation_writer.h"
#include "writing/reference_list.h"
#include "writing/reference_writer.h"

namespace sample {

/// What is written of the references.
enum class Listing { kList, kNotes, kCitations };

/// The references that are worked on, and everything that is written of them. It knows no windows.
class Document {
public:
    /// @param main a QuorvelTemplate.Main2
    /// @throws ComError when a style cannot be read
    explicit Document(LateBoundObject main);

    /// @throws ComError with a message that names file, line and fault; the references stay as they are then
    void open(const std::filesystem::path& file);
    /// @throws ComError when the file cannot be written
    void save(const std::filesystem::path& file);
    const std::filesystem::path& file() const { return mFile; }
    bool isChanged() const { return mChanges != mSavedChanges; }

    const std::vector<Style>& styles() const { return mStyles; }
    std::size_t style() const { return mStyle; }
    /// Another style: the texts of the elements are read as they stand.
    void setStyle(std::size_t style);
    Listing listing() const { return mListing; }
    void setListing(Listing listing) { mListing = listing; }

    const std::vector<Reference>& references() const { return mReferences; }
    /// "Booth, Wayne C.", the title, the year: how a reference is told from the others in a list of them.
    std::wstring author(std::size_t reference) const;
    std::wstring title(std::size_t reference) const;
    std::wstring year(std::size_t reference) const;
    /// The fields of a reference that has them, and those that are empty behind them.
    std::vector<const Field*> fieldsOf(std::size_t reference) const;

    /// Gives a field another text; an equal one changes nothing.
    void change(std::size_t reference, const Field& field, const std::wstring& text);
    bool canUndo() const { return !mUndo.empty(); }
    /// Takes the last change back. @return the reference that was changed
    std::size_t undo();

    /// All references as the style writes them.
    std::vector<ListedReference> written();
    /// One reference alone, as plain text; what went wrong when it cannot be written.
    std::wstring written(std::size_t reference);

    /// The style's element for a field; null when it has none.
    LateBoundObject element(const Field& field);

private:
    struct Change {
        std::size_t reference;
        Reference before;
    };

    void prepareWriters();

    LateBoundObject mMain;
    std::vector<Style> mStyles;
    std::size_t mStyle = 0;
    Listing mListing = Listing::kList;
    std::filesystem::path mFile;
    std::vector<Reference> mReferences;
    std::vector<Change> mUndo;
    long mChanges = 0;
    long mSavedChanges = 0;
    // Of the style in force.
    std::unique_ptr<ReferenceWriter> mWriter;
    std::unique_ptr<CitationWriter> mCitations;
    std::unique_ptr<StyledElements> mElements;
};

}  // namespace sample

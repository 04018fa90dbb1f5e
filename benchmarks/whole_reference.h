#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "core/output_template_model.h"
#include "elements/author/author.h"
#include "elements/date/date_time.h"
#include "elements/edition/edition.h"
#include "elements/issue/issue.h"
#include "elements/medium/medium.h"
#include "elements/multi_vol/multi_vol.h"
#include "elements/newspaper.h"
#include "elements/online.h"
#include "elements/page.h"
#include "elements/place.h"
#include "elements/publisher.h"
#include "elements/refers_to/refers_to.h"
#include "elements/title/title.h"
#include "elements/year.h"

/// A native host: references with all their elements, and a style that writes them.
namespace quorvel::bench {

/// The elements of a reference, each a slot of its layout: first those that most references have.
enum Element : std::size_t {
    kAuthor,
    kTitle,
    kContainer,
    kEditor,
    kVolume,
    kIssue,
    kPlace,
    kPublisher,
    kYear,
    kPage,
    kCommonElements,
    kNewspaper = kCommonElements,
    kEdition,
    kMultiVol,
    kSeries,
    kDate,
    kOnline,
    kMedium,
    kRefersTo,
    kElements,
};

/// The texts of the elements as they stand in a finished reference; empty where it has none.
using Reference = std::array<Text, kElements>;

/// Some hundred different books, articles and chapters, read once from references.txt.
const std::vector<Reference>& references();
/// Those of the sample host, which have all elements between them.
const std::vector<Reference>& sampleReferences();

/// A sink that keeps what is written, with its fonts.
class PhraseSink final : public OutputSink {
public:
    void Add(TextView text) override { Add(text, kPlain); }
    void Add(TextView text, std::int32_t font) override;
    void addFormattedString(const OutputSink& fragment) override;
    OutputSinkRef Clone() const override;
    void Reset() override;
    OutputSinkRef BuildNewFormattedString() const override { return std::make_shared<PhraseSink>(); }
    Text toString() const override { return mText; }
    Text toRTFString() const override { return mText; }
    bool IsEmpty() const override { return mText.empty(); }
    std::int16_t removeQuoteFromLastPhrase() override;
    void PageIndex(std::int32_t /*value*/) override {}

    const Text& text() const { return mText; }

private:
    struct Phrase {
        std::size_t end;
        std::int32_t font;
    };
    Text mText;
    std::vector<Phrase> mPhrases;
};

/// One style: an element of each kind, with the options that the sample host gives it, and the layout of a reference.
class Style final : public Implementor {
public:
    /// @param name that of a style file: mla, apa, turabian, ama
    /// @param elements how many of them the style writes: kCommonElements or all
    explicit Style(const std::string& name, std::size_t elements = kCommonElements);

    /// Parses all elements and writes the reference.
    void write(const Reference& reference, const OutputSinkRef& sink);

    /// The elements as this style writes them.
    Reference elementsOf(const Reference& reference);

    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool shortenedVersion) override;

private:
    void parse(const Reference& reference);
    void parseOthers(const Reference& reference);
    void writeOthers(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                     bool shortenedVersion);
    void layOut(const std::string& name, const OutputSinkRef& sink);

    OutputTemplateAuthor mAuthor;
    OutputTemplateAuthor mEditor;
    OutputTemplateTitle mTitle;
    OutputTemplateTitle mContainer;
    OutputTemplatePlace mPlace;
    OutputTemplatePublisher mPublisher;
    OutputTemplateYear mYear;
    OutputTemplatePage mPage;
    OutputTemplateNewspaper mNewspaper;
    OutputTemplateEdition mEdition;
    OutputTemplateMultiVol mMultiVol;
    OutputTemplateMultiVol mSeries;
    OutputTemplateIssue mIssue;
    OutputTemplateDateTime mDate;
    OutputTemplateOnline mOnline;
    OutputTemplateMedium mMedium;
    OutputTemplateRefersTo mRefersTo;
    std::size_t mElements;
    OutputTemplateModel mModel;
    const Reference* mReference = nullptr;
    // Not owned: the style is its own implementor.
    ImplementorRef mSelf{ImplementorRef(), this};
    ReferenceModelRef mFields;
    Text mText;
};

}  // namespace quorvel::bench

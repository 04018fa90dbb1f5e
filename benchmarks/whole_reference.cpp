#include "whole_reference.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "support/refers_to_preset.h"
#include "support/style_file.h"
#include "support/utf8.h"

namespace quorvel::bench {

namespace {

/// The fields of a references file by the slots that they fill; others are passed over.
constexpr std::array<std::string_view, kElements> kFields = {
    "author", "title",     "container", "editor",       "volume", "issue", "place", "publisher", "year",
    "page",   "newspaper", "edition",   "multi-volume", "series", "date",  "url",   "medium",    "refers-to",
};

/// What a style writes before a slot, whatever stands in front of it.
struct Separators {
    std::string_view style;
    TextView issue, year, page;
};
constexpr TextView kBetweenElements = u". ";
constexpr Separators kSeparators[] = {
    {"mla", u".", u", ", u": "},
    {"apa", u"(", u" (", u", "},
    {"turabian", u", no. ", u" (", u": "},
    {"ama", u"(", u"; ", u":"},
};

std::vector<Reference> readReferences(const char* path) {
    std::ifstream file(path);
    std::vector<Reference> references;
    Reference reference;
    const auto take = [&] {
        if (!reference[kTitle].empty()) {
            references.push_back(std::move(reference));
        }
        reference = {};
    };
    for (std::string line; std::getline(file, line);) {
        const std::size_t colon = line.find(": ");
        if (line.empty()) {
            take();
        } else if (line.front() != '#' && colon != std::string::npos) {
            const auto* field = std::find(kFields.begin(), kFields.end(), std::string_view(line).substr(0, colon));
            if (field != kFields.end()) {
                reference[static_cast<std::size_t>(field - kFields.begin())] = test::textOf(line.substr(colon + 2));
            }
        }
    }
    take();
    if (references.empty()) {
        throw std::runtime_error(std::string("no references in ") + path);
    }
    return references;
}

/// A reference without notes.
class NoFields final : public ReferenceModel {
public:
    Text value(std::int16_t /*index*/) const override { return {}; }
    void value(std::int16_t /*index*/, TextView /*text*/) override {}
};

class NoKeys final : public KeyToInternalIndex {
public:
    std::int16_t item(TextView /*key*/) const override { return 0; }
    bool has(TextView /*key*/) const override { return false; }
};

constexpr std::size_t kFormattedSlots[] = {kTitle,    kContainer, kNewspaper, kEdition,
                                           kMultiVol, kSeries,    kMedium,    kRefersTo};

bool isFormatted(std::size_t slot) {
    return std::find(std::begin(kFormattedSlots), std::end(kFormattedSlots), slot) != std::end(kFormattedSlots);
}

}  // namespace

const std::vector<Reference>& references() {
    static const std::vector<Reference> kReferences = readReferences(QUORVEL_REFERENCES);
    return kReferences;
}

const std::vector<Reference>& sampleReferences() {
    static const std::vector<Reference> kReferences = readReferences(QUORVEL_SAMPLE_REFERENCES);
    return kReferences;
}

void PhraseSink::Add(TextView text, std::int32_t font) {
    if (text.empty()) {
        return;
    }
    mText += text;
    if (mPhrases.empty() || mPhrases.back().font != font) {
        mPhrases.push_back({mText.size(), font});
    } else {
        mPhrases.back().end = mText.size();
    }
}

void PhraseSink::addFormattedString(const OutputSink& fragment) {
    const auto& other = dynamic_cast<const PhraseSink&>(fragment);
    std::size_t start = 0;
    for (const Phrase& phrase : other.mPhrases) {
        Add(TextView(other.mText).substr(start, phrase.end - start), phrase.font);
        start = phrase.end;
    }
}

OutputSinkRef PhraseSink::Clone() const {
    auto clone = std::make_shared<PhraseSink>();
    clone->mText = mText;
    clone->mPhrases = mPhrases;
    return clone;
}

void PhraseSink::Reset() {
    mText.clear();
    mPhrases.clear();
}

std::int16_t PhraseSink::removeQuoteFromLastPhrase() {
    if (!mText.empty() && mText.back() == kRightDoubleQuotationMark) {
        mText.pop_back();
        mPhrases.back().end = mText.size();
        return static_cast<std::int16_t>(mPhrases.back().font);
    }
    return kPlain;
}

Style::Style(const std::string& name, std::size_t elements)
    : mElements(elements), mFields(std::make_shared<NoFields>()) {
    const OutputSinkRef sink = std::make_shared<PhraseSink>();
    const test::StyleFile& style = test::StyleFile::of(name);
    for (OutputTemplateAuthor* persons : {&mAuthor, &mEditor}) {
        persons->Initialize(sink);
        persons->Reset(style.options<AuthorOptions>("author", kAuthorOptions));
    }
    for (OutputTemplateTitle* title : {&mTitle, &mContainer}) {
        auto options = style.options<TitleOptions>("title", kTitleOptions);
        // Journals keep their capitals.
        options.sentenceCapitalization = options.sentenceCapitalization && title == &mTitle;
        title->Initialize(sink);
        title->Reset(options);
    }
    mPlace.Initialize(sink);
    mPlace.Reset(style.options<PlaceOptions>("place", kPlaceOptions));
    mPublisher.Initialize(sink);
    mPublisher.Reset(style.options<PublisherOptions>("publisher", kPublisherOptions));
    mYear.Initialize(sink);
    mYear.Reset(style.options<YearOptions>("year", kYearOptions));
    mPage.Initialize(sink);
    mPage.Reset(style.options<PageOptions>("page", kPageOptions));
    mNewspaper.Initialize(sink);
    mNewspaper.Reset(style.options<NewspaperOptions>("newspaper", kNewspaperOptions));
    const RefersToOptions refersTo = test::refersToOptions(name, sink);
    mEdition.Initialize(sink);
    // The style code is the same in all elements.
    mEdition.Reset({refersTo.format, refersTo.pageTemplate});
    for (OutputTemplateMultiVol* volumes : {&mMultiVol, &mSeries}) {
        volumes->Initialize(sink);
        volumes->Reset(style.options<MultiVolOptions>("multi-volume", kMultiVolOptions));
    }
    mIssue.Initialize(sink);
    mIssue.Reset(style.options<IssueOptions>("issue", kIssueOptions));
    mDate.Initialize(sink);
    mDate.Reset(style.options<DateTimeOptions>("date-time", kDateTimeOptions));
    mOnline.Initialize(sink);
    mOnline.Reset(style.options<OnlineOptions>("online", kOnlineOptions));
    mMedium.Initialize(sink);
    mMedium.Reset(style.options<MediumOptions>("medium", kMediumOptions));
    mRefersTo.Initialize(sink);
    mRefersTo.Reset(refersTo);
    layOut(name, sink);
}

void Style::layOut(const std::string& name, const OutputSinkRef& sink) {
    const auto* const own = std::find_if(std::begin(kSeparators), std::end(kSeparators),
                                         [&](const Separators& known) { return known.style == name; });
    mModel.Initialize(sink, std::make_shared<NoKeys>());
    mModel.Reset(static_cast<std::int16_t>(mElements - 1), u"..", 1);
    for (std::size_t slot = 0; slot < mElements; ++slot) {
        std::vector<Text> separators = {Text()};
        for (std::size_t next = slot + 1; next < mElements; ++next) {
            const bool isAfterContainer = slot == kContainer && next == kVolume;
            separators.emplace_back(next == kYear        ? own->year
                                    : next == kPage      ? own->page
                                    : next == kIssue     ? own->issue
                                    : next == kPublisher ? TextView(u": ")
                                    : isAfterContainer   ? TextView(u" ")
                                                         : kBetweenElements);
        }
        separators.emplace_back(u".");
        mModel.Add(static_cast<std::int16_t>(slot), isFormatted(slot), slot == kYear ? TextView(u"medium=Web") : u"",
                   separators);
    }
}

void Style::parse(const Reference& reference) {
    mReference = &reference;
    const auto parse = [&](auto& element, std::size_t slot) {
        if (!reference[slot].empty()) {
            mText = reference[slot];
            element.Parse(mText, {});
        }
    };
    parse(mAuthor, kAuthor);
    parse(mTitle, kTitle);
    parse(mContainer, kContainer);
    parse(mEditor, kEditor);
    parse(mPlace, kPlace);
    parse(mPublisher, kPublisher);
    parse(mYear, kYear);
    parse(mPage, kPage);
    mTitle.IsChapterOrWebsite(!reference[kContainer].empty());
    if (mElements > kCommonElements) {
        parseOthers(reference);
    }
}

void Style::parseOthers(const Reference& reference) {
    const auto parse = [&](auto& element, std::size_t slot, TextView secondary = {}) {
        if (!reference[slot].empty()) {
            mText = reference[slot];
            element.Parse(mText, secondary);
        }
    };
    parse(mNewspaper, kNewspaper);
    parse(mEdition, kEdition);
    parse(mMultiVol, kMultiVol, OutputTemplateMultiVol::kMultiVolCaption);
    parse(mSeries, kSeries);
    parse(mIssue, kIssue);
    parse(mDate, kDate);
    parse(mOnline, kOnline);
    parse(mMedium, kMedium);
    parse(mRefersTo, kRefersTo);
}

void Style::write(const Reference& reference, const OutputSinkRef& sink) {
    parse(reference);
    ToFormattedString(sink, false, false);
}

void Style::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    mModel.ToFormattedString(formattedStr, mSelf, mFields, shortenedVersion, isFootnote);
}

bool Style::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                                  bool shortenedVersion) {
    const Reference& reference = *mReference;
    const auto has = [&](std::size_t slot) { return !reference[slot].empty(); };
    if (has(kAuthor)) items[kAuthor] = mAuthor.toString(isFootnote, shortenedVersion);
    if (has(kTitle)) mTitle.ToFormattedString(formattedItems[kTitle], isFootnote, shortenedVersion);
    if (has(kContainer)) mContainer.ToFormattedString(formattedItems[kContainer], isFootnote, shortenedVersion);
    if (has(kEditor)) items[kEditor] = mEditor.toString(isFootnote, shortenedVersion);
    items[kVolume] = reference[kVolume];
    items[kIssue] = reference[kIssue];
    if (has(kPlace)) items[kPlace] = mPlace.toString(isFootnote, shortenedVersion, reference[kPublisher]);
    if (has(kPublisher)) items[kPublisher] = mPublisher.toString(isFootnote, shortenedVersion);
    if (has(kYear)) items[kYear] = mYear.toString(isFootnote, shortenedVersion);
    if (has(kPage)) items[kPage] = mPage.toString(isFootnote, shortenedVersion);
    if (mElements > kCommonElements) {
        writeOthers(isFootnote, items, formattedItems, shortenedVersion);
    }
    return false;
}

void Style::writeOthers(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                        bool shortenedVersion) {
    const Reference& reference = *mReference;
    const auto write = [&](auto& element, std::size_t slot) {
        if (!reference[slot].empty()) element.ToFormattedString(formattedItems[slot], isFootnote, shortenedVersion);
    };
    const auto has = [&](std::size_t slot) { return !reference[slot].empty(); };
    write(mNewspaper, kNewspaper);
    write(mEdition, kEdition);
    write(mMultiVol, kMultiVol);
    write(mSeries, kSeries);
    write(mMedium, kMedium);
    write(mRefersTo, kRefersTo);
    if (has(kIssue)) items[kIssue] = mIssue.toString(isFootnote, shortenedVersion, false);
    if (has(kDate)) items[kDate] = mDate.toString(isFootnote, shortenedVersion, false);
    if (has(kOnline)) items[kOnline] = mOnline.toString(isFootnote, shortenedVersion, false);
}

Reference Style::elementsOf(const Reference& reference) {
    parse(reference);
    Reference written;
    std::vector<Text> items(kElements);
    std::vector<OutputSinkRef> fragments(kElements);
    for (OutputSinkRef& fragment : fragments) {
        fragment = std::make_shared<PhraseSink>();
    }
    ToFormattedStringImpl(false, items, fragments, false);
    for (std::size_t slot = 0; slot < kElements; ++slot) {
        written[slot] = isFormatted(slot) ? fragments[slot]->toString() : items[slot];
    }
    return written;
}

}  // namespace quorvel::bench

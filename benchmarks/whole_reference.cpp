#include "whole_reference.h"

#include "support/style_presets.h"

namespace quorvel::bench {

namespace {

// author, title, container, volume, place, publisher, year, page
const Reference kReferences[] = {
    {u"Kuhn, Thomas S.", u"The Structure of Scientific Revolutions", u"", u"", u"Chicago",
     u"University of Chicago Press", u"1970", u""},
    {u"Wegener, D. T., & Petty, R. E.", u"Mood management across affective states: The hedonic contingency hypothesis",
     u"Journal of Personality and Social Psychology", u"66", u"", u"", u"1994", u"1034-1048"},
    {u"Caro, Robert A.", u"The Power Broker: Robert Moses and the Fall of New York", u"", u"", u"New York",
     u"Alfred A. Knopf", u"1974", u""},
    {u"Strunk, William, Jr., and E. B. White", u"The Elements of Style", u"", u"", u"Boston", u"Allyn and Bacon",
     u"2000", u""},
    {u"Kernis, M. H., Cornell, D. P., Sun, C. R., Berry, A., Harlow, T., & Bach, J. S.",
     u"There's more to self-esteem than whether it is high or low: The importance of stability of self-esteem",
     u"Journal of Personality and Social Psychology", u"65", u"", u"", u"1993", u"1190-1204"},
    {u"O'Neil, J. M., & Egan, J.", u"Men's and women's gender role journeys: A metaphor for healing",
     u"Gender Issues across the Life Cycle", u"", u"New York, NY", u"Springer", u"1992", u"107-123"},
    {u"American Psychological Association", u"Publication Manual of the American Psychological Association", u"", u"",
     u"Washington, DC", u"Author", u"2010", u""},
    {u"Rothman JE", u"Mechanisms of intracellular protein transport", u"Nature", u"372", u"", u"", u"1994", u"55-63"},
};

struct StyleOptions {
    AuthorOptions authors;
    std::int16_t format;
    bool sentenceCapitalization;
    PageOptions page;
    bool shortens;
    // Before the year, the page, and the pieces of the rest.
    TextView beforeYear, beforePage, betweenPieces;
};

StyleOptions optionsOf(Style::Name name) {
    PageOptions page;
    switch (name) {
        case Style::kMla:
            page.shortenedPage = true;
            return {test::mlaAuthorOptions(), 2, false, page, true, u", ", u": ", u". "};
        case Style::kApa:
            page.useEnDashForPageRange = true;
            return {test::apaAuthorOptions(), 1, true, page, false, u" (", u", ", u". "};
        case Style::kTurabian:
            page.shortenedPage = page.elideZero = page.useEnDashForPageRange = true;
            return {test::turabianAuthorOptions(), 3, false, page, false, u" (", u": ", u". "};
        default: return {test::amaAuthorOptions(), 0, true, page, false, u"; ", u":", u". "};
    }
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

bool isFormatted(std::size_t slot) {
    return slot == kTitle || slot == kContainer;
}

}  // namespace

std::span<const Reference> references() {
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

Style::Style(Name name) : mFields(std::make_shared<NoFields>()) {
    const OutputSinkRef sink = std::make_shared<PhraseSink>();
    const StyleOptions options = optionsOf(name);
    mAuthor.Initialize(sink);
    mAuthor.Reset(options.authors);
    for (OutputTemplateTitle* title : {&mTitle, &mContainer}) {
        // Journals keep their capitals.
        const bool isSentence = options.sentenceCapitalization && title == &mTitle;
        title->Initialize(sink);
        title->Reset({options.format, nullptr, isSentence, true, u"", true, u"", true, u""});
    }
    mPlace.Initialize(sink);
    mPlace.Reset({true, true, true, false, true});
    mPublisher.Initialize(sink);
    mPublisher.Reset({true, true, false, options.shortens, true});
    mYear.Initialize(sink);
    mYear.Reset({true, false, true, u"c.", true, u"n.d.", true});
    mPage.Initialize(sink);
    mPage.Reset(options.page);

    mModel.Initialize(sink, std::make_shared<NoKeys>());
    mModel.Reset(kElements - 1, u"..", 1);
    for (std::size_t slot = 0; slot < kElements; ++slot) {
        std::vector<Text> separators = {Text()};
        for (std::size_t next = slot + 1; next < kElements; ++next) {
            const bool isAfterContainer = slot == kContainer && next == kVolume;
            separators.emplace_back(next == kYear        ? options.beforeYear
                                    : next == kPage      ? options.beforePage
                                    : next == kPublisher ? TextView(u": ")
                                    : isAfterContainer   ? TextView(u" ")
                                                         : options.betweenPieces);
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
    parse(mPlace, kPlace);
    parse(mPublisher, kPublisher);
    parse(mYear, kYear);
    parse(mPage, kPage);
    mTitle.IsChapterOrWebsite(!reference[kContainer].empty());
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
    items[kVolume] = reference[kVolume];
    if (has(kPlace)) items[kPlace] = mPlace.toString(isFootnote, shortenedVersion, reference[kPublisher]);
    if (has(kPublisher)) items[kPublisher] = mPublisher.toString(isFootnote, shortenedVersion);
    if (has(kYear)) items[kYear] = mYear.toString(isFootnote, shortenedVersion);
    if (has(kPage)) items[kPage] = mPage.toString(isFootnote, shortenedVersion);
    return false;
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

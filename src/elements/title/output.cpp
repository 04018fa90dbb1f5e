// The title element: writing.

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/style_codes.h"
#include "elements/title/quotes.h"
#include "elements/title/roman.h"
#include "elements/title/short.h"
#include "elements/title/title.h"
#include "elements/title/types.h"

namespace quorvel {

using titlecase::Range;
using titlecase::slice;
using titlecase::TitleText;
using titlecase::Word;

namespace {

// The slots. A describing text behind "?" or "!" has no comma: it stands in a slot of its own.
enum Slot : std::size_t {
    kLeadInSlot = 0,
    kTitleSlot = 1,
    kTranslationSlot = 2,
    kDescriptionSlot = 3,
    kAfterMarkSlot = 4
};

/// The texts that the style gives.
enum StyleText : std::uint8_t { kBeforeDescription };

constexpr SlotLayout kLayout({
    {kPlainSlot, {u"", u"", u"", u"", u"", u""}},
    {kFormattedSlot, {u"", u" ", kBeforeDescription, u" ", u""}},
    {kPlainSlot, {u"", kBeforeDescription, u" ", u""}},
    {kPlainSlot, {u"", u"", u""}},
    {kPlainSlot, {u"", u""}},
});

bool isQuestionOrExclamation(char16_t unit) {
    return unit == u'?' || unit == u'!';
}

/// Adds a text in italics, parts of it roman.
void addItalic(OutputSink& sink, TextView text, std::span<const Range> roman) {
    std::size_t done = 0;
    for (const Range range : roman) {
        if (range.begin > done) {
            sink.Add(slice(text, {done, range.begin}), OutputSink::kItalic);
        }
        sink.Add(slice(text, range), OutputSink::kPlain);
        done = range.end;
    }
    if (done < text.size()) {
        sink.Add(text.substr(done), OutputSink::kItalic);
    }
}

}  // namespace

void OutputTemplateTitle::layOutForFormat() {
    const TextView beforeDescription = stylecodes::usesBrackets(mFormat) ? u" " : u", ";
    layOut(kLayout, std::span(&beforeDescription, 1));
}

// Writing.

Text OutputTemplateTitle::wholeTitle(bool shortenedVersion) const {
    const Text& title = mValues.at(kTitle);
    const Text& subtitle = mValues.at(kSubtitle);
    if (shortenedVersion) {
        return shortTitle(title.empty() ? subtitle : title);
    }
    if (subtitle.empty() || title.empty()) {
        return title.empty() ? subtitle : title;
    }
    return concatenate({title, isQuestionOrExclamation(title.back()) ? u" " : u": ", subtitle});
}

Text OutputTemplateTitle::quoted(TextView title) const {
    return concatenate({mOpeningQuotationMark, titlequotes::withSingleQuotationMarks(title), mClosingQuotationMark});
}

bool OutputTemplateTitle::isPart() const {
    return mIsChapterOrWebsite || titletypes::isPart(mTitleType);
}

void OutputTemplateTitle::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    if (isPrematter(mTitleType)) {
        ToFormattedStringPrematter(formattedStr, isFootnote, shortenedVersion);
    } else {
        AssembledElement::write(formattedStr, isFootnote, shortenedVersion);
    }
}

bool OutputTemplateTitle::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                    std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    const bool hasTitle = !mValues.at(kTitle).empty() || !mValues.at(kSubtitle).empty();
    const TextView text = titletypes::describingText(mTitleType, mFormat, hasTitle);
    const bool isBare = text.empty() || titletypes::isLeadIn(text) || !stylecodes::usesBrackets(mFormat);
    const Text description = isBare ? Text(text) : concatenate({u"[", text, u"]"});
    if (!hasTitle) {
        items.at(kLeadInSlot) = description;
        return false;
    }
    const Text typed = wholeTitle(shortenedVersion);
    // Both before the reports of what follows, which reach the host.
    const Text& translated = mValues.at(kTranslation);
    Text translation = translated.empty() ? Text() : concatenate({u"[", translated, u"]"});
    TitleText read = titlecase::readTitle(typed);
    Text title = formatRule(read);
    if (!shortenedVersion) {
        items.at(kTranslationSlot) = std::move(translation);
        items.at(kDescriptionSlot) = description;
        movePunctuation(items, title);
        if (titletypes::isSentence(text, mFormat)) {
            title += endsWithPunctuation(title) ? u"" : u".";
            items.at(kDescriptionSlot).clear();
            items.at(kAfterMarkSlot) = description;
        }
    }
    // A copy: the host may ask for a new layout while it is written to.
    const OutputSinkRef fragment = formattedItems.at(kTitleSlot);
    addTitle(fragment, title, read.words, isPart());
    return false;
}

void OutputTemplateTitle::movePunctuation(std::vector<Text>& items, TextView title) {
    procedure(*this, u"movePunctuation", {{u"items", items}, {u"title", title}}, [&] {
        mPunctuation.clear();
        if (!endsWithPunctuation(title) || !isQuestionOrExclamation(title.back())) {
            return;
        }
        mPunctuation = title.back();
        if (items.at(kTranslationSlot).empty()) {
            items.at(kAfterMarkSlot) = std::exchange(items.at(kDescriptionSlot), Text());
        }
    });
}

void OutputTemplateTitle::addTitle(const OutputSinkRef& formattedStr, Text& text, std::span<const Word> words,
                                   bool isPart) const {
    procedure(*this, u"addTitle", {{u"formattedStr", formattedStr}, {u"text", text}, {u"isPart", isPart}},
              [&] { addTitleImpl(formattedStr, text, words, isPart); });
}

void OutputTemplateTitle::addTitleImpl(const OutputSinkRef& formattedStr, Text& text, std::span<const Word> words,
                                       bool isPart) const {
    procedure(*this, u"addTitleImpl", {{u"formattedStr", formattedStr}, {u"text", text}, {u"isPart", isPart}}, [&] {
        OutputSink& sink = object(formattedStr);
        if (isPart) {
            sink.Add(titletypes::quotesParts(mFormat) ? quoted(text) : text, OutputSink::kPlain);
            return;
        }
        std::vector<Range> roman;
        UnItalicizeSpeciesAndNamesOfShips(text, words, roman);
        addItalic(sink, text, roman);
    });
}

void OutputTemplateTitle::UnItalicizeSpeciesAndNamesOfShips(Text& text, std::span<const Word> words,
                                                            std::vector<Range>& roman) const {
    procedure(*this, u"UnItalicizeSpeciesAndNamesOfShips", {{u"text", text}}, [&] {
        if (mUnItalicizeSpeciesAndNamesOfShips) {
            UnItalicizeSpecies(text, words, roman);
            UnItalicizeShipNames(text, words, roman);
            titleroman::order(roman);
        }
    });
}

void OutputTemplateTitle::UnItalicizeSpecies(Text& text, std::span<const Word> words, std::vector<Range>& roman) const {
    procedure(*this, u"UnItalicizeSpecies", {{u"text", text}}, [&] { titleroman::findSpecies(text, words, roman); });
}

void OutputTemplateTitle::UnItalicizeShipNames(TextView text, std::span<const Word> words,
                                               std::vector<Range>& roman) const {
    procedure(*this, u"UnItalicizeShipNames", {{u"text", text}}, [&] { titleroman::findShips(text, words, roman); });
}

void OutputTemplateTitle::UnItalicizeSpeciesAndNamesOfShips(TextView text, const OutputSinkRef& formattedStr) const {
    procedure(*this, u"UnItalicizeSpeciesAndNamesOfShips", {{u"text", text}, {u"formattedStr", formattedStr}}, [&] {
        Text title(text);
        std::vector<Range> roman;
        if (mUnItalicizeSpeciesAndNamesOfShips) {
            const TitleText read = titlecase::readTitle(text);
            titleroman::findSpecies(title, read.words, roman);
            titleroman::findShips(title, read.words, roman);
            titleroman::order(roman);
        }
        addItalic(object(formattedStr), title, roman);
    });
}

void OutputTemplateTitle::UnItalicizeSpecies(TextView text, const OutputSinkRef& formattedStr) const {
    procedure(*this, u"UnItalicizeSpecies", {{u"text", text}, {u"formattedStr", formattedStr}}, [&] {
        Text title(text);
        std::vector<Range> roman;
        titleroman::findSpecies(title, titlecase::readTitle(text).words, roman);
        addItalic(object(formattedStr), title, roman);
    });
}

void OutputTemplateTitle::UnItalicizeShipNames(TextView text, const OutputSinkRef& formattedStr) const {
    procedure(*this, u"UnItalicizeShipNames", {{u"text", text}, {u"formattedStr", formattedStr}}, [&] {
        std::vector<Range> roman;
        titleroman::findShips(text, titlecase::readTitle(text).words, roman);
        addItalic(object(formattedStr), text, roman);
    });
}

void OutputTemplateTitle::ToFormattedStringPrematter(const OutputSinkRef& formattedStr, bool isFootnote,
                                                     bool shortenedVersion) {
    procedure(*this, u"ToFormattedStringPrematter",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { ToFormattedStringPrematterImpl(formattedStr, isFootnote, shortenedVersion); });
}

void OutputTemplateTitle::ToFormattedStringPrematterImpl(const OutputSinkRef& formattedStr, bool isFootnote,
                                                         bool shortenedVersion) {
    procedure(*this, u"ToFormattedStringPrematterImpl",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  const titletypes::PrematterJoints joints = titletypes::prematterJoints(mFormat);
                  const bool hasTitle = prematterHasTitle();
                  // Turabian 7 17.1.8.2: in the middle of a note the word has no capital.
                  const bool isSmall = isFootnote && mFormat == stylecodes::kTurabian;
                  const Text word = isSmall ? toLower(mTitleType) : mTitleType;
                  const std::shared_ptr<OutputTemplateAuthor> author = mAuthorTemplate;
                  const bool writesAuthor = author && author->numAuthors() > 0 && !shortenedVersion;
                  const Text persons = writesAuthor ? author->toString(true, false, false, true) : Text();
                  const Text typed = hasTitle ? wholeTitle(shortenedVersion) : Text();
                  TitleText read = titlecase::readTitle(typed);
                  Text title = hasTitle ? formatRule(read) : Text();
                  OutputSink& sink = object(formattedStr);
                  sink.Add(hasTitle ? concatenate({word, joints.beforeTitle}) : word, OutputSink::kPlain);
                  if (hasTitle) {
                      addTitleImpl(formattedStr, title, read.words, false);
                  }
                  if (writesAuthor) {
                      sink.Add(concatenate({joints.beforeAuthor, persons}), OutputSink::kPlain);
                  }
              });
}

Text OutputTemplateTitle::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

Text OutputTemplateTitle::formatStr(TextView text) {
    return procedure(*this, u"formatStr", {{u"text", text}}, [&] {
        Text parsed(text);
        Parse(parsed, {});
        return toString(false, false);
    });
}

}  // namespace quorvel

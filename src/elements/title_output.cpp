// The title element: capitalisation and writing.

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "core/run_time_error.h"
#include "elements/title.h"
#include "elements/title_language.h"
#include "elements/title_short.h"
#include "elements/title_types.h"

namespace quorvel {

using titlecase::Range;
using titlecase::slice;
using titlecase::TitleText;
using titlecase::Word;

namespace {

constexpr std::int32_t kItalic = 1;
constexpr char16_t kLeftSingleQuotationMark = u'\u2018';
constexpr char16_t kRightSingleQuotationMark = u'\u2019';

// The slots. A describing text behind "?" or "!" has no comma: it stands in a slot of its own.
enum Slot : std::size_t {
    kLeadInSlot = 0,
    kTitleSlot = 1,
    kTranslationSlot = 2,
    kDescriptionSlot = 3,
    kAfterMarkSlot = 4
};
constexpr std::int16_t kLastSlot = kAfterMarkSlot;

bool isQuestionOrExclamation(char16_t unit) {
    return unit == u'?' || unit == u'!';
}

/// The double quotation marks inside a title that gets some itself become single ones.
Text withSingleQuotationMarks(TextView text) {
    Text result(text);
    bool isOpen = false;
    for (char16_t& unit : result) {
        if (unit == kLeftDoubleQuotationMark || (unit == u'"' && !isOpen)) {
            unit = kLeftSingleQuotationMark;
            isOpen = true;
        } else if (unit == kRightDoubleQuotationMark || unit == u'"') {
            unit = kRightSingleQuotationMark;
            isOpen = false;
        }
    }
    return result;
}

}  // namespace

void OutputTemplateTitle::layOut() {
    const Text comma = titletypes::usesBrackets(mFormat) ? u" " : u", ";
    held(mOutputTemplate)->Reset(kLastSlot);
    Add(kLeadInSlot, false, {u"", u"", u"", u"", u"", u""});
    Add(kTitleSlot, true, {u"", u" ", comma, u" ", u""});
    Add(kTranslationSlot, false, {u"", comma, u" ", u""});
    Add(kDescriptionSlot, false, {u"", u"", u""});
    Add(kAfterMarkSlot, false, {u"", u""});
}

void OutputTemplateTitle::Add(std::int16_t Index, bool isFormatted, const std::vector<Text>& separators) {
    procedure(*this, u"OutputTemplateTitle.Add",
              {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"separators", separators}},
              [&] { held(mOutputTemplate)->Add(Index, isFormatted, false, separators); });
}

// Capitalisation.

titlecase::Rules OutputTemplateTitle::rules() const {
    titlecase::Rules rules;
    rules.isHeading = !mSentenceCapitalization;
    rules.capitalizeHyphenatedWord = mCapitalizeHyphenatedWord;
    rules.capitalizeSubtitle = mCapitalizeSubtitle;
    return rules;
}

Text OutputTemplateTitle::CapitalizationRule() const {
    return procedure(*this, u"OutputTemplateTitle.CapitalizationRule[Get]", kNoParameters,
                     [&] { return isPart() ? mChapterAndWebsiteRule : mBookAndArticleRule; });
}

Text OutputTemplateTitle::formatRule(TextView text) const {
    TitleText title = titlecase::readTitle(text);
    return formatRule(title);
}

Text OutputTemplateTitle::formatRule(TitleText& title) const {
    return procedure(*this, u"OutputTemplateTitle.formatRule", {{u"text", title.text}}, [&] {
        Text result(title.text);
        const titlecase::Rules inForce = rules();
        if (isRecased(title) && (inForce.isHeading || titlecase::standsInHeadingCase(title))) {
            for (std::size_t i = 0; i < title.words.size();) {
                const std::span<Word> piece = title.pieceFrom(i);
                formatRuleImpl(result, title, piece, titlecase::capitalizesFirstWord(piece.front(), inForce),
                               inForce.isHeading);
                i += piece.size();
            }
        }
        return result;
    });
}

void OutputTemplateTitle::formatRuleImpl(Text& text, const TitleText& title, std::span<Word> piece,
                                         bool capitalizeFirstWord, bool isHeadingCapitalization) const {
    procedure(*this, u"OutputTemplateTitle.formatRuleImpl",
              {{u"capitalizeFirstWord", capitalizeFirstWord}, {u"isHeadingCapitalization", isHeadingCapitalization}},
              [&] {
                  titlecase::Rules inForce = rules();
                  inForce.isHeading = isHeadingCapitalization;
                  titlecase::applyPiece(text, title, piece, capitalizeFirstWord, inForce);
              });
}

/// Whether a title may be recased at all: English, in no old spelling, and not preformatted.
bool OutputTemplateTitle::isRecased(const TitleText& title) const {
    return !isPreformattedTitle(title.text) && isEnglishTitle(title) && !isOldTitle(title);
}

std::vector<Range> OutputTemplateTitle::changedWords(TextView text) const {
    TitleText title = titlecase::readTitle(text);
    return titlecase::changedWords(text, formatRule(title), title.words);
}

Text OutputTemplateTitle::headingCapitalization(TextView text) const {
    return procedure(*this, u"OutputTemplateTitle.headingCapitalization", {{u"text", text}}, [&] {
        titlecase::Rules heading = rules();
        heading.isHeading = true;
        return titlecase::casedTitle(text, heading).text;
    });
}

Text OutputTemplateTitle::InHeadingCapitalization(TextView text) const {
    return procedure(*this, u"OutputTemplateTitle.InHeadingCapitalization", {{u"text", text}},
                     [&] { return isRecased(titlecase::readTitle(text)) ? headingCapitalization(text) : Text(text); });
}

bool OutputTemplateTitle::IsInHeadingCapitalization(TextView text) const {
    return procedure(*this, u"OutputTemplateTitle.IsInHeadingCapitalization", {{u"text", text}},
                     [&] { return titlecase::standsInHeadingCase(titlecase::readTitle(text)); });
}

Text OutputTemplateTitle::capitalizeAccordingToInternalRules(TextView text, bool isTitle) const {
    return procedure(*this, u"OutputTemplateTitle.capitalizeAccordingToInternalRules",
                     {{u"text", text}, {u"isTitle", isTitle}}, [&] {
                         if (isTitle) {
                             return formatRule(text);
                         }
                         titlecase::Rules sentence = rules();
                         sentence.isHeading = false;
                         return titlecase::casedTitle(text, sentence).text;
                     });
}

Text OutputTemplateTitle::capitalize(TextView word, bool doCapitalization) const {
    return procedure(*this, u"OutputTemplateTitle.capitalize",
                     {{u"word", word}, {u"doCapitalization", doCapitalization}}, [&] {
                         Text result(word);
                         // "de" and the "e" of "e-mail" stay.
                         if (result.empty() || !doCapitalization || word == u"de") {
                             return result;
                         }
                         titlecase::capitalizeAt(result, startsWith(word, u"e-") && word.size() > 2 ? 2 : 0);
                         return result;
                     });
}

Text OutputTemplateTitle::hyphenate(TextView word) const {
    return procedure(*this, u"OutputTemplateTitle.hyphenate", {{u"word", word}}, [&] {
        std::vector<Text> parts = split(word, u"-");
        for (std::size_t i = 1; i < parts.size(); ++i) {
            parts[i] = capitalize(parts[i], mCapitalizeHyphenatedWord && shouldBeCapitalized(parts[i], true));
        }
        return join(parts, u"-");
    });
}

// Writing.

Text OutputTemplateTitle::wholeTitle(bool shortenedVersion) const {
    const Text& title = mValues.at(kTitle);
    const Text& subtitle = mValues.at(kSubtitle);
    if (shortenedVersion) {
        return titlecase::shortTitle(title.empty() ? subtitle : title);
    }
    if (subtitle.empty() || title.empty()) {
        return title.empty() ? subtitle : title;
    }
    return concatenate({title, isQuestionOrExclamation(title.back()) ? u" " : u": ", subtitle});
}

bool OutputTemplateTitle::isPart() const {
    return mIsChapterOrWebsite || titletypes::isPart(mTitleType);
}

void OutputTemplateTitle::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    procedure(*this, u"OutputTemplateTitle.ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  if (isPrematter(mTitleType)) {
                      ToFormattedStringPrematter(formattedStr, isFootnote, shortenedVersion);
                      return;
                  }
                  const std::shared_ptr<outputTemplate> assembly = mOutputTemplate;
                  object(assembly).ResetReferenceItems();
                  assembly->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote);
              });
}

bool OutputTemplateTitle::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                                std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    return procedure(
        *this, u"OutputTemplateTitle.ToFormattedStringImpl",
        {{u"isFootnote", isFootnote}, {u"items", items}, {u"shortenedVersion", shortenedVersion}}, [&] {
            const bool hasTitle = !mValues.at(kTitle).empty() || !mValues.at(kSubtitle).empty();
            const TextView text = titletypes::describingText(mTitleType, mFormat, hasTitle);
            const bool isBare = text.empty() || titletypes::isLeadIn(text) || !titletypes::usesBrackets(mFormat);
            const Text description = isBare ? Text(text) : concatenate({u"[", text, u"]"});
            if (!hasTitle) {
                items.at(kLeadInSlot) = description;
                return false;
            }
            const Text translation = mValues.at(kTranslation);
            const Text typed = wholeTitle(shortenedVersion);
            TitleText read = titlecase::readTitle(typed);
            Text title = formatRule(read);
            if (!shortenedVersion) {
                items.at(kTranslationSlot) = translation.empty() ? Text() : concatenate({u"[", translation, u"]"});
                items.at(kDescriptionSlot) = description;
                movePunctuation(items, title);
            }
            // A copy: the host may ask for a new layout while it is written to.
            const OutputSinkRef fragment = formattedItems.at(kTitleSlot);
            addTitle(fragment, title, read.words, isPart());
            return false;
        });
}

void OutputTemplateTitle::movePunctuation(std::vector<Text>& items, TextView title) {
    procedure(*this, u"OutputTemplateTitle.movePunctuation", {{u"items", items}, {u"title", title}}, [&] {
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
    procedure(*this, u"OutputTemplateTitle.addTitle",
              {{u"formattedStr", formattedStr}, {u"text", text}, {u"isPart", isPart}},
              [&] { addTitleImpl(formattedStr, text, words, isPart); });
}

void OutputTemplateTitle::addTitleImpl(const OutputSinkRef& formattedStr, Text& text, std::span<const Word> words,
                                       bool isPart) const {
    procedure(*this, u"OutputTemplateTitle.addTitleImpl",
              {{u"formattedStr", formattedStr}, {u"text", text}, {u"isPart", isPart}}, [&] {
                  OutputSink& sink = object(formattedStr);
                  if (isPart) {
                      const bool isQuoted = titletypes::quotesParts(mFormat);
                      sink.Add(
                          isQuoted ? concatenate({u"\u201C", withSingleQuotationMarks(text), u"\u201D"}) : Text(text),
                          OutputSink::kPlain);
                      return;
                  }
                  std::vector<Range> roman;
                  UnItalicizeSpeciesAndNamesOfShips(text, words, roman);
                  std::size_t done = 0;
                  for (const Range range : roman) {
                      if (range.begin > done) {
                          sink.Add(slice(text, {done, range.begin}), kItalic);
                      }
                      sink.Add(slice(text, range), OutputSink::kPlain);
                      done = range.end;
                  }
                  if (done < text.size()) {
                      sink.Add(slice(text, {done, text.size()}), kItalic);
                  }
              });
}

void OutputTemplateTitle::UnItalicizeSpeciesAndNamesOfShips(Text& text, std::span<const Word> words,
                                                            std::vector<Range>& roman) const {
    procedure(*this, u"OutputTemplateTitle.UnItalicizeSpeciesAndNamesOfShips", {{u"text", text}}, [&] {
        if (!mUnItalicizeSpeciesAndNamesOfShips) {
            return;
        }
        UnItalicizeSpecies(text, words, roman);
        UnItalicizeShipNames(text, words, roman);
        std::sort(roman.begin(), roman.end(), [](Range a, Range b) { return a.begin < b.begin; });
        // "H.M.S. E. coli" would be both.
        std::size_t end = 0;
        std::erase_if(roman, [&](Range range) {
            const bool isInside = range.begin < end;
            end = isInside ? end : range.end;
            return isInside;
        });
    });
}

void OutputTemplateTitle::UnItalicizeSpecies(Text& text, std::span<const Word> words, std::vector<Range>& roman) const {
    procedure(*this, u"OutputTemplateTitle.UnItalicizeSpecies", {{u"text", text}}, [&] {
        for (std::size_t i = 1; i < words.size(); ++i) {
            if (!words[i].known.is(titlewords::kSpeciesEpithet)) {
                continue;
            }
            const Word& before = words[i - 1];
            const TextView genus = slice(text, before.core);
            const std::size_t gap = words[i].core.begin - before.core.end;
            const bool isInitial = genus.size() == 1 && gap == 2 && text[before.core.end] == u'.';
            // As it is written now: a heading may have given it its capital.
            const titlewords::WordClasses known = titlewords::Lexicon::instance().classesOf(before.known.entry, genus);
            if (isInitial || (gap == 1 && (known & titlewords::kName) != 0)) {
                // A heading had made it "E. Coli".
                titlecase::lowerAt(text, words[i].core.begin);
                roman.push_back({before.core.begin, words[i].core.end});
            }
        }
    });
}

void OutputTemplateTitle::UnItalicizeShipNames(TextView text, std::span<const Word> words,
                                               std::vector<Range>& roman) const {
    procedure(*this, u"OutputTemplateTitle.UnItalicizeShipNames", {{u"text", text}}, [&] {
        for (const Word& word : words) {
            if (!word.known.is(titlewords::kShipPrefix)) {
                continue;
            }
            const std::size_t at = word.core.begin;
            // "U.S.S. " or "USS ".
            const bool isDotted = slice(text, word.core).find(u'.') != TextView::npos;
            const TextView joint = isDotted ? u". " : u" ";
            if ((at > 0 && text[at - 1] != u' ') || !startsWith(text.substr(word.core.end), joint)) {
                continue;
            }
            // The name is one word, without the mark behind it.
            std::size_t end = word.core.end + joint.size();
            while (end < text.size() && (isDigit(text[end]) || isCasedLetter(text[end]) || text[end] == u'-')) {
                ++end;
            }
            roman.push_back({at, end});
        }
    });
}

void OutputTemplateTitle::ToFormattedStringPrematter(const OutputSinkRef& formattedStr, bool isFootnote,
                                                     bool shortenedVersion) {
    procedure(*this, u"OutputTemplateTitle.ToFormattedStringPrematter",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { ToFormattedStringPrematterImpl(formattedStr, isFootnote, shortenedVersion); });
}

void OutputTemplateTitle::ToFormattedStringPrematterImpl(const OutputSinkRef& formattedStr, bool isFootnote,
                                                         bool shortenedVersion) {
    procedure(*this, u"OutputTemplateTitle.ToFormattedStringPrematterImpl",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] {
                  const titletypes::PrematterJoints joints = titletypes::prematterJoints(mFormat);
                  const bool hasTitle = prematterHasTitle();
                  // Turabian 7 17.1.8.2: in the middle of a note the word has no capital.
                  const bool isSmall = isFootnote && mFormat == titletypes::kTurabian;
                  const Text word = isSmall ? toLower(mTitleType) : mTitleType;
                  const std::shared_ptr<OutputTemplateAuthor> author = mAuthorTemplate;
                  const bool writesAuthor = author && author->numAuthors() > 0 && !shortenedVersion;
                  const Text persons = writesAuthor ? author->toString(true, false) : Text();
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
    return procedure(*this, u"OutputTemplateTitle.toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}}, [&] {
                         const std::shared_ptr<outputTemplate> assembly = mOutputTemplate;
                         return object(assembly).toString(*this, shortenedVersion, isFootnote, isRTF);
                     });
}

Text OutputTemplateTitle::formatStr(TextView text) {
    return procedure(*this, u"OutputTemplateTitle.formatStr", {{u"text", text}}, [&] {
        Text parsed(text);
        Parse(parsed, {});
        return toString(false, false);
    });
}

}  // namespace quorvel

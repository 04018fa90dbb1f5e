// The title element: capitalisation, and tests on words and texts.

#include <algorithm>
#include <iterator>

#include "core/procedure.h"
#include "elements/title/language.h"
#include "elements/title/sentence.h"
#include "elements/title/title.h"

namespace quorvel {

using titlecase::Range;
using titlecase::TitleText;
using titlecase::Word;
using words::Lexicon;

namespace {

constexpr TextView kPunctuationEnds[] = {u".", u"?", u"!", u"'s"};

}  // namespace

titlecase::Rules OutputTemplateTitle::rules() const {
    titlecase::Rules rules;
    rules.isHeading = !mSentenceCapitalization;
    rules.capitalizeHyphenatedWord = mCapitalizeHyphenatedWord;
    rules.capitalizeSubtitle = mCapitalizeSubtitle;
    return rules;
}

Text OutputTemplateTitle::CapitalizationRule() const {
    return procedure(*this, u"CapitalizationRule[Get]", kNoParameters,
                     [&] { return isPart() ? mChapterAndWebsiteRule : mBookAndArticleRule; });
}

Text OutputTemplateTitle::formatRule(TextView text) const {
    return procedure(*this, u"formatRule", {{u"text", text}}, [&] {
        TitleText title = titlecase::readTitle(text);
        return inStyle(title);
    });
}

Text OutputTemplateTitle::formatRule(TitleText& title) const {
    return procedure(*this, u"formatRule", {{u"text", title.text}}, [&] { return inStyle(title); });
}

Text OutputTemplateTitle::inStyle(TitleText& title) const {
    Text result(title.text);
    const titlecase::Rules inForce = rules();
    if (!isRecased(title)) {
        return result;
    }
    if (!inForce.isHeading && !titlecase::standsInHeadingCase(title)) {
        titlecase::applyBeginnings(result, title, inForce.capitalizeSubtitle);
    } else {
        for (std::size_t i = 0; i < title.words.size();) {
            const std::span<Word> piece = title.pieceFrom(i);
            formatRuleImpl(result, title, piece, titlecase::capitalizesFirstWord(piece.front(), inForce),
                           inForce.isHeading);
            i += piece.size();
        }
    }
    return result;
}

void OutputTemplateTitle::formatRuleImpl(Text& text, const TitleText& title, std::span<Word> piece,
                                         bool capitalizeFirstWord, bool isHeadingCapitalization) const {
    procedure(*this, u"formatRuleImpl",
              {{u"capitalizeFirstWord", capitalizeFirstWord}, {u"isHeadingCapitalization", isHeadingCapitalization}},
              [&] {
                  titlecase::Rules inForce = rules();
                  inForce.isHeading = isHeadingCapitalization;
                  titlecase::applyPiece(text, title, piece, capitalizeFirstWord, inForce);
              });
}

Text OutputTemplateTitle::formatRuleImpl(TextView text, bool capitalizeFirstWord, bool isHeadingCapitalization) const {
    return procedure(*this, u"formatRuleImpl",
                     {{u"text", text},
                      {u"capitalizeFirstWord", capitalizeFirstWord},
                      {u"isHeadingCapitalization", isHeadingCapitalization}},
                     [&] {
                         Text result(text);
                         TitleText title = titlecase::readTitle(text);
                         titlecase::Rules inForce = rules();
                         inForce.isHeading = isHeadingCapitalization;
                         for (std::size_t i = 0; i < title.words.size();) {
                             const std::span<Word> piece = title.pieceFrom(i);
                             const bool isCapitalized =
                                 i == 0 ? capitalizeFirstWord : titlecase::capitalizesFirstWord(piece.front(), inForce);
                             titlecase::applyPiece(result, title, piece, isCapitalized, inForce);
                             i += piece.size();
                         }
                         return result;
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
    return procedure(*this, u"headingCapitalization", {{u"text", text}}, [&] {
        titlecase::Rules heading = rules();
        heading.isHeading = true;
        return titlecase::casedTitle(text, heading).text;
    });
}

Text OutputTemplateTitle::InHeadingCapitalization(TextView text) const {
    return procedure(*this, u"InHeadingCapitalization", {{u"text", text}},
                     [&] { return isRecased(titlecase::readTitle(text)) ? headingCapitalization(text) : Text(text); });
}

bool OutputTemplateTitle::IsInHeadingCapitalization(TextView text) const {
    return procedure(*this, u"IsInHeadingCapitalization", {{u"text", text}},
                     [&] { return titlecase::standsInHeadingCase(titlecase::readTitle(text)); });
}

Text OutputTemplateTitle::capitalizeAccordingToInternalRules(TextView text, bool isTitle) const {
    return procedure(*this, u"capitalizeAccordingToInternalRules", {{u"text", text}, {u"isTitle", isTitle}}, [&] {
        if (isTitle) {
            return formatRule(text);
        }
        titlecase::Rules sentence = rules();
        sentence.isHeading = false;
        return titlecase::casedTitle(text, sentence).text;
    });
}

Text OutputTemplateTitle::capitalize(TextView word, bool doCapitalization) const {
    return procedure(*this, u"capitalize", {{u"word", word}, {u"doCapitalization", doCapitalization}}, [&] {
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
    return procedure(*this, u"hyphenate", {{u"word", word}}, [&] {
        std::vector<Text> parts = split(word, u"-");
        for (std::size_t i = 1; i < parts.size(); ++i) {
            parts[i] = capitalize(parts[i], mCapitalizeHyphenatedWord && shouldBeCapitalized(parts[i], true));
        }
        return join(parts, u"-");
    });
}

// Tests.

bool OutputTemplateTitle::shouldBeCapitalized(TextView word, bool ignoreFormatCapitalizationRule) const {
    return procedure(*this, u"shouldBeCapitalized",
                     {{u"word", word}, {u"ignoreFormatCapitalizationRule", ignoreFormatCapitalizationRule}}, [&] {
                         if (mSentenceCapitalization && !ignoreFormatCapitalizationRule) {
                             return false;
                         }
                         Text lowered(word);
                         // The one-letter word is tested as it stands, deliberately: "A" does not match.
                         if (lowered.size() > 1) {
                             titlecase::lowerAt(lowered, 0);
                         }
                         return !Lexicon::instance().find(word, lowered).is(titlewords::kSmallWord);
                     });
}

bool OutputTemplateTitle::isAlwaysLowercase(TextView word) const {
    return procedure(*this, u"isAlwaysLowercase", {{u"word", word}},
                     [&] { return Lexicon::instance().find(word, word).is(titlewords::kParticle); });
}

bool OutputTemplateTitle::isAcronym(TextView word) const {
    return procedure(*this, u"isAcronym", {{u"word", word}}, [&] { return titlecase::isAcronym(word); });
}

bool OutputTemplateTitle::wordIsPossessive(TextView word) const {
    return procedure(*this, u"wordIsPossessive", {{u"word", word}}, [&] { return titlecase::isPossessive(word); });
}

bool OutputTemplateTitle::isEnglishTitle(TextView text) const {
    return procedure(*this, u"isEnglishTitle", {{u"text", text}},
                     [&] { return titlelanguage::isEnglish(titlecase::readTitle(text)); });
}

bool OutputTemplateTitle::isEnglishTitle(const titlecase::TitleText& title) const {
    return procedure(*this, u"isEnglishTitle", {{u"text", title.text}},
                     [&] { return titlelanguage::isEnglish(title); });
}

bool OutputTemplateTitle::isForeignTitle(TextView text) const {
    return procedure(*this, u"isForeignTitle", {{u"text", text}},
                     [&] { return titlelanguage::hasForeignSpelling(titlecase::readTitle(text)); });
}

bool OutputTemplateTitle::isOldTitle(TextView text) const {
    return procedure(*this, u"isOldTitle", {{u"text", text}},
                     [&] { return titlelanguage::isOld(titlecase::readTitle(text)); });
}

bool OutputTemplateTitle::isOldTitle(const titlecase::TitleText& title) const {
    return procedure(*this, u"isOldTitle", {{u"text", title.text}}, [&] { return titlelanguage::isOld(title); });
}

bool OutputTemplateTitle::isPreformattedTitle(TextView text) const {
    return procedure(*this, u"isPreformattedTitle", {{u"text", text}},
                     [&] { return titlelanguage::isPreformatted(text); });
}

bool OutputTemplateTitle::endsWithPunctuation(TextView text) const {
    return procedure(*this, u"endsWithPunctuation", {{u"text", text}},
                     [&] { return endsWithOneOf(text, kPunctuationEnds); });
}

}  // namespace quorvel

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "com/dispatch_object.h"
#include "text/rtf.h"

namespace sample {

/// The text without what an element's rule may leave of a part that it does not write: blanks and a comma at the end,
/// blanks at the start and before a semicolon, the second of two.
std::wstring withoutLooseEnds(std::wstring_view text);

/// The formatted text to which the library writes: a row of phrases, each in one font. The library
/// calls it by the names below; the host itself may call it directly.
///
///   late-bound member             what it does
///   Add(text[, font])             appends text, plain when no font is given
///   addFormattedString(fragment)  appends another formatted text with its fonts
///   Clone()                       a copy
///   BuildNewFormattedString()     a new empty one
///   Reset()                       empties it
///   IsEmpty                       whether it holds no text
///   toString                      the text without its fonts
///   toRTFString                   a whole RTF document
///   removeQuoteFromLastPhrase()   drops the closing quotation mark at the end; the phrase's font
///   lastPhraseFont                the font at the end; 0 when empty
///   PageIndex                     a number that a model template leaves here for the host
class FormattedText final : public DispatchObject {
public:
    FormattedText();

    void add(std::wstring_view text, std::int32_t font = kPlain);
    void add(const FormattedText& fragment);
    ComPointer<FormattedText> clone() const;
    void reset();
    /// Drops blanks at both ends, and a comma at the end.
    void trim();

    bool isEmpty() const { return mPhrases.empty(); }
    std::wstring toString() const;
    std::string toRtf() const { return rtfDocument({{toRtfBody(), ""}}); }
    /// The inside of a paragraph, for a document that joins many.
    std::string toRtfBody() const { return rtfBody(mPhrases); }

    /// Drops a closing quotation mark, U+201D or a straight one, from the end of the text.
    /// @return the font of the phrase that held it; 0 when that is plain or there is no such mark
    std::int16_t removeQuoteFromLastPhrase();
    std::int32_t lastPhraseFont() const { return mPhrases.empty() ? kPlain : mPhrases.back().font; }

    const std::vector<Phrase>& phrases() const { return mPhrases; }
    std::int32_t pageIndex() const { return mPageIndex; }

private:
    // No phrase is empty, and neighbours differ in font.
    std::vector<Phrase> mPhrases;
    std::int32_t mPageIndex = 0;
};

}  // namespace sample

#include "text/rtf.h"

namespace sample {

namespace {

struct FontWord {
    Font flag;
    const char* word;
};

constexpr FontWord kFontWords[] = {
    {kItalic, "\\i"},
    {kBold, "\\b"},
    {kUnderline, "\\ul"},
    {kSmallCapitals, "\\scaps"},
};

// \uc1: each \u is followed by one character for readers that know no Unicode.
constexpr const char* kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\r\n"
    "{\\fonttbl{\\f0\\froman\\fcharset0 Times New Roman;}}\r\n";
constexpr const char* kParagraphHead = "\\pard\\plain\\f0\\fs24";

void appendCharacter(std::string& rtf, wchar_t character) {
    switch (character) {
        case L'\\':
        case L'{':
        case L'}':
            rtf += '\\';
            rtf += static_cast<char>(character);
            return;
        // The blank that ends a control word is no text, so the text's own blank is not lost.
        case L'\t': rtf += "\\tab "; return;
        case L'\n': rtf += "\\line "; return;
        case L'\r': return;
        default: break;
    }
    if (character >= 0x20 && character < 0x7F) {
        rtf += static_cast<char>(character);
    } else {
        // The number is a signed one of 16 bits; a character beyond them comes as its two surrogates.
        rtf += "\\u" + std::to_string(static_cast<std::int16_t>(character)) + "?";
    }
}

}  // namespace

std::string rtfBody(const std::vector<Phrase>& phrases) {
    std::string rtf;
    for (const Phrase& phrase : phrases) {
        std::string words;
        for (const FontWord& font : kFontWords) {
            if ((phrase.font & font.flag) != 0) words += font.word;
        }
        if (!words.empty()) rtf += "{" + words + " ";
        for (const wchar_t character : phrase.text) appendCharacter(rtf, character);
        if (!words.empty()) rtf += "}";
    }
    return rtf;
}

std::string rtfDocument(const std::vector<RtfParagraph>& paragraphs) {
    std::string rtf = kHead;
    for (const RtfParagraph& paragraph : paragraphs) {
        rtf += kParagraphHead + paragraph.format + " " + paragraph.body + "\\par\r\n";
    }
    return rtf + "}\r\n";
}

}  // namespace sample

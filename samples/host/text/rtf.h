#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Rich Text Format, as far as a reference needs it.
namespace sample {

/// Font codes: flags that may be combined. They are what the library passes to the sink's `Add`.
enum Font : std::int32_t {
    kPlain = 0,
    kItalic = 1,
    kBold = 2,
    kUnderline = 4,
    kSmallCapitals = 8,
};

/// A run of text in one font.
struct Phrase {
    std::wstring text;
    std::int32_t font = kPlain;
};

/// The phrases as the inside of a paragraph, in plain ASCII. It can be put into any document.
std::string rtfBody(const std::vector<Phrase>& phrases);

struct RtfParagraph {
    std::string body;
    /// RTF control words, such as tab stops; may be empty.
    std::string format;
};

/// A whole document.
std::string rtfDocument(const std::vector<RtfParagraph>& paragraphs);

}  // namespace sample

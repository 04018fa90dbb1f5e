#pragma once

#include <optional>

#include "core/text.h"

/// Statements of media as texts, whatever the style.
namespace quorvel::mediumtext {

inline constexpr TextView kBook = u"Book or website";
inline constexpr TextView kCD = u"CD";
inline constexpr TextView kDVD = u"DVD";
inline constexpr TextView kDigitalFile = u"Digital file";
inline constexpr TextView kEbook = u"e-book";
inline constexpr TextView kMicroform = u"Microform";
inline constexpr TextView kMicrofilm = u"Microfilm";
inline constexpr TextView kMicrofiche = u"Microfiche";
inline constexpr TextView kMonograph = u"Monograph";
inline constexpr TextView kVideotape = u"Videotape";

bool isDisc(TextView caption);
/// "p. 53", "pp. 53-54"
bool arePages(TextView text);
bool isMicroform(TextView caption);

/// The medium that a text begins with, "CD-ROM. Disc 3", or is, "PDF file".
struct Medium {
    TextView caption;
    /// The format of a file or an e-book: "PDF", "Kindle".
    TextView format;
    /// How much of the text it takes.
    std::size_t length;
};
std::optional<Medium> mediumAtStart(TextView text);

/// The format of an e-book without the word behind it: "Kindle" for "Kindle version". Any other text stays.
TextView withoutVersion(TextView text);

/// A piece of a statement, at its beginning or behind ". ", ", ", ": ": where it begins, with its joint, and how long
/// it is; its value lies inside.
struct Piece {
    TextView value;
    std::size_t start;
    std::size_t length;
};

/// "Version 2.0", "Disc 3", "Rel. 3", "fiche 1", "grids A8-11", "row C", "frame 12".
enum class Word { kVersion, kDisc, kReel, kFiche, kGrids, kRow, kFrame };
std::optional<Piece> piece(TextView text, Word word);
/// "4 discs"
std::optional<Piece> discs(TextView text);

/// "3C12": fiche 3, row C, frame 12.
struct FrameOnFiche {
    TextView fiche;
    TextView row;
    TextView frame;
    Piece whole;
};
std::optional<FrameOnFiche> frameOnFiche(TextView text);

/// "June 1993", "Oct. 1993", "(1990)" at the end.
std::optional<Piece> dateAtEnd(TextView text);

}  // namespace quorvel::mediumtext

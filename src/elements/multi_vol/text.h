#pragma once

#include <optional>

#include "core/text.h"

/// Statements of volumes and series as texts, whatever the style: what stands at the beginning or at the end of one.
/// Whatever is found at the end gives `start`, where it begins with the sign and the blank that join it to the rest.
namespace quorvel::volumetext {

// The words before the number beside a volume, of a book in a work and of an item in a series.
inline constexpr TextView kBook = u"bk. ";
inline constexpr TextView kNumber = u"no. ";
/// Behind the count of volumes of a work that still appears.
inline constexpr TextView kToDate = u" to date";

/// "Series" for every "Ser.", and the reverse for every "Series" that is a word of its own.
Text withFullSeries(TextView title);
Text withShortSeries(TextView title);

/// "Vol. 3", "vols. 2-4", "Volume B", "Vol. I and II" at the beginning.
struct Volumes {
    TextView number;
    /// The word is in the plural.
    bool isPlural;
    std::size_t length;
};
std::optional<Volumes> volumesAtStart(TextView text);

/// True for a text that begins with a volume word or a count of volumes, whatever follows: "vol. 8586 LNCS", "4 vols.
/// in 2".
bool tellsOfVolumes(TextView text);

/// True for a text that is the number of several volumes: "2-4", "I and II", "1, 3, 5".
bool areSeveral(TextView number);

/// A book, a part or a number, with the word that it is written with; empty for the word of the statement's own.
struct Numbered {
    TextView word;
    TextView number;
    std::size_t start;
    std::size_t length;
};
/// "bk. 2", "part 3", "no. 14" at the beginning.
std::optional<Numbered> numberAtStart(TextView text);
/// "Records, vol. 1, no. 14", "Transactions pt. 3" at the end.
std::optional<Numbered> numberAtEnd(TextView text);
/// A number with its word: "bk. 2" for "2" and the word "bk. "; one that has a word of its own stays.
Text withWord(TextView number, TextView word);

/// "32 vols.", "4 vols. to date", ". Vols. 8" at the end.
struct Count {
    TextView number;
    bool isToDate;
    std::size_t start;
};
std::optional<Count> countAtEnd(TextView text);

/// The years over which volumes appeared, at the end, behind a count of volumes or a sentence: "1968-83", "1985-".
/// Years behind a comma belong to a title.
struct Years {
    TextView years;
    std::size_t start;
};
std::optional<Years> yearsAtEnd(TextView text);

/// "Title, edited by A. Lee", "Title. Ed. A. Lee", "Title. A. Lee, gen. ed." at the end.
struct Editor {
    TextView name;
    bool isGeneral;
    std::size_t start;
};
std::optional<Editor> editorAtEnd(TextView text);
/// The last of them alone.
std::optional<Editor> generalEditorAtEnd(TextView text);

/// The volume in a series: "Molecular Biology; vol 260", "Records, vol. 1", "Culture 7", "Publications, 2nd ser., 106".
struct SeriesVolume {
    TextView number;
    std::size_t start;
};
std::optional<SeriesVolume> seriesVolumeAtEnd(TextView text);
/// The same, but only with the volume word: "Records, vol. 1".
std::optional<SeriesVolume> volumeWithWordAtEnd(TextView text);

/// What tells the old, the new or a numbered series: "Publications, n.s.", "Publications, 2nd ser."
struct SeriesType {
    Text type;
    std::size_t start;
};
std::optional<SeriesType> seriesTypeAtEnd(TextView text);
/// The type that a word or two name: "o.s.", "n.s.", "2nd ser."; empty for any others.
Text seriesType(TextView words);

/// How a title is joined to the volume before it: what the sign is, and where the title begins.
struct Joint {
    bool isComma;
    std::size_t length;
};
/// " of ", ", of ", ". ", ": ", ", " at the beginning.
std::optional<Joint> jointAtStart(TextView text);

}  // namespace quorvel::volumetext

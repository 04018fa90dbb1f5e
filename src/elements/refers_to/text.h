#pragma once

#include <optional>

#include "core/text.h"

/// The parts of statements about other publications: where they stand in a text, whatever the style.
///
///   JAMA. 2004;291(20):2432-2440              AMA
///   JAMA 291.20 (2004): 2432-40               MLA
///   JAMA 291, no. 20 (2004): 2432–40          Turabian
///   JAMA, 291(20), 2432–2440                  APA
///
/// Any part may be missing. Each is taken off the end of what the ones before have left: page, year in parentheses,
/// volume and number, date.
namespace quorvel::referstotext {

/// A text in two: what was found, and what is left of the text without the signs that joined them.
struct Cut {
    TextView rest;
    TextView part;
};

/// "2432-40" behind ":", also "item EJ 471 017", and behind a comma as APA has it; a DOI.
std::optional<Cut> page(TextView text);
/// "(2004)", "(12 Jan. 2004)" behind a blank.
std::optional<Cut> yearInParentheses(TextView text);
/// "2004", "January 3, 2004", "In press" behind a full stop; "12 Jan. 2004" also behind a blank.
/// @param bareYear a year is one too behind a blank or comma, "JAMA 2004", since a volume followed it
std::optional<Cut> date(TextView text, bool bareYear = false);

struct VolumeAndNumber {
    TextView rest;
    TextView volume;
    TextView number;
};
/// "291(20)", ";(20)", "291.20", "291, no. 20", ", publ. nr. 20", ";291".
/// @param bareVolume a number alone is one too, "JAMA 291", since a year or page followed it
std::optional<VolumeAndNumber> volumeAndNumber(TextView text, bool bareVolume);

/// One of the issues through which an article ran: "52.4 (1981): 688-705".
struct Issue {
    TextView rest;
    TextView volume;
    TextView number;
    TextView year;
    TextView page;
};
Issue issue(TextView text);
/// Two such issues, or more, with "; " between them.
bool isSerialArticle(TextView text);

/// "ASM abstract D-36" and "abstract D-36", by the letters of the society alone or by a number alone.
bool isMeetingAbstract(TextView text);
/// The society, in any words, and the number.
std::optional<Cut> meetingAbstract(TextView text);

/// "n.s.", "old series", "3rd ser.", "second series".
bool isSeries(TextView text);
/// "n.s." and "o.s." for a new and an old series in any wording, the ordinal for a number; any other text without
/// " ser." and " series".
Text seriesName(TextView text);

/// Whether the full stop of an initial may end a sentence.
enum InitialsStop : bool { kEndsNothing, kEndsSentence };
/// Where the last sentence of the text begins, behind ". ", "? " or "! ". Some abbreviations end none.
std::size_t lastSentence(TextView text, InitialsStop initials = kEndsNothing);
/// How long the authors in front of a title or of a journal are, without their full stop unless it is an initial's; 0
/// when there are none.
std::size_t authors(TextView text);
/// A title in quotation marks, where the text has one.
struct Quotation {
    TextView inFront;
    TextView title;
    TextView behind;
};
std::optional<Quotation> quotation(TextView text);

/// "Detroit: Gale, 1988" at the end of a statement of a reprint.
struct Publication {
    TextView rest;
    TextView place;
    TextView publisher;
    TextView year;
};
std::optional<Publication> publication(TextView text);
/// "399-402" behind a full stop, and anything short behind "Gale, 1988. ".
std::optional<Cut> pageAtEnd(TextView text);

/// A year, a range of years, or one in brackets: "1988", "1988-89", "[1988]", "1988a".
bool isYear(TextView text);

/// A date as MLA writes it: "25 June 2006", "3 Jan. 2004".
bool isShortDate(TextView text);

/// Without what joins a part to the next one: blanks and ". , ; :" at the end.
TextView withoutJoint(TextView text);
/// The same, with the full stop of an initial behind a last name: "Poupard, D."
TextView withoutFullStop(TextView text);

}  // namespace quorvel::referstotext

#include "elements/citation/text.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "core/letter_case.h"
#include "elements/page_words.h"
#include "elements/volume_numbers.h"
#include "elements/year.h"

namespace quorvel::citationtext {

namespace {

constexpr TextView kBetweenPieces = u", ";
constexpr TextView kIbid = u"ibid";
// What stands around a citation and between its parts.
constexpr TextView kOuterSigns = u" ,;()";

// Behind these a full stop is no sentence's.
constexpr TextView kAbbreviationsAtTheEnd[] = {u"n.d.", u"et al.", u"Jr.", u"Sr."};
constexpr TextView kAndWords[] = {u"and ", u"& "};
constexpr TextView kAndWordsInside[] = {u" and ", u" & "};
constexpr TextView kPostfixes[] = {u"Jr.", u"Jr", u"Sr.", u"Sr", u"II", u"III", u"IV"};
constexpr TextView kYearWords[] = {kNoDate, u"in press", u"forthcoming"};

/// Without parentheses around it and without the full stop of a note.
TextView bare(TextView citation) {
    TextView text = citation;
    if (endsWith(text, u".") && !endsWith(text, u".)")) {
        text.remove_suffix(endsWithOneOf(text, kAbbreviationsAtTheEnd) ? 0 : 1);
    }
    if (startsWith(text, u"(") && endsWith(text, u")")) {
        text = text.substr(1, text.size() - 2);
    }
    return trim(text, u" ,");
}

/// "2005", "2005a", "1900/1953", "n.d."
bool isYear(TextView piece) {
    if (isOneOfIgnoringCase(piece, kYearWords)) {
        return true;
    }
    const TextView last = piece.substr(piece.find(u'/') + 1);
    return last.size() >= 4 && isDigit(last.front()) && readsAsYear(last);
}

/// "52", "12-15", "xii", "p. 12", "para. 4", but no name that is a Roman numeral ("Li").
bool isLocator(TextView piece) {
    if (const auto word = pagewords::locatorWord(piece); word && word->length < piece.size()) {
        return true;
    }
    const TextView first = piece.substr(0, piece.find_first_of(u"-\u2013"));
    return (pagewords::isPageNumber(first) && (isDigit(first.front()) || consistsOf(first, u"ivxlc"))) ||
           pagewords::pageAndNotes(piece).has_value();
}

bool isVolume(TextView piece) {
    return volumenumbers::withoutWord(piece) != piece;
}

/// The pages of a citation as they are read, from its end: "12, 15-17". Put together at the end only, since there may
/// be very many.
class Pages {
public:
    void addBefore(TextView page) { mPages.emplace_back(page); }
    bool isEmpty() const { return mPages.empty(); }
    Text text() const { return join(std::vector<Text>(mPages.rbegin(), mPages.rend()), kBetweenPieces); }

private:
    std::vector<Text> mPages;
};

/// "2: 1-10", "2:12": a volume with its page.
bool readVolumeAndPage(TextView piece, CitationFields& fields, Pages& pages) {
    const std::size_t colon = piece.find(u':');
    if (!fields.volume.empty() || colon == TextView::npos || !volumenumbers::isNumber(piece.substr(0, colon))) {
        return false;
    }
    const TextView page = trim(piece.substr(colon + 1), u" ");
    if (!isLocator(page)) {
        return false;
    }
    fields.volume = Text(piece.substr(0, colon));
    pages.addBefore(page);
    return true;
}

/// One piece behind the author and title; False when it is no such piece.
bool readLocatorPiece(TextView piece, CitationFields& fields, Pages& pages) {
    if (isVolume(piece) && fields.volume.empty()) {
        fields.volume = Text(volumenumbers::withoutWord(piece));
    } else if (isLocator(piece)) {
        pages.addBefore(piece);
    } else {
        return readVolumeAndPage(piece, fields, pages);
    }
    return true;
}

/// Takes year, volume and page off the end of the pieces.
void readFromEnd(std::vector<Text>& pieces, CitationFields& fields, Pages& pages) {
    while (!pieces.empty()) {
        const Text& piece = pieces.back();
        const bool yearIsBefore = pieces.size() > 1 && isYear(pieces[pieces.size() - 2]);
        if (fields.year.empty() && isYear(piece) && !yearIsBefore) {
            const std::size_t slash = piece.find(u'/');
            fields.originalYear = slash == Text::npos ? Text() : piece.substr(0, slash);
            fields.year = slash == Text::npos ? piece : piece.substr(slash + 1);
        } else if (!fields.year.empty() || !readLocatorPiece(piece, fields, pages)) {
            return;
        }
        pieces.pop_back();
    }
}

/// Takes the locator off the end of a piece to which blanks join it: "Smith and Jones 12".
void readFromEndOf(Text& piece, CitationFields& fields, Pages& pages) {
    const std::size_t lastBlank = piece.rfind(u' ');
    if (lastBlank == Text::npos || lastBlank == 0) {
        return;
    }
    // Two words first: "Wellek 2: 1-10", "Smith par. 4".
    for (const std::size_t blank : {piece.rfind(u' ', lastBlank - 1), lastBlank}) {
        if (blank != Text::npos && readLocatorPiece(TextView(piece).substr(blank + 1), fields, pages)) {
            piece.erase(blank);
            return;
        }
    }
}

/// How many of the pieces name the author: "Smith, Jones, and Brown" has three.
std::size_t piecesOfAuthor(const std::vector<Text>& pieces) {
    const bool isClosed = containsOneOf(pieces[0], kAndWordsInside);
    std::size_t count = 1;
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const bool endsList = !isClosed && (startsWithOneOf(pieces[i], kAndWords) || startsWith(pieces[i], u"et al"));
        const bool isPostfix = i == count && isOneOf(pieces[i], kPostfixes);
        if (endsList || isPostfix) {
            count = i + 1;
        }
    }
    return std::min(count, pieces.size());
}

Text joined(const std::vector<Text>& pieces, std::size_t from, std::size_t to) {
    return join(std::vector<Text>(pieces.begin() + static_cast<std::ptrdiff_t>(from),
                                  pieces.begin() + static_cast<std::ptrdiff_t>(to)),
                kBetweenPieces);
}

/// "JAMA. 2004;291(20):2432"
bool readJournalCentric(TextView text, CitationFields& fields) {
    const std::size_t semicolon = text.find(u';');
    const std::size_t colon = text.find(u':', semicolon == TextView::npos ? 0 : semicolon);
    const std::size_t stop = text.substr(0, semicolon).rfind(u". ");
    if (semicolon == TextView::npos || colon == TextView::npos || stop == TextView::npos ||
        !isYear(text.substr(stop + 2, semicolon - stop - 2))) {
        return false;
    }
    fields.periodical = Text(text.substr(0, stop));
    fields.year = Text(text.substr(stop + 2, semicolon - stop - 2));
    const TextView volume = text.substr(semicolon + 1, colon - semicolon - 1);
    const std::size_t bracket = volume.find(u'(');
    fields.volume = Text(volume.substr(0, bracket));
    fields.issue = bracket == TextView::npos ? Text() : Text(trim(volume.substr(bracket), u"()"));
    fields.page = Text(text.substr(colon + 1));
    return true;
}

bool readCommunication(TextView text, TextView literal, Text CitationFields::*mark, CitationFields& fields) {
    const std::size_t found = text.find(literal);
    if (found == TextView::npos) {
        return false;
    }
    fields.author = Text(text.substr(0, found));
    fields.date = Text(text.substr(found + literal.size()));
    fields.*mark = u"True";
    return true;
}

/// A title in quotation marks, which goes from the text with its marks; empty when there is none.
Text takeQuotedTitle(Text& text) {
    const std::size_t opening = text.find_first_of(u"\u201C\"");
    const std::size_t closing = opening == Text::npos ? Text::npos : text.find_first_of(u"\u201D\"", opening + 1);
    if (closing == Text::npos) {
        return {};
    }
    Text title(trim(TextView(text).substr(opening + 1, closing - opening - 1), u" ,"));
    const TextView before = trim(TextView(text).substr(0, opening), kOuterSigns);
    const TextView behind = trim(TextView(text).substr(closing + 1), kOuterSigns);
    text = concatenate({before, before.empty() || behind.empty() ? TextView() : kBetweenPieces, behind});
    return title;
}

CitationFields readIbid(TextView text, TextView previous) {
    CitationFields fields = previous.empty() ? CitationFields() : read(previous, {});
    TextView page = text.substr(kIbid.size());
    page = trim(page, u" .,");
    if (!page.empty()) {
        Pages pages;
        const bool isLocator = readLocatorPiece(page, fields, pages);
        fields.page = isLocator ? pages.text() : Text(page);
    }
    return fields;
}

/// "291(20):2432" behind "JAMA. 2004; " is no other work.
bool isVolumeOfJournal(TextView text) {
    const TextView digits = text.substr(0, text.find_first_of(u"(:"));
    return digits.size() < text.size() && isDigits(digits);
}

/// "Kuhn (1970, p. 52)", as a sentence has it, in the form of a citation; any other text as it is.
Text withoutInnerParentheses(TextView text) {
    const std::size_t open = text.rfind(u" (");
    if (open == TextView::npos || open == 0 || !endsWith(text, u")")) {
        return Text(text);
    }
    const TextView inside = text.substr(open + 2, text.size() - open - 3);
    const TextView first = before(inside, kBetweenPieces);
    if (!isYear(first) && !isLocator(first)) {
        return Text(text);
    }
    return concatenate({trim(text.substr(0, open), u" ,"), kBetweenPieces, inside});
}

}  // namespace

Text takeLaterCitations(Text& citation) {
    bool isQuoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i + 1 < citation.size(); ++i) {
        const char16_t unit = citation[i];
        isQuoted = unit == u'"' ? !isQuoted : unit == u'\u201C' || (isQuoted && unit != u'\u201D');
        if (unit != u';' || isQuoted || !isSpace(citation[i + 1])) {
            continue;
        }
        const CitationFields first = read(TextView(citation).substr(begin, i - begin), {});
        const TextView rest = trim(TextView(citation).substr(i + 1), u" ,");
        begin = i + 1;
        if ((first.year.empty() && first.page.empty()) || isVolumeOfJournal(rest)) {
            continue;
        }
        const bool isBracketed = startsWith(citation, u"(");
        Text later(isBracketed ? trim(rest, u"().") : rest);
        citation = Text(trim(TextView(citation).substr(isBracketed ? 1 : 0, i - (isBracketed ? 1 : 0))));
        return later;
    }
    return {};
}

CitationFields read(TextView citation, TextView previous) {
    Text text = cleanUp(citation);
    text = withoutInnerParentheses(bare(text));
    CitationFields fields;
    if (startsWithIgnoringCase(text, kIbid)) {
        return readIbid(text, previous);
    }
    if (readCommunication(text, kPersonalCommunication, &CitationFields::personalCommunication, fields) ||
        readCommunication(text, kEmailCommunication, &CitationFields::email, fields) ||
        readJournalCentric(text, fields)) {
        return fields;
    }
    fields.subwork = takeQuotedTitle(text);
    std::vector<Text> pieces = text.empty() ? std::vector<Text>() : split(text, kBetweenPieces);
    Pages pages;
    readFromEnd(pieces, fields, pages);
    if (!pieces.empty() && fields.year.empty() && pages.isEmpty() && fields.volume.empty()) {
        readFromEndOf(pieces.back(), fields, pages);
    }
    fields.page = pages.text();
    if (!pieces.empty()) {
        const std::size_t authors = piecesOfAuthor(pieces);
        fields.author = joined(pieces, 0, authors);
        fields.title = joined(pieces, authors, pieces.size());
    }
    return fields;
}

}  // namespace quorvel::citationtext

#include "elements/page_words.h"

#include <algorithm>
#include <iterator>

#include "core/common_testing_functions.h"
#include "core/letter_case.h"

namespace quorvel::pagewords {

namespace {

struct Word {
    TextView text;
    std::int32_t type;
};

// Without their last full stop and in small letters; a text may have them in capitals.
constexpr Word kWords[] = {
    {u"p", 0},         {u"pp", 0},           {u"page", 0},         {u"pages", 0},
    {u"chap", 1},      {u"chaps", 1},        {u"ch", 1},           {u"chs", 1},
    {u"chapter", 1},   {u"chapters", 1},     {u"para", 2},         {u"paras", 2},
    {u"par", 2},       {u"pars", 2},         {u"\u00B6", 2},       {u"\u00B6\u00B6", 2},
    {u"paragraph", 2}, {u"paragraphs", 2},   {u"line", 3},         {u"lines", 3},
    {u"disc", 4},      {u"discs", 4},        {u"fol", 5},          {u"fols", 5},
    {u"folio", 5},     {u"folios", 5},       {u"sec", 6},          {u"secs", 6},
    {u"\u00A7", 6},    {u"\u00A7\u00A7", 6}, {u"section", 6},      {u"sections", 6},
    {u"bk", 7},        {u"bks", 7},          {u"book", 7},         {u"books", 7},
    {u"pt", 8},        {u"pts", 8},          {u"part", 8},         {u"parts", 8},
    {u"fig", 9},       {u"figs", 9},         {u"figure", 9},       {u"figures", 9},
    {u"table", 10},    {u"tables", 10},      {u"map", 11},         {u"maps", 11},
    {u"plate", 12},    {u"plates", 12},      {u"entry", 13},       {u"entries", 13},
    {u"s.v", 13},      {u"s.vv", 13},        {u"under", 13},       {u"def", 14},
    {u"defs", 14},     {u"definition", 14},  {u"definitions", 14},
};
constexpr std::int32_t kEntryType = 13;
constexpr std::size_t kLongestWord = 11;

// A locator word ends before one of these, the first word of what follows at one of the others.
constexpr TextView kEndsOfWord = u" 0123456789\"\u201C";
constexpr TextView kEndsOfNumber = u" ,;.-\u2013";

constexpr TextView kSignsOfNotes = u"0123456789-,& ";
// What stands behind a page number: "and following".
constexpr TextView kFollowing[] = {u"+", u"ff.", u"ff", u"f."};
constexpr std::size_t kMostLettersInFront = 3;

constexpr TextView kListSign = u", ";

bool beginsWithNumber(TextView text) {
    const TextView word = text.substr(0, text.find_first_of(kEndsOfNumber));
    return (word.size() == 1 && isAsciiLetter(word[0])) || isPageNumber(word);
}

/// A page number, or several of them with hyphens between.
bool isCompoundNumber(TextView text) {
    for (;;) {
        const TextView piece = before(text, u"-");
        if (!(piece.size() == 1 && isAsciiLetter(piece[0])) && !isPageNumber(piece)) {
            return false;
        }
        if (piece.size() == text.size()) {
            return true;
        }
        text.remove_prefix(piece.size() + 1);
    }
}

}  // namespace

std::optional<LocatorWord> locatorWord(TextView text) {
    if (text.empty() || isDigit(text[0])) {
        return std::nullopt;
    }
    const std::size_t end = text.find_first_of(kEndsOfWord);
    // Also when there is no end.
    if (end > kLongestWord + 1) {
        return std::nullopt;
    }
    TextView word = text.substr(0, end);
    const bool hasStop = word.ends_with(u'.');
    if (hasStop) {
        word.remove_suffix(1);
    }
    const auto* const found = std::find_if(std::begin(kWords), std::end(kWords),
                                           [&](const Word& row) { return equalsIgnoringCase(row.text, word); });
    const std::size_t length = std::min(text.find_first_not_of(u' ', end), text.size());
    if (found == std::end(kWords) || length == text.size()) {
        return std::nullopt;
    }
    // "P12" is a page of section P.
    const bool isSection = !hasStop && word.size() == 1 && isAsciiLetter(word[0]) && isDigit(text[end]);
    const bool counts = hasStop || found->type == kEntryType || beginsWithNumber(text.substr(length));
    return counts && !isSection ? std::optional<LocatorWord>({found->type, length}) : std::nullopt;
}

std::optional<PageAndNotes> pageAndNotes(TextView text) {
    if (text.empty() || !isDigit(text.back())) {
        return std::nullopt;
    }
    std::size_t at = text.find_last_not_of(kSignsOfNotes);
    if (at == TextView::npos) {
        return std::nullopt;
    }
    const TextView behind = text.substr(at + 1);
    const TextView notes = trim(behind);
    const bool isSetOff = text[at] == u'.' || behind.size() > notes.size();
    if (text[at] == u'.' && at > 0) {
        --at;
    }
    if (text[at] != u'n' || !isDigit(notes[0])) {
        return std::nullopt;
    }
    const TextView inFront = text.substr(0, at > 0 && text[at - 1] == u'n' ? at - 1 : at);
    TextView page = trim(inFront);
    if (page.ends_with(u',')) {
        page = trim(page.substr(0, page.size() - 1));
    }
    const bool isOnItsOwn = page.empty() && inFront.empty() && isSetOff;
    const bool isBehindPage =
        !page.empty() && (page.size() < inFront.size() || isDigit(page.back()) || isPageNumber(page));
    return isOnItsOwn || isBehindPage ? std::optional<PageAndNotes>({page, notes}) : std::nullopt;
}

std::optional<Range> range(TextView text) {
    const auto dashes = std::count(text.begin(), text.end(), u'-');
    if (dashes % 2 == 0) {
        return std::nullopt;
    }
    std::size_t middle = text.find(u'-');
    for (auto i = dashes / 2; i > 0; --i) {
        middle = text.find(u'-', middle + 1);
    }
    const Range result = {trim(text.substr(0, middle)), trim(text.substr(middle + 1))};
    return isCompoundNumber(result.first) && isCompoundNumber(result.last) ? std::optional<Range>(result)
                                                                           : std::nullopt;
}

std::vector<TextView> list(TextView text) {
    std::vector<TextView> pieces;
    if (!contains(text, kListSign)) {
        return pieces;
    }
    for (;;) {
        const TextView piece = before(text, kListSign);
        pieces.push_back(trim(piece));
        if (!isPageNumber(pieces.back()) && !range(pieces.back())) {
            return {};
        }
        if (piece.size() == text.size()) {
            return pieces;
        }
        text.remove_prefix(piece.size() + kListSign.size());
    }
}

bool isPageNumber(TextView text) {
    if (isNumeric(text)) {
        return true;
    }
    for (const TextView following : kFollowing) {
        if (text.ends_with(following)) {
            text.remove_suffix(following.size());
            break;
        }
    }
    std::size_t at = 0;
    while (at < text.size() && at < kMostLettersInFront && isAsciiLetter(text[at])) {
        ++at;
    }
    const std::size_t firstDigit = at;
    // A comma between digits groups them.
    while (at < text.size() && (isDigit(text[at]) || (text[at] == u',' && at > firstDigit && at + 1 < text.size() &&
                                                      isDigit(text[at + 1])))) {
        ++at;
    }
    if (at > firstDigit) {
        return at == text.size() || (at + 1 == text.size() && isAsciiLetter(text[at]));
    }
    return CommonTestingFunctions::isRomanNumeral(text);
}

bool isNumeric(TextView text) {
    if (text.size() < 2 || !isDigit(text.front()) || !isDigit(text.back())) {
        return false;
    }
    const auto others = std::count_if(text.begin(), text.end(), [](char16_t unit) { return !isDigit(unit); });
    return others == 0 || (others == 1 && std::any_of(text.begin(), text.end(), isAsciiLetter));
}

bool isListOfEntries(TextView text) {
    return std::count(text.begin(), text.end(), kLeftDoubleQuotationMark) > 1 ||
           std::count(text.begin(), text.end(), u'"') > 2;
}

}  // namespace quorvel::pagewords

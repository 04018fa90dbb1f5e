#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/medium/medium.h"
#include "elements/medium/text.h"
#include "elements/sentences.h"

/// Reading statements of media.
namespace quorvel {

namespace {

// What may stand between a piece and the next, on either side.
constexpr TextView kJoints = u" .,:;";

/// The values that a word tells.
struct ValueWord {
    OutputTemplateMedium::Value index;
    mediumtext::Word word;
};

constexpr ValueWord kValueWords[] = {
    {OutputTemplateMedium::kVersion, mediumtext::Word::kVersion},
    {OutputTemplateMedium::kDisc, mediumtext::Word::kDisc},
    {OutputTemplateMedium::kReel, mediumtext::Word::kReel},
    {OutputTemplateMedium::kFiche, mediumtext::Word::kFiche},
    {OutputTemplateMedium::kGrids, mediumtext::Word::kGrids},
    {OutputTemplateMedium::kRow, mediumtext::Word::kRow},
    {OutputTemplateMedium::kFrame, mediumtext::Word::kFrame},
};

/// A text without what joined its pieces; the full stop at its end may be an abbreviation's.
Text withoutJoints(TextView text) {
    const std::size_t first = text.find_first_not_of(kJoints);
    if (first == TextView::npos) {
        return {};
    }
    text.remove_prefix(first);
    return Text(text.substr(0, text.find_last_not_of(u" ,:;") + 1));
}

/// "(version 2.0)" behind "CD-ROM".
Text withoutParentheses(const Text& text) {
    const bool isInside = text.size() > 2 && text.front() == u'(' && text.find(u')') == text.size() - 1;
    return isInside ? text.substr(1, text.size() - 2) : text;
}

void cut(Text& text, const mediumtext::Piece& piece) {
    text.erase(piece.start, piece.length);
}

}  // namespace

void OutputTemplateMedium::Parse(Text& text, TextView secondaryText) {
    procedure(*this, u"Parse", {{u"text", text}, {u"secondaryText", secondaryText}}, [&] {
        const Text statement = cleanUp(text);
        const auto found = mediumtext::mediumAtStart(statement);
        mValues.assign(kValues, Text());
        mText.clear();
        IsMultiDiscs = false;
        mJoinsByComma = false;
        setMedium(secondaryText);
        if (caption() != secondaryText && found) {
            setMedium(found->caption);
        }
        if (PublicationMediumType == 0) {
            mText = statement;
        } else {
            const bool isTold = found && found->caption == caption();
            Text rest = isTold ? statement.substr(found->length) : statement;
            mJoinsByComma = isTold && startsWith(rest, u",");
            rest = withoutJoints(rest);
            if (mediumtext::isDisc(caption())) {
                rest = withoutParentheses(rest);
                ParseCD(rest);
            } else if (mediumtext::isMicroform(caption())) {
                ParseMicrofilm(rest);
            } else {
                const bool hasFormat = isTold && !found->format.empty();
                mValues.at(kTitle) = hasFormat ? Text(found->format) : Text(mediumtext::withoutVersion(rest));
            }
        }
        text.clear();
    });
}

void OutputTemplateMedium::ParseCD(Text& text) {
    procedure(*this, u"ParseCD", {{u"text", text}}, [&] {
        parseAndRemoveDiscs(text);
        takeValue(text, kVersion);
        ParseAndRemovePublisher(text);
        parseAndRemoveVersionAndTitle(text);
    });
}

void OutputTemplateMedium::ParseMicrofilm(Text& text) {
    procedure(*this, u"ParseMicrofilm", {{u"text", text}}, [&] {
        parseAndRemoveRowAndFrame(text);
        takeValue(text, kGrids);
        parseAndRemoveFiche(text);
        takeValue(text, kReel);
        ParseAndRemovePublisher(text);
        parseAndRemoveVersionAndTitle(text);
    });
}

/// "row C, frame 12", and "3C12", which has the fiche in front.
void OutputTemplateMedium::parseAndRemoveRowAndFrame(Text& text) {
    procedure(*this, u"parseAndRemoveRowAndFrame", {{u"text", text}}, [&] {
        if (const auto found = mediumtext::frameOnFiche(text)) {
            mValues.at(kFiche) = found->fiche;
            mValues.at(kRow) = found->row;
            mValues.at(kFrame) = found->frame;
            cut(text, found->whole);
            return;
        }
        takeValue(text, kRow);
        takeValue(text, kFrame);
    });
}

void OutputTemplateMedium::parseAndRemoveFiche(Text& text) {
    procedure(*this, u"parseAndRemoveFiche", {{u"text", text}}, [&] { takeValue(text, kFiche); });
}

/// What is left: "Title", "Version 2.0. Title", and for microforms "Title 12".
void OutputTemplateMedium::parseAndRemoveVersionAndTitle(Text& text) {
    procedure(*this, u"parseAndRemoveVersionAndTitle", {{u"text", text}}, [&] {
        takeValue(text, kVersion);
        Text title = withoutJoints(text);
        const std::size_t blank = title.rfind(u' ');
        const bool endsInNumber = blank != Text::npos && blank > 0 && isDigits(TextView(title).substr(blank + 1));
        // "UMI, 1990" ends in a year, "p. 53" in a page.
        const bool isVersion = endsInNumber && title[blank - 1] != u',' && !mediumtext::arePages(title);
        if (usesSecond() && isVersion && mValues.at(kVersion).empty()) {
            mValues.at(kVersion) = title.substr(blank + 1);
            title.resize(blank);
        }
        if (!title.empty()) {
            mValues.at(kTitle) = std::move(title);
        }
        text.clear();
    });
}

/// "SilverPlatter. June 1993" behind a title, or alone.
void OutputTemplateMedium::ParseAndRemovePublisher(Text& text) {
    procedure(*this, u"ParseAndRemovePublisher", {{u"text", text}}, [&] {
        if (const auto date = mediumtext::dateAtEnd(text)) {
            mValues.at(kDate) = date->value;
            cut(text, *date);
        }
        const Text rest = withoutJoints(text);
        const std::size_t start = mediumtext::arePages(rest) ? 0 : lastSentence(rest);
        // A single sentence is the publisher of a CD and the title of a microform.
        if (start == 0 && usesSecond()) {
            text = rest;
            return;
        }
        mValues.at(kPublisher) = rest.substr(start);
        text = rest.substr(0, start == 0 ? 0 : start - 2);
    });
}

void OutputTemplateMedium::parseAndRemoveDiscs(Text& text) {
    procedure(*this, u"parseAndRemoveDiscs", {{u"text", text}}, [&] {
        if (const auto found = mediumtext::discs(text)) {
            IsMultiDiscs = true;
            mValues.at(kDisc) = found->value;
            cut(text, *found);
        } else {
            takeValue(text, kDisc);
        }
    });
}

void OutputTemplateMedium::takeValue(Text& text, Value index) {
    for (const ValueWord& row : kValueWords) {
        const auto found = row.index == index ? mediumtext::piece(text, row.word) : std::nullopt;
        if (found) {
            mValues.at(index) = found->value;
            cut(text, *found);
        }
    }
}

}  // namespace quorvel

#include <string>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/multi_vol/multi_vol.h"
#include "elements/multi_vol/text.h"
#include "elements/volume_numbers.h"

/// Reading statements of volumes and of series.
namespace quorvel {

namespace {

constexpr TextView kVersion = u"vers.";

/// A number as it is kept: a word that is not the statement's own stays with it.
Text keptNumber(const volumetext::Numbered& number, TextView ownWord) {
    return concatenate({number.word == ownWord ? TextView() : number.word, number.number});
}

/// "(Vols. 1-6)" without its parentheses.
TextView withoutParentheses(TextView text) {
    const bool isInside = text.size() > 2 && text.front() == u'(' && text.find(u')') == text.size() - 1;
    return isInside ? trim(text.substr(1, text.size() - 2)) : text;
}

/// "vol. 8586 LNCS": the volume of a series in words that nothing else can be made of.
bool isVolumeAsItStands(TextView text) {
    const auto volumes = volumetext::volumesAtStart(text);
    const TextView rest = volumes ? text.substr(volumes->length) : text;
    return volumetext::tellsOfVolumes(text) && !rest.empty() && rest != u"." && !volumetext::jointAtStart(rest);
}

/// Behind a number the full stop is the sentence's; behind a word it may be an abbreviation's.
TextView withoutStopBehindNumber(TextView text) {
    const bool ends = text.size() > 1 && text.back() == u'.' && isDigit(text[text.size() - 2]);
    return ends ? text.substr(0, text.size() - 1) : text;
}

}  // namespace

void OutputTemplateMultiVol::Parse(Text& text, TextView previousStr, bool keepOldValues) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}, {u"keepOldValues", keepOldValues}},
              [&] {
                  IsMultiVol = previousStr == kMultiVolCaption;
                  const Text read = volumetext::withFullSeries(cleanUp(text));
                  Text statement(withoutParentheses(read));
                  if (!keepOldValues) {
                      forgetValues();
                  }
                  if (knownShortForm(statement) || (!IsMultiVol && isVolumeAsItStands(statement))) {
                      Volume = statement;
                  } else if (IsMultiVol) {
                      readMultiVol(statement);
                  } else {
                      readSeries(statement);
                  }
                  text.clear();
              });
}

void OutputTemplateMultiVol::forgetValues() {
    for (Text* value : {&Volume, &Number, &mTitle, &editor, &Vols, &Year, &SeriesType}) {
        value->clear();
    }
    EditorType = kGeneralEditor;
    mTitleIsOwn = false;
}

/// From the end: years, count of volumes, editor. From the beginning: volume, number. What is left is the title.
void OutputTemplateMultiVol::readMultiVol(Text& text) {
    parseAndRemoveYear(text);
    parseAndRemoveVols(text);
    const std::size_t length = text.size();
    multiVolParseAndRemoveEditor(text);
    if (text.size() < length) {
        // "5 vols. Ed. Arnold Glimcher"
        parseAndRemoveVols(text);
    }
    multiVolParseAndRemoveVol(text);
    multiVolParseAndRememoveNumber(text);
    multiVolParseAndRemoveTitle(text);
}

/// From the end: number, volume, type and editor; the first three may also stand before the editor.
void OutputTemplateMultiVol::readSeries(Text& text) {
    const auto readNumbers = [&] {
        seriesParseAndRemovePart(text);
        seriesParseAndRemoveVol(text);
        seriesParseAndRemoveType(text);
    };
    readNumbers();
    const std::size_t length = text.size();
    seriesParseAndRemoveEditor(text);
    if (text.size() < length) {
        readNumbers();
    }
    if (!text.empty()) {
        mTitle = text;
    }
}

bool OutputTemplateMultiVol::knownShortForm(TextView text) const {
    return procedure(*this, u"knownShortForm", {{u"text", text}},
                     [&] { return equalsIgnoringCase(before(text, u" "), kVersion); });
}

bool OutputTemplateMultiVol::isVolumeToken(TextView text) const {
    return procedure(*this, u"isVolumeToken", {{u"text", text}},
                     [&] { return volumetext::volumesAtStart(text).has_value(); });
}

void OutputTemplateMultiVol::parseAndRemoveYear(Text& text) {
    procedure(*this, u"parseAndRemoveYear", {{u"text", text}}, [&] {
        if (const auto found = volumetext::yearsAtEnd(text)) {
            Text years(found->years);
            text.resize(found->start);
            held(mYearTemplate)->Parse(years, {});
            Year = mYearTemplate->Year;
        }
    });
}

void OutputTemplateMultiVol::parseAndRemoveVols(Text& text) {
    procedure(*this, u"parseAndRemoveVols", {{u"text", text}}, [&] {
        if (const auto found = volumetext::countAtEnd(text)) {
            Vols = concatenate({found->number, found->isToDate ? volumetext::kToDate : TextView()});
            text.resize(found->start);
        }
    });
}

void OutputTemplateMultiVol::multiVolParseAndRemoveEditor(Text& text) {
    procedure(*this, u"multiVolParseAndRemoveEditor", {{u"text", text}}, [&] {
        if (parseGeneralEditor(text)) {
            return;
        }
        if (const auto found = volumetext::editorAtEnd(text)) {
            editor = found->name;
            EditorType = found->isGeneral ? kGeneralEditor : kPlainEditor;
            text.resize(found->start);
        }
    });
}

bool OutputTemplateMultiVol::parseGeneralEditor(Text& text) {
    return procedure(*this, u"parseGeneralEditor", {{u"text", text}}, [&] {
        const auto found = volumetext::generalEditorAtEnd(text);
        if (found) {
            editor = found->name;
            EditorType = kGeneralEditor;
            text.resize(found->start);
        }
        return found.has_value();
    });
}

void OutputTemplateMultiVol::multiVolParseAndRemoveVol(Text& text) {
    procedure(*this, u"multiVolParseAndRemoveVol", {{u"text", text}}, [&] {
        const TextView whole = withoutStopBehindNumber(text);
        if (!isVolumeToken(text)) {
            // "3"; "vol. LNAI 1757" as it stands.
            const bool isBareNumber = volumenumbers::isNumber(whole) || volumetext::areSeveral(whole);
            if (isBareNumber || volumetext::tellsOfVolumes(text)) {
                Volume = isBareNumber ? volumeNumber(whole) : text;
                text.clear();
                return;
            }
            // "The Works of John Dryden, vol. 9"; behind an abbreviation it may belong to something else: "3rd ed.,
            // vol. 2".
            const auto behind = volumetext::volumeWithWordAtEnd(text);
            if (behind && behind->start > 0 && text[behind->start] == u',' && text[behind->start - 1] != u'.') {
                Volume = volumeNumber(behind->number);
                text.resize(behind->start);
            }
            return;
        }
        const auto found = *volumetext::volumesAtStart(text);
        const TextView rest = TextView(text).substr(found.length);
        const bool isWhole = rest.empty() || rest == u".";
        if (!isWhole && !volumetext::jointAtStart(rest)) {
            // Nothing tells where the title begins.
            Volume = text;
            text.clear();
            return;
        }
        if (found.isPlural && isDigits(found.number)) {
            Vols = found.number;
        } else {
            Volume = volumeNumber(found.number);
        }
        text.erase(0, isWhole ? text.size() : found.length);
    });
}

void OutputTemplateMultiVol::multiVolParseAndRememoveNumber(Text& text) {
    procedure(*this, u"multiVolParseAndRememoveNumber", {{u"text", text}}, [&] {
        const auto joint = volumetext::jointAtStart(text);
        const bool isBehindSign = joint && contains(u",:", TextView(text).substr(0, 1));
        const std::size_t from = isBehindSign ? joint->length : 0;
        const auto found = volumetext::numberAtStart(TextView(text).substr(from));
        if (!found) {
            return;
        }
        const TextView rest = TextView(text).substr(from + found->length);
        if (rest.empty() || rest == u"." || volumetext::jointAtStart(rest)) {
            Number = keptNumber(*found, volumetext::kBook);
            text = rest == u"." ? Text() : Text(rest);
        }
    });
}

void OutputTemplateMultiVol::multiVolParseAndRemoveTitle(Text& text) {
    procedure(*this, u"multiVolParseAndRemoveTitle", {{u"text", text}}, [&] {
        if (text.empty()) {
            return;
        }
        const auto joint = volumetext::jointAtStart(text);
        mTitleIsOwn = joint && joint->isComma;
        mTitle = withoutStopBehindNumber(TextView(text).substr(joint ? joint->length : 0));
        text.clear();
    });
}

void OutputTemplateMultiVol::seriesParseAndRemovePart(Text& text) {
    procedure(*this, u"seriesParseAndRemovePart", {{u"text", text}}, [&] {
        if (const auto found = volumetext::numberAtEnd(text)) {
            Number = keptNumber(*found, volumetext::kNumber);
            text.resize(found->start);
        }
    });
}

void OutputTemplateMultiVol::seriesParseAndRemoveVol(Text& text) {
    procedure(*this, u"seriesParseAndRemoveVol", {{u"text", text}}, [&] { seriesParseAndRemoveVolImpl(text); });
}

void OutputTemplateMultiVol::seriesParseAndRemoveVolImpl(Text& text) {
    procedure(*this, u"seriesParseAndRemoveVolImpl", {{u"text", text}}, [&] {
        const auto first = volumetext::volumesAtStart(text);
        const auto joint = first ? volumetext::jointAtStart(TextView(text).substr(first->length)) : std::nullopt;
        if (joint) {
            // "Vol. 5 of Title"
            Volume = volumeNumber(first->number);
            text.erase(0, first->length + joint->length);
        } else if (const auto found = volumetext::seriesVolumeAtEnd(text)) {
            Volume = volumeNumber(found->number);
            text.resize(found->start);
        }
    });
}

void OutputTemplateMultiVol::seriesParseAndRemoveType(Text& text) {
    procedure(*this, u"seriesParseAndRemoveType", {{u"text", text}}, [&] {
        if (const auto found = volumetext::seriesTypeAtEnd(text)) {
            SeriesType = found->type;
            text.resize(found->start);
        }
    });
}

void OutputTemplateMultiVol::seriesParseAndRemoveEditor(Text& text) {
    procedure(*this, u"seriesParseAndRemoveEditor", {{u"text", text}}, [&] {
        if (const auto found = volumetext::editorAtEnd(text)) {
            editor = found->name;
            EditorType = kSeriesEditor;
            text.resize(found->start);
        }
    });
}

std::int32_t OutputTemplateMultiVol::RomanToArabic(TextView roman) const {
    return procedure(*this, u"RomanToArabic", {{u"roman", roman}}, [&] { return volumenumbers::romanToArabic(roman); });
}

/// A volume as it is kept: a Roman numeral in Arabic, the dash of several as "-".
Text OutputTemplateMultiVol::volumeNumber(TextView number) const {
    const std::int32_t arabic = RomanToArabic(number);
    if (arabic == 0) {
        return replaceAll(number, TextView(&kEnDash, 1), u"-");
    }
    const std::string digits = std::to_string(arabic);
    return {digits.begin(), digits.end()};
}

}  // namespace quorvel

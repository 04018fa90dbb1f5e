// Reading statements about other publications. Each part is taken off the text by the member that is named after it;
// where it stands is known by text.h.

#include <algorithm>

#include "core/letter_case.h"
#include "core/procedure.h"
#include "elements/refers_to/refers_to.h"
#include "elements/refers_to/text.h"

namespace quorvel {

namespace {

using namespace referstokinds;

constexpr TextView kNewspaper = u"Newspaper";
constexpr TextView kRefersTo = u"Refers to";

constexpr TextView kIn = u"In: ";
constexpr TextView kBehindAuthor = u". In: ";

constexpr TextView kParts[] = {u"Pt. ", u"Part ", u"Pts. ", u"Parts "};
constexpr TextView kOfSeries = u"of a series";
constexpr TextView kBegunWord = u"begun ";

constexpr TextView kReprintLeads[] = {u"Rpt. in ", u"Reprinted in ", u"Repr. in "};
// MLA 7 5.5.2: what ends the reference rather than the statement.
constexpr TextView kMedia[] = {u" Print.", u" Print", u" Web.", u" Web"};
constexpr TextView kEditorLead = u"Ed. ";
constexpr TextView kVolumeLead = u"Vol. ";
constexpr TextView kBehindSentence = u". ";

constexpr TextView kEditionWords[] = {u" ed.", u" edition"};

/// Takes what follows the last lead-in of a sentence, "Ed. " of "Essays. Ed. A. Lee", off the text.
bool cutSentence(Text& text, TextView lead, Text& value) {
    std::size_t at = text.rfind(concatenate({kBehindSentence, lead}));
    if (at == Text::npos && !startsWith(text, lead)) {
        return false;
    }
    const std::size_t from = at == Text::npos ? lead.size() : at + kBehindSentence.size() + lead.size();
    value = text.substr(from);
    // An initial keeps its full stop: "Ed. Stine, J. C. Vol. 29".
    text = Text(referstotext::withoutFullStop(TextView(text).substr(0, at == Text::npos ? 0 : at + 1)));
    return true;
}

}  // namespace

void OutputTemplateRefersTo::Parse(Text& text, TextView secondaryText) {
    procedure(*this, u"Parse", {{u"text", text}, {u"secondaryText", secondaryText}}, [&] {
        // A copy: the caller's may be one of the values.
        const Text told(trim(secondaryText));
        std::fill(mValues.begin(), mValues.end(), Text());
        cleanUpInPlace(text);
        const bool isNewspaper = equalsIgnoringCase(told, kNewspaper);
        if (isNewspaper) {
            ResetFormatSettings(true);
        }
        TextView caption = referstokinds::captionOf(told);
        if (const std::optional<referstokinds::Statement> found = referstokinds::byWords(text)) {
            caption = found->caption;
            text = Text(found->rest);
        } else if (caption.empty()) {
            caption = referstokinds::captionByForm(text);
        }
        RefersToType(caption.empty() ? kRefersTo : caption);
        parseAs(caption, text);
        noteDate();
    });
}

void OutputTemplateRefersTo::parseAs(TextView caption, Text& text) {
    switch (referstokinds::kindOf(caption).form) {
        case Form::kJournal:
        case Form::kAbstract: parseAbstract(text); break;
        case Form::kSeries: parseSeries(text); break;
        case Form::kSerialized: parseNewspaperSerialized(text); break;
        case Form::kReprint: parseReprint(text); break;
        case Form::kSerialArticle: parseSerializedArticle(text); break;
        case Form::kEdition:
            for (const TextView word : kEditionWords) {
                if (text.size() > word.size() && removeSuffix(text, word)) {
                    break;
                }
            }
            [[fallthrough]];
        default: mValues.at(0) = text; text.clear();
    }
}

/// "52.4 (1981): 688-705; 53.1 (1981): 164-80". What stands before the first issue stays in the text; further issues
/// stay with the pages of the second.
void OutputTemplateRefersTo::parseSerializedArticle(Text& text) {
    procedure(*this, u"parseSerializedArticle", {{u"text", text}}, [&] {
        const Text whole = text;
        const std::size_t between = whole.find(u"; ");
        const referstotext::Issue first = referstotext::issue(TextView(whole).substr(0, between));
        Text left(first.rest);
        const auto take = [&](std::size_t from, const referstotext::Issue& issue, TextView furtherIssues) {
            Text page = furtherIssues.empty() ? pageInFull(issue.page) : concatenate({issue.page, furtherIssues});
            mValues.at(from + kIssueVolume) = issue.volume;
            mValues.at(from + kIssueNumber) = issue.number;
            mValues.at(from + kIssueYear) = issue.year;
            mValues.at(from + kIssuePage) = std::move(page);
        };
        take(0, first, {});
        if (between != Text::npos) {
            const TextView behind = TextView(whole).substr(between + 2);
            const TextView one = before(behind, u"; ");
            const referstotext::Issue second = referstotext::issue(one);
            take(kValuesOfIssue, second, behind.substr(one.size()));
            if (!second.rest.empty()) {
                // No issue: it stays as it stands.
                take(kValuesOfIssue, {}, behind);
            }
        }
        text = std::move(left);
    });
}

/// "3rd ser.", "ns", "old series".
void OutputTemplateRefersTo::parseSeries(Text& text) {
    procedure(*this, u"parseSeries", {{u"text", text}}, [&] {
        mValues.at(0) = referstotext::seriesName(text);
        text.clear();
    });
}

/// A journal and what is said of the article: "Lee K. Title. JAMA. 2004;291(20):2432".
void OutputTemplateRefersTo::parseAbstract(Text& text) {
    procedure(*this, u"parseAbstract", {{u"text", text}}, [&] {
        if (kind().form == Form::kAbstract) {
            if (const std::optional<referstotext::Cut> meeting = referstotext::meetingAbstract(text)) {
                mValues.at(journalValue(kJournal)) = meeting->rest;
                mValues.at(journalValue(kJournalNumber)) = meeting->part;
                text.clear();
                return;
            }
        }
        parseAndRemoveAbstractPage(text);
        parseAndRemoveAbstractYear(text);
        parseAndRemoveAbstractVolAndNumber(text);
        parseAndRemoveAbstractDate(text);
        parseAndRemoveAbstractAuthor(text);
        parseAndRemoveAbstractTitle(text);
        removePrefix(text, kIn);
        mValues.at(journalValue(kJournal)) = referstotext::withoutJoint(text);
        text.clear();
    });
}

/// ":2432-2440", ": 2432-40", ": item EJ 471 017".
void OutputTemplateRefersTo::parseAndRemoveAbstractPage(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractPage", {{u"text", text}}, [&] {
        if (const std::optional<referstotext::Cut> found = referstotext::page(text)) {
            mValues.at(journalValue(kJournalPage)) = pageInFull(found->part);
            text = Text(found->rest);
        }
    });
}

/// "(2004)".
void OutputTemplateRefersTo::parseAndRemoveAbstractYear(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractYear", {{u"text", text}}, [&] {
        if (const std::optional<referstotext::Cut> found = referstotext::yearInParentheses(text)) {
            mValues.at(journalValue(kJournalYear)) = found->part;
            text = Text(found->rest);
        }
    });
}

/// ";291(20)", "291.20", "291, no. 20", "publ. nr. 20".
void OutputTemplateRefersTo::parseAndRemoveAbstractVolAndNumber(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractVolAndNumber", {{u"text", text}}, [&] {
        const bool isMarked =
            !mValues.at(journalValue(kJournalYear)).empty() || !mValues.at(journalValue(kJournalPage)).empty();
        if (const std::optional<referstotext::VolumeAndNumber> found = referstotext::volumeAndNumber(text, isMarked)) {
            mValues.at(journalValue(kJournalVolume)) = found->volume;
            mValues.at(journalValue(kJournalNumber)) = found->number;
            text = Text(found->rest);
        }
    });
}

/// ". 2004", ". January 3, 2004", " 2004" before ";291", ", 2004" before ", 291".
void OutputTemplateRefersTo::parseAndRemoveAbstractDate(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractDate", {{u"text", text}}, [&] {
        if (!mValues.at(journalValue(kJournalYear)).empty()) {
            return;
        }
        const bool hasVolume = !mValues.at(journalValue(kJournalVolume)).empty();
        if (const std::optional<referstotext::Cut> found =
                referstotext::date(hasVolume ? referstotext::withoutJoint(text) : TextView(text), hasVolume)) {
            mValues.at(journalValue(kJournalYear)) = found->part;
            text = Text(found->rest);
        }
    });
}

/// "Hwang WS, Roh SI. In: ", or the first sentence of two or more.
void OutputTemplateRefersTo::parseAndRemoveAbstractAuthor(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractAuthor", {{u"text", text}}, [&] {
        if (!kind().hasAuthor()) {
            return;
        }
        text = Text(referstotext::withoutJoint(text));
        const auto withoutStop = [&](std::size_t length) {
            return referstotext::withoutFullStop(TextView(text).substr(0, length)).size();
        };
        std::size_t end = 0;
        if (const std::optional<referstotext::Quotation> quoted = referstotext::quotation(text)) {
            end = quoted->inFront.size();
        } else if (!kind().hasTitle()) {
            const std::size_t in = text.rfind(kBehindAuthor);
            const std::size_t last = referstotext::lastSentence(text);
            end = in == Text::npos && last < 2 ? 0 : withoutStop(in == Text::npos ? last : in + 1);
        } else {
            end = referstotext::authors(text);
        }
        if (end > 0) {
            mValues.at(0) = text.substr(0, end);
            text.erase(0, std::min(text.find_first_not_of(u" .,", end), text.size()));
        }
    });
}

/// The title in quotation marks, or all but the last sentence.
void OutputTemplateRefersTo::parseAndRemoveAbstractTitle(Text& text) {
    procedure(*this, u"parseAndRemoveAbstractTitle", {{u"text", text}}, [&] {
        if (!kind().hasTitle()) {
            return;
        }
        if (const std::optional<referstotext::Quotation> quoted = referstotext::quotation(text)) {
            mValues.at(1) = quoted->title;
            text = Text(quoted->behind);
            return;
        }
        const std::size_t last = referstotext::lastSentence(text);
        if (last > 0) {
            const TextView title = trim(TextView(text).substr(0, last));
            mValues.at(1) = title.ends_with(u'.') ? title.substr(0, title.size() - 1) : title;
            text.erase(0, last);
        }
    });
}

/// "Pt. 2 of a series, Diseases on the Brink, begun 25 June 2006".
void OutputTemplateRefersTo::parseNewspaperSerialized(Text& text) {
    procedure(*this, u"parseNewspaperSerialized", {{u"text", text}}, [&] {
        parseAndRemovePart(text);
        parseAndRemoveBegun(text);
        mValues.at(kSeriesName) = referstotext::withoutJoint(text);
        text.clear();
    });
}

void OutputTemplateRefersTo::parseAndRemovePart(Text& text) {
    procedure(*this, u"parseAndRemovePart", {{u"text", text}}, [&] {
        const std::size_t series = findIgnoringCase(text, kOfSeries);
        const TextView front = trim(TextView(text).substr(0, series == Text::npos ? 0 : series));
        for (const TextView word : kParts) {
            if (startsWithIgnoringCase(front, word)) {
                mValues.at(kPart) = trim(front.substr(word.size()));
                const std::size_t behind = text.find_first_not_of(u" ,:", series + kOfSeries.size());
                text.erase(0, std::min(behind, text.size()));
                return;
            }
        }
    });
}

void OutputTemplateRefersTo::parseAndRemoveBegun(Text& text) {
    procedure(*this, u"parseAndRemoveBegun", {{u"text", text}}, [&] {
        const std::size_t at = text.rfind(kBegunWord);
        if (at == Text::npos || (at > 0 && text[at - 1] != u' ')) {
            return;
        }
        mValues.at(kBegun) = referstotext::withoutJoint(TextView(text).substr(at + kBegunWord.size()));
        text = Text(referstotext::withoutJoint(TextView(text).substr(0, at)));
    });
}

/// "1984. Rpt. in Essays. Ed. A. Lee. Vol. 2. Detroit: Gale, 1988. 18-27", from its end.
void OutputTemplateRefersTo::parseReprint(Text& text) {
    procedure(*this, u"parseReprint", {{u"text", text}}, [&] {
        parseAndRemoveOriginalDate(text);
        // What stands before the statement is the first publication, which other elements have.
        Text left;
        for (const TextView lead : kReprintLeads) {
            if (const std::size_t at = findIgnoringCase(text, lead); at != Text::npos) {
                left = trim(TextView(text).substr(0, at));
                text.erase(0, at + lead.size());
                break;
            }
        }
        for (const TextView medium : kMedia) {
            if (removeSuffix(text, medium)) {
                left.append(left.empty() ? medium.substr(1) : medium);
                break;
            }
        }
        ParseAndRemovePage(text);
        text = Text(referstotext::withoutFullStop(text));
        ParseAndRemovePublisher(text);
        parseAndRemoveVolume(text);
        parseAndRemoveEditor(text);
        mValues.at(kTitle) = text;
        text = std::move(left);
    });
}

/// The year alone, before the statement or without one.
void OutputTemplateRefersTo::parseAndRemoveOriginalDate(Text& text) {
    procedure(*this, u"parseAndRemoveOriginalDate", {{u"text", text}}, [&] {
        const TextView first = before(text, kBehindSentence);
        const TextView date = referstotext::withoutJoint(first);
        if (referstotext::isYear(date)) {
            mValues.at(kOriginalYear) = date;
            text.erase(0, std::min(first.size() + kBehindSentence.size(), text.size()));
        }
    });
}

void OutputTemplateRefersTo::ParseAndRemovePage(Text& text) {
    procedure(*this, u"ParseAndRemovePage", {{u"text", text}}, [&] {
        if (const std::optional<referstotext::Cut> found = referstotext::pageAtEnd(text)) {
            mValues.at(kPage) = pageInFull(found->part);
            text = Text(found->rest);
            return;
        }
        const std::shared_ptr<OutputTemplatePage> page = held(mPageTemplate);
        const Text whole = text;
        if (page->parseFromEnd(text)) {
            const TextView locator = TextView(whole).substr(std::min(text.size(), whole.size()));
            mValues.at(kPage) = pageInFull(trim(locator, u" .,:;"));
        }
    });
}

/// The publisher in full: "Oxford University Press" for "Oxford UP".
Text OutputTemplateRefersTo::expandPublisher(TextView text) {
    return procedure(*this, u"expandPublisher", {{u"text", text}}, [&] {
        const std::shared_ptr<OutputTemplatePublisher> element = held(mPublisherTemplate);
        Text parsed(text);
        element->Parse(parsed, {});
        if (element->PublisherType != OutputTemplatePublisher::kNamed) {
            return Text(text);
        }
        const Text imprint = element->Imprint();
        const Text copublisher = element->CoPublisher();
        const Text place = element->copublisherPlace;
        return concatenate({imprint, imprint.empty() ? u"" : u"-", element->publisher(),
                            place.empty() && copublisher.empty() ? u"" : u"; ", place,
                            place.empty() || copublisher.empty() ? u"" : u": ", copublisher});
    });
}

void OutputTemplateRefersTo::ParseAndRemovePublisher(Text& text) {
    procedure(*this, u"ParseAndRemovePublisher", {{u"text", text}}, [&] {
        const Text whole = text;
        if (const std::optional<referstotext::Publication> found = referstotext::publication(whole)) {
            mValues.at(kPublisher) = expandPublisher(found->publisher);
            mValues.at(kPlace) = found->place;
            mValues.at(kYear) = found->year;
            text = Text(referstotext::withoutFullStop(found->rest));
            return;
        }
        // "Essays, 1998", "Essays. 1998"
        for (const TextView sign : {TextView(u", "), kBehindSentence}) {
            const std::size_t at = whole.rfind(sign);
            if (at != Text::npos && referstotext::isYear(TextView(whole).substr(at + sign.size()))) {
                mValues.at(kYear) = whole.substr(at + sign.size());
                text = whole.substr(0, at);
                return;
            }
        }
    });
}

void OutputTemplateRefersTo::parseAndRemoveVolume(Text& text) {
    procedure(*this, u"parseAndRemoveVolume", {{u"text", text}},
              [&] { cutSentence(text, kVolumeLead, mValues.at(kVolume)); });
}

void OutputTemplateRefersTo::parseAndRemoveEditor(Text& text) {
    procedure(*this, u"parseAndRemoveEditor", {{u"text", text}},
              [&] { cutSentence(text, kEditorLead, mValues.at(kEditor)); });
}

/// A page or range with hyphens and in full, so that it comes out right in every style; another locator as it stands.
Text OutputTemplateRefersTo::pageInFull(TextView text) {
    if (text.empty()) {
        return {};
    }
    const std::shared_ptr<OutputTemplatePage> element = held(mPageTemplate);
    Text parsed(text);
    element->Parse(parsed, {});
    const bool isPlain = element->pageType == OutputTemplatePage::kPage && element->Note == OutputTemplatePage::kNoNote;
    return isPlain ? replaceAll(element->Page(), TextView(&kEnDash, 1), u"-") : Text(text);
}

}  // namespace quorvel

#include "elements/publisher.h"

#include <algorithm>

#include "core/common_testing_functions.h"
#include "core/procedure.h"

namespace quorvel {

namespace {

/// A text of a special kind stands in the publisher's slot.
enum Slot : std::size_t { kImprintSlot, kPublisherSlot, kCopublisherPlaceSlot, kCopublisherSlot };

constexpr SlotLayout kLayout({
    {kPlainSlot, {u"", u"-", u"; ", u"; ", u""}},
    {kPlainSlot, {u"", u"; ", u"; ", u""}},
    {kPlainSlot, {u"", u": ", u""}},
    {kPlainSlot, {u"", u""}},
});

// What stands between the parts of a text; the blanks around the last two mean nothing.
constexpr TextView kImprintSign = u"-";
constexpr TextView kCopublisherSign = u";";
constexpr TextView kPlaceSign = u":";

constexpr TextView kPublisherUnknown = u"Publisher unknown";
constexpr TextView kNoPublisher = u"n.p.";
constexpr TextView kInPreparationText = u"Manuscript in preparation";
constexpr TextView kSubmittedText = u"Manuscript submitted for publication";
constexpr TextView kForthcoming = u"forthcoming";
constexpr TextView kAuthorText = u"Author";

struct SpecialText {
    TextView text;
    OutputTemplatePublisher::PublisherKind kind;
};

// In the order in which they are tried.
constexpr SpecialText kSpecialTexts[] = {
    {kAuthorText, OutputTemplatePublisher::kAuthor},
    {u"by the author", OutputTemplatePublisher::kAuthor},
    {kInPreparationText, OutputTemplatePublisher::kInPreparation},
    {kSubmittedText, OutputTemplatePublisher::kSubmitted},
    {kForthcoming, OutputTemplatePublisher::kSubmitted},
    {kPublisherUnknown, OutputTemplatePublisher::kUnknown},
    {kNoPublisher, OutputTemplatePublisher::kUnknown},
    {u"N.p.", OutputTemplatePublisher::kUnknown},
};

struct Shortening {
    TextView full;
    TextView shortened;
};

// MLA 7 7.5. In this order, so that the two words together come first.
constexpr Shortening kShortenings[] = {
    {u"University Press", u"UP"},
    {u"University", u"U"},
    {u"Press", u"P"},
};

// A name is a shortened one when it has one of these words; "P" inside it may be an initial.
constexpr TextView kSignsOfShortening[] = {u"U", u"UP"};
constexpr TextView kEndsOfWords = u" -;:";

// No blank is asked for behind the article, deliberately: "Theatre Arts Books" loses its letters too.
constexpr TextView kArticle = u"The";
// Each is removed where it is there, in this order; what stands before it stays, deliberately.
constexpr TextView kAbbreviations[] = {u"Inc.", u"Ltd.", u"S.A.", u"& Co.", u"Publishing Co.", u"Co."};

bool isShortened(TextView text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(kEndsOfWords), text.size());
        if (std::find(std::begin(kSignsOfShortening), std::end(kSignsOfShortening), text.substr(0, end)) !=
            std::end(kSignsOfShortening)) {
            return true;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return false;
}

/// "MIT P", but not "J. P": a last "P" behind a word that is no initial is a press.
bool endsInPress(TextView name) {
    constexpr TextView kPress = u" P";
    if (!endsWith(name, kPress)) {
        return false;
    }
    name.remove_suffix(kPress.size());
    const TextView word = name.substr(name.find_last_of(u' ') + 1);
    return !word.empty() && word.back() != u',' && !CommonTestingFunctions::isInitial(word);
}

/// What stands behind the first separator; empty when there is none.
TextView after(TextView text, TextView separator) {
    const std::size_t at = text.find(separator);
    return at == TextView::npos ? TextView() : text.substr(at + separator.size());
}

}  // namespace

void OutputTemplatePublisher::Initialize(const OutputSinkRef& formattedStr) {
    procedure(*this, u"Initialize", {{u"formattedStr", formattedStr}}, [&] {
        makeAssembly(formattedStr);
        Reset({});
    });
}

void OutputTemplatePublisher::Reset(const PublisherOptions& options) {
    procedure(*this, u"Reset", reported(kPublisherOptions, options), [&] {
        mOptions = options;
        layOut(kLayout);
    });
}

std::shared_ptr<OutputTemplatePublisher> OutputTemplatePublisher::Clone(const OutputSinkRef& formattedStr) const {
    return procedure(*this, u"Clone", {{u"formattedStr", formattedStr}}, [&] {
        auto clone = std::make_shared<OutputTemplatePublisher>();
        clone->Initialize(formattedStr);
        clone->Reset(PublisherOptions(mOptions));
        clone->PublisherType = PublisherType;
        clone->copublisherPlace = copublisherPlace;
        clone->mPublisher = mPublisher;
        clone->mImprint = mImprint;
        clone->mCoPublisher = mCoPublisher;
        return clone;
    });
}

Text OutputTemplatePublisher::toString(bool isFootnote, bool shortenedVersion) {
    return procedure(*this, u"toString", {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
                     [&] { return assembledText(isFootnote, shortenedVersion); });
}

bool OutputTemplatePublisher::fillSlots(bool /*isFootnote*/, std::vector<Text>& items,
                                        std::vector<OutputSinkRef>& /*formattedItems*/, bool /*shortenedVersion*/) {
    if (isSpecial()) {
        items.at(kPublisherSlot) = specialText();
        return false;
    }
    // All before the first goes into its slot: the reports reach the host, which may empty the slots meanwhile.
    Text imprint = getImprint();
    Text name = targetedReplace(publisher());
    Text place = getCopublisherPlace();
    Text copublisher = getCopublisher();
    items.at(kImprintSlot) = std::move(imprint);
    items.at(kPublisherSlot) = std::move(name);
    items.at(kCopublisherPlaceSlot) = std::move(place);
    items.at(kCopublisherSlot) = std::move(copublisher);
    return false;
}

bool OutputTemplatePublisher::supportCoPublisher() const {
    return procedure(*this, u"supportCoPublisher[Get]", kNoParameters, [&] { return mOptions.supportCoPublisher; });
}

bool OutputTemplatePublisher::SupportAdvancedOptions() const {
    return procedure(*this, u"SupportAdvancedOptions[Get]", kNoParameters, [&] { return mOptions.useAdvancedOptions; });
}

Text OutputTemplatePublisher::publisher() const {
    return procedure(*this, u"publisher[Get]", kNoParameters, [&] { return mPublisher; });
}

void OutputTemplatePublisher::publisher(TextView theVal) {
    procedure(*this, u"publisher[Let]", {{u"theVal", theVal}}, [&] { mPublisher = theVal; });
}

Text OutputTemplatePublisher::Imprint() const {
    return procedure(*this, u"Imprint[Get]", kNoParameters, [&] { return mImprint; });
}

void OutputTemplatePublisher::Imprint(TextView theVal) {
    procedure(*this, u"Imprint[Let]", {{u"theVal", theVal}}, [&] { mImprint = theVal; });
}

Text OutputTemplatePublisher::CoPublisher() const {
    return procedure(*this, u"CoPublisher[Get]", kNoParameters, [&] { return mCoPublisher; });
}

void OutputTemplatePublisher::CoPublisher(TextView theVal) {
    procedure(*this, u"CoPublisher[Let]", {{u"theVal", theVal}}, [&] { mCoPublisher = theVal; });
}

void OutputTemplatePublisher::Parse(Text& text, TextView previousStr) {
    procedure(*this, u"Parse", {{u"text", text}, {u"previousStr", previousStr}}, [&] {
        Imprint({});
        CoPublisher({});
        copublisherPlace.clear();
        cleanUpInPlace(text);
        const Text given = text;
        parseAndRemovePublisherType(text);
        if (PublisherType == kSubmitted && !previousStr.empty() && given == kForthcoming) {
            // The reference has a year: the word tells of it and is no publisher of a kind of its own.
            PublisherType = kNamed;
            text = given;
        }
        if (isSpecial()) {
            publisher({});
            return;
        }
        const bool wasShortened = isShortened(text);
        parseAndRemoveCopublisher(text);
        parseAndRemoveImprint(text);
        publisher(text);
        // Another style may want the names in full.
        const auto inFull = [&](const Text& name) {
            return wasShortened || endsInPress(name) ? targetedExpansion(name) : name;
        };
        publisher(inFull(publisher()));
        Imprint(inFull(Imprint()));
        CoPublisher(inFull(CoPublisher()));
    });
}

Text OutputTemplatePublisher::getImprint() const {
    return procedure(*this, u"getImprint", kNoParameters, [&] { return targetedReplace(Imprint()); });
}

Text OutputTemplatePublisher::getCopublisher() const {
    return procedure(*this, u"getCopublisher", kNoParameters, [&] { return targetedReplace(CoPublisher()); });
}

Text OutputTemplatePublisher::getCopublisherPlace() const {
    return procedure(*this, u"getCopublisherPlace", kNoParameters, [&] { return copublisherPlace; });
}

/// "Doubleday" of "Anchor-Doubleday" stays in the text. A name that itself has a hyphen is split too,
/// deliberately: the parts are written with the same hyphen between them.
void OutputTemplatePublisher::parseAndRemoveImprint(Text& text) {
    procedure(*this, u"parseAndRemoveImprint", {{u"text", text}}, [&] {
        const Text second(after(text, kImprintSign));
        if (!second.empty()) {
            Imprint(Text(before(text, kImprintSign)));
            text = second;
        }
    });
}

void OutputTemplatePublisher::parseAndRemoveCopublisher(Text& text) {
    procedure(*this, u"parseAndRemoveCopublisher", {{u"text", text}}, [&] {
        const Text second(trim(after(text, kCopublisherSign)));
        if (second.empty()) {
            return;
        }
        text = Text(trim(before(text, kCopublisherSign)));
        if (contains(second, kPlaceSign)) {
            copublisherPlace = trim(before(second, kPlaceSign));
            CoPublisher(trim(after(second, kPlaceSign)));
        } else {
            CoPublisher(second);
        }
    });
}

void OutputTemplatePublisher::parseAndRemovePublisherType(Text& text) {
    procedure(*this, u"parseAndRemovePublisherType", {{u"text", text}}, [&] {
        PublisherType = kNamed;
        for (const SpecialText& special : kSpecialTexts) {
            if (text == special.text) {
                PublisherType = special.kind;
                text.clear();
                return;
            }
        }
    });
}

Text OutputTemplatePublisher::targetedExpansion(TextView text) const {
    return procedure(*this, u"targetedExpansion", {{u"text", text}}, [&] {
        Text result(text);
        for (const Shortening& words : kShortenings) {
            result = targetedReplaceImpl(result, words.shortened, words.full);
        }
        return result;
    });
}

Text OutputTemplatePublisher::targetedReplace(TextView text) const {
    return procedure(*this, u"targetedReplace", {{u"text", text}}, [&] {
        Text result(text);
        if (mOptions.shortenUniversityAndPress) {
            for (const Shortening& words : kShortenings) {
                result = targetedReplaceImpl(result, words.full, words.shortened);
            }
        }
        if (mOptions.removePublisherAbbreviations) {
            removePrefix(result, kArticle);
            for (const TextView abbreviation : kAbbreviations) {
                removeSuffix(result, abbreviation);
            }
        }
        return result;
    });
}

/// Replaces a whole word, at most once: at the beginning, else at the end, else the first one between.
/// A text that is nothing but the word stays, deliberately.
Text OutputTemplatePublisher::targetedReplaceImpl(TextView text, TextView find, TextView theReplace) const {
    return procedure(*this, u"targetedReplaceImpl", {{u"text", text}, {u"find", find}, {u"theReplace", theReplace}},
                     [&]() -> Text {
                         const Text withBlanks = concatenate({u" ", find, u" "});
                         const TextView word = withBlanks;
                         if (startsWith(text, word.substr(1))) {
                             return concatenate({theReplace, text.substr(find.size())});
                         }
                         if (endsWith(text, word.substr(0, word.size() - 1))) {
                             return concatenate({text.substr(0, text.size() - find.size()), theReplace});
                         }
                         const std::size_t at = text.find(word);
                         if (at == TextView::npos) {
                             return Text(text);
                         }
                         return concatenate({text.substr(0, at + 1), theReplace, text.substr(at + 1 + find.size())});
                     });
}

bool OutputTemplatePublisher::isSpecial() const {
    return PublisherType >= kUnknown && PublisherType <= kAuthor;
}

Text OutputTemplatePublisher::specialText() const {
    switch (PublisherType) {
        case kInPreparation: return Text(kInPreparationText);
        case kSubmitted: return Text(kSubmittedText);
        case kAuthor: return Text(kAuthorText);
        default: return Text(mOptions.usePublisherUnknown ? kPublisherUnknown : kNoPublisher);
    }
}

void OutputTemplatePublisher::dumpVariables(VBWPROTECTOR& report) const {
    report.vbwReportVariable(u"PublisherType", PublisherType);
    report.vbwReportVariable(u"copublisherPlace", copublisherPlace);
    report.vbwReportVariable(u"mPublisher", mPublisher);
    report.vbwReportVariable(u"mImprint", mImprint);
    report.vbwReportVariable(u"mCoPublisher", mCoPublisher);
    report.vbwReportVariable(u"mSupportAdvancedOptions", mOptions.useAdvancedOptions);
    report.vbwReportVariable(u"mSupportCoPublisher", mOptions.supportCoPublisher);
    report.vbwReportVariable(u"mShortenUniversityAndPress", mOptions.shortenUniversityAndPress);
    report.vbwReportVariable(u"mRemovePublisherAbbreviations", mOptions.removePublisherAbbreviations);
    report.vbwReportVariable(u"mPublisherUnknown", mOptions.usePublisherUnknown ? kPublisherUnknown : kNoPublisher);
    report.vbwReportVariable(u"mOutputTemplate", HostObjectRef());
}

}  // namespace quorvel

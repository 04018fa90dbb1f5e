#include "elements/medium/medium.h"

#include <algorithm>

#include "core/procedure.h"
#include "elements/medium/text.h"

namespace quorvel {

namespace {

using namespace mediumtext;

/// The slots of all media but microforms.
enum Slot : std::size_t { kMediumSlot, kVersionSlot, kDiscSlot, kTitleSlot, kPublisherSlot, kDateSlot, kSlots };

/// The slots of microforms.
enum MicroformSlot : std::size_t {
    kFormSlot,
    kSourceSlot,
    kSourceVersionSlot,
    kSourcePublisherSlot,
    kSourceDateSlot,
    kReelSlot,
    kFicheSlot,
    kGridsSlot,
    kRowSlot,
    kFrameSlot,
};

/// Commas; where a slot is checked, sentences as in MLA's list.
constexpr SlotLayout kCDLayout({
    {kPlainSlot,
     {u"", u", ", u", ", u", ", u", ", u", ", u""},
     kChecked,
     {u"", u". ", u". ", u". ", u". ", u". ", u""}},
    {kPlainSlot, {u"", u", ", u", ", u", ", u", ", u""}, kChecked, {u"", u". ", u". ", u". ", u". ", u""}},
    {kPlainSlot, {u"", u", ", u", ", u", ", u""}, kChecked, {u"", u". ", u". ", u". ", u""}},
    {kFormattedSlot, {u"", u", ", u", ", u""}, kChecked, {u"", u". ", u". ", u""}},
    {kPlainSlot, {u"", u", ", u""}, kChecked, {u"", u". ", u""}},
    {kPlainSlot, {u"", u""}, kChecked, {u"", u""}},
});

/// Microform. NewsBank: Welfare 12 (1990): fiche 1, grids A8-11
constexpr SlotLayout kMicroformLayout({
    {kPlainSlot,
     {u"", u". ", u". ", u". ", u". (", u". ", u". ", u". ", u". ", u". ", u""},
     {u"", u", ", u", ", u", ", u" (", u", ", u", ", u", ", u", ", u", ", u""}},
    {kFormattedSlot, {u"", u" ", u". ", u" (", u": ", u": ", u": ", u": ", u": ", u""}},
    {kPlainSlot, {u"", u". ", u" (", u": ", u": ", u": ", u": ", u": ", u""}},
    {kPlainSlot, {u"", u" (", u": ", u": ", u": ", u": ", u": ", u""}},
    {kPlainSlot, {u"(", u"): ", u"): ", u"): ", u"): ", u"): ", u")"}},
    {kPlainSlot, {u"", u", ", u", ", u", ", u", ", u""}},
    {kPlainSlot, {u"", u", ", u", ", u", ", u""}},
    {kPlainSlot, {u"", u", ", u", ", u""}},
    {kPlainSlot, {u"", u", ", u""}},
    {kPlainSlot, {u"", u""}},
});

/// How a place on a microform begins: a sentence, or what stands behind something.
struct PlaceWord {
    OutputTemplateMedium::Value index;
    MicroformSlot slot;
    TextView first;
    TextView behind;
};

constexpr PlaceWord kPlaceWords[] = {
    {OutputTemplateMedium::kReel, kReelSlot, u"Rel. ", u"rel. "},
    {OutputTemplateMedium::kFiche, kFicheSlot, u"Fiche ", u"fiche "},
    {OutputTemplateMedium::kGrids, kGridsSlot, u"Grids ", u"grids "},
    {OutputTemplateMedium::kRow, kRowSlot, u"Row ", u"row "},
    {OutputTemplateMedium::kFrame, kFrameSlot, u"Frame ", u"frame "},
};

constexpr TextView kFile = u" file";
constexpr TextView kVersionOf = u" version";
constexpr TextView kEbookOf = u" eBook";
constexpr TextView kDigital = u"Digital";
/// The host's component that offers CDs and DVDs to styles only that write something of them.
constexpr TextView kReferenceController = u"QVRefController";

}  // namespace

void OutputTemplateMedium::Initialize(const OutputSinkRef& formattedString) {
    procedure(*this, u"Initialize", {{u"formattedString", formattedString}}, [&] {
        const auto year = std::make_shared<OutputTemplateYear>();
        mOutputTemplateYear = year;
        year->Initialize(formattedString);
        makeAssemblies(formattedString);
        Reset({});
    });
}

void OutputTemplateMedium::Reset(const MediumOptions& options) {
    procedure(*this, u"Reset", reported(kMediumOptions, options), [&] {
        const Text before(caption());
        mOptions = options;
        mSupports = processSupports(options.Supports);
        setMedium(before);
        if (PublicationMediumType == 0 && !before.empty() && before != kBook) {
            mText = before;
        }
        layOut(kCDLayout);
        layOutSecond(kMicroformLayout);
    });
}

/// In the order of the list; a caption that is there already is not repeated.
std::vector<Text> OutputTemplateMedium::processSupports(TextView supports) const {
    return procedure(*this, u"processSupports", {{u"Supports", supports}}, [&] {
        std::vector<Text> offered = {Text(kBook)};
        const std::vector<Text> captions = split(supports, u",");
        const bool isController = std::any_of(captions.begin(), captions.end(), [](const Text& caption) {
            return trim(caption) == kReferenceController;
        });
        const bool writesDiscs = mOptions.SupportsAdvancedCD || mOptions.useSquareBrackets;
        for (const Text& entry : captions) {
            Text caption(trim(entry));
            const bool isLeftOut = caption == kReferenceController || (isController && isDisc(caption) && !writesDiscs);
            if (!caption.empty() && !isLeftOut && std::find(offered.begin(), offered.end(), caption) == offered.end()) {
                offered.push_back(std::move(caption));
            }
        }
        return offered;
    });
}

TextView OutputTemplateMedium::caption() const {
    const auto index = static_cast<std::size_t>(PublicationMediumType);
    return PublicationMediumType > 0 && index < mSupports.size() ? TextView(mSupports[index]) : kBook;
}

/// The index of a caption; of one that is not offered, a book's.
void OutputTemplateMedium::setMedium(TextView caption) {
    const auto found = std::find(mSupports.begin(), mSupports.end(), caption);
    PublicationMediumType =
        found == mSupports.end() ? std::int16_t{0} : static_cast<std::int16_t>(found - mSupports.begin());
}

bool OutputTemplateMedium::usesSecond() const {
    return isMicroform(caption());
}

Text OutputTemplateMedium::Supports() const {
    return procedure(*this, u"Supports[Get]", kNoParameters, [&] { return join(mSupports, u","); });
}

bool OutputTemplateMedium::SupportsAdvancedCD() const {
    return procedure(*this, u"SupportsAdvancedCD[Get]", kNoParameters, [&] { return mOptions.SupportsAdvancedCD; });
}

bool OutputTemplateMedium::showDiscs() const {
    return procedure(*this, u"showDiscs[Get]", kNoParameters,
                     [&] { return mOptions.SupportsAdvancedCD && isDisc(caption()); });
}

Text OutputTemplateMedium::version() const {
    return procedure(*this, u"version[Get]", kNoParameters, [&] { return mValues.at(kVersion); });
}

Text OutputTemplateMedium::disc() const {
    return procedure(*this, u"disc[Get]", kNoParameters, [&] { return mValues.at(kDisc); });
}

Text OutputTemplateMedium::value(std::int16_t index) const {
    return procedure(*this, u"value[Get]", {{u"index", index}},
                     [&] { return mValues.at(static_cast<std::size_t>(index)); });
}

void OutputTemplateMedium::value(std::int16_t index, TextView theVal) {
    procedure(*this, u"value[Let]", {{u"index", index}, {u"theVal", theVal}},
              [&] { mValues.at(static_cast<std::size_t>(index)) = theVal; });
}

std::vector<bool> OutputTemplateMedium::MLACheckingArray() const {
    return procedure(*this, u"MLACheckingArray", kNoParameters,
                     [&] { return std::vector<bool>(kSlots, !mJoinsByComma); });
}

std::vector<bool> OutputTemplateMedium::checkedSlots(bool isFootnote) const {
    return usesSecond() || isFootnote ? std::vector<bool>() : MLACheckingArray();
}

Text OutputTemplateMedium::outputTurabianCD() const {
    return procedure(*this, u"outputTurabianCD", kNoParameters, [&] {
        const Text& version = mValues.at(kVersion);
        const Text& disc = mValues.at(kDisc);
        const Text withVersion = version.empty() ? mediumText() : concatenate({mediumText(), u", version ", version});
        return disc.empty()   ? withVersion
               : IsMultiDiscs ? concatenate({withVersion, u", ", disc, u" discs"})
                              : concatenate({withVersion, u", disc ", disc});
    });
}

Text OutputTemplateMedium::getDiscString() const {
    return procedure(*this, u"getDiscString", kNoParameters, [&] {
        const Text& disc = mValues.at(kDisc);
        return disc.empty() ? Text() : IsMultiDiscs ? concatenate({disc, u" discs"}) : concatenate({u"Disc ", disc});
    });
}

Text OutputTemplateMedium::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

bool OutputTemplateMedium::fillSlots(bool isFootnote, std::vector<Text>& items,
                                     std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    const bool isMicroform = usesSecond();
    const TextView medium = caption();
    // The title of a file is its format, and pages of a microform are no title: they stand beside the medium.
    const bool isBeside =
        isMicroform ? arePages(mValues.at(kTitle)) : medium == kBook || medium == kDigitalFile || medium == kEbook;
    const Text title = isBeside ? Text() : mValues.at(kTitle);
    const OutputSinkRef fragment = formattedItems.at(isMicroform ? std::size_t{kSourceSlot} : std::size_t{kTitleSlot});
    if (isMicroform) {
        fillMicroform(isFootnote, items);
    } else {
        fillCD(isFootnote, items);
    }
    if (!title.empty()) {
        object(fragment).Add(title, OutputSink::kItalic);
    }
    return false;
}

void OutputTemplateMedium::fillCD(bool isFootnote, std::vector<Text>& items) {
    const Text medium(caption());
    if (medium == kBook) {
        items.at(kMediumSlot) = mText;
        return;
    }
    // All before the first goes into its slot: the reports reach the host, which may empty the slots meanwhile.
    const bool tellsDiscs = showDiscs();
    const bool joinsByComma = isFootnote || mJoinsByComma;
    Text name = tellsDiscs && joinsByComma ? outputTurabianCD() : mediumText();
    Text discs = getDiscString();
    Text date = dateText();
    items.at(kMediumSlot) = std::move(name);
    if (tellsDiscs && !joinsByComma) {
        const Text& version = mValues.at(kVersion);
        items.at(kVersionSlot) = version.empty() ? Text() : concatenate({u"Version ", version});
        items.at(kDiscSlot) = std::move(discs);
    }
    items.at(kPublisherSlot) = mValues.at(kPublisher);
    items.at(kDateSlot) = std::move(date);
}

void OutputTemplateMedium::fillMicroform(bool isFootnote, std::vector<Text>& items) {
    Text date = dateText();
    Text form = mediumText();
    const bool tellsPages = arePages(mValues.at(kTitle));
    if (tellsPages) {
        // Turabian 7 17.5.8: "microfiche, p. 53, 3C12". Pages are no source, behind which a colon stands.
        form = concatenate({form, isFootnote ? u", " : u". ", mValues.at(kTitle)});
    }
    items.at(kFormSlot) = std::move(form);
    items.at(kSourceVersionSlot) = mValues.at(kVersion);
    items.at(kSourcePublisherSlot) = mValues.at(kPublisher);
    items.at(kSourceDateSlot) = std::move(date);
    const auto has = [&](Value index) { return !mValues.at(index).empty(); };
    if (isFootnote && has(kFiche) && has(kRow) && has(kFrame) && !has(kGrids)) {
        // Turabian's notes have "3C12".
        items.at(kFicheSlot) = concatenate({mValues.at(kFiche), mValues.at(kRow), mValues.at(kFrame)});
        return;
    }
    bool isFirst = !isFootnote && (tellsPages || !has(kTitle)) && !has(kVersion) && !has(kPublisher) && !has(kDate);
    for (const PlaceWord& word : kPlaceWords) {
        if (has(word.index)) {
            items.at(word.slot) = concatenate({isFirst ? word.first : word.behind, mValues.at(word.index)});
            isFirst = false;
        }
    }
}

/// The name of the medium as the style writes it.
Text OutputTemplateMedium::mediumText() const {
    const TextView medium = caption();
    const bool writesRom = mOptions.SupportsAdvancedCD || mOptions.useSquareBrackets;
    Text name(medium);
    if (medium == kCD) {
        name = writesRom ? u"CD-ROM" : u"CD";
    } else if (medium == kDVD) {
        // In brackets without "-ROM", deliberately.
        name = mOptions.SupportsAdvancedCD && !mOptions.useSquareBrackets ? u"DVD-ROM" : u"DVD";
    } else if (isMicroform(medium) && mOptions.shortenedMicroform) {
        name = kMicroform;
    } else if (medium == kDigitalFile || medium == kEbook) {
        name = digitalText();
    }
    return mOptions.useSquareBrackets ? concatenate({u"[", name, u"]"}) : name;
}

/// "PDF file", "Digital file"; "Kindle eBook", in brackets "Kindle version"; "e-book" without a format.
Text OutputTemplateMedium::digitalText() const {
    const Text& format = mValues.at(kTitle);
    if (caption() == kDigitalFile) {
        return concatenate({format.empty() ? kDigital : TextView(format), kFile});
    }
    return format.empty() ? Text(kEbook) : concatenate({format, mOptions.useSquareBrackets ? kVersionOf : kEbookOf});
}

/// A year as the year element writes it, any other date as it stands.
Text OutputTemplateMedium::dateText() const {
    Text date = mValues.at(kDate);
    if (date.empty() || isDigits(date)) {
        return date;
    }
    const auto year = held(mOutputTemplateYear);
    return year->isYear(date) ? year->formatStr(date) : date;
}

bool OutputTemplateMedium::offersMicroform() const {
    return std::any_of(mSupports.begin(), mSupports.end(), [](const Text& caption) { return isMicroform(caption); });
}

void OutputTemplateMedium::dumpVariables(VBWPROTECTOR& report) const {
    const bool usesEbook = std::find(mSupports.begin(), mSupports.end(), kEbook) != mSupports.end();
    report.vbwReportVariable(u"IsMultiDiscs", IsMultiDiscs);
    report.vbwReportVariable(u"PublicationMediumType", PublicationMediumType);
    report.vbwReportVariable(u"mSupports", join(mSupports, u","));
    report.vbwReportVariable(u"mUseSquareBrackets", mOptions.useSquareBrackets);
    report.vbwReportVariable(u"mSupportsAdvancedCD", mOptions.SupportsAdvancedCD);
    report.vbwReportVariable(u"mValues", mValues);
    report.vbwReportVariable(u"mUsesMicroForm", offersMicroform());
    report.vbwReportVariable(u"mUsesEbook", usesEbook);
    report.vbwReportVariable(u"mCDOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mMicroformOutputTemplate", HostObjectRef());
    report.vbwReportVariable(u"mOutputTemplateYear", HostObjectRef());
}

}  // namespace quorvel

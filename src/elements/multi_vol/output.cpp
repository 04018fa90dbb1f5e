#include "core/procedure.h"
#include "elements/multi_vol/layout.h"
#include "elements/multi_vol/multi_vol.h"
#include "elements/multi_vol/text.h"

/// Writing statements of volumes and of series.
namespace quorvel {

namespace {

constexpr TextView kGeneralEditorTag = u", gen. ed.";
constexpr TextView kSeriesEditorWord = u"edited by ";
constexpr TextView kSeriesEditorWordInNote = u"ed. ";
constexpr TextView kNumberWordOfTitle = u"No. ";

Text joined(TextView first, TextView second) {
    return concatenate({first, first.empty() || second.empty() ? TextView() : u", ", second});
}

}  // namespace

/// Writes everything, whatever the style offers.
class OutputTemplateMultiVol::Merged final : public Implementor {
public:
    explicit Merged(OutputTemplateMultiVol& element) : mElement(element) {}

    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override {
        const auto inForce = held(mElement.assembly());
        inForce->ResetReferenceItems();
        inForce->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote,
                                   mElement.checkedSlots(isFootnote));
    }
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool /*shortenedVersion*/) override {
        const std::vector<bool> everything(kMarker + 1, true);
        mElement.fill(mElement.useMultiVol(), isFootnote, items, formattedItems, everything);
        return false;
    }

private:
    OutputTemplateMultiVol& mElement;
};

Text OutputTemplateMultiVol::toString(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return procedure(*this, u"toString",
                     {{u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}, {u"isRTF", isRTF}},
                     [&] { return assembledText(isFootnote, shortenedVersion, isRTF); });
}

Text OutputTemplateMultiVol::toMergedString() {
    return procedure(*this, u"toMergedString", kNoParameters, [&] {
        Merged everything(*this);
        return held(assembly())->toString(everything, false, false, false);
    });
}

bool OutputTemplateMultiVol::fillSlots(bool isFootnote, std::vector<Text>& items,
                                       std::vector<OutputSinkRef>& formattedItems, bool /*shortenedVersion*/) {
    // A copy: the host may give other options meanwhile.
    const bool isMultiVol = useMultiVol();
    const std::vector<bool> offered =
        isMultiVol ? mOptions.theSupportMultiVolumeOptions : mOptions.theSupportSeriesOptions;
    fill(isMultiVol, isFootnote, items, formattedItems, offered);
    return false;
}

void OutputTemplateMultiVol::fill(bool isMultiVol, bool isFootnote, std::vector<Text>& items,
                                  std::vector<OutputSinkRef>& formattedItems, const std::vector<bool>& offered) {
    if (isMultiVol) {
        fillMultiVol(isFootnote, items, formattedItems, offered);
    } else {
        fillSeries(isFootnote, items, offered);
    }
}

void OutputTemplateMultiVol::fillMultiVol(bool isFootnote, std::vector<Text>& items,
                                          std::vector<OutputSinkRef>& formattedItems,
                                          const std::vector<bool>& offered) {
    using namespace volumelayouts;
    // All before the first goes into its slot: the reports reach the host, which may empty the slots meanwhile.
    Text volume = getVolume(offered).empty() ? Text() : getVolumeWithPrefix(isFootnote);
    volume = joined(volume, volumetext::withWord(getNumber(offered), volumetext::kBook));
    const Text title = getTitle(offered);
    Text name = getEditor(offered);
    if (!name.empty() && mOptions.SupportGeneralEditor && EditorType != kGeneralEditor) {
        name = concatenate({editorWord(isFootnote), name});
    }
    Text count = getVols(offered);
    removeSuffix(count, volumetext::kToDate);
    Text years = getYear(offered);
    if (!title.empty()) {
        const OutputSinkRef fragment = formattedItems.at(kTitleSlot);
        object(fragment).Add(title, OutputSink::kItalic);
    }
    items.at(mTitleIsOwn && !title.empty() ? kVolumeWithTitleSlot : kVolumeSlot) = std::move(volume);
    items.at(kEditorSlot) = std::move(name);
    items.at(kVolsSlot) = std::move(count);
    items.at(kYearSlot) = std::move(years);
}

void OutputTemplateMultiVol::fillSeries(bool isFootnote, std::vector<Text>& items, const std::vector<bool>& offered) {
    using namespace volumelayouts;
    Text title = getTitle(offered);
    if (mOptions.shortenSeriesInTitle) {
        title = volumetext::withShortSeries(title);
    }
    Text name = getEditor(offered);
    if (isFootnote && removePrefix(name, kSeriesEditorWord)) {
        name = concatenate({kSeriesEditorWordInNote, name});
    }
    Text type = offers(offered, kMarker) ? getSeriesType() : Text();
    Text volume = getVolume(offered);
    if (!volume.empty()) {
        const bool isAlone = title.empty() && name.empty() && type.empty();
        volume = isAlone ? getVolumeWithPrefix(isFootnote) : withStyleDash(volume);
    }
    const bool isInTitle = isAMA() || mOptions.prefixedVols;
    Text number = volumetext::withWord(getNumber(offered), isInTitle ? kNumberWordOfTitle : volumetext::kNumber);
    items.at(kSeriesTitleSlot) = std::move(title);
    items.at(kSeriesEditorSlot) = std::move(name);
    items.at(kSeriesTypeSlot) = std::move(type);
    items.at(kSeriesVolumeSlot) = std::move(volume);
    items.at(kSeriesNumberSlot) = std::move(number);
}

Text OutputTemplateMultiVol::getTitle(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getTitle", {{u"supportOptions", supportOptions}},
                     [&] { return offers(supportOptions, kTitle) ? mTitle : Text(); });
}

Text OutputTemplateMultiVol::getEditor(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getEditor", {{u"supportOptions", supportOptions}}, [&] {
        if (!offers(supportOptions, kEditor) || editor.empty()) {
            return Text();
        }
        if (!useMultiVol()) {
            return getSeriesEditor();
        }
        const bool isCalledSo = mOptions.SupportGeneralEditor && EditorType == kGeneralEditor;
        return concatenate({editor, isCalledSo ? kGeneralEditorTag : TextView()});
    });
}

Text OutputTemplateMultiVol::getVolume(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getVolume", {{u"supportOptions", supportOptions}},
                     [&] { return offers(supportOptions, kVolume) ? Volume : Text(); });
}

Text OutputTemplateMultiVol::getNumber(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getNumber", {{u"supportOptions", supportOptions}},
                     [&] { return offers(supportOptions, kNumber) ? Number : Text(); });
}

Text OutputTemplateMultiVol::getVols(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getVols", {{u"supportOptions", supportOptions}},
                     [&] { return offers(supportOptions, kVols) ? Vols : Text(); });
}

Text OutputTemplateMultiVol::getYear(const std::vector<bool>& supportOptions) const {
    return procedure(*this, u"getYear", {{u"supportOptions", supportOptions}}, [&] {
        return offers(supportOptions, kYear) && !Year.empty() ? held(mYearTemplate)->formatStr(Text(Year)) : Text();
    });
}

std::vector<bool> OutputTemplateMultiVol::checkedSlots(bool /*isFootnote*/) const {
    return useMultiVol() ? multiVolCheckingArray() : seriesCheckingArray();
}

std::vector<bool> OutputTemplateMultiVol::seriesCheckingArray() const {
    return procedure(*this, u"seriesCheckingArray", kNoParameters, [&] {
        std::vector<bool> checked(volumelayouts::kSeriesSlots);
        // Both have their words when they stand together; what would be read as a part of the title has one, too, and
        // what stands behind a number of the title: "Handbook of Physiology; section 2, vol. 3".
        const bool endsInDigit = !mTitle.empty() && isDigit(mTitle.back());
        checked[volumelayouts::kSeriesTitleSlot] =
            !Volume.empty() && (!Number.empty() || endsInDigit || !volumetext::seriesVolumeAtEnd(Volume));
        return checked;
    });
}

std::vector<bool> OutputTemplateMultiVol::multiVolCheckingArray() const {
    return procedure(*this, u"multiVolCheckingArray", kNoParameters, [&] {
        std::vector<bool> checked(volumelayouts::kSlots);
        checked[volumelayouts::kVolsSlot] =
            mOptions.supportVolsToDate && !mOptions.prefixedVols && endsWith(Vols, volumetext::kToDate);
        return checked;
    });
}

Text OutputTemplateMultiVol::getVolumeWithPrefix(bool isFootnote) const {
    return procedure(*this, u"getVolumeWithPrefix", {{u"isFootnote", isFootnote}}, [&] {
        const bool areSeveral = volumetext::areSeveral(Volume);
        if (Volume.empty() || (contains(Volume, u" ") && !areSeveral)) {
            return Volume;
        }
        const bool isLower = isFootnote || LowerCaseVol;
        const Text& singular = isLower ? VOLFO : VOLBI;
        const Text& plural = isLower ? VOLFS : VOLBS;
        return concatenate({areSeveral ? plural : singular, withStyleDash(Volume)});
    });
}

Text OutputTemplateMultiVol::getSeriesType() const {
    return procedure(*this, u"getSeriesType", kNoParameters, [&] { return volumetext::seriesType(SeriesType); });
}

Text OutputTemplateMultiVol::getSeriesEditor() const {
    return procedure(*this, u"getSeriesEditor", kNoParameters, [&] {
        return editor.empty() ? Text() : concatenate({kSeriesEditorWord, editor});
    });
}

Text OutputTemplateMultiVol::withStyleDash(TextView number) const {
    return mUsesEnDash && volumetext::areSeveral(number) ? replaceAll(number, u"-", TextView(&kEnDash, 1))
                                                         : Text(number);
}

/// "Ed. " or "edited by ", without what joins it to the statement.
Text OutputTemplateMultiVol::editorWord(bool isFootnote) const {
    return (isFootnote ? mEditorFootnotePrefix : mEditorBibliographyPrefix).substr(2);
}

}  // namespace quorvel

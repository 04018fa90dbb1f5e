#pragma once

#include "core/slot_layout.h"

/// The slots of statements of volumes and of series, and what stands between them.
namespace quorvel::volumelayouts {

/// The slots of a work in several volumes. The volume has its number with it.
enum Slot : std::size_t {
    kVolumeSlot,
    /// The volume, when the title behind it is its own.
    kVolumeWithTitleSlot,
    kTitleSlot,
    kEditorSlot,
    kVolsSlot,
    kYearSlot,
    kSlots,
};

/// The slots of a series.
enum SeriesSlot : std::size_t {
    kSeriesTitleSlot,
    kSeriesEditorSlot,
    kSeriesTypeSlot,
    kSeriesVolumeSlot,
    kSeriesNumberSlot,
    kSeriesSlots,
};

/// What the style gives to the layouts.
enum StyleText {
    kOf,
    kOwnTitle,
    kEditorInList,
    kEditorInNote,
    kFirstEditor,
    kFirstVols,
    kVolsInList,
    kVolsInNote,
    kBehindVols,
    kVolsBeforeYear,
    kSeriesVolume,
    kSeriesVolumeWithWord,
    kVolumeBehindEditor,
    kVolumeBehindType,
    kStyleTexts,
};

/// All but the row of the count, of which there are three.
consteval SlotLayout<kSlots> multiVolLayout(SlotRow vols) {
    return SlotLayout<kSlots>({
        {kPlainSlot,
         {u"", u", ", kOf, kEditorInList, kVolsInList, u". ", u""},
         {u"", u", ", kOf, kEditorInNote, kVolsInNote, u", ", u""}},
        {kPlainSlot, {u"", kOwnTitle, kEditorInList, kVolsInList, u". ", u""}},
        {kFormattedSlot, {u"", kEditorInList, kVolsInList, u". ", u""}, {u"", kEditorInNote, kVolsInNote, u", ", u""}},
        {kPlainSlot, {kFirstEditor, kVolsInList, u". ", u""}},
        vols,
        {kPlainSlot, {u"", u""}},
    });
}

inline constexpr SlotLayout kCounted = multiVolLayout({kPlainSlot, {u"", kVolsBeforeYear, kBehindVols}});
inline constexpr SlotLayout kPrefixed = multiVolLayout({kPlainSlot, {kFirstVols, u". ", u""}});
inline constexpr SlotLayout kCountedToDate = multiVolLayout(
    {kPlainSlot, {u"", kVolsBeforeYear, kBehindVols}, kChecked, {u"", u" vols. to date. ", u" vols. to date."}});

/// The title is checked when the volume behind it needs its word.
inline constexpr SlotLayout kSeriesLayout({
    {kPlainSlot,
     {u"", u", ", u", ", kSeriesVolume, u", ", u""},
     kChecked,
     {u"", u", ", u", ", kSeriesVolumeWithWord, u", ", u""}},
    {kPlainSlot, {u"", u", ", kVolumeBehindEditor, u", ", u""}},
    {kPlainSlot, {u"", kVolumeBehindType, u", ", u""}},
    {kPlainSlot, {u"", u", ", u""}},
    {kPlainSlot, {u"", u""}},
});

}  // namespace quorvel::volumelayouts

#pragma once

#include <memory>

#include "elements/multi_vol/multi_vol.h"
#include "host/com/arguments.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateMultiVol` as the host sees it.
class MultiVolAdapter final : public ComObject<_OutputTemplateMultiVol> {
public:
    explicit MultiVolAdapter(
        std::shared_ptr<OutputTemplateMultiVol> volumes = std::make_shared<OutputTemplateMultiVol>())
        : mVolumes(std::move(volumes)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mVolumes->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP get_SupportSeriesOptions(VARIANT* result) override {
        return call(result, [&] { return mVolumes->SupportSeriesOptions(); });
    }
    STDMETHODIMP get_SupportMultiVolumeOptions(VARIANT* result) override {
        return call(result, [&] { return mVolumes->SupportMultiVolumeOptions(); });
    }
    STDMETHODIMP get_SupportConcurrentVolsAndTextBoxes(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->SupportConcurrentVolsAndTextBoxes(); });
    }
    STDMETHODIMP get_IsSeriesSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->IsSeriesSupported(); });
    }
    STDMETHODIMP get_IsMultiVolSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->IsMultiVolSupported(); });
    }
    STDMETHODIMP get_IsSeriesTypeSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->IsSeriesTypeSupported(); });
    }
    STDMETHODIMP get_SupportGeneralEditor(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->SupportGeneralEditor(); });
    }
    STDMETHODIMP Reset(VARIANT theSupportSeriesOptions, VARIANT theSupportMultiVolumeOptions,
                       VARIANT_BOOL SupportGeneralEditor, VARIANT_BOOL addPeriodToVol, BSTR volTitleSeparator,
                       VARIANT_BOOL overrideDefaultEditorPrefix, VARIANT_BOOL prefixedVols,
                       VARIANT_BOOL supportVolsToDate, VARIANT_BOOL shortenSeriesInTitle) override {
        return call([&] {
            trapped(*mVolumes, u"Reset", [&] {
                mVolumes->Reset({flagsOf(theSupportSeriesOptions), flagsOf(theSupportMultiVolumeOptions),
                                 asBool(SupportGeneralEditor), asBool(addPeriodToVol), Text(view(volTitleSeparator)),
                                 asBool(overrideDefaultEditorPrefix), asBool(prefixedVols), asBool(supportVolsToDate),
                                 asBool(shortenSeriesInTitle)});
            });
        });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mVolumes->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mVolumes->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP toMergedString(BSTR* result) override {
        return call(result, [&] { return mVolumes->toMergedString(); });
    }
    STDMETHODIMP get_secondaryOutput(BSTR* result) override {
        return call(result, [&] { return mVolumes->secondaryOutput(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr, VARIANT_BOOL keepOldValues) override {
        return call([&] { mVolumes->Parse(InOutText(text), view(previousStr), asBool(keepOldValues)); });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mVolumes, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP get_isAMA(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->isAMA(); });
    }
    STDMETHODIMP get_Title(BSTR* result) override {
        return call(result, [&] { return mVolumes->Title(); });
    }
    STDMETHODIMP put_Title(BSTR theVal) override {
        return call([&] { mVolumes->Title(view(theVal)); });
    }
    STDMETHODIMP getTitle(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getTitle", &OutputTemplateMultiVol::getTitle, supportOptions); });
    }
    STDMETHODIMP getEditor(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getEditor", &OutputTemplateMultiVol::getEditor, supportOptions); });
    }
    STDMETHODIMP getVolume(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getVolume", &OutputTemplateMultiVol::getVolume, supportOptions); });
    }
    STDMETHODIMP getNumber(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getNumber", &OutputTemplateMultiVol::getNumber, supportOptions); });
    }
    STDMETHODIMP getVols(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getVols", &OutputTemplateMultiVol::getVols, supportOptions); });
    }
    STDMETHODIMP getYear(VARIANT supportOptions, BSTR* result) override {
        return call(result, [&] { return offered(u"getYear", &OutputTemplateMultiVol::getYear, supportOptions); });
    }
    STDMETHODIMP useMultiVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->useMultiVol(); });
    }
    STDMETHODIMP seriesCheckingArray(VARIANT* result) override {
        return call(result, [&] { return mVolumes->seriesCheckingArray(); });
    }
    STDMETHODIMP multiVolCheckingArray(VARIANT* result) override {
        return call(result, [&] { return mVolumes->multiVolCheckingArray(); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mVolumes, u"Add",
                    [&] { mVolumes->Add(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP Add2(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mVolumes, u"Add2",
                    [&] { mVolumes->Add2(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP get_IsMultiVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->IsMultiVol; });
    }
    STDMETHODIMP put_IsMultiVol(VARIANT_BOOL IsMultiVol) override {
        return call([&] { mVolumes->IsMultiVol = asBool(IsMultiVol); });
    }
    STDMETHODIMP get_EditorType(SHORT* result) override {
        return call(result, [&] { return mVolumes->EditorType; });
    }
    STDMETHODIMP put_EditorType(short EditorType) override {
        return call([&] { mVolumes->EditorType = EditorType; });
    }
    STDMETHODIMP get_Volume(BSTR* result) override {
        return call(result, [&] { return mVolumes->Volume; });
    }
    STDMETHODIMP put_Volume(BSTR Volume) override {
        return call([&] { mVolumes->Volume = view(Volume); });
    }
    STDMETHODIMP get_Number(BSTR* result) override {
        return call(result, [&] { return mVolumes->Number; });
    }
    STDMETHODIMP put_Number(BSTR Number) override {
        return call([&] { mVolumes->Number = view(Number); });
    }
    STDMETHODIMP get_editor(BSTR* result) override {
        return call(result, [&] { return mVolumes->editor; });
    }
    STDMETHODIMP put_editor(BSTR editor) override {
        return call([&] { mVolumes->editor = view(editor); });
    }
    STDMETHODIMP get_Vols(BSTR* result) override {
        return call(result, [&] { return mVolumes->Vols; });
    }
    STDMETHODIMP put_Vols(BSTR Vols) override {
        return call([&] { mVolumes->Vols = view(Vols); });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mVolumes->Year; });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mVolumes->Year = view(Year); });
    }
    STDMETHODIMP get_SeriesType(BSTR* result) override {
        return call(result, [&] { return mVolumes->SeriesType; });
    }
    STDMETHODIMP put_SeriesType(BSTR SeriesType) override {
        return call([&] { mVolumes->SeriesType = view(SeriesType); });
    }
    STDMETHODIMP get_LowerCaseVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mVolumes->LowerCaseVol; });
    }
    STDMETHODIMP put_LowerCaseVol(VARIANT_BOOL LowerCaseVol) override {
        return call([&] { mVolumes->LowerCaseVol = asBool(LowerCaseVol); });
    }

private:
    /// A value where the caller's options offer it.
    Text offered(const Name& procedure, Text (OutputTemplateMultiVol::*get)(const std::vector<bool>&) const,
                 const VARIANT& options) const {
        Text value;
        trapped(*mVolumes, procedure, [&] { value = (*mVolumes.*get)(flagsOf(options)); });
        return value;
    }

    std::shared_ptr<OutputTemplateMultiVol> mVolumes;
};

}  // namespace quorvel::host

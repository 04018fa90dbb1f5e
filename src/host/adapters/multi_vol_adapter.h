#pragma once

#include "elements/multi_vol/multi_vol.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateMultiVol` as the host sees it.
class MultiVolAdapter final : public AssembledElementAdapter<_OutputTemplateMultiVol, OutputTemplateMultiVol> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP get_SupportSeriesOptions(VARIANT* result) override {
        return call(result, [&] { return mElement->SupportSeriesOptions(); });
    }
    STDMETHODIMP get_SupportMultiVolumeOptions(VARIANT* result) override {
        return call(result, [&] { return mElement->SupportMultiVolumeOptions(); });
    }
    STDMETHODIMP get_SupportConcurrentVolsAndTextBoxes(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportConcurrentVolsAndTextBoxes(); });
    }
    STDMETHODIMP get_IsSeriesSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsSeriesSupported(); });
    }
    STDMETHODIMP get_IsMultiVolSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsMultiVolSupported(); });
    }
    STDMETHODIMP get_IsSeriesTypeSupported(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsSeriesTypeSupported(); });
    }
    STDMETHODIMP get_SupportGeneralEditor(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportGeneralEditor(); });
    }
    STDMETHODIMP Reset(VARIANT theSupportSeriesOptions, VARIANT theSupportMultiVolumeOptions,
                       VARIANT_BOOL SupportGeneralEditor, VARIANT_BOOL addPeriodToVol, BSTR volTitleSeparator,
                       VARIANT_BOOL overrideDefaultEditorPrefix, VARIANT_BOOL prefixedVols,
                       VARIANT_BOOL supportVolsToDate, VARIANT_BOOL shortenSeriesInTitle) override {
        return call([&] {
            trapped(*mElement, u"Reset", [&] {
                mElement->Reset({flagsOf(theSupportSeriesOptions), flagsOf(theSupportMultiVolumeOptions),
                                 asBool(SupportGeneralEditor), asBool(addPeriodToVol), Text(view(volTitleSeparator)),
                                 asBool(overrideDefaultEditorPrefix), asBool(prefixedVols), asBool(supportVolsToDate),
                                 asBool(shortenSeriesInTitle)});
            });
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP toMergedString(BSTR* result) override {
        return call(result, [&] { return mElement->toMergedString(); });
    }
    STDMETHODIMP get_secondaryOutput(BSTR* result) override {
        return call(result, [&] { return mElement->secondaryOutput(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr, VARIANT_BOOL keepOldValues) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr), asBool(keepOldValues)); });
    }
    STDMETHODIMP get_isAMA(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isAMA(); });
    }
    STDMETHODIMP get_Title(BSTR* result) override {
        return call(result, [&] { return mElement->Title(); });
    }
    STDMETHODIMP put_Title(BSTR theVal) override {
        return call([&] { mElement->Title(view(theVal)); });
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
        return call(result, [&] { return mElement->useMultiVol(); });
    }
    STDMETHODIMP seriesCheckingArray(VARIANT* result) override {
        return call(result, [&] { return mElement->seriesCheckingArray(); });
    }
    STDMETHODIMP multiVolCheckingArray(VARIANT* result) override {
        return call(result, [&] { return mElement->multiVolCheckingArray(); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mElement, u"Add",
                    [&] { mElement->Add(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP Add2(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mElement, u"Add2",
                    [&] { mElement->Add2(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP get_IsMultiVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsMultiVol; });
    }
    STDMETHODIMP put_IsMultiVol(VARIANT_BOOL IsMultiVol) override {
        return call([&] { mElement->IsMultiVol = asBool(IsMultiVol); });
    }
    STDMETHODIMP get_EditorType(SHORT* result) override {
        return call(result, [&] { return mElement->EditorType; });
    }
    STDMETHODIMP put_EditorType(short EditorType) override {
        return call([&] { mElement->EditorType = EditorType; });
    }
    STDMETHODIMP get_Volume(BSTR* result) override {
        return call(result, [&] { return mElement->Volume; });
    }
    STDMETHODIMP put_Volume(BSTR Volume) override {
        return call([&] { mElement->Volume = view(Volume); });
    }
    STDMETHODIMP get_Number(BSTR* result) override {
        return call(result, [&] { return mElement->Number; });
    }
    STDMETHODIMP put_Number(BSTR Number) override {
        return call([&] { mElement->Number = view(Number); });
    }
    STDMETHODIMP get_editor(BSTR* result) override {
        return call(result, [&] { return mElement->editor; });
    }
    STDMETHODIMP put_editor(BSTR editor) override {
        return call([&] { mElement->editor = view(editor); });
    }
    STDMETHODIMP get_Vols(BSTR* result) override {
        return call(result, [&] { return mElement->Vols; });
    }
    STDMETHODIMP put_Vols(BSTR Vols) override {
        return call([&] { mElement->Vols = view(Vols); });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mElement->Year; });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mElement->Year = view(Year); });
    }
    STDMETHODIMP get_SeriesType(BSTR* result) override {
        return call(result, [&] { return mElement->SeriesType; });
    }
    STDMETHODIMP put_SeriesType(BSTR SeriesType) override {
        return call([&] { mElement->SeriesType = view(SeriesType); });
    }
    STDMETHODIMP get_LowerCaseVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->LowerCaseVol; });
    }
    STDMETHODIMP put_LowerCaseVol(VARIANT_BOOL LowerCaseVol) override {
        return call([&] { mElement->LowerCaseVol = asBool(LowerCaseVol); });
    }

private:
    /// A value where the caller's options offer it.
    Text offered(const Name& procedure, Text (OutputTemplateMultiVol::*get)(const std::vector<bool>&) const,
                 const VARIANT& options) const {
        Text value;
        trapped(*mElement, procedure, [&] { value = (*mElement.*get)(flagsOf(options)); });
        return value;
    }
};

}  // namespace quorvel::host

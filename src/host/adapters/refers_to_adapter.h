#pragma once

#include "elements/refers_to/refers_to.h"
#include "host/adapters/element_adapter.h"
#include "host/com/element_access.h"

namespace quorvel::host {

/// `OutputTemplateRefersTo` as the host sees it.
class RefersToAdapter final : public AssembledElementAdapter<_OutputTemplateRefersTo, OutputTemplateRefersTo> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(IDispatch* authorTemplate, IDispatch* pageTemplate, IDispatch* publisherTemplate,
                       VARIANT_BOOL useDots, VARIANT_BOOL useSer, VARIANT_BOOL useTrans, VARIANT_BOOL endsEditionWithEd,
                       short format) override {
        return call([&] {
            mElement->Reset({ElementAccess::elementOf<OutputTemplateAuthor>(authorTemplate),
                             ElementAccess::elementOf<OutputTemplatePage>(pageTemplate),
                             ElementAccess::elementOf<OutputTemplatePublisher>(publisherTemplate), asBool(useDots),
                             asBool(useSer), asBool(useTrans), asBool(endsEditionWithEd), format});
        });
    }
    STDMETHODIMP ResetFormatSettings(VARIANT_BOOL isNewspaper) override {
        return call([&] { mElement->ResetFormatSettings(asBool(isNewspaper)); });
    }
    STDMETHODIMP get_settings(short index, BSTR* result) override {
        return call(result, [&] { return mElement->settings(index); });
    }
    STDMETHODIMP get_supportedTypes(BSTR secondaryText, VARIANT* result) override {
        return call(result, [&] { return mElement->supportedTypes(view(secondaryText)); });
    }
    STDMETHODIMP get_checkingArray(VARIANT* result) override {
        return call(result, [&] { return mElement->checkingArray(); });
    }
    STDMETHODIMP get_isAMAJournalVol(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isAMAJournalVol(); });
    }
    STDMETHODIMP get_AbstractDateIsYear(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->AbstractDateIsYear(); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mElement->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mElement->value(index, view(theVal)); });
    }
    STDMETHODIMP TitleTypeToCaption(BSTR type, BSTR* result) override {
        return call(result, [&] { return mElement->TitleTypeToCaption(view(type)); });
    }
    STDMETHODIMP CaptionToTitleType(BSTR caption, BSTR* result) override {
        return call(result, [&] { return mElement->CaptionToTitleType(view(caption)); });
    }
    STDMETHODIMP get_abstractPublishedInJournalProceedings(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->abstractPublishedInJournalProceedings(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryText) override {
        return call([&] { mElement->Parse(InOutText(text), view(secondaryText)); });
    }
    STDMETHODIMP get_RefersToType(BSTR* result) override {
        return call(result, [&] { return mElement->RefersToType(); });
    }
    STDMETHODIMP put_RefersToType(BSTR theVal) override {
        return call([&] { mElement->RefersToType(view(theVal)); });
    }
};

}  // namespace quorvel::host

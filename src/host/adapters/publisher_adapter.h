#pragma once

#include "elements/publisher.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplatePublisher` as the host sees it.
class PublisherAdapter final : public AssembledElementAdapter<_OutputTemplatePublisher, OutputTemplatePublisher> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(VARIANT_BOOL supportCoPublisher, VARIANT_BOOL useAdvancedOptions,
                       VARIANT_BOOL usePublisherUnknown, VARIANT_BOOL shortenUniversityAndPress,
                       VARIANT_BOOL removePublisherAbbreviations) override {
        return call([&] {
            mElement->Reset({asBool(supportCoPublisher), asBool(useAdvancedOptions), asBool(usePublisherUnknown),
                             asBool(shortenUniversityAndPress), asBool(removePublisherAbbreviations)});
        });
    }
    STDMETHODIMP Clone(IDispatch* formattedStr, IDispatch** result) override {
        return call(result, [&] { return adapterOf<PublisherAdapter>(mElement->Clone(HostSink::of(formattedStr))); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP get_supportCoPublisher(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->supportCoPublisher(); });
    }
    STDMETHODIMP get_SupportAdvancedOptions(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportAdvancedOptions(); });
    }
    STDMETHODIMP get_publisher(BSTR* result) override {
        return call(result, [&] { return mElement->publisher(); });
    }
    STDMETHODIMP put_publisher(BSTR theVal) override {
        return call([&] { mElement->publisher(view(theVal)); });
    }
    STDMETHODIMP get_Imprint(BSTR* result) override {
        return call(result, [&] { return mElement->Imprint(); });
    }
    STDMETHODIMP put_Imprint(BSTR theVal) override {
        return call([&] { mElement->Imprint(view(theVal)); });
    }
    STDMETHODIMP get_CoPublisher(BSTR* result) override {
        return call(result, [&] { return mElement->CoPublisher(); });
    }
    STDMETHODIMP put_CoPublisher(BSTR theVal) override {
        return call([&] { mElement->CoPublisher(view(theVal)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP get_PublisherType(LONG* result) override {
        return call(result, [&] { return mElement->PublisherType; });
    }
    STDMETHODIMP put_PublisherType(LONG PublisherType) override {
        return call([&] { mElement->PublisherType = PublisherType; });
    }
    STDMETHODIMP get_copublisherPlace(BSTR* result) override {
        return call(result, [&] { return mElement->copublisherPlace; });
    }
    STDMETHODIMP put_copublisherPlace(BSTR copublisherPlace) override {
        return call([&] { mElement->copublisherPlace = view(copublisherPlace); });
    }
};

}  // namespace quorvel::host

#pragma once

#include <memory>

#include "elements/publisher.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplatePublisher` as the host sees it.
class PublisherAdapter final : public ComObject<_OutputTemplatePublisher> {
public:
    explicit PublisherAdapter(
        std::shared_ptr<OutputTemplatePublisher> publisher = std::make_shared<OutputTemplatePublisher>())
        : mPublisher(std::move(publisher)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mPublisher->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL supportCoPublisher, VARIANT_BOOL useAdvancedOptions,
                       VARIANT_BOOL usePublisherUnknown, VARIANT_BOOL shortenUniversityAndPress,
                       VARIANT_BOOL removePublisherAbbreviations) override {
        return call([&] {
            mPublisher->Reset({asBool(supportCoPublisher), asBool(useAdvancedOptions), asBool(usePublisherUnknown),
                               asBool(shortenUniversityAndPress), asBool(removePublisherAbbreviations)});
        });
    }
    STDMETHODIMP Clone(IDispatch* formattedStr, IDispatch** result) override {
        return call(result, [&] { return adapterOf<PublisherAdapter>(mPublisher->Clone(HostSink::of(formattedStr))); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mPublisher->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mPublisher->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mPublisher, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP get_supportCoPublisher(VARIANT_BOOL* result) override {
        return call(result, [&] { return mPublisher->supportCoPublisher(); });
    }
    STDMETHODIMP get_SupportAdvancedOptions(VARIANT_BOOL* result) override {
        return call(result, [&] { return mPublisher->SupportAdvancedOptions(); });
    }
    STDMETHODIMP get_publisher(BSTR* result) override {
        return call(result, [&] { return mPublisher->publisher(); });
    }
    STDMETHODIMP put_publisher(BSTR theVal) override {
        return call([&] { mPublisher->publisher(view(theVal)); });
    }
    STDMETHODIMP get_Imprint(BSTR* result) override {
        return call(result, [&] { return mPublisher->Imprint(); });
    }
    STDMETHODIMP put_Imprint(BSTR theVal) override {
        return call([&] { mPublisher->Imprint(view(theVal)); });
    }
    STDMETHODIMP get_CoPublisher(BSTR* result) override {
        return call(result, [&] { return mPublisher->CoPublisher(); });
    }
    STDMETHODIMP put_CoPublisher(BSTR theVal) override {
        return call([&] { mPublisher->CoPublisher(view(theVal)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mPublisher->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP get_PublisherType(LONG* result) override {
        return call(result, [&] { return mPublisher->PublisherType; });
    }
    STDMETHODIMP put_PublisherType(LONG PublisherType) override {
        return call([&] { mPublisher->PublisherType = PublisherType; });
    }
    STDMETHODIMP get_copublisherPlace(BSTR* result) override {
        return call(result, [&] { return mPublisher->copublisherPlace; });
    }
    STDMETHODIMP put_copublisherPlace(BSTR copublisherPlace) override {
        return call([&] { mPublisher->copublisherPlace = view(copublisherPlace); });
    }

private:
    std::shared_ptr<OutputTemplatePublisher> mPublisher;
};

}  // namespace quorvel::host

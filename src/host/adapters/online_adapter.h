#pragma once

#include "elements/online.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateOnline` as the host sees it.
class OnlineAdapter final : public ElementAdapter<_OutputTemplateOnline, OutputTemplateOnline> {
public:
    STDMETHODIMP Reset(VARIANT_BOOL SupportsWebsiteAsDatabase, VARIANT_BOOL SupportsWebsiteAsEric,
                       VARIANT_BOOL UsesRetrievedPrefix, BSTR DOIPrefix) override {
        return call([&] {
            mElement->Reset({asBool(SupportsWebsiteAsDatabase), asBool(SupportsWebsiteAsEric),
                             asBool(UsesRetrievedPrefix), Text(view(DOIPrefix))});
        });
    }
    STDMETHODIMP get_Online(BSTR* result) override {
        return call(result, [&] { return mElement->Online(); });
    }
    STDMETHODIMP get_SupportsWebsiteAsDatabase(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportsWebsiteAsDatabase(); });
    }
    STDMETHODIMP get_SupportsWebsiteAsEric(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportsWebsiteAsEric(); });
    }
    STDMETHODIMP get_isURL(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isURL(); });
    }
    STDMETHODIMP get_isEric(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isEric(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP get_isDatabase(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isDatabase; });
    }
    STDMETHODIMP put_isDatabase(VARIANT_BOOL isDatabase) override {
        return call([&] { mElement->isDatabase = asBool(isDatabase); });
    }
};

}  // namespace quorvel::host

#pragma once

#include <memory>

#include "elements/online.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplateOnline` as the host sees it.
class OnlineAdapter final : public ComObject<_OutputTemplateOnline> {
public:
    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mOnline->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL SupportsWebsiteAsDatabase, VARIANT_BOOL SupportsWebsiteAsEric,
                       VARIANT_BOOL UsesRetrievedPrefix, BSTR DOIPrefix) override {
        return call([&] {
            mOnline->Reset({asBool(SupportsWebsiteAsDatabase), asBool(SupportsWebsiteAsEric),
                            asBool(UsesRetrievedPrefix), Text(view(DOIPrefix))});
        });
    }
    STDMETHODIMP get_Online(BSTR* result) override {
        return call(result, [&] { return mOnline->Online(); });
    }
    STDMETHODIMP get_SupportsWebsiteAsDatabase(VARIANT_BOOL* result) override {
        return call(result, [&] { return mOnline->SupportsWebsiteAsDatabase(); });
    }
    STDMETHODIMP get_SupportsWebsiteAsEric(VARIANT_BOOL* result) override {
        return call(result, [&] { return mOnline->SupportsWebsiteAsEric(); });
    }
    STDMETHODIMP get_isURL(VARIANT_BOOL* result) override {
        return call(result, [&] { return mOnline->isURL(); });
    }
    STDMETHODIMP get_isEric(VARIANT_BOOL* result) override {
        return call(result, [&] { return mOnline->isEric(); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mOnline->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mOnline->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mOnline->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP get_isDatabase(VARIANT_BOOL* result) override {
        return call(result, [&] { return mOnline->isDatabase; });
    }
    STDMETHODIMP put_isDatabase(VARIANT_BOOL isDatabase) override {
        return call([&] { mOnline->isDatabase = asBool(isDatabase); });
    }

private:
    std::shared_ptr<OutputTemplateOnline> mOnline = std::make_shared<OutputTemplateOnline>();
};

}  // namespace quorvel::host

#pragma once

#include "elements/keywords.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateKeywords` as the host sees it.
class KeywordsAdapter final : public ElementAdapter<_OutputTemplateKeywords, OutputTemplateKeywords> {
public:
    using ElementAdapter::ElementAdapter;

    STDMETHODIMP hasWords(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->hasWords(); });
    }
    STDMETHODIMP Reset() override {
        return call([&] { mElement->Reset(); });
    }
    STDMETHODIMP Parse(BSTR* str, BSTR previousStr) override {
        return call([&] {
            // The caller's text stays; a copy, since the caller may change it while words are reported.
            InOutText text(str);
            const Text& copy = text;
            mElement->Parse(copy, view(previousStr));
        });
    }
    STDMETHODIMP Add(BSTR word, VARIANT_BOOL useMinLengthOfKeyword, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->Add(view(word), asBool(useMinLengthOfKeyword)); });
    }
    STDMETHODIMP validKeyword(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->validKeyword(view(word)); });
    }
    STDMETHODIMP exists(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->exists(view(word)); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
};

}  // namespace quorvel::host

#pragma once

#include <memory>

#include "elements/keywords.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplateKeywords` as the host sees it.
class KeywordsAdapter final : public ComObject<_OutputTemplateKeywords> {
public:
    explicit KeywordsAdapter(
        std::shared_ptr<OutputTemplateKeywords> keywords = std::make_shared<OutputTemplateKeywords>())
        : mKeywords(std::move(keywords)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mKeywords->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP hasWords(VARIANT_BOOL* result) override {
        return call(result, [&] { return mKeywords->hasWords(); });
    }
    STDMETHODIMP Reset() override {
        return call([&] { mKeywords->Reset(); });
    }
    STDMETHODIMP Parse(BSTR* str, BSTR previousStr) override {
        return call([&] {
            // The caller's text stays; a copy, since the caller may change it while words are reported.
            InOutText text(str);
            const Text& copy = text;
            mKeywords->Parse(copy, view(previousStr));
        });
    }
    STDMETHODIMP Add(BSTR word, VARIANT_BOOL useMinLengthOfKeyword, VARIANT_BOOL* result) override {
        return call(result, [&] { return mKeywords->Add(view(word), asBool(useMinLengthOfKeyword)); });
    }
    STDMETHODIMP validKeyword(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mKeywords->validKeyword(view(word)); });
    }
    STDMETHODIMP exists(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mKeywords->exists(view(word)); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mKeywords->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mKeywords->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }

private:
    std::shared_ptr<OutputTemplateKeywords> mKeywords;
};

}  // namespace quorvel::host

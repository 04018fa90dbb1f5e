#pragma once

#include <memory>

#include "elements/newspaper.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateNewspaper` as the host sees it.
class NewspaperAdapter final : public ComObject<_OutputTemplateNewspaper> {
public:
    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mNewspaper->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL outputArticle, BSTR cityInBrackets, BSTR cityTooltip) override {
        return call([&] {
            mNewspaper->Reset({asBool(outputArticle), Text(view(cityInBrackets)), Text(view(cityTooltip))});
        });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mNewspaper->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mNewspaper->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mNewspaper, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP get_cityTooltip(BSTR* result) override {
        return call(result, [&] { return mNewspaper->cityTooltip(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mNewspaper->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isNewspaper(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mNewspaper->isNewspaper(view(text)); });
    }
    STDMETHODIMP get_City(BSTR* result) override {
        return call(result, [&] { return mNewspaper->City; });
    }
    STDMETHODIMP put_City(BSTR City) override {
        return call([&] { mNewspaper->City = view(City); });
    }
    STDMETHODIMP get_Title(BSTR* result) override {
        return call(result, [&] { return mNewspaper->Title; });
    }
    STDMETHODIMP put_Title(BSTR Title) override {
        return call([&] { mNewspaper->Title = view(Title); });
    }

private:
    std::shared_ptr<OutputTemplateNewspaper> mNewspaper = std::make_shared<OutputTemplateNewspaper>();
};

}  // namespace quorvel::host

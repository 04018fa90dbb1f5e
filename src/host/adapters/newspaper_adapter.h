#pragma once

#include "elements/newspaper.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateNewspaper` as the host sees it.
class NewspaperAdapter final : public AssembledElementAdapter<_OutputTemplateNewspaper, OutputTemplateNewspaper> {
public:
    STDMETHODIMP Reset(VARIANT_BOOL outputArticle, BSTR cityInBrackets, BSTR cityTooltip) override {
        return call([&] {
            mElement->Reset({asBool(outputArticle), Text(view(cityInBrackets)), Text(view(cityTooltip))});
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP get_cityTooltip(BSTR* result) override {
        return call(result, [&] { return mElement->cityTooltip(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isNewspaper(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isNewspaper(view(text)); });
    }
    STDMETHODIMP get_City(BSTR* result) override {
        return call(result, [&] { return mElement->City; });
    }
    STDMETHODIMP put_City(BSTR City) override {
        return call([&] { mElement->City = view(City); });
    }
    STDMETHODIMP get_Title(BSTR* result) override {
        return call(result, [&] { return mElement->Title; });
    }
    STDMETHODIMP put_Title(BSTR Title) override {
        return call([&] { mElement->Title = view(Title); });
    }
};

}  // namespace quorvel::host

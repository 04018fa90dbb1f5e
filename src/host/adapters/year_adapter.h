#pragma once

#include "elements/year.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateYear` as the host sees it.
class YearAdapter final : public ElementAdapter<_OutputTemplateYear, OutputTemplateYear> {
public:
    using ElementAdapter::ElementAdapter;

    STDMETHODIMP Reset(VARIANT_BOOL supportForthcoming, VARIANT_BOOL supportInPress, VARIANT_BOOL supportYearGuess,
                       BSTR circa, VARIANT_BOOL supportYearForSure, BSTR noDateString,
                       VARIANT_BOOL useEnDashForYearRange) override {
        return call([&] {
            mElement->Reset({asBool(supportForthcoming), asBool(supportInPress), asBool(supportYearGuess),
                             Text(view(circa)), asBool(supportYearForSure), Text(view(noDateString)),
                             asBool(useEnDashForYearRange)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<YearAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->formatStr(view(text)); });
    }
    STDMETHODIMP get_Supports(LONG code, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->Supports(code); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isYear(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isYear(view(text)); });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mElement->Year; });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mElement->Year = view(Year); });
    }
    STDMETHODIMP get_yearType(LONG* result) override {
        return call(result, [&] { return mElement->yearType; });
    }
    STDMETHODIMP put_yearType(LONG yearType) override {
        return call([&] { mElement->yearType = yearType; });
    }
};

}  // namespace quorvel::host

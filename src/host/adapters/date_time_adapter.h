#pragma once

#include "elements/date/date_time.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateDateTime` as the host sees it.
class DateTimeAdapter final : public AssembledElementAdapter<_OutputTemplateDateTime, OutputTemplateDateTime> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(BSTR dateFormat, VARIANT_BOOL parenthesize, VARIANT_BOOL useShortMonths) override {
        return call([&] { mElement->Reset({Text(view(dateFormat)), asBool(parenthesize), asBool(useShortMonths)}); });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<DateTimeAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->formatStr(view(text)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryText) override {
        return call([&] { mElement->Parse(InOutText(text), view(secondaryText)); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mElement->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mElement->value(index, view(theVal)); });
    }
};

}  // namespace quorvel::host

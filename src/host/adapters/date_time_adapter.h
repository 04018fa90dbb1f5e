#pragma once

#include <memory>

#include "elements/date/date_time.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateDateTime` as the host sees it.
class DateTimeAdapter final : public ComObject<_OutputTemplateDateTime> {
public:
    explicit DateTimeAdapter(
        std::shared_ptr<OutputTemplateDateTime> dateTime = std::make_shared<OutputTemplateDateTime>())
        : mDateTime(std::move(dateTime)) {}

    STDMETHODIMP Initialize(IDispatch* formattedString) override {
        return call([&] { mDateTime->Initialize(HostSink::of(formattedString)); });
    }
    STDMETHODIMP Reset(BSTR dateFormat, VARIANT_BOOL parenthesize, VARIANT_BOOL useShortMonths) override {
        return call([&] { mDateTime->Reset({Text(view(dateFormat)), asBool(parenthesize), asBool(useShortMonths)}); });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<DateTimeAdapter>(mDateTime->Clone()); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mDateTime->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mDateTime, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mDateTime->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mDateTime->formatStr(view(text)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryText) override {
        return call([&] { mDateTime->Parse(InOutText(text), view(secondaryText)); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mDateTime->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mDateTime->value(index, view(theVal)); });
    }

private:
    std::shared_ptr<OutputTemplateDateTime> mDateTime;
};

}  // namespace quorvel::host

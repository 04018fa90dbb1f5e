#pragma once

#include <memory>

#include "elements/year.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplateYear` as the host sees it.
class YearAdapter final : public ComObject<_OutputTemplateYear> {
public:
    explicit YearAdapter(std::shared_ptr<OutputTemplateYear> year = std::make_shared<OutputTemplateYear>())
        : mYear(std::move(year)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mYear->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL supportForthcoming, VARIANT_BOOL supportInPress, VARIANT_BOOL supportYearGuess,
                       BSTR circa, VARIANT_BOOL supportYearForSure, BSTR noDateString,
                       VARIANT_BOOL useEnDashForYearRange) override {
        return call([&] {
            mYear->Reset({asBool(supportForthcoming), asBool(supportInPress), asBool(supportYearGuess),
                          Text(view(circa)), asBool(supportYearForSure), Text(view(noDateString)),
                          asBool(useEnDashForYearRange)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<YearAdapter>(mYear->Clone()); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mYear->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mYear->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mYear->formatStr(view(text)); });
    }
    STDMETHODIMP get_Supports(LONG code, VARIANT_BOOL* result) override {
        return call(result, [&] { return mYear->Supports(code); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mYear->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isYear(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mYear->isYear(view(text)); });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mYear->Year; });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mYear->Year = view(Year); });
    }
    STDMETHODIMP get_yearType(LONG* result) override {
        return call(result, [&] { return mYear->yearType; });
    }
    STDMETHODIMP put_yearType(LONG yearType) override {
        return call([&] { mYear->yearType = yearType; });
    }

private:
    std::shared_ptr<OutputTemplateYear> mYear;
};

}  // namespace quorvel::host

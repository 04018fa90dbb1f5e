#pragma once

#include <memory>

#include "elements/place.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplatePlace` as the host sees it.
class PlaceAdapter final : public ComObject<_OutputTemplatePlace> {
public:
    explicit PlaceAdapter(std::shared_ptr<OutputTemplatePlace> place = std::make_shared<OutputTemplatePlace>())
        : mPlace(std::move(place)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mPlace->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL supportPlaceNotKnown, VARIANT_BOOL supportPlaceGuess,
                       VARIANT_BOOL supportPlaceForSure, VARIANT_BOOL expandAbbreviations,
                       VARIANT_BOOL repeatLocationIfInPublisherName) override {
        return call([&] {
            mPlace->Reset({asBool(supportPlaceNotKnown), asBool(supportPlaceGuess), asBool(supportPlaceForSure),
                           asBool(expandAbbreviations), asBool(repeatLocationIfInPublisherName)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<PlaceAdapter>(mPlace->Clone()); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mPlace->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR publisherStr,
                          BSTR* result) override {
        return call(result,
                    [&] { return mPlace->toString(asBool(isFootnote), asBool(shortenedVersion), view(publisherStr)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR publisherStr, BSTR* result) override {
        return call(result, [&] { return mPlace->formatStr(view(text), view(publisherStr)); });
    }
    STDMETHODIMP get_Supports(LONG placeType, VARIANT_BOOL* result) override {
        return call(result, [&] { return mPlace->Supports(placeType); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mPlace->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isPlace(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mPlace->isPlace(view(text)); });
    }
    STDMETHODIMP get_DefaultAbbreviations(VARIANT* result) override {
        return call(result, [&] { return mPlace->DefaultAbbreviations(); });
    }
    STDMETHODIMP get_States(VARIANT* result) override {
        return call(result, [&] { return mPlace->States(); });
    }
    STDMETHODIMP get_Place(BSTR* result) override {
        return call(result, [&] { return mPlace->Place; });
    }
    STDMETHODIMP put_Place(BSTR Place) override {
        return call([&] { mPlace->Place = view(Place); });
    }
    STDMETHODIMP get_placeType(LONG* result) override {
        return call(result, [&] { return mPlace->placeType; });
    }
    STDMETHODIMP put_placeType(LONG placeType) override {
        return call([&] { mPlace->placeType = placeType; });
    }

private:
    std::shared_ptr<OutputTemplatePlace> mPlace;
};

}  // namespace quorvel::host

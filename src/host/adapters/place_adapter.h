#pragma once

#include "elements/place.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplatePlace` as the host sees it.
class PlaceAdapter final : public ElementAdapter<_OutputTemplatePlace, OutputTemplatePlace> {
public:
    using ElementAdapter::ElementAdapter;

    STDMETHODIMP Reset(VARIANT_BOOL supportPlaceNotKnown, VARIANT_BOOL supportPlaceGuess,
                       VARIANT_BOOL supportPlaceForSure, VARIANT_BOOL expandAbbreviations,
                       VARIANT_BOOL repeatLocationIfInPublisherName) override {
        return call([&] {
            mElement->Reset({asBool(supportPlaceNotKnown), asBool(supportPlaceGuess), asBool(supportPlaceForSure),
                             asBool(expandAbbreviations), asBool(repeatLocationIfInPublisherName)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<PlaceAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR publisherStr,
                          BSTR* result) override {
        return call(result, [&] {
            return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), view(publisherStr));
        });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR publisherStr, BSTR* result) override {
        return call(result, [&] { return mElement->formatStr(view(text), view(publisherStr)); });
    }
    STDMETHODIMP get_Supports(LONG placeType, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->Supports(placeType); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP isPlace(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isPlace(view(text)); });
    }
    STDMETHODIMP get_DefaultAbbreviations(VARIANT* result) override {
        return call(result, [&] { return mElement->DefaultAbbreviations(); });
    }
    STDMETHODIMP get_States(VARIANT* result) override {
        return call(result, [&] { return mElement->States(); });
    }
    STDMETHODIMP get_Place(BSTR* result) override {
        return call(result, [&] { return mElement->Place; });
    }
    STDMETHODIMP put_Place(BSTR Place) override {
        return call([&] { mElement->Place = view(Place); });
    }
    STDMETHODIMP get_placeType(LONG* result) override {
        return call(result, [&] { return mElement->placeType; });
    }
    STDMETHODIMP put_placeType(LONG placeType) override {
        return call([&] { mElement->placeType = placeType; });
    }
};

}  // namespace quorvel::host

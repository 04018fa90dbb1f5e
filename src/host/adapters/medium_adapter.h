#pragma once

#include "elements/medium/medium.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateMedium` as the host sees it.
class MediumAdapter final : public AssembledElementAdapter<_OutputTemplateMedium, OutputTemplateMedium> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(BSTR Supports, VARIANT_BOOL useSquareBrackets, VARIANT_BOOL SupportsAdvancedCD,
                       VARIANT_BOOL shortenedMicroform) override {
        return call([&] {
            mElement->Reset({Text(view(Supports)), asBool(useSquareBrackets), asBool(SupportsAdvancedCD),
                             asBool(shortenedMicroform)});
        });
    }
    STDMETHODIMP get_Supports(BSTR* result) override {
        return call(result, [&] { return mElement->Supports(); });
    }
    STDMETHODIMP get_SupportsAdvancedCD(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportsAdvancedCD(); });
    }
    STDMETHODIMP get_showDiscs(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->showDiscs(); });
    }
    STDMETHODIMP get_version(BSTR* result) override {
        return call(result, [&] { return mElement->version(); });
    }
    STDMETHODIMP get_disc(BSTR* result) override {
        return call(result, [&] { return mElement->disc(); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mElement->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mElement->value(index, view(theVal)); });
    }
    STDMETHODIMP MLACheckingArray(VARIANT* result) override {
        return call(result, [&] { return mElement->MLACheckingArray(); });
    }
    STDMETHODIMP outputTurabianCD(BSTR* result) override {
        return call(result, [&] { return mElement->outputTurabianCD(); });
    }
    STDMETHODIMP getDiscString(BSTR* result) override {
        return call(result, [&] { return mElement->getDiscString(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryText) override {
        return call([&] { mElement->Parse(InOutText(text), view(secondaryText)); });
    }
    STDMETHODIMP ParseMicrofilm(BSTR* text) override {
        return call([&] { mElement->ParseMicrofilm(InOutText(text)); });
    }
    STDMETHODIMP ParseCD(BSTR* text) override {
        return call([&] { mElement->ParseCD(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveRowAndFrame(BSTR* text) override {
        return call([&] { mElement->parseAndRemoveRowAndFrame(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveFiche(BSTR* text) override {
        return call([&] { mElement->parseAndRemoveFiche(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveVersionAndTitle(BSTR* text) override {
        return call([&] { mElement->parseAndRemoveVersionAndTitle(InOutText(text)); });
    }
    STDMETHODIMP ParseAndRemovePublisher(BSTR* text) override {
        return call([&] { mElement->ParseAndRemovePublisher(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveDiscs(BSTR* text) override {
        return call([&] { mElement->parseAndRemoveDiscs(InOutText(text)); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mElement, u"Add",
                    [&] { mElement->Add(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP Add2(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mElement, u"Add2",
                    [&] { mElement->Add2(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP get_IsMultiDiscs(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsMultiDiscs; });
    }
    STDMETHODIMP put_IsMultiDiscs(VARIANT_BOOL IsMultiDiscs) override {
        return call([&] { mElement->IsMultiDiscs = asBool(IsMultiDiscs); });
    }
    STDMETHODIMP get_PublicationMediumType(SHORT* result) override {
        return call(result, [&] { return mElement->PublicationMediumType; });
    }
    STDMETHODIMP put_PublicationMediumType(short PublicationMediumType) override {
        return call([&] { mElement->PublicationMediumType = PublicationMediumType; });
    }
};

}  // namespace quorvel::host

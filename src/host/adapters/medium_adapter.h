#pragma once

#include <memory>

#include "elements/medium/medium.h"
#include "host/com/arguments.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateMedium` as the host sees it.
class MediumAdapter final : public ComObject<_OutputTemplateMedium> {
public:
    explicit MediumAdapter(std::shared_ptr<OutputTemplateMedium> medium = std::make_shared<OutputTemplateMedium>())
        : mMedium(std::move(medium)) {}

    STDMETHODIMP Initialize(IDispatch* formattedString) override {
        return call([&] { mMedium->Initialize(HostSink::of(formattedString)); });
    }
    STDMETHODIMP Reset(BSTR Supports, VARIANT_BOOL useSquareBrackets, VARIANT_BOOL SupportsAdvancedCD,
                       VARIANT_BOOL shortenedMicroform) override {
        return call([&] {
            mMedium->Reset({Text(view(Supports)), asBool(useSquareBrackets), asBool(SupportsAdvancedCD),
                            asBool(shortenedMicroform)});
        });
    }
    STDMETHODIMP get_Supports(BSTR* result) override {
        return call(result, [&] { return mMedium->Supports(); });
    }
    STDMETHODIMP get_SupportsAdvancedCD(VARIANT_BOOL* result) override {
        return call(result, [&] { return mMedium->SupportsAdvancedCD(); });
    }
    STDMETHODIMP get_showDiscs(VARIANT_BOOL* result) override {
        return call(result, [&] { return mMedium->showDiscs(); });
    }
    STDMETHODIMP get_version(BSTR* result) override {
        return call(result, [&] { return mMedium->version(); });
    }
    STDMETHODIMP get_disc(BSTR* result) override {
        return call(result, [&] { return mMedium->disc(); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mMedium->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mMedium->value(index, view(theVal)); });
    }
    STDMETHODIMP MLACheckingArray(VARIANT* result) override {
        return call(result, [&] { return mMedium->MLACheckingArray(); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mMedium->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP outputTurabianCD(BSTR* result) override {
        return call(result, [&] { return mMedium->outputTurabianCD(); });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mMedium, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP getDiscString(BSTR* result) override {
        return call(result, [&] { return mMedium->getDiscString(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mMedium->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryText) override {
        return call([&] { mMedium->Parse(InOutText(text), view(secondaryText)); });
    }
    STDMETHODIMP ParseMicrofilm(BSTR* text) override {
        return call([&] { mMedium->ParseMicrofilm(InOutText(text)); });
    }
    STDMETHODIMP ParseCD(BSTR* text) override {
        return call([&] { mMedium->ParseCD(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveRowAndFrame(BSTR* text) override {
        return call([&] { mMedium->parseAndRemoveRowAndFrame(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveFiche(BSTR* text) override {
        return call([&] { mMedium->parseAndRemoveFiche(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveVersionAndTitle(BSTR* text) override {
        return call([&] { mMedium->parseAndRemoveVersionAndTitle(InOutText(text)); });
    }
    STDMETHODIMP ParseAndRemovePublisher(BSTR* text) override {
        return call([&] { mMedium->ParseAndRemovePublisher(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemoveDiscs(BSTR* text) override {
        return call([&] { mMedium->parseAndRemoveDiscs(InOutText(text)); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mMedium, u"Add",
                    [&] { mMedium->Add(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP Add2(short Index, VARIANT_BOOL isFormatted, VARIANT_BOOL isChecking, VARIANT separators) override {
        return call([&] {
            trapped(*mMedium, u"Add2",
                    [&] { mMedium->Add2(Index, asBool(isFormatted), asBool(isChecking), textsOf(separators)); });
        });
    }
    STDMETHODIMP get_IsMultiDiscs(VARIANT_BOOL* result) override {
        return call(result, [&] { return mMedium->IsMultiDiscs; });
    }
    STDMETHODIMP put_IsMultiDiscs(VARIANT_BOOL IsMultiDiscs) override {
        return call([&] { mMedium->IsMultiDiscs = asBool(IsMultiDiscs); });
    }
    STDMETHODIMP get_PublicationMediumType(SHORT* result) override {
        return call(result, [&] { return mMedium->PublicationMediumType; });
    }
    STDMETHODIMP put_PublicationMediumType(short PublicationMediumType) override {
        return call([&] { mMedium->PublicationMediumType = PublicationMediumType; });
    }

private:
    std::shared_ptr<OutputTemplateMedium> mMedium;
};

}  // namespace quorvel::host

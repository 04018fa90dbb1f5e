#pragma once

#include <memory>

#include "elements/title/title.h"
#include "host/com/com_object.h"
#include "host/com/element_access.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateTitle` as the host sees it.
class TitleAdapter final : public ComObject<_OutputTemplateTitle> {
public:
    explicit TitleAdapter(std::shared_ptr<OutputTemplateTitle> title = std::make_shared<OutputTemplateTitle>())
        : mTitle(std::move(title)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mTitle->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(short format, IDispatch* authorTemplate, VARIANT_BOOL sentenceCapitalization,
                       VARIANT_BOOL capitalizeHyphenatedWord, BSTR BookAndArticleRule, VARIANT_BOOL capitalizeSubtitle,
                       BSTR chapterAndWebsiteRule, VARIANT_BOOL UnItalicizeSpeciesAndNamesOfShips,
                       BSTR titleTypes) override {
        return call([&] {
            mTitle->Reset(
                {format, ElementAccess::elementOf<OutputTemplateAuthor>(authorTemplate), asBool(sentenceCapitalization),
                 asBool(capitalizeHyphenatedWord), Text(view(BookAndArticleRule)), asBool(capitalizeSubtitle),
                 Text(view(chapterAndWebsiteRule)), asBool(UnItalicizeSpeciesAndNamesOfShips), Text(view(titleTypes))});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<TitleAdapter>(mTitle->Clone()); });
    }
    STDMETHODIMP CloneForHeadingCapitalization(IDispatch** result) override {
        return call(result, [&] { return adapterOf<TitleAdapter>(mTitle->CloneForHeadingCapitalization()); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mTitle->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mTitle, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP ToFormattedStringPrematter(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                            VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mTitle->ToFormattedStringPrematter(HostSink::of(formattedStr), asBool(isFootnote),
                                               asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mTitle->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mTitle->formatStr(view(text)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mTitle->Parse(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mTitle->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mTitle->value(index, view(theVal)); });
    }
    STDMETHODIMP get_TitleType(BSTR* result) override {
        return call(result, [&] { return mTitle->TitleType(); });
    }
    STDMETHODIMP put_TitleType(BSTR value) override {
        return call([&] { mTitle->TitleType(view(value)); });
    }
    STDMETHODIMP get_IsChapterOrWebsite(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->IsChapterOrWebsite(); });
    }
    STDMETHODIMP put_IsChapterOrWebsite(VARIANT_BOOL value) override {
        return call([&] { mTitle->IsChapterOrWebsite(asBool(value)); });
    }
    STDMETHODIMP get_IsSentenceCapitalization(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->IsSentenceCapitalization(); });
    }
    STDMETHODIMP get_subworkTypes(VARIANT* result) override {
        return call(result, [&] { return mTitle->subworkTypes(); });
    }
    STDMETHODIMP get_TitleSubtypes(VARIANT* result) override {
        return call(result, [&] { return mTitle->TitleSubtypes(); });
    }
    STDMETHODIMP get_UsesTitleType(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->UsesTitleType(); });
    }
    STDMETHODIMP get_UsesTitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->UsesTitle(); });
    }
    STDMETHODIMP get_UsesSubtitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->UsesSubtitle(); });
    }
    STDMETHODIMP setTitleTypes(BSTR values) override {
        return call([&] { mTitle->setTitleTypes(view(values)); });
    }
    STDMETHODIMP TitleTypeToCaption(BSTR type, BSTR* result) override {
        return call(result, [&] { return mTitle->TitleTypeToCaption(view(type)); });
    }
    STDMETHODIMP CaptionToTitleType(BSTR caption, BSTR* result) override {
        return call(result, [&] { return mTitle->CaptionToTitleType(view(caption)); });
    }
    STDMETHODIMP get_prematterTypes(VARIANT* result) override {
        return call(result, [&] { return mTitle->prematterTypes(); });
    }
    STDMETHODIMP isPrematter(BSTR theType, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isPrematter(view(theType)); });
    }
    STDMETHODIMP get_prematterHasTitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->prematterHasTitle(); });
    }
    STDMETHODIMP get_CapitalizationRule(BSTR* result) override {
        return call(result, [&] { return mTitle->CapitalizationRule(); });
    }
    STDMETHODIMP formatRule(BSTR text, BSTR* result) override {
        return call(result, [&] { return mTitle->formatRule(view(text)); });
    }
    STDMETHODIMP InHeadingCapitalization(BSTR text, BSTR* result) override {
        return call(result, [&] { return mTitle->InHeadingCapitalization(view(text)); });
    }
    STDMETHODIMP IsInHeadingCapitalization(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->IsInHeadingCapitalization(view(text)); });
    }
    STDMETHODIMP shouldBeCapitalized(BSTR word, VARIANT_BOOL ignoreFormatCapitalizationRule,
                                     VARIANT_BOOL* result) override {
        return call(result,
                    [&] { return mTitle->shouldBeCapitalized(view(word), asBool(ignoreFormatCapitalizationRule)); });
    }
    STDMETHODIMP isEnglishTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isEnglishTitle(view(text)); });
    }
    STDMETHODIMP isForeignTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isForeignTitle(view(text)); });
    }
    STDMETHODIMP isOldTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isOldTitle(view(text)); });
    }
    STDMETHODIMP headingCapitalization(BSTR text, BSTR* result) override {
        return call(result, [&] { return mTitle->headingCapitalization(view(text)); });
    }
    STDMETHODIMP formatRuleImpl(BSTR text, VARIANT_BOOL capitalizeFirstWord, VARIANT_BOOL isHeadingCapitalization,
                                BSTR* result) override {
        return call(result, [&] {
            return mTitle->formatRuleImpl(view(text), asBool(capitalizeFirstWord), asBool(isHeadingCapitalization));
        });
    }
    STDMETHODIMP capitalizeAccordingToInternalRules(BSTR text, VARIANT_BOOL isTitle, BSTR* result) override {
        return call(result, [&] { return mTitle->capitalizeAccordingToInternalRules(view(text), asBool(isTitle)); });
    }
    STDMETHODIMP capitalize(BSTR word, VARIANT_BOOL doCapitalization, BSTR* result) override {
        return call(result, [&] { return mTitle->capitalize(view(word), asBool(doCapitalization)); });
    }
    STDMETHODIMP hyphenate(BSTR word, BSTR* result) override {
        return call(result, [&] { return mTitle->hyphenate(view(word)); });
    }
    STDMETHODIMP isAlwaysLowercase(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isAlwaysLowercase(view(word)); });
    }
    STDMETHODIMP isAcronym(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isAcronym(view(word)); });
    }
    STDMETHODIMP wordIsPossessive(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->wordIsPossessive(view(word)); });
    }
    STDMETHODIMP isPreformattedTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->isPreformattedTitle(view(text)); });
    }
    STDMETHODIMP endsWithPunctuation(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mTitle->endsWithPunctuation(view(text)); });
    }
    STDMETHODIMP parseAndRemoveTranslation(BSTR* text) override {
        return call([&] { mTitle->parseAndRemoveTranslation(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemovePrematter(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mTitle->parseAndRemovePrematter(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP UnItalicizeSpeciesAndNamesOfShips(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mTitle->UnItalicizeSpeciesAndNamesOfShips(view(text), HostSink::of(formattedStr)); });
    }
    STDMETHODIMP UnItalicizeSpecies(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mTitle->UnItalicizeSpecies(view(text), HostSink::of(formattedStr)); });
    }
    STDMETHODIMP UnItalicizeShipNames(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mTitle->UnItalicizeShipNames(view(text), HostSink::of(formattedStr)); });
    }

protected:
    ComPtr<IUnknown> elementAccess() override { return ElementAccess::to(this, mTitle); }

private:
    std::shared_ptr<OutputTemplateTitle> mTitle;
};

}  // namespace quorvel::host

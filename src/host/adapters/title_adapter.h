#pragma once

#include "elements/title/title.h"
#include "host/adapters/element_adapter.h"
#include "host/com/element_access.h"

namespace quorvel::host {

/// `OutputTemplateTitle` as the host sees it.
class TitleAdapter final : public AssembledElementAdapter<_OutputTemplateTitle, OutputTemplateTitle> {
public:
    using AssembledElementAdapter::AssembledElementAdapter;

    STDMETHODIMP Reset(short format, IDispatch* authorTemplate, VARIANT_BOOL sentenceCapitalization,
                       VARIANT_BOOL capitalizeHyphenatedWord, BSTR BookAndArticleRule, VARIANT_BOOL capitalizeSubtitle,
                       BSTR chapterAndWebsiteRule, VARIANT_BOOL UnItalicizeSpeciesAndNamesOfShips,
                       BSTR titleTypes) override {
        return call([&] {
            mElement->Reset(
                {format, ElementAccess::elementOf<OutputTemplateAuthor>(authorTemplate), asBool(sentenceCapitalization),
                 asBool(capitalizeHyphenatedWord), Text(view(BookAndArticleRule)), asBool(capitalizeSubtitle),
                 Text(view(chapterAndWebsiteRule)), asBool(UnItalicizeSpeciesAndNamesOfShips), Text(view(titleTypes))});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<TitleAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP CloneForHeadingCapitalization(IDispatch** result) override {
        return call(result, [&] { return adapterOf<TitleAdapter>(mElement->CloneForHeadingCapitalization()); });
    }
    STDMETHODIMP ToFormattedStringPrematter(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                            VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mElement->ToFormattedStringPrematter(HostSink::of(formattedStr), asBool(isFootnote),
                                                 asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP formatStr(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->formatStr(view(text)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP get_value(short index, BSTR* result) override {
        return call(result, [&] { return mElement->value(index); });
    }
    STDMETHODIMP put_value(short index, BSTR theVal) override {
        return call([&] { mElement->value(index, view(theVal)); });
    }
    STDMETHODIMP get_TitleType(BSTR* result) override {
        return call(result, [&] { return mElement->TitleType(); });
    }
    STDMETHODIMP put_TitleType(BSTR value) override {
        return call([&] { mElement->TitleType(view(value)); });
    }
    STDMETHODIMP get_IsChapterOrWebsite(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsChapterOrWebsite(); });
    }
    STDMETHODIMP put_IsChapterOrWebsite(VARIANT_BOOL value) override {
        return call([&] { mElement->IsChapterOrWebsite(asBool(value)); });
    }
    STDMETHODIMP get_IsSentenceCapitalization(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsSentenceCapitalization(); });
    }
    STDMETHODIMP get_subworkTypes(VARIANT* result) override {
        return call(result, [&] { return mElement->subworkTypes(); });
    }
    STDMETHODIMP get_TitleSubtypes(VARIANT* result) override {
        return call(result, [&] { return mElement->TitleSubtypes(); });
    }
    STDMETHODIMP get_UsesTitleType(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->UsesTitleType(); });
    }
    STDMETHODIMP get_UsesTitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->UsesTitle(); });
    }
    STDMETHODIMP get_UsesSubtitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->UsesSubtitle(); });
    }
    STDMETHODIMP setTitleTypes(BSTR values) override {
        return call([&] { mElement->setTitleTypes(view(values)); });
    }
    STDMETHODIMP TitleTypeToCaption(BSTR type, BSTR* result) override {
        return call(result, [&] { return mElement->TitleTypeToCaption(view(type)); });
    }
    STDMETHODIMP CaptionToTitleType(BSTR caption, BSTR* result) override {
        return call(result, [&] { return mElement->CaptionToTitleType(view(caption)); });
    }
    STDMETHODIMP get_prematterTypes(VARIANT* result) override {
        return call(result, [&] { return mElement->prematterTypes(); });
    }
    STDMETHODIMP isPrematter(BSTR theType, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isPrematter(view(theType)); });
    }
    STDMETHODIMP get_prematterHasTitle(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->prematterHasTitle(); });
    }
    STDMETHODIMP get_CapitalizationRule(BSTR* result) override {
        return call(result, [&] { return mElement->CapitalizationRule(); });
    }
    STDMETHODIMP formatRule(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->formatRule(view(text)); });
    }
    STDMETHODIMP InHeadingCapitalization(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->InHeadingCapitalization(view(text)); });
    }
    STDMETHODIMP IsInHeadingCapitalization(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->IsInHeadingCapitalization(view(text)); });
    }
    STDMETHODIMP shouldBeCapitalized(BSTR word, VARIANT_BOOL ignoreFormatCapitalizationRule,
                                     VARIANT_BOOL* result) override {
        return call(result,
                    [&] { return mElement->shouldBeCapitalized(view(word), asBool(ignoreFormatCapitalizationRule)); });
    }
    STDMETHODIMP isEnglishTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isEnglishTitle(view(text)); });
    }
    STDMETHODIMP isForeignTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isForeignTitle(view(text)); });
    }
    STDMETHODIMP isOldTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isOldTitle(view(text)); });
    }
    STDMETHODIMP headingCapitalization(BSTR text, BSTR* result) override {
        return call(result, [&] { return mElement->headingCapitalization(view(text)); });
    }
    STDMETHODIMP formatRuleImpl(BSTR text, VARIANT_BOOL capitalizeFirstWord, VARIANT_BOOL isHeadingCapitalization,
                                BSTR* result) override {
        return call(result, [&] {
            return mElement->formatRuleImpl(view(text), asBool(capitalizeFirstWord), asBool(isHeadingCapitalization));
        });
    }
    STDMETHODIMP capitalizeAccordingToInternalRules(BSTR text, VARIANT_BOOL isTitle, BSTR* result) override {
        return call(result, [&] { return mElement->capitalizeAccordingToInternalRules(view(text), asBool(isTitle)); });
    }
    STDMETHODIMP capitalize(BSTR word, VARIANT_BOOL doCapitalization, BSTR* result) override {
        return call(result, [&] { return mElement->capitalize(view(word), asBool(doCapitalization)); });
    }
    STDMETHODIMP hyphenate(BSTR word, BSTR* result) override {
        return call(result, [&] { return mElement->hyphenate(view(word)); });
    }
    STDMETHODIMP isAlwaysLowercase(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isAlwaysLowercase(view(word)); });
    }
    STDMETHODIMP isAcronym(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isAcronym(view(word)); });
    }
    STDMETHODIMP wordIsPossessive(BSTR word, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->wordIsPossessive(view(word)); });
    }
    STDMETHODIMP isPreformattedTitle(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isPreformattedTitle(view(text)); });
    }
    STDMETHODIMP endsWithPunctuation(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->endsWithPunctuation(view(text)); });
    }
    STDMETHODIMP parseAndRemoveTranslation(BSTR* text) override {
        return call([&] { mElement->parseAndRemoveTranslation(InOutText(text)); });
    }
    STDMETHODIMP parseAndRemovePrematter(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mElement->parseAndRemovePrematter(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP UnItalicizeSpeciesAndNamesOfShips(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mElement->UnItalicizeSpeciesAndNamesOfShips(view(text), HostSink::of(formattedStr)); });
    }
    STDMETHODIMP UnItalicizeSpecies(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mElement->UnItalicizeSpecies(view(text), HostSink::of(formattedStr)); });
    }
    STDMETHODIMP UnItalicizeShipNames(BSTR text, IDispatch* formattedStr) override {
        return call([&] { mElement->UnItalicizeShipNames(view(text), HostSink::of(formattedStr)); });
    }
    STDMETHODIMP get_openingQuotationMark(BSTR* result) override {
        return call(result, [&] { return mElement->openingQuotationMark(); });
    }
    STDMETHODIMP put_openingQuotationMark(BSTR openingQuotationMark) override {
        return call([&] { mElement->openingQuotationMark(view(openingQuotationMark)); });
    }
    STDMETHODIMP get_closingQuotationMark(BSTR* result) override {
        return call(result, [&] { return mElement->closingQuotationMark(); });
    }
    STDMETHODIMP put_closingQuotationMark(BSTR closingQuotationMark) override {
        return call([&] { mElement->closingQuotationMark(view(closingQuotationMark)); });
    }
};

}  // namespace quorvel::host

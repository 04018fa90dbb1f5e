#pragma once

#include "elements/page.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplatePage` as the host sees it.
class PageAdapter final : public ElementAdapter<_OutputTemplatePage, OutputTemplatePage> {
public:
    using ElementAdapter::ElementAdapter;

    STDMETHODIMP Reset(VARIANT_BOOL supportsDOI, VARIANT_BOOL supportsNotes, VARIANT_BOOL elideZero,
                       VARIANT_BOOL usePagePrefix, VARIANT_BOOL usePagePrefixInCitations, VARIANT_BOOL shortenedPage,
                       BSTR noPageStr, BSTR chapterPrefix, BSTR chapterPluralPrefix, BSTR paraPrefix,
                       BSTR paraPluralPrefix, VARIANT_BOOL addDotToAdvancedPrefix,
                       VARIANT_BOOL useEnDashForPageRange) override {
        return call([&] {
            mElement->Reset({asBool(supportsDOI), asBool(supportsNotes), asBool(elideZero), asBool(usePagePrefix),
                             asBool(usePagePrefixInCitations), asBool(shortenedPage), Text(view(noPageStr)),
                             Text(view(chapterPrefix)), Text(view(chapterPluralPrefix)), Text(view(paraPrefix)),
                             Text(view(paraPluralPrefix)), asBool(addDotToAdvancedPrefix),
                             asBool(useEnDashForPageRange)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<PageAdapter>(mElement->Clone()); });
    }
    STDMETHODIMP get_Page(BSTR* result) override {
        return call(result, [&] { return mElement->Page(); });
    }
    STDMETHODIMP put_Page(BSTR theVal) override {
        return call([&] { mElement->Page(view(theVal)); });
    }
    STDMETHODIMP get_supportsDOI(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->supportsDOI(); });
    }
    STDMETHODIMP get_supportsNotes(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->supportsNotes(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP put_inCitation(VARIANT_BOOL inCitation) override {
        return call([&] { mElement->inCitation(asBool(inCitation)); });
    }
    STDMETHODIMP get_isNumericPage(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isNumericPage(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP isPage(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->isPage(view(text)); });
    }
    STDMETHODIMP get_pageType(LONG* result) override {
        return call(result, [&] { return mElement->pageType; });
    }
    STDMETHODIMP put_pageType(LONG pageType) override {
        return call([&] { mElement->pageType = pageType; });
    }
    STDMETHODIMP get_Note(BSTR* result) override {
        return call(result, [&] { return mElement->Note; });
    }
    STDMETHODIMP put_Note(BSTR Note) override {
        return call([&] { mElement->Note = view(Note); });
    }
};

}  // namespace quorvel::host

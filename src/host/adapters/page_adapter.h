#pragma once

#include <memory>

#include "elements/page.h"
#include "host/com/com_object.h"
#include "host/com/element_access.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplatePage` as the host sees it.
class PageAdapter final : public ComObject<_OutputTemplatePage> {
public:
    explicit PageAdapter(std::shared_ptr<OutputTemplatePage> page = std::make_shared<OutputTemplatePage>())
        : mPage(std::move(page)) {}

    STDMETHODIMP Initialize(IDispatch* formattedStr) override {
        return call([&] { mPage->Initialize(HostSink::of(formattedStr)); });
    }
    STDMETHODIMP Reset(VARIANT_BOOL supportsDOI, VARIANT_BOOL supportsNotes, VARIANT_BOOL elideZero,
                       VARIANT_BOOL usePagePrefix, VARIANT_BOOL usePagePrefixInCitations, VARIANT_BOOL shortenedPage,
                       BSTR noPageStr, BSTR chapterPrefix, BSTR chapterPluralPrefix, BSTR paraPrefix,
                       BSTR paraPluralPrefix, VARIANT_BOOL addDotToAdvancedPrefix,
                       VARIANT_BOOL useEnDashForPageRange) override {
        return call([&] {
            mPage->Reset({asBool(supportsDOI), asBool(supportsNotes), asBool(elideZero), asBool(usePagePrefix),
                          asBool(usePagePrefixInCitations), asBool(shortenedPage), Text(view(noPageStr)),
                          Text(view(chapterPrefix)), Text(view(chapterPluralPrefix)), Text(view(paraPrefix)),
                          Text(view(paraPluralPrefix)), asBool(addDotToAdvancedPrefix), asBool(useEnDashForPageRange)});
        });
    }
    STDMETHODIMP Clone(IDispatch** result) override {
        return call(result, [&] { return adapterOf<PageAdapter>(mPage->Clone()); });
    }
    STDMETHODIMP get_Page(BSTR* result) override {
        return call(result, [&] { return mPage->Page(); });
    }
    STDMETHODIMP put_Page(BSTR theVal) override {
        return call([&] { mPage->Page(view(theVal)); });
    }
    STDMETHODIMP get_supportsDOI(VARIANT_BOOL* result) override {
        return call(result, [&] { return mPage->supportsDOI(); });
    }
    STDMETHODIMP get_supportsNotes(VARIANT_BOOL* result) override {
        return call(result, [&] { return mPage->supportsNotes(); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mPage->Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mPage->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP put_inCitation(VARIANT_BOOL inCitation) override {
        return call([&] { mPage->inCitation(asBool(inCitation)); });
    }
    STDMETHODIMP get_isNumericPage(VARIANT_BOOL* result) override {
        return call(result, [&] { return mPage->isNumericPage(); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, BSTR* result) override {
        return call(result, [&] { return mPage->toString(asBool(isFootnote), asBool(shortenedVersion)); });
    }
    STDMETHODIMP isPage(BSTR text, VARIANT_BOOL* result) override {
        return call(result, [&] { return mPage->isPage(view(text)); });
    }
    STDMETHODIMP get_pageType(LONG* result) override {
        return call(result, [&] { return mPage->pageType; });
    }
    STDMETHODIMP put_pageType(LONG pageType) override {
        return call([&] { mPage->pageType = pageType; });
    }
    STDMETHODIMP get_Note(BSTR* result) override {
        return call(result, [&] { return mPage->Note; });
    }
    STDMETHODIMP put_Note(BSTR Note) override {
        return call([&] { mPage->Note = view(Note); });
    }

protected:
    ComPtr<IUnknown> elementAccess() override { return ElementAccess::to(this, mPage); }

private:
    std::shared_ptr<OutputTemplatePage> mPage;
};

}  // namespace quorvel::host

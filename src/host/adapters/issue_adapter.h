#pragma once

#include "elements/issue/issue.h"
#include "host/adapters/element_adapter.h"

namespace quorvel::host {

/// `OutputTemplateIssue` as the host sees it.
class IssueAdapter final : public AssembledElementAdapter<_OutputTemplateIssue, OutputTemplateIssue> {
public:
    STDMETHODIMP Reset(SHORT format, BSTR JournalSettings) override {
        return call([&] { mElement->Reset({format, Text(view(JournalSettings))}); });
    }
    STDMETHODIMP get_SupportsNewspaperEdition(VARIANT_BOOL* result) override {
        return call(result, [&] { return mElement->SupportsNewspaperEdition(); });
    }
    STDMETHODIMP get_SupportedIssueTypes(VARIANT* result) override {
        return call(result, [&] { return mElement->SupportedIssueTypes(); });
    }
    STDMETHODIMP get_settings(SHORT index, BSTR* result) override {
        return call(result, [&] { return mElement->settings(index); });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mElement->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mElement->Parse(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP get_IssueType(BSTR* result) override {
        return call(result, [&] { return mElement->IssueType(); });
    }
    STDMETHODIMP put_IssueType(BSTR theVal) override {
        return call([&] { mElement->IssueType(view(theVal)); });
    }
    STDMETHODIMP get_value(SHORT index, BSTR* result) override {
        return call(result, [&] { return mElement->value(index); });
    }
    STDMETHODIMP put_value(SHORT index, BSTR theVal) override {
        return call([&] { mElement->value(index, view(theVal)); });
    }
    STDMETHODIMP supplement(VARIANT_BOOL isFootnote, BSTR* result) override {
        return call(result, [&] { return mElement->supplement(asBool(isFootnote)); });
    }
};

}  // namespace quorvel::host

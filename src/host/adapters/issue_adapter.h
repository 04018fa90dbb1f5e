#pragma once

#include <memory>

#include "elements/issue/issue.h"
#include "host/com/com_object.h"
#include "host/host_sink.h"
#include "host/interfaces.h"
#include "host/slot_arrays.h"

namespace quorvel::host {

/// `OutputTemplateIssue` as the host sees it.
class IssueAdapter final : public ComObject<_OutputTemplateIssue> {
public:
    STDMETHODIMP Initialize(IDispatch* formattedString) override {
        return call([&] { mIssue->Initialize(HostSink::of(formattedString)); });
    }
    STDMETHODIMP Reset(SHORT format, BSTR JournalSettings) override {
        return call([&] { mIssue->Reset({format, Text(view(JournalSettings))}); });
    }
    STDMETHODIMP get_SupportsNewspaperEdition(VARIANT_BOOL* result) override {
        return call(result, [&] { return mIssue->SupportsNewspaperEdition(); });
    }
    STDMETHODIMP get_SupportedIssueTypes(VARIANT* result) override {
        return call(result, [&] { return mIssue->SupportedIssueTypes(); });
    }
    STDMETHODIMP get_settings(SHORT index, BSTR* result) override {
        return call(result, [&] { return mIssue->settings(index); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, VARIANT_BOOL isFootnote,
                                   VARIANT_BOOL shortenedVersion) override {
        return call([&] {
            mIssue->ToFormattedString(HostSink::of(formattedStr), asBool(isFootnote), asBool(shortenedVersion));
        });
    }
    STDMETHODIMP ToFormattedStringImpl(VARIANT_BOOL isFootnote, VARIANT* items, VARIANT* formattedItems,
                                       VARIANT_BOOL shortenedVersion, VARIANT_BOOL* result) override {
        return call(result, [&] {
            return fillSlotArrays(*mIssue, asBool(isFootnote), items, formattedItems, asBool(shortenedVersion));
        });
    }
    STDMETHODIMP toString(VARIANT_BOOL isFootnote, VARIANT_BOOL shortenedVersion, VARIANT_BOOL isRTF,
                          BSTR* result) override {
        return call(result,
                    [&] { return mIssue->toString(asBool(isFootnote), asBool(shortenedVersion), asBool(isRTF)); });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR secondaryStr) override {
        return call([&] { mIssue->Parse(InOutText(text), view(secondaryStr)); });
    }
    STDMETHODIMP get_IssueType(BSTR* result) override {
        return call(result, [&] { return mIssue->IssueType(); });
    }
    STDMETHODIMP put_IssueType(BSTR theVal) override {
        return call([&] { mIssue->IssueType(view(theVal)); });
    }
    STDMETHODIMP get_value(SHORT index, BSTR* result) override {
        return call(result, [&] { return mIssue->value(index); });
    }
    STDMETHODIMP put_value(SHORT index, BSTR theVal) override {
        return call([&] { mIssue->value(index, view(theVal)); });
    }
    STDMETHODIMP supplement(VARIANT_BOOL isFootnote, BSTR* result) override {
        return call(result, [&] { return mIssue->supplement(asBool(isFootnote)); });
    }

private:
    std::shared_ptr<OutputTemplateIssue> mIssue = std::make_shared<OutputTemplateIssue>();
};

}  // namespace quorvel::host

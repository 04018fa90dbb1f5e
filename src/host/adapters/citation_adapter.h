#pragma once

#include <memory>

#include "elements/citation/citation.h"
#include "host/com/arguments.h"
#include "host/com/com_object.h"
#include "host/com/element_access.h"
#include "host/com/host_reference.h"
#include "host/host_implementor.h"
#include "host/host_model.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplateCitation` as the host sees it. An author or title element that is none of ours counts as
/// Nothing.
class CitationAdapter final : public ComObject<_OutputTemplateCitation> {
public:
    STDMETHODIMP Initialize(IDispatch* formattedStr, VARIANT_BOOL useMultiPartWork, IDispatch* keyToInternalIndex,
                            IDispatch* authorModelOutputTemplate, IDispatch* titleModelOutputTemplate,
                            IDispatch* multiVolModelOutputTemplate) override {
        return call([&] {
            mCitation.Initialize(HostSink::of(formattedStr), asBool(useMultiPartWork),
                                 HostKeyToInternalIndex::of(keyToInternalIndex),
                                 ElementAccess::elementOf<OutputTemplateAuthor>(authorModelOutputTemplate),
                                 ElementAccess::elementOf<OutputTemplateTitle>(titleModelOutputTemplate),
                                 std::make_shared<HostReference>(multiVolModelOutputTemplate));
        });
    }
    STDMETHODIMP ResetLikeModelTemplate(short maxIndex, IDispatch* callback) override {
        return call([&] { mCitation.ResetLikeModelTemplate(maxIndex, HostImplementor::of(callback)); });
    }
    STDMETHODIMP Reset(BSTR SEPAR, VARIANT_BOOL useNoDate, BSTR volPrefix, VARIANT_BOOL useAuthorOrPeriodicalTitle,
                       VARIANT_BOOL useTitle, VARIANT_BOOL useOriginalYear, VARIANT_BOOL titleIsQuoted,
                       VARIANT_BOOL useEmailKey, VARIANT_BOOL useDegree, VARIANT_BOOL supportsSubwork,
                       VARIANT_BOOL useWebsiteWhenNoAuthorAndDate, VARIANT_BOOL journalCentric, BSTR PSEPR, BSTR YSEPR,
                       BSTR VSEPR) override {
        return call([&] {
            mCitation.Reset({Text(view(SEPAR)), asBool(useNoDate), Text(view(volPrefix)),
                             asBool(useAuthorOrPeriodicalTitle), asBool(useTitle), asBool(useOriginalYear),
                             asBool(titleIsQuoted), asBool(useEmailKey), asBool(useDegree), asBool(supportsSubwork),
                             asBool(useWebsiteWhenNoAuthorAndDate), asBool(journalCentric), Text(view(PSEPR)),
                             Text(view(YSEPR)), Text(view(VSEPR))});
        });
    }
    STDMETHODIMP Parse(BSTR* text, BSTR previousStr) override {
        return call([&] { mCitation.Parse(InOutText(text), view(previousStr)); });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, IDispatch* model, short firstNameCommand,
                                   VARIANT_BOOL hasOtherTitlesByAuthor, VARIANT_BOOL shouldReadFromModel) override {
        return call([&] {
            mCitation.ToFormattedString(HostSink::of(formattedStr), HostModel::of(model), firstNameCommand,
                                        asBool(hasOtherTitlesByAuthor), asBool(shouldReadFromModel));
        });
    }
    STDMETHODIMP toString(IDispatch* model, short firstNameCommand, VARIANT_BOOL hasOtherTitlesByAuthor,
                          BSTR* result) override {
        return call(result, [&] {
            return mCitation.toString(HostModel::of(model), firstNameCommand, asBool(hasOtherTitlesByAuthor));
        });
    }
    STDMETHODIMP ToMinimalFormattedString(IDispatch* formattedStr, IDispatch* model, short firstNameCommand,
                                          VARIANT_BOOL hasOtherTitlesByAuthor) override {
        return call([&] {
            mCitation.ToMinimalFormattedString(HostSink::of(formattedStr), HostModel::of(model), firstNameCommand,
                                               asBool(hasOtherTitlesByAuthor));
        });
    }
    STDMETHODIMP MergeFieldsWithModel(IDispatch* model, short modelType, IDispatch* authorTemplate,
                                      IDispatch* multiVolTemplate) override {
        return call([&] {
            mCitation.MergeFieldsWithModel(HostModel::of(model), modelType,
                                           ElementAccess::elementOf<OutputTemplateAuthor>(authorTemplate),
                                           std::make_shared<HostReference>(multiVolTemplate));
        });
    }
    STDMETHODIMP get_Year(BSTR* result) override {
        return call(result, [&] { return mCitation.Year(); });
    }
    STDMETHODIMP put_Year(BSTR Year) override {
        return call([&] { mCitation.Year(view(Year)); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, BSTR checkingKey, VARIANT separators) override {
        return call([&] {
            trapped(mCitation, u"Add",
                    [&] { mCitation.Add(Index, asBool(isFormatted), view(checkingKey), textsOf(separators)); });
        });
    }
    STDMETHODIMP get_noDateString(BSTR* result) override {
        return call(result, [&] { return mCitation.noDateString(); });
    }
    STDMETHODIMP put_noDateString(BSTR noDateString) override {
        return call([&] { mCitation.noDateString(view(noDateString)); });
    }

private:
    OutputTemplateCitation mCitation;
};

}  // namespace quorvel::host

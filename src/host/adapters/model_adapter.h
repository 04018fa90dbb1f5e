#pragma once

#include "core/output_template_model.h"
#include "host/com/arguments.h"
#include "host/com/com_object.h"
#include "host/host_implementor.h"
#include "host/host_model.h"
#include "host/host_sink.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// `OutputTemplateModel` as the host sees it.
class ModelAdapter final : public ComObject<_OutputTemplateModel> {
public:
    STDMETHODIMP Initialize(IDispatch* formattedStr, IDispatch* keyToInternalIndex) override {
        return call(
            [&] { mModel.Initialize(HostSink::of(formattedStr), HostKeyToInternalIndex::of(keyToInternalIndex)); });
    }
    STDMETHODIMP Reset(short maxElementIndex, BSTR blankStrings, short pageKey) override {
        return call([&] { mModel.Reset(maxElementIndex, view(blankStrings), pageKey); });
    }
    STDMETHODIMP Add(short Index, VARIANT_BOOL isFormatted, BSTR checkingKey, VARIANT separators) override {
        return call([&] {
            trapped(mModel, u"Add",
                    [&] { mModel.Add(Index, asBool(isFormatted), view(checkingKey), textsOf(separators)); });
        });
    }
    STDMETHODIMP ToFormattedString(IDispatch* formattedStr, IDispatch* implementor, IDispatch* model,
                                   VARIANT_BOOL shortenedVersion, VARIANT_BOOL isFootnote) override {
        return call([&] {
            mModel.ToFormattedString(HostSink::of(formattedStr), HostImplementor::of(implementor), HostModel::of(model),
                                     asBool(shortenedVersion), asBool(isFootnote));
        });
    }

private:
    OutputTemplateModel mModel;
};

}  // namespace quorvel::host

#pragma once

#include "core/output_sink.h"
#include "host/com/host_reference.h"
#include "host/com/late_bound_object.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The host's formatted-text object behind the port.
class HostSink final : public OutputSink, public HasDispatch {
public:
    /// An empty reference for a host that passed none.
    static OutputSinkRef of(IDispatch* formattedStr);

    explicit HostSink(IDispatch* formattedStr) : mObject(formattedStr, u"the formatted text", IID_IFormattedText) {}

    void Add(TextView text) override;
    void Add(TextView text, std::int32_t font) override;
    void addFormattedString(const OutputSink& fragment) override;
    OutputSinkRef Clone() const override;
    void Reset() override;
    OutputSinkRef BuildNewFormattedString() const override;
    Text toString() const override;
    Text toRTFString() const override;
    bool IsEmpty() const override;
    std::int16_t removeQuoteFromLastPhrase() override;
    void PageIndex(std::int32_t value) override;

    IDispatch* dispatch() const override { return mObject.dispatch(); }

private:
    LateBoundObject mObject;
};

}  // namespace quorvel::host

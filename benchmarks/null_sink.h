#pragma once

#include "core/output_sink.h"

namespace quorvel::bench {

/// A sink that takes everything and keeps only its length: what is measured is the library.
class NullSink final : public OutputSink {
public:
    void Add(TextView text) override { mLength += text.size(); }
    void Add(TextView text, std::int32_t /*font*/) override { mLength += text.size(); }
    void addFormattedString(const OutputSink& /*fragment*/) override {}
    OutputSinkRef Clone() const override { return std::make_shared<NullSink>(); }
    void Reset() override { mLength = 0; }
    OutputSinkRef BuildNewFormattedString() const override { return std::make_shared<NullSink>(); }
    Text toString() const override { return {}; }
    Text toRTFString() const override { return {}; }
    bool IsEmpty() const override { return mLength == 0; }
    std::int16_t removeQuoteFromLastPhrase() override { return 0; }
    void PageIndex(std::int32_t /*value*/) override {}

    std::size_t length() const { return mLength; }

private:
    std::size_t mLength = 0;
};

}  // namespace quorvel::bench

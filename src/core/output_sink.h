#pragma once

#include <cstdint>
#include <memory>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel {

class OutputSink;
using OutputSinkRef = std::shared_ptr<OutputSink>;

/// Port: the host's formatted-text object, to which all output is written. Any member may fail with
/// a RuntimeError; what was written before stays in the sink.
class OutputSink : public HostObject {
public:
    /// The font code of plain text. The other codes are bit flags: 1 italic, 2 bold, 4 underline,
    /// 8 small capitals; the library writes no other than these two.
    static constexpr std::int32_t kPlain = 0;
    static constexpr std::int32_t kItalic = 1;

    virtual void Add(TextView text) = 0;
    virtual void Add(TextView text, std::int32_t font) = 0;
    virtual void addFormattedString(const OutputSink& fragment) = 0;
    virtual OutputSinkRef Clone() const = 0;
    virtual void Reset() = 0;
    /// A new empty sink of the same kind.
    virtual OutputSinkRef BuildNewFormattedString() const = 0;
    virtual Text toString() const = 0;
    virtual Text toRTFString() const = 0;
    virtual bool IsEmpty() const = 0;
    /// Takes the closing quotation mark off the last phrase and returns that phrase's font.
    virtual std::int16_t removeQuoteFromLastPhrase() = 0;
    /// Leaves a number for the host, which knows what it means.
    virtual void PageIndex(std::int32_t value) = 0;
};

}  // namespace quorvel

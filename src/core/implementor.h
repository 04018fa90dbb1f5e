#pragma once

#include <memory>
#include <vector>

#include "core/host_object.h"
#include "core/output_sink.h"
#include "core/text.h"

namespace quorvel {

/// Port: whoever fills the slots of a reference assembly, an element of the library or an object of
/// the host.
class Implementor {
public:
    virtual ~Implementor() = default;

    /// Writes the element to the sink; `toString` of the assembly calls it with a sink of its own.
    virtual void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) = 0;

    /// Fills the slots for the current output: texts into `items`, and what carries its own fonts
    /// into the fragments of `formattedItems` (empty references at the plain slots). Both are the
    /// assembly's own, which the host may call for another output at any call that it gets: whoever has
    /// other fragments for it fills a vector of its own and swaps it in.
    /// @return True when there is nothing to assemble.
    virtual bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                       std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) = 0;

    /// Asked by a model template that has callback conditions: sets the entry of each slot whose checking
    /// separators hold. The entries come with what the other conditions gave; elements have none to add.
    virtual void initChecking(std::vector<bool>& /*checkingArray*/, bool /*isFootnote*/) {}

    /// The host's object behind this one, for a report; null for an element of the library.
    virtual const HostObject* hostObject() const { return nullptr; }
};

using ImplementorRef = std::shared_ptr<Implementor>;

}  // namespace quorvel

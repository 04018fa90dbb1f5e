#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "core/implementor.h"
#include "core/instrumented.h"
#include "core/output_sink.h"
#include "core/output_template.h"
#include "core/slot_layout.h"
#include "core/text.h"

namespace quorvel {

/// An element whose output is assembled from slots: it owns an assembly, lays it out when the style is
/// known, and fills the slots for each output.
class AssembledElement : public Instrumented, public Implementor {
public:
    /// Writes the element to the sink, in the form of a note or of the reference list, in full or shortened.
    void ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) override;

    /// Fills the slots; see the element's own list of them.
    bool ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                               bool shortenedVersion) override;

protected:
    AssembledElement() = default;
    // A copy would share the assembly.
    AssembledElement(AssembledElement&&) = default;
    AssembledElement& operator=(AssembledElement&&) = default;
    ~AssembledElement() override = default;

    /// A new assembly, which makes its fragments from a clone of the sink.
    void makeAssembly(const OutputSinkRef& formattedStr);
    /// Registers a layout, slot by slot through `Add`.
    void layOut(std::span<const SlotRow> rows, std::span<const TextView> styleTexts = {});
    void Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);

    /// The slots that are checked in the output that is being made; empty: none.
    virtual std::vector<bool> checkedSlots(bool /*isFootnote*/) const { return {}; }
    /// What `ToFormattedString` does.
    virtual void write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion);
    /// What `ToFormattedStringImpl` does.
    virtual bool fillSlots(bool isFootnote, std::vector<Text>& items, std::vector<OutputSinkRef>& formattedItems,
                           bool shortenedVersion) = 0;

    /// The whole output as plain text or as RTF, for `toString`.
    Text assembledText(bool isFootnote, bool shortenedVersion, bool isRTF = false);

    /// The assembly that the output goes through; an element with several chooses. Whoever calls it holds it: the host
    /// may have another one made meanwhile.
    virtual std::shared_ptr<outputTemplate> assembly() const { return mOutputTemplate; }

private:
    std::shared_ptr<outputTemplate> mOutputTemplate;
};

/// An element with two assemblies, of which its values choose one for each output.
class TwoAssembliesElement : public AssembledElement {
public:
    /// Register a slot of the first and of the second assembly; see `outputTemplate::Add`.
    using AssembledElement::Add;
    void Add2(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators);

protected:
    void makeAssemblies(const OutputSinkRef& formattedStr);
    /// Registers the layout of the second assembly, slot by slot through `Add2`.
    void layOutSecond(std::span<const SlotRow> rows, std::span<const TextView> styleTexts = {});

    virtual bool usesSecond() const = 0;
    std::shared_ptr<outputTemplate> assembly() const override;

private:
    std::shared_ptr<outputTemplate> mSecond;
};

}  // namespace quorvel

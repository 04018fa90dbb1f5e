#include "core/assembled_element.h"

#include "core/procedure.h"
#include "core/run_time_error.h"

namespace quorvel {

void AssembledElement::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    procedure(*this, u"ToFormattedString",
              {{u"formattedStr", formattedStr}, {u"isFootnote", isFootnote}, {u"shortenedVersion", shortenedVersion}},
              [&] { write(formattedStr, isFootnote, shortenedVersion); });
}

bool AssembledElement::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                             std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    return procedure(*this, u"ToFormattedStringImpl",
                     {{u"isFootnote", isFootnote},
                      {u"items", items},
                      {u"formattedItems", formattedItems},
                      {u"shortenedVersion", shortenedVersion}},
                     [&] { return fillSlots(isFootnote, items, formattedItems, shortenedVersion); });
}

void AssembledElement::makeAssembly(const OutputSinkRef& formattedStr) {
    const auto made = std::make_shared<outputTemplate>();
    replace(mOutputTemplate, made);
    made->Initialize(formattedStr);
}

void AssembledElement::layOut(std::span<const SlotRow> rows, std::span<const TextView> styleTexts) {
    held(assembly())->Reset(static_cast<std::int16_t>(rows.size() - 1));
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        Add(static_cast<std::int16_t>(slot), rows[slot].isFormatted(), false, rows[slot].separators(styleTexts));
    }
}

void AssembledElement::Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators) {
    procedure(
        *this, u"Add",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}, {u"separators", separators}},
        [&] { held(assembly())->Add(Index, isFormatted, isChecking, separators); });
}

void AssembledElement::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    const std::shared_ptr<outputTemplate> inForce = held(assembly());
    inForce->ResetReferenceItems();
    inForce->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote);
}

Text AssembledElement::assembledText(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return held(assembly())->toString(*this, shortenedVersion, isFootnote, isRTF);
}

}  // namespace quorvel

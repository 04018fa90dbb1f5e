#include "core/assembled_element.h"

#include <array>

#include "core/procedure.h"
#include "core/run_time_error.h"

namespace quorvel {

namespace {

std::shared_ptr<outputTemplate> newAssembly(const OutputSinkRef& formattedStr) {
    auto assembly = std::make_shared<outputTemplate>();
    assembly->Initialize(formattedStr);
    return assembly;
}

template <class Add>
void registerRows(std::span<const SlotRow> rows, std::span<const TextView> styleTexts, const Add& add) {
    for (std::size_t slot = 0; slot < rows.size(); ++slot) {
        const SlotRow& row = rows[slot];
        add(static_cast<std::int16_t>(slot), row.isFormatted(), row.isChecking(), row.separators(styleTexts));
    }
}

std::int16_t lastSlot(std::span<const SlotRow> rows) {
    return static_cast<std::int16_t>(rows.size() - 1);
}

}  // namespace

void AssembledElement::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    const auto parameters = [&] {
        return std::array{Parameter{u"formattedStr", formattedStr}, Parameter{u"isFootnote", isFootnote},
                          Parameter{u"shortenedVersion", shortenedVersion}};
    };
    procedure(*this, u"ToFormattedString", parameters, [&] { write(formattedStr, isFootnote, shortenedVersion); });
}

bool AssembledElement::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                             std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    const auto parameters = [&] {
        return std::array{Parameter{u"isFootnote", isFootnote}, Parameter{u"items", items},
                          Parameter{u"formattedItems", formattedItems},
                          Parameter{u"shortenedVersion", shortenedVersion}};
    };
    return procedure(*this, u"ToFormattedStringImpl", parameters,
                     [&] { return fillSlots(isFootnote, items, formattedItems, shortenedVersion); });
}

void AssembledElement::makeAssembly(const OutputSinkRef& formattedStr) {
    replace(mOutputTemplate, newAssembly(formattedStr));
}

void AssembledElement::layOut(std::span<const SlotRow> rows, std::span<const TextView> styleTexts) {
    held(mOutputTemplate)->Reset(lastSlot(rows));
    registerRows(rows, styleTexts, [&](auto... slot) { Add(slot...); });
}

void AssembledElement::Add(std::int16_t Index, bool isFormatted, bool isChecking, const std::vector<Text>& separators) {
    procedure(
        *this, u"Add",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}, {u"separators", separators}},
        [&] { held(mOutputTemplate)->Add(Index, isFormatted, isChecking, separators); });
}

void AssembledElement::write(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    const std::shared_ptr<outputTemplate> inForce = held(assembly());
    inForce->ResetReferenceItems();
    inForce->ToFormattedString(formattedStr, *this, shortenedVersion, isFootnote, checkedSlots(isFootnote));
}

Text AssembledElement::assembledText(bool isFootnote, bool shortenedVersion, bool isRTF) {
    return held(assembly())->toString(*this, shortenedVersion, isFootnote, isRTF);
}

void TwoAssembliesElement::makeAssemblies(const OutputSinkRef& formattedStr) {
    makeAssembly(formattedStr);
    replace(mSecond, newAssembly(formattedStr));
}

void TwoAssembliesElement::layOutSecond(std::span<const SlotRow> rows, std::span<const TextView> styleTexts) {
    held(mSecond)->Reset(lastSlot(rows));
    registerRows(rows, styleTexts, [&](auto... slot) { Add2(slot...); });
}

void TwoAssembliesElement::Add2(std::int16_t Index, bool isFormatted, bool isChecking,
                                const std::vector<Text>& separators) {
    procedure(
        *this, u"Add2",
        {{u"Index", Index}, {u"isFormatted", isFormatted}, {u"isChecking", isChecking}, {u"separators", separators}},
        [&] { held(mSecond)->Add(Index, isFormatted, isChecking, separators); });
}

std::shared_ptr<outputTemplate> TwoAssembliesElement::assembly() const {
    return usesSecond() ? mSecond : AssembledElement::assembly();
}

}  // namespace quorvel

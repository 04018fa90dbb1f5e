#include "writing/reference_writer.h"

namespace sample {

namespace {

LateBoundObject keyToInternalIndex() {
    LateBoundObject dictionary = LateBoundObject::create(L"Scripting.Dictionary");
    for (const Field& field : fields()) dictionary.call(L"Add", {field.name, field.index});
    return dictionary;
}

}  // namespace

ReferenceWriter::ReferenceWriter(LateBoundObject main, Style style)
    : mMain(std::move(main)),
      mStyle(std::move(style)),
      mElements(mMain, mStyle),
      mKeyToInternalIndex(keyToInternalIndex()) {}

void ReferenceWriter::write(const Reference& reference, Form form, FormattedText& sink, const Reference* before) {
    const bool isSame = before != nullptr && isSameAuthor(reference, *before);
    Template& assembly = templateFor(reference);
    mFiller->begin(reference, assembly.slots, mStyle, form, isSame ? mStyle.sameAuthor : std::wstring());
    setModel(reference);
    const bool shortenedVersion = false;
    assembly.toFormattedString({&sink, mFiller.get(), mModel.get(), shortenedVersion, form == Form::kNote});
    mFiller->end();
}

Reference ReferenceWriter::elementTexts(const Reference& reference) {
    Template& assembly = templateFor(reference);
    mFiller->begin(reference, assembly.slots, mStyle, Form::kList, {});
    Reference texts = reference;
    for (std::size_t i = 0; i < assembly.slots.size(); ++i) {
        const PreparedSource* filling = mFiller->filling(i);
        if (filling == nullptr || filling->element == nullptr) continue;
        const Field& field = *filling->source->field;
        texts.set(field, mStyle.textBehind(field, mFiller->elementText(i)));
    }
    mFiller->end();
    return texts;
}

const PreparedSource* ReferenceWriter::sourceOf(const Reference& reference, const Field& field) {
    const Template& assembly = templateFor(reference);
    mFiller->begin(reference, assembly.slots, mStyle, Form::kList, {});
    const PreparedSource* found = nullptr;
    for (std::size_t i = 0; i < assembly.slots.size() && found == nullptr; ++i) {
        const PreparedSource* filling = mFiller->filling(i);
        const bool isIt = filling != nullptr && filling->element != nullptr && filling->source->field == &field;
        if (isIt) found = filling;
    }
    mFiller->end();
    return found;
}

const Field* ReferenceWriter::heading(const Reference& reference) {
    const Template& assembly = templateFor(reference);
    mFiller->begin(reference, assembly.slots, mStyle, Form::kList, {});
    const Field* field = nullptr;
    for (std::size_t i = 0; i < assembly.slots.size() && field == nullptr; ++i) {
        const PreparedSource* filling = mFiller->filling(i);
        if (filling != nullptr) field = filling->source->field;
    }
    mFiller->end();
    return field;
}

bool ReferenceWriter::isSameAuthor(const Reference& reference, const Reference& before) {
    const Field* field = heading(reference);
    return field != nullptr && field == heading(before) && std::wstring_view(field->element) == L"author" &&
           reference.text(*field) == before.text(*field);
}

ReferenceWriter::Template& ReferenceWriter::templateFor(const Reference& reference) {
    const std::wstring& kind = reference.text(L"kind");
    const auto layout = mStyle.layouts.find(kind);
    if (layout == mStyle.layouts.end()) {
        throw ComError{E_INVALIDARG, mStyle.name + L" has no layout for references of the kind " + kind + L"."};
    }
    const auto [found, isNew] = mTemplates.try_emplace(&layout->second);
    if (isNew) found->second = build(layout->second);
    return found->second;
}

ReferenceWriter::Template ReferenceWriter::build(const Layout& layout) {
    const LateBoundObject model(objectOf(mMain.call(L"buildModelTemplate")));
    if (!model) throw ComError{E_NOTIMPL, L"The library is too old: it has no model template."};
    model.call(L"Initialize", {mSink.get(), mKeyToInternalIndex.dispatch()});
    model.call(L"Reset", {static_cast<std::int16_t>(layout.slots.size() - 1), mStyle.blankStrings, kPageIndex});
    Template result{model.member(L"ToFormattedString"), {}};
    std::int16_t index = 0;
    for (const Slot& slot : layout.slots) {
        std::vector<Variant> separators(slot.separators.begin(), slot.separators.end());
        model.call(L"Add", {index++, slot.isFormatted, slot.checkingKey, Variant::array(separators)});
        PreparedSlot prepared{&slot, {}};
        for (const SlotSource& source : slot.sources) {
            prepared.sources.push_back({&source, mElements.element(source.element, source.elementCode)});
        }
        result.slots.push_back(std::move(prepared));
    }
    return result;
}

void ReferenceWriter::setModel(const Reference& reference) {
    mModel->clear();
    for (const Field& field : fields()) {
        if (reference.has(field)) mModel->set(field.index, reference.text(field));
    }
    if (!mModel->value(kNoteIndex).empty()) mModel->set(kHasNoteIndex, L"True");
}

}  // namespace sample

#include "writing/slot_filler.h"

#include <algorithm>
#include <bitset>

namespace sample {

namespace {

constexpr std::int16_t kPublisherElement = 5;
constexpr std::int16_t kPlaceElement = 15;
constexpr std::wstring_view kQuotationMarks = L"\u201D\u2019\"'";

// In the order of ToFormattedStringImpl's arguments.
enum : std::size_t { kIsFootnote, kItems, kFormattedItems, kShortenedVersion };

}  // namespace

SlotFiller::SlotFiller() {
    addMethod(L"ToFormattedStringImpl", [this](const Arguments& arguments, VARIANT& result) {
        fill(arguments);
        const bool isNothingToAssemble = false;
        result = Variant(isNothingToAssemble).release();
        return S_OK;
    });
    addMethod(L"initChecking", [this](const Arguments& arguments, VARIANT&) {
        check(arguments);
        return S_OK;
    });
}

void SlotFiller::begin(const Reference& reference, const std::vector<PreparedSlot>& slots, const Style& style,
                       Form form, std::wstring sameAuthor) {
    mReference = &reference;
    mSlots = &slots;
    mStyle = &style;
    mSameAuthor = std::move(sameAuthor);
    std::bitset<kLastIndex + 1> taken;
    mFilling.assign(slots.size(), nullptr);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        for (const PreparedSource& prepared : slots[i].sources) {
            if (!counts(*prepared.source, form)) continue;
            if (const Field* field = prepared.source->field) {
                const auto index = static_cast<std::size_t>(field->index);
                if (taken[index] || !reference.has(*field)) continue;
                taken[index] = true;
            }
            mFilling[i] = &prepared;
            break;
        }
    }
}

bool SlotFiller::counts(const SlotSource& source, Form form) const {
    const bool isInForm = form == Form::kList ? source.inLists : source.inNotes;
    return isInForm && std::all_of(source.conditions.begin(), source.conditions.end(),
                                   [this](const SourceCondition& condition) { return isMet(condition); });
}

bool SlotFiller::isMet(const SourceCondition& condition) const {
    const std::wstring& text = mReference->text(*condition.field);
    bool isSo = !text.empty();
    if (condition.sameAs != nullptr) {
        isSo = isSo && text == mReference->text(*condition.sameAs);
    } else if (!condition.text.empty()) {
        isSo = condition.isWhole ? text == condition.text : text.find(condition.text) != std::wstring::npos;
    }
    return isSo == condition.holds;
}

void SlotFiller::end() {
    mReference = nullptr;
    mFilling.clear();
}

void SlotFiller::fill(const Arguments& arguments) const {
    const bool isFootnote = arguments.boolean(kIsFootnote);
    const bool shortenedVersion = arguments.boolean(kShortenedVersion);
    const std::vector<Variant> fragments = elementsOf(arguments[kFormattedItems]);
    for (std::size_t i = 0; i < mFilling.size(); ++i) {
        if (mFilling[i] == nullptr) continue;
        if ((*mSlots)[i].slot->isFormatted) {
            auto* fragment = dynamic_cast<FormattedText*>(DispatchObject::behind(fragments.at(i).get().pdispVal));
            if (fragment != nullptr) write(i, isFootnote, shortenedVersion, *fragment);
        } else {
            const std::wstring text = i == 0 && !mSameAuthor.empty()
                                          ? authorMark(*mFilling[i])
                                          : plainText(*mFilling[i], isFootnote, shortenedVersion);
            assignElement(arguments[kItems], static_cast<LONG>(i), Variant(text));
        }
    }
}

void SlotFiller::write(std::size_t slot, bool isFootnote, bool shortenedVersion, FormattedText& fragment) const {
    const PreparedSource& filling = *mFilling[slot];
    if (slot == 0 && !mSameAuthor.empty()) {
        fragment.add(authorMark(filling));
    } else if (filling.element != nullptr && (*mSlots)[slot].slot->isFormatted) {
        const Frame frame = frameOf(*filling.source, isFootnote);
        const std::int32_t font = filling.source->font;
        fragment.add(frame.before, font);
        const ComPointer<FormattedText> text = makeObject<FormattedText>();
        parse(filling, isFootnote);
        filling.element->toFormattedString({text.get(), isFootnote || filling.source->inNoteForm, shortenedVersion});
        text->trim();
        if (font == kPlain) {
            fragment.add(*text);
        } else {
            fragment.add(text->toString(), font);
        }
        fragment.add(frame.behind, font);
    } else {
        fragment.add(plainText(filling, isFootnote, shortenedVersion),
                     filling.element == nullptr ? filling.source->font : kPlain);
    }
}

std::wstring SlotFiller::elementText(std::size_t slot) const {
    return elementText(*mFilling[slot], false, false);
}

void SlotFiller::check(const Arguments& arguments) const {
    for (std::size_t i = 0; i < mFilling.size(); ++i) {
        if (endsSentence(i)) assignElement(arguments[0], static_cast<LONG>(i), true);
    }
}

bool SlotFiller::endsSentence(std::size_t slot) const {
    const bool isAsked = (*mSlots)[slot].slot->checkingKey == kCallbackKey;
    if (!isAsked || mFilling[slot] == nullptr || mFilling[slot]->source->field == nullptr) return false;
    const std::wstring& text = mReference->text(*mFilling[slot]->source->field);
    const std::size_t last = text.find_last_not_of(kQuotationMarks);
    return last != std::wstring::npos && (text[last] == L'?' || text[last] == L'!');
}

void SlotFiller::parse(const PreparedSource& filling, bool isFootnote) const {
    const SlotSource& source = *filling.source;
    // The text goes by reference: the element takes out of it what it has understood.
    Variant remaining(fieldText(*source.field, isFootnote));
    // The publisher is told the year, beside which "forthcoming" is none.
    const bool isPublisher = source.field->elementCode == kPublisherElement;
    const std::wstring& secondaryText = isPublisher ? mReference->text(L"year") : source.secondaryText;
    filling.element->parse({Variant::byReference(remaining.get().bstrVal), secondaryText});
    if (!source.field->role) return;
    if (source.withRole) {
        filling.element->object.put(L"Anthologies", true, {*source.field->role});
    } else {
        // The layout tells it: "Ed. Phillip Lopate".
        filling.element->object.put(L"Anthologies", Variant::array({false, false, false}));
    }
}

std::wstring SlotFiller::plainText(const PreparedSource& filling, bool isFootnote, bool shortenedVersion) const {
    const SlotSource& source = *filling.source;
    const Frame frame = frameOf(source, isFootnote);
    if (source.field == nullptr) return frame.before;
    const std::wstring text = filling.element == nullptr ? fieldText(*source.field, isFootnote)
                                                         : elementText(filling, isFootnote, shortenedVersion);
    return frame.before + text + frame.behind;
}

std::wstring SlotFiller::elementText(const PreparedSource& filling, bool isFootnote, bool shortenedVersion) const {
    const SlotSource& source = *filling.source;
    parse(filling, isFootnote);
    const bool inNoteForm = isFootnote || source.inNoteForm;
    if (source.field->elementCode == kPlaceElement) {
        // It leaves out a state that the publisher's name tells already.
        const Variant text = filling.element->toString({inNoteForm, shortenedVersion, mReference->text(L"publisher")});
        return withoutLooseEnds(textOf(text));
    }
    return withoutLooseEnds(textOf(filling.element->toString({inNoteForm, shortenedVersion})));
}

SlotFiller::Frame SlotFiller::frameOf(const SlotSource& source, bool isFootnote) {
    const std::wstring& pattern = isFootnote && !source.notePattern.empty() ? source.notePattern : source.pattern;
    const std::size_t place = pattern.find(kPatternText);
    if (place == std::wstring::npos) return {pattern, {}};
    return {pattern.substr(0, place), pattern.substr(place + kPatternText.size())};
}

const std::wstring& SlotFiller::fieldText(const Field& field, bool isFootnote) const {
    return mStyle->wordsFor(field, mReference->text(field), isFootnote);
}

/// "---", or "---, ed."
std::wstring SlotFiller::authorMark(const PreparedSource& filling) const {
    if (!filling.source->withRole || filling.element == nullptr) return mSameAuthor;
    parse(filling, false);
    return mSameAuthor + L", " + textOf(filling.element->object.get(L"editor"));
}

}  // namespace sample

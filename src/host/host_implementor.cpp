#include "host/host_implementor.h"

#include "host/com/answers.h"
#include "host/com/arrays.h"
#include "host/host_sink.h"

namespace quorvel::host {

namespace {

// What the host made of an array: it may have put one of another type in its place.

std::vector<Text> textAnswers(const VARIANT& array) {
    std::vector<Text> texts;
    for (const Variant& element : elementsOf(array)) {
        texts.push_back(textAnswer(element));
    }
    return texts;
}

/// @param known most often the fragments were filled where they are
std::vector<OutputSinkRef> sinkAnswers(const VARIANT& array, const std::vector<OutputSinkRef>& known) {
    std::vector<OutputSinkRef> sinks;
    for (const Variant& element : elementsOf(array)) {
        const ComPtr<IDispatch> object = objectAnswer(element);
        const std::size_t slot = sinks.size();
        const bool isKnown = slot < known.size() && object.get() == dispatchOf(known[slot].get());
        sinks.push_back(isKnown ? known[slot] : HostSink::of(object.get()));
    }
    return sinks;
}

}  // namespace

ImplementorRef HostImplementor::of(IDispatch* implementor) {
    return implementor != nullptr ? std::make_shared<HostImplementor>(implementor) : nullptr;
}

void HostImplementor::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    mObject.callWithOptional(L"ToFormattedString", 1, 3, dispatchOf(formattedStr.get()), isFootnote, shortenedVersion);
}

bool HostImplementor::ToFormattedStringImpl(bool isFootnote, std::vector<Text>& items,
                                            std::vector<OutputSinkRef>& formattedItems, bool shortenedVersion) {
    std::vector<Variant> values;
    values.reserve(items.size());
    for (const Text& item : items) {
        values.emplace_back(TextView(item));
    }
    Variant texts = typedArrayOf(VT_BSTR, std::move(values));

    std::vector<Variant> objects;
    objects.reserve(formattedItems.size());
    for (const OutputSinkRef& fragment : formattedItems) {
        objects.emplace_back(dispatchOf(fragment.get()));
    }
    Variant fragments = typedArrayOf(VT_DISPATCH, std::move(objects));

    const bool nothingToAssemble = mObject.ask(flagAnswer, L"ToFormattedStringImpl", isFootnote,
                                               referenceToArray(texts), referenceToArray(fragments), shortenedVersion);
    std::vector<Text> newItems = textAnswers(texts);
    std::vector<OutputSinkRef> newFragments = sinkAnswers(fragments, formattedItems);
    // The old fragments go last, when all is in place: their end may call the library back.
    items.swap(newItems);
    formattedItems.swap(newFragments);
    return nothingToAssemble;
}

void HostImplementor::initChecking(std::vector<bool>& checkingArray, bool isFootnote) {
    std::vector<Variant> values;
    for (const bool value : checkingArray) {
        values.emplace_back(value);
    }
    Variant flags = typedArrayOf(VT_BOOL, std::move(values));
    mObject.call(L"initChecking", referenceToArray(flags), isFootnote);
    std::vector<bool> answers;
    for (const Variant& flag : elementsOf(flags)) {
        answers.push_back(flagAnswer(flag));
    }
    checkingArray = std::move(answers);
}

}  // namespace quorvel::host

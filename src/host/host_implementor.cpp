#include "host/host_implementor.h"

#include "host/com/answers.h"
#include "host/com/arguments.h"
#include "host/com/arrays.h"
#include "host/host_sink.h"

namespace quorvel::host {

ImplementorRef HostImplementor::of(IDispatch* implementor) {
    return implementor != nullptr ? std::make_shared<HostImplementor>(implementor) : nullptr;
}

void HostImplementor::ToFormattedString(const OutputSinkRef& formattedStr, bool isFootnote, bool shortenedVersion) {
    mObject.call(L"ToFormattedString", dispatchOf(formattedStr.get()), isFootnote, shortenedVersion);
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

    const Variant outcome = mObject.call(L"ToFormattedStringImpl", isFootnote, referenceToArray(texts),
                                         referenceToArray(fragments), shortenedVersion);
    items = textsOf(texts);
    // Most often the fragments were filled where they are.
    const std::vector<Variant> filled = elementsOf(fragments);
    formattedItems.resize(filled.size());
    for (std::size_t i = 0; i < filled.size(); ++i) {
        if (filled[i].pdispVal != dispatchOf(formattedItems[i].get())) {
            formattedItems[i] = HostSink::of(filled[i].pdispVal);
        }
    }
    return flagAnswer(outcome);
}

void HostImplementor::initChecking(std::vector<bool>& checkingArray, bool isFootnote) {
    std::vector<Variant> values;
    for (const bool value : checkingArray) {
        values.emplace_back(value);
    }
    Variant flags = typedArrayOf(VT_BOOL, std::move(values));
    mObject.call(L"initChecking", referenceToArray(flags), isFootnote);
    checkingArray.clear();
    for (const Variant& flag : elementsOf(flags)) {
        checkingArray.push_back(flagAnswer(flag));
    }
}

}  // namespace quorvel::host

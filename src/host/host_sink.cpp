#include "host/host_sink.h"

#include "host/com/answers.h"

namespace quorvel::host {

OutputSinkRef HostSink::of(IDispatch* formattedStr) {
    return formattedStr != nullptr ? std::make_shared<HostSink>(formattedStr) : nullptr;
}

void HostSink::Add(TextView text) {
    mObject.callWithOptional(L"Add", 1, 1, text, std::int32_t{kPlain});
}

void HostSink::Add(TextView text, std::int32_t font) {
    mObject.callWithOptional(L"Add", 1, 2, text, font);
}

void HostSink::addFormattedString(const OutputSink& fragment) {
    mObject.call(L"addFormattedString", dispatchOf(&fragment));
}

OutputSinkRef HostSink::Clone() const {
    return of(objectAnswer(mObject.call(L"Clone")).get());
}

void HostSink::Reset() {
    mObject.call(L"Reset");
}

OutputSinkRef HostSink::BuildNewFormattedString() const {
    return of(objectAnswer(mObject.call(L"BuildNewFormattedString")).get());
}

Text HostSink::toString() const {
    return textAnswer(mObject.call(L"toString"));
}

Text HostSink::toRTFString() const {
    return textAnswer(mObject.call(L"toRTFString"));
}

bool HostSink::IsEmpty() const {
    return flagAnswer(mObject.call(L"IsEmpty"));
}

std::int16_t HostSink::removeQuoteFromLastPhrase() {
    return numberAnswer(mObject.call(L"removeQuoteFromLastPhrase"));
}

void HostSink::PageIndex(std::int32_t value) {
    mObject.put(L"PageIndex", value);
}

}  // namespace quorvel::host

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
    return of(mObject.ask(objectAnswer, L"Clone").get());
}

void HostSink::Reset() {
    mObject.call(L"Reset");
}

OutputSinkRef HostSink::BuildNewFormattedString() const {
    return of(mObject.ask(objectAnswer, L"BuildNewFormattedString").get());
}

Text HostSink::toString() const {
    return mObject.ask(textAnswer, L"toString");
}

Text HostSink::toRTFString() const {
    return mObject.ask(textAnswer, L"toRTFString");
}

bool HostSink::IsEmpty() const {
    return mObject.ask(flagAnswer, L"IsEmpty");
}

std::int16_t HostSink::removeQuoteFromLastPhrase() {
    return mObject.ask(numberAnswer, L"removeQuoteFromLastPhrase");
}

void HostSink::PageIndex(std::int32_t value) {
    mObject.put(L"PageIndex", value);
}

}  // namespace quorvel::host

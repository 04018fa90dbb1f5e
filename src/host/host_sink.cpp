#include "host/host_sink.h"

#include "core/run_time_error.h"
#include "host/com/automation_error.h"

namespace quorvel::host {

namespace {

Variant converted(const Variant& value, VARTYPE type) {
    Variant result;
    // A member without an answer answers with the empty value.
    if (value.vt != VT_EMPTY && value.vt != VT_NULL) {
        const HRESULT outcome = convert(value, type, result);
        if (FAILED(outcome)) {
            throw RuntimeError(errorNumberOf(outcome));
        }
    }
    return result;
}

Text textOf(const Variant& value) {
    const Variant text = converted(value, VT_BSTR);
    return Text(text.vt == VT_BSTR ? view(text.bstrVal) : TextView());
}

OutputSinkRef sinkOf(const Variant& value) {
    const Variant object = converted(value, VT_DISPATCH);
    return object.vt == VT_DISPATCH ? HostSink::of(object.pdispVal) : nullptr;
}

}  // namespace

OutputSinkRef HostSink::of(IDispatch* formattedStr) {
    return formattedStr != nullptr ? std::make_shared<HostSink>(formattedStr) : nullptr;
}

void HostSink::Add(TextView text) {
    mObject.call(L"Add", text);
}

void HostSink::Add(TextView text, std::int32_t font) {
    mObject.call(L"Add", text, font);
}

void HostSink::addFormattedString(const OutputSink& fragment) {
    mObject.call(L"addFormattedString", dispatchOf(&fragment));
}

OutputSinkRef HostSink::Clone() const {
    return sinkOf(mObject.call(L"Clone"));
}

void HostSink::Reset() {
    mObject.call(L"Reset");
}

OutputSinkRef HostSink::BuildNewFormattedString() const {
    return sinkOf(mObject.call(L"BuildNewFormattedString"));
}

Text HostSink::toString() const {
    return textOf(mObject.call(L"toString"));
}

Text HostSink::toRTFString() const {
    return textOf(mObject.call(L"toRTFString"));
}

bool HostSink::IsEmpty() const {
    const Variant empty = converted(mObject.call(L"IsEmpty"), VT_BOOL);
    return empty.vt == VT_BOOL && asBool(empty.boolVal);
}

std::int16_t HostSink::removeQuoteFromLastPhrase() {
    const Variant font = converted(mObject.call(L"removeQuoteFromLastPhrase"), VT_I2);
    return font.vt == VT_I2 ? font.iVal : std::int16_t{OutputSink::kPlain};
}

}  // namespace quorvel::host

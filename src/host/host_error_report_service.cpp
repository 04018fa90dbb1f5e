#include "host/host_error_report_service.h"

#include <algorithm>
#include <chrono>

#include "host/com/arrays.h"

namespace quorvel::host {

namespace {

constexpr wchar_t kHostClass[] = L"QuorvelDot.BridgeToVB";

// Looking in vain takes some 10 us where the host's class is not registered, and half a millisecond where it is
// and no such object runs: too much for each call of a member that takes one. Each is repeated so seldom that
// it is a hundredth of the time, in nanoseconds.
constexpr std::int64_t kAfterAnUnknownName = 1'000'000;
constexpr std::int64_t kWhileNotRunning = 50'000'000;

std::int64_t now() {
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time).count();
}

template <class T>
Variant arrayOf(const std::vector<T>& values) {
    std::vector<Variant> variants;
    for (const T value : values) {
        variants.emplace_back(value);
    }
    return arrayOfVariants(std::move(variants));
}

/// A reported value in the variant of its declared type; arrays as every client reads them.
struct ToVariant {
    Variant operator()(TraceValue::Object object) const { return Variant(dispatchOf(object)); }
    Variant operator()(const std::vector<bool>* values) const { return arrayOfFlags(*values); }
    Variant operator()(const std::vector<std::int16_t>* values) const { return arrayOf(*values); }
    Variant operator()(const std::vector<Text>* values) const { return arrayOfTexts(*values); }
    Variant operator()(const std::vector<OutputSinkRef>* fragments) const {
        std::vector<Variant> variants;
        for (const OutputSinkRef& fragment : *fragments) {
            variants.emplace_back(dispatchOf(fragment.get()));
        }
        return arrayOfVariants(std::move(variants));
    }
    template <class T>
    Variant operator()(T value) const {
        return Variant(value);
    }
};

Variant toVariant(const TraceValue& value) {
    return std::visit(ToVariant(), value.storage());
}

bool holds(const Variant& variant, TextView text) {
    return variant.vt == VT_BSTR && view(variant.bstrVal) == text;
}

}  // namespace

std::span<const Variant> EntryArguments::of(TextView procedure, TextView parameters) {
    // The ends of the names tell them apart.
    constexpr std::size_t kUnits = 24;
    std::size_t place = procedure.size();
    for (const char16_t unit : procedure.substr(procedure.size() - std::min(kUnits, procedure.size()))) {
        place = place * 31 + unit;
    }
    std::array<Variant, 2>& known = mKnown[place % kPlaces];
    if (!holds(known[0], procedure)) {
        known[0] = Variant(procedure);
    }
    if (!holds(known[1], parameters)) {
        known[1] = Variant(parameters);
    }
    return known;
}

void HostErrorReportService::vbwProcIn(TextView procedure, TextView parameters) {
    mObject.callWith(L"vbwProcIn", mEntries.of(procedure, parameters));
}

void HostErrorReportService::vbwProcOut() {
    mObject.call(L"vbwProcOut");
}

Text HostErrorReportService::vbwReportParameter(TextView name, const TraceValue& value) {
    Variant parameter = toVariant(value);
    const Variant reported = mObject.call(L"vbwReportParameter", name, ByReference(parameter));
    Variant text;
    return Text(SUCCEEDED(convert(reported, VT_BSTR, text)) ? view(text.bstrVal) : TextView());
}

void HostErrorReportService::vbwReportVariable(TextView name, const TraceValue& value, std::int32_t typeCode) {
    Variant variable = toVariant(value);
    mObject.call(L"vbwReportVariable", name, ByReference(variable), typeCode);
}

void HostErrorReportService::vbwReportToFile(TextView text) {
    mObject.call(L"vbwReportToFile", text);
}

void HostErrorReportService::vbwReportObject(const HostObject& object) {
    mObject.call(L"vbwReportObject", dispatchOf(&object));
}

void HostErrorReportService::vbwBeforeDump() {
    mObject.call(L"vbwBeforeDump");
}

void HostErrorReportService::vbwAfterDump() {
    mObject.call(L"vbwAfterDump");
}

void HostErrorReportService::vbwOpenDumpFile() {
    mObject.call(L"vbwOpenDumpFile");
}

void HostErrorReportService::vbwCloseDumpFile() {
    mObject.call(L"vbwCloseDumpFile");
}

void HostErrorReportService::vbwExitThread(bool isLast) {
    mObject.call(L"vbwExitThread", isLast);
}

std::shared_ptr<ErrorReportService> RunningHostFinder::find() {
    if (mNextLook != 0 && now() < mNextLook) {
        return nullptr;
    }
    CLSID hostClass = {};
    if (FAILED(CLSIDFromProgID(kHostClass, &hostClass))) {
        return lookAfter(kAfterAnUnknownName);
    }
    ComPtr<IUnknown> running;
    if (FAILED(GetActiveObject(hostClass, nullptr, running.receive()))) {
        return lookAfter(kWhileNotRunning);
    }
    mNextLook = 0;
    const ComPtr<IDispatch> bridge = queryFor<IDispatch>(running.get(), IID_IDispatch);
    const Variant errorParams = LateBoundObject(bridge.get(), u"the running host", IID_IBridgeToVB).get(L"ErrorParams");
    Variant object;
    if (FAILED(convert(errorParams, VT_DISPATCH, object)) || object.pdispVal == nullptr) {
        return nullptr;
    }
    return std::make_shared<HostErrorReportService>(object.pdispVal);
}

std::shared_ptr<ErrorReportService> RunningHostFinder::lookAfter(std::int64_t pause) {
    mNextLook = now() + pause;
    return nullptr;
}

}  // namespace quorvel::host

#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/error_report_service.h"
#include "host/com/late_bound_object.h"
#include "host/interfaces.h"

namespace quorvel::host {

/// The two arguments of `vbwProcIn`, kept for the next time that the same procedure begins.
class EntryArguments {
public:
    std::span<const Variant> of(TextView procedure, TextView parameters);

private:
    // More than a reference has procedures; two of one place take it in turn.
    static constexpr std::size_t kPlaces = 512;
    std::vector<std::array<Variant, 2>> mKnown = std::vector<std::array<Variant, 2>>(kPlaces);
};

/// The host's error-report service behind the port.
class HostErrorReportService final : public ErrorReportService {
public:
    explicit HostErrorReportService(IDispatch* errorParams)
        : mObject(errorParams, u"the error-report service", IID_IErrorReportService) {}

    void vbwProcIn(TextView procedure, TextView parameters) override;
    void vbwProcOut() override;
    Text vbwReportParameter(TextView name, const TraceValue& value) override;
    void vbwReportVariable(TextView name, const TraceValue& value, std::int32_t typeCode) override;
    void vbwReportToFile(TextView text) override;
    void vbwReportObject(const HostObject& object) override;
    void vbwBeforeDump() override;
    void vbwAfterDump() override;
    void vbwOpenDumpFile() override;
    void vbwCloseDumpFile() override;
    void vbwExitThread(bool isLast) override;

private:
    LateBoundObject mObject;
    EntryArguments mEntries;
};

/// Finds the service in the running host: the `ErrorParams` of the running object `QuorvelDot.BridgeToVB`.
class RunningHostFinder final : public ErrorReportServiceFinder {
public:
    std::shared_ptr<ErrorReportService> find() override;
    /// The next time it looks, whatever it found before.
    void forget() { mNextLook = 0; }

private:
    std::shared_ptr<ErrorReportService> lookAfter(std::int64_t pause);

    // When it looks again, in nanoseconds of the clock.
    std::atomic<std::int64_t> mNextLook = 0;
};

}  // namespace quorvel::host

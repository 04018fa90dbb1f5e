#pragma once

#include <cstdint>
#include <memory>

#include "core/trace_value.h"

namespace quorvel {

/// Port: the host's error-report service, member for member. Any member may fail; VBWPROTECTOR,
/// the only caller, ignores that.
class ErrorReportService {
public:
    ErrorReportService() = default;
    ErrorReportService(const ErrorReportService&) = delete;
    ErrorReportService& operator=(const ErrorReportService&) = delete;
    virtual ~ErrorReportService() = default;

    virtual void vbwProcIn(TextView procedure, TextView parameters) = 0;
    virtual void vbwProcOut() = 0;
    /// @return the text that stands for the parameter in the parameter list.
    virtual Text vbwReportParameter(TextView name, const TraceValue& value) = 0;
    virtual void vbwReportVariable(TextView name, const TraceValue& value, std::int32_t typeCode) = 0;
    virtual void vbwReportToFile(TextView text) = 0;
    virtual void vbwReportObject(const HostObject& object) = 0;
    virtual void vbwBeforeDump() = 0;
    virtual void vbwAfterDump() = 0;
    virtual void vbwOpenDumpFile() = 0;
    virtual void vbwCloseDumpFile() = 0;
    virtual void vbwExitThread(bool isLast) = 0;
};

/// Port: where the service is looked for.
class ErrorReportServiceFinder {
public:
    ErrorReportServiceFinder() = default;
    ErrorReportServiceFinder(const ErrorReportServiceFinder&) = delete;
    ErrorReportServiceFinder& operator=(const ErrorReportServiceFinder&) = delete;
    virtual ~ErrorReportServiceFinder() = default;

    /// The service of the running host; empty, or a failure, when there is none.
    virtual std::shared_ptr<ErrorReportService> find() = 0;
};

}  // namespace quorvel

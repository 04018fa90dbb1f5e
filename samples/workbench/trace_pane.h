#pragma once

#include <windows.h>

#include <memory>

#include "com/bridge_to_vb.h"
#include "com/error_report_service.h"

namespace sample {

/// Shows what the library reports of its procedures and errors, while it is switched on.
class TracePane {
public:
    /// @param edit a read-only edit control that takes the lines
    explicit TracePane(HWND edit) : mEdit(edit) {}
    TracePane(const TracePane&) = delete;
    TracePane& operator=(const TracePane&) = delete;
    ~TracePane();

    /// @throws ComError when the service cannot be registered
    void listen(bool isOn);
    /// Shows what came since the last time: to be called now and then, since one list is tens of thousands of lines.
    void refresh();

private:
    class Lines;

    HWND mEdit;
    std::shared_ptr<Lines> mLines;
    ComPointer<ErrorReportService> mService;
    std::unique_ptr<RunningBridgeToVB> mBridge;
};

}  // namespace sample

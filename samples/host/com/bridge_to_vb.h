#pragma once

#include <string>

#include "com/dispatch_object.h"

namespace sample {

/// The host's running object "QuorvelDot.BridgeToVB", through whose property `ErrorParams` the
/// library finds the error-report service. While this guard lives the object is registered as
/// running, with its class name if that is not there already; its end takes back what it registered.
///
/// A class name belongs to the machine's classes, which a program may write only with the rights of
/// an administrator; without them the current user's classes are used.
class RunningBridgeToVB {
public:
    static constexpr const wchar_t* kClassName = L"QuorvelDot.BridgeToVB";

    /// @throws ComError when the class name or the object cannot be registered
    explicit RunningBridgeToVB(IDispatch* errorReportService);
    RunningBridgeToVB(const RunningBridgeToVB&) = delete;
    RunningBridgeToVB& operator=(const RunningBridgeToVB&) = delete;
    ~RunningBridgeToVB();

private:
    void registerClassName();
    void deleteClassName();

    ComPointer<DispatchObject> mBridge;
    CLSID mClassId{};
    // Under which root the class name was written; null when it was there before.
    HKEY mClassesRoot = nullptr;
    DWORD mRunning = 0;
};

}  // namespace sample

#pragma once

#include <functional>
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

    /// Gives the service to who asks for it: one for all, or one for each.
    using GiveService = std::function<ComPointer<IDispatch>()>;

    /// @throws ComError when the class name or the object cannot be registered
    explicit RunningBridgeToVB(IDispatch* errorReportService);
    explicit RunningBridgeToVB(const GiveService& giveService);
    RunningBridgeToVB(const RunningBridgeToVB&) = delete;
    RunningBridgeToVB& operator=(const RunningBridgeToVB&) = delete;
    ~RunningBridgeToVB();

    /// Whether the class name stands where every process looks. Those with an administrator's rights do not look among
    /// the current user's classes.
    bool isFoundByEverybody() const { return mClassesRoot != HKEY_CURRENT_USER; }

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

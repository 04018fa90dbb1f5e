#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "library.h"

namespace comtests {

/// An error-report service that writes down each call as "member(argument, ...)". It may be told to
/// fail, and to do something in the middle of a call. Of each value it checks how it travels.
class RecordingService {
public:
    RecordingService();

    IDispatch* object() const { return mObject.get(); }

    /// Which call fails, counted from 1 over the life of the service; 0: none does.
    std::size_t failAt = 0;
    std::function<void(const std::wstring& call)> onCall;

    /// What vbwReportObject got last; only to compare.
    IDispatch* reportedObject = nullptr;

    const std::vector<std::wstring>& calls() const { return mCalls; }
    /// What came since the last time, one call a line: "> procedure list" for vbwProcIn, "<" for
    /// vbwProcOut; an identifier without "QuorvelTemplate.", which each of them is checked for.
    std::wstring taken();
    /// The error lines since the last time, "number procedure" each.
    std::wstring takenErrors();

private:
    ComPointer<DispatchObject> mObject;
    std::vector<std::wstring> mCalls;
    std::size_t mTaken = 0;
};

/// A test with the library loaded anew and a host that is running.
class ServiceTest : public LibraryTest {
protected:
    RecordingService service;
    std::optional<RunningBridgeToVB> host{service.object()};
};

}  // namespace comtests

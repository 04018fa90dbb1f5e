#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "core/error_report_service.h"
#include "core/run_time_error.h"

namespace quorvel {

class Instrumented;

/// What is reported to the host's error-report service; see VBWPROTECTOR.
struct TraceSwitches {
    /// Entry and exit of procedures. On from start-up.
    bool vbwTraceProc = true;
    /// The parameter list on entry.
    bool vbwTraceParameters = false;
    /// In the report of an error: after the variables of the object that failed, those of this
    /// module too.
    bool vbwTraceVariables = false;
};

/// Finds the host's error-report service and forwards each report to it: one instance per
/// apartment. Reporting never fails towards the caller, whatever the service does; and while the
/// service works on a report, what it calls in the library is not reported (it would never end).
class VBWPROTECTOR {
public:
    /// The instance of the calling thread. Costs a thread-local access: ask once per procedure.
    static VBWPROTECTOR& ofThisApartment() { return instance != nullptr ? *instance : makeInstance(); }

    /// Start-up, once per load: the switches that every apartment begins with, and where the service
    /// is looked for (null: nowhere). The finder must outlive all calls.
    static void startUp(TraceSwitches switches, ErrorReportServiceFinder* finder);

    TraceSwitches& switches() { return mSwitches; }

    /// How deep calls from the host may nest: a hundred late-bound ones, of which each has two brackets, since it
    /// goes through the object's vtable.
    static constexpr std::size_t kBracketsOfACall = 2;
    static constexpr std::size_t kDeepestNesting = 100 * kBracketsOfACall;

    /// Brackets a call from the host. Within the outermost bracket an absent service is looked for
    /// once; without any bracket, at every report.
    ///
    /// An exception or a jump of the host's may pass the library by, so that a bracket never ends. It is known
    /// by its address: the stack grows towards lower ones, so that a bracket is over when another one begins or
    /// ends at its address or above.
    /// @param bracket an object on the stack of who makes the bracket
    void beginHostCall(const void* bracket) noexcept;
    void endHostCall(const void* bracket) noexcept { forgetHostCallsUpTo(bracket); }
    /// Whether calls nested deeper than they may. From there on every call inside the outermost one is refused
    /// until that ends: a host that calls back from many of its members would otherwise not end in its lifetime.
    /// A procedure that begins then is error 28.
    bool isTooDeep() const { return mIsExhausted && mDepth > kBracketsOfACall; }

    /// Whether there is more to a procedure than its body: somebody may listen, or calls nest too deep.
    bool isConcerned() const { return mIsConcerned; }

    void vbwProcIn(const Instrumented& self, TextView procedure, const ParameterList& parameters) {
        if (mSwitches.vbwTraceProc && hasService()) {
            reportEntry(self, procedure, parameters);
        }
    }
    void vbwProcOut() {
        if (mSwitches.vbwTraceProc && hasService()) {
            reportExit();
        }
    }
    void vbwReportVariable(TextView name, const TraceValue& value) noexcept;
    void vbwReportToFile(TextView text) noexcept;
    /// The trap: reports an error of the procedure with the variables of the object that failed.
    void reportError(const RuntimeError& error, const Instrumented& failed, TextView procedure) noexcept;
    /// The last object of the thread is going away: tells the service and lets go of it.
    void vbwExitThread() noexcept;
    /// Lets go of the service without a word.
    void releaseService() noexcept;

private:
    class Reporting;

    // Without a constructor to run, so that a look at it is nothing more.
    static constinit thread_local VBWPROTECTOR* instance;

    VBWPROTECTOR();

    static VBWPROTECTOR& makeInstance();
    void noteConcern() noexcept;
    void forgetHostCallsUpTo(const void* bracket) noexcept;

    bool hasService() noexcept {
        if (mErrorParams == nullptr && (mFinder == nullptr || mServiceIsAbsent)) {
            return false;
        }
        return mReporting == nullptr && (mErrorParams != nullptr || findService());
    }
    bool findService() noexcept;
    void reportEntry(const Instrumented& self, TextView procedure, const ParameterList& parameters) noexcept;
    void reportExit() noexcept;
    Text parameterList(const ParameterList& parameters);
    void dumpOwnVariables() noexcept;
    template <class Report>
    void forward(Report&& report) noexcept;

    // What `isConcerned` says, kept up to date by whatever changes what it depends on.
    bool mIsConcerned = false;
    TraceSwitches mSwitches;
    ErrorReportServiceFinder* mFinder;
    std::shared_ptr<ErrorReportService> mErrorParams;
    // The brackets of the calls that are under way, the outermost first.
    std::array<std::uintptr_t, kDeepestNesting> mHostCalls{};
    std::size_t mDepth = 0;
    bool mIsExhausted = false;
    bool mServiceIsAbsent = false;
    // The report under way, which has a place on the stack as well.
    const Reporting* mReporting = nullptr;
};

}  // namespace quorvel

#include "core/vbwprotector.h"

#include <cstddef>
#include <mutex>
#include <new>
#include <utility>

#include "core/instrumented.h"

namespace quorvel {

namespace {

constexpr TextView kLibraryPrefix = u"QuorvelTemplate.";
constexpr TextView kBanner =
    u"\r\n**************************\r\n* MODULE LEVEL VARIABLES *\r\n**************************\r\n";

struct StartUp {
    std::mutex mutex;
    TraceSwitches switches;
    ErrorReportServiceFinder* finder = nullptr;
};

StartUp& startUpState() {
    static StartUp state;
    return state;
}

/// The procedure's whole name: "QuorvelTemplate.OutputTemplateYear.Reset".
Text nameOf(const Instrumented& self, TextView procedure) {
    return concatenate({kLibraryPrefix, self.className(), u".", procedure});
}

std::uintptr_t placeOf(const void* object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

}  // namespace

/// Keeps what the service calls in the library from being reported to the service.
class VBWPROTECTOR::Reporting {
public:
    explicit Reporting(VBWPROTECTOR& protector) : mProtector(protector) { mProtector.mReporting = this; }
    Reporting(const Reporting&) = delete;
    Reporting& operator=(const Reporting&) = delete;
    ~Reporting() { mProtector.mReporting = nullptr; }

private:
    VBWPROTECTOR& mProtector;
};

constinit thread_local VBWPROTECTOR* VBWPROTECTOR::instance = nullptr;

VBWPROTECTOR::VBWPROTECTOR() {
    const std::scoped_lock lock(startUpState().mutex);
    mSwitches = startUpState().switches;
    mFinder = startUpState().finder;
    noteConcern();
}

VBWPROTECTOR& VBWPROTECTOR::makeInstance() {
    // Never destroyed at thread end: by then COM is closed for the thread, and a service that is
    // still held can only be left alone. Every regular way out releases it before.
    alignas(VBWPROTECTOR) static thread_local std::byte storage[sizeof(VBWPROTECTOR)];
    instance = new (&storage) VBWPROTECTOR();
    return *instance;
}

void VBWPROTECTOR::noteConcern() noexcept {
    mIsConcerned = mErrorParams != nullptr || (mFinder != nullptr && !mServiceIsAbsent) || isTooDeep();
}

void VBWPROTECTOR::releaseService() noexcept {
    mErrorParams.reset();
    noteConcern();
}

void VBWPROTECTOR::startUp(TraceSwitches switches, ErrorReportServiceFinder* finder) {
    {
        const std::scoped_lock lock(startUpState().mutex);
        startUpState().switches = switches;
        startUpState().finder = finder;
    }
    ofThisApartment().mSwitches = switches;
    ofThisApartment().mFinder = finder;
    ofThisApartment().releaseService();
}

void VBWPROTECTOR::beginHostCall(const void* bracket) noexcept {
    forgetHostCallsUpTo(bracket);
    if (mDepth == mHostCalls.size()) {
        mIsExhausted = true;
    } else {
        mHostCalls[mDepth++] = placeOf(bracket);
    }
    noteConcern();
}

void VBWPROTECTOR::forgetHostCallsUpTo(const void* bracket) noexcept {
    while (mDepth > 0 && mHostCalls[mDepth - 1] <= placeOf(bracket)) {
        --mDepth;
    }
    if (mDepth == 0) {
        mIsExhausted = false;
        mServiceIsAbsent = false;
    }
    if (placeOf(mReporting) <= placeOf(bracket)) {
        mReporting = nullptr;
    }
    noteConcern();
}

bool VBWPROTECTOR::findService() noexcept {
    {
        // Looking may run the host's code, which may call the library: nothing of that is reported.
        const Reporting reporting(*this);
        try {
            mErrorParams = mFinder->find();
        } catch (...) {
            mErrorParams.reset();
        }
    }
    mServiceIsAbsent = mErrorParams == nullptr && mDepth > 0;
    noteConcern();
    return mErrorParams != nullptr;
}

/// One report to the service. It keeps the service alive, since its own call may end the thread's
/// last object, and a failure is nobody's business but the service's.
template <class Report>
void VBWPROTECTOR::forward(Report&& report) noexcept {
    const std::shared_ptr<ErrorReportService> service = mErrorParams;
    const Reporting reporting(*this);
    try {
        report(*service);
    } catch (...) {  // NOLINT(bugprone-empty-catch): a failing report is ignored by design
    }
}

Text VBWPROTECTOR::parameterList(const ParameterList& parameters) {
    if (parameters.empty()) {
        return u"()";
    }
    Text list;
    if (mSwitches.vbwTraceParameters) {
        TextView opening = u"(";
        for (const Parameter& parameter : parameters) {
            list.append(opening);
            opening = u", ";
            if (hasService()) {
                forward([&](ErrorReportService& service) {
                    list.append(service.vbwReportParameter(parameter.name, parameter.value));
                });
            }
        }
        list.append(u") ");
    }
    return list;
}

void VBWPROTECTOR::reportEntry(const Instrumented& self, TextView procedure, const ParameterList& parameters) noexcept {
    try {
        const Text list = parameterList(parameters);
        if (hasService()) {
            const Text name = concatenate({kLibraryPrefix, self.className(), u".", procedure});
            forward([&](ErrorReportService& service) { service.vbwProcIn(name, list); });
        }
    } catch (...) {  // NOLINT(bugprone-empty-catch): no memory is left for the list
    }
}

void VBWPROTECTOR::reportExit() noexcept {
    forward([](ErrorReportService& service) { service.vbwProcOut(); });
}

void VBWPROTECTOR::vbwReportVariable(TextView name, const TraceValue& value) noexcept {
    if (hasService()) {
        forward([&](ErrorReportService& service) { service.vbwReportVariable(name, value, value.typeCode()); });
    }
}

void VBWPROTECTOR::vbwReportToFile(TextView text) noexcept {
    if (hasService()) {
        forward([&](ErrorReportService& service) { service.vbwReportToFile(text); });
    }
}

void VBWPROTECTOR::reportError(const RuntimeError& error, const Instrumented& failed, TextView procedure) noexcept {
    // A step that fails, or that loses the service, does not keep the next one from being tried.
    const auto step = [this](auto report) {
        if (hasService()) {
            forward(report);
        }
    };
    step([](ErrorReportService& service) { service.vbwBeforeDump(); });
    step([](ErrorReportService& service) { service.vbwOpenDumpFile(); });
    step([&](ErrorReportService& service) {
        service.vbwReportToFile(concatenate({u"Run-time error ", decimal(error.number()), u": ", error.description(),
                                             u" in ", nameOf(failed, procedure), u"\r\n"}));
    });
    vbwReportToFile(kBanner);
    try {
        failed.dumpVariables(*this);
    } catch (...) {  // NOLINT(bugprone-empty-catch): the dump ends where memory does
    }
    if (mSwitches.vbwTraceVariables) {
        dumpOwnVariables();
    }
    step([&](ErrorReportService& service) {
        if (error.object()) {
            service.vbwReportObject(*error.object());
        }
    });
    step([](ErrorReportService& service) { service.vbwCloseDumpFile(); });
    step([](ErrorReportService& service) { service.vbwAfterDump(); });
}

void VBWPROTECTOR::dumpOwnVariables() noexcept {
    vbwReportToFile(kBanner);
    vbwReportVariable(u"vbwTraceProc", mSwitches.vbwTraceProc);
    vbwReportVariable(u"vbwTraceParameters", mSwitches.vbwTraceParameters);
    vbwReportVariable(u"vbwTraceVariables", mSwitches.vbwTraceVariables);
    vbwReportVariable(u"mErrorParams", mErrorParams);
}

void VBWPROTECTOR::vbwExitThread() noexcept {
    if (hasService()) {
        forward([](ErrorReportService& service) { service.vbwExitThread(true); });
    }
    releaseService();
}

}  // namespace quorvel

#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "core/error_report_service.h"
#include "core/run_time_error.h"
#include "core/vbwprotector.h"

namespace quorvel {

/// The host's error-report service as tests need it: it remembers each report as one line, fails when
/// it is told to, and can act upon the library in the middle of a call.
class RecordingService final : public ErrorReportService {
public:
    /// The calls in their order, each as the member's name, a colon and its arguments.
    const std::vector<Text>& reports() const { return mReports; }
    /// The lines of the errors alone: "9: Subscript out of range in QuorvelTemplate.OutputTemplate.Add".
    std::vector<Text> errors() const {
        std::vector<Text> lines;
        for (const Text& report : mReports) {
            if (Text line = report; removePrefix(line, u"vbwReportToFile: Run-time error ")) {
                removeSuffix(line, u"\r\n");
                lines.push_back(std::move(line));
            }
        }
        return lines;
    }
    int calls() const { return mCalls; }
    void forget() {
        mReports.clear();
        mCalls = 0;
        mFailAt = 0;
    }

    /// The n-th call from now on (1: the next one) raises an error, once it is recorded; 0: none does.
    void failAt(int call) { mFailAt = call == 0 ? 0 : mCalls + call; }
    /// What the host does in the middle of each call; calls that it causes itself do not set it off again.
    void onCall(std::function<void()> action) { mAction = std::move(action); }

    void vbwProcIn(TextView procedure, TextView parameters) override {
        called(concatenate({u"vbwProcIn: ", procedure, u" ", parameters}));
    }
    void vbwProcOut() override { called(u"vbwProcOut"); }
    /// Stands in the list as "name=value".
    Text vbwReportParameter(TextView name, const TraceValue& value) override {
        Text line = concatenate({name, u"=", rendered(value)});
        called(u"vbwReportParameter: " + line);
        return line;
    }
    void vbwReportVariable(TextView name, const TraceValue& value, std::int32_t typeCode) override {
        called(concatenate({u"vbwReportVariable: ", name, u"=", rendered(value), u" (", decimal(typeCode), u")"}));
    }
    void vbwReportToFile(TextView text) override { called(concatenate({u"vbwReportToFile: ", text})); }
    void vbwReportObject(const HostObject& object) override {
        called(concatenate({u"vbwReportObject: ", rendered(&object)}));
    }
    void vbwBeforeDump() override { called(u"vbwBeforeDump"); }
    void vbwAfterDump() override { called(u"vbwAfterDump"); }
    void vbwOpenDumpFile() override { called(u"vbwOpenDumpFile"); }
    void vbwCloseDumpFile() override { called(u"vbwCloseDumpFile"); }
    void vbwExitThread(bool isLast) override { called(u"vbwExitThread: " + rendered(isLast)); }

private:
    template <class Number>
    static Text decimal(Number number) {
        const std::string digits = std::to_string(number);
        return Text(digits.begin(), digits.end());
    }
    template <class Value>
    static Text rendered(const Value& value) {
        if constexpr (std::is_same_v<Value, TraceValue>) {
            return std::visit([](const auto& stored) { return rendered(stored); }, value.storage());
        } else if constexpr (std::is_same_v<Value, bool>) {
            return value ? u"True" : u"False";
        } else if constexpr (std::is_same_v<Value, TextView> || std::is_same_v<Value, Text>) {
            return Text(value);
        } else if constexpr (std::is_same_v<Value, OutputSinkRef>) {
            return rendered(static_cast<const HostObject*>(value.get()));
        } else if constexpr (std::is_convertible_v<Value, const HostObject*>) {
            // Its address is looked at, so that an object that is gone shows under a sanitizer.
            return value == nullptr ? u"Nothing" : dynamic_cast<const void*>(value) == nullptr ? u"?" : u"object";
        } else if constexpr (std::is_pointer_v<Value>) {
            Text list = u"[";
            for (std::size_t i = 0; i < value->size(); ++i) {
                const typename std::remove_pointer_t<Value>::value_type item = (*value)[i];
                list += (i > 0 ? u"|" : u"") + rendered(item);
            }
            return list + u"]";
        } else {
            return decimal(value);
        }
    }

    void called(Text report) {
        mReports.push_back(std::move(report));
        const int call = ++mCalls;
        if (mAction && !mIsActing) {
            mIsActing = true;
            // A copy, since the action may set another one.
            const std::function<void()> action = mAction;
            action();
            mIsActing = false;
        }
        if (call == mFailAt) {
            throw RuntimeError(ErrorNumber::AutomationError, u"The service was told to fail.", nullptr);
        }
    }

    std::vector<Text> mReports;
    int mCalls = 0;
    int mFailAt = 0;
    bool mIsActing = false;
    std::function<void()> mAction;
};

/// Finds the service that a test offers, and counts the look-ups.
class RecordingServiceFinder final : public ErrorReportServiceFinder {
public:
    /// Empty: no host is running.
    std::shared_ptr<RecordingService> offered = std::make_shared<RecordingService>();
    bool fails = false;
    int lookUps = 0;

    std::shared_ptr<ErrorReportService> find() override {
        ++lookUps;
        if (fails) {
            throw RuntimeError(ErrorNumber::ServerUnavailable);
        }
        return offered;
    }
};

/// A test whose reports go to a recording service; the other tests report to nobody.
class ReportingTest : public ::testing::Test {
protected:
    ReportingTest() { VBWPROTECTOR::startUp({}, &mFinder); }
    ~ReportingTest() override { VBWPROTECTOR::startUp({}, nullptr); }

    RecordingService& service() { return *mFinder.offered; }
    RecordingServiceFinder& finder() { return mFinder; }
    static VBWPROTECTOR& protector() { return VBWPROTECTOR::ofThisApartment(); }

private:
    RecordingServiceFinder mFinder;
};

}  // namespace quorvel

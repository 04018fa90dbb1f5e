#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "com/dispatch_object.h"

namespace sample {

/// The host's error-report service. The library tells it each procedure that it enters and leaves;
/// when something fails inside, it dumps what it knows, and this service writes a readable report.
///
///   late-bound member                        what the library reports
///   vbwProcIn(procedure, parameters)         a procedure begins
///   vbwProcOut()                             it ends
///   vbwReportParameter(name, value)          one parameter; returns its text for the parameter list
///   vbwReportVariable(name, value, type)     one field in a dump
///   vbwReportToFile(text)                    a line of the report
///   vbwReportObject(object)                  an object in a dump
///   vbwBeforeDump(), vbwAfterDump()          around all that is told about one error
///   vbwOpenDumpFile(), vbwCloseDumpFile()    around the lines of it
///   vbwExitThread(isLast)                    the library's last object of this thread goes away
///
/// The report is UTF-8. An error that happens while another one is dumped stands indented below it.
class ErrorReportService final : public DispatchObject {
public:
    /// What is written: errors, or every procedure with its parameters, as a tree, too.
    enum class Level { kErrors, kProcedures };

    explicit ErrorReportService(std::shared_ptr<std::ostream> report, Level level = Level::kErrors);

    long procedures() const { return mProcedures; }
    long errors() const { return mErrors; }
    std::size_t stackDepth() const { return mCallStack.size(); }

    /// Closes the report with the count of what came.
    void writeSummary();

private:
    struct Call {
        std::wstring procedure;
        std::wstring parameters;
    };

    void beginError();
    void writeCallStack();
    void writeVariable(const std::wstring& name, const VARIANT& value, std::int32_t typeCode);
    void writeLines(const std::wstring& text);
    void writeLine(const std::wstring& text);

    std::shared_ptr<std::ostream> mReport;
    Level mLevel;
    std::vector<Call> mCallStack;
    int mIndentation = 0;
    long mProcedures = 0;
    long mErrors = 0;
};

}  // namespace sample

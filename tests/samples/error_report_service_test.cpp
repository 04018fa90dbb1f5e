#include "com/error_report_service.h"

#include <gtest/gtest.h>

#include <sstream>

#include "com/bridge_to_vb.h"
#include "com/late_bound.h"

namespace sample {
namespace {

class ErrorReport : public testing::Test {
protected:
    ErrorReport() : late(service.get()) {}

    void reportError(const wchar_t* line) {
        late.call(L"vbwBeforeDump");
        late.call(L"vbwOpenDumpFile");
        late.call(L"vbwReportToFile", {line});
    }
    void endError() {
        late.call(L"vbwCloseDumpFile");
        late.call(L"vbwAfterDump");
    }

    std::shared_ptr<std::ostringstream> report = std::make_shared<std::ostringstream>();
    ComPointer<ErrorReportService> service = makeObject<ErrorReportService>(report);
    LateBoundObject late;
};

TEST_F(ErrorReport, ParametersReadAsInSourceText) {
    const auto host = makeObject<DispatchObject>();
    const std::pair<Variant, const wchar_t*> cases[] = {
        {std::int16_t{6}, L"p = 6"},
        {true, L"p = True"},
        {L"[1990?]", L"p = \"[1990?]\""},
        {static_cast<IDispatch*>(nullptr), L"p = Nothing"},
        {host.get(), L"p = object of the host"},
        {Variant::array({Variant(L"a"), Variant(false)}), L"p = {\"a\", False}"},
        {Variant(), L"p = Empty"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(textOf(late.call(L"vbwReportParameter", {L"p", value})), text);
}

TEST_F(ErrorReport, ErrorStandsWithItsStackAndVariables) {
    late.call(L"vbwProcIn", {L"QuorvelTemplate.Main2.build", L"(whichType = 18) "});
    late.call(L"vbwProcIn", {L"QuorvelTemplate.A.b", L"()"});
    late.call(L"vbwProcOut");
    late.call(L"vbwProcIn", {L"QuorvelTemplate.OutputTemplateYear.Supports[Get]", L""});
    reportError(L"9 Subscript out of range");
    late.call(L"vbwReportToFile", {L"\r\n****\r\n* MODULE *\r\n"});
    late.call(L"vbwReportVariable", {L"Year", L"café", 8});
    late.call(L"vbwReportVariable", {L"mSupportOptions", Variant::array({Variant(true), Variant(false)}), 8203});
    late.call(L"vbwReportObject", {service.get()});
    reportError(L"13 Type mismatch");
    endError();
    endError();
    late.call(L"vbwProcOut");
    late.call(L"vbwProcOut");
    late.call(L"vbwProcOut");
    EXPECT_EQ(service->stackDepth(), 0u);
    service->writeSummary();

    const std::string expected =
        "Error report 1\n"
        "==============\n"
        "    Call stack, the procedure that failed last:\n"
        "      QuorvelTemplate.Main2.build(whichType = 18) \n"
        "        QuorvelTemplate.OutputTemplateYear.Supports[Get]\n"
        "\n"
        "    9 Subscript out of range\n"
        "\n"
        "    ****\n"
        "    * MODULE *\n"
        "    Year                                 String             \"café\"\n"
        "    mSupportOptions                      Boolean array      2 elements\n"
        "        0    True\n"
        "        1    False\n"
        "    In: object of the host\n"
        "    Error report 2\n"
        "    ==============\n"
        "        Call stack, the procedure that failed last:\n"
        "          QuorvelTemplate.Main2.build(whichType = 18) \n"
        "            QuorvelTemplate.OutputTemplateYear.Supports[Get]\n"
        "\n"
        "        13 Type mismatch\n"
        "\n"
        "\n"
        "3 procedures were reported, 2 errors.\n";
    std::string written = report->str();
    std::erase(written, '\r');
    EXPECT_EQ(written, expected);
}

TEST_F(ErrorReport, EndOfTheThreadForgetsOpenCalls) {
    late.call(L"vbwProcIn", {L"QuorvelTemplate.Main2.build", L"()"});
    late.call(L"vbwExitThread", {true});
    EXPECT_EQ(service->stackDepth(), 0u);
}

TEST_F(ErrorReport, RunningObjectLeadsToTheServiceWhileItIsRegistered) {
    ASSERT_EQ(CoInitialize(nullptr), S_OK);
    const long before = DispatchObject::liveObjects();
    CLSID classId;
    {
        const RunningBridgeToVB bridge(service.get());
        ASSERT_EQ(CLSIDFromProgID(RunningBridgeToVB::kClassName, &classId), S_OK);
        ComPointer<IUnknown> running;
        ASSERT_EQ(GetActiveObject(classId, nullptr, running.put()), S_OK);
        ComPointer<IDispatch> found;
        ASSERT_EQ(running->QueryInterface(IID_IDispatch, found.putVoid()), S_OK);
        EXPECT_EQ(objectOf(LateBoundObject(found).get(L"ErrorParams")).get(), service.get());
    }
    EXPECT_NE(CLSIDFromProgID(RunningBridgeToVB::kClassName, &classId), S_OK);
    EXPECT_EQ(DispatchObject::liveObjects(), before);
    CoUninitialize();
}

}  // namespace
}  // namespace sample

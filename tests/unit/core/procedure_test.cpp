#include "core/procedure.h"

#include <algorithm>
#include <csetjmp>
#include <new>
#include <stdexcept>
#include <thread>

#include "support/recording_service.h"

namespace quorvel {
namespace {

const Text kBannerReport =
    u"vbwReportToFile: \r\n**************************\r\n* MODULE LEVEL VARIABLES *\r\n**************************\r\n";
constexpr TraceSwitches kAllOn = {.vbwTraceProc = true, .vbwTraceParameters = true, .vbwTraceVariables = true};

constexpr StandardModule kModule{u"Module"};

/// A class whose dump holds each kind of field.
class Sample final : public Instrumented {
public:
    /// Fails after it filled its result in part.
    Text fail(Text& partial, const std::function<void()>& failure) const {
        return procedure(*this, u"fail", {{u"partial", partial}, {u"depth", std::int16_t{-2}}}, [&] {
            partial = u"partial";
            failure();
            return Text(u"whole");
        });
    }
    TextView className() const override { return u"Sample"; }
    void dumpVariables(VBWPROTECTOR& report) const override {
        report.vbwReportVariable(u"mFlag", true);
        report.vbwReportVariable(u"mInteger", std::int16_t{-2});
        report.vbwReportVariable(u"mLong", std::int32_t{70000});
        report.vbwReportVariable(u"mSingle", 0.5F);
        report.vbwReportVariable(u"mText", Text(u"text"));
        report.vbwReportVariable(u"mObject", HostObjectRef());
        report.vbwReportVariable(u"mFlags", std::vector<bool>{true, false});
        report.vbwReportVariable(u"mIntegers", std::vector<std::int16_t>{1, 2});
        report.vbwReportVariable(u"mTexts", std::vector<Text>{u"a", u""});
        report.vbwReportVariable(u"mObjects", std::vector<OutputSinkRef>{nullptr});
    }
};

struct PageMark final : HostObject {};

/// A call from the host.
class HostCall {
public:
    HostCall() { VBWPROTECTOR::ofThisApartment().beginHostCall(this); }
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;
    ~HostCall() { VBWPROTECTOR::ofThisApartment().endHostCall(this); }
};

void throwSubscript() {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
}

class Procedure : public ReportingTest {
protected:
    static Text nested() {
        return procedure(kModule, u"outer", kNoParameters, [] {
            return procedure(kModule, u"inner[Get]", {{u"key", TextView(u"k")}, {u"code", std::int32_t{7}}},
                             [] { return Text(u"done"); });
        });
    }
};

TEST_F(Procedure, ReportsEntryAndExitAsTheSwitchesSay) {
    struct Case {
        TraceSwitches switches;
        std::vector<Text> reports;
    };
    const Case kCases[] = {
        {{},
         {u"vbwProcIn: QuorvelTemplate.Module.outer ()", u"vbwProcIn: QuorvelTemplate.Module.inner[Get] ",
          u"vbwProcOut", u"vbwProcOut"}},
        {{.vbwTraceParameters = true},
         {u"vbwProcIn: QuorvelTemplate.Module.outer ()", u"vbwReportParameter: key=k", u"vbwReportParameter: code=7",
          u"vbwProcIn: QuorvelTemplate.Module.inner[Get] (key=k, code=7) ", u"vbwProcOut", u"vbwProcOut"}},
        {{.vbwTraceProc = false, .vbwTraceParameters = true, .vbwTraceVariables = true}, {}},
    };
    for (const Case& c : kCases) {
        service().forget();
        protector().switches() = c.switches;
        EXPECT_EQ(nested(), u"done");
        EXPECT_EQ(service().reports(), c.reports);
    }
}

TEST_F(Procedure, AnErrorIsReportedInTheOrderTheHostExpects) {
    const auto object = std::make_shared<PageMark>();
    std::vector<Text> expected = {
        u"vbwProcIn: QuorvelTemplate.Sample.fail ",
        u"vbwBeforeDump",
        u"vbwOpenDumpFile",
        u"vbwReportToFile: Run-time error -2147467259: The sink is gone in QuorvelTemplate.Sample.fail\r\n",
        kBannerReport,
        u"vbwReportVariable: mFlag=True (11)",
        u"vbwReportVariable: mInteger=-2 (2)",
        u"vbwReportVariable: mLong=70000 (3)",
        u"vbwReportVariable: mSingle=0.500000 (4)",
        u"vbwReportVariable: mText=text (8)",
        u"vbwReportVariable: mObject=Nothing (9)",
        u"vbwReportVariable: mFlags=[True|False] (8203)",
        u"vbwReportVariable: mIntegers=[1|2] (8194)",
        u"vbwReportVariable: mTexts=[a|] (8200)",
        u"vbwReportVariable: mObjects=[Nothing] (8201)",
        u"vbwReportObject: object",
        u"vbwCloseDumpFile",
        u"vbwAfterDump",
        u"vbwProcOut"};
    for (const bool tracesVariables : {false, true}) {
        service().forget();
        protector().switches().vbwTraceVariables = tracesVariables;
        if (tracesVariables) {
            expected.insert(expected.end() - 4, {kBannerReport, u"vbwReportVariable: vbwTraceProc=True (11)",
                                                 u"vbwReportVariable: vbwTraceParameters=False (11)",
                                                 u"vbwReportVariable: vbwTraceVariables=True (11)",
                                                 u"vbwReportVariable: mErrorParams=Nothing (9)"});
        }
        Text partial;
        EXPECT_EQ(Sample().fail(partial, [&] { throw RuntimeError(-2147467259, u"The sink is gone", object); }), u"");
        EXPECT_EQ(partial, u"partial");
        EXPECT_EQ(service().reports(), expected);
    }
}

TEST_F(Procedure, WhateverIsThrownBecomesANumberedError) {
    struct Case {
        std::function<void()> failure;
        TextView error;
    };
    const Case kCases[] = {
        {[] { static_cast<void>(std::vector<int>().at(0)); }, u"9: Subscript out of range"},
        {[] { static_cast<void>(Text().substr(1)); }, u"9: Subscript out of range"},
        {[] { throw std::bad_alloc(); }, u"7: Out of memory"},
        {[] { throw std::runtime_error("what it says"); }, u"51: what it says"},
        {[] { throw 3; }, u"51: Internal error"},
        {[] { object(std::shared_ptr<Sample>()); }, u"91: Object variable not set"},
    };
    for (const Case& c : kCases) {
        service().forget();
        Text partial;
        EXPECT_EQ(Sample().fail(partial, c.failure), u"");
        EXPECT_EQ(service().errors(), std::vector<Text>{Text(c.error) + u" in QuorvelTemplate.Sample.fail"});
    }
}

TEST_F(Procedure, AServiceThatFailsAtAnyCallChangesNothingButItsOwnParameterText) {
    protector().switches() = kAllOn;
    const auto run = [] {
        Text partial = u"before";
        EXPECT_EQ(Sample().fail(partial, throwSubscript), u"");
        EXPECT_EQ(partial, u"partial");
    };
    run();
    const std::vector<Text> undisturbed = service().reports();
    ASSERT_EQ(undisturbed.at(2), u"vbwProcIn: QuorvelTemplate.Sample.fail (partial=before, depth=-2) ");
    for (int n = 1; n <= static_cast<int>(undisturbed.size()); ++n) {
        service().forget();
        service().failAt(n);
        run();
        std::vector<Text> expected = undisturbed;
        if (n <= 2) {
            expected[2] = n == 1 ? u"vbwProcIn: QuorvelTemplate.Sample.fail (, depth=-2) "
                                 : u"vbwProcIn: QuorvelTemplate.Sample.fail (partial=before, ) ";
        }
        EXPECT_EQ(service().reports(), expected) << "call " << n;
    }
}

TEST_F(Procedure, WhatTheServiceCallsInTheLibraryIsNotReported) {
    protector().switches() = kAllOn;
    Text partial;
    Sample().fail(partial, throwSubscript);
    const std::vector<Text> undisturbed = service().reports();
    service().forget();
    int calledBack = 0;
    service().onCall([&] {
        Text inner;
        Sample().fail(inner, throwSubscript);
        ++calledBack;
    });
    partial.clear();
    Sample().fail(partial, throwSubscript);
    EXPECT_EQ(service().reports(), undisturbed);
    EXPECT_EQ(calledBack, service().calls());
}

TEST_F(Procedure, AServiceThatEndsTheThreadInAnyOfItsCallsLivesUntilItReturns) {
    protector().switches() = kAllOn;
    Text partial;
    Sample().fail(partial, throwSubscript);
    const int calls = service().calls();
    for (int n = 1; n <= calls; ++n) {
        finder().offered = std::make_shared<RecordingService>();
        const std::weak_ptr<RecordingService> watched = finder().offered;
        protector().releaseService();
        int countdown = n;
        service().onCall([&] {
            if (--countdown == 0) {
                finder().offered.reset();
                protector().vbwExitThread();
            }
        });
        EXPECT_EQ(Sample().fail(partial, throwSubscript), u"");
        EXPECT_TRUE(watched.expired()) << "call " << n;
    }
}

TEST_F(Procedure, AnAbsentServiceIsLookedForOnceInACallOfTheHost) {
    const auto hostCall = [](int nestedCalls, const auto& self) -> void {
        const HostCall call;
        nested();
        if (nestedCalls > 0) {
            self(nestedCalls - 1, self);
        }
        nested();
    };
    const std::shared_ptr<RecordingService> running = finder().offered;
    for (const bool fails : {false, true}) {
        finder().offered = nullptr;
        finder().fails = fails;
        finder().lookUps = 0;
        hostCall(2, hostCall);
        EXPECT_EQ(finder().lookUps, 1);
        hostCall(0, hostCall);
        EXPECT_EQ(finder().lookUps, 2);
    }
    nested();
    EXPECT_EQ(finder().lookUps, 6) << "outside a call of the host each report looks";

    // Once the host runs, the next of its calls finds the service, and keeps it.
    finder().fails = false;
    finder().offered = running;
    finder().lookUps = 0;
    hostCall(0, hostCall);
    finder().offered = nullptr;
    hostCall(0, hostCall);
    EXPECT_EQ(finder().lookUps, 1);
    EXPECT_EQ(running->calls(), 16);
}

/// What a host does that answers every call with another one.
int depthOf(int calls) {
    const HostCall call;
    return procedure(StandardModule(u"Sample"), u"answer", kNoParameters, [&] {
        int deepest = 0;
        for (int i = 0; i < calls; ++i) {
            deepest = std::max(deepest, depthOf(calls));
        }
        return deepest + 1;
    });
}

TEST_F(Procedure, CallsThatNestWithoutEndAreErrors) {
    // With seven calls back from each it would take for ever, were it not the outermost one that counts.
    for (const int calls : {1, 7}) {
        EXPECT_EQ(depthOf(calls), static_cast<int>(VBWPROTECTOR::kDeepestNesting));
        const std::vector<Text> errors = service().errors();
        ASSERT_FALSE(errors.empty());
        EXPECT_EQ(errors.front(), u"28: Out of stack space in QuorvelTemplate.Sample.answer");
        EXPECT_LT(errors.size(), static_cast<std::size_t>(calls) * VBWPROTECTOR::kDeepestNesting);
        service().forget();
    }
    EXPECT_EQ(depthOf(0), 1);
    EXPECT_EQ(service().errors(), std::vector<Text>());
}

/// A host that leaves the library by a jump out of a report, as it may by an exception that nobody here sees.
template <class Body>
[[gnu::noinline]] void leaveByAJump(RecordingService& service, int call, const Body& body) {
    std::jmp_buf back;
    if (setjmp(back) == 0) {
        const HostCall bracket;
        service.onCall([&back, &call] {
            if (call-- == 0) {
                std::longjmp(back, 1);
            }
        });
        body();
        std::longjmp(back, 1);
    }
}

TEST_F(Procedure, AHostThatJumpsOutOfACallLeavesNothingBehind) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "but memory, which the sanitizer counts";
#endif
    const auto renew = [&] {
        finder().offered = std::make_shared<RecordingService>();
        protector().releaseService();
    };
    for (int i = 0; i < 3 * static_cast<int>(VBWPROTECTOR::kDeepestNesting); ++i) {
        renew();
        leaveByAJump(service(), i % 5, [] { nested(); });
    }
    renew();
    {
        const HostCall call;
        nested();
    }
    EXPECT_EQ(service().calls(), 4) << "it is still reported";
    EXPECT_EQ(service().errors(), std::vector<Text>());
    finder().offered = nullptr;
    protector().releaseService();
    finder().lookUps = 0;
    for (int i = 0; i < 3; ++i) {
        const HostCall call;
        nested();
    }
    EXPECT_EQ(finder().lookUps, 3) << "no call counts as one inside another";
}

TEST_F(Procedure, EachApartmentBeginsWithTheSwitchesOfStartUp) {
    VBWPROTECTOR::startUp({.vbwTraceParameters = true}, &finder());
    protector().switches().vbwTraceParameters = false;
    nested();
    EXPECT_EQ(service().calls(), 4);
    service().forget();
    std::thread([] {
        nested();
        protector().vbwExitThread();
    }).join();
    EXPECT_EQ(service().calls(), 7);
    EXPECT_EQ(finder().lookUps, 2);
}

TEST_F(Procedure, TheEndOfTheThreadIsToldAndReleasesTheService) {
    nested();
    service().forget();
    const std::weak_ptr<RecordingService> watched = finder().offered;
    protector().vbwExitThread();
    EXPECT_EQ(service().reports(), std::vector<Text>{u"vbwExitThread: True"});
    finder().offered = nullptr;
    EXPECT_TRUE(watched.expired());

    finder().offered = std::make_shared<RecordingService>();
    nested();
    EXPECT_EQ(service().calls(), 4) << "a later report looks again";
    service().forget();
    service().failAt(1);
    protector().vbwExitThread();
    EXPECT_EQ(finder().offered.use_count(), 1) << "released although the service failed";
}

}  // namespace
}  // namespace quorvel

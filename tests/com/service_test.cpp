#include <utility>

#include "import_patch.h"
#include "recording_service.h"

namespace comtests {
namespace {

using Service = ServiceTest;

constexpr wchar_t kSettingsKey[] = L"Software\\VB and VBA Program Settings\\QuorvelTemplate\\Init";

/// The per-user trace setting while this lives; what it was comes back.
class TraceSetting {
public:
    explicit TraceSetting(const wchar_t* value) {
        wchar_t before[64] = {};
        DWORD size = sizeof(before);
        if (RegGetValueW(HKEY_CURRENT_USER, kSettingsKey, L"vbwTrace", RRF_RT_REG_SZ, nullptr, before, &size) == 0) {
            mBefore = before;
        }
        set(value);
    }
    TraceSetting(const TraceSetting&) = delete;
    TraceSetting& operator=(const TraceSetting&) = delete;
    ~TraceSetting() { set(mBefore ? mBefore->c_str() : nullptr); }

private:
    static void set(const wchar_t* value) {
        if (value == nullptr) {
            RegDeleteKeyValueW(HKEY_CURRENT_USER, kSettingsKey, L"vbwTrace");
        } else {
            RegSetKeyValueW(HKEY_CURRENT_USER, kSettingsKey, L"vbwTrace", REG_SZ, value,
                            static_cast<DWORD>((wcslen(value) + 1) * sizeof(wchar_t)));
        }
    }
    std::optional<std::wstring> mBefore;
};

bool isTracedByCommandLine() {
    return wcsstr(GetCommandLineW(), L"/trace") != nullptr;
}

/// What a host does with a year, an error included.
void useYear(const LateBoundObject& main) {
    const LateBoundObject year(objectOf(main.call(L"build", {+kYear, makeObject<FormattedText>().get()})));
    year.call(L"Parse", {L"[1990?]"});
    year.get(L"Supports", {6});
}

constexpr wchar_t kYearUsed[] =
    L"> Main2.build \n"
    L"> OutputTemplateYear.Initialize \n<\n<\n"
    L"> OutputTemplateYear.Parse \n"
    L"> OutputTemplateYear.parseAndRemoveYearType \n<\n<\n"
    L"> OutputTemplateYear.Supports[Get] \n"
    L"vbwBeforeDump()\n"
    L"vbwOpenDumpFile()\n"
    L"vbwReportToFile(Run-time error 9: Subscript out of range in "
    L"QuorvelTemplate.OutputTemplateYear.Supports[Get]\r\n)\n"
    L"vbwReportToFile(\r\n**************************\r\n* MODULE LEVEL VARIABLES *\r\n**************************\r\n)\n"
    L"vbwReportVariable(yearType, 2, 3)\n"
    L"vbwReportVariable(Year, 1990, 8)\n"
    L"vbwReportVariable(mSupportOptions, {True, True, False, False, False, False}, 8203)\n"
    L"vbwReportVariable(mNoDate, , 8)\n"
    L"vbwReportVariable(mCirca, , 8)\n"
    L"vbwReportVariable(mForthcomingStr, , 8)\n"
    L"vbwReportVariable(museEnDashForYearRange, , 8)\n"
    L"vbwCloseDumpFile()\n"
    L"vbwAfterDump()\n"
    L"<\n"
    L"vbwExitThread(True)\n";

TEST_F(Service, HearsOfEveryProcedureAndOfAnErrorInFull) {
    useYear(library.main2());
    EXPECT_EQ(service.taken(), kYearUsed);
    const LateBoundObject main = library.main2();
    main.call(L"buildSubformProxy");
    EXPECT_EQ(service.taken(), L"> Main2.buildSubformProxy ()\n<\n");
}

TEST_F(Service, DumpsTheVariablesOfEachClassInTheOrderOfTheirDeclaration) {
    struct Case {
        std::int32_t code;
        const wchar_t* property;
        std::int32_t outOfRange;
        const wchar_t* variables;
    };
    constexpr Case kCases[] = {
        {kYear, L"Supports", -1,
         L"yearType 3, Year 8, mSupportOptions 8203, mNoDate 8, mCirca 8, mForthcomingStr 8, museEnDashForYearRange 8"},
        {kPlace, L"Supports", 4,
         L"placeType 3, Place 8, mSupportOptions 8203, mRepeatLocationIfInPublisherName 11, mStates 8200, "
         L"mDefaultAbbreviations 8200, mExpandAbbreviations 11"},
        {kDateTime, L"value", 3,
         L"mFormattedStr 9, mOutputTemplate 9, mDateFormat 8, mParenthesize 11, mUseShortMonths 11, mValues 8200"},
    };
    for (const Case& c : kCases) {
        const LateBoundObject element = library.build(c.code, makeObject<FormattedText>().get());
        const std::size_t before = service.calls().size();
        element.get(c.property, {c.outOfRange});
        std::vector<std::wstring> variables;
        for (std::size_t i = before; i < service.calls().size(); ++i) {
            constexpr std::wstring_view kReport = L"vbwReportVariable(";
            const std::wstring& call = service.calls()[i];
            if (!call.starts_with(kReport)) continue;
            const std::size_t code = call.rfind(L", ") + 2;
            variables.push_back(call.substr(kReport.size(), call.find(L',') - kReport.size()) + L" " +
                                call.substr(code, call.size() - code - 1));
        }
        EXPECT_EQ(joined(variables, L", "), c.variables);
    }
}

TEST_F(Service, GetsTheObjectWhoseCallFailed) {
    const auto sink = makeObject<DispatchObject>();
    const LateBoundObject year = library.build(kYear, sink.get());
    year.call(L"ToFormattedString", {sink.get()});
    EXPECT_EQ(service.reportedObject, sink.get());
    EXPECT_EQ(service.takenErrors(), L"438 OutputTemplateYear.ToFormattedString");
}

TEST_F(Service, MayFailAtAnyReportWithoutLosingAnother) {
    const std::wstring expected = kYearUsed;
    useYear(library.main2());
    const std::size_t reports = service.calls().size();
    ASSERT_EQ(service.taken(), expected);
    for (std::size_t n = 1; n <= reports; ++n) {
        service.failAt = service.calls().size() + n;
        useYear(library.main2());
        EXPECT_EQ(service.taken(), expected) << "failing at report " << n;
    }
}

TEST_F(Service, IsLookedForAgainByEachCallAndAfterTheLastFactory) {
    host.reset();
    const LateBoundObject year = library.build(kYear);
    year.call(L"toString");
    EXPECT_EQ(service.taken(), L"");
    // The library looks again after a millisecond, after 50 where an installed host does not run.
    const auto appear = [&](const RecordingService& appearing) {
        host.emplace(appearing.object());
        Sleep(60);
    };
    appear(service);
    constexpr const wchar_t* kCall = L"> OutputTemplateYear.toString \n<\n";
    year.call(L"toString");
    EXPECT_EQ(service.taken(), kCall);
    // It is kept while the host's object is not to be found any more.
    host.reset();
    year.call(L"toString");
    EXPECT_EQ(service.taken(), kCall);
    const auto references = [&] {
        service.object()->AddRef();
        return service.object()->Release();
    };
    const ULONG held = references();
    {
        const LateBoundObject first = library.main2();
        { const LateBoundObject second = library.main2(); }
        EXPECT_EQ(service.taken(), L"") << "only the last factory counts";
    }
    EXPECT_EQ(service.taken(), L"vbwExitThread(True)\n");
    EXPECT_LT(references(), held) << "the service is let go";
    year.call(L"toString");
    EXPECT_EQ(service.taken(), L"");
    RecordingService other;
    appear(other);
    year.call(L"toString");
    EXPECT_EQ(service.taken(), L"");
    EXPECT_EQ(other.taken(), kCall);
}

TEST_F(Service, MayCallTheLibraryAndIsNotToldOfIt) {
    const LateBoundObject main = library.main2();
    const LateBoundObject year = library.build(kYear);
    int calls = 0;
    service.onCall = [&](const std::wstring&) {
        ++calls;
        useYear(main);
        year.call(L"Parse", {L"n.d."});
        year.get(L"Supports", {99});
    };
    service.taken();
    year.put(L"Year", L"1990");
    EXPECT_EQ(textOf(year.call(L"formatStr", {L"[1991]"})), L"") << "the service parsed something else last";
    EXPECT_EQ(service.taken(),
              L"> OutputTemplateYear.formatStr \n> OutputTemplateYear.Parse \n"
              L"> OutputTemplateYear.parseAndRemoveYearType \n<\n<\n> OutputTemplateYear.toString \n<\n<\n");
    EXPECT_EQ(calls, 8);
}

TEST_F(Service, MayEndTheHostWhileItListens) {
    LateBoundObject main = library.main2();
    const auto sink = makeObject<FormattedText>();
    LateBoundObject year(objectOf(main.call(L"build", {+kYear, sink.get()})));
    service.taken();
    service.onCall = [&](const std::wstring&) {
        main = LateBoundObject();
        year = LateBoundObject();
        host.reset();
    };
    IDispatch* const raw = year.dispatch();
    const DISPID id = idOf(raw, L"toString");
    Variant result;
    EXPECT_EQ(invoke(raw, id, DISPATCH_METHOD, {}, &result.get()), S_OK);
    // The end of the factory lets go of the service; nobody is there for the rest.
    EXPECT_EQ(service.taken(), L"> OutputTemplateYear.toString \n");
}

TEST_F(Service, OfAnyKindDoesNoHarm) {
    const auto mute = makeObject<DispatchObject>();
    for (IDispatch* const object : {static_cast<IDispatch*>(nullptr), static_cast<IDispatch*>(mute.get())}) {
        host.reset();
        host.emplace(object);
        useYear(library.main2());
        EXPECT_EQ(textOf(library.build(kYear).call(L"formatStr", {L"1990"})), L"1990");
    }
}

DWORD WINAPI useYearInAnotherApartment(void* loaded) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    useYear(static_cast<Library*>(loaded)->main2());
    CoUninitialize();
    return 0;
}

TEST_F(Service, EachThreadLooksForItsOwn) {
    const LateBoundObject main = library.main2();
    main.call(L"build", {18, Variant()});
    EXPECT_EQ(service.takenErrors(), L"91 Main2.build");
    HANDLE thread = CreateThread(nullptr, 0, useYearInAnotherApartment, &library, 0, nullptr);
    DWORD index = 0;
    // Its reports come through this apartment, which has to listen.
    EXPECT_EQ(CoWaitForMultipleHandles(0, 60000, 1, &thread, &index), S_OK);
    CloseHandle(thread);
    EXPECT_EQ(service.taken(), kYearUsed) << "its last factory is not the last one here";
    main.call(L"build", {18, Variant()});
    EXPECT_EQ(service.takenErrors(), L"91 Main2.build");
}

DWORD WINAPI buildThere(void* place) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    auto& [loaded, element] = *static_cast<std::pair<const Library*, LateBoundObject>*>(place);
    element = loaded->create(__uuidof(::OutputTemplateYear));
    CoUninitialize();
    return 0;
}

TEST_F(Service, IsLetGoWhereAnotherThreadsObjectEndedBefore) {
    const auto references = [&] {
        service.object()->AddRef();
        return service.object()->Release();
    };
    const ULONG before = references();
    std::pair<const Library*, LateBoundObject> place(&library, {});
    const HANDLE thread = CreateThread(nullptr, 0, buildThere, &place, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    // What no host should do: the object is released where it does not live.
    place.second = LateBoundObject();
    library.create(__uuidof(::OutputTemplateYear)).call(L"toString");
    EXPECT_EQ(service.taken(), L"> OutputTemplateYear.toString \n<\n");
    EXPECT_EQ(references(), before);
}

int theLooks = 0;

HRESULT WINAPI nothingRuns(REFCLSID, void*, IUnknown**) {
    ++theLooks;
    return MK_E_UNAVAILABLE;
}

TEST_F(Service, ThatDoesNotRunIsLookedForNowAndThen) {
    const ImportPatch patch(library.module(), "GetActiveObject", nothingRuns);
    const LateBoundObject year = library.build(kYear);
    constexpr int kCalls = 1000;
    for (int call = 0; call < kCalls; ++call) year.call(L"toString");
    EXPECT_GT(theLooks, 0);
    EXPECT_LT(theLooks, kCalls / 2);
}

TEST(Trace, IsSetOnceALoadByTheSettingOrTheCommandLine) {
    RecordingService service;
    const RunningBridgeToVB host(service.object());
    struct Case {
        const wchar_t* setting;
        bool isOn;
    };
    constexpr Case kCases[] = {{nullptr, false}, {L"0", false},  {L"", false},    {L"11", false},
                               {L"1", true},     {L"1 ", false}, {L"True", false}};
    constexpr wchar_t kTraced[] =
        L"vbwReportParameter(whichType, 6)\nvbwReportParameter(formattedString, Nothing)\n"
        L"> Main2.build (whichType=6:2, formattedString=Nothing:9) \n"
        L"vbwReportParameter(formattedStr, Nothing)\n"
        L"> OutputTemplateYear.Initialize (formattedStr=Nothing:9) \n<\n<\nvbwExitThread(True)\n"
        L"vbwReportParameter(text, [1990?])\nvbwReportParameter(previousStr, x)\n"
        L"> OutputTemplateYear.Parse (text=[1990?]:8, previousStr=x:8) \n"
        L"vbwReportParameter(text, [1990?])\n> OutputTemplateYear.parseAndRemoveYearType (text=[1990?]:8) \n<\n<\n"
        L"vbwReportParameter(code, 6)\n> OutputTemplateYear.Supports[Get] (code=6:3) \n";
    constexpr wchar_t kUntraced[] =
        L"> Main2.build \n> OutputTemplateYear.Initialize \n<\n<\nvbwExitThread(True)\n"
        L"> OutputTemplateYear.Parse \n> OutputTemplateYear.parseAndRemoveYearType \n<\n<\n"
        L"> OutputTemplateYear.Supports[Get] \n";
    for (const Case& c : kCases) {
        const TraceSetting setting(c.setting);
        const Library traced;
        const LateBoundObject year = traced.build(kYear);
        const TraceSetting changedLater(c.isOn ? L"0" : L"1");
        year.call(L"Parse", {L"[1990?]", L"x"});
        year.get(L"Supports", {6});
        const std::wstring reports = service.taken();
        const bool isOn = c.isOn || isTracedByCommandLine();
        EXPECT_EQ(reports.substr(0, reports.find(L"vbwBeforeDump")), isOn ? kTraced : kUntraced)
            << testing::PrintToString(std::wstring(c.setting != nullptr ? c.setting : L"no setting"));
        // An error goes on with the variables of the reporting itself.
        EXPECT_EQ(reports.find(L"vbwReportVariable(vbwTraceParameters, True, 11)") != std::wstring::npos, isOn);
    }
}

TEST_F(Service, AnErrorSaysWhatIsWrong) {
    const LateBoundObject main = library.main2(), year = library.build(kYear), volumes = library.build(10);
    const LateBoundObject model(objectOf(main.call(L"buildModelTemplate")));
    const auto sink = makeObject<FormattedText>();
    const auto empty = makeObject<DispatchObject>(), raising = makeObject<DispatchObject>();
    raising->addMethod(L"Add", [](const Arguments&, VARIANT&) -> HRESULT { throw ComError{E_FAIL, L"full"}; });
    raising->addMethod(L"Clone",
                       [](const Arguments&, VARIANT& result) { return result = Variant(L"me").release(), S_OK; });
    model.call(L"Initialize", {sink.get(), empty.get()});
    model.call(L"Reset", {2});
    struct Case {
        std::function<void()> call;
        const wchar_t* error;
    };
    const auto array = [](std::initializer_list<Variant> values) { return Variant::array(values); };
    const Case cases[] = {
        {[&] {
             year.call(L"Reset", {true, true, L"perhaps"});
         },
         L"13: Type mismatch: argument 3, supportYearGuess in"},
        {[&] { year.put(L"yearType", L"two"); }, L"13: Type mismatch: argument 1, the new value in"},
        {[&] { main.call(L"build", {6}); }, L"449: Argument not optional: argument 2, formattedString in"},
        {[&] {
             main.call(L"build", {6, sink.get(), 1});
         },
         L"450: Wrong number of arguments: 3 given, 2 taken in"},
        {[&] {
             main.call(L"build", {18, sink.get()});
         },
         L"91: Object variable not set: no class has the element type code 18"},
        {[&] { year.call(L"ToFormattedString", {empty.get()}); }, L"method: Add of the formatted text in"},
        {[&] { year.call(L"ToFormattedString", {raising.get()}); },
         L"440: full (SampleHost): Add of the formatted text in"},
        {[&] { library.build(kDateTime, raising.get()); },
         L"13: Type mismatch: the answer of Clone of the formatted text"},
        {[&] {
             volumes.call(L"Reset", {array({true, L"odd"})});
         },
         L"13: Type mismatch: element 1 of the array in"},
        {[&] {
             model.call(L"Add", {0, false, L"", array({L"", L"."})});
         },
         L"slot 0 has 2 separators; a list of it is 4 in"},
        {[&] {
             model.call(L"Add", {2, false, L"", array({L"", L"."})});
         },
         L"slot 2 comes where slot 1 is due in"},
    };
    for (const Case& c : cases) {
        service.taken();
        c.call();
        EXPECT_NE(service.taken().find(c.error), std::wstring::npos) << testing::PrintToString(std::wstring(c.error));
    }
}

}  // namespace
}  // namespace comtests

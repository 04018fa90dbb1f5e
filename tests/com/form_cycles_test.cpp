// Every form opened and closed again and again: nothing of the system's and nothing of the host's stays.

#include "form_stage.h"
#include "forms/handles.h"

namespace comtests {
namespace {

using quorvel::forms::test::Handles;

constexpr std::int32_t kForms = 19;
constexpr std::int32_t kNotes = 18;

/// Of each form. What a cycle leaves behind shows at a few of them; the soak has some ten thousand in all.
int cycles() {
    constexpr int kUsually = 25;
    constexpr int kSoaking = 600;
    const std::wstring commandLine = GetCommandLineW();
    return commandLine.find(L"--soak") != std::wstring::npos ? kSoaking : kUsually;
}

TEST(FormCycles, EachFormGivesBackWhatItTook) {
    const Library library;
    FormStage stage;
    stage.parentWindow.moveTo(20, 20);
    const LateBoundObject main = library.main2();
    const LateBoundObject proxy(objectOf(main.call(L"buildSubformProxy")));
    proxy.call(L"Initialize", {stage.callback.get(), 0});
    const auto sink = makeObject<FormattedText>();
    for (std::int32_t code = 0; code < kForms; ++code) {
        SCOPED_TRACE(code);
        const Variant element =
            code == kNotes ? Variant(static_cast<IDispatch*>(nullptr)) : main.call(L"build", {code, sink.get()});
        const auto cycle = [&] {
            proxy.call(L"ShowForm", {code, L"Product", Variant(static_cast<IDispatch*>(nullptr)), stage.parent.get(),
                                     element, Variant(static_cast<IDispatch*>(nullptr)), L"Smith, John, 1990", L""});
            EXPECT_NE(numberOf(proxy.get(L"hwnd")), 0);
            pumpMessages();
            proxy.call(L"HideForm", {std::int16_t{1}});
            pumpMessages();
            stage.taken();
        };
        for (int warm = 0; warm < 5; ++warm) cycle();
        const Handles before = Handles::now();
        const long objects = DispatchObject::liveObjects();
        for (int count = cycles(); count > 0; --count) cycle();
        const Handles after = Handles::now();
        EXPECT_LE(after.kernel, before.kernel);
        EXPECT_LE(after.drawing, before.drawing);
        EXPECT_LE(after.user, before.user);
        EXPECT_EQ(DispatchObject::liveObjects(), objects);
    }
}

}  // namespace
}  // namespace comtests

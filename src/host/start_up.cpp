#include "host/start_up.h"

#include <windows.h>

#include <mutex>
#include <string_view>

#include "core/vbwprotector.h"
#include "host/host_error_report_service.h"

namespace quorvel::host {

namespace {

// Where Visual Basic's own settings functions keep a program's settings.
constexpr wchar_t kSettingsSection[] = L"Software\\VB and VBA Program Settings\\QuorvelTemplate\\Init";
constexpr wchar_t kTraceSetting[] = L"vbwTrace";
constexpr std::wstring_view kTraceArgument = L"/trace";

bool isTraceSettingOn() {
    wchar_t value[2] = {};
    DWORD size = sizeof(value);
    const LSTATUS status =
        RegGetValueW(HKEY_CURRENT_USER, kSettingsSection, kTraceSetting, RRF_RT_REG_SZ, nullptr, value, &size);
    return status == ERROR_SUCCESS && std::wstring_view(value) == L"1";
}

bool isTraceArgumentGiven() {
    return std::wstring_view(GetCommandLineW()).find(kTraceArgument) != std::wstring_view::npos;
}

struct StartUp {
    // Letting go of a service runs the host's code, which may come here again.
    std::recursive_mutex mutex;
    bool isDone = false;
    RunningHostFinder finder;
};

StartUp& startUpState() {
    static StartUp state;
    return state;
}

}  // namespace

void startUp() {
    StartUp& state = startUpState();
    const std::scoped_lock lock(state.mutex);
    if (state.isDone) {
        return;
    }
    state.isDone = true;
    const bool isTraceOn = isTraceSettingOn() || isTraceArgumentGiven();
    TraceSwitches switches;
    switches.vbwTraceParameters = isTraceOn;
    switches.vbwTraceVariables = isTraceOn;
    switches.vbwTraceProc = true;
    VBWPROTECTOR::startUp(switches, &state.finder);
}

void shutDown() {
    StartUp& state = startUpState();
    const std::scoped_lock lock(state.mutex);
    state.isDone = false;
    state.finder.forget();
}

}  // namespace quorvel::host

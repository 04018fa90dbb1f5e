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

}  // namespace

void startUp() {
    static std::once_flag once;
    static RunningHostFinder finder;
    std::call_once(once, [] {
        const bool isTraceOn = isTraceSettingOn() || isTraceArgumentGiven();
        TraceSwitches switches;
        switches.vbwTraceParameters = isTraceOn;
        switches.vbwTraceVariables = isTraceOn;
        switches.vbwTraceProc = true;
        VBWPROTECTOR::startUp(switches, &finder);
    });
}

}  // namespace quorvel::host

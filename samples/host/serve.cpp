#include "serve.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iostream>

#include "com/bridge_to_vb.h"
#include "com/error_report_service.h"
#include "com/late_bound.h"
#include "text/text_io.h"

namespace sample {

namespace {

DWORD sMainThread = 0;

BOOL WINAPI onConsoleEvent(DWORD) {
    PostThreadMessageW(sMainThread, WM_QUIT, 0, 0);
    // The console ends the program when this returns: the main thread has that long to clean up.
    Sleep(5000);
    return TRUE;
}

std::shared_ptr<std::ostream> openReport(const std::wstring& file) {
    if (file.empty()) return std::shared_ptr<std::ostream>(&std::cout, [](std::ostream*) {});
    auto stream = std::make_shared<std::ofstream>(std::filesystem::path(file), std::ios::binary);
    if (!*stream) throw ComError{STG_E_ACCESSDENIED, file + L" cannot be written."};
    return stream;
}

/// A running program; none for an empty command.
HANDLE start(std::wstring command) {
    if (command.empty()) return nullptr;
    STARTUPINFOW startUp{};
    startUp.cb = sizeof startUp;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startUp, &process) == 0) {
        throw ComError{E_FAIL, command + L" cannot be started."};
    }
    CloseHandle(process.hThread);
    return process.hProcess;
}

/// Calls from other processes come as messages.
/// @return False when the service is to end
bool handleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
        if (message.message == WM_QUIT) return false;
        DispatchMessageW(&message);
    }
    return true;
}

}  // namespace

int serve(const std::wstring& file, const std::wstring& command) {
    const std::shared_ptr<std::ostream> report = openReport(file);
    const RunningBridgeToVB bridge([report] {
        return ComPointer<IDispatch>(
            makeObject<ErrorReportService>(report, ErrorReportService::Level::kProcedures).get());
    });
    if (!bridge.isFoundByEverybody()) {
        printError(L"SampleHost: run as an administrator, or programs that are will not find the service.\n");
    }
    sMainThread = GetCurrentThreadId();
    SetConsoleCtrlHandler(onConsoleEvent, TRUE);
    const HANDLE program = start(command);
    const DWORD handles = program != nullptr ? 1 : 0;
    while (handleMessages()) {
        if (MsgWaitForMultipleObjects(handles, &program, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0 + handles)
            break;
    }
    DWORD status = 0;
    if (program != nullptr) {
        GetExitCodeProcess(program, &status);
        CloseHandle(program);
    }
    return static_cast<int>(status);
}

}  // namespace sample

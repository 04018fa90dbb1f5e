/// A window to see the whole library: references, the forms that edit their fields, and what four styles write of them.
/// It uses the public interface alone, late-bound.

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

#include "data/data_file.h"
#include "document.h"
#include "window.h"

namespace sample {

namespace {

constexpr const wchar_t* kLibraryClass = L"QuorvelTemplate.Main2";
constexpr const wchar_t* kHowToRegister =
    L"The library is not registered on this computer.\n\n"
    L"Register it first, in the folder that holds it, and start the workbench again:\n\n"
    L"    regsvr32 QuorvelTemplate.dll";

int tell(const std::wstring& text) {
    MessageBoxW(nullptr, text.c_str(), L"Workbench", MB_OK | MB_ICONERROR);
    return 1;
}

int run(const std::vector<std::wstring>& arguments) {
    try {
        const LateBoundObject main = LateBoundObject::create(kLibraryClass);
        Document document(main);
        document.open(arguments.empty() ? dataFile("references.txt") : std::filesystem::path(arguments.front()));
        WorkbenchWindow window(main, document);
        window.run();
        return 0;
    } catch (const ComError& error) {
        const bool isUnknown = error.code == CO_E_CLASSSTRING || error.code == REGDB_E_CLASSNOTREG;
        return tell(isUnknown ? std::wstring(kHowToRegister) : error.message);
    }
}

std::vector<std::wstring> programArguments() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

}  // namespace

}  // namespace sample

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*before*/, PWSTR /*arguments*/, int /*show*/) {
    // As the user-interface thread of a host is.
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int status = sample::run(sample::programArguments());
    CoUninitialize();
    return status;
}

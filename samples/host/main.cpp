/// A host of the library, as small as one can be: it reads styles and references from text files,
/// lets the library format each element, and prints the results.

#include <windows.h>

#include <shellapi.h>

#include <fstream>
#include <memory>
#include <optional>

#include "bridge_to_vb.h"
#include "command_line.h"
#include "error_report_service.h"
#include "listings.h"
#include "references.h"
#include "styled_elements.h"
#include "text_io.h"

namespace sample {

namespace {

enum ExitStatus { kSuccess = 0, kBadInput = 1, kNotRegistered = 2, kCallFailed = 3, kNotReleased = 4 };

constexpr const wchar_t* kLibraryClass = L"QuorvelTemplate.Main2";
constexpr const wchar_t* kLibraryFile = L"QuorvelTemplate.dll";
constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};

std::vector<std::wstring> programArguments() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

// The data lie beside the program, or in the source folder when it is run from the project's own.
std::filesystem::path dataFile(const std::filesystem::path& name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path beside = std::filesystem::path(program).parent_path() / name;
    return exists(beside) ? beside : std::filesystem::path("samples") / "host" / name;
}

Style namedStyle(const std::wstring& name) {
    for (const wchar_t* known : kStyles) {
        if (name == known) return readStyle(dataFile(std::filesystem::path("styles") / (name + L".style")));
    }
    throw ComError{E_INVALIDARG, L"There is no style " + name + L": give mla, apa, turabian or ama."};
}

void formatReferences(const CommandLine& line, const std::vector<Style>& styles,
                      const std::vector<Reference>& references) {
    const LateBoundObject library = LateBoundObject::create(kLibraryClass);
    std::vector<StyledElements> elements;
    for (const Style& style : styles) elements.emplace_back(library, style);
    if (line.all) {
        printStylesSideBySide(elements, references);
    } else if (line.rtf) {
        printAsRtf(elements.front(), references);
    } else {
        printStyle(elements.front(), references);
    }
}

/// The error-report service and its place among the running objects, for as long as this lives.
struct ErrorReport {
    explicit ErrorReport(const std::wstring& file)
        : service(makeObject<ErrorReportService>(openReport(file))), bridge(service.get()) {}
    ~ErrorReport() { service->writeSummary(); }

    static std::shared_ptr<std::ostream> openReport(const std::wstring& file) {
        auto stream = std::make_shared<std::ofstream>(std::filesystem::path(file), std::ios::binary);
        if (!*stream) throw ComError{STG_E_ACCESSDENIED, file + L" cannot be written."};
        return stream;
    }

    ComPointer<ErrorReportService> service;
    RunningBridgeToVB bridge;
};

/// Everything is released by now: nothing of the host's may be held by the library, and the library
/// must be ready to go.
ExitStatus checkReleased() {
    ExitStatus status = kSuccess;
    if (DispatchObject::liveObjects() != 0) {
        printError(L"SampleHost: " + std::to_wstring(DispatchObject::liveObjects()) +
                   L" objects of the host were not released.\n");
        status = kNotReleased;
    }
    if (const HMODULE library = GetModuleHandleW(kLibraryFile)) {
        using CanUnloadNow = HRESULT(STDAPICALLTYPE*)();
        const auto canUnloadNow =
            reinterpret_cast<CanUnloadNow>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
        if (canUnloadNow == nullptr || canUnloadNow() != S_OK) {
            printError(L"SampleHost: the library still holds objects.\n");
            status = kNotReleased;
        }
    }
    CoFreeUnusedLibrariesEx(0, 0);
    return status;
}

ExitStatus run() {
    CommandLine line;
    std::vector<Style> styles;
    std::vector<Reference> references;
    try {
        line = readCommandLine(programArguments());
    } catch (const ComError& error) {
        printError(L"SampleHost: " + error.message + L" SampleHost --help says more.\n");
        return kBadInput;
    }
    if (line.help) {
        print(kUsage);
        return kSuccess;
    }
    try {
        if (line.all) {
            for (const wchar_t* name : kStyles) styles.push_back(namedStyle(name));
        } else {
            styles.push_back(namedStyle(line.style));
        }
        references = readReferences(line.referencesFile.empty() ? dataFile("references.txt")
                                                                : std::filesystem::path(line.referencesFile));
    } catch (const ComError& error) {
        printError(L"SampleHost: " + error.message + L"\n");
        return kBadInput;
    }
    try {
        std::optional<ErrorReport> report;
        if (!line.reportFile.empty()) report.emplace(line.reportFile);
        formatReferences(line, styles, references);
    } catch (const ComError& error) {
        printError(L"SampleHost: " + error.message + L"\n");
        if (error.code != CO_E_CLASSSTRING && error.code != REGDB_E_CLASSNOTREG) return kCallFailed;
        printError(L"Register the library first: regsvr32 QuorvelTemplate.dll\n");
        return kNotRegistered;
    }
    return checkReleased();
}

}  // namespace

}  // namespace sample

int main() {
    // The library works in a single-threaded apartment, as the host's user-interface thread is one.
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return sample::kCallFailed;
    const int status = sample::run();
    CoUninitialize();
    return status;
}

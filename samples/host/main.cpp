/// A host of the library, as small as one can be: it reads styles and references from text files, has the library write
/// the references, and prints the list.

#include <windows.h>

#include <shellapi.h>

#include <fstream>
#include <memory>
#include <optional>

#include "com/bridge_to_vb.h"
#include "com/error_report_service.h"
#include "command_line.h"
#include "data/data_file.h"
#include "serve.h"
#include "text/text_io.h"
#include "writing/reference_list.h"

namespace sample {

namespace {

enum ExitStatus { kSuccess = 0, kBadInput = 1, kNotRegistered = 2, kCallFailed = 3, kNotReleased = 4 };

constexpr const wchar_t* kLibraryClass = L"QuorvelTemplate.Main2";
constexpr const wchar_t* kLibraryFile = L"QuorvelTemplate.dll";

std::vector<std::wstring> programArguments() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

Style namedStyle(const std::wstring& name) {
    return readStyle(dataFile(std::filesystem::path("styles") / (name + L".style")));
}

std::vector<ListedReference> written(const LateBoundObject& library, const Style& style,
                                     const std::vector<Reference>& references, const CommandLine& line) {
    ReferenceWriter writer(library, style);
    const std::vector<Reference> lettered = withYearLetters(writer, references);
    if (!line.citations) return listed(writer, lettered, line.form);
    CitationWriter citations(library, style);
    return cited(citations, lettered);
}

void printLists(const CommandLine& line, const std::vector<Style>& styles, const std::optional<Style>& from,
                std::vector<Reference> references) {
    const LateBoundObject library = LateBoundObject::create(kLibraryClass);
    if (from) {
        ReferenceWriter writer(library, *from);
        references = elementTexts(writer, references);
    }
    std::vector<RtfParagraph> paragraphs;
    for (const Style& style : styles) {
        const std::vector<ListedReference> list = written(library, style, references, line);
        if (line.rtf) {
            const std::vector<RtfParagraph> more = rtfParagraphs(style.manual, list);
            paragraphs.insert(paragraphs.end(), more.begin(), more.end());
        } else {
            print(style.manual + L"\n\n" + plainText(list) + L"\n");
        }
    }
    if (line.rtf) print(fromUtf8(rtfDocument(paragraphs)));
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

int run() {
    CommandLine line;
    std::vector<Style> styles;
    std::optional<Style> from;
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
    if (line.serve) {
        try {
            return serve(line.reportFile, line.command);
        } catch (const ComError& error) {
            printError(L"SampleHost: " + error.message + L"\n");
            return kCallFailed;
        }
    }
    try {
        for (const std::wstring& name : line.styles) styles.push_back(namedStyle(name));
        if (!line.from.empty()) from = namedStyle(line.from);
        references = readReferences(line.referencesFile.empty() ? dataFile("references.txt")
                                                                : std::filesystem::path(line.referencesFile));
    } catch (const ComError& error) {
        printError(L"SampleHost: " + error.message + L"\n");
        return kBadInput;
    }
    try {
        std::optional<ErrorReport> report;
        if (!line.reportFile.empty()) report.emplace(line.reportFile);
        printLists(line, styles, from, std::move(references));
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

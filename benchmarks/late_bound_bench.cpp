// What a host pays that calls the library late-bound: one plain line for each figure, name, value, unit. The sample
// host's own objects do the calling. The library must be registered; styles and references lie beside the program.
// usage: LateBoundBench             the figures
//        LateBoundBench --memory    what a million references leave behind

#include <windows.h>

#include <psapi.h>

#include <chrono>
#include <cstdio>
#include <sstream>
#include <string_view>

#include "com/bridge_to_vb.h"
#include "com/error_report_service.h"
#include "data/data_file.h"
#include "data/references.h"
#include "text/text_io.h"
#include "writing/reference_writer.h"
#include "writing/styled_elements.h"

namespace {

using namespace sample;

constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};

Style styleNamed(const std::wstring& name) {
    return readStyle(dataFile(L"styles/" + name + L".style"));
}

/// Seconds that the body takes, run this often.
template <class Body>
double secondsOf(int times, Body body) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i) body();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void measureYear(const LateBoundObject& library) {
    constexpr int kCalls = 50'000;
    const Style style = styleNamed(L"apa");
    StyledElements elements(library, style);
    const StyledElement& year = *elements.element(L"year", findField(L"year")->elementCode);
    const LateBoundMember formatStr = year.object.member(L"formatStr");
    const Variant text(L"[c. 1990]");
    const double parseAndFormat = secondsOf(kCalls, [&] {
        year.parse({text});
        year.toString({});
    });
    std::printf("lateBound/parseAndFormatYear %.3g us\n", parseAndFormat / kCalls * 1e6);
    std::printf("lateBound/formatStrOfYear %.3g us\n", secondsOf(kCalls, [&] { formatStr({text}); }) / kCalls * 1e6);
}

/// Whole references a second, each with its elements read and written, over the references of the sample.
void measureReferences(const LateBoundObject& library, const std::vector<Reference>& references, const char* name,
                       int rounds) {
    for (const wchar_t* style : kStyles) {
        ReferenceWriter writer(library, styleNamed(style));
        const auto sink = makeObject<FormattedText>();
        const auto writeAll = [&] {
            for (const Reference& reference : references) {
                sink->reset();
                writer.write(reference, Form::kList, *sink);
            }
        };
        writeAll();
        const double seconds = secondsOf(rounds, writeAll);
        std::printf("%s/%s %.3g /s\n", name, toUtf8(style).c_str(),
                    rounds * static_cast<double>(references.size()) / seconds);
    }
}

std::size_t privateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

void measureMemory(const LateBoundObject& library, const std::vector<Reference>& references) {
    constexpr int kReferences = 1'000'000;
    ReferenceWriter writer(library, styleNamed(L"turabian"));
    const auto sink = makeObject<FormattedText>();
    for (int i = 0; i <= kReferences; ++i) {
        if (i % (kReferences / 10) == 0) std::printf("memory/after%d %zu KB\n", i, privateBytes() / 1024);
        sink->reset();
        const Reference& reference = references[static_cast<std::size_t>(i) % references.size()];
        writer.write(reference, i % 2 == 0 ? Form::kList : Form::kNote, *sink);
    }
}

void run(bool isMemory) {
    const LateBoundObject library = LateBoundObject::create(L"QuorvelTemplate.Main2");
    const std::vector<Reference> references = readReferences(dataFile("references.txt"));
    if (isMemory) {
        measureMemory(library, references);
        return;
    }
    measureYear(library);
    measureReferences(library, references, "lateBound/wholeReferences", 60);
    const auto service = makeObject<ErrorReportService>(std::make_shared<std::ostringstream>());
    const RunningBridgeToVB bridge(service.get());
    measureReferences(library, references, "lateBound/wholeReferencesWithService", 10);
}

}  // namespace

int main(int count, char** arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        run(count > 1 && std::string_view(arguments[1]) == "--memory");
    } catch (const ComError& error) {
        printError(error.message + L"\n");
        status = 1;
    }
    CoUninitialize();
    return status;
}

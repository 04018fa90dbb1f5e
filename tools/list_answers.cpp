// What the registered library answers to every cell of tables, in every style and from every element: printed, so
// that the answers of two builds can be held against each other. Most cells are no text of the element that they go
// to; that too has one answer only.
// usage: ListAnswers TABLE...    tab-separated, in UTF-8

#include <windows.h>

#include <shellapi.h>

#include <set>

#include "data/data_file.h"
#include "data/fields.h"
#include "text/formatted_text.h"
#include "text/text_io.h"
#include "writing/styled_elements.h"

namespace {

using namespace sample;

constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};

std::set<std::wstring> cellsOf(const std::wstring& file) {
    std::set<std::wstring> cells;
    const std::wstring text = readTextFile(file);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find_first_of(L"\t\n", at);
        cells.insert(text.substr(at, end - at));
        at = end == std::wstring::npos ? text.size() : end + 1;
    }
    return cells;
}

std::string answersOf(const StyledElement& element, const std::wstring& cell) {
    const auto sink = makeObject<FormattedText>();
    element.parse({Variant(cell)});
    element.toFormattedString({Variant(sink.get()), false, false});
    std::string answers = sink->toRtfBody();
    for (const auto& [isNote, isShort] : {std::pair(false, false), std::pair(true, false), std::pair(true, true)}) {
        answers += "\t" + toUtf8(textOf(element.toString({isNote, isShort})));
    }
    // Not every element has it.
    const CallResult other = element.object.tryCall(L"formatStr", DISPATCH_METHOD, {cell});
    return answers + "\t" + (other.ok() ? toUtf8(textOf(other.value)) : "");
}

void printAnswers(const LateBoundObject& library, const Style& style, const std::set<std::wstring>& cells) {
    StyledElements elements(library, style);
    std::set<std::pair<std::wstring, std::int16_t>> done;
    for (const Field& field : fields()) {
        if (field.elementCode == kNoElement || !done.insert({field.element, field.elementCode}).second) continue;
        const StyledElement* element = elements.element(field.element, field.elementCode);
        if (element == nullptr) continue;
        for (const std::wstring& cell : cells) {
            std::printf("%s\t%s\t%s\t%s\n", toUtf8(style.name).c_str(), toUtf8(field.name).c_str(),
                        toUtf8(cell).c_str(), answersOf(*element, cell).c_str());
        }
    }
}

void run() {
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::set<std::wstring> cells;
    for (int i = 1; i < count; ++i) cells.merge(cellsOf(arguments[i]));
    LocalFree(arguments);
    const LateBoundObject library = LateBoundObject::create(L"QuorvelTemplate.Main2");
    for (const wchar_t* style : kStyles) {
        printAnswers(library, readStyle(dataFile(std::filesystem::path("styles") / (std::wstring(style) + L".style"))),
                     cells);
    }
}

}  // namespace

int main() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        run();
    } catch (const ComError& error) {
        printError(error.message + L"\n");
        status = 1;
    }
    CoUninitialize();
    return status;
}

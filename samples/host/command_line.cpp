#include "command_line.h"

#include "variant.h"

namespace sample {

const wchar_t* const kUsage =
    L"Formats the elements of references with the QuorvelTemplate library.\n"
    L"\n"
    L"  SampleHost --style mla|apa|turabian|ama [--rtf] [FILE]\n"
    L"      each element as it stands in the reference list and in a note; with --rtf as a\n"
    L"      document that a word processor opens\n"
    L"  SampleHost --all [FILE]\n"
    L"      the four styles side by side\n"
    L"\n"
    L"  FILE           a references file; without it the references that come with the sample\n"
    L"  --report FILE  offers the library an error-report service that writes to FILE\n"
    L"  --help         this text\n"
    L"\n"
    L"Exit status: 0 success, 1 wrong arguments or unreadable data, 2 the library is not\n"
    L"registered, 3 a call failed, 4 an object was not released.\n";

CommandLine readCommandLine(const std::vector<std::wstring>& arguments) {
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring& argument = arguments[i];
        const auto value = [&] {
            if (i + 1 == arguments.size()) throw ComError{E_INVALIDARG, argument + L" needs a value."};
            return arguments[++i];
        };
        if (argument == L"--help") {
            line.help = true;
        } else if (argument == L"--all") {
            line.all = true;
        } else if (argument == L"--rtf") {
            line.rtf = true;
        } else if (argument == L"--style") {
            line.style = value();
        } else if (argument == L"--report") {
            line.reportFile = value();
        } else if (argument.starts_with(L"--")) {
            throw ComError{E_INVALIDARG, L"There is no option " + argument + L"."};
        } else if (!line.referencesFile.empty()) {
            throw ComError{E_INVALIDARG, L"Only one references file can be given."};
        } else {
            line.referencesFile = argument;
        }
    }
    if (line.help) return line;
    if (line.all == !line.style.empty()) throw ComError{E_INVALIDARG, L"Give either --all or one --style."};
    if (line.all && line.rtf) throw ComError{E_INVALIDARG, L"--rtf writes one style: give it with --style."};
    return line;
}

}  // namespace sample

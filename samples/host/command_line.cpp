#include "command_line.h"

#include "com/variant.h"

namespace sample {

namespace {

constexpr const wchar_t* kStyles[] = {L"mla", L"apa", L"turabian", L"ama"};

std::wstring styleNamed(const std::wstring& name) {
    for (const wchar_t* known : kStyles) {
        if (CompareStringOrdinal(name.c_str(), -1, known, -1, TRUE) == CSTR_EQUAL) return known;
    }
    throw ComError{E_INVALIDARG, L"There is no style " + name + L": give mla, apa, turabian or ama."};
}

}  // namespace

const wchar_t* const kUsage =
    L"Writes references with the QuorvelTemplate library.\n"
    L"\n"
    L"  SampleHost --all [FILE]\n"
    L"      the list of references in the four styles, each in the order that its manual asks for\n"
    L"  SampleHost --style mla|apa|turabian|ama [--notes|--citations] [FILE]\n"
    L"      the list in one style, its notes (Turabian), or the short citations of its references,\n"
    L"      the first of each and a later one where that is shorter\n"
    L"  SampleHost --switch FROM,TO [FILE]\n"
    L"      the list in the style TO, its elements read from a finished list in the style FROM\n"
    L"  SampleHost --serve [--report FILE] [--run COMMAND...]\n"
    L"      is the error-report service of all programs that use the library, scripts included: prints the\n"
    L"      tree of procedures and every error, until Ctrl+C is pressed or the COMMAND has ended\n"
    L"\n"
    L"  FILE           a references file; without it the references that come with the sample\n"
    L"  --rtf          a document that a word processor opens, instead of plain text\n"
    L"  --report FILE  offers the library an error-report service that writes to FILE\n"
    L"  --help         this text\n"
    L"\n"
    L"Text is UTF-8. Exit status: 0 success, 1 wrong arguments or unreadable data, 2 the library\n"
    L"is not registered, 3 a call failed, 4 an object was not released.\n";

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
            return line;
        }
        if (argument == L"--all") {
            line.styles.insert(line.styles.end(), std::begin(kStyles), std::end(kStyles));
        } else if (argument == L"--style") {
            line.styles.push_back(styleNamed(value()));
        } else if (argument == L"--switch") {
            const std::wstring both = value();
            const std::size_t comma = both.find(L',');
            if (comma == std::wstring::npos) throw ComError{E_INVALIDARG, L"--switch needs two styles: mla,apa."};
            line.from = styleNamed(both.substr(0, comma));
            line.styles.push_back(styleNamed(both.substr(comma + 1)));
        } else if (argument == L"--notes") {
            line.form = Form::kNote;
        } else if (argument == L"--citations") {
            line.citations = true;
        } else if (argument == L"--rtf") {
            line.rtf = true;
        } else if (argument == L"--report") {
            line.reportFile = value();
        } else if (argument == L"--serve") {
            line.serve = true;
        } else if (argument == L"--run") {
            while (++i < arguments.size())
                line.command += (line.command.empty() ? L"\"" : L" \"") + arguments[i] + L"\"";
        } else if (argument.starts_with(L"--")) {
            throw ComError{E_INVALIDARG, L"There is no option " + argument + L"."};
        } else if (!line.referencesFile.empty()) {
            throw ComError{E_INVALIDARG, L"Only one references file can be given."};
        } else {
            line.referencesFile = argument;
        }
    }
    if (line.styles.empty() && !line.serve) throw ComError{E_INVALIDARG, L"Give --all, --style, --switch or --serve."};
    return line;
}

}  // namespace sample

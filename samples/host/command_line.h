#pragma once

#include <string>
#include <vector>

#include "data/style.h"

namespace sample {

/// What the user asked for.
struct CommandLine {
    bool help = false;
    /// The styles whose lists are printed, by the names of their files.
    std::vector<std::wstring> styles;
    /// Not empty: the elements are read from a finished list of this style.
    std::wstring from;
    Form form = Form::kList;
    /// Short citations instead.
    bool citations = false;
    bool rtf = false;
    /// Be the error-report service of other programs, and run this command meanwhile, if there is one.
    bool serve = false;
    std::wstring command;
    /// Where the error report goes; empty: no error-report service.
    std::wstring reportFile;
    /// Empty: the references that come with the sample.
    std::wstring referencesFile;
};

extern const wchar_t* const kUsage;

/// @param arguments without the program's name
/// @throws ComError with a message for the user
CommandLine readCommandLine(const std::vector<std::wstring>& arguments);

}  // namespace sample

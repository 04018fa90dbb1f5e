#pragma once

#include <string>
#include <vector>

namespace sample {

/// What the user asked for.
struct CommandLine {
    bool help = false;
    /// All styles side by side; else the one named below.
    bool all = false;
    std::wstring style;
    bool rtf = false;
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

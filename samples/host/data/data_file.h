#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace sample {

/// What is wrong with a line of a data file, in words.
struct Fault {
    std::wstring words;
};

/// Reads one line from left to right, in words and texts in quotation marks. A # outside a text begins a comment.
class LineReader {
public:
    explicit LineReader(std::wstring_view line) : mRest(line) { skipBlanks(); }

    bool atEnd() const { return mRest.empty() || mRest.front() == L'#'; }
    /// Takes this character if it is the next one.
    bool take(wchar_t character);
    bool isNext(wchar_t character) const { return !mRest.empty() && mRest.front() == character; }
    /// A run of other characters than blanks, quotation marks and = ~ # , | [ ]
    std::wstring word();
    /// A text in quotation marks, where one begins; a quotation mark in it is written twice.
    std::optional<std::wstring> text();
    /// A text that has to stand here.
    std::wstring neededText();
    /// @throws Fault when there is more on the line
    void end() const;

private:
    void skipBlanks();

    std::wstring_view mRest;
};

/// Calls the function with each line of a text file, without the blanks around it, and its number. A fault that leaves
/// the function names file and line.
/// @throws ComError with a message for the user
void forEachLine(const std::filesystem::path& file,
                 const std::function<void(std::wstring_view line, int number)>& function);

/// The fault of a file, at a line of it or, with 0, of the whole.
[[noreturn]] void throwFault(const std::filesystem::path& file, int number, const std::wstring& words);

/// Where a file of the sample lies: beside the program, or in the source folder when that is run from the project's
/// own.
std::filesystem::path dataFile(const std::filesystem::path& name);

std::wstring_view trimmed(std::wstring_view text);

}  // namespace sample

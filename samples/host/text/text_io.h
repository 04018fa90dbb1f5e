#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Text in files and on the console: UTF-8 outside, UTF-16 inside.
namespace sample {

std::string toUtf8(std::wstring_view text);
std::wstring fromUtf8(std::string_view text);

/// A whole text file; line ends become "\n" and a byte order mark is dropped.
/// @throws ComError with a message that names the file
std::wstring readTextFile(const std::filesystem::path& file);

/// Writes to the console as it is, and to a file or pipe as UTF-8.
void print(std::wstring_view text);
/// The same for messages about what went wrong.
void printError(std::wstring_view text);

}  // namespace sample

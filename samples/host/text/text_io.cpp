#include "text/text_io.h"

#include <windows.h>

#include <fstream>
#include <iterator>

#include "com/variant.h"

namespace sample {

namespace {

void printTo(DWORD handleName, std::wstring_view text) {
    const HANDLE handle = GetStdHandle(handleName);
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode)) {
        WriteConsoleW(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
        return;
    }
    const std::string bytes = toUtf8(text);
    WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring fromUtf8(std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, bytes.data(), length, text.data(), size);
    return text;
}

std::wstring readTextFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.good()) throw ComError{STG_E_FILENOTFOUND, file.wstring() + L" cannot be read."};
    std::wstring text = fromUtf8(bytes);
    if (text.starts_with(L'\uFEFF')) text.erase(0, 1);
    std::erase(text, L'\r');
    return text;
}

void print(std::wstring_view text) {
    printTo(STD_OUTPUT_HANDLE, text);
}

void printError(std::wstring_view text) {
    printTo(STD_ERROR_HANDLE, text);
}

}  // namespace sample

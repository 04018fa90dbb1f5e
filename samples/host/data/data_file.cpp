#include "data/data_file.h"

#include <algorithm>

#include "com/variant.h"
#include "text/text_io.h"

namespace sample {

namespace {

constexpr const wchar_t* kBlanks = L" \t";
constexpr const wchar_t* kWordEnds = L" \t=~#,|[]\"";

}  // namespace

bool LineReader::take(wchar_t character) {
    if (!isNext(character)) return false;
    mRest.remove_prefix(1);
    skipBlanks();
    return true;
}

std::wstring LineReader::word() {
    const std::size_t end = std::min(mRest.find_first_of(kWordEnds), mRest.size());
    if (end == 0) throw Fault{L"a name or a value is missing"};
    std::wstring result(mRest.substr(0, end));
    mRest.remove_prefix(end);
    skipBlanks();
    return result;
}

std::optional<std::wstring> LineReader::text() {
    if (!isNext(L'"')) return std::nullopt;
    std::wstring result;
    for (std::size_t i = 1; i < mRest.size(); ++i) {
        if (mRest[i] == L'"') {
            if (mRest.substr(i + 1, 1) != L"\"") {
                mRest.remove_prefix(i + 1);
                skipBlanks();
                return result;
            }
            ++i;
        }
        result += mRest[i];
    }
    throw Fault{L"the closing quotation mark is missing"};
}

std::wstring LineReader::neededText() {
    std::optional<std::wstring> result = text();
    if (!result) throw Fault{L"a text in quotation marks is missing"};
    return *std::move(result);
}

void LineReader::end() const {
    if (!atEnd()) throw Fault{L"there is more on the line than belongs there"};
}

void LineReader::skipBlanks() {
    mRest.remove_prefix(std::min(mRest.find_first_not_of(kBlanks), mRest.size()));
}

void forEachLine(const std::filesystem::path& file,
                 const std::function<void(std::wstring_view line, int number)>& function) {
    const std::wstring text = readTextFile(file);
    std::size_t start = 0;
    for (int number = 1; start < text.size(); ++number) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        try {
            function(trimmed(std::wstring_view(text).substr(start, end - start)), number);
        } catch (const Fault& fault) {
            throwFault(file, number, fault.words);
        }
        start = end + 1;
    }
}

void throwFault(const std::filesystem::path& file, int number, const std::wstring& words) {
    const std::wstring line = number == 0 ? std::wstring() : L", line " + std::to_wstring(number);
    throw ComError{E_INVALIDARG, file.wstring() + line + L": " + words + L"."};
}

std::filesystem::path dataFile(const std::filesystem::path& name) {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::filesystem::path beside = std::filesystem::path(program).parent_path() / name;
    return exists(beside) ? beside : std::filesystem::path("samples") / "host" / name;
}

std::wstring_view trimmed(std::wstring_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    const std::size_t last = text.find_last_not_of(kBlanks);
    return text.substr(0, last == std::wstring_view::npos ? 0 : last + 1);
}

}  // namespace sample

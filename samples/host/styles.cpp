#include "styles.h"

#include <algorithm>
#include <optional>

#include "elements.h"
#include "text_io.h"

namespace sample {

namespace {

// A word of a style file ends at one of these.
constexpr const wchar_t* kWordEnds = L" \t=#,[]\"";

/// What is wrong with a line, in words.
struct Fault {
    std::wstring words;
};

/// Reads one line from left to right.
class LineReader {
public:
    explicit LineReader(std::wstring_view line) : mRest(line) { skipBlanks(); }

    bool atEnd() const { return mRest.empty() || mRest.front() == L'#'; }

    bool take(wchar_t character) {
        if (mRest.empty() || mRest.front() != character) return false;
        mRest.remove_prefix(1);
        skipBlanks();
        return true;
    }

    std::wstring word() {
        const std::size_t end = std::min(mRest.find_first_of(kWordEnds), mRest.size());
        if (end == 0) throw Fault{L"a name or a value is missing"};
        std::wstring result(mRest.substr(0, end));
        mRest.remove_prefix(end);
        skipBlanks();
        return result;
    }

    /// A text in quotation marks, where one begins.
    std::optional<std::wstring> text() {
        if (mRest.empty() || mRest.front() != L'"') return std::nullopt;
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

private:
    void skipBlanks() { mRest.remove_prefix(std::min(mRest.find_first_not_of(L" \t"), mRest.size())); }

    std::wstring_view mRest;
};

Variant plainValue(LineReader& line) {
    if (const std::optional<std::wstring> text = line.text()) return Variant(*text);
    const std::wstring word = line.word();
    if (word == L"true") return Variant(true);
    if (word == L"false") return Variant(false);
    const std::size_t digits = word.front() == L'-' ? 1 : 0;
    const bool isNumber =
        word.size() > digits && word.size() < 9 && word.find_first_not_of(L"0123456789", digits) == std::wstring::npos;
    if (!isNumber) {
        throw Fault{L"\"" + word + L"\" is neither true, false nor a number; texts stand in quotation marks"};
    }
    return Variant(static_cast<std::int32_t>(std::stol(word)));
}

Variant listValue(LineReader& line) {
    std::vector<Variant> values;
    if (!line.take(L']')) {
        do {
            values.push_back(plainValue(line));
        } while (line.take(L','));
        if (!line.take(L']')) throw Fault{L"the closing bracket is missing"};
    }
    return Variant::array(values);
}

StyleOption readOption(LineReader& line) {
    StyleOption option;
    const std::wstring name = line.word();
    const std::size_t dot = name.find(L'.');
    if (dot == std::wstring::npos) throw Fault{L"the name is not of the form element.option"};
    option.element = name.substr(0, dot);
    option.name = name.substr(dot + 1);
    if (option.element != L"style" && findElementKind(option.element) == nullptr) {
        throw Fault{L"there is no element named " + option.element};
    }
    if (!line.take(L'=')) throw Fault{L"there is no = after the name"};
    if (line.take(L'@')) {
        option.valueElement = line.word();
        if (findElementKind(option.valueElement) == nullptr) {
            throw Fault{L"there is no element named " + option.valueElement};
        }
    } else {
        option.value = line.take(L'[') ? listValue(line) : plainValue(line);
    }
    if (!line.atEnd()) throw Fault{L"there is more on the line than one value"};
    return option;
}

}  // namespace

std::vector<StyleOption> Style::optionsOf(std::wstring_view element) const {
    std::vector<StyleOption> found;
    for (const StyleOption& option : options) {
        if (option.element == element) found.push_back(option);
    }
    return found;
}

Style readStyle(const std::filesystem::path& file) {
    Style style;
    const std::wstring text = readTextFile(file);
    std::size_t start = 0;
    for (int number = 1; start < text.size(); ++number) {
        const std::size_t end = std::min(text.find(L'\n', start), text.size());
        LineReader line(std::wstring_view(text).substr(start, end - start));
        start = end + 1;
        if (line.atEnd()) continue;
        try {
            StyleOption option = readOption(line);
            if (option.element != L"style") {
                style.options.push_back(std::move(option));
            } else if (option.name == L"name") {
                style.name = textOf(option.value);
            } else if (option.name == L"manual") {
                style.manual = textOf(option.value);
            } else {
                throw Fault{L"a style has only a name and a manual"};
            }
        } catch (const Fault& fault) {
            throw ComError{E_INVALIDARG,
                           file.wstring() + L", line " + std::to_wstring(number) + L": " + fault.words + L"."};
        }
    }
    if (style.name.empty()) throw ComError{E_INVALIDARG, file.wstring() + L": style.name is missing."};
    return style;
}

}  // namespace sample

#include "platform/windows_dates.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <memory>
#include <string>

#include "platform/date_limits.h"

namespace quorvel {

namespace {

constexpr LCID kUsEnglish = 0x409;

// Patterns are written in the invariant locale: its names are the English ones, and "/" stays "/",
// where the platform would put the user's own date mark for US English.
constexpr LCID kForPatterns = LOCALE_INVARIANT;

// The platform's limit for the tokens of a pattern, whose first byte is their length.
constexpr std::size_t kTokenBytes = 256;

// OLE's text parameters are not const, though they are not written to. Wine's date reader looks one
// character past the end of a text that ends with "a" or "p": there has to be one.
std::wstring forPlatform(TextView text) {
    std::wstring result(text.begin(), text.end());
    result.append(2, L'\0');
    return result;
}

struct FreeBstr {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};
using OwnedBstr = std::unique_ptr<OLECHAR, FreeBstr>;

}  // namespace

std::optional<DateValue> WindowsDates::parse(TextView text) const {
    if (!mayBeDate(text)) {
        return std::nullopt;
    }
    std::wstring platformText = forPlatform(text);
    DATE date = 0;
    const HRESULT result = VarDateFromStr(platformText.data(), kUsEnglish, LOCALE_NOUSEROVERRIDE, &date);
    return SUCCEEDED(result) ? std::optional<DateValue>(date) : std::nullopt;
}

Text WindowsDates::format(DateValue date, TextView pattern) const {
    if (!canFormat(date, pattern)) {
        return {};
    }
    std::wstring platformPattern = forPlatform(pattern.empty() ? kShortDatePattern : pattern);
    std::array<BYTE, kTokenBytes> tokens{};
    int actual = 0;
    if (FAILED(VarTokenizeFormatString(platformPattern.data(), tokens.data(), static_cast<int>(tokens.size()),
                                       /*first day: Sunday*/ 1, /*first week: of 1 January*/ 1, kForPatterns,
                                       &actual))) {
        return {};
    }
    VARIANT value{};
    value.vt = VT_DATE;
    value.date = date;
    BSTR written = nullptr;
    const HRESULT result =
        VarFormatFromTokens(&value, platformPattern.data(), tokens.data(), 0, &written, kForPatterns);
    const OwnedBstr owner(written);
    return SUCCEEDED(result) && written != nullptr ? Text(written, written + SysStringLen(written)) : Text();
}

}  // namespace quorvel

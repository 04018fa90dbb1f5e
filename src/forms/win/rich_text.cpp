#include "forms/win/rich_text.h"

#include <richedit.h>

#include <string>

#include "forms/win/font.h"
#include "forms/win/painting.h"
#include "forms/win/wide.h"

namespace quorvel::forms::win::rich_text {

namespace {

constexpr TextView kDocumentStart = u"{\\rtf";
constexpr UINT kUnicode = 1200;

/// RTF is ASCII; what is beyond it is written by its number, signed and followed by what older readers show.
std::string toAscii(TextView document) {
    std::string ascii;
    ascii.reserve(document.size());
    for (const char16_t unit : document) {
        if (unit < 0x80) {
            ascii += static_cast<char>(unit);
        } else {
            ascii += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
        }
    }
    return ascii;
}

void load(HWND box, TextView document) {
    SETTEXTEX how = {ST_DEFAULT, CP_ACP};
    if (startsWith(document, kDocumentStart)) {
        const std::string ascii = toAscii(document);
        SendMessageW(box, EM_SETTEXTEX, reinterpret_cast<WPARAM>(&how), reinterpret_cast<LPARAM>(ascii.c_str()));
    } else {
        const Text plain(document);
        how.codepage = kUnicode;
        SendMessageW(box, EM_SETTEXTEX, reinterpret_cast<WPARAM>(&how), reinterpret_cast<LPARAM>(wide(plain)));
    }
}

}  // namespace

void prepare(HWND box) {
    constexpr LPARAM kAnyLength = 0x7FFFFFFE;
    SendMessageW(box, EM_EXLIMITTEXT, 0, kAnyLength);
    SendMessageW(box, EM_SETEVENTMASK, 0, ENM_CHANGE);
}

void show(HWND box, TextView document, bool isReadOnly) {
    const LRESULT events = SendMessageW(box, EM_SETEVENTMASK, 0, ENM_NONE);
    const WithoutPainting unpainted(box);
    CHARRANGE caret = {};
    POINT scrolled = {};
    SendMessageW(box, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    SendMessageW(box, EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&scrolled));
    load(box, document);
    if (isReadOnly) {
        caret = {};
    }
    SendMessageW(box, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&caret));
    SendMessageW(box, EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&scrolled));
    SendMessageW(box, EM_SETEVENTMASK, 0, events);
}

Text plainText(HWND box) {
    GETTEXTLENGTHEX measure = {GTL_USECRLF | GTL_PRECISE | GTL_NUMCHARS, kUnicode};
    const LRESULT length = SendMessageW(box, EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&measure), 0);
    if (length <= 0) {
        return {};
    }
    Text text(static_cast<std::size_t>(length) + 1, u'\0');
    GETTEXTEX how = {};
    how.cb = static_cast<DWORD>(text.size() * sizeof(char16_t));
    how.flags = GT_USECRLF;
    how.codepage = kUnicode;
    const LRESULT taken =
        SendMessageW(box, EM_GETTEXTEX, reinterpret_cast<WPARAM>(&how), reinterpret_cast<LPARAM>(text.data()));
    text.resize(taken > 0 ? static_cast<std::size_t>(taken) : 0);
    return text;
}

Selection selection(HWND box) {
    CHARRANGE range = {};
    SendMessageW(box, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return {range.cpMin, range.cpMax - range.cpMin};
}

void setSelection(HWND box, const Selection& selection) {
    CHARRANGE range = {selection.start, selection.start + selection.length};
    SendMessageW(box, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

void setDensity(HWND box, const Density& density) {
    const Density screen = Density::ofScreen();
    // It takes over what the font is like, not the font.
    SendMessageW(box, WM_SETFONT, reinterpret_cast<WPARAM>(Font::of(screen)->handle()), FALSE);
    UINT shown = 0;
    UINT whole = 0;
    SendMessageW(box, EM_GETZOOM, reinterpret_cast<WPARAM>(&shown), reinterpret_cast<LPARAM>(&whole));
    const bool isUsual = density == screen;
    if (!isUsual || shown != whole) {
        // 0 of 0 is the usual size.
        SendMessageW(box, EM_SETZOOM, isUsual ? 0 : density.dotsPerInch(),
                     isUsual ? 0 : static_cast<LPARAM>(screen.dotsPerInch()));
    }
}

}  // namespace quorvel::forms::win::rich_text

#include "trace_pane.h"

#include <ostream>
#include <streambuf>
#include <string>

#include "text/text_io.h"

namespace sample {

namespace {

// A pane that grew without end would get slow.
constexpr int kMostCharacters = 200000;

/// Writes whole lines to the end of an edit control.
class PaneBuffer final : public std::streambuf {
public:
    explicit PaneBuffer(HWND edit) : mEdit(edit) {}

protected:
    int_type overflow(int_type unit) override {
        if (unit == '\n') {
            append(fromUtf8(mLine) + L"\r\n");
            mLine.clear();
        } else if (unit != '\r' && unit != traits_type::eof()) {
            mLine.push_back(static_cast<char>(unit));
        }
        return 0;
    }

private:
    void append(const std::wstring& line) {
        if (IsWindow(mEdit) == FALSE) return;
        if (GetWindowTextLengthW(mEdit) > kMostCharacters) SetWindowTextW(mEdit, L"");
        const auto end = static_cast<WPARAM>(GetWindowTextLengthW(mEdit));
        SendMessageW(mEdit, EM_SETSEL, end, static_cast<LPARAM>(end));
        SendMessageW(mEdit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(line.c_str()));
    }

    HWND mEdit;
    std::string mLine;
};

class PaneStream final : public std::ostream {
public:
    explicit PaneStream(HWND edit) : std::ostream(nullptr), mBuffer(edit) { rdbuf(&mBuffer); }

private:
    PaneBuffer mBuffer;
};

}  // namespace

TracePane::~TracePane() = default;

void TracePane::listen(bool isOn) {
    if (isOn == (mBridge != nullptr)) return;
    if (isOn) {
        mLines = std::make_shared<PaneStream>(mEdit);
        mService = makeObject<ErrorReportService>(mLines);
        mBridge = std::make_unique<RunningBridgeToVB>(mService.get());
    } else {
        mBridge.reset();
        mService.reset();
    }
}

}  // namespace sample

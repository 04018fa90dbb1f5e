#include "trace_pane.h"

#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

#include "text/text_io.h"

namespace sample {

namespace {

// What came last, in bytes: a pane that grew without end would get slow.
constexpr std::size_t kMostBytes = 100000;

/// Keeps the end of what is written.
class TailBuffer final : public std::streambuf {
public:
    const std::string& tail() const { return mTail; }

protected:
    int_type overflow(int_type unit) override {
        if (unit != traits_type::eof()) keep(std::string_view(reinterpret_cast<const char*>(&unit), 1));
        return 0;
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override {
        keep(std::string_view(text, static_cast<std::size_t>(count)));
        return count;
    }

private:
    void keep(std::string_view text) {
        mTail += text;
        // Twice as much, so that it is cut seldom; at the end of a line.
        if (mTail.size() > 2 * kMostBytes) mTail.erase(0, mTail.find('\n', mTail.size() - kMostBytes) + 1);
    }

    std::string mTail;
};

}  // namespace

class TracePane::Lines final : public std::ostream {
public:
    Lines() : std::ostream(nullptr) { rdbuf(&mBuffer); }
    const std::string& tail() const { return mBuffer.tail(); }

    std::size_t shown = 0;

private:
    TailBuffer mBuffer;
};

TracePane::~TracePane() = default;

void TracePane::listen(bool isOn) {
    if (isOn == (mBridge != nullptr)) return;
    if (isOn) {
        mLines = std::make_shared<Lines>();
        mService = makeObject<ErrorReportService>(mLines, ErrorReportService::Level::kProcedures);
        mBridge = std::make_unique<RunningBridgeToVB>(mService.get());
    } else {
        mBridge.reset();
        mService.reset();
    }
}

void TracePane::refresh() {
    if (!mBridge || mLines->shown == mLines->tail().size()) return;
    mLines->shown = mLines->tail().size();
    std::wstring text = fromUtf8(mLines->tail());
    for (std::size_t end = text.find(L'\n'); end != std::wstring::npos; end = text.find(L'\n', end + 2)) {
        if (end == 0 || text[end - 1] != L'\r')
            text.insert(end, 1, L'\r');
        else
            --end;
    }
    SetWindowTextW(mEdit, text.c_str());
    SendMessageW(mEdit, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
    SendMessageW(mEdit, EM_SCROLLCARET, 0, 0);
}

}  // namespace sample

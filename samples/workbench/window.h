#pragma once

#include <windows.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "document.h"
#include "editing.h"
#include "settings.h"
#include "trace_pane.h"

namespace sample {

/// The workbench: the references, the fields of the chosen one, and what the style in force writes of all of them.
class WorkbenchWindow {
public:
    /// @throws ComError when the window cannot be made
    WorkbenchWindow(const LateBoundObject& main, Document& document);
    WorkbenchWindow(const WorkbenchWindow&) = delete;
    WorkbenchWindow& operator=(const WorkbenchWindow&) = delete;
    ~WorkbenchWindow();

    /// Until the window is closed.
    void run();

private:
    enum Part : std::size_t {
        kStyleLabel,
        kStyle,
        kListingLabel,
        kListing,
        kReferences,
        kFields,
        kPreview,
        kTrace,
        kStatus,
        kParts,
    };

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT notified(const NMHDR& header);
    void makeMenu();
    void makeParts();
    void useFont();
    void arrange();
    void restorePlace();
    void saveSettings();

    void carryOut(WORD command);
    void open(const std::wstring& file);
    bool save(bool isAs);
    bool mayClose();
    void chooseStyle(std::size_t style);
    void chooseListing(Listing listing);
    void undo();
    void editField();
    void accept(std::size_t reference, const Field& field, const EditedText& text);
    void copyAsRtf();
    void showTrace(bool isShown);

    void showReferences();
    void showReference(std::size_t row);
    void showFields();
    void showPreview();
    void showTitle();
    void say(const std::wstring& text);
    /// Runs what may fail, and tells the user when it does.
    void tried(const std::function<void()>& action);

    HWND part(Part which) const { return mParts[which]; }
    int scaled(int pixels) const { return MulDiv(pixels, mDensity, USER_DEFAULT_SCREEN_DPI); }

    Document& mDocument;
    Settings mSettings;
    HWND mWindow = nullptr;
    HWND mLastFocus = nullptr;
    std::array<HWND, kParts> mParts{};
    HMENU mMenu = nullptr;
    HACCEL mKeys = nullptr;
    HFONT mFont = nullptr;
    int mDensity = USER_DEFAULT_SCREEN_DPI;
    std::size_t mReference = 0;
    bool mIsFilling = false;
    std::string mRtf;
    std::unique_ptr<Editing> mEditing;
    std::unique_ptr<TracePane> mTracePane;
};

}  // namespace sample

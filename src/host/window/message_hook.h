#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace quorvel::host {

/// Watches messages of one window of this thread, which may belong to anybody. It lets go of the window when
/// that is destroyed.
class MessageHook {
public:
    /// What happens after the window has processed a watched message. It must not throw, may change the answer of
    /// the window, and may end this object.
    using AfterMessage = std::function<void(std::int32_t uMsg, WPARAM wParam, LPARAM lParam, LRESULT& retValue)>;

    explicit MessageHook(AfterMessage afterMessage);
    MessageHook(const MessageHook&) = delete;
    MessageHook& operator=(const MessageHook&) = delete;
    ~MessageHook() { detach(); }

    /// Watches a window instead of the one before.
    /// @return false when there is no such window, or it is another thread's
    bool attach(HWND window, std::vector<std::int32_t> messages);
    void detach();

private:
    struct State;
    static LRESULT CALLBACK subclassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                              DWORD_PTR data);

    AfterMessage mAfterMessage;
    // Empty while no window is watched.
    std::shared_ptr<State> mState;
};

}  // namespace quorvel::host

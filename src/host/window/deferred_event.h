#pragma once

#include <windows.h>

#include <functional>
#include <memory>

namespace quorvel::host {

/// Something to be done a little later: after the current message has been fully handled, from the message
/// loop of the thread that asked for it. One request is under way at a time.
class DeferredEvent {
public:
    /// @param postReturned what is to be done. It must not throw, and may end this object.
    explicit DeferredEvent(std::function<void()> postReturned);
    DeferredEvent(const DeferredEvent&) = delete;
    DeferredEvent& operator=(const DeferredEvent&) = delete;
    /// A request under way is dropped.
    ~DeferredEvent();

    /// Error 440 when the platform has no room for the request.
    void post();
    /// Drops the request under way.
    void cancel();

private:
    struct State;
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM request, LPARAM parameter);
    void openWindow();

    // Outlives this object while it is doing something.
    std::shared_ptr<State> mState;
    // Of the apartment's messages alone; made for the first request.
    HWND mWindow = nullptr;
};

}  // namespace quorvel::host

#include "host/window/message_hook.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace quorvel::host {

/// One attachment. The window holds it as well, from the first message to the last, so that it is there for a
/// message under way whatever happens to the hook meanwhile.
struct MessageHook::State {
    HWND window;
    std::vector<std::int32_t> messages;
    AfterMessage afterMessage;
    bool isAttached = true;
    std::shared_ptr<State> heldByWindow;

    /// No other hook on the same window has it.
    UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }
};

MessageHook::MessageHook(AfterMessage afterMessage) : mAfterMessage(std::move(afterMessage)) {}

bool MessageHook::attach(HWND window, std::vector<std::int32_t> messages) {
    detach();
    // Asked here, since not every platform does so itself.
    if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) {
        return false;
    }
    const auto state = std::make_shared<State>(State{window, std::move(messages), mAfterMessage, true, nullptr});
    if (SetWindowSubclass(window, subclassProcedure, state->id(), reinterpret_cast<DWORD_PTR>(state.get())) == FALSE) {
        return false;
    }
    state->heldByWindow = state;
    mState = state;
    return true;
}

void MessageHook::detach() {
    const std::shared_ptr<State> state = std::exchange(mState, nullptr);
    if (state == nullptr || !state->isAttached) {
        return;
    }
    state->isAttached = false;
    // From another thread the window cannot be let go of: it keeps the attachment, which does nothing any more.
    if (RemoveWindowSubclass(state->window, subclassProcedure, state->id()) != FALSE) {
        state->heldByWindow.reset();
    }
}

LRESULT CALLBACK MessageHook::subclassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                                DWORD_PTR data) {
    const std::shared_ptr<State> state = reinterpret_cast<State*>(data)->heldByWindow;
    if (message == WM_NCDESTROY) {
        state->isAttached = false;
        RemoveWindowSubclass(window, subclassProcedure, id);
        state->heldByWindow.reset();
        return DefSubclassProc(window, message, wParam, lParam);
    }
    LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    const bool isWatched = std::find(state->messages.begin(), state->messages.end(),
                                     static_cast<std::int32_t>(message)) != state->messages.end();
    if (isWatched && state->isAttached) {
        state->afterMessage(static_cast<std::int32_t>(message), wParam, lParam, result);
    }
    return result;
}

}  // namespace quorvel::host

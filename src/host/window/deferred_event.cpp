#include "host/window/deferred_event.h"

#include <utility>

#include "core/run_time_error.h"
#include "host/com/module.h"
#include "host/window/window_class.h"

namespace quorvel::host {

namespace {

constexpr wchar_t kClassName[] = L"QuorvelTemplate.DeferredEvent";
constexpr UINT kPostReturned = WM_APP;
constexpr UINT_PTR kTimer = 1;

}  // namespace

struct DeferredEvent::State : std::enable_shared_from_this<State> {
    explicit State(std::function<void()> toDo) : postReturned(std::move(toDo)) {}

    const std::function<void()> postReturned;
    // The number of the latest request; an older one that still arrives is dropped.
    WPARAM request = 0;
    bool isUnderWay = false;
};

DeferredEvent::DeferredEvent(std::function<void()> postReturned)
    : mState(std::make_shared<State>(std::move(postReturned))) {}

DeferredEvent::~DeferredEvent() {
    if (mWindow == nullptr) {
        return;
    }
    SetWindowLongPtrW(mWindow, GWLP_USERDATA, 0);
    if (DestroyWindow(mWindow) == FALSE) {
        // On another thread than its own: it goes by itself.
        PostMessageW(mWindow, WM_CLOSE, 0, 0);
    }
}

void DeferredEvent::post() {
    if (mWindow == nullptr) {
        openWindow();
    }
    ++mState->request;
    // A timer needs no place in a queue that is full.
    if (PostMessageW(mWindow, kPostReturned, mState->request, 0) == FALSE &&
        SetTimer(mWindow, kTimer, USER_TIMER_MINIMUM, nullptr) == 0) {
        throw RuntimeError(ErrorNumber::AutomationError);
    }
    mState->isUnderWay = true;
}

void DeferredEvent::cancel() {
    mState->isUnderWay = false;
}

void DeferredEvent::openWindow() {
    if (registerWindowClass(kClassName, windowProcedure)) {
        mWindow =
            CreateWindowExW(0, kClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, Module::handle(), nullptr);
    }
    if (mWindow == nullptr) {
        throw RuntimeError(ErrorNumber::AutomationError);
    }
    SetWindowLongPtrW(mWindow, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(mState.get()));
}

LRESULT CALLBACK DeferredEvent::windowProcedure(HWND window, UINT message, WPARAM request, LPARAM parameter) {
    auto* known = reinterpret_cast<State*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    const bool isRequest = message == kPostReturned || (message == WM_TIMER && request == kTimer);
    if (known == nullptr || !isRequest) {
        return DefWindowProcW(window, message, request, parameter);
    }
    const std::shared_ptr<State> state = known->shared_from_this();
    if (message == WM_TIMER) {
        KillTimer(window, kTimer);
    }
    if (state->isUnderWay && (message == WM_TIMER || request == state->request)) {
        state->isUnderWay = false;
        state->postReturned();
    }
    return 0;
}

}  // namespace quorvel::host

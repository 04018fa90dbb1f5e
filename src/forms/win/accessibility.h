#pragma once

#include <windows.h>

#include "core/text.h"

struct IAccPropServices;

namespace quorvel::forms::win {

/// What screen readers are told beyond the texts of windows. It needs a service that a system may lack, and the COM of
/// the thread: without them nothing happens.
class Accessibility {
public:
    Accessibility();
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    ~Accessibility();

    /// The name of a control that has no label before it.
    void setName(HWND window, TextView name) const;
    void setHelp(HWND window, TextView help) const;
    /// Before the window goes.
    void forget(HWND window) const;

private:
    void set(HWND window, const GUID& property, TextView value) const;

    IAccPropServices* mService = nullptr;
};

}  // namespace quorvel::forms::win

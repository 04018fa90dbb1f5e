#include "forms/win/window.h"

#include "forms/win/form_window.h"
#include "forms/win/libraries.h"

namespace quorvel::forms::win {

std::shared_ptr<FormView> makeView(Form& form) {
    auto window = std::make_shared<FormWindow>(form);
    window->open();
    return window;
}

void letGo() {
    if (FormWindow::unregisterClass()) {
        releaseLibraries();
    }
}

}  // namespace quorvel::forms::win

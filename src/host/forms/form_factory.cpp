#include "host/forms/form_factory.h"

#include <memory>

#include "forms/forms.h"
#include "forms/win/window.h"
#include "host/forms/form_object.h"

namespace quorvel::host {

ComPtr<IDispatch> makeForm(std::int16_t whichType) {
    const std::shared_ptr<forms::Form> form = forms::make(whichType);
    if (!form) {
        return {};
    }
    form->attach(forms::win::makeView(*form));
    return ComPtr<IDispatch>(new FormObject(form));
}

std::int16_t formClassOf(std::int16_t whichType) {
    const std::int16_t form = forms::classOf(whichType);
    return form >= 0 ? form : whichType;
}

}  // namespace quorvel::host

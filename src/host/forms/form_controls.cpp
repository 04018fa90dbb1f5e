#include "host/forms/form_controls.h"

#include <algorithm>

#include "core/procedure.h"
#include "host/forms/control_collections.h"
#include "host/forms/control_object.h"

namespace quorvel::host {

namespace {

std::vector<std::int16_t> indexesIn(forms::Form& form, TextView name) {
    std::vector<std::int16_t> indexes;
    // An array has no index above the number of controls.
    const auto highest = static_cast<std::int16_t>(form.controls().size());
    for (std::int16_t index = 0; index <= highest; ++index) {
        if (form.find({name, index}) != nullptr) {
            indexes.push_back(index);
        }
    }
    return indexes;
}

}  // namespace

std::shared_ptr<forms::Form> FormControls::form() const {
    std::shared_ptr<forms::Form> form = mForm.lock();
    if (!form || form->isClosed()) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return form;
}

void FormControls::report(TextView procedure) const noexcept {
    const std::shared_ptr<forms::Form> form = mForm.lock();
    if (form) {
        reportCurrentException(*form, procedure);
    } else {
        reportCurrentException(StandardModule(Name(mDesign.className)), procedure);
    }
}

bool FormControls::has(TextView name) const {
    const std::shared_ptr<forms::Form> form = mForm.lock();
    return form && (form->find(name) != nullptr || !indexesIn(*form, name).empty());
}

ComPtr<IDispatch> FormControls::named(TextView name) {
    const std::shared_ptr<forms::Form> form = this->form();
    if (forms::Control* const control = form->find(name)) {
        return objectOf(*control);
    }
    if (indexesIn(*form, name).empty()) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    return ComPtr<IDispatch>(new ControlArray(shared_from_this(), name));
}

ComPtr<IDispatch> FormControls::element(TextView name, std::int32_t index) {
    const std::shared_ptr<forms::Form> form = this->form();
    const bool isIndex = index >= 0 && index <= INT16_MAX;
    if (forms::Control* const control = isIndex ? form->find({name, static_cast<std::int16_t>(index)}) : nullptr) {
        return objectOf(*control);
    }
    throw RuntimeError(indexesIn(*form, name).empty() ? ErrorNumber::NoSuchMember : ErrorNumber::SubscriptOutOfRange);
}

ComPtr<IDispatch> FormControls::at(std::int32_t position) {
    const std::shared_ptr<forms::Form> form = this->form();
    if (position < 0) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return objectOf(form->controls().at(static_cast<std::size_t>(position)));
}

std::int32_t FormControls::count() const {
    return static_cast<std::int32_t>(form()->controls().size());
}

std::vector<ComPtr<IDispatch>> FormControls::all() {
    const std::shared_ptr<forms::Form> form = this->form();
    std::vector<ComPtr<IDispatch>> objects;
    for (forms::Control& control : form->controls()) {
        objects.push_back(objectOf(control));
    }
    return objects;
}

std::vector<std::int16_t> FormControls::indexesOf(TextView name) const {
    return indexesIn(*form(), name);
}

ComPtr<IDispatch> FormControls::objectOf(forms::Control& control) {
    const auto known =
        std::find_if(mObjects.begin(), mObjects.end(), [&](const auto& entry) { return entry.first == &control; });
    if (known != mObjects.end()) {
        return ComPtr<IDispatch>(known->second);
    }
    mObjects.reserve(mObjects.size() + 1);
    ComPtr<ControlObject> object(new ControlObject(shared_from_this(), control));
    mObjects.emplace_back(&control, object.get());
    return ComPtr<IDispatch>(object.get());
}

void FormControls::forget(const ControlObject& object) noexcept {
    std::erase_if(mObjects, [&](const auto& entry) { return entry.second == &object; });
}

}  // namespace quorvel::host

#include "host/shown_form.h"

#include <utility>

#include "host/com/answers.h"
#include "host/forms/form_factory.h"

namespace quorvel::host {

namespace {

/// How a form is shown: its owner can be used meanwhile.
constexpr std::int16_t kModeless = 0;

}  // namespace

HWND windowOf(const LateBoundObject& object, const wchar_t* member) {
    return reinterpret_cast<HWND>(handleAnswer(object.get(member)));
}

ShownForm::ShownForm(std::int16_t type, IDispatch* form, FormTicketRef ticket, ComPtr<Callback> callback)
    : mType(type),
      mObject(HeldObject::of(form)),
      mOwn(type != kSearchForm ? subFormOf(form) : nullptr),
      mTicket(std::move(ticket)),
      mCallback(std::move(callback)) {}

void ShownForm::Initialize(const FormRequest& request) const {
    held(mObject)->call(L"Initialize", static_cast<IDispatch*>(mCallback.get()), request.productName, request.icon);
}

void ShownForm::Show(IDispatch* parentForm) const {
    if (parentForm != nullptr) {
        held(mObject)->call(L"Show", kModeless, parentForm);
    } else {
        held(mObject)->call(L"Show", kModeless);
    }
}

void ShownForm::ParentWidgetChanged(const FormRequest& request) const {
    held(mObject)->call(L"ParentWidgetChanged", request.DefaultOutputTemplate, request.modelOutputTemplate,
                        request.parentText, request.secondaryText);
}

void ShownForm::removeKeywordFromSearchBox(TextView keyword) const {
    held(mObject)->call(L"removeKeywordFromSearchBox", keyword);
}

void ShownForm::Unload() const {
    held(mObject)->call(L"Unload");
}

Text ShownForm::Name() const {
    return textAnswer(held(mObject)->get(L"Name"));
}

std::intptr_t ShownForm::hwnd() const {
    return handleAnswer(held(mObject)->get(L"hwnd"));
}

void ShownForm::takeBack(const VARIANT& reference) {
    if (!isForeign()) {
        return;
    }
    const ComPtr<IDispatch> form = objectAnswer(reference);
    if (form.get() != dispatch()) {
        replace(mObject, HeldObject::of(form.get()));
    }
}

bool ShownForm::isForeign() const {
    return mType == kSearchForm;
}

bool ShownForm::isOfClass(std::int16_t whichType) const {
    return formClassOf(mType) == formClassOf(whichType);
}

void ShownForm::reveal() const {
    if (const std::shared_ptr<SubForm> own = mOwn) {
        own->reveal();
    }
}

SIZE ShownForm::size() const {
    RECT place = {};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

}  // namespace quorvel::host

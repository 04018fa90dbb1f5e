#include "form_host.h"

namespace sample {

namespace {

constexpr std::int32_t kHeight = 6000;

HRESULT doNothing(const Arguments& /*arguments*/, VARIANT& /*result*/) {
    return S_OK;
}

}  // namespace

FormHost::FormHost(const LateBoundObject& main)
    : mCallback(makeObject<DispatchObject>()), mProxy(objectOf(main.call(L"buildSubformProxy"))) {
    mCallback->addMethod(L"SetFormPosition", [this](const Arguments& arguments, VARIANT& /*result*/) {
        mForm = LateBoundObject(arguments.object(0));
        return S_OK;
    });
    mCallback->addMethod(L"setParentWidgetsValue", [this](const Arguments& arguments, VARIANT& /*result*/) {
        mGiven.push_back({arguments.text(0), arguments.text(1)});
        if (mGiven.size() < mTexts.size()) show(mTexts[mGiven.size()]);
        return S_OK;
    });
    mCallback->addMethod(L"ProcessSubformWorkCompleted", [this](const Arguments& /*arguments*/, VARIANT& /*result*/) {
        mForm = LateBoundObject();
        return S_OK;
    });
    for (const wchar_t* const member :
         {L"TooltipShow", L"TooltipHide", L"ReturnFocus", L"HideFormPostProcessing", L"DefaultOutputTemplate",
          L"getPersistentValue", L"setPersistentValue", L"WebsiteAddress"}) {
        mCallback->addMethod(member, doNothing);
    }
    mProxy.call(L"Initialize", {mCallback.get(), kHeight});
}

FormHost::~FormHost() {
    mProxy = LateBoundObject();
}

std::vector<FormText> FormHost::accept(std::int16_t type, const LateBoundObject& element, std::vector<FormText> texts) {
    begin(type, element, std::move(texts));
    while (mForm) {
        const std::size_t before = mGiven.size();
        click(L"OkButton");
        if (mGiven.size() == before) throw ComError{E_FAIL, L"OK gave nothing."};
    }
    return mGiven;
}

FormText FormHost::change(std::int16_t type, const LateBoundObject& element, const FormText& text,
                          const std::function<void(const LateBoundObject& form)>& user) {
    begin(type, element, {text});
    user(mForm);
    click(L"OkButton");
    return mGiven.at(0);
}

std::size_t FormHost::cancel(std::int16_t type, const LateBoundObject& element, const FormText& text) {
    begin(type, element, {text});
    click(L"CancelButton");
    if (mForm) throw ComError{E_FAIL, L"Cancel left the form open."};
    return mGiven.size();
}

void FormHost::begin(std::int16_t type, const LateBoundObject& element, std::vector<FormText> texts) {
    mType = type;
    mElement = element;
    mTexts = std::move(texts);
    mGiven.clear();
    show(mTexts.front());
}

void FormHost::show(const FormText& text) {
    const Variant nothing(static_cast<IDispatch*>(nullptr));
    mProxy.call(L"ShowForm",
                {mType, L"Product", nothing, nothing, mElement.dispatch(), nothing, text.text, text.secondary});
}

void FormHost::click(const std::wstring& button) {
    // It is closed, and forgotten, in the middle of this.
    const LateBoundObject form = mForm;
    LateBoundObject(objectOf(form.get(button))).call(L"Click");
}

}  // namespace sample

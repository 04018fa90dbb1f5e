// What the proxy does with the requests of a form: they go to the member of the same name of the host's object.

#include "core/procedure.h"
#include "host/com/answers.h"
#include "host/sub_form_proxy.h"

namespace quorvel::host {

ComPtr<IDispatch> SubFormProxy::mCallbackToMe_DefaultOutputTemplate(std::int16_t whichType) {
    return procedure(*this, u"mCallbackToMe_DefaultOutputTemplate", {{u"whichType", whichType}},
                     [&] { return objectAnswer(held(mCallbackToSubForm)->call(L"DefaultOutputTemplate", whichType)); });
}

Text SubFormProxy::mCallbackToMe_getPersistentValue(TextView key) {
    return procedure(*this, u"mCallbackToMe_getPersistentValue", {{u"key", key}},
                     [&] { return textAnswer(held(mCallbackToSubForm)->call(L"getPersistentValue", key)); });
}

void SubFormProxy::mCallbackToMe_setPersistentValue(TextView key, TextView value) {
    procedure(*this, u"mCallbackToMe_setPersistentValue", {{u"key", key}, {u"value", value}},
              [&] { held(mCallbackToSubForm)->call(L"setPersistentValue", key, value); });
}

void SubFormProxy::mCallbackToMe_setParentWidgetsValue(TextView parentVal, TextView secondaryVal) {
    procedure(*this, u"mCallbackToMe_setParentWidgetsValue",
              {{u"parentVal", parentVal}, {u"secondaryVal", secondaryVal}},
              [&] { held(mCallbackToSubForm)->call(L"setParentWidgetsValue", parentVal, secondaryVal); });
}

void SubFormProxy::mCallbackToMe_TooltipShow(TextView str) {
    procedure(*this, u"mCallbackToMe_TooltipShow", {{u"str", str}},
              [&] { held(mCallbackToSubForm)->call(L"TooltipShow", str); });
}

void SubFormProxy::mCallbackToMe_TooltipHide() {
    procedure(*this, u"mCallbackToMe_TooltipHide", kNoParameters,
              [&] { held(mCallbackToSubForm)->call(L"TooltipHide"); });
}

Text SubFormProxy::mCallbackToMe_WebsiteAddress(TextView fileName) {
    return procedure(*this, u"mCallbackToMe_WebsiteAddress", {{u"fileName", fileName}},
                     [&] { return textAnswer(held(mCallbackToSubForm)->call(L"WebsiteAddress", fileName)); });
}

void SubFormProxy::mCallbackToMe_ReturnFocus() {
    procedure(*this, u"mCallbackToMe_ReturnFocus", kNoParameters,
              [&] { held(mCallbackToSubForm)->call(L"ReturnFocus"); });
}

}  // namespace quorvel::host

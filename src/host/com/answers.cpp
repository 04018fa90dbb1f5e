#include "host/com/answers.h"

#include "core/run_time_error.h"
#include "host/com/automation_error.h"
#include "host/com/variant.h"

namespace quorvel::host {

namespace {

/// Empty when there is no answer.
Variant converted(const VARIANT& answer, VARTYPE type) {
    Variant value;
    const VARTYPE answered = dereferenced(answer).vt;
    if (answered != VT_EMPTY && answered != VT_NULL) {
        const HRESULT outcome = convert(answer, type, value);
        if (FAILED(outcome)) {
            throw RuntimeError(errorNumberOf(outcome));
        }
    }
    return value;
}

}  // namespace

Text textAnswer(const VARIANT& answer) {
    const Variant text = converted(answer, VT_BSTR);
    return Text(text.vt == VT_BSTR ? view(text.bstrVal) : TextView());
}

bool flagAnswer(const VARIANT& answer) {
    const Variant flag = converted(answer, VT_BOOL);
    return flag.vt == VT_BOOL && asBool(flag.boolVal);
}

std::int16_t numberAnswer(const VARIANT& answer) {
    const Variant number = converted(answer, VT_I2);
    return number.vt == VT_I2 ? number.iVal : std::int16_t{0};
}

std::intptr_t handleAnswer(const VARIANT& answer) {
    const Variant handle = converted(answer, VT_I8);
    return handle.vt == VT_I8 ? static_cast<std::intptr_t>(handle.llVal) : std::intptr_t{0};
}

ComPtr<IDispatch> objectAnswer(const VARIANT& answer) {
    const Variant object = converted(answer, VT_DISPATCH);
    return ComPtr<IDispatch>(object.vt == VT_DISPATCH ? object.pdispVal : nullptr);
}

}  // namespace quorvel::host

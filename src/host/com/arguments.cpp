#include "host/com/arguments.h"

#include "core/run_time_error.h"
#include "host/com/arrays.h"
#include "host/com/automation_error.h"
#include "host/com/variant.h"

namespace quorvel::host {

namespace {

Variant converted(const VARIANT& argument, VARTYPE type) {
    Variant value;
    const HRESULT outcome = convert(argument, type, value);
    if (FAILED(outcome)) {
        throw RuntimeError(errorNumberOf(outcome));
    }
    return value;
}

}  // namespace

bool isMissing(const VARIANT& argument) {
    return argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND;
}

std::int16_t numberOf(const VARIANT& argument) {
    return converted(argument, VT_I2).iVal;
}

bool flagOf(const VARIANT& argument) {
    return asBool(converted(argument, VT_BOOL).boolVal);
}

Text textOf(const VARIANT& argument) {
    return Text(view(converted(argument, VT_BSTR).bstrVal));
}

std::vector<Text> textsOf(const VARIANT& array) {
    std::vector<Text> texts;
    for (const Variant& element : elementsOf(array)) {
        texts.push_back(textOf(element));
    }
    return texts;
}

std::vector<bool> flagsOf(const VARIANT& array) {
    std::vector<bool> flags;
    for (const Variant& element : elementsOf(array)) {
        flags.push_back(flagOf(element));
    }
    return flags;
}

}  // namespace quorvel::host

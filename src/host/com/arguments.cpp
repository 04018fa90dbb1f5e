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

/// What each element of an array is read as; an error says which one it is.
template <class T>
std::vector<T> eachOf(const VARIANT& array, T (*read)(const VARIANT&)) {
    std::vector<T> values;
    for (const Variant& element : elementsOf(array)) {
        try {
            values.push_back(read(element));
        } catch (const RuntimeError& error) {
            const Text place = decimal(static_cast<std::int64_t>(values.size()));
            throw RuntimeError(error.number(),
                               concatenate({error.description(), u": element ", place, u" of the array"}),
                               error.object());
        }
    }
    return values;
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
    return eachOf(array, textOf);
}

std::vector<bool> flagsOf(const VARIANT& array) {
    return eachOf(array, flagOf);
}

}  // namespace quorvel::host

// What a call through late binding costs, with no error-report service: one plain line for each
// figure, name, value, unit. The library must be registered.

#include <windows.h>

#include <ole2.h>

#include <chrono>
#include <cstdio>

namespace {

DISPID idOf(IDispatch* object, const wchar_t* member) {
    auto* name = const_cast<LPOLESTR>(member);
    DISPID id = DISPID_UNKNOWN;
    object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &id);
    return id;
}

/// Calls with up to two arguments, given from the last to the first.
VARIANT call(IDispatch* object, DISPID id, VARIANT* arguments, UINT count) {
    DISPPARAMS parameters = {arguments, nullptr, count, 0};
    VARIANT result;
    VariantInit(&result);
    object->Invoke(id, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, &result, nullptr, nullptr);
    return result;
}

template <class Body>
void measure(const char* name, Body body) {
    constexpr int kWarmUp = 2'000;
    constexpr int kCalls = 50'000;
    for (int i = 0; i < kWarmUp; ++i) {
        body();
    }
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCalls; ++i) {
        body();
    }
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    std::printf("%s %.3g us\n", name, time.count() / kCalls);
}

VARIANT variantOf(BSTR text) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_BSTR;
    value.bstrVal = text;
    return value;
}

IDispatch* buildYear(IDispatch* factory) {
    VARIANT arguments[2] = {};
    arguments[0].vt = VT_DISPATCH;
    arguments[1].vt = VT_I2;
    arguments[1].iVal = 6;
    return call(factory, idOf(factory, L"build"), arguments, 2).pdispVal;
}

void measureYear(IDispatch* year) {
    const DISPID parse = idOf(year, L"Parse");
    const DISPID toString = idOf(year, L"toString");
    const DISPID formatStr = idOf(year, L"formatStr");
    BSTR text = SysAllocString(L"[c. 1990]");
    measure("lateBound/parseAndFormatYear", [&] {
        VARIANT argument = variantOf(text);
        call(year, parse, &argument, 1);
        VARIANT result = call(year, toString, nullptr, 0);
        VariantClear(&result);
    });
    measure("lateBound/formatStrOfYear", [&] {
        VARIANT argument = variantOf(text);
        VARIANT result = call(year, formatStr, &argument, 1);
        VariantClear(&result);
    });
    SysFreeString(text);
}

}  // namespace

int main() {
    CoInitialize(nullptr);
    CLSID factoryClass = {};
    IDispatch* factory = nullptr;
    if (FAILED(CLSIDFromProgID(L"QuorvelTemplate.Main2", &factoryClass)) ||
        FAILED(CoCreateInstance(factoryClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                reinterpret_cast<void**>(&factory)))) {
        std::puts("QuorvelTemplate is not registered.");
        return 1;
    }
    IDispatch* year = buildYear(factory);
    measureYear(year);
    year->Release();
    factory->Release();
    CoUninitialize();
    return 0;
}

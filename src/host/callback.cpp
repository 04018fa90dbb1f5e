#include "host/callback.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "core/procedure.h"
#include "host/com/automation_error.h"
#include "host/com/type_library.h"

namespace quorvel::host {

namespace {

constexpr std::size_t kMostArguments = 2;

VARIANT byReference(VARTYPE type, void* variable) {
    VARIANT reference = {};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = variable;
    return reference;
}

/// A text on its way to the listeners: the caller's variable, or one of ours.
class TextVariable {
public:
    explicit TextVariable(BSTR* callers = nullptr) : mTarget(callers != nullptr ? callers : &mOwn.bstrVal) {
        mOwn.vt = VT_BSTR;
        mOwn.bstrVal = nullptr;
    }
    TextVariable(const TextVariable&) = delete;
    TextVariable& operator=(const TextVariable&) = delete;
    ~TextVariable() = default;

    TextView text() const { return view(*mTarget); }
    VARIANT reference() { return byReference(VT_BSTR, mTarget); }

private:
    Variant mOwn;
    BSTR* mTarget;
};

class NumberVariable {
public:
    explicit NumberVariable(short* callers) : mTarget(callers != nullptr ? callers : &mOwn) {}
    NumberVariable(const NumberVariable&) = delete;
    NumberVariable& operator=(const NumberVariable&) = delete;
    ~NumberVariable() = default;

    std::int16_t number() const { return *mTarget; }
    VARIANT reference() { return byReference(VT_I2, mTarget); }

private:
    short mOwn = 0;
    short* mTarget;
};

using Arguments = std::span<const VARIANT>;

/// One attempt to tell a listener.
HRESULT tell(IDispatch* listener, CallbackEvent event, Arguments arguments, EXCEPINFO& exception) {
    std::array<VARIANT, kMostArguments> reversed{};
    std::reverse_copy(arguments.begin(), arguments.end(), reversed.begin());
    DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    Variant nothing;
    UINT badArgument = 0;
    return listener->Invoke(static_cast<DISPID>(event), IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters,
                            &nothing, &exception, &badArgument);
}

/// Gives a variable of a declared type the value that a listener put into a variant.
void assign(const VARIANT& reference, const VARIANT& value) {
    const auto type = static_cast<VARTYPE>(reference.vt & ~VT_BYREF);
    Variant converted;
    if (dereferenced(value).vt == VT_EMPTY || dereferenced(value).vt == VT_NULL) {
        converted.vt = type;
        converted.llVal = 0;
    } else if (const HRESULT outcome = convert(value, type, converted); FAILED(outcome)) {
        throw RuntimeError(errorNumberOf(outcome));
    }
    switch (type) {
        case VT_BSTR: std::swap(*reference.pbstrVal, converted.bstrVal); break;
        case VT_DISPATCH: std::swap(*reference.ppdispVal, converted.pdispVal); break;
        default: *reference.piVal = converted.iVal; break;
    }
}

/// The same with variants that hold the values, as scripting engines want it.
HRESULT tellInVariants(IDispatch* listener, CallbackEvent event, Arguments arguments, EXCEPINFO& exception) {
    std::array<Variant, kMostArguments> values;
    std::array<VARIANT, kMostArguments> references{};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (FAILED(VariantCopyInd(&values[i], const_cast<VARIANT*>(&arguments[i])))) {
            return E_OUTOFMEMORY;
        }
        references[i] = byReference(VT_VARIANT, &values[i]);
    }
    const HRESULT outcome = tell(listener, event, Arguments(references).first(arguments.size()), exception);
    for (std::size_t i = 0; SUCCEEDED(outcome) && i < arguments.size(); ++i) {
        assign(arguments[i], values[i]);
    }
    return outcome;
}

/// How a listener says that it does not take variables of a declared type; its code did not run.
bool refusesTypes(HRESULT outcome) {
    return outcome == DISP_E_TYPEMISMATCH || outcome == DISP_E_BADVARTYPE || outcome == E_NOTIMPL;
}

/// How it says that it has nothing for the event.
bool isNotHandled(HRESULT outcome) {
    return outcome == DISP_E_MEMBERNOTFOUND || outcome == E_NOTIMPL;
}

void deliver(IDispatch* listener, CallbackEvent event, Arguments arguments) {
    ExceptionInfo exception;
    HRESULT outcome = tell(listener, event, arguments, exception);
    if (refusesTypes(outcome) && !arguments.empty()) {
        outcome = tellInVariants(listener, event, arguments, exception);
    }
    if (FAILED(outcome) && !isNotHandled(outcome)) {
        throw automationError(outcome, exception, listener, u"an event of a listener");
    }
}

}  // namespace

STDMETHODIMP Callback::QueryInterface(REFIID iid, void** object) {
    return ComObject::QueryInterface(iid == IID_IProvideClassInfo ? IID_IProvideClassInfo2 : iid, object);
}

STDMETHODIMP Callback::Terminate(short* theOutputTemplate) {
    return call([&] {
        NumberVariable number(theOutputTemplate);
        raise(u"Terminate", {{u"theOutputTemplate", number.number()}}, CallbackEvent::Terminate, {number.reference()});
    });
}

STDMETHODIMP Callback::WebsiteAddress(BSTR* fileName, BSTR* result) {
    return call(result, [&] {
        TextVariable file(fileName);
        TextVariable retValue;
        raise(u"WebsiteAddress", {{u"fileName", file.text()}}, CallbackEvent::WebsiteAddress,
              {file.reference(), retValue.reference()});
        return Text(retValue.text());
    });
}

STDMETHODIMP Callback::getPersistentValue(BSTR* key, BSTR* result) {
    return call(result, [&] {
        TextVariable name(key);
        TextVariable retValue;
        raise(u"getPersistentValue", {{u"key", name.text()}}, CallbackEvent::getPersistentValue,
              {name.reference(), retValue.reference()});
        return Text(retValue.text());
    });
}

STDMETHODIMP Callback::setPersistentValue(BSTR* key, BSTR* value) {
    return call([&] {
        TextVariable name(key);
        TextVariable text(value);
        raise(u"setPersistentValue", {{u"key", name.text()}, {u"value", text.text()}},
              CallbackEvent::setPersistentValue, {name.reference(), text.reference()});
    });
}

STDMETHODIMP Callback::get_DefaultOutputTemplate(short* whichType, IDispatch** result) {
    return call(result, [&] {
        NumberVariable type(whichType);
        ComPtr<IDispatch> retValue;
        raise(u"DefaultOutputTemplate[Get]", {{u"whichType", type.number()}}, CallbackEvent::DefaultOutputTemplate,
              {type.reference(), byReference(VT_DISPATCH, retValue.receive())});
        return retValue;
    });
}

STDMETHODIMP Callback::ReturnFocus() {
    return call([&] { raise(u"ReturnFocus", kNoParameters, CallbackEvent::ReturnFocus, {}); });
}

STDMETHODIMP Callback::TooltipShow(BSTR* str) {
    return call([&] {
        TextVariable text(str);
        raise(u"TooltipShow", {{u"str", text.text()}}, CallbackEvent::TooltipShow, {text.reference()});
    });
}

STDMETHODIMP Callback::TooltipHide() {
    return call([&] { raise(u"TooltipHide", kNoParameters, CallbackEvent::TooltipHide, {}); });
}

STDMETHODIMP Callback::setParentWidgetsValue(BSTR* parentVal, BSTR* secondaryVal) {
    return call([&] {
        TextVariable text(parentVal);
        TextVariable second(secondaryVal);
        raise(u"setParentWidgetsValue", {{u"parentVal", text.text()}, {u"secondaryVal", second.text()}},
              CallbackEvent::setParentWidgetsValue, {text.reference(), second.reference()});
    });
}

STDMETHODIMP Callback::GetClassInfo(ITypeInfo** info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    *info = nullptr;
    ComPtr<ITypeLib> library;
    const HRESULT outcome = loadTypeLibrary(library);
    return SUCCEEDED(outcome) ? library->GetTypeInfoOfGuid(CLSID_Callback, info) : outcome;
}

STDMETHODIMP Callback::GetGUID(DWORD kind, GUID* id) {
    if (id == nullptr) {
        return E_POINTER;
    }
    const bool isKnown = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID;
    *id = isKnown ? __uuidof(__Callback) : GUID{};
    return isKnown ? S_OK : E_INVALIDARG;
}

void Callback::raise(const Name& name, const ParameterList& parameters, CallbackEvent event,
                     std::initializer_list<VARIANT> arguments) {
    procedure(*this, name, parameters, [&] {
        for (const ConnectionPoint::Listener& listener : mEvents.listeners()) {
            // One that an earlier listener took off hears nothing any more.
            if (!mEvents.isListening(listener.cookie)) {
                continue;
            }
            try {
                deliver(listener.object.get(), event, {arguments.begin(), arguments.size()});
            } catch (...) {
                reportCurrentException(*this, name);
            }
        }
    });
}

}  // namespace quorvel::host

#include "host/com/named_dispatch.h"

#include <algorithm>

#include "core/run_time_error.h"
#include "host/com/answers.h"
#include "host/com/arguments.h"
#include "host/com/automation_error.h"
#include "host/com/com_object.h"

namespace quorvel::host {

namespace {

constexpr TextView kEnumeration = u"_NewEnum";

const VARIANT kEmpty = {};

/// "Caption[Let]" for the property Caption.
Text procedureName(TextView member, bool isMethod, bool isWriting) {
    return concatenate({member, isMethod ? TextView() : isWriting ? TextView(u"[Let]") : TextView(u"[Get]")});
}

}  // namespace

bool NamedArguments::has(std::size_t index) const {
    return index < size() && !isNullReference(dereferenced((*this)[index])) && !isMissing(dereferenced((*this)[index]));
}

const VARIANT& NamedArguments::operator[](std::size_t index) const {
    return index < size() ? mReversed[size() - 1 - index] : kEmpty;
}

Variant NamedArguments::brought(std::size_t index, VARTYPE type) const {
    Variant value;
    if (has(index)) {
        const VARTYPE given = dereferenced((*this)[index]).vt;
        const HRESULT outcome = given == VT_EMPTY || given == VT_NULL ? S_OK : convert((*this)[index], type, value);
        if (FAILED(outcome)) {
            throw RuntimeError(errorNumberOf(outcome));
        }
    }
    return value;
}

Text NamedArguments::text(std::size_t index) const {
    const Variant value = brought(index, VT_BSTR);
    return Text(value.vt == VT_BSTR ? view(value.bstrVal) : TextView());
}

bool NamedArguments::flag(std::size_t index) const {
    const Variant value = brought(index, VT_BOOL);
    return value.vt == VT_BOOL && asBool(value.boolVal);
}

std::int32_t NamedArguments::number(std::size_t index) const {
    const Variant value = brought(index, VT_I4);
    return value.vt == VT_I4 ? value.lVal : 0;
}

std::uint32_t NamedArguments::bits(std::size_t index) const {
    const Variant value = brought(index, VT_I8);
    return value.vt == VT_I8 ? static_cast<std::uint32_t>(value.llVal) : 0;
}

float NamedArguments::real(std::size_t index) const {
    const Variant value = brought(index, VT_R4);
    return value.vt == VT_R4 ? value.fltVal : 0;
}

ComPtr<IDispatch> NamedArguments::object(std::size_t index) const {
    const Variant value = brought(index, VT_DISPATCH);
    return ComPtr<IDispatch>(value.vt == VT_DISPATCH ? value.pdispVal : nullptr);
}

STDMETHODIMP NamedDispatch::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    if (iid == kElementAccess) {
        try {
            *object = elementAccess().detach();
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    } else if (iid == IID_IUnknown || iid == IID_IDispatch) {
        *object = static_cast<IDispatch*>(this);
        AddRef();
    }
    return *object != nullptr ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) NamedDispatch::Release() {
    const ULONG left = --mReferences;
    if (left != 0 || mIsEnding) {
        return left;
    }
    // What happens at the end may call the host, which may take a reference, for that time or for good.
    mIsEnding = true;
    ++mReferences;
    released();
    mIsEnding = false;
    if (--mReferences != 0) {
        return mReferences;
    }
    delete this;
    return 0;
}

STDMETHODIMP NamedDispatch::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP NamedDispatch::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP NamedDispatch::GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
    if (names == nullptr || ids == nullptr) {
        return E_POINTER;
    }
    std::fill_n(ids, count, DISPID_UNKNOWN);
    if (count == 0 || names[0] == nullptr) {
        return DISP_E_UNKNOWNNAME;
    }
    const TextView name(reinterpret_cast<const char16_t*>(names[0]));
    try {
        ids[0] = idOf(name);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
    // Further names are those of arguments.
    return ids[0] != DISPID_UNKNOWN && count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

DISPID NamedDispatch::memberId(DISPID id) {
    const TextView name = id == DISPID_VALUE ? defaultMember() : id == DISPID_NEWENUM ? kEnumeration : TextView();
    return name.empty() ? id : idOf(name);
}

STDMETHODIMP NamedDispatch::Invoke(DISPID id, REFIID /*iid*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* /*exception*/, UINT* /*badArgument*/) {
    if (result != nullptr) {
        VariantInit(result);
    }
    if (parameters == nullptr || (parameters->cArgs > 0 && parameters->rgvarg == nullptr)) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const HostCall bracket(this);
    const bool isWriting = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    std::optional<NamedMember> member;
    try {
        id = memberId(id);
        member = memberOf(id);
    } catch (...) {
        return S_OK;  // Only memory can run out here.
    }
    // A script calls a property with arguments as if it were a method. Reading a method does not run it.
    const bool isCalled = (flags & DISPATCH_METHOD) != 0;
    const bool isFound =
        member && (isWriting          ? member->isWritten && parameters->cArgs > 0
                   : member->isMethod ? isCalled
                                      : member->isRead && (isCalled || (flags & DISPATCH_PROPERTYGET)));
    if (!isFound) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (result != nullptr && !isWriting) {
        result->vt = member->type;
        result->llVal = 0;
    }
    if (!bracket.isRefused()) {
        run(id, *member, isWriting, *parameters, result);
    }
    return S_OK;
}

void NamedDispatch::run(DISPID id, const NamedMember& member, bool isWriting, const DISPPARAMS& parameters,
                        VARIANT* result) noexcept {
    try {
        const auto attempt = [&](auto&& body) {
            try {
                body();
            } catch (...) {
                report(procedureName(member.name, member.isMethod, isWriting));
            }
        };
        const NamedArguments arguments(parameters);
        const std::size_t given = arguments.size() - (isWriting ? 1 : 0);
        if (given > member.mostArguments) {
            attempt([] { throw RuntimeError(ErrorNumber::WrongNumberOfArguments); });
        }
        if (given < member.leastArguments) {
            attempt([] { throw RuntimeError(ErrorNumber::ArgumentNotOptional); });
        }
        attempt([&] {
            if (isWriting) {
                write(id, arguments);
                return;
            }
            Variant value = read(id, arguments);
            if (result != nullptr) {
                *result = value.detach();
            }
        });
    } catch (...) {  // NOLINT(bugprone-empty-catch): only memory can run out here; the result stays empty
    }
}

}  // namespace quorvel::host

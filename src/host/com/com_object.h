#pragma once

#include "host/com/automation.h"

#include <atomic>
#include <memory>
#include <type_traits>
#include <vector>

#include "core/procedure.h"
#include "host/com/arrays.h"
#include "host/com/com_ptr.h"
#include "host/com/dispatch_table.h"
#include "host/com/element_access.h"
#include "host/com/module.h"
#include "host/com/variant.h"

namespace quorvel::host {

/// Brackets one call from the host: the object stays alive however the host's answers to our own calls
/// come out, an absent error-report service is looked for once, and calls do not nest without end.
class HostCall {
public:
    explicit HostCall(IUnknown* object) : mKeepAlive(object), mProtector(VBWPROTECTOR::ofThisApartment()) {
        mProtector.beginHostCall(this);
    }
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;
    ~HostCall() { mProtector.endHostCall(this); }

    /// Calls nest too deep, which this reports: nothing of the host's may be touched any more.
    bool isRefused() const noexcept {
        if (mProtector.isTooDeep()) {
            // A body is not reached.
            procedure(StandardModule(u"HostCall"), u"isRefused", kNoParameters, [] {});
            return true;
        }
        return false;
    }

private:
    ComPtr<IUnknown> mKeepAlive;
    VBWPROTECTOR& mProtector;
};

// Results on their way out.

inline void store(BSTR* target, const Text& value) {
    *target = newBstr(value);
}
inline void store(VARIANT_BOOL* target, bool value) {
    *target = asVariantBool(value);
}
inline void store(LONG* target, std::int32_t value) {
    *target = value;
}
inline void store(IDispatch** target, ComPtr<IDispatch> value) {
    *target = value.detach();
}
inline void store(SHORT* target, std::int16_t value) {
    *target = value;
}
inline void store(INT_PTR* target, std::intptr_t value) {
    *target = value;
}
inline void store(VARIANT* target, Variant value) {
    *target = value.detach();
}
inline void store(VARIANT* target, const std::vector<Text>& value) {
    *target = arrayOfTexts(value).detach();
}
inline void store(VARIANT* target, const std::vector<bool>& value) {
    *target = arrayOfFlags(value).detach();
}

/// A text that a member changes in place: read on creation, written back at the end.
class InOutText {
public:
    explicit InOutText(BSTR* text) : mTarget(text), mValue(text != nullptr ? view(*text) : TextView()) {}
    InOutText(const InOutText&) = delete;
    InOutText& operator=(const InOutText&) = delete;
    ~InOutText() {
        if (mTarget != nullptr && mValue != view(*mTarget)) {
            // Without memory for the new text the caller keeps the old one.
            BSTR changed = SysAllocStringLen(nullptr, static_cast<UINT>(mValue.size()));
            if (changed != nullptr) {
                std::copy(mValue.begin(), mValue.end(), changed);
                SysFreeString(*mTarget);
                *mTarget = changed;
            }
        }
    }
    operator Text&() { return mValue; }

private:
    BSTR* mTarget;
    Text mValue;
};

/// One of the library's objects as the host sees it. An adapter derives from it with its generated
/// interface and forwards each member in one line through `call`; late binding comes from the type
/// library. No member returns anything but S_OK.
/// @param Further the interfaces of the platform that the object answers besides
template <class Interface, class... Further>
class ComObject : public Interface, public Further... {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (iid == kElementAccess) {
            *object = elementAccess().detach();
            return *object != nullptr ? S_OK : E_NOINTERFACE;
        }
        const bool isOurs = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface);
        *object = isOurs ? static_cast<Interface*>(this) : nullptr;
        ((iid == __uuidof(Further) ? void(*object = static_cast<Further*>(this)) : void()), ...);
        if (*object == nullptr) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --mReferences;
        if (left == 0) {
            // The end of an object may call the host, which may take a reference for that time.
            mReferences = 1;
            delete this;
        }
        return left;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) {
            return E_POINTER;
        }
        *count = 1;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT index, LCID /*locale*/, ITypeInfo** info) override {
        if (info == nullptr) {
            return E_POINTER;
        }
        *info = nullptr;
        if (index != 0) {
            return DISP_E_BADINDEX;
        }
        *info = mTable->typeInfo();
        (*info)->AddRef();
        return S_OK;
    }
    STDMETHODIMP GetIDsOfNames(REFIID /*iid*/, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) override {
        if (names == nullptr || ids == nullptr) {
            return E_POINTER;
        }
        return mTable->typeInfo()->GetIDsOfNames(names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID /*iid*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* /*exception*/, UINT* /*badArgument*/) override {
        if (result != nullptr) {
            VariantInit(result);
        }
        if (parameters == nullptr) {
            return DISP_E_MEMBERNOTFOUND;
        }
        const HostCall bracket(static_cast<Interface*>(this));
        try {
            return mTable->invoke(this, id, flags, *parameters, result);
        } catch (...) {
            return S_OK;  // Only memory can run out here; the result stays empty.
        }
    }

protected:
    ComObject() : mTable(DispatchTable::of(__uuidof(Interface))) {}
    virtual ~ComObject() = default;

    /// An adapter whose element other elements hold hands it out here: `return ElementAccess::to(this,
    /// mElement)`.
    virtual ComPtr<IUnknown> elementAccess() { return {}; }

    /// The body of a member without result.
    template <class Body>
    HRESULT call(Body&& body) noexcept {
        const HostCall bracket(static_cast<Interface*>(this));
        if (bracket.isRefused()) {
            return S_OK;
        }
        try {
            body();
        } catch (...) {  // NOLINT(bugprone-empty-catch): procedures trap their errors; only memory can run out here
        }
        return S_OK;
    }

    /// The body of a member with a result, which is the empty value when the body has none to give.
    template <class Result, class Body>
    HRESULT call(Result* result, Body&& body) noexcept {
        if (result != nullptr) {
            *result = Result();
        }
        return call([&] {
            auto value = body();
            if (result != nullptr) {
                store(result, std::move(value));
            }
        });
    }

    /// Inside `call`, around the reading of arguments that may be of several types: what fails there is
    /// reported as an error of the procedure, and the member does nothing.
    template <class Body>
    static void trapped(const Instrumented& element, const Name& procedure, Body&& body) noexcept {
        try {
            body();
        } catch (...) {
            reportCurrentException(element, procedure);
        }
    }

private:
    ObjectLife mLife;
    std::shared_ptr<const DispatchTable> mTable;
    std::atomic<ULONG> mReferences = 0;
};

/// A new object of ours.
template <class Adapter>
ComPtr<IDispatch> make() {
    return ComPtr<IDispatch>(new Adapter());
}

/// The adapter of an element that a member made; empty when it made none.
template <class Adapter, class Element>
ComPtr<IDispatch> adapterOf(std::shared_ptr<Element> element) {
    return ComPtr<IDispatch>(element != nullptr ? new Adapter(std::move(element)) : nullptr);
}

}  // namespace quorvel::host

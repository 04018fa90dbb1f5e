#include "host/com/class_factory.h"

#include "host/com/automation.h"

#include "core/run_time_error.h"
#include "host/com/module.h"

namespace quorvel::host {

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    const bool isOurs = iid == IID_IUnknown || iid == IID_IClassFactory;
    *object = isOurs ? this : nullptr;
    if (!isOurs) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef() {
    return ++mReferences;
}

STDMETHODIMP_(ULONG) ClassFactory::Release() {
    const ULONG left = --mReferences;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    if (!Module::prepareThread()) {
        return E_OUTOFMEMORY;
    }
    try {
        return mCreate()->QueryInterface(iid, object);
    } catch (const RuntimeError&) {
        return TYPE_E_CANTLOADLIBRARY;  // The one thing without which an object cannot be made.
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock) {
    if (lock != FALSE) {
        Module::addReference();
    } else {
        Module::releaseReference();
    }
    return S_OK;
}

}  // namespace quorvel::host

#pragma once

#include "host/com/automation.h"

#include <atomic>

#include "host/com/com_ptr.h"
#include "host/com/module.h"

namespace quorvel::host {

/// Makes the objects of one class for the platform.
class ClassFactory final : public IClassFactory {
public:
    using Create = ComPtr<IDispatch> (*)();

    explicit ClassFactory(Create create) : mCreate(create) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    STDMETHODIMP LockServer(BOOL lock) override;

private:
    ~ClassFactory() = default;

    ModuleReference mReference;
    Create mCreate;
    std::atomic<ULONG> mReferences = 0;
};

}  // namespace quorvel::host

#pragma once

#include "host/com/automation.h"

#include <memory>
#include <typeinfo>
#include <utility>

#include "host/com/com_ptr.h"

namespace quorvel::host {

/// The private interface by which one of our objects finds the element inside another that the host
/// passes to it. No type library names it and nobody can marshal it.
inline constexpr IID kElementAccess = {0xb7e582f0, 0xbc31, 0x47d8, {0x8b, 0x30, 0x28, 0xcc, 0xe4, 0x9d, 0x1f, 0x0d}};

/// What an adapter answers to a query for that interface: its element and the element's type.
class ElementAccess final : public IUnknown {
public:
    /// @param owner the adapter, which the answer keeps alive
    template <class Element>
    static ComPtr<IUnknown> to(IUnknown* owner, std::shared_ptr<Element> element) {
        ComPtr<IUnknown> access(new ElementAccess(owner, std::move(element), typeid(Element)));
        handedOut() = access.get();
        return access;
    }

    /// The element behind an object that the host passed; empty when the object is none of ours, or has an
    /// element of another type.
    template <class Element>
    static std::shared_ptr<Element> elementOf(IDispatch* object) {
        handedOut() = nullptr;
        const ComPtr<IUnknown> found = queryFor<IUnknown>(object, kElementAccess);
        // An object of the host may answer to any interface: only what came from here is what it says.
        if (!found || found.get() != handedOut()) {
            return nullptr;
        }
        const auto* access =
            static_cast<const ElementAccess*>(found.get());  // NOLINT(*-static-cast-downcast): known by the line above
        return access->mType == typeid(Element) ? std::static_pointer_cast<Element>(access->mElement) : nullptr;
    }

    /// Makes the variable of the calling thread.
    static void prepareThread() { handedOut() = nullptr; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override { return mOwner->QueryInterface(iid, object); }
    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --mReferences;
        if (left == 0) {
            delete this;
        }
        return left;
    }

private:
    ElementAccess(IUnknown* owner, std::shared_ptr<void> element, const std::type_info& type)
        : mOwner(owner), mElement(std::move(element)), mType(type) {}
    /// The latest answer of this thread.
    static const IUnknown*& handedOut() {
        static thread_local const IUnknown* latest = nullptr;
        return latest;
    }

    // Through Release alone.
    ~ElementAccess() = default;

    ComPtr<IUnknown> mOwner;
    std::shared_ptr<void> mElement;
    const std::type_info& mType;
    ULONG mReferences = 0;
};

}  // namespace quorvel::host

#pragma once

#include <windows.h>

#include <objbase.h>

#include <utility>

namespace sample {

/// A counted reference to a COM object.
template <class Interface>
class ComPointer {
public:
    ComPointer() noexcept = default;
    /// A further reference to an object that somebody else holds too.
    explicit ComPointer(Interface* object) noexcept : mObject(object) {
        if (mObject != nullptr) mObject->AddRef();
    }
    ComPointer(const ComPointer& other) noexcept : ComPointer(other.mObject) {}
    template <class Derived>
    ComPointer(const ComPointer<Derived>& other) noexcept : ComPointer(other.get()) {}
    ComPointer(ComPointer&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    ComPointer& operator=(ComPointer other) noexcept {
        std::swap(mObject, other.mObject);
        return *this;
    }
    ~ComPointer() { reset(); }

    /// Takes over a reference that was counted already, as a new object's is.
    static ComPointer owning(Interface* object) noexcept {
        ComPointer pointer;
        pointer.mObject = object;
        return pointer;
    }

    Interface* get() const noexcept { return mObject; }
    Interface* operator->() const noexcept { return mObject; }
    Interface& operator*() const noexcept { return *mObject; }
    explicit operator bool() const noexcept { return mObject != nullptr; }

    void reset() noexcept {
        if (Interface* old = std::exchange(mObject, nullptr)) old->Release();
    }
    /// Where a function puts the reference that it returns; what was held before is released.
    Interface** put() noexcept {
        reset();
        return &mObject;
    }
    void** putVoid() noexcept { return reinterpret_cast<void**>(put()); }

private:
    Interface* mObject = nullptr;
};

}  // namespace sample

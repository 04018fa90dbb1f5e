#pragma once

#include "host/com/automation.h"

#include <utility>

namespace quorvel::host {

/// An owning reference to a COM object.
template <class T>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {}
    /// Shares the object.
    explicit ComPtr(T* object) : mObject(object) {
        if (mObject != nullptr) {
            mObject->AddRef();
        }
    }
    ComPtr(const ComPtr& other) : ComPtr(other.mObject) {}
    ComPtr(ComPtr&& other) noexcept : mObject(std::exchange(other.mObject, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(mObject, other.mObject);
        return *this;
    }
    ~ComPtr() {
        if (mObject != nullptr) {
            mObject->Release();
        }
    }

    /// Takes over a reference that the caller owns.
    static ComPtr adopt(T* object) {
        ComPtr result;
        result.mObject = object;
        return result;
    }

    T* get() const { return mObject; }
    T* operator->() const { return mObject; }
    explicit operator bool() const { return mObject != nullptr; }
    /// Gives the reference to the caller.
    T* detach() { return std::exchange(mObject, nullptr); }
    /// Where a function stores a reference that it hands over; only for an empty pointer.
    T** receive() { return &mObject; }

private:
    T* mObject = nullptr;
};

/// Another interface of an object; empty when it has none.
template <class To, class From>
ComPtr<To> queryFor(From* object, REFIID iid) {
    void* found = nullptr;
    if (object == nullptr || FAILED(object->QueryInterface(iid, &found))) {
        return {};
    }
    return ComPtr<To>::adopt(static_cast<To*>(found));
}

}  // namespace quorvel::host

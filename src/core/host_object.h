#pragma once

#include <memory>

namespace quorvel {

/// Any object of the host that the library holds: what a report can name without knowing more.
class HostObject {
public:
    HostObject() = default;
    HostObject(const HostObject&) = delete;
    HostObject& operator=(const HostObject&) = delete;
    virtual ~HostObject() = default;
};

using HostObjectRef = std::shared_ptr<const HostObject>;

/// Gives a member variable another object. The old one goes when the new one is in place, since its end may call
/// the library back; the assignment of a shared pointer does not promise that.
template <class T>
void replace(std::shared_ptr<T>& member, std::shared_ptr<T> value) noexcept {
    member.swap(value);
}

}  // namespace quorvel

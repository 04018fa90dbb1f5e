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

}  // namespace quorvel

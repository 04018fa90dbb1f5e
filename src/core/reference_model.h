#pragma once

#include <cstdint>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel {

/// Port: the host's model of one reference.
class ReferenceModel : public HostObject {
public:
    /// The text of the field with this internal index; a boolean reads "True" or "False".
    virtual Text value(std::int16_t index) const = 0;
};

}  // namespace quorvel

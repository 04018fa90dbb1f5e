#pragma once

#include <cstdint>
#include <memory>

#include "core/host_object.h"
#include "core/text.h"

namespace quorvel {

/// Port: the host's model of one reference.
class ReferenceModel : public HostObject {
public:
    /// The text of the field with this internal index; a boolean reads "True" or "False".
    virtual Text value(std::int16_t index) const = 0;
    /// Gives the field a new text.
    virtual void value(std::int16_t index, TextView text) = 0;
};

using ReferenceModelRef = std::shared_ptr<ReferenceModel>;

/// Port: the host's dictionary from the names of the model's fields to their internal indexes.
class KeyToInternalIndex : public HostObject {
public:
    /// The index of the field with this name; 0, the dictionary's empty item, when there is none.
    virtual std::int16_t item(TextView key) const = 0;
    /// Whether there is a field with this name.
    virtual bool has(TextView key) const = 0;
};

using KeyToInternalIndexRef = std::shared_ptr<const KeyToInternalIndex>;

}  // namespace quorvel

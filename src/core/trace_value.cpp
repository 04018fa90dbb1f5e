#include "core/trace_value.h"

#include <array>

namespace quorvel {

std::int32_t TraceValue::typeCode() const {
    constexpr std::int32_t kArray = 8192;
    constexpr std::array<std::int32_t, std::variant_size_v<Storage>> kTypeCodes = {
        11,           // boolean
        2,            // 16-bit integer
        3,            // 32-bit integer
        20,           // 64-bit integer
        4,            // single float
        8,            // text
        9,            // object
        kArray + 11,  // array of booleans
        kArray + 2,   // array of 16-bit integers
        kArray + 8,   // array of text
        kArray + 9,   // array of objects
    };
    return kTypeCodes[mStorage.index()];
}

}  // namespace quorvel

#pragma once

#include <cstddef>

namespace quorvel::test {

/// How many bytes this thread has asked the allocator for: a measure of work that is the same on every machine.
std::size_t allocatedBytes();

}  // namespace quorvel::test

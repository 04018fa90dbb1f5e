#include "support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t theAllocatedBytes = 0;

}  // namespace

namespace quorvel::test {

std::size_t allocatedBytes() {
    return theAllocatedBytes;
}

}  // namespace quorvel::test

void* operator new(std::size_t size) {
    theAllocatedBytes += size;
    if (void* const memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    theAllocatedBytes += size;
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
    std::free(memory);
}

#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace comtests {

/// Blocks in use in all heaps of the process.
inline std::size_t blocksInUse() {
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    heaps.resize(std::min<std::size_t>(heaps.size(), count));
    std::size_t blocks = 0;
    for (const HANDLE heap : heaps) {
        PROCESS_HEAP_ENTRY entry = {};
        HeapLock(heap);
        while (HeapWalk(heap, &entry)) blocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? 1 : 0;
        HeapUnlock(heap);
    }
    return blocks;
}

}  // namespace comtests

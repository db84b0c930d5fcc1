// Counts what a process holds, exactly.
#pragma once

#include <ostream>

#include "support/Surroundings.h"

namespace test {

struct Census {
    int gdiObjects = 0;
    int heapBlocks = 0;
    bool operator==(const Census&) const = default;
};

#if defined(_WIN32)
/// GDI objects of this process, found by asking for the type of every handle; blocks in use on the process heap, in
/// which global memory lives.
inline Census TakeCensus() {
    Census census;
    for (ULONG_PTR slot = 1; slot < 65536; ++slot)
        census.gdiObjects += GetObjectType(reinterpret_cast<HGDIOBJ>(slot)) != 0;
    PROCESS_HEAP_ENTRY entry = {};
    const HANDLE heap = GetProcessHeap();
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) census.heapBlocks += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(heap);
    return census;
}
#else
/// Bytes stand for blocks.
inline Census TakeCensus() { return {.heapBlocks = static_cast<int>(PrivateBytes())}; }
#endif

inline void PrintTo(const Census& census, std::ostream* out) {
    *out << census.gdiObjects << " GDI objects, " << census.heapBlocks << " heap blocks";
}

}  // namespace test

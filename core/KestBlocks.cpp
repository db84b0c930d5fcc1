// Holders of memory blocks, palettes and libraries: the only places that free one.
#include "KestBlocks.h"

#include <cstdlib>
#include <cstring>
#include <utility>

#include "core/Platform.h"
#include "core/kernel/CheckedSize.h"

KestGlobalBlock& KestGlobalBlock::operator=(const KestGlobalBlock& other) {
    // Assigned from its own copy, an owner keeps its block. A copy takes the new values even for the same handle, which
    // the system may have given to another block meanwhile.
    if (this == &other || (bOwner && hBlock == other.hBlock)) return *this;
    Release();
    hBlock = other.hBlock;
    pLocked = other.pLocked;
    llSize = other.llSize;
    return *this;
}

KestGlobalBlock::~KestGlobalBlock() { Release(); }

KestGlobalBlock::AllocateResult KestGlobalBlock::AllocateLocked(long long llBytes) {
    Release();
    // The system makes a block of no bytes, but does not lock it.
    if (llBytes != 0 && !kest::IsBlockSize(llBytes)) return NotAllocated;
    hBlock = kest::AllocateBlock(llBytes);
    if (!hBlock) return NotAllocated;
    pLocked = kest::LockBlock(hBlock);
    if (!pLocked) {
        kest::FreeBlock(hBlock);
        hBlock = nullptr;
        return NotLocked;
    }
    llSize = llBytes;
    bOwner = true;
    return Allocated;
}

KestGlobalBlock::ReleaseResult KestGlobalBlock::Release() {
    const HGLOBAL released = hBlock;
    const bool wasOwner = bOwner;
    hBlock = nullptr;
    pLocked = nullptr;
    llSize = 0;
    bOwner = false;
    if (!wasOwner) return Released;
    const bool isUnlocked = kest::UnlockBlock(released);
    if (!kest::FreeBlock(released)) return NotFreed;
    return isUnlocked ? Released : StillLocked;
}

void KestGlobalBlock::ReleaseButName() {
    const HGLOBAL named = hBlock;
    Release();
    hBlock = named;
}

HGLOBAL KestGlobalBlock::Detach() {
    const HGLOBAL detached = hBlock;
    bOwner = false;
    Release();
    return detached;
}

void KestGlobalBlock::Swap(KestGlobalBlock& other) {
    std::swap(hBlock, other.hBlock);
    std::swap(pLocked, other.pLocked);
    std::swap(llSize, other.llSize);
    std::swap(bOwner, other.bOwner);
}

KestHeapBlock& KestHeapBlock::operator=(const KestHeapBlock& other) {
    if (this != &other && !(bOwner && pBlock == other.pBlock))
        Refer(other.pBlock, static_cast<long long>(other.ullBytes));
    return *this;
}

KestHeapBlock::~KestHeapBlock() { Release(); }

bool KestHeapBlock::Reserve(long long bytes) {
    if (!kest::IsBlockSize(bytes)) return false;
    const auto needed = static_cast<unsigned long long>(bytes);
    if (bOwner && needed <= ullBytes) return true;
    // Growing by half at least keeps a long series of small growths from copying the block each time.
    // One that makes a large step leaves room for small ones behind it.
    unsigned long long roomy = bOwner ? ullBytes + ullBytes / 2 : needed;
    if (roomy < needed) roomy = needed + needed / 4;
    if (roomy > static_cast<unsigned long long>(kest::LargestBlockBytes)) roomy = needed;

    unsigned char* own = bOwner ? pBlock : nullptr;
    void* grown = std::realloc(own, static_cast<std::size_t>(roomy));
    if (!grown && roomy > needed) {
        roomy = needed;
        grown = std::realloc(own, static_cast<std::size_t>(roomy));
    }
    if (!grown) return false;
    if (!bOwner && pBlock) std::memcpy(grown, pBlock, static_cast<std::size_t>(ullBytes < needed ? ullBytes : needed));
    pBlock = static_cast<unsigned char*>(grown);
    ullBytes = roomy;
    bOwner = true;
    return true;
}

void KestHeapBlock::Adopt(unsigned char* pAllocated, long long bytes) {
    Refer(pAllocated, bytes);
    bOwner = pAllocated != nullptr;
}

void KestHeapBlock::Refer(unsigned char* pOther, long long bytes) {
    Release();
    pBlock = pOther;
    ullBytes = pOther && bytes > 0 ? static_cast<unsigned long long>(bytes) : 0;
}

void KestHeapBlock::Release() {
    if (bOwner) std::free(pBlock);
    pBlock = nullptr;
    ullBytes = 0;
    bOwner = false;
}

KestPalette& KestPalette::operator=(const KestPalette& other) {
    if (hPalette != other.hPalette) {
        Release();
        hPalette = other.hPalette;
    }
    return *this;
}

KestPalette::~KestPalette() { Release(); }

void KestPalette::Adopt(HPALETTE hNew) {
    Release();
    hPalette = hNew;
    bOwner = hNew != nullptr;
}

void KestPalette::Release() {
    if (bOwner) kest::DeletePalette(hPalette);
    hPalette = nullptr;
    bOwner = false;
}

KestLibrary& KestLibrary::operator=(const KestLibrary& other) {
    if (hLibrary != other.hLibrary) {
        Release();
        hLibrary = other.hLibrary;
    }
    return *this;
}

KestLibrary::~KestLibrary() { Release(); }

void KestLibrary::Adopt(HMODULE hNew) {
    Release();
    hLibrary = hNew;
    bOwner = hNew != nullptr;
}

void KestLibrary::Release() {
    if (bOwner) kest::UnloadLibrary(hLibrary);
    hLibrary = nullptr;
    bOwner = false;
}

// Holders of memory blocks, palettes and libraries, members of the exported classes.
//
// A copy of a holder refers to the same block and never frees it: whoever made the block frees it, once. The exported
// classes copy their members as they stand, so a copied object shares its source's blocks. Destroying both is fine in
// either order, but a copy must not be used any more once its source has released or replaced the block. Work blocks,
// which hold nothing that could not be computed again, are not shared: a copy starts with none.
#pragma once

#include "KestExport.h"
#include "KestPlatform.h"

/// A movable, zero-initialised global memory block, kept locked from allocation to release.
class KEST_API KestGlobalBlock {
public:
    /// What AllocateLocked reached: a locked block, none, or a block that could not be locked (and was freed).
    enum AllocateResult { Allocated, NotAllocated, NotLocked };
    /// What Release reached: all, a block that another lock keeps, or one that the system does not free.
    enum ReleaseResult { Released, StillLocked, NotFreed };

    KestGlobalBlock() = default;
    /// Refers to the same block without owning it.
    KestGlobalBlock(const KestGlobalBlock& other)
        : hBlock(other.hBlock), pLocked(other.pLocked), llSize(other.llSize) {}
    /// Releases what is held, then refers to the same block without owning it.
    KestGlobalBlock& operator=(const KestGlobalBlock& other);
    ~KestGlobalBlock();

    /// Releases what is held, then allocates and locks `llBytes` zero bytes.
    AllocateResult AllocateLocked(long long llBytes);
    /// The same, returning the memory; null when it cannot be had.
    void* Allocate(long long llBytes) { return AllocateLocked(llBytes) == Allocated ? pLocked : nullptr; }
    /// Unlocks and frees the block if this holder owns it; holds none afterwards.
    ReleaseResult Release();
    /// As Release, but goes on naming the freed block, without owning it.
    void ReleaseButName();
    /// Hands the locked block over to the caller.
    HGLOBAL Detach();
    void Swap(KestGlobalBlock& other);  ///< exchanges blocks and ownership

    bool Owns() const { return bOwner; }  ///< true: this holder frees the block
    /// The locked memory.
    void* Get() const { return pLocked; }
    /// The bytes that were asked for.
    long long Size() const { return llSize; }
    operator HGLOBAL() const { return hBlock; }  ///< the handle; null without a block

private:
    HGLOBAL hBlock = nullptr;
    void* pLocked = nullptr;
    long long llSize = 0;
    bool bOwner = false;
};

/// A global block of intermediate results: a copy of its owner starts without one.
class KEST_API KestWorkBlock : public KestGlobalBlock {
public:
    KestWorkBlock() = default;
    KestWorkBlock(const KestWorkBlock&) : KestGlobalBlock() {}        ///< starts without a block
    KestWorkBlock& operator=(const KestWorkBlock&) { return *this; }  ///< keeps its own block
};

/// Whether an object owns what it lists: true, but false in a copy.
class KestOwnership {
public:
    KestOwnership() = default;
    KestOwnership(const KestOwnership&) : bOwner(false) {}  ///< a copy owns nothing
    /// What is assigned to owns nothing from then on.
    KestOwnership& operator=(const KestOwnership& other) {
        if (this != &other) bOwner = false;
        return *this;
    }
    operator bool() const { return bOwner; }  ///< true: the object owns what it lists
    /// For a copy that has got something of its own.
    void Take() { bOwner = true; }

private:
    bool bOwner = true;
};

/// A block of the library's own allocator that grows. The real block grows geometrically behind what is asked for.
class KEST_API KestHeapBlock {
public:
    KestHeapBlock() = default;
    /// Refers to the same block without owning it.
    KestHeapBlock(const KestHeapBlock& other) : pBlock(other.pBlock), ullBytes(other.ullBytes) {}
    /// Releases what is held, then refers to the same block without owning it.
    KestHeapBlock& operator=(const KestHeapBlock& other);
    ~KestHeapBlock();

    /// Makes room for `bytes` bytes, keeping the content. False, and nothing changed, when memory is short.
    bool Reserve(long long bytes);
    /// Takes over a block of `bytes` bytes that malloc (or new) of the library's run-time made.
    void Adopt(unsigned char* pAllocated, long long bytes);
    /// Refers to a block without owning it.
    void Refer(unsigned char* pOther, long long bytes);
    /// Frees the block if this holder owns it; holds none afterwards.
    void Release();

    /// The first byte; null without a block.
    unsigned char* Get() const { return pBlock; }

private:
    unsigned char* pBlock = nullptr;
    unsigned long long ullBytes = 0;
    bool bOwner = false;
};

/// A logical palette, deleted by its owner.
class KEST_API KestPalette {
public:
    KestPalette() = default;
    /// Refers to the same palette without owning it.
    KestPalette(const KestPalette& other) : hPalette(other.hPalette) {}
    /// Releases what is held, then refers to the same palette without owning it.
    KestPalette& operator=(const KestPalette& other);
    ~KestPalette();

    /// Releases what is held and takes over `hNew`, which may be null.
    void Adopt(HPALETTE hNew);
    /// Deletes the palette if this holder owns it; holds none afterwards.
    void Release();

    operator HPALETTE() const { return hPalette; }  ///< null without a palette

private:
    HPALETTE hPalette = nullptr;
    bool bOwner = false;
};

/// A loaded library, given back by its owner.
class KEST_API KestLibrary {
public:
    KestLibrary() = default;
    /// Refers to the same library without owning it.
    KestLibrary(const KestLibrary& other) : hLibrary(other.hLibrary) {}
    /// Releases what is held, then refers to the same library without owning it.
    KestLibrary& operator=(const KestLibrary& other);
    ~KestLibrary();

    /// Releases what is held and takes over `hNew`, which may be null.
    void Adopt(HMODULE hNew);
    /// Unloads the library if this holder owns it; holds none afterwards.
    void Release();

    operator HMODULE() const { return hLibrary; }  ///< null without a library

private:
    HMODULE hLibrary = nullptr;
    bool bOwner = false;
};

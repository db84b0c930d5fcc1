// CcMemObjectStorage: an object stream in a memory block.
#pragma once

#include "CcObjectStorage.h"
#include "KestBlocks.h"

/// A stream over one block. The position is also the end of the data; nothing else marks an end. The last byte of the
/// block is never read and a write that would reach it grows the block first, so a block handed out by
/// GetStorageBufferRef with its length reads back exactly what was written. A copy shares its source's block (see
/// KestBlocks.h).
class KEST_API CcMemObjectStorage : public CcObjectStorage {
public:
    /// An own block of 100000 bytes that grows by at least 100000.
    CcMemObjectStorage();
    /// An own block of lInitialSize bytes that grows by at least lNewGrowSize.
    CcMemObjectStorage(long lInitialSize, long lNewGrowSize);
    /// Uses the caller's block as it stands, for reading and for writing within its size. `bExternal` 1: it stays the
    /// caller's and cannot grow. 0: the stream takes it over and frees it; it must come from AllocateBuffer (or from
    /// malloc or new of the library's own run-time).
    CcMemObjectStorage(unsigned char* pBuffer, long lSize, int bExternal);

    /// KEST_NULL_ARGUMENT, KEST_BAD_LENGTH (below 1), KEST_NOT_FOUND (the read would reach the block's last byte).
    int Read(void* pBuffer, long lLength) override;
    /// KEST_NULL_ARGUMENT, KEST_BAD_LENGTH, or what GrowStorageBuffer returns.
    int Write(void* pBuffer, long lLength) override;
    /// Moves the position back, never forward: KEST_BAD_LENGTH below 0 or behind the present position.
    int SetPos(long lPosition) override;
    int GetPos() override;

    /// The block itself, not a copy, and the bytes written plus one. KEST_NULL_ARGUMENT; -1 without a block.
    int GetStorageBufferRef(unsigned char** ppBuffer, long* plLength);
    /// Enlarges the block by `lBytes`. KEST_NOT_GROWABLE, KEST_BAD_LENGTH, KEST_NO_MEMORY.
    int GrowStorageBuffer(long lBytes);

    /// A block for the third constructor with `bExternal` 0; null when memory is short.
    static unsigned char* AllocateBuffer(long lSize);

protected:
    unsigned char* pStorageBuffer;  ///< the block
    long iBufferSize;               ///< its bytes
    long iReserved;                 ///< 0, not used
    long iPosition;                 ///< of the next byte
    long iInitialSize;              ///< bytes at first
    long iGrowSize;                 ///< the least growth, bytes
    int bExternalBuffer;            ///< 1: the block is the caller's

private:
    int Grow(long lBytes, long long llFirstZero);

    KestHeapBlock cBlock;
};

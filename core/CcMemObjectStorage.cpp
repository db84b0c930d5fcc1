// CcMemObjectStorage: an object stream in a memory block.
#include "CcMemObjectStorage.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "core/kernel/CheckedSize.h"

namespace {
constexpr long defaultSize = 100000;
}

CcMemObjectStorage::CcMemObjectStorage() : CcMemObjectStorage(defaultSize, defaultSize) {}

CcMemObjectStorage::CcMemObjectStorage(long lInitialSize, long lNewGrowSize)
    : pStorageBuffer(nullptr),
      iBufferSize(0),
      iReserved(0),
      iPosition(0),
      iInitialSize(lInitialSize),
      iGrowSize(lNewGrowSize),
      bExternalBuffer(0) {
    GrowStorageBuffer(lInitialSize);
}

CcMemObjectStorage::CcMemObjectStorage(unsigned char* pBuffer, long lSize, int bExternal)
    : pStorageBuffer(pBuffer),
      iBufferSize(pBuffer ? std::max(lSize, 0L) : 0),
      iReserved(0),
      iPosition(0),
      iInitialSize(lSize),
      iGrowSize(defaultSize),
      bExternalBuffer(bExternal != 0) {
    if (bExternalBuffer)
        cBlock.Refer(pBuffer, iBufferSize);
    else
        cBlock.Adopt(pBuffer, iBufferSize);
}

int CcMemObjectStorage::Read(void* pBuffer, long lLength) {
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    if (lLength < 1) return KEST_BAD_LENGTH;
    if (lLength >= iBufferSize - iPosition) return KEST_NOT_FOUND;
    std::memcpy(pBuffer, pStorageBuffer + iPosition, static_cast<std::size_t>(lLength));
    iPosition += lLength;
    return KEST_OK;
}

int CcMemObjectStorage::Write(void* pBuffer, long lLength) {
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    if (lLength < 1) return KEST_BAD_LENGTH;
    if (lLength >= iBufferSize - iPosition) {
        const kest::Size64 end = kest::Size64{iPosition} + std::min(lLength, LONG_MAX - iPosition);
        const int result = Grow(std::max(lLength, iGrowSize), end);
        if (result < 0) return result;
    }
    std::memcpy(pStorageBuffer + iPosition, pBuffer, static_cast<std::size_t>(lLength));
    iPosition += lLength;
    return KEST_OK;
}

int CcMemObjectStorage::SetPos(long lPosition) {
    if (lPosition < 0 || lPosition > iPosition) return KEST_BAD_LENGTH;
    iPosition = lPosition;
    return KEST_OK;
}

int CcMemObjectStorage::GetPos() { return static_cast<int>(iPosition); }

int CcMemObjectStorage::GetStorageBufferRef(unsigned char** ppBuffer, long* plLength) {
    if (!ppBuffer || !plLength) return KEST_NULL_ARGUMENT;
    if (!pStorageBuffer) return KEST_FAILED;
    *ppBuffer = pStorageBuffer;
    *plLength = iPosition + 1;
    return KEST_OK;
}

int CcMemObjectStorage::GrowStorageBuffer(long lBytes) { return Grow(lBytes, iBufferSize); }

/// Bytes from the old capacity to `llFirstZero` are left for the caller to write.
int CcMemObjectStorage::Grow(long lBytes, long long llFirstZero) {
    if (bExternalBuffer) return KEST_NOT_GROWABLE;
    if (lBytes < 1) return KEST_BAD_LENGTH;
    if (lBytes >= LONG_MAX - iBufferSize) return KEST_NO_MEMORY;
    const kest::Size64 bytes = kest::Size64{iBufferSize} + lBytes;
    // A byte more than the capacity: the length that GetStorageBufferRef tells counts one behind the data.
    if (!cBlock.Reserve(bytes + 1)) return KEST_NO_MEMORY;
    pStorageBuffer = cBlock.Get();
    // Bytes that were never written read as zeros, and never as something another object left behind.
    std::memset(pStorageBuffer + llFirstZero, 0, static_cast<std::size_t>(bytes + 1 - llFirstZero));
    iBufferSize = static_cast<long>(bytes);
    return KEST_OK;
}

unsigned char* CcMemObjectStorage::AllocateBuffer(long lSize) {
    return lSize < 1 ? nullptr : static_cast<unsigned char*>(std::calloc(static_cast<std::size_t>(lSize), 1));
}

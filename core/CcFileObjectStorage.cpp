// CcFileObjectStorage: an object stream in a file. Files are created when missing and never cut.
#include "CcFileObjectStorage.h"

#include <algorithm>
#include <cstring>

#include "core/Files.h"

namespace {

/// Transfers at least this large go straight between the file and the caller's memory.
constexpr long transferBytes = 1 << 16;

}  // namespace

CcFileObjectStorage::CcFileObjectStorage() : bIsOpen(0), hFile(INVALID_HANDLE_VALUE) {}

// A copy uses the same handle without its source's pending bytes, which the source still transfers itself.
CcFileObjectStorage::CcFileObjectStorage(const CcFileObjectStorage& other)
    : CcObjectStorage(other), bIsOpen(other.bIsOpen), hFile(other.hFile), bHasPositions(other.bHasPositions) {}

CcFileObjectStorage& CcFileObjectStorage::operator=(const CcFileObjectStorage& other) {
    if (hFile == other.hFile) return *this;
    if (bIsOpen) Close();
    bIsOpen = other.bIsOpen;
    hFile = other.hFile;
    bHasPositions = other.bHasPositions;
    bOwnsFile = false;
    return *this;
}

CcFileObjectStorage::~CcFileObjectStorage() {
    if (bIsOpen) Close();
}

int CcFileObjectStorage::Open(const char* pszFileName, unsigned long ulAccess) {
    if (!pszFileName) return KEST_NULL_ARGUMENT;
    if (bIsOpen) return KEST_ALREADY_OPEN;
    hFile = kest::OpenAsStream(pszFileName, static_cast<DWORD>(ulAccess));
    if (hFile == INVALID_HANDLE_VALUE) return KEST_OPEN_FAILED;
    bIsOpen = 1;
    bOwnsFile = true;
    bHasPositions = kest::IsOnDisk(hFile);
    return KEST_OK;
}

int CcFileObjectStorage::Close() {
    if (!bIsOpen) return KEST_NOT_OPEN;
    Flush();
    lTransferUsed = lTransferTaken = 0;
    if (bOwnsFile) kest::CloseFile(hFile);
    bOwnsFile = false;
    bIsOpen = 0;
    hFile = INVALID_HANDLE_VALUE;
    return KEST_OK;
}

int CcFileObjectStorage::Read(void* pBuffer, long lLength) {
    if (!bIsOpen) return KEST_NOT_OPEN;
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    if (lLength < 1) return KEST_BAD_LENGTH;
    const int flushed = Flush();
    if (flushed < 0) return flushed;

    auto* destination = static_cast<unsigned char*>(pBuffer);
    long missing = lLength;
    const auto takeFromBlock = [&] {
        const long step = std::min(missing, lTransferUsed - lTransferTaken);
        if (step < 1) return;
        std::memcpy(destination, cTransfer.Get() + lTransferTaken, static_cast<std::size_t>(step));
        lTransferTaken += step;
        destination += step;
        missing -= step;
    };

    takeFromBlock();
    // What is read ahead must be set back in the end, which a pipe cannot.
    if (missing > 0 && missing < transferBytes && bWholeObject && bHasPositions && cTransfer.Reserve(transferBytes)) {
        lTransferTaken = 0;
        lTransferUsed = std::max(kest::ReadSome(hFile, cTransfer.Get(), transferBytes), 0L);
        takeFromBlock();
    } else if (missing > 0 && kest::ReadSome(hFile, destination, missing) == missing) {
        missing = 0;
    }
    return missing == 0 ? KEST_OK : KEST_READ_FAILED;
}

int CcFileObjectStorage::Write(void* pBuffer, long lLength) {
    if (!bIsOpen) return KEST_NOT_OPEN;
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    if (lLength < 1) return KEST_BAD_LENGTH;
    if (DropReadAhead() < 0) return KEST_WRITE_FAILED;

    if (bWholeObject && lLength < transferBytes && cTransfer.Reserve(transferBytes)) {
        if (lTransferUsed + lLength > transferBytes) {
            const int flushed = Flush();
            if (flushed < 0) return flushed;
        }
        std::memcpy(cTransfer.Get() + lTransferUsed, pBuffer, static_cast<std::size_t>(lLength));
        lTransferUsed += lLength;
        bTransferWrites = true;
        return KEST_OK;
    }
    const int flushed = Flush();
    if (flushed < 0) return flushed;
    return WriteNow(pBuffer, lLength);
}

int CcFileObjectStorage::SetPos(long lPosition) {
    if (!bIsOpen) return KEST_NOT_OPEN;
    if (lPosition != 0) return KEST_BAD_LENGTH;
    const int flushed = Flush();
    // The system promises nothing for a pipe, not even that this fails.
    if (!bHasPositions) return KEST_FAILED;
    if (!kest::MoveToStart(hFile)) return KEST_FAILED;
    lTransferUsed = lTransferTaken = 0;
    return flushed < 0 ? flushed : int{KEST_AT_START};
}

int CcFileObjectStorage::GetPos() {
    if (!bIsOpen) return KEST_NOT_OPEN;
    if (!bHasPositions) return KEST_FAILED;
    const long inBlock = bTransferWrites ? lTransferUsed : lTransferTaken - lTransferUsed;
    const kest::Size64 position = kest::PositionIn(hFile);
    if (position < 0) return KEST_FAILED;
    return static_cast<int>(position) + static_cast<int>(inBlock);
}

void CcFileObjectStorage::BeginWholeObject() {
    bWholeObject = true;
    bTransferFailed = false;
}

int CcFileObjectStorage::EndWholeObject() {
    bWholeObject = false;
    Flush();
    // What was lost on the way counts, even when a later write went well.
    return bTransferFailed ? KEST_WRITE_FAILED : DropReadAhead();
}

int CcFileObjectStorage::WriteNow(const void* pBytes, long lLength) {
    if (kest::WriteExactly(hFile, pBytes, lLength)) return KEST_OK;
    bTransferFailed = true;
    return KEST_WRITE_FAILED;
}

/// Writes what was gathered. What could not be written is dropped; EndWholeObject reports it.
int CcFileObjectStorage::Flush() {
    if (!bTransferWrites) return KEST_OK;
    const int written = WriteNow(cTransfer.Get(), lTransferUsed);
    lTransferUsed = 0;
    bTransferWrites = false;
    return written;
}

/// Sets the file's position back to the first byte that was read ahead and not handed out. Where that fails the bytes
/// stay in the block, for the next read to begin with.
int CcFileObjectStorage::DropReadAhead() {
    if (bTransferWrites) return KEST_OK;
    if (lTransferTaken < lTransferUsed && !kest::MoveBy(hFile, lTransferTaken - lTransferUsed)) return KEST_READ_FAILED;
    lTransferUsed = lTransferTaken = 0;
    return KEST_OK;
}

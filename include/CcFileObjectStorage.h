// CcFileObjectStorage: an object stream in a file.
#pragma once

#include "CcObjectStorage.h"
#include "KestBlocks.h"
#include "KestPlatform.h"

/// A stream over a file. Reading and writing share one position, which can only be read or set back to 0.
///
/// While an object is written or read as a whole, small writes are gathered and small reads are served from a block
/// read ahead; PutObject and GetNextObject leave the file and its position as if each byte had been transferred singly,
/// and PutObject returns KEST_WRITE_FAILED when any of it could not be written. GetNextObject returns KEST_READ_FAILED
/// when the position could not be set back; the next read goes on behind the object all the same. In a derived class,
/// which can have its own Read and Write, nothing is gathered or read ahead: they are called for each piece, in order.
/// A copy shares its source's file handle and never closes it.
class KEST_API CcFileObjectStorage : public CcObjectStorage {
public:
    CcFileObjectStorage();
    /// Shares the file handle and never closes it.
    CcFileObjectStorage(const CcFileObjectStorage& other);
    /// Closes an open file of its own, then shares the other's.
    CcFileObjectStorage& operator=(const CcFileObjectStorage& other);
    ~CcFileObjectStorage() override;

    /// Opens `pszFileName` at its start without sharing; `ulAccess` is GENERIC_READ, GENERIC_WRITE or both. A missing
    /// file is created, for reading too: ask GetFileAttributesA first when it must be there. An existing one is neither
    /// cut nor appended to, so a shorter stream leaves the old tail behind it. KEST_NULL_ARGUMENT, KEST_ALREADY_OPEN,
    /// KEST_OPEN_FAILED.
    int Open(const char* pszFileName, unsigned long ulAccess);
    /// KEST_NOT_OPEN without an open file.
    int Close();

    /// KEST_NOT_OPEN, KEST_NULL_ARGUMENT, KEST_BAD_LENGTH, KEST_READ_FAILED (also for fewer bytes than asked);
    /// KEST_WRITE_FAILED when what PutObject had gathered could not be written before.
    int Read(void* pBuffer, long lLength) override;
    /// KEST_NOT_OPEN, KEST_NULL_ARGUMENT, KEST_BAD_LENGTH, KEST_WRITE_FAILED.
    int Write(void* pBuffer, long lLength) override;
    /// Only position 0 is accepted (else KEST_BAD_LENGTH). A successful rewind returns KEST_AT_START, not 0; one that
    /// the system refused, or of a pipe or device, KEST_FAILED. KEST_WRITE_FAILED when it is at the start, but what
    /// PutObject had gathered could not be written before.
    int SetPos(long lPosition) override;
    /// The position; KEST_NOT_OPEN, or KEST_FAILED where there is none (a pipe or device).
    int GetPos() override;

protected:
    int bIsOpen;   ///< 1 while a file is open
    HANDLE hFile;  ///< the file, while one is open

private:
    friend class CcObjectStorage;
    // Transfers of whole objects: between Begin and End small reads and writes go through a block of memory.
    void BeginWholeObject();
    int EndWholeObject();
    int WriteNow(const void* pBytes, long lLength);
    int Flush();
    int DropReadAhead();

    bool bOwnsFile = false;
    bool bHasPositions = false;  // it is on a disk
    bool bWholeObject = false;   // PutObject or GetNextObject runs
    KestHeapBlock cTransfer;     // bytes not yet written, or read ahead
    long lTransferUsed = 0;      // bytes in it
    long lTransferTaken = 0;     // of the bytes read ahead, those handed out
    bool bTransferWrites = false;
    bool bTransferFailed = false;  // a write failed since that call began
};

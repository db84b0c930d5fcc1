// CcObjectStorage: an object stream. Objects are written one after another as self-describing records and read back
// into an object that exists or into a new one, made from the class name in the record.
#pragma once

#include "CcHLObject.h"

class CcFileObjectStorage;

/// The record logic and the class factory over four byte operations that a subclass supplies.
///
/// A record is a tagOST_OBJECTHEADER, whatever the object's Store writes (complete records of other objects included),
/// and a tagOST_OBJECTFOOTER. There is no length and no stream header: each class's Load reads exactly what its Store
/// wrote.
class KEST_API CcObjectStorage {
public:
    virtual ~CcObjectStorage();  // slot 0
    /// Reads exactly `lLength` bytes. Base: -1.
    virtual int Read(void* pBuffer, long lLength);  // slot 1
    /// Writes exactly `lLength` bytes. Base: -1.
    virtual int Write(void* pBuffer, long lLength);  // slot 2
    /// Base: -1.
    virtual int SetPos(long lPosition);  // slot 3
    /// Base: -1.
    virtual int GetPos();  // slot 4

    /// Writes one object's record. KEST_NULL_ARGUMENT; -1 when the object has no class name, or its class name or
    /// object name has 50 characters or more (nothing is written then); else the first negative result of a write or of
    /// the object's Store. What was written stays; behind a write that failed nothing more of the object is written,
    /// even when the object's Store does not ask for results. Records nested deeper than 100 fail with -1;
    /// KEST_NO_MEMORY when the system has no memory for the call.
    int PutObject(CcHLObject* pObject);

    /// Reads the next record into `pObject`, which must be of the record's class (KEST_MISMATCH) and takes the stored
    /// name. KEST_BAD_TAG for a wrong header or footer tag; else the first negative result.
    int GetNextObject(CcHLObject* pObject);

    /// Reads the next record into a new object, which belongs to the caller. On failure the new object is deleted with
    /// all that it had loaded (the members of a list too, whatever its destruction type), and `*ppObject` stays as it
    /// was.
    int GetNextObject(CcHLObject** ppObject);

    /// Makes an object of the named class. -1, and null in `*ppObject`, for an unknown name (the abstract classes too).
    int CreateObject(const char* pszClassName, CcHLObject** ppObject);

    /// SetPos(0), whose result it returns: KEST_AT_START for a file.
    int Reset();

    /// @name For use in Load and Store
    /// The results of Read and Write, but every result that is not negative becomes 0. While PutObject runs, a write
    /// behind one that failed fails with the same code.
    /// @{
    int ReadObjectData(void* pBuffer, long lLength);            ///< any bytes
    int WriteObjectData(const void* pBuffer, long lLength);     ///< any bytes
    int ReadObjectHeader(tagOST_OBJECTHEADER* pHeader);         ///< a record's first 128 bytes
    int WriteObjectHeader(const tagOST_OBJECTHEADER* pHeader);  ///< a record's first 128 bytes
    int ReadObjectFooter(tagOST_OBJECTFOOTER* pFooter);         ///< a record's last 117 bytes
    int WriteObjectFooter(const tagOST_OBJECTFOOTER* pFooter);  ///< a record's last 117 bytes
    /// @}

private:
    int ReadCheckedHeader(tagOST_OBJECTHEADER& header);
    int LoadBody(CcHLObject& object, const tagOST_OBJECTHEADER& header);
    int PutRecord(CcHLObject& object, CcFileObjectStorage* outermostFile);
    template <class LoadBehind>
    int GetRecord(LoadBehind loadBehind);
    CcFileObjectStorage* GatheringFile();
};

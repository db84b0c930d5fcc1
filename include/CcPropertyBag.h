// CcPropertyBag: named, typed values in one table and one byte buffer; how every class keeps its values in a stream.
#pragma once

#include "CcHLObject.h"
#include "KestBlocks.h"

/// An append-only store of named values. Nothing is removed or replaced: a second Put under a name adds an entry, and a
/// lookup takes the first entry with that name and type, so the value put first stays visible.
///
/// Results: 0, or KEST_NULL_ARGUMENT, KEST_BAD_LENGTH (a length below 1, or a name above 259 characters),
/// KEST_NO_MEMORY, KEST_NOT_FOUND (no entry of that name and type), KEST_MISMATCH (the buffer is smaller than the
/// value). A failure changes nothing but the buffer of GetString. A copy shares its source's two blocks (see
/// KestBlocks.h).
class KEST_API CcPropertyBag : public CcHLObject {
public:
    CcPropertyBag();

    // Virtual operations, in the root's slots
    /// Replaces the content by what the stream holds. A stream that ends early or contradicts itself leaves an empty
    /// bag. 0, or KEST_NULL_ARGUMENT.
    int Load(CcObjectStorage* pStorage) override;  // slot 1
    /// Writes the entry count, the entries, the byte count and the bytes. 0 whatever the writes report, or
    /// KEST_NULL_ARGUMENT.
    int Store(CcObjectStorage* pStorage) override;              // slot 2
    int GetClassNameA(char* pszBuffer, long lLength) override;  // slot 3

    /// @name Putting
    /// Each appends an entry of its type.
    /// @{
    int PutInt(const char* pszName, int iValue);               ///< type 0, 4 bytes
    int PutLong(const char* pszName, long lValue);             ///< type 1, 4 bytes
    int PutFloat(const char* pszName, float fValue);           ///< type 2, 4 bytes
    int PutDouble(const char* pszName, double dValue);         ///< type 3, 8 bytes
    int PutString(const char* pszName, const char* pszValue);  ///< type 4, the characters and their terminator
    /// Copies `lLength` bytes.
    int PutBlob(const char* pszName, const void* pData, long lLength);

    /// As PutBlob, but the bytes stay where they are until they are stored, and must stay there; the next put copies
    /// them.
    int ReferToBlob(const char* pszName, const void* pData, long lLength);

    /// @}
    /// @name Getting
    /// Each takes the first entry of that name and type.
    /// @{
    int GetInt(const char* pszName, int* piValue);        ///< type 0
    int GetLong(const char* pszName, long* plValue);      ///< type 1
    int GetFloat(const char* pszName, float* pfValue);    ///< type 2
    int GetDouble(const char* pszName, double* pdValue);  ///< type 3
    /// Fills all `lLength` characters of the buffer with 0 first, so it holds "" after a failed lookup.
    int GetString(const char* pszName, char* pszBuffer, long lLength);
    /// Copies the blob's bytes into a buffer of `lLength` bytes.
    int GetBlob(const char* pszName, void* pBuffer, long lLength);
    /// @}

    /// The general put: `iType` is one of KestPropertyType.
    int PutProp(const char* pszName, int iType, const void* pData, long lLength);
    /// The general lookup: copies exactly the stored bytes, the rest of the buffer stays untouched. (The A belongs to
    /// the name, as that of GetClassNameA.)
    int GetPropA(const char* pszName, int iType, void* pBuffer, long lLength);
    /// The stored bytes of the value that GetPropA would copy, so that a caller can provide a buffer.
    int GetPropLength(const char* pszName, int iType, long* plLength);

    /// Enlarges the table's capacity by `iEntries` entries.
    int GrowPropTable(int iEntries);
    /// Enlarges the buffer's capacity by `iBytes` bytes.
    int GrowPropBuffer(int iBytes);

protected:
    tagPROPERTY* pPropTable;     ///< the entries
    int iPropTableSize;          ///< capacity, entries; small ones are only reserved when entries arrive
    int iReservedTable;          ///< 0, not used
    int iNumProps;               ///< entries
    unsigned char* pPropBuffer;  ///< the values' bytes
    int iPropBufferSize;         ///< capacity, bytes; small ones are only reserved when values arrive
    int iReservedBuffer;         ///< 0, not used
    int iPropBufferUsed;         ///< bytes in use

private:
    const tagPROPERTY* Find(const char* pszName, int iType) const;
    bool ReserveTable(long long llEntries);
    bool ReserveBuffer(long long llBytes);
    const unsigned char* ValueOf(const tagPROPERTY& entry) const;
    int CheckEntry(const char* pszName, const void* pData, long lLength);
    int CopyReferred();
    void Clear();
    bool LoadTable(CcObjectStorage& storage);
    bool LoadBuffer(CcObjectStorage& storage);

    KestHeapBlock cTableBlock;
    KestHeapBlock cBufferBlock;
    const unsigned char* pReferred = nullptr;  ///< the last entry's value, where it is not in the buffer
};

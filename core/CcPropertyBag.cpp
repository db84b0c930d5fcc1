// CcPropertyBag: named, typed values in a table of entries and one byte buffer. Both blocks go to a stream as they are;
// what comes back from one is used only after its counts, offsets and lengths were found to agree.
#include "CcPropertyBag.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "CcObjectStorage.h"
#include "core/ClassName.h"
#include "core/kernel/PropertyTable.h"

namespace {

constexpr int tableStep = 20;
constexpr int bufferStep = 100000;
/// Up to this capacity the real block grows with what is put: most bags hold a few bytes, and a fresh large block for
/// each costs more than all else.
constexpr int promisedBytes = 1 << 20;

/// Reads `bytes` bytes into `block`. The block grows as the bytes arrive, so a count that lies costs no memory.
bool ReadIntoBlock(CcObjectStorage& storage, KestHeapBlock& block, kest::Size64 bytes) {
    constexpr kest::Size64 largestStep = 1 << 20;
    for (kest::Size64 done = 0; done < bytes;) {
        const kest::Size64 step = std::min(bytes - done, std::max(largestStep, done));
        if (!block.Reserve(done + step)) return false;
        if (storage.ReadObjectData(block.Get() + done, static_cast<long>(step)) < 0) return false;
        done += step;
    }
    return true;
}

}  // namespace

CcPropertyBag::CcPropertyBag()
    : pPropTable(nullptr),
      iPropTableSize(0),
      iReservedTable(0),
      iNumProps(0),
      pPropBuffer(nullptr),
      iPropBufferSize(0),
      iReservedBuffer(0),
      iPropBufferUsed(0) {
    GrowPropTable(tableStep);
    GrowPropBuffer(bufferStep);
}

int CcPropertyBag::Load(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_NULL_ARGUMENT;
    Clear();
    if (!LoadTable(*pStorage) || !LoadBuffer(*pStorage) ||
        !kest::TableMatchesBuffer({pPropTable, static_cast<std::size_t>(iNumProps)}, iPropBufferUsed))
        Clear();
    return KEST_OK;
}

int CcPropertyBag::Store(CcObjectStorage* pStorage) {
    if (!pStorage) return KEST_NULL_ARGUMENT;
    pStorage->WriteObjectData(&iNumProps, sizeof iNumProps);
    pStorage->WriteObjectData(pPropTable, iNumProps * static_cast<long>(sizeof(tagPROPERTY)));
    const int referredBytes = pReferred ? pPropTable[iNumProps - 1].iPropLength : 0;
    const int valueBytes = iPropBufferUsed + referredBytes;
    pStorage->WriteObjectData(&valueBytes, sizeof valueBytes);
    pStorage->WriteObjectData(pPropBuffer, iPropBufferUsed);
    if (pReferred) pStorage->WriteObjectData(pReferred, referredBytes);
    return KEST_OK;
}

int CcPropertyBag::GetClassNameA(char* pszBuffer, long lLength) {
    return kest::WriteClassName(pszBuffer, lLength, "CcPropertyBag");
}

int CcPropertyBag::PutInt(const char* pszName, int iValue) {
    return PutProp(pszName, KEST_PROPERTY_INT, &iValue, sizeof iValue);
}

int CcPropertyBag::PutLong(const char* pszName, long lValue) {
    // Four bytes on every system.
    const auto stored = static_cast<std::int32_t>(lValue);
    return PutProp(pszName, KEST_PROPERTY_LONG, &stored, sizeof stored);
}

int CcPropertyBag::PutFloat(const char* pszName, float fValue) {
    return PutProp(pszName, KEST_PROPERTY_FLOAT, &fValue, sizeof fValue);
}

int CcPropertyBag::PutDouble(const char* pszName, double dValue) {
    return PutProp(pszName, KEST_PROPERTY_DOUBLE, &dValue, sizeof dValue);
}

int CcPropertyBag::PutString(const char* pszName, const char* pszValue) {
    if (!pszName || !pszValue) return KEST_NULL_ARGUMENT;
    const std::size_t bytes = std::strlen(pszValue) + 1;
    if (!kest::IsBlockSize(static_cast<kest::Size64>(bytes))) return KEST_NO_MEMORY;
    return PutProp(pszName, KEST_PROPERTY_STRING, pszValue, static_cast<long>(bytes));
}

int CcPropertyBag::PutBlob(const char* pszName, const void* pData, long lLength) {
    return PutProp(pszName, KEST_PROPERTY_BLOB, pData, lLength);
}

int CcPropertyBag::GetInt(const char* pszName, int* piValue) {
    return GetPropA(pszName, KEST_PROPERTY_INT, piValue, sizeof *piValue);
}

int CcPropertyBag::GetLong(const char* pszName, long* plValue) {
    if (!plValue) return KEST_NULL_ARGUMENT;
    std::int32_t stored;
    std::memcpy(&stored, plValue, sizeof stored);
    const int result = GetPropA(pszName, KEST_PROPERTY_LONG, &stored, sizeof stored);
    if (result == KEST_OK) *plValue = stored;
    return result;
}

int CcPropertyBag::GetFloat(const char* pszName, float* pfValue) {
    return GetPropA(pszName, KEST_PROPERTY_FLOAT, pfValue, sizeof *pfValue);
}

int CcPropertyBag::GetDouble(const char* pszName, double* pdValue) {
    return GetPropA(pszName, KEST_PROPERTY_DOUBLE, pdValue, sizeof *pdValue);
}

int CcPropertyBag::GetString(const char* pszName, char* pszBuffer, long lLength) {
    if (!pszName || !pszBuffer) return KEST_NULL_ARGUMENT;
    if (lLength > 0) std::memset(pszBuffer, 0, static_cast<std::size_t>(lLength));
    const int result = GetPropA(pszName, KEST_PROPERTY_STRING, pszBuffer, lLength);
    // A string put into a bag ends in 0 already; one read from a stream need not.
    if (result == KEST_OK) pszBuffer[lLength - 1] = 0;
    return result;
}

int CcPropertyBag::GetBlob(const char* pszName, void* pBuffer, long lLength) {
    return GetPropA(pszName, KEST_PROPERTY_BLOB, pBuffer, lLength);
}

int CcPropertyBag::PutProp(const char* pszName, int iNewType, const void* pData, long lLength) {
    int result = CheckEntry(pszName, pData, lLength);
    if (result < 0) return result;
    if (iPropBufferSize <= kest::Size64{iPropBufferUsed} + lLength) {
        result = GrowPropBuffer(static_cast<int>(std::max<long>(bufferStep, lLength)));
        if (result < 0) return result;
    }
    if (!ReserveBuffer(kest::Size64{iPropBufferUsed} + lLength)) return KEST_NO_MEMORY;
    std::memcpy(pPropBuffer + iPropBufferUsed, pData, static_cast<std::size_t>(lLength));
    kest::MakeProperty(pPropTable[iNumProps], pszName, iNewType, iPropBufferUsed, static_cast<int>(lLength));
    ++iNumProps;
    iPropBufferUsed += static_cast<int>(lLength);
    return KEST_OK;
}

int CcPropertyBag::ReferToBlob(const char* pszName, const void* pData, long lLength) {
    const int result = CheckEntry(pszName, pData, lLength);
    if (result < 0) return result;
    if (!kest::IsBlockSize(kest::Size64{iPropBufferUsed} + lLength)) return KEST_NO_MEMORY;
    kest::MakeProperty(pPropTable[iNumProps], pszName, KEST_PROPERTY_BLOB, iPropBufferUsed, static_cast<int>(lLength));
    ++iNumProps;
    pReferred = static_cast<const unsigned char*>(pData);
    return KEST_OK;
}

/// What every put asks for first, and room for its entry.
int CcPropertyBag::CheckEntry(const char* pszName, const void* pData, long lLength) {
    if (!pszName || !pData) return KEST_NULL_ARGUMENT;
    if (lLength < 1 || !kest::IsPropertyName(pszName)) return KEST_BAD_LENGTH;
    if (pReferred) {
        const int result = CopyReferred();
        if (result < 0) return result;
    }
    if (iPropTableSize <= iNumProps) {
        const int result = GrowPropTable(tableStep);
        if (result < 0) return result;
    }
    return ReserveTable(kest::Size64{iNumProps} + 1) ? KEST_OK : KEST_NO_MEMORY;
}

int CcPropertyBag::CopyReferred() {
    const tagPROPERTY entry = pPropTable[iNumProps - 1];
    const unsigned char* value = pReferred;
    pReferred = nullptr;
    --iNumProps;
    const int result = PutProp(entry.szPropName, entry.iPropType, value, entry.iPropLength);
    if (result < 0) {
        ++iNumProps;
        pReferred = value;
    }
    return result;
}

const unsigned char* CcPropertyBag::ValueOf(const tagPROPERTY& entry) const {
    const bool isReferred = pReferred && &entry == pPropTable + iNumProps - 1;
    return isReferred ? pReferred : pPropBuffer + entry.iPropOffset;
}

int CcPropertyBag::GetPropA(const char* pszName, int iWantedType, void* pBuffer, long lLength) {
    if (!pszName || !pBuffer) return KEST_NULL_ARGUMENT;
    if (lLength < 1) return KEST_BAD_LENGTH;
    const tagPROPERTY* entry = Find(pszName, iWantedType);
    if (!entry) return KEST_NOT_FOUND;
    if (lLength < entry->iPropLength) return KEST_MISMATCH;
    std::memcpy(pBuffer, ValueOf(*entry), static_cast<std::size_t>(entry->iPropLength));
    return KEST_OK;
}

int CcPropertyBag::GetPropLength(const char* pszName, int iWantedType, long* plLength) {
    if (!pszName || !plLength) return KEST_NULL_ARGUMENT;
    const tagPROPERTY* entry = Find(pszName, iWantedType);
    if (!entry) return KEST_NOT_FOUND;
    *plLength = entry->iPropLength;
    return KEST_OK;
}

const tagPROPERTY* CcPropertyBag::Find(const char* pszName, int iWantedType) const {
    const int index = kest::FindProperty({pPropTable, static_cast<std::size_t>(iNumProps)}, pszName, iWantedType);
    return index < 0 ? nullptr : pPropTable + index;
}

int CcPropertyBag::GrowPropTable(int iEntries) {
    if (iEntries < 1) return KEST_BAD_LENGTH;
    const kest::Size64 entries = kest::Size64{iPropTableSize} + iEntries;
    constexpr kest::Size64 smallest = 2;
    const bool isPromised = entries * static_cast<kest::Size64>(sizeof(tagPROPERTY)) <= promisedBytes;
    if (!ReserveTable(isPromised ? std::max(smallest, kest::Size64{iNumProps}) : entries)) return KEST_NO_MEMORY;
    iPropTableSize = static_cast<int>(entries);
    return KEST_OK;
}

int CcPropertyBag::GrowPropBuffer(int iBytes) {
    if (iBytes < 1) return KEST_BAD_LENGTH;
    const kest::Size64 bytes = kest::Size64{iPropBufferSize} + iBytes;
    constexpr kest::Size64 smallest = 256;
    if (!ReserveBuffer(bytes > promisedBytes ? bytes : std::max(smallest, kest::Size64{iPropBufferUsed})))
        return KEST_NO_MEMORY;
    iPropBufferSize = static_cast<int>(bytes);
    return KEST_OK;
}

bool CcPropertyBag::ReserveTable(long long llEntries) {
    if (!cTableBlock.Reserve(llEntries * static_cast<kest::Size64>(sizeof(tagPROPERTY)))) return false;
    pPropTable = reinterpret_cast<tagPROPERTY*>(cTableBlock.Get());
    return true;
}

bool CcPropertyBag::ReserveBuffer(long long llBytes) {
    if (!cBufferBlock.Reserve(llBytes)) return false;
    pPropBuffer = cBufferBlock.Get();
    return true;
}

void CcPropertyBag::Clear() {
    cTableBlock.Release();
    pPropTable = nullptr;
    iPropTableSize = iReservedTable = iNumProps = 0;
    cBufferBlock.Release();
    pPropBuffer = nullptr;
    iPropBufferSize = iReservedBuffer = iPropBufferUsed = 0;
    pReferred = nullptr;
}

// The capacities equal the counts after a load, so the next put grows both blocks.
bool CcPropertyBag::LoadTable(CcObjectStorage& storage) {
    int count = 0;
    if (storage.ReadObjectData(&count, sizeof count) < 0 || count < 0) return false;
    const kest::Size64 bytes = count * static_cast<kest::Size64>(sizeof(tagPROPERTY));
    if (!ReadIntoBlock(storage, cTableBlock, bytes)) return false;
    pPropTable = reinterpret_cast<tagPROPERTY*>(cTableBlock.Get());
    iPropTableSize = iNumProps = count;
    return true;
}

bool CcPropertyBag::LoadBuffer(CcObjectStorage& storage) {
    int bytes = 0;
    if (storage.ReadObjectData(&bytes, sizeof bytes) < 0 || bytes < 0) return false;
    if (!ReadIntoBlock(storage, cBufferBlock, bytes)) return false;
    pPropBuffer = cBufferBlock.Get();
    iPropBufferSize = iPropBufferUsed = bytes;
    return true;
}

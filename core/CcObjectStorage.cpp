// CcObjectStorage: writing whole objects as records and reading them back. Names in a record that lack their terminator
// end at their field; a record is never trusted further than its tag and its class name.
#include "CcObjectStorage.h"

#include "CcFileObjectStorage.h"
#include "core/FunctionTable.h"
#include "core/ObjectFactory.h"
#include "core/StreamCall.h"
#include "core/kernel/ObjectRecord.h"
#include "core/kernel/TextField.h"

namespace {

template <class Record>
int NameRecord(CcHLObject& object, Record& record) {
    kest::BeginRecord(record);
    if (object.GetClassNameA(record.szClassName, sizeof record.szClassName) < 0) return KEST_FAILED;
    if (object.GetObjectName(record.szObjectName, sizeof record.szObjectName) < 0) return KEST_FAILED;
    return KEST_OK;
}

constexpr int ZeroOrNegative(int result) { return result < 0 ? result : KEST_OK; }

}  // namespace

CcObjectStorage::~CcObjectStorage() = default;

int CcObjectStorage::Read(void*, long) { return KEST_FAILED; }

int CcObjectStorage::Write(void*, long) { return KEST_FAILED; }

int CcObjectStorage::SetPos(long) { return KEST_FAILED; }

int CcObjectStorage::GetPos() { return KEST_FAILED; }

int CcObjectStorage::PutObject(CcHLObject* pObject) {
    if (!pObject) return KEST_NULL_ARGUMENT;
    const kest::StreamCall call(*this);
    if (!call.IsKnown()) return KEST_NO_MEMORY;
    if (call.IsTooDeep()) return KEST_FAILED;
    CcFileObjectStorage* file = call.IsOutermost() ? GatheringFile() : nullptr;
    if (file) file->BeginWholeObject();
    const int put = PutRecord(*pObject, file);
    const int ended = file ? file->EndWholeObject() : KEST_OK;
    // What could not be written had been handed over before the object itself failed.
    return ended < 0 ? ended : put;
}

/// This stream, when it is a file that may transfer the bytes of an object together: a derived class can have a way of
/// its own for each of them.
CcFileObjectStorage* CcObjectStorage::GatheringFile() {
    const CcFileObjectStorage file;
    const bool isFile = kest::FunctionTableOf(this) == kest::FunctionTableOf(&file);
    return isFile ? static_cast<CcFileObjectStorage*>(this) : nullptr;
}

int CcObjectStorage::PutRecord(CcHLObject& object, CcFileObjectStorage* outermostFile) {
    tagOST_OBJECTHEADER header;
    int result = NameRecord(object, header);
    if (result < 0) return result;
    result = WriteObjectHeader(&header);
    // Nothing is asked of an object for a file that takes no bytes.
    if (result >= 0 && outermostFile) result = outermostFile->Flush();
    if (result < 0) return result;

    result = object.Store(this);
    if (result < 0) return result;

    tagOST_OBJECTFOOTER footer;
    result = NameRecord(object, footer);
    if (result < 0) return result;
    return WriteObjectFooter(&footer);
}

int CcObjectStorage::GetNextObject(CcHLObject* pObject) {
    if (!pObject) return KEST_NULL_ARGUMENT;
    return GetRecord([&](const tagOST_OBJECTHEADER& header) -> int {
        char ownClass[sizeof header.szClassName] = {};
        if (pObject->GetClassNameA(ownClass, sizeof ownClass) < 0) return KEST_FAILED;
        if (!kest::FieldEquals(header.szClassName, sizeof header.szClassName, ownClass)) return KEST_MISMATCH;
        return LoadBody(*pObject, header);
    });
}

int CcObjectStorage::GetNextObject(CcHLObject** ppObject) {
    if (!ppObject) return KEST_NULL_ARGUMENT;
    CcHLObject* made = nullptr;
    const int result = GetRecord([&](const tagOST_OBJECTHEADER& header) {
        char className[sizeof header.szClassName + 1];
        kest::CopyField(className, header.szClassName, sizeof header.szClassName);
        const int created = CreateObject(className, &made);
        return created < 0 ? created : LoadBody(*made, header);
    });
    if (result >= 0)
        *ppObject = made;
    else
        kest::DeleteMade(made);
    return result;
}

/// Reads a header and what `loadBehind` reads behind it.
template <class LoadBehind>
int CcObjectStorage::GetRecord(LoadBehind loadBehind) {
    const kest::StreamCall call(*this);
    if (!call.IsKnown()) return KEST_NO_MEMORY;
    if (call.IsTooDeep()) return KEST_FAILED;
    CcFileObjectStorage* file = call.IsOutermost() ? GatheringFile() : nullptr;
    if (file) file->BeginWholeObject();
    tagOST_OBJECTHEADER header;
    int result = ReadCheckedHeader(header);
    if (result >= 0) result = loadBehind(header);
    const int ended = file ? file->EndWholeObject() : KEST_OK;
    return result < 0 ? result : ended;
}

int CcObjectStorage::ReadCheckedHeader(tagOST_OBJECTHEADER& header) {
    const int result = ReadObjectHeader(&header);
    if (result < 0) return result;
    return kest::HasTag(header) ? KEST_OK : KEST_BAD_TAG;
}

int CcObjectStorage::LoadBody(CcHLObject& object, const tagOST_OBJECTHEADER& header) {
    char objectName[sizeof header.szObjectName + 1];
    kest::CopyField(objectName, header.szObjectName, sizeof header.szObjectName);
    int result = object.SetObjectName(objectName);
    if (result < 0) return result;

    result = object.Load(this);
    if (result < 0) return result;

    tagOST_OBJECTFOOTER footer;
    result = ReadObjectFooter(&footer);
    if (result < 0) return result;
    return kest::HasTag(footer) ? KEST_OK : KEST_BAD_TAG;
}

int CcObjectStorage::CreateObject(const char* pszClassName, CcHLObject** ppObject) {
    if (!pszClassName || !ppObject) return KEST_NULL_ARGUMENT;
    return kest::MakeObject(pszClassName, *ppObject);
}

int CcObjectStorage::Reset() { return SetPos(0); }

int CcObjectStorage::ReadObjectData(void* pBuffer, long lLength) {
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    return ZeroOrNegative(Read(pBuffer, lLength));
}

int CcObjectStorage::WriteObjectData(const void* pBuffer, long lLength) {
    if (!pBuffer) return KEST_NULL_ARGUMENT;
    kest::RunningStreamCall* call = kest::RunningCallOn(*this);
    if (call && call->firstLost < 0) return call->firstLost;
    const int result = ZeroOrNegative(Write(const_cast<void*>(pBuffer), lLength));
    if (call && lLength > 0) call->firstLost = result;
    return result;
}

int CcObjectStorage::ReadObjectHeader(tagOST_OBJECTHEADER* pHeader) { return ReadObjectData(pHeader, sizeof *pHeader); }

int CcObjectStorage::WriteObjectHeader(const tagOST_OBJECTHEADER* pHeader) {
    return WriteObjectData(pHeader, sizeof *pHeader);
}

int CcObjectStorage::ReadObjectFooter(tagOST_OBJECTFOOTER* pFooter) { return ReadObjectData(pFooter, sizeof *pFooter); }

int CcObjectStorage::WriteObjectFooter(const tagOST_OBJECTFOOTER* pFooter) {
    return WriteObjectData(pFooter, sizeof *pFooter);
}

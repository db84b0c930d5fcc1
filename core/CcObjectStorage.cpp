// CcObjectStorage: writing whole objects as records and reading them back. Names in a record that lack their terminator
// end at their field; a record is never trusted further than its tag and its class name.
#include "CcObjectStorage.h"

#include "CcFileObjectStorage.h"
#include "CcList.h"
#include "core/ObjectFactory.h"
#include "core/kernel/ObjectRecord.h"
#include "core/kernel/TextField.h"

namespace {

/// How deep records may be nested in one another; a stream that goes deeper must not exhaust the stack.
constexpr int deepestNesting = 100;
int nesting = 0;

struct NestingLevel {
    NestingLevel() { ++nesting; }
    ~NestingLevel() { --nesting; }
    NestingLevel(const NestingLevel&) = delete;
    NestingLevel& operator=(const NestingLevel&) = delete;
    static bool TooDeep() { return nesting > deepestNesting; }
};

template <class Record>
int NameRecord(CcHLObject& object, Record& record) {
    kest::BeginRecord(record);
    if (object.GetClassNameA(record.szClassName, sizeof record.szClassName) < 0) return KEST_FAILED;
    if (object.GetObjectName(record.szObjectName, sizeof record.szObjectName) < 0) return KEST_FAILED;
    return KEST_OK;
}

/// Deletes an object whose record broke off, and what it had loaded: the members of a list become the list's own only
/// when it is complete.
void DeleteIncomplete(CcHLObject* object) {
    const auto ownMembers = [](auto& self, CcHLObject* member) -> void {
        auto* list = dynamic_cast<CcList*>(member);
        if (!list) return;
        list->SetDestructionType(1);
        for (int i = 0; i < list->GetNumberOfObjects(); ++i) self(self, list->GetAtIndex(i));
    };
    ownMembers(ownMembers, object);
    delete object;
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
    auto* file = dynamic_cast<CcFileObjectStorage*>(this);
    if (file) file->BeginWholeObject();
    const int put = PutRecord(*pObject);
    const int ended = file ? file->EndWholeObject() : KEST_OK;
    // What could not be written had been handed over before the object itself failed.
    return ended < 0 ? ended : put;
}

int CcObjectStorage::PutRecord(CcHLObject& object) {
    const NestingLevel level;
    if (level.TooDeep()) return KEST_FAILED;

    tagOST_OBJECTHEADER header;
    int result = NameRecord(object, header);
    if (result < 0) return result;
    result = WriteObjectHeader(&header);
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
    auto* file = dynamic_cast<CcFileObjectStorage*>(this);
    if (file) file->BeginWholeObject();

    tagOST_OBJECTHEADER header;
    int result = ReadCheckedHeader(header);
    if (result >= 0) {
        char ownClass[sizeof header.szClassName] = {};
        if (pObject->GetClassNameA(ownClass, sizeof ownClass) < 0)
            result = KEST_FAILED;
        else if (!kest::FieldEquals(header.szClassName, sizeof header.szClassName, ownClass))
            result = KEST_MISMATCH;
        else
            result = LoadBody(*pObject, header);
    }

    if (file) file->EndWholeObject();
    return result;
}

int CcObjectStorage::GetNextObject(CcHLObject** ppObject) {
    if (!ppObject) return KEST_NULL_ARGUMENT;
    auto* file = dynamic_cast<CcFileObjectStorage*>(this);
    if (file) file->BeginWholeObject();

    tagOST_OBJECTHEADER header;
    CcHLObject* made = nullptr;
    int result = ReadCheckedHeader(header);
    if (result >= 0) {
        char className[sizeof header.szClassName + 1];
        kest::CopyField(className, header.szClassName, sizeof header.szClassName);
        result = CreateObject(className, &made);
    }
    if (result >= 0) {
        result = LoadBody(*made, header);
        if (result >= 0)
            *ppObject = made;
        else
            DeleteIncomplete(made);
    }

    if (file) file->EndWholeObject();
    return result;
}

int CcObjectStorage::ReadCheckedHeader(tagOST_OBJECTHEADER& header) {
    const int result = ReadObjectHeader(&header);
    if (result < 0) return result;
    return kest::HasTag(header) ? KEST_OK : KEST_BAD_TAG;
}

int CcObjectStorage::LoadBody(CcHLObject& object, const tagOST_OBJECTHEADER& header) {
    const NestingLevel level;
    if (level.TooDeep()) return KEST_FAILED;

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
    return ZeroOrNegative(Write(const_cast<void*>(pBuffer), lLength));
}

int CcObjectStorage::ReadObjectHeader(tagOST_OBJECTHEADER* pHeader) { return ReadObjectData(pHeader, sizeof *pHeader); }

int CcObjectStorage::WriteObjectHeader(const tagOST_OBJECTHEADER* pHeader) {
    return WriteObjectData(pHeader, sizeof *pHeader);
}

int CcObjectStorage::ReadObjectFooter(tagOST_OBJECTFOOTER* pFooter) { return ReadObjectData(pFooter, sizeof *pFooter); }

int CcObjectStorage::WriteObjectFooter(const tagOST_OBJECTFOOTER* pFooter) {
    return WriteObjectData(pFooter, sizeof *pFooter);
}

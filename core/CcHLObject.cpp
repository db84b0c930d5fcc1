// CcHLObject: type code, reference count, name, and the operations that object streams call.
#include "CcHLObject.h"

#include <cstring>

#include "core/kernel/TextField.h"

CcHLObject::CcHLObject() : iType(KEST_TYPE_NONE), iReferenceCount(0), szObjectName{} {}

CcHLObject::~CcHLObject() = default;

int CcHLObject::Load(CcObjectStorage*) { return KEST_FAILED; }

int CcHLObject::Store(CcObjectStorage*) { return KEST_FAILED; }

int CcHLObject::GetClassNameA(char*, long) { return KEST_FAILED; }

int CcHLObject::GetObjectName(char* pszBuffer, long lLength) {
    if (!pszBuffer || lLength < 1) return KEST_FAILED;
    const std::size_t nameLength = kest::FieldLength(szObjectName, sizeof szObjectName);
    if (static_cast<std::size_t>(lLength) <= nameLength) return KEST_FAILED;
    std::memcpy(pszBuffer, szObjectName, nameLength);
    pszBuffer[nameLength] = 0;
    return KEST_OK;
}

int CcHLObject::SetObjectName(const char* pszName) { return SetName(pszName); }

char* CcHLObject::GetName() { return szObjectName; }

int CcHLObject::SetName(const char* pszName) {
    return pszName && kest::CopyIfFits(szObjectName, pszName) ? KEST_OK : KEST_FAILED;
}

int CcHLObject::GetType() { return iType; }

int CcHLObject::SetType(int iNewType) {
    iType = iNewType;
    return KEST_OK;
}

int CcHLObject::GetReferenceCount() { return iReferenceCount; }

int CcHLObject::IncReferenceCount() {
    ++iReferenceCount;
    return KEST_OK;
}

int CcHLObject::DecReferenceCount() {
    if (iReferenceCount < 1) return KEST_FAILED;
    --iReferenceCount;
    return KEST_OK;
}

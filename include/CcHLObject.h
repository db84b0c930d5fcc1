// CcHLObject: the root of every object that the library hands out, keeps in a list or writes to a stream.
#pragma once

#include "KestExport.h"
#include "KestHeapObject.h"
#include "KestTypes.h"

class CcObjectStorage;

/// The root class: a type code, a reference count that callers manage by hand, a name, and the operations that object
/// streams call.
///
/// Operations return 0 for success and a negative value for failure; nothing throws. Copying copies type, count and
/// name as they stand. Strings that are only read are `const char*`, in virtual functions too: a host that overrides
/// one declares it so.
class KEST_API CcHLObject : public KestHeapObject {
public:
    CcHLObject();
    CcHLObject(const CcHLObject&) = default;
    CcHLObject& operator=(const CcHLObject&) = default;

    // Virtual operations in slot order; a derived class that overrides Load and Store keeps it.
    virtual ~CcHLObject();  // slot 0
    /// Reads the object's data, as Store wrote it, from a stream. Base: -1.
    virtual int Load(CcObjectStorage* pStorage);  // slot 1
    /// Writes the object's data to a stream. Base: -1.
    virtual int Store(CcObjectStorage* pStorage);  // slot 2
    /// Writes the class name, the key by which a stream makes the object again, with its terminator into `pszBuffer`.
    /// -1 when `lLength` is not greater than the name's length. Base: -1, writes nothing. Write the A in overrides and
    /// calls: the platform's headers make GetClassNameW of GetClassName in a host that defines UNICODE.
    virtual int GetClassNameA(char* pszBuffer, long lLength);  // slot 3
    /// Writes the object's name with its terminator into `pszBuffer`. -1 for a null buffer, a length below 1, or a
    /// length not greater than the name's.
    virtual int GetObjectName(char* pszBuffer, long lLength);  // slot 4
    /// Same rule as SetName.
    virtual int SetObjectName(const char* pszName);  // slot 5

    /// The object's own name buffer (260 characters), not a copy.
    char* GetName();
    /// -1 for null or more than 259 characters; the name then stays as it was.
    int SetName(const char* pszName);

    /// One of KestObjectType.
    int GetType();
    int SetType(int iNewType);  ///< any number is kept; always 0

    /// The count is advice among callers: nothing deletes an object when it reaches 0.
    int GetReferenceCount();
    int IncReferenceCount();  ///< always 0
    /// -1, and the count stays, when it is below 1.
    int DecReferenceCount();

protected:
    int iType;                          ///< one of KestObjectType
    int iReferenceCount;                ///< kept by the callers
    char szObjectName[KEST_NAME_SIZE];  ///< the name, NUL-terminated
};

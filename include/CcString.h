// CcString: a named text that a list can hold beside other objects.
#pragma once

#include "CcHLObject.h"

/// A text of at most 259 characters. It has no class name, so it cannot be written to an object stream.
class KEST_API CcString : public CcHLObject {
public:
    CcString();

    /// The object's own buffer (260 characters), not a copy.
    char* GetString();
    /// Copies at most 259 characters, the rest is cut off; a null text leaves the value as it is. Always 0.
    int SetString(const char* pszText);

protected:
    char szString[KEST_NAME_SIZE];  ///< NUL-terminated
};

// CcNumber: a named number that a list can hold beside other objects.
#pragma once

#include "CcHLObject.h"

/// A single-precision number, 0 at first. It has no class name, so it cannot be written to an object stream.
class KEST_API CcNumber : public CcHLObject {
public:
    CcNumber();

    float GetValue();  ///< the number
    /// Always 0.
    int SetValue(float fNewValue);

protected:
    float fValue;  ///< the number
};

// CcNumber: a named number.
#include "CcNumber.h"

CcNumber::CcNumber() : fValue(0.0F) { SetType(KEST_TYPE_NUMBER); }

float CcNumber::GetValue() { return fValue; }

int CcNumber::SetValue(float fNewValue) {
    fValue = fNewValue;
    return KEST_OK;
}

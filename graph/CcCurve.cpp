// CcCurve: a reference to the caller's points, and a style.
#include "CcCurve.h"

#include "graph/Outputs.h"

CcCurve::CcCurve() : ulCurveColor(0), iCurveStyle(0), iCurveWidth(0), iNumberOfPoints(-1), pCurveData(nullptr) {
    SetType(KEST_TYPE_CURVE);
}

CcCurve::~CcCurve() = default;

int CcCurve::SetCurveStyle(int iStyle, unsigned long ulColor, int iWidth) {
    iCurveStyle = iStyle;
    ulCurveColor = ulColor;
    iCurveWidth = iWidth;
    return KEST_OK;
}

int CcCurve::GetCurveStyle(int* piStyle, unsigned long* pulColor, int* piWidth) {
    kest::Put(piStyle, iCurveStyle);
    kest::Put(pulColor, ulCurveColor);
    kest::Put(piWidth, iCurveWidth);
    return KEST_OK;
}

int CcCurve::SetCurveData(tagPoints* pData, int iCount) {
    if (!pData) return KEST_FAILED;
    pCurveData = pData;
    iNumberOfPoints = iCount;
    return KEST_OK;
}

tagPoints* CcCurve::GetCurveData() { return pCurveData; }

int CcCurve::GetNumberOfPoints() { return iNumberOfPoints; }

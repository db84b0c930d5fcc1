#include "CcGraph.h"
int CcGraph::IsCursorOnBP(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::IsCursorOnBPnoX(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::IsCursorOnBPnoY(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::IsCursorOnSelectedBP(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::SetSelBPViaMouse(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::GetPositionViaMouse(HDC, POINT*, POINT*, tagPoints*) { return KEST_FAILED; }
int CcGraph::SetSelBPDirect(float, float) { return KEST_FAILED; }
int CcGraph::GetSelBPDirect(float*, float*) { return KEST_FAILED; }
int CcGraph::IsCursorOnOrigin(HDC, POINT*) { return KEST_FAILED; }
int CcGraph::SetOriginViaMouse(POINT*) { return KEST_FAILED; }

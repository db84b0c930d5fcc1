#include "CcGraph.h"
int CcGraph::ShowGraph(HWND, HDC, int) { return KEST_FAILED; }
int CcGraph::ShowCurveOnGraph(HWND, HDC, tagPoints*, int, int) { return KEST_FAILED; }
int CcGraph::ShowListOfSelPoints(HWND, HDC, int*, int, int) { return KEST_FAILED; }

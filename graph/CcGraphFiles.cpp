#include "CcGraph.h"
int CcGraph::SaveAppearance(const char*) { return KEST_FAILED; }
int CcGraph::RestoreAppearance(const char*) { return KEST_FAILED; }

// CcGraph: opening the settings dialogs.
#include "CcGraph.h"
#include "graph/Dialogs.h"
#include "graph/ResourceLibrary.h"

int CcGraph::ShowDialog(RunDialog* pRun) {
    if (!hResourceLibrary) hResourceLibrary.Adopt(kest::LoadGraphResourcesByName());
    if (!hResourceLibrary) return KEST_FAILED;
    pRun(*this, hResourceLibrary, GetFocus());
    return KEST_OK;
}

int CcGraph::ShowDLBLineStyle() { return ShowDialog(kest::RunLineStyleDialog); }

int CcGraph::ShowDLBSetGridMarkings() { return ShowDialog(kest::RunGridMarkingsDialog); }

int CcGraph::ShowDLBSetMM() { return ShowDialog(kest::RunMinMaxDialog); }

int CcGraph::ShowDLBTitle() { return ShowDialog(kest::RunTitleDialog); }

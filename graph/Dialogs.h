// The settings dialogs of a graph. Each runs modally over `owner` (which may be null) from its template in `resources`.
// Accepted, it applies what was entered through the graph's own setters; cancelled, it changes nothing. One that cannot
// be made is told in a message box.
#pragma once

#include "KestPlatform.h"

class CcGraph;

namespace kest {

/// Cancels what dialogs are open for a graph that is being deleted.
void CloseSettingsDialogs(const CcGraph& graph);

/// Template "LINESTYLEDLB": style, colour and width of the curves in the graph's list (CcCurve::SetCurveStyle), and the
/// graph's default appearances (CcGraph::SetCurveAppearance).
void RunLineStyleDialog(CcGraph& graph, HMODULE resources, HWND owner);

/// Template "SETGRIDMARKINGS": CcGraph::SetGridMarkings.
void RunGridMarkingsDialog(CcGraph& graph, HMODULE resources, HWND owner);

/// Template "XYMINMAX": CcGraph::SetMinMaxValues and CcGraph::SetXYOriginCross.
void RunMinMaxDialog(CcGraph& graph, HMODULE resources, HWND owner);

/// Template "TITLEDLB": CcGraph::SetGraphText.
void RunTitleDialog(CcGraph& graph, HMODULE resources, HWND owner);

}  // namespace kest

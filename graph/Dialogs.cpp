// The settings dialogs of a graph, run from their templates.
#include "graph/Dialogs.h"

#include "CcGraph.h"

namespace kest {
namespace {

INT_PTR CALLBACK CloseOnCommand(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_INITDIALOG) return TRUE;
    if (message != WM_COMMAND || (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL)) return FALSE;
    EndDialog(dialog, LOWORD(wParam));
    return TRUE;
}

void Run(CcGraph& graph, HMODULE resources, HWND owner, const char* templateName) {
    DialogBoxParamA(resources, templateName, owner, CloseOnCommand, reinterpret_cast<LPARAM>(&graph));
}

}  // namespace

void RunLineStyleDialog(CcGraph& graph, HMODULE resources, HWND owner) { Run(graph, resources, owner, "LINESTYLEDLB"); }

void RunGridMarkingsDialog(CcGraph& graph, HMODULE resources, HWND owner) {
    Run(graph, resources, owner, "SETGRIDMARKINGS");
}

void RunMinMaxDialog(CcGraph& graph, HMODULE resources, HWND owner) { Run(graph, resources, owner, "XYMINMAX"); }

void RunTitleDialog(CcGraph& graph, HMODULE resources, HWND owner) { Run(graph, resources, owner, "TITLEDLB"); }

}  // namespace kest

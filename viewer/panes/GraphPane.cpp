// A pane that holds a graph with a line of text below it.
#include "panes/GraphPane.h"

#include "res/Resource.h"

namespace kestview {
namespace {

constexpr UINT_PTR updateTimer = 1;
constexpr UINT updateDelayMilliseconds = 30;

}  // namespace

void GraphPane::OnInit() {
    ShowWindow(Item(IDC_GRAPH_AREA), SW_HIDE);
    graph.Create(window, PlaceOf(IDC_GRAPH_AREA));
}

void GraphPane::OnSize(int width, int height) {
    const int margin = MulDiv(6, DpiOf(window), 96);
    const RECT area = PlaceOf(IDC_GRAPH_AREA), note = PlaceOf(IDC_GRAPH_NOTE);
    const int noteHeight = HeightOf(note), noteTop = height - margin - noteHeight;
    MoveWindow(graph, area.left, area.top, width - area.left - margin, noteTop - margin - area.top, TRUE);
    SetWindowPos(Item(IDC_GRAPH_NOTE), nullptr, note.left, noteTop, width - note.left - margin, noteHeight,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

int GraphPane::SmallestHeight() const {
    constexpr int smallestGraph = 180;
    return PlaceOf(IDC_GRAPH_AREA).top + MulDiv(smallestGraph, DpiOf(window), 96) + HeightOf(PlaceOf(IDC_GRAPH_NOTE));
}

void GraphPane::OnShown() {
    if (isInFront) Update();
}

void GraphPane::UpdateSoon() {
    if (isInFront) SetTimer(window, updateTimer, updateDelayMilliseconds, nullptr);
}

bool GraphPane::OnOther(UINT message, WPARAM wParam, LPARAM, LRESULT&) {
    if (message != WM_TIMER || wParam != updateTimer) return false;
    // A dialog may be at work on the curves; the timer comes again.
    if (graph.IsInDialog()) return true;
    KillTimer(window, updateTimer);
    Update();
    return true;
}

}  // namespace kestview

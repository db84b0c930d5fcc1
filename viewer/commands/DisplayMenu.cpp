// The Display menu.
#include <algorithm>

#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "panes/GraphWindow.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void DisplayTable(MainWindow& main, int id) {
    main.Active()->SetDisplayTable(static_cast<unsigned short>(100 + id - ID_DISPLAY_TABLE_100));
}

/// Colour and binary pictures have one look only.
bool CanChooseTable(MainWindow& main, int) {
    return main.Active() && !main.Active()->Class().isColour && main.Active()->Class().type != KEST_IMAGE_BINARY;
}

bool IsDisplayTable(MainWindow& main, int id) {
    return CanChooseTable(main, id) && main.Active()->DisplayTable() == 100 + id - ID_DISPLAY_TABLE_100;
}

/// A binary picture of the pixels in the bands, in a tab of its own.
void DisplayMask(MainWindow& main, int) {
    Document& document = *main.Active();
    const SIZE size = document.Size();
    const long long count = static_cast<long long>(size.cx) * size.cy;
    const Busy busy("Making the mask", 8 * count);
    const std::vector<std::uint8_t> pixels = document.BandMask();
    auto mask = MakeImage(KEST_IMAGE_BINARY, size.cy, size.cx, document.Name() + "-mask");
    if (!mask || static_cast<long long>(pixels.size()) != count) {
        ShowError(main, "There is not enough memory for the mask.");
        return;
    }
    std::copy(pixels.begin(), pixels.end(), static_cast<unsigned char*>(mask->GetBitMapImageData()));
    main.AddNewPicture(std::move(mask), &document);
}

bool HasBands(MainWindow& main, int) {
    return main.Active() && !main.Active()->Bands().empty() && ThresholdPreview::IsPossible(main.Active()->Image());
}

/// The graph's own dialogs, and its appearance in files.
void GraphSettings(MainWindow& main, int id) {
    GraphWindow& window = *main.ShownGraph();
    CcGraph& graph = window.Graph();
    constexpr const char* filters = "Graph appearances (*.gra)|*.gra|All files (*.*)|*.*|";
    constexpr long long appearanceBytes = 3560;
    // The dialogs are modal to the window with the focus.
    SetFocus(main.View());
    switch (id) {
        case ID_GRAPH_TITLES: window.RunDialog(&CcGraph::ShowDLBTitle); break;
        case ID_GRAPH_RANGES: window.RunDialog(&CcGraph::ShowDLBSetMM); break;
        case ID_GRAPH_GRID: window.RunDialog(&CcGraph::ShowDLBSetGridMarkings); break;
        case ID_GRAPH_LINES: window.RunDialog(&CcGraph::ShowDLBLineStyle); break;
        case ID_GRAPH_SAVE:
            window.NoteStyles();
            if (const auto path = AskSavePath(main, "Save Graph Appearance", filters, "gra", "graph.gra")) {
                const auto write = [&](const std::string& newPath) -> Written {
                    const bool isWhole =
                        graph.SaveAppearance(newPath.c_str()) == 0 && BytesOfFile(newPath) == appearanceBytes;
                    return isWhole ? true : Written::NotAsTold();
                };
                std::string error;
                if (!SaveWhole("The appearance", *path, appearanceBytes, write, error)) ShowError(main, error);
            }
            break;
        case ID_GRAPH_RESTORE:
            if (const auto path = AskOpenPath(main, "Restore Graph Appearance", filters, "gra")) {
                if (BytesOfFile(*path) != appearanceBytes || graph.RestoreAppearance(path->c_str()) < 0)
                    ShowError(main, FileNameOf(*path) + " is not a graph appearance, or it is damaged.");
                else
                    window.TakeStyles();
            }
            break;
        default: break;
    }
    window.Invalidate();
}

bool HasGraph(MainWindow& main, int) { return main.ShownGraph() != nullptr; }

constexpr Command graphEntries[] = {
    {ID_GRAPH_TITLES, "&Titles...", "", "Title and axis texts of the graph", GraphSettings, HasGraph},
    {ID_GRAPH_RANGES, "Axis &Ranges...", "", "Ranges and decimals of the axes", GraphSettings, HasGraph},
    {ID_GRAPH_GRID, "&Grid and Tick Marks...", "", "Marks and grid lines", GraphSettings, HasGraph},
    {ID_GRAPH_LINES, "Curve Sty&les...", "", "Colours and styles of the curves", GraphSettings, HasGraph},
    line,
    {ID_GRAPH_SAVE, "&Save Appearance...", "", "Save the graph's settings", GraphSettings, HasGraph},
    {ID_GRAPH_RESTORE, "&Restore Appearance...", "", "Take the graph's settings from a file", GraphSettings, HasGraph},
};

constexpr Command displayEntries[] = {
    {ID_DISPLAY_TABLE_100, "10&0: Colours of the File", "", "Show the colours of the file", DisplayTable,
     CanChooseTable, IsDisplayTable},
    {ID_DISPLAY_TABLE_101, "10&1: Colour Curves", "", "Show through a red, a green and a blue curve", DisplayTable,
     CanChooseTable, IsDisplayTable},
    {ID_DISPLAY_TABLE_102, "10&2: 256 Grays", "", "Show 256 grays", DisplayTable, CanChooseTable, IsDisplayTable},
    {ID_DISPLAY_TABLE_103, "10&3: 128 Grays", "", "Show 128 grays", DisplayTable, CanChooseTable, IsDisplayTable},
    {ID_DISPLAY_TABLE_104, "10&4: 64 Grays", "", "Show 64 grays", DisplayTable, CanChooseTable, IsDisplayTable},
    line,
    {ID_DISPLAY_EDIT, "&Edit Display Table", "Ctrl+U", "Edit the display table in a graph (Ctrl+U)", ShowPane,
     HasPicture, IsPaneShown},
    line,
    {ID_DISPLAY_THRESHOLD, "&Threshold", "Ctrl+T", "Threshold with bands of values (Ctrl+T)", ShowPane, HasPicture,
     IsPaneShown},
    {ID_DISPLAY_MASK, "&Make Mask", "Ctrl+B", "Make a binary picture of the bands", DisplayMask, HasBands},
    line,
    Submenu("&Graph", graphEntries),
};

}  // namespace

Menu DisplayMenu() { return {"&Display", displayEntries}; }

}  // namespace kestview

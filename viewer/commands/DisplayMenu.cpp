// The Display menu.
#include <algorithm>

#include "commands/Commands.h"
#include "panes/GraphWindow.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

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

void DisplayEdit(MainWindow& main, int) {
    main.ShowPane(ID_DISPLAY_EDIT);
}

bool IsDisplayEdit(MainWindow& main, int) {
    return main.IsPaneShown(ID_DISPLAY_EDIT);
}

void DisplayThreshold(MainWindow& main, int) {
    main.ShowPane(ID_DISPLAY_THRESHOLD);
}

bool IsDisplayThreshold(MainWindow& main, int) {
    return main.IsPaneShown(ID_DISPLAY_THRESHOLD);
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
        case ID_GRAPH_TITLES:
            window.RunDialog(&CcGraph::ShowDLBTitle);
            break;
        case ID_GRAPH_RANGES:
            window.RunDialog(&CcGraph::ShowDLBSetMM);
            break;
        case ID_GRAPH_GRID:
            window.RunDialog(&CcGraph::ShowDLBSetGridMarkings);
            break;
        case ID_GRAPH_LINES:
            window.RunDialog(&CcGraph::ShowDLBLineStyle);
            break;
        case ID_GRAPH_SAVE:
            window.NoteStyles();
            if (const auto path = AskSavePath(main, "Save Graph Appearance", filters, "gra", "graph.gra")) {
                const auto write = [&](const std::string& newPath) {
                    return graph.SaveAppearance(newPath.c_str()) == 0 && BytesOfFile(newPath) == appearanceBytes;
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
        default:
            break;
    }
    window.Invalidate();
}

bool HasGraph(MainWindow& main, int) {
    return main.ShownGraph() != nullptr;
}

}  // namespace kestview

// The ROI menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "document/RoiFiles.h"
#include "document/RoiKinds.h"
#include "platform/Boxes.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr const char* oneFilter = "ROI files (*.roi)|*.roi|All files (*.*)|*.*|";
constexpr const char* allFilter = "ROI lists (*.rois)|*.rois|All files (*.*)|*.*|";

int ToolOf(int id) { return id == ID_ROI_SELECT_TOOL ? selectTool : roiKinds[id - ID_ROI_TOOL_POINT].type; }

void RoiTool(MainWindow& main, int id) { main.SetRoiTool(ToolOf(id)); }

bool IsRoiTool(MainWindow& main, int id) { return main.View().Mouse().Tool() == ToolOf(id); }

void RoiColour(MainWindow& main, int id) {
    const bool isSelected = id == ID_ROI_COLOUR_SELECTED;
    const auto colour = AskColour(main, KeptSettings().RoiColour(isSelected));
    if (!colour) return;
    KeptSettings().SetRoiColour(isSelected, *colour);
    main.View().Refresh(DisplayChanged);
}

void RoiSave(MainWindow& main, int) {
    CcRoiBase& roi = *main.Active()->SelectedRoi();
    const auto path = AskSavePath(main, "Save ROI", oneFilter, "roi", std::string(roi.GetName()) + ".roi");
    std::string error;
    if (path && !SaveRoi(roi, *path, error)) ShowError(main, error);
}

void RoiRestore(MainWindow& main, int) {
    const auto path = AskOpenPath(main, "Restore ROI", oneFilter, "roi");
    if (!path) return;
    auto roi = RestoreRoi(*path);
    if (roi)
        main.Active()->AddRoi(std::move(roi));
    else
        ShowError(main, FileNameOf(*path) + " is not a ROI file, or it is damaged.");
}

void RoiSaveAll(MainWindow& main, int) {
    const auto path = AskSavePath(main, "Save All ROIs", allFilter, "rois", main.Active()->Name() + ".rois");
    std::string error;
    if (path && !SaveAllRois(*main.Active(), *path, error)) ShowError(main, error);
}

void RoiRestoreAll(MainWindow& main, int) {
    const auto path = AskOpenPath(main, "Restore All ROIs", allFilter, "rois");
    if (path && RestoreAllRois(*main.Active(), *path) < 0)
        ShowError(main, FileNameOf(*path) + " is not a list of ROIs, or it is damaged.");
}

constexpr Command roiEntries[] = {
    {ID_ROI_SELECT_TOOL, "&Select", "F4", "Select, move and resize ROIs (F4)", RoiTool, HasPicture, IsRoiTool},
    line,
    {ID_ROI_TOOL_POINT, "&Point", "Ctrl+Shift+1", "Draw a point", RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_LINE, "&Line", "Ctrl+Shift+2", "Draw a line", RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_RECTANGLE, "&Rectangle", "Ctrl+Shift+3", "Draw a rectangle", RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_ELLIPSE, "&Ellipse", "Ctrl+Shift+4", "Draw an ellipse", RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_FREEHAND, "&Freehand Area", "Ctrl+Shift+5", "Draw an area freehand", RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_FREEHAND_LINE, "Freehand L&ine", "Ctrl+Shift+6", "Draw a line freehand", RoiTool, HasPicture,
     IsRoiTool},
    {ID_ROI_TOOL_POLYGON, "Poly&gon", "Ctrl+Shift+7", "Draw a polygon: click its corners, end with the right button",
     RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_TOOL_POLYLINE, "Pol&yline", "Ctrl+Shift+8", "Draw a polyline: click its corners, end with the right button",
     RoiTool, HasPicture, IsRoiTool},
    line,
    {ID_ROI_COLOUR_SELECTED, "&Colour of Selected...", "", "Choose the colour of selected ROIs", RoiColour, Always},
    {ID_ROI_COLOUR_UNSELECTED, "Colour of &Others...", "", "Choose the colour of ROIs that are not selected", RoiColour,
     Always},
    line,
    {ID_ROI_SAVE, "S&ave ROI...", "", "Save the selected ROI in a file of its own", RoiSave, HasSelection},
    {ID_ROI_RESTORE, "Res&tore ROI...", "", "Add a ROI from a file", RoiRestore, HasPicture},
    {ID_ROI_SAVE_ALL, "Save A&ll...", "", "Save all ROIs in one file", RoiSaveAll, HasRois},
    {ID_ROI_RESTORE_ALL, "Restore All...", "", "Add all ROIs of a file", RoiRestoreAll, HasPicture},
};

}  // namespace

Menu RoiMenu() { return {"&ROI", roiEntries}; }

}  // namespace kestview

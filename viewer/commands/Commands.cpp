// The table of all menu entries.
#include "commands/Commands.h"

#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {
namespace {

// When an entry is possible
bool Always(MainWindow&, int) {
    return true;
}
bool Never(MainWindow&, int) {
    return false;
}
bool HasPicture(MainWindow& main, int) {
    return main.Active() != nullptr;
}
bool HasPictures(MainWindow& main, int) {
    return main.Documents().size() > 1;
}
bool HasRois(MainWindow& main, int) {
    return main.Active() && main.Active()->RoiCount() > 0;
}
bool HasSelection(MainWindow& main, int) {
    return main.Active() && main.Active()->SelectedRoi();
}
bool CanUndo(MainWindow& main, int) {
    return main.Active() && main.Active()->CanUndo();
}
bool CanRedo(MainWindow& main, int) {
    return main.Active() && main.Active()->CanRedo();
}
// When it bears a mark
constexpr auto Unmarked = Never;

const Command commands[] = {
    {ID_FILE_OPEN, ID_FILE_OPEN, FileOpen, Always, Unmarked},
    {ID_FILE_RECENT_FIRST, ID_FILE_RECENT_LAST, FileOpenRecent, Always, Unmarked},
    {ID_FILE_SAVE_SESSION, ID_FILE_SAVE_SESSION, FileSaveSession, HasPicture, Unmarked},
    {ID_FILE_SAVE_SESSION_AS, ID_FILE_SAVE_SESSION_AS, FileSaveSessionAs, HasPicture, Unmarked},
    {ID_FILE_SAVE_PICTURE, ID_FILE_SAVE_PICTURE, FileSavePicture, HasPicture, Unmarked},
    {ID_FILE_PRINT, ID_FILE_PRINT, FilePrint, HasPicture, Unmarked},
    {ID_FILE_CLOSE, ID_FILE_CLOSE, FileClose, HasPicture, Unmarked},
    {ID_FILE_EXIT, ID_FILE_EXIT, FileExit, Always, Unmarked},

    {ID_EDIT_UNDO, ID_EDIT_UNDO, EditUndo, CanUndo, Unmarked},
    {ID_EDIT_REDO, ID_EDIT_REDO, EditRedo, CanRedo, Unmarked},
    {ID_EDIT_COPY, ID_EDIT_COPY, EditCopy, HasPicture, Unmarked},
    {ID_EDIT_COPY_WITH_ROIS, ID_EDIT_COPY_WITH_ROIS, EditCopyWithRois, HasRois, Unmarked},
    {ID_EDIT_DELETE, ID_EDIT_DELETE, EditDelete, HasSelection, Unmarked},
    {ID_EDIT_RENAME, ID_EDIT_RENAME, EditRename, HasSelection, Unmarked},
    {ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_ALL, EditSelectAll, HasRois, Unmarked},
    {ID_EDIT_SELECT_NONE, ID_EDIT_SELECT_NONE, EditSelectNone, HasSelection, Unmarked},

    {ID_VIEW_ZOOM_IN, ID_VIEW_ZOOM_IN, ViewZoomIn, HasPicture, Unmarked},
    {ID_VIEW_ZOOM_OUT, ID_VIEW_ZOOM_OUT, ViewZoomOut, HasPicture, Unmarked},
    {ID_VIEW_ZOOM_FIT, ID_VIEW_ZOOM_16, ViewZoomTo, HasPicture, IsViewZoom},
    {ID_VIEW_ROI_NAMES, ID_VIEW_ROI_NAMES, ViewRoiNames, Always, IsRoiNames},
    {ID_VIEW_RESULTS, ID_VIEW_RESULTS, ViewResults, Always, IsResults},
    {ID_VIEW_SIDE, ID_VIEW_SIDE, ViewSide, Always, IsSide},
    {ID_VIEW_NEXT_PICTURE, ID_VIEW_PREVIOUS_PICTURE, ViewNextPicture, HasPictures, Unmarked},

    {ID_IMAGE_REGION, ID_IMAGE_REGION, ImageRegion, HasSelection, Unmarked},
    {ID_IMAGE_CONVERT_GRAY256, ID_IMAGE_CONVERT_HSL, ImageConvert, CanConvert, IsClass},
    {ID_IMAGE_CHANNEL_LUMINANCE, ID_IMAGE_CHANNEL_LIGHTNESS, ImageChannel, HasChannel, IsChannel},

    {ID_ROI_SELECT_TOOL, ID_ROI_TOOL_POLYLINE, RoiTool, HasPicture, IsRoiTool},
    {ID_ROI_COLOUR_SELECTED, ID_ROI_COLOUR_UNSELECTED, RoiColour, Always, Unmarked},
    {ID_ROI_SAVE, ID_ROI_SAVE, RoiSave, HasSelection, Unmarked},
    {ID_ROI_RESTORE, ID_ROI_RESTORE, RoiRestore, HasPicture, Unmarked},
    {ID_ROI_SAVE_ALL, ID_ROI_SAVE_ALL, RoiSaveAll, HasRois, Unmarked},
    {ID_ROI_RESTORE_ALL, ID_ROI_RESTORE_ALL, RoiRestoreAll, HasPicture, Unmarked},

    {ID_MEASURE_TABLE, ID_MEASURE_TABLE, MeasureTable, HasPicture, Unmarked},
    {ID_MEASURE_COPY, ID_MEASURE_COPY, MeasureCopy, HasRois, Unmarked},
    {ID_MEASURE_EXPORT, ID_MEASURE_EXPORT, MeasureExport, HasRois, Unmarked},
    {ID_MEASURE_HISTOGRAM, ID_MEASURE_PROFILE, MeasureGraph, HasPicture, IsMeasureGraph},

    {ID_CALIBRATE_POINTS, ID_CALIBRATE_POINTS, CalibratePoints, HasPicture, IsCalibratePoints},
    {ID_CALIBRATE_OPEN, ID_CALIBRATE_OPEN, CalibrateOpen, HasPicture, Unmarked},
    {ID_CALIBRATE_SAVE, ID_CALIBRATE_SAVE, CalibrateSave, IsCalibrated, Unmarked},
    {ID_CALIBRATE_REMOVE, ID_CALIBRATE_REMOVE, CalibrateRemove, IsCalibrated, Unmarked},

    {ID_DISPLAY_TABLE_100, ID_DISPLAY_TABLE_104, DisplayTable, CanChooseTable, IsDisplayTable},
    {ID_DISPLAY_EDIT, ID_DISPLAY_EDIT, DisplayEdit, HasPicture, IsDisplayEdit},
    {ID_DISPLAY_THRESHOLD, ID_DISPLAY_THRESHOLD, DisplayThreshold, HasPicture, IsDisplayThreshold},
    {ID_DISPLAY_MASK, ID_DISPLAY_MASK, DisplayMask, HasBands, Unmarked},
    {ID_GRAPH_TITLES, ID_GRAPH_RESTORE, GraphSettings, HasGraph, Unmarked},

    {ID_TOOLS_NONE, ID_TOOLS_NONE, ToolsRun, Never, Unmarked},
    {ID_TOOLS_FIRST, ID_TOOLS_LAST, ToolsRun, HasTool, Unmarked},

    {ID_HELP_KEYS, ID_HELP_KEYS, HelpKeys, Always, Unmarked},
    {ID_HELP_ABOUT, ID_HELP_ABOUT, HelpAbout, Always, Unmarked},
};

}  // namespace

std::span<const Command> AllCommands() {
    return commands;
}

const Command* CommandOf(int id) {
    for (const Command& command : commands)
        if (id >= command.first && id <= command.last) return &command;
    return nullptr;
}

std::string TipOf(int id, Tools& tools) {
    if (id >= ID_TOOLS_FIRST && id <= ID_TOOLS_LAST) return tools.TextOf(id);
    char text[256] = {};
    LoadStringA(ProgramInstance(), static_cast<UINT>(id), text, sizeof text);
    return text;
}

}  // namespace kestview

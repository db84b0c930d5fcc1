// Every menu entry: what it does, when it is possible, and when it bears a mark. The table is in Commands.cpp, the
// functions in the file of their menu: FileMenu.cpp, EditMenu.cpp and so on.
#pragma once

#include <windows.h>

#include <span>
#include <string>

namespace kestview {

class MainWindow;
class Tools;

struct Command {
    int first;  ///< command number, or the first of a row of them
    int last;
    void (*run)(MainWindow& main, int id);
    bool (*isEnabled)(MainWindow& main, int id);
    bool (*isChecked)(MainWindow& main, int id);
};

std::span<const Command> AllCommands();
/// Null for a number of no command.
const Command* CommandOf(int id);
/// What an entry or button does, in a line.
std::string TipOf(int id, Tools& tools);

// FileMenu.cpp
void FileOpen(MainWindow& main, int id);
void FileOpenRecent(MainWindow& main, int id);
void FileSaveSession(MainWindow& main, int id);
void FileSaveSessionAs(MainWindow& main, int id);
void FileSavePicture(MainWindow& main, int id);
void FilePrint(MainWindow& main, int id);
void FileClose(MainWindow& main, int id);
void FileExit(MainWindow& main, int id);
/// Puts the recent files in front of the last entries of the File menu.
void FillRecentFiles(HMENU menu);

// EditMenu.cpp
void EditUndo(MainWindow& main, int id);
void EditRedo(MainWindow& main, int id);
void EditCopy(MainWindow& main, int id);
void EditCopyWithRois(MainWindow& main, int id);
void EditDelete(MainWindow& main, int id);
void EditRename(MainWindow& main, int id);
void EditSelectAll(MainWindow& main, int id);
void EditSelectNone(MainWindow& main, int id);

// ViewMenu.cpp
void ViewZoomIn(MainWindow& main, int id);
void ViewZoomOut(MainWindow& main, int id);
void ViewZoomTo(MainWindow& main, int id);
bool IsViewZoom(MainWindow& main, int id);
void ViewRoiNames(MainWindow& main, int id);
bool IsRoiNames(MainWindow& main, int id);
void ViewResults(MainWindow& main, int id);
bool IsResults(MainWindow& main, int id);
void ViewSide(MainWindow& main, int id);
bool IsSide(MainWindow& main, int id);
void ViewNextPicture(MainWindow& main, int id);

// ImageMenu.cpp
void ImageRegion(MainWindow& main, int id);
void ImageConvert(MainWindow& main, int id);
bool CanConvert(MainWindow& main, int id);
bool IsClass(MainWindow& main, int id);
void ImageChannel(MainWindow& main, int id);
bool HasChannel(MainWindow& main, int id);
bool IsChannel(MainWindow& main, int id);

// RoiMenu.cpp
void RoiTool(MainWindow& main, int id);
bool IsRoiTool(MainWindow& main, int id);
void RoiColour(MainWindow& main, int id);
void RoiSave(MainWindow& main, int id);
void RoiRestore(MainWindow& main, int id);
void RoiSaveAll(MainWindow& main, int id);
void RoiRestoreAll(MainWindow& main, int id);

// MeasureMenu.cpp
void MeasureTable(MainWindow& main, int id);
void MeasureCopy(MainWindow& main, int id);
void MeasureExport(MainWindow& main, int id);
void MeasureGraph(MainWindow& main, int id);
bool IsMeasureGraph(MainWindow& main, int id);

// CalibrateMenu.cpp
void CalibratePoints(MainWindow& main, int id);
bool IsCalibratePoints(MainWindow& main, int id);
void CalibrateOpen(MainWindow& main, int id);
void CalibrateSave(MainWindow& main, int id);
void CalibrateRemove(MainWindow& main, int id);
bool IsCalibrated(MainWindow& main, int id);

// DisplayMenu.cpp
void DisplayTable(MainWindow& main, int id);
bool CanChooseTable(MainWindow& main, int id);
bool IsDisplayTable(MainWindow& main, int id);
void DisplayEdit(MainWindow& main, int id);
bool IsDisplayEdit(MainWindow& main, int id);
void DisplayThreshold(MainWindow& main, int id);
bool IsDisplayThreshold(MainWindow& main, int id);
void DisplayMask(MainWindow& main, int id);
bool HasBands(MainWindow& main, int id);
void GraphSettings(MainWindow& main, int id);
bool HasGraph(MainWindow& main, int id);

// ToolsMenu.cpp
void ToolsRun(MainWindow& main, int id);
bool HasTool(MainWindow& main, int id);

// HelpMenu.cpp
void HelpKeys(MainWindow& main, int id);
void HelpAbout(MainWindow& main, int id);

}  // namespace kestview

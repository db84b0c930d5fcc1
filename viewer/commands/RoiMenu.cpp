// The ROI menu.
#include "commands/Commands.h"
#include "document/RoiFiles.h"
#include "document/RoiKinds.h"
#include "platform/Boxes.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {
namespace {

constexpr const char* oneFilter = "ROI files (*.roi)|*.roi|All files (*.*)|*.*|";
constexpr const char* allFilter = "ROI lists (*.rois)|*.rois|All files (*.*)|*.*|";

int ToolOf(int id) {
    return id == ID_ROI_SELECT_TOOL ? selectTool : roiKinds[id - ID_ROI_TOOL_POINT].type;
}

}  // namespace

void RoiTool(MainWindow& main, int id) {
    main.SetRoiTool(ToolOf(id));
}

bool IsRoiTool(MainWindow& main, int id) {
    return main.View().Mouse().Tool() == ToolOf(id);
}

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

}  // namespace kestview

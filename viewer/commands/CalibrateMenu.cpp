// The Calibrate menu.
#include "commands/Commands.h"
#include "window/MainWindow.h"

namespace kestview {

void CalibratePoints(MainWindow& main, int) {
    main.SetRoiTool(selectTool);
    main.ShowSidePage(CalibrationPage);
}

bool IsCalibratePoints(MainWindow& main, int) {
    return main.IsSideShown() && main.ShownSidePage() == CalibrationPage;
}

void CalibrateOpen(MainWindow& main, int) {
    main.Calibration().OpenFile();
}

void CalibrateSave(MainWindow& main, int) {
    main.Calibration().SaveFile();
}

void CalibrateRemove(MainWindow& main, int) {
    main.Calibration().Remove();
}

bool IsCalibrated(MainWindow& main, int) {
    return main.Active() && main.Active()->Calibration();
}

}  // namespace kestview

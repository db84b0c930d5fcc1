// The Calibrate menu.
#include "commands/Commands.h"
#include "dialogs/CalibrationFiles.h"
#include "res/Resource.h"
#include "window/MainWindow.h"

namespace kestview {

void CalibratePoints(MainWindow& main, int) {
    main.ShowPane(ID_CALIBRATE_POINTS);
}

bool IsCalibratePoints(MainWindow& main, int) {
    return main.IsPaneShown(ID_CALIBRATE_POINTS);
}

void CalibrateOpen(MainWindow& main, int) {
    OpenCalibration(main, *main.Active());
}

void CalibrateSave(MainWindow& main, int) {
    SaveCalibration(main, *main.Active());
}

void CalibrateRemove(MainWindow& main, int) {
    RemoveCalibration(main, *main.Active());
}

bool IsCalibrated(MainWindow& main, int) {
    return main.Active() && main.Active()->Calibration();
}

}  // namespace kestview

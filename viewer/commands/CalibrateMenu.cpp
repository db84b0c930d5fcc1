// The Calibrate menu.
#include "commands/AllMenus.h"
#include "commands/Conditions.h"
#include "dialogs/CalibrationFiles.h"
#include "res/Resource.h"

namespace kestview {
namespace {

void CalibrateOpen(MainWindow& main, int) { OpenCalibration(main, *main.Active()); }

void CalibrateSave(MainWindow& main, int) { SaveCalibration(main, *main.Active()); }

void CalibrateRemove(MainWindow& main, int) { RemoveCalibration(main, *main.Active()); }

bool IsCalibrated(MainWindow& main, int) { return main.Active() && main.Active()->Calibration(); }

constexpr Command calibrateEntries[] = {
    {ID_CALIBRATE_POINTS, "&Four Points...", "Ctrl+K", "Calibrate by four points (Ctrl+K)", ShowPane, HasPicture,
     IsPaneShown},
    line,
    {ID_CALIBRATE_OPEN, "&Open Calibration...", "", "Use a calibration from a file", CalibrateOpen, HasPicture},
    {ID_CALIBRATE_SAVE, "&Save Calibration...", "", "Save the calibration in a file", CalibrateSave, IsCalibrated},
    {ID_CALIBRATE_REMOVE, "&Remove Calibration", "", "Measure in pixels again", CalibrateRemove, IsCalibrated},
};

}  // namespace

Menu CalibrateMenu() { return {"&Calibrate", calibrateEntries}; }

}  // namespace kestview

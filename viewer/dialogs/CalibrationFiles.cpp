// Asks for calibration files, and reads and writes a document's calibration there.
#include "dialogs/CalibrationFiles.h"

#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr const char* fileFilters = "Calibrations (*.cal)|*.cal|All files (*.*)|*.*|";

/// A calibration that is in no file would be lost.
bool MayReplace(HWND owner, Document& document) {
    return !document.Calibration() || !document.calibrationPath.empty() ||
           AskYesNo(owner, "The picture's calibration is in no file yet.\n\nGive it up?");
}

}  // namespace

void OpenCalibration(HWND owner, Document& document) {
    const auto path = AskOpenPath(owner, "Open Calibration", fileFilters, "cal");
    if (!path || !MayReplace(owner, document)) return;
    const Busy busy("Opening " + FileNameOf(*path), BytesOfFile(*path));
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    if (calibration->Open(path->c_str()) < 0) {
        ShowError(owner, FileNameOf(*path) + " is not a calibration file, or it is damaged.");
        return;
    }
    int width = 0, height = 0;
    calibration->GetSizeOfImage(&width, &height);
    const SIZE size = document.Size();
    if (width < 1 || height < 1)
        ShowError(owner, FileNameOf(*path) + " holds a calibration that was never made by four points.");
    else if (!document.SetCalibration(std::move(calibration), *path))
        ShowError(owner, Format("This calibration was made for pictures of %d x %d pixels; this one has %ld x %ld.",
                                width, height, size.cx, size.cy));
}

bool SaveCalibration(HWND owner, Document& document) {
    if (!document.Calibration()) return false;
    const auto path = AskSavePath(owner, "Save Calibration", fileFilters, "cal", document.Name() + ".cal");
    if (!path) return false;
    // The area of every pixel stands in the file.
    const SIZE size = document.Size();
    const long long areaBytes = 4LL * size.cx * size.cy;
    const Busy busy("Saving " + FileNameOf(*path), areaBytes);
    const auto write = [&](const std::string& newPath) -> Written {
        if (document.Calibration()->Save(newPath.c_str()) < 0) return false;
        // The library does not count a disk that is full as a failure, but says so.
        return BytesOfFile(newPath) > areaBytes ? true : Written::NotAsTold();
    };
    std::string error;
    if (!SaveWhole("The calibration", *path, areaBytes, write, error)) {
        ShowError(owner, error);
        return false;
    }
    document.calibrationPath = *path;
    document.Changed(CalibrationChanged, true);
    return true;
}

void RemoveCalibration(HWND owner, Document& document) {
    if (document.Calibration() && MayReplace(owner, document)) document.RemoveCalibration();
}

}  // namespace kestview

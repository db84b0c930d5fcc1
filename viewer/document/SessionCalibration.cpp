// The calibration that a session names by its file.
#include "document/SessionCalibration.h"

#include "platform/Busy.h"
#include "platform/SavedFile.h"
#include "platform/Text.h"

namespace kestview {
namespace {

/// Whether the path names a disk of this computer.
bool IsOnLocalDrive(const std::string& path) {
    if (path.size() < 3 || path[1] != ':' || (path[2] != '\\' && path[2] != '/')) return false;
    const UINT kind = GetDriveTypeA(path.substr(0, 3).c_str());
    return kind == DRIVE_FIXED || kind == DRIVE_REMOVABLE || kind == DRIVE_CDROM || kind == DRIVE_RAMDISK;
}

/// The calibration file that a session names: as it is named, or beside the session, should the folder have been moved.
/// Empty when there is none, or the user does not want it.
std::string CalibrationFile(const std::string& named, const std::string& sessionPath, const Question& mayOpen) {
    const std::string besideSession = FolderOf(sessionPath) + FileNameOf(named);
    if (IsOnLocalDrive(named) && FileExists(named)) return named;
    if (FileExists(besideSession)) return besideSession;
    if (IsOnLocalDrive(named)) return "";
    const bool isWanted =
        mayOpen && mayOpen(FileNameOf(sessionPath) +
                           " names a calibration that is neither beside it nor on a drive of this computer:\n" + named +
                           "\n\nOpen it?");
    return isWanted && FileExists(named) ? named : "";
}

}  // namespace

bool OpenCalibrationOf(const std::string& sessionPath, const std::string& named, const Question& mayOpen,
                       Document& document) {
    const std::string path = CalibrationFile(named, sessionPath, mayOpen);
    if (path.empty()) return false;
    const Busy busy("Opening " + FileNameOf(path), BytesOfFile(path));
    std::unique_ptr<CcCalibration> calibration(new CcCalibration);
    return calibration->Open(path.c_str()) >= 0 && document.SetCalibration(std::move(calibration), path);
}

}  // namespace kestview

// Asks for calibration files, and reads and writes a document's calibration there.
#pragma once

#include "document/Document.h"

namespace kestview {

void OpenCalibration(HWND owner, Document& document);
/// False when it was cancelled or failed.
bool SaveCalibration(HWND owner, Document& document);
/// Asks first when it is in no file.
void RemoveCalibration(HWND owner, Document& document);

}  // namespace kestview

// Printing an image on one page, for every image class.
#pragma once

#include "KestPlatform.h"
#include "core/kernel/Guard.h"
#include "image/ShowImage.h"

namespace kest {

/// The printer that the user chooses in the print dialog (DeleteDC). What else the dialog allocates stays with the
/// set-up, as the choice for the next time.
class PrinterDc : Guard {
public:
    explicit PrinterDc(PRINTDLGA& dialog);
    ~PrinterDc();
    operator HDC() const { return dc; }

private:
    PRINTDLGA& setup;
    HDC dc;
};

/// Prints the picture with its overlay (none without bits) as one document. At a whole-number zoom only what the window
/// shows is printed. 0; -1 when there is no picture (any more), or when the page could not be drawn or printed whole:
/// the job is then given up.
int PrintImage(HDC printer, DOCINFOA& job, const char* documentName, const LookSource& takeLook,
               const Source<DibPicture>& takeOverlay, HWND window, const ShowArguments& arguments);

}  // namespace kest

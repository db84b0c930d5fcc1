// Prints what is shown of a picture, with its ROIs.
#include "picture/Printing.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>

#include "picture/RoiPainting.h"
#include "platform/Boxes.h"
#include "platform/Busy.h"
#include "platform/Guards.h"

namespace kestview {
namespace {

/// Pixels of the default printer's page; none without a printer.
SIZE DefaultPage() {
    PRINTDLGA dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.Flags = PD_RETURNDEFAULT | PD_RETURNDC | PD_NOWARNING;
    if (!PrintDlgA(&dialog)) return {0, 0};
    const HeldBlock mode(dialog.hDevMode), names(dialog.hDevNames);
    const Held<HDC, DeleteDC> printer(dialog.hDC);
    return {GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES)};
}

/// What is printed: the whole picture when it is fitted in, else the part of it that is seen at this zoom.
struct PrintedPart {
    Shown shown;
    SIZE area;               ///< as large as it is drawn with its ROIs
    bool isReduced = false;  ///< to the page
};

PrintedPart PartToPrint(PictureView& view, Document& document) {
    PrintedPart part = {view.GetShown(), document.Size(), false};
    if (document.view.zoom > 0) {
        RECT seen;
        GetClientRect(part.shown.canvas, &seen);
        part.area = {seen.right, seen.bottom};
        return part;
    }
    part.shown.mode = 0;
    part.shown.zoom = 1;
    const SIZE page = DefaultPage();
    const double scale =
        std::min(static_cast<double>(page.cx) / part.area.cx, static_cast<double>(page.cy) / part.area.cy);
    part.isReduced = scale > 0 && scale < 1;
    if (part.isReduced)
        part.area = {std::max(1L, static_cast<LONG>(part.area.cx * scale)),
                     std::max(1L, static_cast<LONG>(part.area.cy * scale))};
    return part;
}

}  // namespace

void PrintPicture(PictureView& view, Document& document, HWND owner) {
    PrintedPart part = PartToPrint(view, document);
    Shown& shown = part.shown;
    std::unique_ptr<CcImage> drawn;
    // The library prints its 7-bit and 6-bit grays darker than it shows them.
    if (document.RoiCount() > 0 || part.isReduced || document.ShownTable() >= 103 || document.HasBandLayer()) {
        Shown drawing = shown;
        if (!part.isReduced) drawing.mode = 1;
        drawn =
            DrawnPicture(document, drawing, part.area, view.showsRoiNames ? DrawnRois::WithNames : DrawnRois::Plain);
        if (!drawn) {
            ShowError(owner, "There is not enough memory to draw the picture for the page.");
            return;
        }
        shown.mode = 0;
        shown.zoom = 1;
    }
    CcImage& printed = drawn ? *drawn : document.Image();
    // The library's dialog is modal to the window with the focus.
    SetFocus(view);
    const Busy busy("Printing", SampleBytes(printed));
    const int result =
        printed.Print(shown.canvas, document.ShownTable(), shown.mode, shown.xOffset, shown.yOffset, shown.zoom);
    // A cancelled dialog has no error.
    if (result < 0 && CommDlgExtendedError() != 0)
        ShowError(owner, "The picture could not be printed. Is there a printer?");
    view.Refresh(DisplayChanged);
}

}  // namespace kestview

// Printing an image.
#include "image/PrintImage.h"

#include <algorithm>
#include <optional>

#include "KestTypes.h"
#include "core/Messages.h"
#include "core/WindowView.h"
#include "core/kernel/CheckedSize.h"
#include "image/kernel/OverlayColours.h"
#include "image/kernel/PrintPlan.h"

namespace kest {
namespace {

void PaintOverlay(HDC dc, const DibPicture& overlay, int imageHeight, const PrintPlan& plan) {
    const int pageWidth = GetDeviceCaps(dc, HORZRES), pageHeight = GetDeviceCaps(dc, VERTRES);
    ForEachPrintedRun({overlay.bits, overlay.width, overlay.height}, imageHeight, plan, pageWidth, pageHeight,
                      [&](const PrintedRun& run) {
                          const Rgb colour = OverlayColour(run.value);
                          const GdiObject brush(CreateSolidBrush(RGB(colour.red, colour.green, colour.blue)));
                          const RECT box = {Saturate(run.left), Saturate(run.top),
                                            Saturate(std::min<long long>(run.right + 1, pageWidth)),
                                            Saturate(std::min<long long>(run.bottom + 1, pageHeight))};
                          FillRect(dc, &box, brush);
                      });
}

}  // namespace

PrinterDc::PrinterDc(PRINTDLGA& dialog) : setup(dialog), dc(nullptr) {
    setup.hwndOwner = GetFocus();
    setup.Flags = PD_RETURNDC;
    if (PrintDlgA(&setup)) dc = setup.hDC;
    setup.hDC = nullptr;
}

PrinterDc::~PrinterDc() {
    if (dc) DeleteDC(dc);
}

int PrintImage(HDC printer, DOCINFOA& job, const char* documentName, const ImageLook& look, const DibPicture& overlay,
               HWND window, const ShowArguments& arguments) {
    // While the dialog was open the application went on.
    if (!look.bits) return KEST_FAILED;
    View view = {0, 0, look.width, look.height, arguments.xOffset, arguments.yOffset, arguments.mode, arguments.zoom};
    GetClientSize(window, view.clientWidth, view.clientHeight);
    const PrintPlan plan = PlanForPage(view, GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES));

    std::optional<SelectedPalette> selected;
    if (look.usesPalette) {
        selected.emplace(printer, look.palette);
        if (!selected->IsSelected()) ShowUnownedMessage("Returned NULL from SelectPalette", "ERROR");
    }
    const DibPicture picture = TakeDisplayTable(look);
    if (look.usesPalette) RealizePalette(printer);
    SetStretchBltMode(printer, COLORONCOLOR);

    job = {};
    job.cbSize = sizeof job;
    job.lpszDocName = documentName;
    if (StartDocA(printer, &job) <= 0) return KEST_FAILED;
    StartPage(printer);
    DrawDib(printer, picture, plan.picture, SRCCOPY);
    if (overlay.bits) PaintOverlay(printer, overlay, look.height, plan);
    EndPage(printer);
    EndDoc(printer);
    return KEST_OK;
}

}  // namespace kest

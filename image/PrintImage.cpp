// Printing an image.
#include "image/PrintImage.h"

#include <algorithm>

#include "KestTypes.h"
#include "core/Platform.h"
#include "core/kernel/CheckedSize.h"
#include "image/LookDrawing.h"
#include "image/kernel/OverlayColours.h"
#include "image/kernel/PrintPlan.h"

namespace kest {
namespace {

/// A started print job of one page (EndDoc; AbortDoc for one that is not finished).
class PrintJob : Guard {
public:
    PrintJob(HDC printer, const DOCINFOA& job) : dc(printer), isStarted(StartDocA(printer, &job) > 0) {}
    ~PrintJob() {
        if (isStarted) AbortDoc(dc);
    }
    bool StartPage() { return isStarted && ::StartPage(dc) > 0; }
    bool Finish() {
        if (EndPage(dc) <= 0) return false;
        isStarted = false;
        return EndDoc(dc) > 0;
    }

private:
    HDC dc;
    bool isStarted;
};

bool PaintOverlay(HDC dc, const DibPicture& overlay, int imageHeight, const PrintPlan& plan, const PageSize& page) {
    return ForEachPrintedRun({overlay.bits, overlay.width, overlay.height}, imageHeight, plan, page,
                             [&](const PrintedRun& run) {
                                 const Rgb colour = OverlayColour(run.value);
                                 const GdiObject brush(CreateSolidBrush(RGB(colour.red, colour.green, colour.blue)));
                                 const RECT box = {Saturate(run.left), Saturate(run.top),
                                                   Saturate(std::min<long long>(run.right + 1, page.width)),
                                                   Saturate(std::min<long long>(run.bottom + 1, page.height))};
                                 return brush && FillRect(dc, &box, brush);
                             });
}

bool DrawPage(HDC printer, const ImageLook& look, const DibPicture& overlay, HWND window,
              const ShowArguments& arguments) {
    View view = {0, 0, look.width, look.height, arguments.xOffset, arguments.yOffset, arguments.mode, arguments.zoom};
    if (window && !GetClientSize(window, view.clientWidth, view.clientHeight) && !view.IsStretched()) return false;
    const PageSize page = {GetDeviceCaps(printer, HORZRES), GetDeviceCaps(printer, VERTRES)};
    if (page.width < 1 || page.height < 1) return false;
    const PrintPlan plan = PlanForPage(view, page);
    return DrawDib(printer, TakeDisplayTable(look), plan.picture, SRCCOPY) &&
           (!overlay.bits || PaintOverlay(printer, overlay, look.height, plan, page));
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

int PrintImage(HDC printer, DOCINFOA& job, const char* documentName, const LookSource& takeLook,
               const Source<DibPicture>& takeOverlay, HWND window, const ShowArguments& arguments) {
    const LookPalette palette(printer, takeLook());
    if (!takeLook().bits) return KEST_FAILED;
    job = {};
    job.cbSize = sizeof job;
    job.lpszDocName = documentName;
    // A printer that prints to a file asks for its name here.
    PrintJob started(printer, job);
    if (!started.StartPage()) return KEST_FAILED;
    const ImageLook look = takeLook();
    if (!look.bits || !DrawPage(printer, look, takeOverlay(), window, arguments)) return KEST_FAILED;
    return started.Finish() ? KEST_OK : KEST_FAILED;
}

}  // namespace kest

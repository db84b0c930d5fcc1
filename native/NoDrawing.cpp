// What only Windows shows: drawing, dialogs, clipboard and printer. Here each of these fails, as where there is no
// surface; a rubber band, whose drawing nobody asks about, is not drawn.
#include "CcRoiBase.h"
#include "core/FileDialogs.h"
#include "graph/Dialogs.h"
#include "graph/ResourceLibrary.h"
#include "image/ImageClipboard.h"
#include "image/PrintImage.h"
#include "image/ShowImage.h"
#include "roi/FarDrawing.h"
#include "roi/OutlineDrawing.h"
#include "roi/ShapeDrawing.h"

// A drag goes on for as long as its window is known.
bool KestDragDc::Take(HWND hNewWindow) {
    hWindow = hNewWindow;
    hDC = reinterpret_cast<HDC>(this);
    return hWindow != nullptr;
}
void KestDragDc::Release() {
    hDC = nullptr;
    hWindow = nullptr;
}
bool KestDragDc::IsUsable() const { return hDC != nullptr; }
bool KestDragDc::HasCapture() const { return hDC != nullptr; }

namespace kest {

bool AskPathToOpen(const FileQuestion&, char (&)[KEST_NAME_SIZE]) { return false; }
bool AskPathToSave(const FileQuestion&, char (&)[KEST_NAME_SIZE]) { return false; }

int ShowShape(const ShapeParts&, HDC, const std::optional<View>&, HPEN) { return KEST_FAILED; }
int ShowShape(const ShapeParts&, HWND, const std::optional<View>&, HPEN) { return KEST_FAILED; }
void DrawRectangle(HDC, const IntRect&) {}
void DrawEllipse(HDC, const IntRect&, int) {}
void DrawLine(HDC, const IntRect&) {}
void DrawPointMark(HDC, const IntRect&) {}
void DrawName(HDC, const IntRect&, const char*) {}
void DrawEdgeHandles(HDC, const IntRect&) {}

int ShowOutline(const OutlineParts&, HDC, const std::optional<View>&, HPEN) { return KEST_FAILED; }
int ShowOutline(const OutlineParts&, HWND, const std::optional<View>&, HPEN) { return KEST_FAILED; }
void DrawOutlinePixels(HDC, const View&, const OutlineParts&) {}
Reach::Reach(HDC target) : dc(target), visible{}, safe{} {}
void Reach::DrawLine(IntPoint, IntPoint) const {}

int ShowInRect(HDC, const RECT*, const LookSource&, const ShowArguments&) { return KEST_FAILED; }
int ShowInWindow(HDC, HWND, const LookSource&, const ShowArguments&) { return KEST_FAILED; }
int ShowInWindow(HWND, const LookSource&, const ShowArguments&) { return KEST_FAILED; }
int CopyToClipboard(HWND, const LookSource&, const Source<DibPicture>&, const RECT*) { return KEST_FAILED; }
PrinterDc::PrinterDc(PRINTDLGA& dialog) : setup(dialog), dc(nullptr) {}
PrinterDc::~PrinterDc() = default;
int PrintImage(HDC, DOCINFOA&, const char*, const LookSource&, const Source<DibPicture>&, HWND, const ShowArguments&) {
    return KEST_FAILED;
}

HMODULE LoadOwnGraphResources() { return nullptr; }
void CloseSettingsDialogs(const CcGraph&) {}

}  // namespace kest

// The status bar: help or progress, the pixel under the mouse with its value and world position, zoom and picture.
#include "window/StatusBar.h"

#include <windows.h>

#include <commctrl.h>

#include "document/PixelText.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

enum Part { MessagePart, PixelPart, ValuePart, WorldPart, ZoomPart, PicturePart, partCount };

}  // namespace

bool StatusBar::Create(HWND parent) {
    window = CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0, parent,
                             reinterpret_cast<HMENU>(IDC_STATUS), ProgramInstance(), nullptr);
    progress =
        CreateWindowExA(0, PROGRESS_CLASSA, "", WS_CHILD, 0, 0, 0, 0, window, nullptr, ProgramInstance(), nullptr);
    return window && progress;
}

void StatusBar::Arrange() {
    SendMessageA(window, WM_SIZE, 0, 0);
    RECT client;
    GetClientRect(window, &client);
    const int dpi = DpiOf(window);
    // From the right: picture, zoom, world, value, pixel; the message takes the rest.
    const int widths[partCount] = {0, 110, 150, 190, 70, 190};
    int edges[partCount];
    int right = client.right;
    for (int part = partCount - 1; part >= 0; --part) {
        edges[part] = right;
        right -= MulDiv(widths[part], dpi, 96);
    }
    SendMessageA(window, SB_SETPARTS, partCount, reinterpret_cast<LPARAM>(edges));
}

void StatusBar::SetPart(int part, const std::string& text) {
    char old[256] = {};
    if (LOWORD(SendMessageA(window, SB_GETTEXTLENGTHA, static_cast<WPARAM>(part), 0)) < sizeof old)
        SendMessageA(window, SB_GETTEXTA, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(old));
    if (text != old)
        SendMessageA(window, SB_SETTEXTA, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text.c_str()));
}

void StatusBar::ShowMessage(const std::string& text) { SetPart(MessagePart, text); }

void StatusBar::ShowProgress(const std::string& text, double part) {
    SetPart(MessagePart, text);
    if (text.empty() || part < 0) {
        ShowWindow(progress, SW_HIDE);
        UpdateWindow(window);
        return;
    }
    RECT place;
    SendMessageA(window, SB_GETRECT, MessagePart, reinterpret_cast<LPARAM>(&place));
    place.left += WidthOf(place) / 2;
    InflateRect(&place, -2, -2);
    MoveWindow(progress, place.left, place.top, WidthOf(place), HeightOf(place), TRUE);
    SendMessageA(progress, PBM_SETPOS, static_cast<WPARAM>(part * 100), 0);
    ShowWindow(progress, SW_SHOWNA);
    UpdateWindow(window);
}

void StatusBar::ShowPixel(Document* document, const POINT* pixel) {
    if (!document || !pixel) {
        for (const int part : {PixelPart, ValuePart, WorldPart}) SetPart(part, "");
        return;
    }
    SetPart(PixelPart, Format("x %ld, y %ld", pixel->x, pixel->y));
    SetPart(ValuePart, ValueText(*document, pixel->x, pixel->y));
    SetPart(WorldPart, WorldText(document->Image(), pixel->x, pixel->y));
}

void StatusBar::ShowPicture(Document* document, double magnification) {
    if (!document) {
        SetPart(ZoomPart, "");
        SetPart(PicturePart, "");
        return;
    }
    const SIZE size = document->Size();
    SetPart(ZoomPart, document->view.zoom > 0 ? Format("%d : 1", document->view.zoom)
                                              : Format("Fit %.0f %%", magnification * 100));
    SetPart(PicturePart, Format("%ld x %ld, %s", size.cx, size.cy, document->Class().label));
}

}  // namespace kestview

// Takes the pictures of the user's guide from the running KestView, which it works like a person, on the sample plate.
//
//   GuidePictures FOLDER      started in the folder of KestView.exe
#include <cmath>
#include <cstdio>
#include <string>

#include "SamplePlate.h"
#include "res/Resource.h"
#include "viewer/Driver.h"

namespace {

using test::Driver;
using test::Picture;

std::string folder;

void Save(const Picture& screen, const RECT& part, const char* name) {
    Picture picture{static_cast<int>(part.right - part.left), static_cast<int>(part.bottom - part.top), {}};
    for (LONG y = part.top; y < part.bottom; ++y)
        for (LONG x = part.left; x < part.right; ++x)
            picture.pixels.push_back(screen.At(static_cast<int>(x), static_cast<int>(y)));
    picture.SaveBmp(folder + "/" + name + ".bmp");
}

/// The screen under a window, with its frame or without.
void Take(Driver& view, HWND window, const char* name, bool hasFrame = true) {
    view.Settle(400);
    RECT part;
    if (!window || !GetWindowRect(window, &part)) {
        std::printf("%s: there is no such window\n", name);
        return;
    }
    if (!hasFrame) {
        GetClientRect(window, &part);
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&part), 2);
    }
    // Away from the buttons, whose tooltips go.
    RECT client;
    GetClientRect(view.Main(), &client);
    view.MoveTo(view.Main(), {client.right / 3, client.bottom - 5});
    Sleep(300);
    Save(view.Screen(), part, name);
}

/// The pane that a control lies in.
HWND PaneOf(Driver& view, int control) { return GetParent(view.Control(control)); }

POINT At(double x, double y) { return {std::lround(x), example::plateHeightPixels - 1 - std::lround(y)}; }
POINT OnPlate(double worldX, double worldY) {
    const tagPoints pixel = example::PlatePixel(worldX, worldY);
    return At(static_cast<double>(pixel.x), static_cast<double>(pixel.y));
}

void Tool(Driver& view, int number) { view.Press({VK_CONTROL, VK_SHIFT, static_cast<WORD>('0' + number)}); }

void DrawRegions(Driver& view) {
    const HWND canvas = view.Canvas();
    Tool(view, 2);
    view.Drag(canvas, {OnPlate(2, 20), OnPlate(98, 20)});
    Tool(view, 3);
    view.Drag(canvas, {OnPlate(5, 35), OnPlate(36, 4)});
    Tool(view, 4);
    view.Drag(canvas, {At(272, 375), At(416, 289)});
    Tool(view, 5);
    view.Drag(canvas, {OnPlate(74, 65), OnPlate(96, 65), OnPlate(97, 40), OnPlate(73, 40), OnPlate(74, 64)});
    Tool(view, 7);
    for (const POINT corner : {OnPlate(40, 9), OnPlate(70, 9), OnPlate(70, 29)}) view.Click(canvas, corner);
    view.Click(canvas, OnPlate(40, 29));
    view.Press({VK_RETURN});
    view.Press({VK_F4});
}

void Calibrate(Driver& view) {
    view.Press({VK_CONTROL, 'K'});
    for (const example::PlateMark& mark : example::PlateMarks())
        view.Click(view.Canvas(), At(mark.pixelX, mark.pixelY));
    int row = 0;
    for (const example::PlateMark& mark : example::PlateMarks()) {
        view.TypeOver(std::to_wstring(static_cast<int>(mark.worldX)), IDC_CAL_WORLD_X_1 + row++);
        view.Press({VK_TAB});
        view.TypeOver(std::to_wstring(static_cast<int>(mark.worldY)));
    }
    view.ClickControl(IDC_CAL_APPLY);
}

void Threshold(Driver& view) {
    view.Press({VK_CONTROL, 'T'});
    view.ClickControl(IDC_BAND_ADD);
    view.TypeOver(std::to_wstring(example::plateThreshold), IDC_BAND_LOW_TEXT);
}

/// Drags the second point of the display curve upward. It lies near a quarter of the plot; the picture tells a hit.
bool BendTable(Driver& view) {
    view.Press({VK_CONTROL, 'U'});
    view.Settle(300);
    const HWND graph = view.Graph();
    RECT client;
    GetClientRect(graph, &client);
    const Picture before = view.ClientOf(view.Canvas());
    const LONG x = client.right * 31 / 100, y = client.bottom * 69 / 100;
    for (LONG right = -12; right <= 12; right += 4)
        for (LONG down = -12; down <= 12; down += 4) {
            const POINT from = {x + right, y + down};
            view.Drag(graph, {from, {x, y - client.bottom / 6}});
            if (view.ClientOf(view.Canvas()).pixels != before.pixels) return true;
        }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::puts("usage: GuidePictures FOLDER");
        return 2;
    }
    folder = argv[1];
    CcGrayImage256 plate;
    if (!example::MakePlate(plate)) return 1;
    plate.SaveBMPFile("plate.bmp");
    {
        Driver view(L"plate.bmp");
        if (!view.Main()) return 1;
        view.Press({VK_CONTROL, '1'});
        Take(view, view.Main(), "opened");
        Take(view, view.Control(IDC_TOOLBAR), "toolbar");
        DrawRegions(view);
        Calibrate(view);
        Take(view, PaneOf(view, IDC_CAL_APPLY), "calibrate");
        Take(view, view.Canvas(), "calibrate-points");
        Threshold(view);
        Take(view, PaneOf(view, IDC_BAND_MASK), "threshold");
        Take(view, view.Main(), "kestview");
        Take(view, PaneOf(view, IDC_ROI_LIST), "regions");
        Take(view, PaneOf(view, IDC_RESULTS_LIST), "results");
        view.Press({VK_CONTROL, 'B'});
        Take(view, view.Canvas(), "mask");
        view.Press({VK_CONTROL, VK_SHIFT, VK_TAB});
        view.Press({VK_CONTROL, 'D'});
        view.Press({VK_CONTROL, 'H'});
        Take(view, PaneOf(view, IDC_GRAPH_NOTE), "histogram");
        view.Click(view.Canvas(), OnPlate(74, 20));
        view.Press({VK_CONTROL, 'L'});
        Take(view, PaneOf(view, IDC_GRAPH_NOTE), "profile");
        if (!BendTable(view)) std::puts("display-table: no point was hit");
        Take(view, PaneOf(view, IDC_TABLE_RESET), "display-table");
        view.Press({VK_F1});
        Take(view, view.WaitForDialog(L"Keys and Mouse"), "keys", false);
        view.Press({VK_ESCAPE});
        view.Press({VK_MENU, 'T'});
        view.Press({VK_RETURN});
        view.Settle(500);
        Take(view, FindWindowA(nullptr, "Histogram"), "tool", false);
    }
    DeleteFileA("plate.bmp");
    return 0;
}

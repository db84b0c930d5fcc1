// The main window's places and sizes: of itself, of its parts, and of the bars between them.
#include "window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "platform/Settings.h"
#include "res/Resource.h"

namespace kestview {
namespace {

// For 96 dots an inch.
constexpr SIZE smallestWindow = {900, 680}, firstSize = {1240, 940};
// A page and the side hold their controls.
constexpr int smallestPicture = 200, smallestSide = 330, smallestRoiList = 110, smallestPage = 430,
              smallestResults = 90;
constexpr int barThickness = 5;

MONITORINFO MonitorOf(HWND window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor;
}

void Place(HWND child, const RECT& at) {
    SetWindowPos(child, nullptr, at.left, at.top, std::max(0, WidthOf(at)), std::max(0, HeightOf(at)),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
}

/// Where the window was in the last run, moved so that its title bar can be taken hold of; else the middle of the desk.
RECT FirstPlace(const WindowLayout& layout) {
    // The monitor of the last run may be gone.
    if (!IsRectEmpty(&layout.place) && MonitorFromRect(&layout.place, MONITOR_DEFAULTTONULL)) {
        RECT place = layout.place;
        constexpr int least = 100;
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof monitor;
        GetMonitorInfoA(MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST), &monitor);
        const RECT& work = monitor.rcWork;
        OffsetRect(&place,
                   std::clamp<int>(place.left, work.left + least - WidthOf(place), work.right - least) - place.left,
                   std::clamp<int>(place.top, work.top, work.bottom - least) - place.top);
        return place;
    }
    RECT desk;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desk, 0);
    const int dpi = static_cast<int>(GetDpiForSystem());
    const int width = std::min(MulDiv(firstSize.cx, dpi, 96), WidthOf(desk)),
              height = std::min(MulDiv(firstSize.cy, dpi, 96), HeightOf(desk));
    const int left = static_cast<int>(desk.left) + (WidthOf(desk) - width) / 2,
              top = static_cast<int>(desk.top) + (HeightOf(desk) - height) / 2;
    return {left, top, left + width, top + height};
}

}  // namespace

bool MainWindow::Create(int showCommand) {
    Look look = {"KestViewMain", "KestView"};
    look.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    look.extendedStyle = WS_EX_ACCEPTFILES;
    look.background = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    const WindowLayout& layout = KeptSettings().layout;
    if (layout.isMaximized && (showCommand == SW_SHOWDEFAULT || showCommand == SW_SHOWNORMAL))
        showCommand = SW_SHOWMAXIMIZED;
    if (!Window::Create(look, nullptr, FirstPlace(layout))) return false;
    SetMenu(window, menus.MakeBar());
    OnCreate();
    ShowWindow(window, showCommand);
    SetFocus(view);
    return true;
}

void MainWindow::LimitSize(MINMAXINFO& limits) const {
    const RECT work = MonitorOf(window).rcWork;
    limits.ptMinTrackSize = {std::min(Scaled(smallestWindow.cx), WidthOf(work)),
                             std::min(Scaled(smallestWindow.cy), HeightOf(work))};
}

void MainWindow::OnDpiChanged(const RECT& place) {
    font.Make(DpiOf(window));
    for (const HWND tabControl : {tabs, sideTabs})
        SendMessageA(tabControl, WM_SETFONT, reinterpret_cast<WPARAM>(static_cast<HFONT>(font)), TRUE);
    toolbar.MakePictures();
    if (!IsRectEmpty(&place))
        SetWindowPos(window, nullptr, place.left, place.top, WidthOf(place), HeightOf(place),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    Arrange();
}

void MainWindow::Arrange() {
    if (!view) return;
    statusBar.Arrange();
    RECT room, status;
    GetClientRect(window, &room);
    GetWindowRect(statusBar, &status);
    room.top += toolbar.Arrange(WidthOf(room));
    room.bottom -= HeightOf(status);
    std::vector<Splitters::Bar> bars;
    ArrangeSide(room, bars);
    ArrangeResults(room, bars);
    ArrangePicture(room);
    splitters.SetBars(std::move(bars));
    statusBar.ShowPicture(active, view.Magnification());
    // Nothing of the old places stays.
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

/// A length that the user chose, as far as there is room for it now.
int MainWindow::Chosen(int length, int least, int most) const {
    return Scaled(std::clamp(length, least, std::max(least, most)));
}

void MainWindow::ArrangeSide(RECT& room, std::vector<Splitters::Bar>& bars) {
    WindowLayout& layout = KeptSettings().layout;
    const int bar = Scaled(barThickness), most = Unscaled(WidthOf(room)) - smallestPicture,
              mostList = Unscaled(HeightOf(room)) - smallestPage;
    RECT side = room;
    side.left = std::max<LONG>(room.left, room.right - Chosen(layout.sideWidth, smallestSide, most));
    RECT list = side, pages = side;
    list.bottom = std::min<LONG>(side.top + Chosen(layout.roiListHeight, smallestRoiList, mostList), side.bottom);
    pages.top = std::min<LONG>(list.bottom + bar, side.bottom);
    if (isSideShown) {
        room.right = side.left - bar;
        const RECT beside = {room.right, room.top, side.left, room.bottom},
                   below = {side.left, list.bottom, side.right, pages.top};
        bars.push_back({beside, true, &layout.sideWidth, -1, smallestSide, most});
        bars.push_back({below, false, &layout.roiListHeight, 1, smallestRoiList, mostList});
    }
    Place(roiListPane, list);
    Place(sideTabs, pages);
    RECT inner = {0, 0, WidthOf(pages), HeightOf(pages)};
    SendMessageA(sideTabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inner));
    OffsetRect(&inner, pages.left, pages.top);
    for (const auto& pane : sidePanes)
        SetWindowPos(*pane, HWND_TOP, inner.left, inner.top, WidthOf(inner), HeightOf(inner),
                     SWP_NOACTIVATE | SWP_NOCOPYBITS);
    ShowSidePane();
    for (const HWND child : {static_cast<HWND>(roiListPane), sideTabs})
        ShowWindow(child, isSideShown ? SW_SHOWNA : SW_HIDE);
}

void MainWindow::ArrangeResults(RECT& room, std::vector<Splitters::Bar>& bars) {
    WindowLayout& layout = KeptSettings().layout;
    const int most = Unscaled(HeightOf(room)) - smallestPicture;
    RECT results = room;
    results.top = std::max<LONG>(room.top, room.bottom - Chosen(layout.resultsHeight, smallestResults, most));
    if (isResultsShown) {
        room.bottom = results.top - Scaled(barThickness);
        const RECT above = {room.left, room.bottom, room.right, results.top};
        bars.push_back({above, false, &layout.resultsHeight, -1, smallestResults, most});
    }
    Place(resultsPane, results);
    ShowWindow(resultsPane, isResultsShown ? SW_SHOWNA : SW_HIDE);
}

/// The row of tabs, and the picture under it.
void MainWindow::ArrangePicture(const RECT& room) {
    RECT tabRow = {0, 0, WidthOf(room), HeightOf(room)};
    SendMessageA(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&tabRow));
    RECT picture = room;
    picture.top += documents.empty() ? 0 : tabRow.top;
    Place(tabs, {room.left, room.top, room.right, picture.top});
    ShowWindow(tabs, documents.empty() ? SW_HIDE : SW_SHOWNA);
    Place(view, picture);
}

void MainWindow::NoteLayout() {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    if (!GetWindowPlacement(window, &placement)) return;
    // The placement leaves out what the taskbar takes at the left and the top.
    const MONITORINFO monitor = MonitorOf(window);
    OffsetRect(&placement.rcNormalPosition, monitor.rcWork.left - monitor.rcMonitor.left,
               monitor.rcWork.top - monitor.rcMonitor.top);
    WindowLayout& layout = KeptSettings().layout;
    layout.place = placement.rcNormalPosition;
    layout.isMaximized = placement.showCmd == SW_SHOWMAXIMIZED;
    layout.isSideShown = isSideShown;
    layout.isResultsShown = isResultsShown;
    layout.showsRoiNames = view.showsRoiNames;
}

bool MainWindow::OnSplitterMessage(UINT message, LPARAM lParam) {
    POINT mouse = MousePosition(lParam);
    switch (message) {
        case WM_SETCURSOR:
            GetCursorPos(&mouse);
            ScreenToClient(window, &mouse);
            return LOWORD(lParam) == HTCLIENT && splitters.ShowCursor(mouse);
        case WM_LBUTTONDOWN: splitters.Press(window, mouse); return true;
        case WM_MOUSEMOVE:
            if (splitters.Drag(mouse, DpiOf(window))) {
                Arrange();
                UpdateWindow(window);
            }
            return true;
        default: splitters.Release(window); return true;
    }
}

void MainWindow::ToggleSide() {
    isSideShown = !isSideShown;
    ChosenPane().SetInFront(isSideShown);
    Arrange();
}

void MainWindow::ToggleResults() {
    isResultsShown = !isResultsShown;
    Arrange();
}

}  // namespace kestview

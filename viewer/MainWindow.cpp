// The main window: its parts, the open documents, and what passes between them.
#include "MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>

#include "Application.h"
#include "Resource.h"
#include "commands/Commands.h"
#include "document/PictureFiles.h"
#include "document/Session.h"
#include "platform/Boxes.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr const char* sideTitles[sidePageCount] = {"Threshold", "Display", "Histogram", "Profile", "Calibrate"};
constexpr int sideTemplates[sidePageCount] = {IDD_THRESHOLD, IDD_DISPLAY_TABLE, IDD_GRAPH, IDD_GRAPH, IDD_CALIBRATION};
constexpr const char* sideTips[sidePageCount] = {
    "Colour bands of values, and make masks of them", "Change how values become gray levels on the screen",
    "How often each value occurs", "The values along the selected ROI", "Measure in a unit of your own"};
constexpr int toolsMenuPosition = 8;
constexpr SIZE smallestWindow = {900, 680};
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

HWND CreateTabs(HWND parent, int id, DWORD style) {
    return CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ProgramInstance(), nullptr);
}

}  // namespace

MainWindow::MainWindow()
    : roiListPane(*this),
      resultsPane(*this),
      thresholdPane(*this),
      displayTablePane(*this),
      histogramPane(*this),
      profilePane(*this),
      calibrationPane(*this) {}

MainWindow::~MainWindow() {
    view.SetDocument(nullptr);
    tools.SetCurrentImage(nullptr);
}

bool MainWindow::Create(int showCommand) {
    Look look = {"KestViewMain", "KestView"};
    look.style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    look.extendedStyle = WS_EX_ACCEPTFILES;
    look.background = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    RECT desk;
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &desk, 0);
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    const int width = std::min(MulDiv(1240, dpi, 96), WidthOf(desk)),
              height = std::min(MulDiv(940, dpi, 96), HeightOf(desk));
    const int left = static_cast<int>(desk.left) + (WidthOf(desk) - width) / 2,
              top = static_cast<int>(desk.top) + (HeightOf(desk) - height) / 2;
    RECT place = {left, top, left + width, top + height};
    const WindowLayout& layout = App().Layout();
    // The monitor of the last run may be gone.
    if (!IsRectEmpty(&layout.place) && MonitorFromRect(&layout.place, MONITOR_DEFAULTTONULL)) place = layout.place;
    if (layout.isMaximized && (showCommand == SW_SHOWDEFAULT || showCommand == SW_SHOWNORMAL))
        showCommand = SW_SHOWMAXIMIZED;
    if (!Window::Create(look, nullptr, place)) return false;
    SetMenu(window, LoadMenuA(ProgramInstance(), MAKEINTRESOURCEA(IDR_MAIN)));
    OnCreate();
    ShowWindow(window, showCommand);
    SetFocus(view);
    return true;
}

void MainWindow::OnCreate() {
    toolbar.Create(window);
    statusBar.Create(window);
    tabs = CreateTabs(window, IDC_TABS, WS_VISIBLE | TCS_FOCUSNEVER | TCS_TOOLTIPS);
    sideTabs = CreateTabs(window, IDC_SIDE_TABS, WS_VISIBLE | TCS_FOCUSNEVER | TCS_TOOLTIPS);
    for (int page = 0; page < sidePageCount; ++page) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(sideTitles[page]);
        SendMessageA(sideTabs, TCM_INSERTITEMA, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
    }
    view.Create(window);
    view.onHover = [this](const POINT* pixel) { statusBar.ShowPixel(active, pixel); };
    view.onToolChanged = [this] { UpdateCommands(); };
    view.onPaintOver = [this](HDC dc) { calibrationPane.PaintOver(dc); };
    view.onContextMenu = [this] {
        POINT mouse;
        GetCursorPos(&mouse);
        const HMENU menu = LoadMenuA(ProgramInstance(), MAKEINTRESOURCEA(IDR_ROI_CONTEXT));
        TrackPopupMenu(GetSubMenu(menu, 0), TPM_RIGHTBUTTON, mouse.x, mouse.y, 0, window, nullptr);
        DestroyMenu(menu);
    };
    roiListPane.Create(IDD_ROI_LIST, window);
    resultsPane.Create(IDD_RESULTS, window);
    for (int page = 0; page < sidePageCount; ++page) {
        DocumentPane& pane = PageOf(static_cast<SidePage>(page));
        pane.Create(sideTemplates[page], window);
        ShowWindow(pane, SW_HIDE);
    }
    tools.Load(App().ProgramFolder() + "tools\\");
    tools.AddTo(GetSubMenu(GetMenu(window), toolsMenuPosition), toolbar);

    isSideShown = App().Layout().isSideShown != 0;
    isResultsShown = App().Layout().isResultsShown != 0;
    view.showsRoiNames = App().Layout().showsRoiNames != 0;
    OnDpiChanged({});
    if (isSideShown) ShowSidePage(HistogramPage);
    Activate(nullptr);
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
    SendMessageA(toolbar, TB_AUTOSIZE, 0, 0);
    statusBar.Arrange();
    RECT room, status;
    GetClientRect(window, &room);
    GetWindowRect(statusBar, &status);
    room.top += toolbar.Height();
    room.bottom -= HeightOf(status);
    const auto place = [](HWND child, const RECT& at) {
        SetWindowPos(child, nullptr, at.left, at.top, std::max(0, WidthOf(at)), std::max(0, HeightOf(at)),
                     SWP_NOZORDER | SWP_NOACTIVATE);
    };
    WindowLayout& layout = App().Layout();
    const auto unscaled = [this](int length) { return MulDiv(length, 96, DpiOf(window)); };
    const int bar = Scaled(barThickness), mostSide = unscaled(WidthOf(room)) - smallestPicture,
              mostResults = unscaled(HeightOf(room)) - smallestPicture,
              mostList = unscaled(HeightOf(room)) - smallestPage;
    // Lengths that the user chose, as far as there is room for them now.
    const auto chosen = [this](int length, int least, int most) {
        return Scaled(std::clamp(length, least, std::max(least, most)));
    };
    std::vector<Splitters::Bar> bars;
    RECT side = room;
    side.left = std::max<LONG>(room.left, room.right - chosen(layout.sideWidth, smallestSide, mostSide));
    if (isSideShown) {
        room.right = side.left - bar;
        bars.push_back(
            {{room.right, room.top, side.left, room.bottom}, true, &layout.sideWidth, -1, smallestSide, mostSide});
    }
    RECT results = room;
    results.top = std::max<LONG>(room.top, room.bottom - chosen(layout.resultsHeight, smallestResults, mostResults));
    if (isResultsShown) {
        room.bottom = results.top - bar;
        bars.push_back({{room.left, room.bottom, room.right, results.top},
                        false,
                        &layout.resultsHeight,
                        -1,
                        smallestResults,
                        mostResults});
    }
    place(resultsPane, results);
    ShowWindow(resultsPane, isResultsShown ? SW_SHOWNA : SW_HIDE);

    RECT list = side, pages = side;
    list.bottom = std::min<LONG>(side.top + chosen(layout.roiListHeight, smallestRoiList, mostList), side.bottom);
    pages.top = std::min<LONG>(list.bottom + bar, side.bottom);
    if (isSideShown)
        bars.push_back({{side.left, list.bottom, side.right, pages.top},
                        false,
                        &layout.roiListHeight,
                        1,
                        smallestRoiList,
                        mostList});
    splitters.SetBars(std::move(bars));
    place(roiListPane, list);
    place(sideTabs, pages);
    RECT inner = {0, 0, WidthOf(pages), HeightOf(pages)};
    SendMessageA(sideTabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inner));
    OffsetRect(&inner, pages.left, pages.top);
    for (int page = 0; page < sidePageCount; ++page) {
        DocumentPane& pane = PageOf(static_cast<SidePage>(page));
        SetWindowPos(pane, HWND_TOP, inner.left, inner.top, WidthOf(inner), HeightOf(inner), SWP_NOACTIVATE);
        ShowWindow(pane, isSideShown && page == sidePage ? SW_SHOWNA : SW_HIDE);
    }
    for (const HWND child : {static_cast<HWND>(roiListPane), sideTabs})
        ShowWindow(child, isSideShown ? SW_SHOWNA : SW_HIDE);

    RECT tabRow = {0, 0, WidthOf(room), HeightOf(room)};
    SendMessageA(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&tabRow));
    RECT picture = room;
    picture.top += documents.empty() ? 0 : tabRow.top;
    place(tabs, {room.left, room.top, room.right, picture.top});
    ShowWindow(tabs, documents.empty() ? SW_HIDE : SW_SHOWNA);
    place(view, picture);
    statusBar.ShowPicture(active, view.Magnification());
}

void MainWindow::NoteLayout() {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    if (!GetWindowPlacement(window, &placement)) return;
    // The placement leaves out what the taskbar takes at the left and the top.
    const MONITORINFO monitor = MonitorOf(window);
    OffsetRect(&placement.rcNormalPosition, monitor.rcWork.left - monitor.rcMonitor.left,
               monitor.rcWork.top - monitor.rcMonitor.top);
    WindowLayout& layout = App().Layout();
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
        case WM_LBUTTONDOWN:
            splitters.Press(window, mouse);
            return true;
        case WM_MOUSEMOVE:
            if (splitters.Drag(mouse, DpiOf(window))) {
                Arrange();
                UpdateWindow(window);
            }
            return true;
        default:
            splitters.Release();
            return true;
    }
}

// Documents

void MainWindow::AddDocument(std::unique_ptr<Document> document) {
    Document& added = *document;
    added.onChange = [this, &added](unsigned change) { OnDocumentChanged(added, change); };
    documents.push_back(std::move(document));
    UpdateTabs();
    Activate(&added);
    Arrange();
}

void MainWindow::AddNewPicture(std::unique_ptr<CcImage> image, Document* like) {
    auto document = std::make_unique<Document>(std::move(image));
    if (like) document->CalibrateLike(*like);
    document->SetModified(true);
    AddDocument(std::move(document));
}

void MainWindow::Activate(Document* document) {
    if (active && active != document) active->PreviewBands(false, nullptr);
    active = document;
    view.SetDocument(document);
    roiListPane.SetDocument(document);
    resultsPane.SetDocument(document);
    for (int page = 0; page < sidePageCount; ++page)
        PageOf(static_cast<SidePage>(page)).SetDocument(document);
    tools.SetCurrentImage(document ? &document->Image() : nullptr);
    UpdateTabs();
    UpdateTitle();
    UpdateCommands();
    statusBar.ShowMessage("");
    statusBar.ShowPixel(nullptr, nullptr);
    statusBar.ShowPicture(active, view.Magnification());
}

bool MainWindow::MayClose(Document& document) {
    if (!document.IsModified()) return true;
    Activate(&document);
    const int answer = AskYesNoCancel(window, "Save the changes to " + document.Name() + " in a session?");
    return answer == IDNO || (answer == IDYES && SaveSessionOf(*this, document, false));
}

bool MainWindow::CloseDocument(Document& document) {
    if (!MayClose(document)) return false;
    Discard(document);
    return true;
}

void MainWindow::Discard(Document& document) {
    const auto at =
        std::find_if(documents.begin(), documents.end(), [&](const auto& held) { return held.get() == &document; });
    const auto index = static_cast<std::size_t>(at - documents.begin());
    // First the others let go of it, then it is deleted.
    std::unique_ptr<Document> closed = std::move(*at);
    documents.erase(at);
    if (active == closed.get())
        Activate(documents.empty() ? nullptr : documents[std::min(index, documents.size() - 1)].get());
    UpdateTabs();
    Arrange();
}

bool MainWindow::MayCloseAll() {
    for (std::size_t i = documents.size(); i-- > 0;)
        if (!MayClose(*documents[i])) return false;
    return true;
}

bool MainWindow::CloseAll() {
    // Nothing is lost when the last question is answered with Cancel: first all are asked about, then all go.
    if (!MayCloseAll()) return false;
    while (!documents.empty())
        Discard(*documents.back());
    return true;
}

void MainWindow::OpenFile(const std::string& path) {
    std::string error, warning;
    std::unique_ptr<Document> document;
    if (IsSessionFile(path)) {
        document = OpenSession(path, error, warning);
    } else if (auto image = OpenPicture(path, error, warning)) {
        document = std::make_unique<Document>(std::move(image));
        document->picturePath = path;
    }
    if (!document) {
        if (!error.empty()) ShowError(window, error);
        return;
    }
    App().NoteRecentFile(path);
    AddDocument(std::move(document));
    if (!warning.empty()) ShowNote(window, warning);
}

void MainWindow::OnDocumentChanged(Document& document, unsigned change) {
    if (change & TitleChanged) {
        UpdateTabs();
        UpdateTitle();
    }
    if (&document != active) return;
    view.Refresh(change);
    roiListPane.Refresh(change);
    resultsPane.Refresh(change);
    for (int page = 0; page < sidePageCount; ++page)
        PageOf(static_cast<SidePage>(page)).Refresh(change);
    if (change & PictureChanged) tools.PixelsChanged();
    if (change & (ViewChanged | PictureChanged)) statusBar.ShowPicture(active, view.Magnification());
    UpdateCommands();
}

void MainWindow::UpdateTabs() {
    const int count = static_cast<int>(documents.size());
    for (int i = static_cast<int>(SendMessageA(tabs, TCM_GETITEMCOUNT, 0, 0)); i > count; --i)
        SendMessageA(tabs, TCM_DELETEITEM, static_cast<WPARAM>(i - 1), 0);
    for (int i = 0; i < count; ++i) {
        Document& document = *documents[static_cast<std::size_t>(i)];
        std::string text = document.Name() + (document.IsModified() ? " *" : "");
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        const bool isPresent = i < SendMessageA(tabs, TCM_GETITEMCOUNT, 0, 0);
        SendMessageA(tabs, isPresent ? TCM_SETITEMA : TCM_INSERTITEMA, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
        if (&document == active) SendMessageA(tabs, TCM_SETCURSEL, static_cast<WPARAM>(i), 0);
    }
}

void MainWindow::UpdateTitle() {
    const std::string title =
        active ? active->Name() + (active->IsModified() ? " * - KestView" : " - KestView") : "KestView";
    if (TextOf(window) != title) SetWindowTextA(window, title.c_str());
}

// Panes

DocumentPane& MainWindow::PageOf(SidePage page) {
    DocumentPane* const pages[sidePageCount] = {&thresholdPane, &displayTablePane, &histogramPane, &profilePane,
                                                &calibrationPane};
    return *pages[page];
}

void MainWindow::ShowSidePage(SidePage page) {
    if (!isSideShown) ToggleSide();
    if (page != sidePage && active) active->PreviewBands(false, nullptr);
    PageOf(sidePage).OnShown(false);
    sidePage = page;
    SendMessageA(sideTabs, TCM_SETCURSEL, page, 0);
    for (int i = 0; i < sidePageCount; ++i)
        ShowWindow(PageOf(static_cast<SidePage>(i)), i == page ? SW_SHOWNA : SW_HIDE);
    PageOf(page).OnShown(true);
    UpdateCommands();
}

GraphWindow* MainWindow::ShownGraph() {
    if (!isSideShown) return nullptr;
    switch (sidePage) {
        case DisplayTablePage:
            return &displayTablePane.Graph();
        case HistogramPage:
            return &histogramPane.Graph();
        case ProfilePage:
            return &profilePane.Graph();
        default:
            return nullptr;
    }
}

void MainWindow::ToggleSide() {
    isSideShown = !isSideShown;
    PageOf(sidePage).OnShown(isSideShown);
    Arrange();
}

void MainWindow::ToggleResults() {
    isResultsShown = !isResultsShown;
    Arrange();
}

void MainWindow::SetRoiTool(int roiType) {
    view.Mouse().SetTool(roiType);
    SetFocus(view);
    UpdateCommands();
}

bool MainWindow::IsPaneMessage(MSG& message) {
    // Tab goes from the picture into the panes, Esc from there back.
    const bool isTab = message.message == WM_KEYDOWN && message.wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0;
    if (isTab && message.hwnd == view) {
        const HWND pane = GetKeyState(VK_SHIFT) < 0 ? static_cast<HWND>(resultsPane) : PageOf(sidePage);
        const HWND first = IsWindowVisible(pane) ? GetNextDlgTabItem(pane, nullptr, FALSE) : nullptr;
        if (first) SetFocus(first);
        return true;
    }
    // An open list and a name that is being edited take Esc themselves.
    const HWND parent = GetParent(message.hwnd);
    const bool isInPane = parent == resultsPane || parent == roiListPane || parent == PageOf(sidePage);
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE && isInPane &&
        !SendMessageA(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) {
        SetFocus(view);
        return true;
    }
    if (IsChild(resultsPane, message.hwnd)) return IsDialogMessageA(resultsPane, &message) != 0;
    if (IsChild(roiListPane, message.hwnd)) return IsDialogMessageA(roiListPane, &message) != 0;
    DocumentPane& page = PageOf(sidePage);
    return IsChild(page, message.hwnd) && IsDialogMessageA(page, &message) != 0;
}

// Commands

void MainWindow::UpdateCommands() {
    if (!toolbar) return;
    for (const Command& command : AllCommands())
        for (int id = command.first; id <= command.last; ++id)
            toolbar.SetState(id, command.isEnabled(*this, id), command.isChecked(*this, id));
}

void MainWindow::OnInitMenu(HMENU menu) {
    if (GetMenuItemID(menu, 0) == ID_FILE_OPEN) FillRecentFiles(menu);
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        const int id = static_cast<int>(GetMenuItemID(menu, i));
        const Command* command = CommandOf(id);
        if (!command) continue;
        EnableMenuItem(menu, static_cast<UINT>(i),
                       MF_BYPOSITION | (command->isEnabled(*this, id) ? MF_ENABLED : MF_GRAYED));
        CheckMenuItem(menu, static_cast<UINT>(i),
                      MF_BYPOSITION | (command->isChecked(*this, id) ? MF_CHECKED : MF_UNCHECKED));
    }
}

void MainWindow::OnDrop(HDROP drop) {
    const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    std::vector<std::string> paths;
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + 1, 0);
        DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size()));
        paths.push_back(Utf8(path.c_str()));
    }
    DragFinish(drop);
    for (const std::string& path : paths)
        OpenFile(path);
}

LRESULT MainWindow::OnNotify(NMHDR& header) {
    if (header.idFrom == IDC_TABS && header.code == TCN_SELCHANGE) {
        const auto index = static_cast<std::size_t>(SendMessageA(tabs, TCM_GETCURSEL, 0, 0));
        if (index < documents.size()) Activate(documents[index].get());
    } else if (header.idFrom == IDC_SIDE_TABS && header.code == TCN_SELCHANGE) {
        ShowSidePage(static_cast<SidePage>(SendMessageA(sideTabs, TCM_GETCURSEL, 0, 0)));
    } else if (header.code == TTN_GETDISPINFOA) {
        const auto isOf = [&](HWND tabControl) {
            return header.hwndFrom == reinterpret_cast<HWND>(SendMessageA(tabControl, TCM_GETTOOLTIPS, 0, 0));
        };
        const int id = static_cast<int>(header.idFrom);
        tip = isOf(tabs) ? TabTip(id) : isOf(sideTabs) && id < sidePageCount ? sideTips[id] : TipOf(id, tools);
        reinterpret_cast<NMTTDISPINFOA&>(header).lpszText = tip.data();
    }
    return 0;
}

/// A document's tab tells where it comes from.
std::string MainWindow::TabTip(int tab) const {
    if (tab < 0 || tab >= static_cast<int>(documents.size())) return "";
    Document& document = *documents[static_cast<std::size_t>(tab)];
    if (!document.sessionPath.empty()) return document.sessionPath;
    return document.picturePath.empty() ? document.Name() : document.picturePath;
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            Arrange();
            return 0;
        case WM_GETMINMAXINFO: {
            auto& limits = *reinterpret_cast<MINMAXINFO*>(lParam);
            const RECT work = MonitorOf(window).rcWork;
            limits.ptMinTrackSize = {std::min(Scaled(smallestWindow.cx), WidthOf(work)),
                                     std::min(Scaled(smallestWindow.cy), HeightOf(work))};
            return 0;
        }
        case WM_SETCURSOR:
            if (OnSplitterMessage(message, lParam)) return TRUE;
            break;
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            OnSplitterMessage(message, lParam);
            return 0;
        case KEST_TOOL_PIXELS_CHANGED:
            // A tool has changed the picture in front.
            if (active) {
                active->Image().ReScaleImageOnShow();
                active->Changed(PictureChanged, true);
            }
            return 0;
        case WM_DPICHANGED:
            OnDpiChanged(*reinterpret_cast<RECT*>(lParam));
            return 0;
        case WM_ACTIVATE:
            // Back from another program, keys go where they went before.
            if (LOWORD(wParam) == WA_INACTIVE)
                lastFocus = IsChild(window, GetFocus()) ? GetFocus() : nullptr;
            else if (!HIWORD(wParam))
                SetFocus(lastFocus && IsChild(window, lastFocus) && IsWindowVisible(lastFocus) ? lastFocus : view);
            return 0;
        case WM_SETFOCUS:
            SetFocus(view);
            return 0;
        case WM_COMMAND:
            if (!view.Mouse().IsDragging()) RunCommand(*this, LOWORD(wParam));
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_INITMENUPOPUP:
            OnInitMenu(reinterpret_cast<HMENU>(wParam));
            return 0;
        case WM_MENUSELECT:
            statusBar.ShowMessage(
                HIWORD(wParam) == 0xFFFF || (HIWORD(wParam) & MF_POPUP) ? "" : TipOf(LOWORD(wParam), tools));
            return 0;
        case WM_DROPFILES:
            OnDrop(reinterpret_cast<HDROP>(wParam));
            return 0;
        case WM_CLOSE:
            if (!CloseAll()) return 0;
            tools.CloseAll();
            NoteLayout();
            DestroyWindow(window);
            return 0;
        case WM_QUERYENDSESSION:
            return MayCloseAll();
        case WM_ENDSESSION:
            if (wParam) {
                NoteLayout();
                App().SaveSettings();
            }
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace kestview

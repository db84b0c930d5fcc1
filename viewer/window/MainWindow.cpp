// The main window: its parts, and what passes between them. MainWindowDocuments.cpp has the open documents,
// MainWindowLayout.cpp the places of the parts.
#include "window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>

#include "commands/Commands.h"
#include "platform/Settings.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

constexpr const char* sideTitles[sidePageCount] = {"Threshold", "Display", "Histogram", "Profile", "Calibrate"};
constexpr int sideTemplates[sidePageCount] = {IDD_THRESHOLD, IDD_DISPLAY_TABLE, IDD_GRAPH, IDD_GRAPH, IDD_CALIBRATION};
constexpr const char* sideTips[sidePageCount] = {
    "Colour bands of values, and make masks of them", "Change how values become gray levels on the screen",
    "How often each value occurs", "The values along the selected ROI", "Measure in a unit of your own"};
constexpr int toolsMenuPosition = 8;

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
    tools.Load();
    tools.AddTo(GetSubMenu(GetMenu(window), toolsMenuPosition), toolbar);

    isSideShown = KeptSettings().layout.isSideShown != 0;
    isResultsShown = KeptSettings().layout.isResultsShown != 0;
    view.showsRoiNames = KeptSettings().layout.showsRoiNames != 0;
    OnDpiChanged({});
    SendMessageA(sideTabs, TCM_SETCURSEL, sidePage, 0);
    if (isSideShown) ShowSidePage(HistogramPage);
    Activate(nullptr);
}

// Panes

DocumentPane& MainWindow::PageOf(SidePage page) {
    DocumentPane* const pages[sidePageCount] = {&thresholdPane, &displayTablePane, &histogramPane, &profilePane,
                                                &calibrationPane};
    return *pages[page];
}

std::vector<DocumentPane*> MainWindow::AllPanes() {
    std::vector<DocumentPane*> panes = {&roiListPane, &resultsPane};
    for (int page = 0; page < sidePageCount; ++page)
        panes.push_back(&PageOf(static_cast<SidePage>(page)));
    return panes;
}

void MainWindow::ShowPages() {
    for (int page = 0; page < sidePageCount; ++page)
        ShowWindow(PageOf(static_cast<SidePage>(page)), isSideShown && page == sidePage ? SW_SHOWNA : SW_HIDE);
}

void MainWindow::ShowSidePage(SidePage page) {
    if (page != sidePage && active) active->PreviewBands(false, nullptr);
    if (isSideShown) PageOf(sidePage).OnShown(false);
    sidePage = page;
    SendMessageA(sideTabs, TCM_SETCURSEL, page, 0);
    if (isSideShown) {
        ShowPages();
    } else {
        isSideShown = true;
        Arrange();
    }
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

void MainWindow::SetRoiTool(int roiType) {
    view.Mouse().SetTool(roiType);
    SetFocus(view);
    UpdateCommands();
}

void MainWindow::FocusNextPart() {
    const HWND parts[] = {view, roiListPane, PageOf(sidePage), resultsPane};
    const int count = static_cast<int>(std::size(parts));
    const HWND focus = GetFocus();
    int present = 0;
    while (present < count && parts[present] != focus && !IsChild(parts[present], focus))
        ++present;
    for (int i = 1; i <= count; ++i) {
        const HWND part = parts[(present + i) % count];
        const HWND control = part == view          ? part
                             : part == resultsPane ? GetDlgItem(part, IDC_RESULTS_LIST)
                                                   : GetNextDlgTabItem(part, nullptr, FALSE);
        if (!IsWindowVisible(part) || !control || !IsWindowEnabled(control) ||
            !(GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP))
            continue;
        SetFocus(control);
        PageOf(sidePage).BringFocusIntoView();
        return;
    }
}

bool MainWindow::IsPaneMessage(MSG& message) {
    const bool isKey = message.message == WM_KEYDOWN && GetKeyState(VK_CONTROL) >= 0;
    const bool isTabInPicture = isKey && message.wParam == VK_TAB && message.hwnd == view;
    if (isTabInPicture || (isKey && message.wParam == VK_F8)) {
        // While something is dragged, the keys stay with the picture.
        if (!view.Mouse().IsDragging()) FocusNextPart();
        return true;
    }
    // An open list and a name that is being edited take Esc themselves.
    const HWND parent = GetParent(message.hwnd);
    const bool isInPane = parent == resultsPane || parent == roiListPane || parent == PageOf(sidePage);
    if (isKey && message.wParam == VK_ESCAPE && isInPane && !SendMessageA(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) {
        SetFocus(view);
        return true;
    }
    for (DocumentPane* pane :
         {static_cast<DocumentPane*>(&resultsPane), static_cast<DocumentPane*>(&roiListPane), &PageOf(sidePage)})
        if (IsChild(*pane, message.hwnd)) {
            const bool isTaken = IsDialogMessageA(*pane, &message) != 0;
            if (isKey) pane->BringFocusIntoView();
            return isTaken;
        }
    return false;
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

/// A command is at work on the document in front, and waits for an answer: nothing else may take the document away. The
/// dialog comes to the front.
bool MainWindow::IsInDialog() const {
    if (IsWindowEnabled(window)) return false;
    SetForegroundWindow(GetLastActivePopup(window));
    return true;
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
    if (IsInDialog()) return;
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
        case WM_GETMINMAXINFO:
            LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
            return 0;
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
            if (active) active->PixelsReplaced();
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
            if (IsInDialog() || !CloseAll()) return 0;
            tools.CloseAll();
            NoteLayout();
            DestroyWindow(window);
            return 0;
        case WM_QUERYENDSESSION:
            return !IsInDialog() && MayCloseAll();
        case WM_ENDSESSION:
            if (wParam) {
                NoteLayout();
                KeptSettings().Save();
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

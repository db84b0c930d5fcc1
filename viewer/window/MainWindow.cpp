// The main window: its parts, and what passes between them. MainWindowDocuments.cpp has the open documents,
// MainWindowPanes.cpp the panes, MainWindowLayout.cpp the places of the parts.
#include "window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>

#include "platform/Settings.h"
#include "platform/Text.h"
#include "res/Resource.h"

namespace kestview {
namespace {

HWND CreateTabs(HWND parent, int id, DWORD style) {
    return CreateWindowExA(0, WC_TABCONTROLA, "", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ProgramInstance(), nullptr);
}

}  // namespace

MainWindow::MainWindow(Menus newMenus)
    : menus(std::move(newMenus)), keys(menus.MakeKeys()), roiListPane(*this), resultsPane(*this) {
    for (const SidePane& row : SidePanes()) sidePanes.push_back(row.make(*this));
}

MainWindow::~MainWindow() {
    view.SetDocument(nullptr);
    tools.SetCurrentImage(nullptr);
}

void MainWindow::OnCreate() {
    toolbar.Create(window);
    statusBar.Create(window);
    tabs = CreateTabs(window, IDC_TABS, WS_VISIBLE | TCS_FOCUSNEVER | TCS_TOOLTIPS);
    sideTabs = CreateTabs(window, IDC_SIDE_TABS, WS_VISIBLE | TCS_FOCUSNEVER | TCS_TOOLTIPS);
    view.Create(window);
    view.onHover = [this](const POINT* pixel) { statusBar.ShowPixel(active, pixel); };
    view.onToolChanged = [this] { UpdateCommands(); };
    view.onPick = [this](POINT pixel) { return isSideShown && ChosenPane().Pick(pixel); };
    view.picksPoints = [this] { return isSideShown && ChosenPane().PicksPoints(); };
    view.onPaintOver = [this](HDC dc) {
        if (isSideShown) ChosenPane().PaintOver(dc);
    };
    view.onContextMenu = [this] { ShowRoiMenu(); };
    CreatePanes();
    tools.Load();
    tools.AddTo(GetMenu(window), toolbar);

    isSideShown = KeptSettings().layout.isSideShown != 0;
    isResultsShown = KeptSettings().layout.isResultsShown != 0;
    view.showsRoiNames = KeptSettings().layout.showsRoiNames != 0;
    OnDpiChanged({});
    if (isSideShown) ChooseSidePane(chosenPane);
    Activate(nullptr);
}

// Commands

void MainWindow::SetRoiTool(int roiType) {
    view.Mouse().SetTool(roiType);
    SetFocus(view);
    UpdateCommands();
}

void MainWindow::RunCommand(int id) {
    const Command* command = menus.CommandOf(id);
    if (!command || !command->isEnabled(*this, id)) return;
    command->run(*this, id);
    UpdateCommands();
}

void MainWindow::UpdateCommands() {
    if (!toolbar) return;
    for (const Command* command : menus.Commands())
        toolbar.SetState(command->id, command->isEnabled(*this, command->id),
                         command->isChecked && command->isChecked(*this, command->id));
}

std::string MainWindow::TipOf(int id) {
    if (id >= ID_TOOLS_FIRST && id <= ID_TOOLS_LAST) return tools.TextOf(id);
    const Command* command = menus.CommandOf(id);
    return command ? command->tip : "";
}

void MainWindow::OnInitMenu(HMENU menu) {
    const HMENU bar = GetMenu(window);
    for (int i = 0; i < GetMenuItemCount(bar); ++i)
        if (GetSubMenu(bar, i) == menu) menus.OnOpen(i, menu);
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        const int id = static_cast<int>(GetMenuItemID(menu, i));
        const Command* command = menus.CommandOf(id);
        if (!command) continue;
        const bool isChecked = command->isChecked && command->isChecked(*this, id);
        EnableMenuItem(menu, static_cast<UINT>(i),
                       MF_BYPOSITION | (command->isEnabled(*this, id) ? MF_ENABLED : MF_GRAYED));
        CheckMenuItem(menu, static_cast<UINT>(i), MF_BYPOSITION | (isChecked ? MF_CHECKED : MF_UNCHECKED));
    }
}

void MainWindow::ShowRoiMenu() {
    POINT mouse;
    GetCursorPos(&mouse);
    const HeldMenu menu(menus.MakeRoiMenu());
    TrackPopupMenu(menu, TPM_RIGHTBUTTON, mouse.x, mouse.y, 0, window, nullptr);
}

/// A command is at work on the document in front, and waits for an answer: nothing else may take the document away. The
/// dialog comes to the front.
bool MainWindow::IsInDialog() const {
    if (IsWindowEnabled(window)) return false;
    SetForegroundWindow(GetLastActivePopup(window));
    return true;
}

void MainWindow::OnDrop(HDROP dropped) {
    const Held<HDROP, DragFinish> drop(dropped);
    const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    std::vector<std::string> paths;
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + 1, 0);
        DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size()));
        paths.push_back(Utf8(path.c_str()));
    }
    if (IsInDialog()) return;
    for (const std::string& path : paths) OpenFile(path);
}

LRESULT MainWindow::OnNotify(NMHDR& header) {
    if (header.idFrom == IDC_TABS && header.code == TCN_SELCHANGE) {
        const auto index = static_cast<std::size_t>(SendMessageA(tabs, TCM_GETCURSEL, 0, 0));
        if (index < documents.size()) Activate(documents[index].get());
    } else if (header.idFrom == IDC_SIDE_TABS && header.code == TCN_SELCHANGE) {
        ChooseSidePane(static_cast<std::size_t>(SendMessageA(sideTabs, TCM_GETCURSEL, 0, 0)));
    } else if (header.code == TTN_GETDISPINFOA) {
        const auto isOf = [&](HWND tabControl) {
            return header.hwndFrom == reinterpret_cast<HWND>(SendMessageA(tabControl, TCM_GETTOOLTIPS, 0, 0));
        };
        const int id = static_cast<int>(header.idFrom);
        tip = isOf(tabs) ? TabTip(id) : isOf(sideTabs) ? SidePanes()[static_cast<std::size_t>(id)].tip : TipOf(id);
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

/// Back from another program, keys go where they went before.
void MainWindow::OnActivate(bool isNowActive, bool isMinimized) {
    if (!isNowActive)
        lastFocus = IsChild(window, GetFocus()) ? GetFocus() : nullptr;
    else if (!isMinimized)
        SetFocus(lastFocus && IsChild(window, lastFocus) && IsWindowVisible(lastFocus) ? lastFocus : view);
}

void MainWindow::OnClose() {
    if (IsInDialog() || !CloseAll()) return;
    tools.CloseAll();
    NoteLayout();
    DestroyWindow(window);
}

/// The user logs off: the program may be ended any time after this.
void MainWindow::OnEndSession() {
    NoteLayout();
    KeptSettings().Save();
}

LRESULT MainWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE: Arrange(); return 0;
        case WM_GETMINMAXINFO: LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam)); return 0;
        case WM_SETCURSOR:
            if (OnSplitterMessage(message, lParam)) return TRUE;
            break;
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED: OnSplitterMessage(message, lParam); return 0;
        case KEST_TOOL_PIXELS_CHANGED:
            // A tool has changed the picture in front.
            if (active) active->PixelsReplaced();
            return 0;
        case WM_DPICHANGED: OnDpiChanged(*reinterpret_cast<RECT*>(lParam)); return 0;
        case WM_ACTIVATE: OnActivate(LOWORD(wParam) != WA_INACTIVE, HIWORD(wParam) != 0); return 0;
        case WM_SETFOCUS: SetFocus(view); return 0;
        case WM_COMMAND:
            if (!view.Mouse().IsDragging()) RunCommand(LOWORD(wParam));
            return 0;
        case WM_NOTIFY: return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        case WM_INITMENUPOPUP: OnInitMenu(reinterpret_cast<HMENU>(wParam)); return 0;
        case WM_MENUSELECT:
            statusBar.ShowMessage(HIWORD(wParam) == 0xFFFF || (HIWORD(wParam) & MF_POPUP) ? "" : TipOf(LOWORD(wParam)));
            return 0;
        case WM_DROPFILES: OnDrop(reinterpret_cast<HDROP>(wParam)); return 0;
        case WM_CLOSE: OnClose(); return 0;
        case WM_QUERYENDSESSION: return !IsInDialog() && MayCloseAll();
        case WM_ENDSESSION:
            if (wParam) OnEndSession();
            return 0;
        case WM_DESTROY: PostQuitMessage(0); return 0;
        default: break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace kestview

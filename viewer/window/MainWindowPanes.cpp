// The panes of the main window: making and showing them, and the keys that go to them.
#include "window/MainWindow.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "res/Resource.h"

namespace kestview {
namespace {

constexpr int firstPane = ID_MEASURE_HISTOGRAM;

std::size_t RowOf(int command) {
    const auto rows = SidePanes();
    const auto isOf = [command](const SidePane& row) { return row.command == command; };
    return static_cast<std::size_t>(std::find_if(rows.begin(), rows.end(), isOf) - rows.begin());
}

}  // namespace

void MainWindow::CreatePanes() {
    roiListPane.Create(IDD_ROI_LIST, window);
    resultsPane.Create(IDD_RESULTS, window);
    for (std::size_t i = 0; i < sidePanes.size(); ++i) {
        const SidePane& row = SidePanes()[i];
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(row.title);
        SendMessageA(sideTabs, TCM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
        sidePanes[i]->Create(row.dialog, window);
        ShowWindow(*sidePanes[i], SW_HIDE);
    }
    chosenPane = RowOf(firstPane);
    SendMessageA(sideTabs, TCM_SETCURSEL, chosenPane, 0);
}

std::vector<DocumentPane*> MainWindow::AllPanes() {
    std::vector<DocumentPane*> panes = {&roiListPane, &resultsPane};
    for (const auto& pane : sidePanes) panes.push_back(pane.get());
    return panes;
}

void MainWindow::ShowSidePane() {
    for (const auto& pane : sidePanes)
        ShowWindow(*pane, isSideShown && pane.get() == &ChosenPane() ? SW_SHOWNA : SW_HIDE);
}

void MainWindow::ShowPane(int command) {
    const std::size_t row = RowOf(command);
    if (row < sidePanes.size()) ChooseSidePane(row);
}

bool MainWindow::IsPaneShown(int command) const { return isSideShown && chosenPane == RowOf(command); }

void MainWindow::ChooseSidePane(std::size_t chosen) {
    if (chosen != chosenPane && active) active->PreviewBands(false, nullptr);
    if (isSideShown) ChosenPane().SetInFront(false);
    chosenPane = chosen;
    SendMessageA(sideTabs, TCM_SETCURSEL, chosen, 0);
    if (isSideShown) {
        ShowSidePane();
    } else {
        isSideShown = true;
        Arrange();
    }
    ChosenPane().SetInFront(true);
    UpdateCommands();
}

GraphWindow* MainWindow::ShownGraph() { return isSideShown ? ChosenPane().Graph() : nullptr; }

void MainWindow::FocusNextPart() {
    const HWND parts[] = {view, roiListPane, ChosenPane(), resultsPane};
    const int count = static_cast<int>(std::size(parts));
    const HWND focus = GetFocus();
    int present = 0;
    while (present < count && parts[present] != focus && !IsChild(parts[present], focus)) ++present;
    for (int i = 1; i <= count; ++i) {
        const HWND part = parts[(present + i) % count];
        const HWND control = part == view          ? part
                             : part == resultsPane ? GetDlgItem(part, IDC_RESULTS_LIST)
                                                   : GetNextDlgTabItem(part, nullptr, FALSE);
        if (!IsWindowVisible(part) || !control || !IsWindowEnabled(control) ||
            !(GetWindowLongA(control, GWL_STYLE) & WS_TABSTOP))
            continue;
        SetFocus(control);
        ChosenPane().BringFocusIntoView();
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
    const bool isInPane = parent == resultsPane || parent == roiListPane || parent == ChosenPane();
    if (isKey && message.wParam == VK_ESCAPE && isInPane && !SendMessageA(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) {
        SetFocus(view);
        return true;
    }
    for (DocumentPane* pane :
         {static_cast<DocumentPane*>(&resultsPane), static_cast<DocumentPane*>(&roiListPane), &ChosenPane()})
        if (IsChild(*pane, message.hwnd)) {
            const bool isTaken = IsDialogMessageA(*pane, &message) != 0;
            if (isKey) pane->BringFocusIntoView();
            return isTaken;
        }
    return false;
}

}  // namespace kestview

// The main window: menu, toolbar, tabs of the open pictures, the picture view, the panes, the status bar.
//
// What a menu entry does stands in commands/, one file a menu.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/Document.h"
#include "panes/ResultsPane.h"
#include "panes/RoiListPane.h"
#include "panes/SidePanes.h"
#include "picture/PictureView.h"
#include "platform/Drawing.h"
#include "platform/Guards.h"
#include "platform/Window.h"
#include "window/Menus.h"
#include "window/Splitters.h"
#include "window/StatusBar.h"
#include "window/Toolbar.h"
#include "window/Tools.h"

namespace kestview {

class MainWindow : public Window, private PaneHost {
public:
    explicit MainWindow(Menus newMenus);
    ~MainWindow() override;
    bool Create(int showCommand);

    // Documents
    /// The document of the front tab, or null.
    Document* Active() const { return active; }
    const std::vector<std::unique_ptr<Document>>& Documents() const { return documents; }
    /// Takes a new document over and brings it to the front.
    void AddDocument(std::unique_ptr<Document> document);
    /// The same with a picture that was made here. `like`: a document whose calibration holds for it too, or null;
    /// `origin`: the lower left pixel of the picture in that one.
    void AddNewPicture(std::unique_ptr<CcImage> image, Document* like, POINT origin = {});
    void Activate(Document* document);
    /// Asks about unsaved work first; false when the user cancels.
    bool CloseDocument(Document& document);
    /// Asks about unsaved work in all documents before any of them goes.
    bool CloseAll();
    /// Opens a picture or a session, whatever the file is. Tells the user when it cannot.
    void OpenFile(const std::string& path);
    /// Saves a document as a session. Asks for a path when there is none yet, or always with `isPathAsked`. False when
    /// the user cancels or it fails.
    bool SaveDocument(Document& document, bool isPathAsked);

    PictureView& View() { return view; }
    ResultsPane& Results() { return resultsPane; }
    Tools& LoadedTools() { return tools; }
    StatusBar& Status() { return statusBar; }

    void SetRoiTool(int roiType);
    /// Brings the pane of a menu entry to the front (panes/SidePanes.cpp).
    void ShowPane(int command);
    bool IsPaneShown(int command) const;
    /// The graph of the pane in front, or null.
    GraphWindow* ShownGraph();
    void ToggleSide();
    void ToggleResults();
    bool IsSideShown() const { return isSideShown; }
    bool IsResultsShown() const { return isResultsShown; }

    /// Does what a menu entry does, if it is possible now.
    void RunCommand(int command) override;
    /// For the message loop: the commands' keys, and those of the panes' controls.
    HACCEL Keys() const { return keys; }
    bool IsPaneMessage(MSG& message);
    /// Brings toolbar and menu in step with what is possible now.
    void UpdateCommands();

private:
    bool MayClose(Document& document);
    bool MayCloseAll();
    bool IsInDialog() const;
    void Discard(Document& document);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreate();
    void OnDpiChanged(const RECT& place);
    void OnActivate(bool isNowActive, bool isMinimized);
    void OnClose();
    void OnEndSession();
    void OnDrop(HDROP drop);
    LRESULT OnNotify(NMHDR& header);
    void OnDocumentChanged(Document& document, unsigned change);
    void OnInitMenu(HMENU menu);
    void ShowRoiMenu();
    std::string TipOf(int command);
    void Arrange();
    // Each takes its part of the room, and tells the bars by which the user makes it larger and smaller.
    void ArrangeSide(RECT& room, std::vector<Splitters::Bar>& bars);
    void ArrangeResults(RECT& room, std::vector<Splitters::Bar>& bars);
    void ArrangePicture(const RECT& room);
    int Chosen(int length, int least, int most) const;
    void NoteLayout();
    void LimitSize(MINMAXINFO& limits) const;
    bool OnSplitterMessage(UINT message, LPARAM lParam);
    std::string TabTip(int tab) const;
    void UpdateTabs();
    void UpdateTitle();

    // What the panes need
    HWND Canvas() const override { return view.Canvas(); }
    void RepaintPicture() override { view.Refresh(DisplayChanged); }
    void BringIntoView(const RECT& part) override { view.BringIntoView(part); }
    POINT PointOf(double x, double y) const override { return view.PointOf(x, y); }
    void UseSelectTool() override { SetRoiTool(selectTool); }

    // Panes
    void CreatePanes();
    std::vector<DocumentPane*> AllPanes();
    /// The chosen one of the panes at the side.
    DocumentPane& ChosenPane() { return *sidePanes[chosenPane]; }
    void ChooseSidePane(std::size_t chosen);
    /// Shows the chosen one, if the side is shown at all.
    void ShowSidePane();
    /// Picture, list of ROIs, page at the side, results, and the picture again.
    void FocusNextPart();

    std::vector<std::unique_ptr<Document>> documents;
    Document* active = nullptr;

    const Menus menus;
    const HeldKeys keys;
    HWND tabs = nullptr;
    HWND sideTabs = nullptr;
    Font font;
    Toolbar toolbar;
    StatusBar statusBar;
    Splitters splitters;
    std::string tip;  ///< what the tooltip in front says
    PictureView view;
    Tools tools;
    RoiListPane roiListPane;
    ResultsPane resultsPane;
    std::vector<std::unique_ptr<DocumentPane>> sidePanes;
    std::size_t chosenPane = 0;
    HWND lastFocus = nullptr;  ///< the control with the focus when another program came to the front
    bool isSideShown = true;
    bool isResultsShown = true;
};

}  // namespace kestview

// The main window: menu, toolbar, tabs of the open pictures, the picture view, the panes, the status bar.
//
// What a menu entry does stands in commands/, one file a menu; Commands.cpp lists all entries.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/Document.h"
#include "panes/CalibrationPane.h"
#include "panes/DisplayTablePane.h"
#include "panes/HistogramPane.h"
#include "panes/ProfilePane.h"
#include "panes/ResultsPane.h"
#include "panes/RoiListPane.h"
#include "panes/ThresholdPane.h"
#include "picture/PictureView.h"
#include "platform/Drawing.h"
#include "platform/Window.h"
#include "window/Splitters.h"
#include "window/StatusBar.h"
#include "window/Toolbar.h"
#include "window/Tools.h"

namespace kestview {

/// The pages of the side pane, in the order of its tabs.
enum SidePage { ThresholdPage, DisplayTablePage, HistogramPage, ProfilePage, CalibrationPage, sidePageCount };

class MainWindow : public Window {
public:
    MainWindow();
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

    PictureView& View() { return view; }
    ResultsPane& Results() { return resultsPane; }
    ThresholdPane& Threshold() { return thresholdPane; }
    DisplayTablePane& DisplayTable() { return displayTablePane; }
    CalibrationPane& Calibration() { return calibrationPane; }
    Tools& LoadedTools() { return tools; }
    StatusBar& Status() { return statusBar; }

    void SetRoiTool(int roiType);
    void ShowSidePage(SidePage page);
    SidePage ShownSidePage() const { return sidePage; }
    /// The graph of the page in front, or null.
    GraphWindow* ShownGraph();
    void ToggleSide();
    void ToggleResults();
    bool IsSideShown() const { return isSideShown; }
    bool IsResultsShown() const { return isResultsShown; }

    /// For the message loop: keys of the panes' controls.
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
    void OnDrop(HDROP drop);
    LRESULT OnNotify(NMHDR& header);
    void OnDocumentChanged(Document& document, unsigned change);
    void OnInitMenu(HMENU menu);
    void Arrange();
    void NoteLayout();
    void LimitSize(MINMAXINFO& limits) const;
    bool OnSplitterMessage(UINT message, LPARAM lParam);
    std::string TabTip(int tab) const;
    void UpdateTabs();
    void UpdateTitle();
    DocumentPane& PageOf(SidePage page);
    std::vector<DocumentPane*> AllPanes();
    /// The chosen one of the pages at the side, if they are shown at all.
    void ShowPages();
    /// Picture, list of ROIs, page at the side, results, and the picture again.
    void FocusNextPart();

    std::vector<std::unique_ptr<Document>> documents;
    Document* active = nullptr;

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
    ThresholdPane thresholdPane;
    DisplayTablePane displayTablePane;
    HistogramPane histogramPane;
    ProfilePane profilePane;
    CalibrationPane calibrationPane;
    SidePage sidePage = HistogramPage;
    HWND lastFocus = nullptr;  ///< the control with the focus when another program came to the front
    bool isSideShown = true;
    bool isResultsShown = true;
};

}  // namespace kestview

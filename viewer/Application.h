// The application object: what outlives any document. It is the program's only global.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"
#include "platform/Program.h"

namespace kestview {

class MainWindow;

/// Where the window and its parts are; lengths of parts are for 96 dots an inch.
struct WindowLayout {
    RECT place = {};  ///< empty: not known yet
    bool isMaximized = false;
    int sideWidth = 352;
    int roiListHeight = 222;
    int resultsHeight = 202;
    int isSideShown = 1;
    int isResultsShown = 1;
    int showsRoiNames = 1;
};

class Application : public Program {
public:
    Application();
    ~Application() override;

    /// Opens the window and the files, and runs until the window is closed.
    int Run(const std::vector<std::string>& files, int showCommand);
    void ShowProgress(const std::string& text, double part) override;

    // Settings, kept from run to run
    const std::vector<std::string>& RecentFiles() const { return recentFiles; }
    void NoteRecentFile(const std::string& path);
    COLORREF RoiColour(bool isSelected) const { return isSelected ? selectedColour : unselectedColour; }
    void SetRoiColour(bool isSelected, COLORREF colour);
    WindowLayout& Layout() { return layout; }

    /// Gives the library the colours and, for this zoom, the pens. The library forgets the colours with the last ROI,
    /// so this is done before each drawing.
    void ApplyRoiLook(CcRoiBase& anyRoi, int zoom);

    /// "C:\Programs\KestView\": where the program lies.
    std::string ProgramFolder() const;

    /// Also done at the end, and whenever a file is noted.
    void SaveSettings() const;

private:
    void LoadSettings();

    std::unique_ptr<MainWindow> mainWindow;
    std::vector<std::string> recentFiles;
    COLORREF selectedColour = RGB(255, 0, 0);
    COLORREF unselectedColour = RGB(0, 200, 0);
    WindowLayout layout;
    std::string settingsPath;
};

Application& App();

}  // namespace kestview

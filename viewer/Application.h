// The application object: what outlives any document. It is the program's only global.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "KestApi.h"

namespace kestview {

class MainWindow;

class Application {
public:
    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Opens the window and the files, and runs until the window is closed.
    int Run(const std::vector<std::string>& files, int showCommand);
    MainWindow& Main() { return *mainWindow; }

    // Settings, kept from run to run
    const std::vector<std::string>& RecentFiles() const { return recentFiles; }
    void NoteRecentFile(const std::string& path);
    COLORREF RoiColour(bool isSelected) const { return isSelected ? selectedColour : unselectedColour; }
    void SetRoiColour(bool isSelected, COLORREF colour);

    /// Gives the library the colours and, for this zoom, the pens. The library forgets the colours with the last ROI,
    /// so this is done before each drawing.
    void ApplyRoiLook(CcRoiBase& anyRoi, int zoom);

    /// "C:\Programs\KestView\": where the program lies.
    std::string ProgramFolder() const;

private:
    void LoadSettings();
    void SaveSettings() const;

    std::unique_ptr<MainWindow> mainWindow;
    std::vector<std::string> recentFiles;
    COLORREF selectedColour = RGB(255, 0, 0);
    COLORREF unselectedColour = RGB(0, 200, 0);
    std::string settingsPath;
};

Application& App();

}  // namespace kestview

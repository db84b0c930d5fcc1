// What is kept from run to run, in a file of the user's own: recent files, colours, places and sizes.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kestview {

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

class Settings {
public:
    Settings();
    /// Saves them.
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    /// The last one first.
    const std::vector<std::string>& RecentFiles() const { return recentFiles; }
    void NoteRecentFile(const std::string& path);
    COLORREF RoiColour(bool isSelected) const { return isSelected ? selectedColour : unselectedColour; }
    void SetRoiColour(bool isSelected, COLORREF colour) { (isSelected ? selectedColour : unselectedColour) = colour; }
    WindowLayout layout;

    /// Also done at the end, and whenever a file is noted.
    void Save() const;

private:
    void Load();

    std::vector<std::string> recentFiles;
    COLORREF selectedColour = RGB(255, 0, 0);
    COLORREF unselectedColour = RGB(0, 200, 0);
    std::string file;  ///< empty: there is no place for it
};

/// Those of the running program.
Settings& KeptSettings();

}  // namespace kestview

// What is kept from run to run, in a file of the user's own.
#include "platform/Settings.h"

#include <windows.h>

#include <shlobj.h>

#include "platform/Program.h"
#include "platform/Text.h"

namespace kestview {
namespace {

constexpr std::size_t mostRecentFiles = 8;
constexpr const char* section = "KestView";

struct LayoutSetting {
    const char* key;
    int WindowLayout::*value;
};
constexpr LayoutSetting layoutSettings[] = {
    {"SideWidth", &WindowLayout::sideWidth},         {"RoiListHeight", &WindowLayout::roiListHeight},
    {"ResultsHeight", &WindowLayout::resultsHeight}, {"SideShown", &WindowLayout::isSideShown},
    {"ResultsShown", &WindowLayout::isResultsShown}, {"RoiNames", &WindowLayout::showsRoiNames}};

}  // namespace

Settings& KeptSettings() { return RunningProgram()->settings; }

Settings::Settings() {
    char folder[MAX_PATH] = {};
    if (SHGetFolderPathA(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, folder) == S_OK) {
        file = std::string(folder) + "\\KestView";
        CreateDirectoryA(file.c_str(), nullptr);
        file += "\\KestView.ini";
    }
    Load();
}

Settings::~Settings() { Save(); }

void Settings::NoteRecentFile(const std::string& path) {
    std::erase_if(recentFiles, [&](const std::string& known) { return lstrcmpiA(known.c_str(), path.c_str()) == 0; });
    recentFiles.insert(recentFiles.begin(), path);
    if (recentFiles.size() > mostRecentFiles) recentFiles.resize(mostRecentFiles);
    Save();
}

void Settings::Load() {
    const auto number = [this](const char* key, int otherwise) {
        return static_cast<int>(GetPrivateProfileIntA(section, key, otherwise, file.c_str()));
    };
    for (std::size_t i = 0; i < mostRecentFiles; ++i) {
        char path[4 * MAX_PATH] = {};
        GetPrivateProfileStringA(section, Format("Recent%u", static_cast<unsigned>(i)).c_str(), "", path, sizeof path,
                                 file.c_str());
        if (*path) recentFiles.push_back(path);
    }
    selectedColour = static_cast<COLORREF>(number("SelectedColour", static_cast<int>(selectedColour)));
    unselectedColour = static_cast<COLORREF>(number("UnselectedColour", static_cast<int>(unselectedColour)));
    layout.place = {number("Left", 0), number("Top", 0), number("Right", 0), number("Bottom", 0)};
    layout.isMaximized = number("Maximized", 0) == 1;
    for (const LayoutSetting& setting : layoutSettings)
        layout.*setting.value = number(setting.key, layout.*setting.value);
}

void Settings::Save() const {
    if (file.empty()) return;
    const auto write = [this](const std::string& key, const std::string& value) {
        WritePrivateProfileStringA(section, key.c_str(), value.c_str(), file.c_str());
    };
    for (std::size_t i = 0; i < recentFiles.size(); ++i)
        write(Format("Recent%u", static_cast<unsigned>(i)), recentFiles[i]);
    write("SelectedColour", Format("%lu", selectedColour));
    write("UnselectedColour", Format("%lu", unselectedColour));
    write("Left", Format("%ld", layout.place.left));
    write("Top", Format("%ld", layout.place.top));
    write("Right", Format("%ld", layout.place.right));
    write("Bottom", Format("%ld", layout.place.bottom));
    write("Maximized", layout.isMaximized ? "1" : "0");
    for (const LayoutSetting& setting : layoutSettings) write(setting.key, Format("%d", layout.*setting.value));
}

}  // namespace kestview

// The application object: settings that last from run to run, and the message loop.
#include "Application.h"

#include <shlobj.h>

#include <algorithm>
#include <cstdlib>

#include "MainWindow.h"
#include "Resource.h"
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

/// Text fields use these keys themselves.
bool IsEditKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) return false;
    char className[16] = {};
    GetClassNameA(message.hwnd, className, sizeof className);
    if (lstrcmpiA(className, "Edit") != 0) return false;
    return message.wParam == 'A' || message.wParam == 'C' || message.wParam == 'V' || message.wParam == 'X' ||
           message.wParam == 'Z';
}

bool SameColour(const RGBTRIPLE& triple, COLORREF colour) {
    return RGB(triple.rgbtRed, triple.rgbtGreen, triple.rgbtBlue) == colour;
}

}  // namespace

Application& App() {
    return static_cast<Application&>(*RunningProgram());
}

Application::Application() {
    char folder[MAX_PATH] = {};
    if (SHGetFolderPathA(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, folder) == S_OK) {
        settingsPath = std::string(folder) + "\\KestView";
        CreateDirectoryA(settingsPath.c_str(), nullptr);
        settingsPath += "\\KestView.ini";
    }
    LoadSettings();
}

Application::~Application() {
    SaveSettings();
}

int Application::Run(const std::vector<std::string>& files, int showCommand) {
    mainWindow = std::make_unique<MainWindow>();
    if (!mainWindow->Create(showCommand)) return 1;
    // The window stands there before a large file is opened.
    RedrawWindow(*mainWindow, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (const std::string& file : files)
        mainWindow->OpenFile(FullPathOf(file));

    const HACCEL accelerators = LoadAcceleratorsA(ProgramInstance(), MAKEINTRESOURCEA(IDR_MAIN));
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (!IsEditKey(message) && TranslateAcceleratorA(*mainWindow, accelerators, &message)) continue;
        if (mainWindow->IsPaneMessage(message)) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    mainWindow.reset();
    return static_cast<int>(message.wParam);
}

void Application::ShowProgress(const std::string& text, double part) {
    if (mainWindow) mainWindow->Status().ShowProgress(text, part);
}

void Application::NoteRecentFile(const std::string& path) {
    std::erase_if(recentFiles, [&](const std::string& known) { return lstrcmpiA(known.c_str(), path.c_str()) == 0; });
    recentFiles.insert(recentFiles.begin(), path);
    if (recentFiles.size() > mostRecentFiles) recentFiles.resize(mostRecentFiles);
    SaveSettings();
}

void Application::SetRoiColour(bool isSelected, COLORREF colour) {
    (isSelected ? selectedColour : unselectedColour) = colour;
}

void Application::ApplyRoiLook(CcRoiBase& anyRoi, int zoom) {
    const auto triple = [](COLORREF colour) {
        return RGBTRIPLE{GetBValue(colour), GetGValue(colour), GetRValue(colour)};
    };
    RGBTRIPLE selected = triple(selectedColour), unselected = triple(unselectedColour);
    if (!SameColour(CcRoiBase::stSelectedColor, selectedColour)) anyRoi.SetSelectedColor(&selected);
    if (!SameColour(CcRoiBase::stUnSelectedColor, unselectedColour)) anyRoi.SetUnSelectedColor(&unselected);
    anyRoi.SetZoomPen(1 + zoom / 4);
}

std::string Application::ProgramFolder() const {
    char path[4 * MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, sizeof path);
    return FolderOf(path);
}

void Application::LoadSettings() {
    const auto number = [this](const char* key, int otherwise) {
        return static_cast<int>(GetPrivateProfileIntA(section, key, otherwise, settingsPath.c_str()));
    };
    for (std::size_t i = 0; i < mostRecentFiles; ++i) {
        char path[4 * MAX_PATH] = {};
        GetPrivateProfileStringA(section, Format("Recent%u", static_cast<unsigned>(i)).c_str(), "", path, sizeof path,
                                 settingsPath.c_str());
        if (*path) recentFiles.push_back(path);
    }
    selectedColour = static_cast<COLORREF>(number("SelectedColour", static_cast<int>(selectedColour)));
    unselectedColour = static_cast<COLORREF>(number("UnselectedColour", static_cast<int>(unselectedColour)));
    layout.place = {number("Left", 0), number("Top", 0), number("Right", 0), number("Bottom", 0)};
    layout.isMaximized = number("Maximized", 0) == 1;
    for (const LayoutSetting& setting : layoutSettings)
        layout.*setting.value = number(setting.key, layout.*setting.value);
}

void Application::SaveSettings() const {
    if (settingsPath.empty()) return;
    const auto write = [this](const std::string& key, const std::string& value) {
        WritePrivateProfileStringA(section, key.c_str(), value.c_str(), settingsPath.c_str());
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
    for (const LayoutSetting& setting : layoutSettings)
        write(setting.key, Format("%d", layout.*setting.value));
}

}  // namespace kestview

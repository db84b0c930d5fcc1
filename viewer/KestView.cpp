// KestView: opens pictures, draws and measures regions of interest in them. The program's entry.
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>

#include "Application.h"
#include "platform/Guards.h"
#include "platform/Text.h"

namespace {

/// The system's library for pictures in files and for dialogs (CoUninitialize).
struct ComLibrary : kest::Guard {
    ComLibrary() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~ComLibrary() { CoUninitialize(); }
};

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    const ComLibrary comLibrary;

    std::vector<std::string> files;
    int count = 0;
    const kestview::Held<wchar_t**, LocalFree> arguments(CommandLineToArgvW(GetCommandLineW(), &count));
    for (int i = 1; arguments && i < count; ++i) files.push_back(kestview::Utf8(arguments[i]));
    kestview::Application application;
    return application.Run(files, showCommand);
}

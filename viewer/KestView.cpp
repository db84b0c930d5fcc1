// KestView: opens pictures, draws and measures regions of interest in them. The program's entry.
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>

#include "Application.h"
#include "platform/Text.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_BAR_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);

    std::vector<std::string> files;
    int count = 0;
    if (wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count)) {
        for (int i = 1; i < count; ++i)
            files.push_back(kestview::Utf8(arguments[i]));
        LocalFree(arguments);
    }
    int result;
    {
        kestview::Application application;
        result = application.Run(files, showCommand);
    }
    CoUninitialize();
    return result;
}

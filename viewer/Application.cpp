// The application object: the window, and the message loop.
#include "Application.h"

#include "commands/AllMenus.h"
#include "platform/Text.h"
#include "window/MainWindow.h"

namespace kestview {
namespace {

/// Text fields use these keys themselves.
bool IsEditKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) return false;
    char className[16] = {};
    GetClassNameA(message.hwnd, className, sizeof className);
    if (lstrcmpiA(className, "Edit") != 0) return false;
    return message.wParam == 'A' || message.wParam == 'C' || message.wParam == 'V' || message.wParam == 'X' ||
           message.wParam == 'Z';
}

}  // namespace

Application::Application() = default;

Application::~Application() = default;

int Application::Run(const std::vector<std::string>& files, int showCommand) {
    mainWindow = std::make_unique<MainWindow>(AllMenus());
    if (!mainWindow->Create(showCommand)) return 1;
    // The window stands there before a large file is opened.
    RedrawWindow(*mainWindow, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (const std::string& file : files) mainWindow->OpenFile(FullPathOf(file));

    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (!IsEditKey(message) && TranslateAcceleratorA(*mainWindow, mainWindow->Keys(), &message)) continue;
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

}  // namespace kestview

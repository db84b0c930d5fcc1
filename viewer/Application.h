// The application object: the window, and the message loop. It is the program's only global.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Program.h"

namespace kestview {

class MainWindow;

class Application : public Program {
public:
    Application();
    ~Application() override;

    /// Opens the window and the files, and runs until the window is closed.
    int Run(const std::vector<std::string>& files, int showCommand);
    void ShowProgress(const std::string& text, double part) override;

private:
    std::unique_ptr<MainWindow> mainWindow;
};

}  // namespace kestview

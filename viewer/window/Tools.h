// The tool libraries of the folder "tools" beside the program: their menu entries, toolbar buttons and messages.
#pragma once

#include <memory>
#include <string>

#include "KestApi.h"
#include "KestToolHost.h"

namespace kestview {

class Toolbar;

class Tools {
public:
    Tools();
    ~Tools();
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

    /// Loads every library of the folder, in the order of their names.
    void Load();
    /// Fills the menu that tells there are none, and adds buttons for the tools that bring a picture.
    void AddTo(HMENU menuBar, Toolbar& toolbar);
    /// Opens the tool of a menu entry.
    void Run(int command, HWND mainWindow);
    /// The menu text of an entry.
    std::string TextOf(int command);
    int Count() { return list->GetNumberOfElements(); }

    /// The tools are told that another picture (or none) is in front.
    void SetCurrentImage(CcImage* image);
    void PixelsChanged();
    void CloseAll();

private:
    void SendToAll(unsigned message);

    std::unique_ptr<CDLLLST> list;
    CcImage* currentImage = nullptr;  ///< the tools read it through its address
};

}  // namespace kestview

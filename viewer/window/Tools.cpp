// The tool libraries of the folder "tools" beside the program.
#include "window/Tools.h"

#include <algorithm>
#include <vector>

#include "platform/Guards.h"
#include "platform/Text.h"
#include "res/Resource.h"
#include "window/Toolbar.h"

namespace kestview {

Tools::Tools() : list(new CDLLLST) {}

Tools::~Tools() { CloseAll(); }

void Tools::Load() {
    char program[4 * MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string folder = FolderOf(program) + "tools\\";
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    const HANDLE first = FindFirstFileA((folder + "*.dll").c_str(), &found);
    if (first == INVALID_HANDLE_VALUE) return;
    const Held<HANDLE, FindClose> search(first);
    do names.push_back(found.cFileName);
    while (FindNextFileA(search, &found));
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        if (Count() > ID_TOOLS_LAST - ID_TOOLS_FIRST) break;
        std::unique_ptr<CLOADDLL> tool(new CLOADDLL);
        // A library that is no tool has said so in a box.
        if (tool->LoadDll((folder + name).c_str()) < 0) continue;
        tool->SetMenuID(static_cast<unsigned>(ID_TOOLS_FIRST + Count()));
        if (list->InsertTail(tool.get()) == 0) tool.release();
    }
}

void Tools::AddTo(HMENU menuBar, Toolbar& toolbar) {
    if (Count() == 0) return;
    HMENU menu = nullptr;
    for (int i = 0; i < GetMenuItemCount(menuBar); ++i)
        if (GetMenuItemID(GetSubMenu(menuBar, i), 0) == ID_TOOLS_NONE) menu = GetSubMenu(menuBar, i);
    DeleteMenu(menu, ID_TOOLS_NONE, MF_BYCOMMAND);
    for (int i = 0; i < Count(); ++i) {
        CLOADDLL& tool = *list->GetAt(i);
        AppendMenuA(menu, MF_STRING, tool.GetMenuItemNumber(), tool.GetMenuText());
        if (tool.GetToolBitMap()) toolbar.AddTool(static_cast<int>(tool.GetMenuItemNumber()), tool.GetToolBitMap());
    }
}

std::string Tools::TextOf(int command) {
    CLOADDLL* tool = list->GetAt(command - ID_TOOLS_FIRST);
    std::string text = tool ? tool->GetMenuText() : "";
    std::erase(text, '&');
    return text;
}

void Tools::Run(int command, HWND mainWindow) {
    if (CLOADDLL* tool = list->GetAt(command - ID_TOOLS_FIRST)) tool->CallDllMainFunction(mainWindow, &currentImage);
}

void Tools::SetCurrentImage(CcImage* image) {
    if (currentImage == image) return;
    currentImage = image;
    SendToAll(KEST_TOOL_IMAGE_CHANGED);
}

void Tools::PixelsChanged() { SendToAll(KEST_TOOL_PIXELS_CHANGED); }

void Tools::CloseAll() {
    for (int i = 0; i < Count(); ++i) list->GetAt(i)->CloseAllOpenTools();
}

void Tools::SendToAll(unsigned message) {
    for (int i = 0; i < Count(); ++i) list->GetAt(i)->SendMessageToTools(message, 0, 0);
}

}  // namespace kestview

// Tools from libraries of their own.
#include <cstring>
#include <string>

#include "Guide.h"

namespace guide {
namespace {

constexpr UINT firstToolCommand = 40000;

// [load-tools]
/// Loads every tool library of a folder and puts it into a menu.
void LoadTools(const std::string& folder, CDLLLST& tools, HMENU menu) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((folder + "\\*Tool.dll").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        auto* tool = new CLOADDLL;
        if (!tool) break;
        if (tool->LoadDll((folder + "\\" + found.cFileName).c_str()) < 0 || tools.InsertTail(tool) < 0) {
            delete tool;  // a message has told why; the list takes 100 tools
            continue;
        }
        tool->SetMenuID(firstToolCommand + tools.GetNumberOfElements() - 1);
        AppendMenuA(menu, MF_STRING, tool->GetMenuItemNumber(), tool->GetMenuText());
    } while (FindNextFileA(search, &found));
    FindClose(search);
}
// [/load-tools]

// [run-tool]
/// What a menu command of a tool does. `currentImage` is a variable of the host that outlives the tools' windows.
HWND RunTool(CDLLLST& tools, UINT command, HWND parent, CcImage*& currentImage) {
    CLOADDLL* tool = tools.GetAt(static_cast<int>(command - firstToolCommand));
    return tool ? tool->CallDllMainFunction(parent, &currentImage) : nullptr;
}

void TellTools(CDLLLST& tools, UINT message) {
    for (CLOADDLL* tool = tools.GetHead(); tool; tool = tools.GetNext()) tool->SendMessageToTools(message, 0, 0);
}
// [/run-tool]

void CloseTools(CDLLLST& tools) {
    // [close-tools]
    for (int index = 0; index < tools.GetNumberOfElements(); ++index) tools.GetAt(index)->CloseAllOpenTools();
    // The list's destructor deletes the tools, which unloads their libraries.
    // [/close-tools]
}

}  // namespace

void Tools() {
    char program[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string folder = program;
    folder.erase(folder.rfind('\\'));

    CDLLLST tools;
    const HMENU menu = CreatePopupMenu();
    {
        // Only the sample tool: the folder of this program may hold others.
        CLOADDLL* tool = new CLOADDLL;
        if (tool->LoadDll((folder + "\\HistogramTool.dll").c_str()) == 0) tools.InsertTail(tool);
        CDLLLST all;
        LoadTools(folder, all, menu);
        Expect(all.GetNumberOfElements() >= 1 && GetMenuItemCount(menu) == all.GetNumberOfElements(),
               "the tools of a folder fill a menu");
    }
    Expect(tools.GetNumberOfElements() == 1 && std::strcmp(tools.GetAt(0)->GetMenuText(), "&Histogram") == 0,
           "a tool says what its menu entry is");
    CcGrayImage256 image;
    example::MakeSamplePicture(image);
    CcImage* current = &image;
    const HWND host = example::OpenWindow("Host", 200, 100, [](HWND w, UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcA(w, message, wParam, lParam);
    });
    const HWND window = RunTool(tools, firstToolCommand, host, current);
    Expect(IsWindow(window), "a tool opens its window");
    TellTools(tools, KEST_TOOL_PIXELS_CHANGED);
    example::PumpMessages(50);
    CloseTools(tools);
    Expect(!IsWindow(window), "and closes it");
    DestroyMenu(menu);
    DestroyWindow(host);
}

}  // namespace guide

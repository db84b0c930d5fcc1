// A sample tool library: a histogram window of the host's current image. Start a tool of your own from this file: it
// holds everything that a host sees of a tool.
#include <KestTool.h>
#include <KestToolHost.h>

#include "HistogramWindow.h"
#include "Resources.h"

namespace {

HINSTANCE toolModule = nullptr;
HBITMAP toolBitmap = nullptr, toolBitmapSelected = nullptr;

/// The grey tones of the bitmap become the system's button colours.
HBITMAP LoadToolBitmap(int id) {
    return static_cast<HBITMAP>(LoadImageA(toolModule, MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS));
}

HWND __cdecl OpenTool(HWND hParent, void* pData) {
    return histogram_window::Open(toolModule, hParent, static_cast<CcImage**>(pData));
}

void __cdecl HandleHostMessage(UINT uMessage, UINT, LONG) {
    if (uMessage == KEST_TOOL_IMAGE_CHANGED || uMessage == KEST_TOOL_PIXELS_CHANGED) histogram_window::Refresh();
}

void __cdecl CloseTool() { histogram_window::Close(); }

}  // namespace

// [initialize]
KEST_TOOL_EXPORT void KestInitialize(tagToolInfo* pInfo) {
    // A host may load the library for several menu entries; the bitmaps are made once.
    if (!toolBitmap) toolBitmap = LoadToolBitmap(IDB_TOOL);
    if (!toolBitmapSelected) toolBitmapSelected = LoadToolBitmap(IDB_TOOL_SELECTED);

    lstrcpynA(pInfo->szMenuText, "&Histogram", KEST_TOOL_TEXT_SIZE);
    pInfo->pfnMain = OpenTool;
    pInfo->pfnSendMessage = HandleHostMessage;
    pInfo->pfnCloseAll = CloseTool;
    // pfnProxyMessage stays null: this tool has no second message function.
    pInfo->hToolBitmap = toolBitmap;
    pInfo->hToolBitmapSelected = toolBitmapSelected;
}
// [/initialize]

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID isProcessEnding) {
    if (reason == DLL_PROCESS_ATTACH) toolModule = module;
    if (reason == DLL_PROCESS_DETACH && !isProcessEnding) {
        histogram_window::Unregister(module);
        if (toolBitmap) DeleteObject(toolBitmap);
        if (toolBitmapSelected) DeleteObject(toolBitmapSelected);
    }
    return TRUE;
}

// A tool with every slot filled. It writes what it is told into the ToolLog that its main function is given.
#include "ToolLog.h"

namespace {

tagToolInfo received;
ToolLog* toolLog;

void Add(char function, UINT message, UINT wParam, LONG lParam) {
    if (toolLog && toolLog->count < 8) toolLog->calls[toolLog->count++] = {function, message, wParam, lParam};
}

HWND __cdecl Open(HWND parent, void* data) {
    toolLog = static_cast<ToolLog*>(data);
    toolLog->received = received;
    Add('m', 0, 0, 0);
    return parent;
}
void __cdecl Receive(UINT message, UINT wParam, LONG lParam) { Add('s', message, wParam, lParam); }
void __cdecl ReceiveProxy(UINT message, UINT wParam, LONG lParam) { Add('p', message, wParam, lParam); }
void __cdecl CloseAll() { Add('c', 0, 0, 0); }

}  // namespace

KEST_TOOL_EXPORT void KestInitialize(tagToolInfo* pInfo) {
    received = *pInfo;
    lstrcpyA(pInfo->szMenuText, "Record");
    pInfo->pfnMain = Open;
    pInfo->pfnSendMessage = Receive;
    pInfo->pfnCloseAll = CloseAll;
    pInfo->pfnProxyMessage = ReceiveProxy;
    pInfo->hToolBitmap = reinterpret_cast<HBITMAP>(0x1234);
    pInfo->hToolBitmapSelected = reinterpret_cast<HBITMAP>(0x5678);
}

// CLOADDLL: loads a tool library and keeps what its entry point filled in.
#include "CLOADDLL.h"

#include <cstring>

#include "KestTypes.h"
#include "core/Messages.h"

CLOADDLL::CLOADDLL()
    : hDllModule(nullptr),
      pfnMain(nullptr),
      pfnSendMessage(nullptr),
      pfnCloseAll(nullptr),
      pfnProxyMessage(nullptr),
      pfnInitialize(nullptr),
      uMenuID(0),
      szMenuText("Void"),
      hToolBitmap(nullptr),
      hToolBitmapSelected(nullptr),
      stToolInfo{},
      szDllPath(""),
      szToolBarName(""),
      bAutoStart(0) {}

CLOADDLL::~CLOADDLL() {
    if (hDllModule && bOwnsModule) FreeLibrary(hDllModule);
    hDllModule = nullptr;
}

int CLOADDLL::LoadDll(const char* pszPath) {
    if (!pszPath) return KEST_FAILED;
    // A path that does not fit is not loaded at all: what is left of it may name another library.
    const std::size_t length = std::strlen(pszPath);
    const bool fits = length < sizeof szDllPath;
    if (fits) std::memcpy(szDllPath, pszPath, length + 1);
    hDllModule = fits ? LoadLibraryA(szDllPath) : nullptr;
    if (!hDllModule) {
        kest::ShowMessage(pszPath, "Error Loading Tool:");
        return KEST_FAILED;
    }
    bOwnsModule.Take();
    pfnInitialize =
        reinterpret_cast<KestToolInitialize>(reinterpret_cast<void*>(GetProcAddress(hDllModule, KEST_TOOL_ENTRY)));
    if (!pfnInitialize) {
        kest::ShowMessage("Can't get address of KestInitialize", pszPath);
        return KEST_FAILED;
    }
    // A slot that the tool leaves alone is null, whatever an earlier load left in it.
    stToolInfo = {};
    stToolInfo.pszDllPath = pszPath;
    pfnInitialize(&stToolInfo);

    pfnMain = stToolInfo.pfnMain;
    pfnSendMessage = stToolInfo.pfnSendMessage;
    pfnCloseAll = stToolInfo.pfnCloseAll;
    pfnProxyMessage = stToolInfo.pfnProxyMessage;
    std::memcpy(szMenuText, stToolInfo.szMenuText, sizeof szMenuText);
    szMenuText[sizeof szMenuText - 1] = 0;
    hToolBitmap = stToolInfo.hToolBitmap;
    hToolBitmapSelected = stToolInfo.hToolBitmapSelected;
    return KEST_OK;
}

int CLOADDLL::UNLoadDll() {
    const bool unloaded = FreeLibrary(hDllModule) == TRUE;
    // The functions are gone with the library; the handle stays, and the destructor releases it once more.
    pfnMain = nullptr;
    pfnSendMessage = nullptr;
    pfnCloseAll = nullptr;
    pfnProxyMessage = nullptr;
    pfnInitialize = nullptr;
    return unloaded ? KEST_OK : KEST_FAILED;
}

int CLOADDLL::SetMenuID(unsigned int uNewID) {
    uMenuID = uNewID;
    return KEST_OK;
}

unsigned int CLOADDLL::GetMenuItemNumber() { return uMenuID; }

char* CLOADDLL::GetMenuText() { return szMenuText; }

HBITMAP CLOADDLL::GetToolBitMap() { return hToolBitmap; }

HBITMAP CLOADDLL::GetToolBitMapSelected() { return hToolBitmapSelected; }

int CLOADDLL::SetToolBarName(const char* pszName) {
    if (!pszName) return KEST_FAILED;
    // The last two bytes of the field are never written, so a name cut off here still ends.
    constexpr std::size_t longest = 255;
    static_assert(longest < sizeof szToolBarName);
    std::strncpy(szToolBarName, pszName, longest);
    return KEST_OK;
}

char* CLOADDLL::GetToolBarName() { return szToolBarName; }

int CLOADDLL::EnableAutoStart(int bOn) {
    bAutoStart = bOn;
    return KEST_OK;
}

int CLOADDLL::IsAutoStartEnabled() { return bAutoStart; }

HWND CLOADDLL::CallDllMainFunction(HWND hParent, void* pData) { return pfnMain ? pfnMain(hParent, pData) : nullptr; }

int CLOADDLL::SendMessageToTools(unsigned int uMessage, unsigned int wParam, long lParam) {
    if (!pfnSendMessage) return KEST_FAILED;
    pfnSendMessage(uMessage, wParam, lParam);
    return KEST_OK;
}

int CLOADDLL::SendProxyMessage(unsigned int uMessage, unsigned int wParam, long lParam) {
    if (!pfnProxyMessage) return KEST_FAILED;
    pfnProxyMessage(uMessage, wParam, lParam);
    return KEST_OK;
}

int CLOADDLL::CloseAllOpenTools() {
    if (!pfnCloseAll) return KEST_FAILED;
    pfnCloseAll();
    return KEST_OK;
}

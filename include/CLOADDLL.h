// CLOADDLL: one tool library, loaded at run time.
#pragma once

#include <windows.h>

#include "KestBlocks.h"
#include "KestExport.h"
#include "KestHeapObject.h"
#include "KestTool.h"

/// Loads a tool library, learns from its entry point KestInitialize what it offers, and forwards the host's calls.
///
/// An object is filled once, by LoadDll, and unloaded by UNLoadDll or its destructor. A copy refers to the same library
/// and does not unload it in its destructor.
class KEST_API CLOADDLL : public KestHeapObject {
public:
    /// An empty tool whose menu text is "Void".
    CLOADDLL();
    CLOADDLL(const CLOADDLL&) = default;
    CLOADDLL& operator=(const CLOADDLL&) = default;
    /// Unloads the library, also after UNLoadDll: a library that is loaded several times then loses two references.
    virtual ~CLOADDLL();

    /// Loads the tool library at `pszPath`, a path of at most 254 characters, and takes over what it offers. -1 for
    /// null, and after a message when the library cannot be loaded or has no entry point; then it stays loaded.
    int LoadDll(const char* pszPath);
    /// Unloads the library; the tool's functions are absent from then on. Close its windows first. 0, or -1 when there
    /// was none to unload.
    int UNLoadDll();

    /// @name For the host's menu and toolbar
    /// @{

    /// Keeps the host's menu command identifier for the tool. Always 0.
    int SetMenuID(unsigned int uNewID);
    unsigned int GetMenuItemNumber();  ///< what SetMenuID kept, 0 at first
    /// "Void" before a tool is loaded; at most 79 characters.
    char* GetMenuText();
    /// The toolbar bitmap, the tool's own; null when it has none.
    HBITMAP GetToolBitMap();
    /// The same for the pressed state.
    HBITMAP GetToolBitMapSelected();
    /// Keeps the first 255 characters of the name of the toolbar that the host puts the tool on. -1 for null.
    int SetToolBarName(const char* pszName);
    char* GetToolBarName();  ///< the object's own buffer, "" at first
    /// Keeps, as it stands, whether the host starts the tool by itself. Always 0.
    int EnableAutoStart(int bOn);
    int IsAutoStartEnabled();  ///< what EnableAutoStart kept, 0 at first

    /// @}
    /// @name Calls into the tool
    /// @{

    /// Opens the tool and returns its window; null when the tool has no main function.
    HWND CallDllMainFunction(HWND hParent, void* pData);
    /// 0, or -1 when the tool has no message function.
    int SendMessageToTools(unsigned int uMessage, unsigned int wParam, long lParam);
    /// The same by the tool's second message function.
    int SendProxyMessage(unsigned int uMessage, unsigned int wParam, long lParam);
    /// 0, or -1 when the tool has no such function.
    int CloseAllOpenTools();
    /// @}

protected:
    HMODULE hDllModule;                    ///< keeps its value after UNLoadDll
    KestToolMain pfnMain;                  ///< opens the tool; null, as the next three, where the tool has none
    KestToolMessage pfnSendMessage;        ///< takes the host's messages
    KestToolCloseAll pfnCloseAll;          ///< closes the tool's windows
    KestToolMessage pfnProxyMessage;       ///< the second message function
    KestToolInitialize pfnInitialize;      ///< the tool's entry point
    unsigned int uMenuID;                  ///< the host's menu command
    char szMenuText[KEST_TOOL_TEXT_SIZE];  ///< text for the host's menu
    HBITMAP hToolBitmap;                   ///< the tool's own, or null
    HBITMAP hToolBitmapSelected;           ///< the tool's own, or null
    tagToolInfo stToolInfo;                ///< the record handed to the tool
    char szDllPath[255];                   ///< the path that the tool was loaded by
    char szToolBarName[257];               ///< name of the host's toolbar
    int bAutoStart;                        ///< whether the host starts the tool by itself

private:
    KestOwnership bOwnsModule;
};

/* KestTool.h: what a tool and its host exchange. A tool is a dynamic library of its own that exports KestInitialize; a
 * host loads it with CLOADDLL. Plain C (of 1999 or later) and C++; a tool needs no other header of the library.
 *
 * A tool's source begins so:
 *
 *     #include <KestTool.h>
 *     KEST_TOOL_EXPORT void KestInitialize(tagToolInfo* pInfo) {
 *         lstrcpynA(pInfo->szMenuText, "My tool...", KEST_TOOL_TEXT_SIZE);
 *         pInfo->pfnMain = OpenMyWindow;
 *     }
 */
#pragma once

#include <assert.h>
#include <stddef.h>
#include <windows.h>

/** Size of the menu text, its terminator included. */
#define KEST_TOOL_TEXT_SIZE 80

/** Name of a tool's entry point. */
#define KEST_TOOL_ENTRY "KestInitialize"

/** Stands before the definition of a tool's entry point. */
#ifdef __cplusplus
#define KEST_TOOL_EXPORT extern "C" __declspec(dllexport)
extern "C" {
#else
#define KEST_TOOL_EXPORT __declspec(dllexport)
#endif

/** Opens the tool, with the host's window as parent; what `pData` points to is agreed between host and tool
 * (KestToolHost.h holds the agreement of this library's own host). Returns the tool's window, or null. */
typedef HWND(__cdecl* KestToolMain)(HWND hParent, void* pData);
/** Tells the tool of an event of the host. A parameter is 32 bits wide on every system and cannot hold a pointer. */
typedef void(__cdecl* KestToolMessage)(UINT uMessage, UINT wParam, LONG lParam);
/** Closes all windows of the tool. A host calls it before it unloads the tool. */
typedef void(__cdecl* KestToolCloseAll)(void);

/** The record that KestInitialize fills in: 108 bytes in a 32-bit process. It arrives zeroed but for pszDllPath; a slot
 * that stays null is an operation the tool does not have. */
typedef struct tagToolInfo {
    char szMenuText[KEST_TOOL_TEXT_SIZE]; /**< for the host's menu, NUL-terminated; 79 characters are used */
    KestToolMain pfnMain;                 /**< opens the tool */
    KestToolMessage pfnSendMessage;       /**< takes the host's messages */
    KestToolCloseAll pfnCloseAll;         /**< closes the tool's windows */
    KestToolMessage pfnProxyMessage;      /**< a second message function */
    HBITMAP hToolBitmap;                  /**< toolbar bitmap; it stays the tool's own */
    HBITMAP hToolBitmapSelected;          /**< the same for the pressed state */
    const char* pszDllPath; /**< from the host: the path the tool was loaded by, valid during the call only */
} tagToolInfo;

/** The entry point: called once, when the tool was loaded, before any other of its functions. */
typedef void(__cdecl* KestToolInitialize)(tagToolInfo* pInfo);

/* Older C has no static_assert. */
#if !defined(_WIN64) && (defined(__cplusplus) || __STDC_VERSION__ >= 201112L)
static_assert(offsetof(tagToolInfo, szMenuText) == 0, "layout of the tool record");
static_assert(offsetof(tagToolInfo, pfnMain) == 80, "layout of the tool record");
static_assert(offsetof(tagToolInfo, pfnSendMessage) == 84, "layout of the tool record");
static_assert(offsetof(tagToolInfo, pfnCloseAll) == 88, "layout of the tool record");
static_assert(offsetof(tagToolInfo, pfnProxyMessage) == 92, "layout of the tool record");
static_assert(offsetof(tagToolInfo, hToolBitmap) == 96, "layout of the tool record");
static_assert(offsetof(tagToolInfo, hToolBitmapSelected) == 100, "layout of the tool record");
static_assert(offsetof(tagToolInfo, pszDllPath) == 104, "layout of the tool record");
static_assert(sizeof(tagToolInfo) == 108, "layout of the tool record");
#endif

#ifdef __cplusplus
}
#endif

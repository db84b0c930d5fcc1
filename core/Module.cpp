// What happens when the library is loaded into a process: it remembers its module handle. Built with KEST_WITH_MFC it
// also registers itself as an extension module of the host's application framework, so that its resources are found.
#if defined(KEST_WITH_MFC)
#include <afxdllx.h>
#include <afxwin.h>
#endif

#include "core/Module.h"

#include "core/Platform.h"

namespace kest {
namespace {
HINSTANCE libraryModule = nullptr;
}

HINSTANCE LibraryModule() { return libraryModule; }

bool IsInLibrary(const void* address) {
    HMODULE module = nullptr;
    return GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                              static_cast<const char*>(address), &module) &&
           module == libraryModule;
}
}  // namespace kest

#if defined(KEST_WITH_MFC)
static AFX_EXTENSION_MODULE extensionModule;
#endif

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        kest::libraryModule = module;
        if (!kest::BeginThreadValues()) return FALSE;
#if defined(KEST_WITH_MFC)
        if (!AfxInitExtensionModule(extensionModule, module)) return FALSE;
        new CDynLinkLibrary(extensionModule);
#endif
    }
    if (reason == DLL_PROCESS_DETACH) {
        kest::EndThreadValues();
#if defined(KEST_WITH_MFC)
        AfxTermExtensionModule(extensionModule);
#endif
    }
    return TRUE;
}

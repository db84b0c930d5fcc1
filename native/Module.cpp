// The library's own module.
#include "core/Module.h"

#include <dlfcn.h>

namespace kest {

bool IsInLibrary(const void* address) {
    Dl_info asked, own;
    return dladdr(address, &asked) && dladdr(reinterpret_cast<const void*>(&IsInLibrary), &own) &&
           asked.dli_fbase == own.dli_fbase;
}

}  // namespace kest

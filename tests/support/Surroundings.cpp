// What tests need of the system that they run on: Windows.
#include "support/Surroundings.h"

#include <psapi.h>

HWND test::AnyWindow() { return GetDesktopWindow(); }

long long test::PrivateBytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<long long>(counters.PagefileUsage);
}

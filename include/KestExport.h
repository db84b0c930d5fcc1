// KEST_API marks what the DLL exports. KEST_BUILD is defined only while the DLL itself is built.
#pragma once

#if defined(_WIN32)
#if defined(KEST_BUILD)
#define KEST_API __declspec(dllexport)
#else
#define KEST_API __declspec(dllimport)
#endif
#else
#define KEST_API
#endif
